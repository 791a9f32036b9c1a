// How long a person looks at "please wait" while a demo CD of three long songs and three photographs is made.
#include <unistd.h>

#include <QDir>
#include <QFile>

#include "democd/FrmDemoCD.h"
#include "support/BenchStudio.h"
#include "support/BenchTable.h"
#include "support/Stopwatch.h"
#include "support/benchScreen.h"

namespace lyrebrook {
namespace {

constexpr std::chrono::seconds fiftyMegabytes{284};
constexpr qsizetype photographBytes = 4'000'000;

void giveTemplates(const CrankedStudio& studio) {
    const QDir shipped(QStringLiteral(PAGE_TEMPLATES));
    for (const QString& name : shipped.entryList(QDir::Files)) {
        QFile::copy(shipped.filePath(name), studio.path(QStringLiteral("templates/cdRedPlayer/") + name));
    }
}

std::string givePhotograph(const CrankedStudio& studio, int index) {
    QFile file(studio.path(QStringLiteral("songs/photo%1.jpg").arg(index)));
    if (file.open(QIODevice::WriteOnly)) file.write(QByteArray(photographBytes, static_cast<char>(index)));
    return file.fileName().toStdString();
}

void fillProject() {
    frmDemoCD->comTitles.setText(QStringLiteral("Bench Demo"));
    for (TextBox* box :
         {&frmDemoCD->txtName, &frmDemoCD->txtAge, &frmDemoCD->txtCountry, &frmDemoCD->txtOwner, &frmDemoCD->txtCV}) {
        box->setText(QStringLiteral("Somebody"));
    }
}

void measure() {
    BenchStudio desk;
    giveTemplates(desk.studio());
    std::vector<std::string> cp{"cp"};
    frmDemoCD.Show();
    fillProject();
    for (int index = 1; index <= 3; ++index) {
        cp.push_back(desk.giveTrack(index, fiftyMegabytes));
        desk.studio().desk().willChoose(QString::fromStdString(cp.back()));
        frmDemoCD->cmdOpenSong[index].setValue(true);
        cp.push_back(givePhotograph(desk.studio(), index));
        desk.studio().desk().willChoose(QString::fromStdString(cp.back()));
        frmDemoCD->cmdOpenPhoto[index].setValue(true);
    }
    const QString copies = desk.studio().path(QStringLiteral("copies"));
    const QString media = desk.studio().path(QStringLiteral("DemoCD/Demo1"));
    cp.push_back(copies.toStdString());
    const auto finalize = [] { return costOf([] { frmDemoCD->cmdCreate.setValue(true); }).clock.count(); };
    const auto copy = [&cp] { return costOfCommand(cp).clock.count(); };
    ::sync();  // the songs were written a moment ago, and the disk is to be as idle as a person leaves it
    BenchLine line{
        .name = "finalize-first", .reference = "cp of the songs and photographs", .unit = "ms", .limit = 1.3};
    sideBySide(
        line,
        [&] {
            QDir(media).removeRecursively();
            QFile::remove(desk.studio().path(QStringLiteral("projects/Bench Demo.xon")));
            return finalize();
        },
        [&] {
            QDir(copies).removeRecursively();
            QDir().mkdir(copies);
            return copy();
        });
    // Both take away what they made in the round before.
    line.name = "finalize";
    sideBySide(line, finalize, copy);
}

}  // namespace
}  // namespace lyrebrook

int main(int argc, char* argv[]) {
    return lyrebrook::benchScreen(argc, argv, lyrebrook::measure);
}
