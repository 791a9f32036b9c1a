// What the open mixer screen takes of the processor: while nothing changes, while another program moves a level a
// thousand times a second, and for a thousand messages that each tell of a change. All threads of the program count,
// and the server's where it says so; the program that moves the level doesn't.
#include <sys/resource.h>

#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>
#include <chrono>
#include <string>
#include <thread>

#include "integration/support/LevelMover.h"
#include "integration/support/SoundServer.h"
#include "mixer/FrmVolumeMixer.h"
#include "mixer/masterMixer.h"
#include "platform/files/App.h"
#include "platform/files/Settings.h"
#include "platform/forms/QtDesktop.h"
#include "platform/sound/SoundSystem.h"
#include "platform/sound/cards/PulseCard.h"
#include "shell/modConfig.h"
#include "support/BenchStudio.h"
#include "support/BenchTable.h"
#include "support/Stopwatch.h"
#include "support/benchScreen.h"

namespace lyrebrook {
namespace {

using namespace std::chrono_literals;
using Seconds = std::chrono::duration<double>;

Seconds processorTime() {
    rusage used{};
    getrusage(RUSAGE_SELF, &used);
    const auto of = [](const timeval& time) -> Seconds {
        return std::chrono::seconds(time.tv_sec) + std::chrono::microseconds(time.tv_usec);
    };
    return of(used.ru_utime) + of(used.ru_stime);
}

void live(std::chrono::milliseconds time) {
    QEventLoop loop;
    QTimer::singleShot(time, &loop, &QEventLoop::quit);
    loop.exec();
}

/// The program as it really runs, at a server of its own.
class ProgramOnServer {
  public:
    explicit ProgramOnServer(ServerKind kind) : server(kind) {
        server.start();
        App::setPath(folder_.path());
        setSettingsFolder(folder_.path());
        setDesktop(&desktop_);
        auto card = std::make_unique<PulseCard>();
        card->reachServer(1s);
        SoundSystem::install(std::move(card));
        setUpGlobals();
    }
    ~ProgramOnServer() {
        FormSlot::discardAll();
        SoundSystem::remove();
        setDesktop(nullptr);
    }
    ProgramOnServer(const ProgramOnServer&) = delete;
    ProgramOnServer& operator=(const ProgramOnServer&) = delete;

    /// Opens the mixer screen, and does `work` while it waits.
    static void whileOpen(const std::function<void()>& work) {
        QTimer::singleShot(0, [&work] {
            live(1s);  // it has come up
            work();
            frmVolumeMixer.Unload();
        });
        showMasterMixer();
    }

    SoundServer server;

  private:
    QTemporaryDir folder_;
    QtDesktop desktop_;
};

/// Processor time, of the program and of its server.
struct Used {
    Seconds own{0};
    Seconds servers{0};

    Used& operator+=(const Used& more) {
        own += more.own;
        servers += more.servers;
        return *this;
    }
};

constexpr auto slice = 2s;
constexpr int slices = 5;  // with and without the screen in turns, ten seconds of each

Used usedInASlice(const SoundServer& server) {
    const Seconds own = processorTime();
    const Seconds servers{server.processorSeconds()};
    live(slice);
    return {processorTime() - own, Seconds(server.processorSeconds()) - servers};
}

void figure(const BenchLine& line, double most, Seconds used) {
    besideFigure(line, most, [used] { return 100 * used / Seconds(slices * slice); });
}

void measureIdle(const SoundServer& server, const std::string& name) {
    Used closed;
    Used open;
    for (int i = 0; i < slices; ++i) {
        closed += usedInASlice(server);
        ProgramOnServer::whileOpen([&] { open += usedInASlice(server); });
    }
    // Most of what the program takes is the card's: it wakes some 300 times a second for the sound.
    figure({.name = "mixer-idle-" + name, .reference = "idle program, mixer open", .unit = "%"}, 1.5, open.own);
    figure({.name = "mixer-adds-" + name, .reference = "more than closed, with the server", .unit = "%"}, 1,
           open.own + open.servers - closed.own - closed.servers);
}

double millisecondsForAThousand() {
    constexpr auto length = 1s;
    const Seconds before = processorTime();
    Seconds moving{0};
    std::jthread mover([&] { moving = moveLevel(SoundServer::sink, 1000, length); });
    live(length + 100ms);
    mover.join();
    return 1000 * (processorTime() - before - moving).count();
}

void measureOn(ServerKind kind, const std::string& name) {
    constexpr double mostBusy = 250;
    const ProgramOnServer program(kind);
    live(1s);
    measureIdle(program.server, name);
    ProgramOnServer::whileOpen([&] {
        besideFigure({.name = "mixer-changes-" + name, .reference = "1,000 changes by others", .unit = "ms"}, mostBusy,
                     millisecondsForAThousand);
    });
}

/// Each is heard, and shown, before the next comes.
double millisecondsForAThousandMessages(BenchStudio& bench) {
    const auto change = [&] {
        for (std::uint16_t i = 1; i <= 1000; ++i) {
            const auto level = static_cast<std::uint16_t>(60 * i);
            bench.card().setLevel(CardLine::wave, {level, level});
            bench.studio().desk().DoEvents();
        }
    };
    return costOf(change).processor.count();
}

void measureMessages() {
    constexpr double most = 1000;
    BenchStudio bench;
    bench.studio().desk().whileWaiting([&bench] {
        besideFigure({.name = "mixer-messages", .reference = "1,000 messages, each shown", .unit = "ms"}, most,
                     [&bench] { return millisecondsForAThousandMessages(bench); });
        frmVolumeMixer.Unload();
    });
    showMasterMixer();
}

void measure() {
    measureMessages();
    measureOn(ServerKind::pulseAudio, "pulseaudio");
    measureOn(ServerKind::pipeWire, "pipewire");
}

}  // namespace
}  // namespace lyrebrook

int main(int argc, char* argv[]) {
    return lyrebrook::benchScreen(argc, argv, lyrebrook::measure);
}
