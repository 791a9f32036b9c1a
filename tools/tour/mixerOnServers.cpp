// Takes pictures of the mixer screen on each kind of sound server, while another program sounds and while the song's
// own mix is recorded, so that its columns are lit.
#include <QApplication>
#include <QProcess>
#include <cmath>
#include <cstdio>

#include "backtrack/FrmMixer.h"
#include "integration/support/ServerStudio.h"
#include "mixer/FrmVolumeMixer.h"
#include "pictures.h"
#include "platform/forms/Theme.h"
#include "shell/modConfig.h"

namespace {

using namespace lyrebrook;

/// A tone that is louder on the left.
Sound tone(std::chrono::seconds length) {
    Sound sound(static_cast<std::size_t>(length.count()) * framesPerSecond);
    for (std::size_t i = 0; i < sound.size(); ++i) {
        const double wave = std::sin(static_cast<double>(i) * 0.05);
        sound[i] = {static_cast<std::int16_t>(30000 * wave), static_cast<std::int16_t>(20000 * wave)};
    }
    return sound;
}

/// The screen over Step 3 at a server that has a microphone and a line.
class Scene {
  public:
    Scene(ServerKind kind, const QString& folder)
        : desk_(kind), folder_(folder), server_(QString::fromStdString(nameOf(kind)).toLower()) {
        desk_.server.addSource("mic", "Internal Microphone");
        desk_.server.addSource("line", "Line In");
        desk_.live(500ms);
        gBacktrackFile = desk_.studio.path(QStringLiteral("tracks/tone.wav"));
        writeWaveFile(gBacktrackFile.toStdString(), tone(5s));
    }

    void show() {
        frmMixer.Show();
        desk_.studio.desk().whileWaiting([this] {
            whileAnotherProgramSounds();
            whileTheSongIsRecorded();
            frmMixer.Unload();
        });
        frmMixer->cmdMixer.setValue(true);
    }

  private:
    void whileAnotherProgramSounds() {
        QProcess player;
        player.start(QStringLiteral("pacat"), {QStringLiteral("--raw")});
        const Sound sound = tone(5s);
        player.write(reinterpret_cast<const char*>(sound.data()), toBytes(std::ssize(sound)));
        player.waitForBytesWritten();
        frmVolumeMixer->radDevice[4].setValue(true);
        desk_.live(2s);
        picture(QStringLiteral("another-program"));
        player.kill();
        player.waitForFinished();
    }
    void whileTheSongIsRecorded() {
        frmVolumeMixer->radDevice[0].setValue(true);
        frmMixer->cmdPlay.setValue(true);
        desk_.live(2s);
        picture(QStringLiteral("backtrack"));
        frmMixer->cmdStop.setValue(true);
        desk_.live(500ms);
    }
    void picture(const QString& what) {
        const QString file = QStringLiteral("mixer-%1-%2.png").arg(server_, what);
        if (!savePicture(*frmVolumeMixer, folder_, file)) throw std::runtime_error("can't write " + file.toStdString());
    }

    ServerStudio desk_;
    QString folder_;
    QString server_;
};

}  // namespace

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    applyTheme(*qApp);
    if (argc != 2) {
        std::fputs("usage: mixerOnServers FOLDER\n", stderr);
        return 2;
    }
    try {
        for (const ServerKind kind : {ServerKind::pulseAudio, ServerKind::pipeWire})
            Scene(kind, QString::fromLocal8Bit(argv[1])).show();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "mixerOnServers: %s\n", error.what());
        return 1;
    }
    return 0;
}
