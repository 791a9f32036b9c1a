#include <gtest/gtest.h>
#include <sched.h>
#include <signal.h>
#include <sys/resource.h>
#include <unistd.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <chrono>
#include <functional>
#include <thread>

#include "platform/sound/cards/pulse/realTime.h"

namespace lyrebrook {
namespace {

using namespace std::chrono_literals;

constexpr int ordinary = SCHED_OTHER | SCHED_RESET_ON_FORK;

bool comesTrue(const std::function<bool()>& hoped) {
    for (int attempt = 0; attempt < 100; ++attempt) {
        if (hoped()) return true;
        std::this_thread::sleep_for(50ms);
    }
    return false;
}

/// Some containers don't let root do that either.
bool rootMayPrefer() {
    constexpr sched_param preferred{.sched_priority = 1};
    constexpr sched_param none{};
    return sched_setscheduler(0, SCHED_RR, &preferred) == 0 && sched_setscheduler(0, SCHED_OTHER, &none) == 0;
}

/// A system's bus of the test's own, where RealtimeKit and the authority that it asks come and go.
class RealTimeKit : public testing::Test {
  protected:
    RealTimeKit() {
        getrlimit(RLIMIT_RTTIME, &limitBefore_);
        QFile::setPermissions(folder_.path(), QFile::permissions(folder_.path()) | QFile::ExeOther);
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=" + busPath_.toLocal8Bit());
    }
    ~RealTimeKit() override {
        setrlimit(RLIMIT_RTTIME, &limitBefore_);
        signal(SIGXCPU, SIG_DFL);
        for (QProcess* each : {&kit_, &authority_, &bus_}) {
            each->kill();
            each->waitForFinished();
        }
    }

    void startKit() {
        writeBusRules();
        bus_.start(QStringLiteral("dbus-daemon"),
                   {QStringLiteral("--nofork"), QStringLiteral("--config-file=") + rules_});
        EXPECT_TRUE(comesTrue([this] { return QFile::exists(busPath_); }));
        QFile::setPermissions(busPath_, QFile::permissions(busPath_) | QFile::WriteOther);
        authority_.start(QStringLiteral("/usr/lib/polkit-1/polkitd"), {});
        kit_.start(QStringLiteral("/usr/libexec/rtkit-daemon"), {QStringLiteral("--no-canary")});
    }

  private:
    void writeBusRules() const {
        QFile file(rules_);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("<busconfig><listen>unix:path=" + busPath_.toLocal8Bit() + "</listen><policy context=\"default\">");
        for (const char* allowed : {"user", "own", "send_destination", "receive_sender"}) {
            file.write(QByteArray("<allow ") + allowed + "=\"*\"/>");
        }
        file.write("</policy></busconfig>");
    }

    QTemporaryDir folder_;
    QString busPath_ = folder_.filePath(QStringLiteral("bus"));
    QString rules_ = folder_.filePath(QStringLiteral("bus.conf"));
    QProcess bus_;
    QProcess authority_;
    QProcess kit_;
    rlimit limitBefore_{};
};

TEST_F(RealTimeKit, AThreadGoesBeforeOthersUntilItTakesTooMuch) {
    if (geteuid() != 0 || !rootMayPrefer()) GTEST_SKIP() << "RealtimeKit has not the rights here that it needs";
    EXPECT_FALSE(askRealTimeKit(gettid())) << "there is no bus yet";
    startKit();
    std::thread([] {
        ASSERT_TRUE(comesTrue([] { return askRealTimeKit(gettid()); }));
        EXPECT_EQ(sched_getscheduler(0), SCHED_RR | SCHED_RESET_ON_FORK);
        const auto end = std::chrono::steady_clock::now() + 5s;
        while (sched_getscheduler(0) != ordinary && std::chrono::steady_clock::now() < end) continue;
        EXPECT_EQ(sched_getscheduler(0), ordinary) << "and the process lives";
    }).join();
}

}  // namespace
}  // namespace lyrebrook
