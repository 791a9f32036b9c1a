#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <variant>
#include <vector>

#include "platform/sound/cards/pulse/CardTime.h"
#include "platform/sound/cards/pulse/PulseHandles.h"
#include "platform/sound/cards/pulse/PulseServer.h"
#include "platform/sound/cards/pulse/ServerPicture.h"

namespace lyrebrook {

struct SetVolume {
    std::string device;
    pa_cvolume volume;
};
struct SetMute {
    std::string device;
    bool muted;
};
enum class PulseSide : std::uint8_t { sink, source };
struct MixerOrder {
    PulseSide side = PulseSide::sink;
    std::variant<SetVolume, SetMute> what;
};
struct DefaultSource {
    std::string name;
};

/// A connection to the server that is there for mixers only, on a thread of its own, so that neither the card's thread
/// nor the program's has to do with what other programs do to levels. It sleeps while nothing changes. All entries may
/// be called from any thread and don't wait for the server, except where they say so. When the server goes away the
/// last picture stays.
class MixerConnection {
  public:
    using Order = std::variant<MixerOrder, DefaultSource>;
    using Watch = std::shared_ptr<const std::function<void()>>;

    MixerConnection();
    ~MixerConnection();
    MixerConnection(const MixerConnection&) = delete;
    MixerConnection& operator=(const MixerConnection&) = delete;

    /// Waits until the server has told of itself, at most for `limit`, and not at all for one that isn't there.
    bool waitForPicture(std::chrono::milliseconds limit);

    std::shared_ptr<const ServerPicture> picture() const;

    /// The picture shows levels and mutes at once. False while there is no server.
    bool give(const Order& order);

    /// `changed` is called on the connection's thread when there is a new picture, until `unwatch` returns.
    [[nodiscard]] Watch watch(std::function<void()> changed);
    void unwatch(const Watch& watch);

  private:
    void run(const std::stop_token& stopping);
    void keepUp(CardMoment now);
    void subscribe();
    void sendOrders();
    void send(const Order& order);
    pa_operation* begin(const Order& order);
    void ask(CardMoment now);
    void takeServer(const pa_server_info* info);
    void takeSink(const pa_sink_info* info, int end);
    void takeSource(const pa_source_info* info, int end);
    void publish();
    void tellWatchers();
    void turn(CardMoment now);
    int longestSleep(CardMoment now) const;

    // The connection's thread.
    PulseHandle<pa_mainloop> loop_;
    PulseServer server_;
    ServerPicture gathered_;
    std::uint32_t connections_ = 0;
    bool subscribed_ = false;
    bool stale_ = false;
    bool asking_ = false;
    std::uint64_t sentBeforeAsking_ = 0;
    std::uint64_t sent_ = 0;
    int unanswered_ = 0;  // orders of the last batch
    CardMoment asked_;

    // Between the threads.
    mutable std::mutex mutex_;
    std::condition_variable told_;
    std::shared_ptr<const ServerPicture> picture_ = std::make_shared<ServerPicture>();
    std::vector<Order> orders_;
    std::uint64_t given_ = 0;
    bool connected_ = false;
    bool refused_ = false;

    std::mutex watchersMutex_;
    std::vector<Watch> watchers_;
    std::jthread thread_;
};

}  // namespace lyrebrook
