// A search through the whole word list at the real screen: how long it takes, how long it lets no event in, and when
// the first words can be read.
#include <QElapsedTimer>
#include <QEvent>
#include <QFile>
#include <QListWidget>
#include <QTimer>
#include <algorithm>

#include "dictionary/FrmDictionary.h"
#include "platform/forms/QtDesktop.h"
#include "support/BenchStudio.h"
#include "support/BenchTable.h"
#include "support/Stopwatch.h"
#include "support/benchScreen.h"

namespace lyrebrook {
namespace {

/// The desktop of the program itself, in place of the studio's for as long as it lives.
class RealDesktop {
  public:
    explicit RealDesktop(Desktop& before) : before_(before) { setDesktop(&desktop_); }
    ~RealDesktop() { setDesktop(&before_); }
    RealDesktop(const RealDesktop&) = delete;
    RealDesktop& operator=(const RealDesktop&) = delete;

  private:
    Desktop& before_;
    QtDesktop desktop_;
};

/// Longest time between two events, of which one is always pending.
class EventWatch {
  public:
    EventWatch() {
        timer_.callOnTimeout([this] { note(); });
        timer_.start(0);
        since_.start();
    }
    double longestMilliseconds() {
        note();
        return longest_;
    }

  private:
    void note() {
        longest_ = std::max(longest_, static_cast<double>(since_.nsecsElapsed()) / 1e6);
        since_.start();
    }

    QTimer timer_;
    QElapsedTimer since_;
    double longest_ = 0;
};

/// When the list was first painted with more than its head.
class FirstWords final : public QObject {
  public:
    FirstWords() {
        watched()->installEventFilter(this);
        since_.start();
    }
    bool eventFilter(QObject*, QEvent* event) override {
        constexpr int head = 2;
        if (event->type() == QEvent::Paint && seen_ < 0 && frmDictionary->lstWords.ListCount() > head)
            seen_ = static_cast<double>(since_.nsecsElapsed()) / 1e6;
        return false;
    }
    double milliseconds() const { return seen_; }

  private:
    static QWidget* watched() { return static_cast<QListWidget*>(frmDictionary->lstWords.widget())->viewport(); }

    QElapsedTimer since_;
    double seen_ = -1;
};

void search(const QString& term) {
    frmDictionary->txtWord.setText(term);
    frmDictionary->cmdSearch.setValue(true);
}

/// The list that ships, with a last line that the search must get to.
QString giveList(CrankedStudio& studio) {
    const QString list = studio.path(QStringLiteral("database/eng.xon"));
    QFile::copy(QStringLiteral(LYREBROOK_WORD_LIST), list);
    QFile file(list);
    if (!file.open(QIODevice::Append)) qFatal("no word list");
    file.write("buzzq\n");
    return list;
}

double firstWords(const QString& term) {
    search(QStringLiteral("zzq"));
    const FirstWords words;
    search(term);
    return words.milliseconds();
}

double longestSilence(const QString& term) {
    EventWatch watch;
    search(term);
    return watch.longestMilliseconds();
}

void measure() {
    BenchStudio desk;
    const RealDesktop real(desk.studio().desk());
    const std::string list = giveList(desk.studio()).toStdString();
    const QString rare = QStringLiteral("zzq");
    frmDictionary.Show();
    sideBySide(
        {.name = "rhymes", .reference = "grep -i 'zzq$' of the list", .unit = "ms", .limit = 3},
        [&rare] { return costOf([&rare] { search(rare); }).clock.count(); },
        [&list] {
            return costOfCommand({"grep", "-i", "zzq$", list}).clock.count();
        });
    constexpr double mostSilence = 20;
    besideFigure({.name = "rhymes-alive", .reference = "the longest that events wait", .unit = "ms"}, mostSilence,
                 [&rare] { return longestSilence(rare); });
    constexpr double mostWaiting = 50;
    besideFigure({.name = "rhymes-first", .reference = "the first words on the screen", .unit = "ms"}, mostWaiting,
                 [] { return firstWords(QStringLiteral("ing")); });
}

}  // namespace
}  // namespace lyrebrook

int main(int argc, char* argv[]) {
    return lyrebrook::benchScreen(argc, argv, lyrebrook::measure);
}
