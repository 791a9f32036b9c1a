// How long a person looks at "S A V I N G": a minute sung into the middle of five.
#include "recorder/FrmComposer.h"
#include "support/BenchStudio.h"
#include "support/BenchTable.h"
#include "support/Stopwatch.h"
#include "support/benchScreen.h"

namespace lyrebrook {
namespace {

using namespace std::chrono_literals;

constexpr int voice = 2;

void moveToTheMiddle() {
    constexpr double middle = 0.4;
    const double x = TrackView::margin + frmComposer->shpWaveform[musicTrack].Width() * middle;
    frmComposer->imgSliderB.MouseDown.fire(MouseButton::left, 0, x, 0);
}

void measure() {
    BenchStudio desk;
    desk.giveTrack(musicTrack, 5min);
    const std::string saved = desk.giveTrack(voice, 5min);
    const std::string copy = desk.studio().path(QStringLiteral("songs/copy.wav")).toStdString();
    frmComposer.Show();
    const auto save = [&desk] {
        moveToTheMiddle();
        frmComposer->cmdRecord.setValue(true);
        desk.studio().crank(1min);
        return costOf([] { frmComposer->cmdStop.setValue(true); }).clock.count();
    };
    const std::vector<std::string> dd{"dd", "if=" + saved, "of=" + copy, "bs=1M", "conv=fsync"};
    sideBySide({.name = "save", .reference = "dd conv=fsync of the file", .unit = "ms", .limit = 2}, save,
               [&dd] { return costOfCommand(dd).clock.count(); });
}

}  // namespace
}  // namespace lyrebrook

int main(int argc, char* argv[]) {
    return lyrebrook::benchScreen(argc, argv, lyrebrook::measure);
}
