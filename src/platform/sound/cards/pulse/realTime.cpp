#include "platform/sound/cards/pulse/realTime.h"

#include <dbus/dbus.h>
#include <errno.h>
#include <pthread.h>
#include <sched.h>
#include <signal.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <memory>
#include <optional>
#include <thread>

namespace lyrebrook {
namespace {

/// Above all that has no hurry, below the sound server.
constexpr int modestPriority = 5;

constexpr int longestAnswer = 1000;  // milliseconds

constexpr const char* kit = "org.freedesktop.RealtimeKit1";
constexpr const char* kitPlace = "/org/freedesktop/RealtimeKit1";

struct BusFree {
    void operator()(DBusConnection* bus) const noexcept {
        dbus_connection_close(bus);
        dbus_connection_unref(bus);
    }
    void operator()(DBusMessage* message) const noexcept { dbus_message_unref(message); }
};
using Bus = std::unique_ptr<DBusConnection, BusFree>;
using Message = std::unique_ptr<DBusMessage, BusFree>;

Bus systemBus() {
    Bus bus(dbus_bus_get_private(DBUS_BUS_SYSTEM, nullptr));
    if (bus != nullptr) dbus_connection_set_exit_on_disconnect(bus.get(), FALSE);
    return bus;
}

/// Null for a refusal.
Message answer(DBusConnection& bus, const Message& question) {
    return Message(dbus_connection_send_with_reply_and_block(&bus, question.get(), longestAnswer, nullptr));
}

/// A number that RealtimeKit tells of itself.
std::optional<std::int64_t> numberOf(DBusConnection& bus, const char* name) {
    const Message question(dbus_message_new_method_call(kit, kitPlace, DBUS_INTERFACE_PROPERTIES, "Get"));
    dbus_message_append_args(question.get(), DBUS_TYPE_STRING, &kit, DBUS_TYPE_STRING, &name, DBUS_TYPE_INVALID);
    const Message told = answer(bus, question);
    DBusMessageIter place;
    if (told == nullptr || dbus_message_iter_init(told.get(), &place) == FALSE) return std::nullopt;
    if (dbus_message_iter_get_arg_type(&place) != DBUS_TYPE_VARIANT) return std::nullopt;
    DBusMessageIter inside;
    dbus_message_iter_recurse(&place, &inside);
    const int type = dbus_message_iter_get_arg_type(&inside);
    if (type != DBUS_TYPE_INT32 && type != DBUS_TYPE_INT64) return std::nullopt;
    DBusBasicValue number{};
    dbus_message_iter_get_basic(&inside, &number);
    return type == DBUS_TYPE_INT32 ? number.i32 : number.i64;
}

std::atomic<pid_t> preferred{0};

/// A thread that reaches half of its time goes back among the others; at the whole of it the system would end the
/// process, and a take with it.
void stepBack(int) {
    const int before = errno;
    constexpr sched_param none{};
    sched_setscheduler(preferred, SCHED_OTHER | SCHED_RESET_ON_FORK, &none);
    errno = before;
}

/// RealtimeKit asks for that first.
bool limitTimeWithoutRest(std::int64_t microseconds) {
    rlimit limit{};
    if (getrlimit(RLIMIT_RTTIME, &limit) != 0) return false;
    limit.rlim_max = std::min(limit.rlim_max, static_cast<rlim_t>(microseconds));
    limit.rlim_cur = std::min(limit.rlim_cur, limit.rlim_max / 2);
    struct sigaction onTimeUp {};
    onTimeUp.sa_handler = stepBack;
    onTimeUp.sa_flags = SA_RESTART;
    return sigaction(SIGXCPU, &onTimeUp, nullptr) == 0 && setrlimit(RLIMIT_RTTIME, &limit) == 0;
}

bool grant(DBusConnection& bus, pid_t thread, std::int64_t highestPriority) {
    const auto number = static_cast<dbus_uint64_t>(thread);
    const auto priority = static_cast<dbus_uint32_t>(std::min<std::int64_t>(modestPriority, highestPriority));
    const Message question(dbus_message_new_method_call(kit, kitPlace, kit, "MakeThreadRealtime"));
    dbus_message_append_args(question.get(), DBUS_TYPE_UINT64, &number, DBUS_TYPE_UINT32, &priority, DBUS_TYPE_INVALID);
    return answer(bus, question) != nullptr;
}

}  // namespace

void goBeforeOthers() {
    constexpr sched_param modest{.sched_priority = modestPriority};
    if (pthread_setschedparam(pthread_self(), SCHED_RR | SCHED_RESET_ON_FORK, &modest) == 0) return;
    std::thread(askRealTimeKit, gettid()).detach();
}

bool askRealTimeKit(pid_t thread) {
    const Bus bus = systemBus();
    if (bus == nullptr) return false;
    const auto highestPriority = numberOf(*bus, "MaxRealtimePriority");
    const auto longestTime = numberOf(*bus, "RTTimeUSecMax");
    if (!highestPriority || !longestTime || *highestPriority < 1 || *longestTime < 1) return false;
    preferred = thread;
    return limitTimeWithoutRest(*longestTime) && grant(*bus, thread, *highestPriority);
}

}  // namespace lyrebrook
