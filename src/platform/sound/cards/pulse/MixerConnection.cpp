#include "platform/sound/cards/pulse/MixerConnection.h"

#include <utility>

#include "platform/base/Check.h"

namespace lyrebrook {
namespace {

/// Another program may move a level a thousand times a second; nobody sees more than this.
constexpr std::chrono::milliseconds pauseBetweenQuestions{20};
constexpr std::chrono::milliseconds pauseWithoutServer{200};

/// Levels that came after each other for the same device are one.
bool replaces(const MixerConnection::Order& later, const MixerConnection::Order& earlier) {
    if (later.index() != earlier.index()) return false;
    if (std::holds_alternative<DefaultSource>(later)) return true;
    const auto& next = std::get<MixerOrder>(later);
    const auto& last = std::get<MixerOrder>(earlier);
    if (next.side != last.side || next.what.index() != last.what.index()) return false;
    const auto deviceOf = [](const auto& what) { return what.device; };
    return std::visit(deviceOf, next.what) == std::visit(deviceOf, last.what);
}

void paint(ServerPicture& picture, const MixerOrder& order) {
    auto& devices = order.side == PulseSide::sink ? picture.sinks : picture.sources;
    const auto name = std::visit([](const auto& what) { return what.device; }, order.what);
    const auto device = std::ranges::find(devices, name, &PulseDevice::name);
    if (device == devices.end()) return;
    if (const auto* level = std::get_if<SetVolume>(&order.what)) device->volume = level->volume;
    if (const auto* mute = std::get_if<SetMute>(&order.what)) device->muted = mute->muted;
}

template <class Info>
PulseDevice deviceOf(const Info& info) {
    PulseDevice device{.name = info.name,
                       .description = info.description,
                       .monitor = {},
                       .channels = info.channel_map,
                       .volume = info.volume,
                       .muted = info.mute != 0};
    if (info.active_port != nullptr) device.portType = info.active_port->type;
    return device;
}

}  // namespace

MixerConnection::MixerConnection() : loop_(pa_mainloop_new()), server_(*loop_) {
    CHECK(loop_ != nullptr);
    thread_ = std::jthread([this](const std::stop_token& stopping) { run(stopping); });
}

MixerConnection::~MixerConnection() {
    thread_.request_stop();
    pa_mainloop_wakeup(loop_.get());
    thread_.join();
    server_.close();
}

bool MixerConnection::waitForPicture(std::chrono::milliseconds limit) {
    std::unique_lock lock(mutex_);
    told_.wait_for(lock, limit, [this] { return picture_->connection > 0 || refused_; });
    return picture_->connection > 0;
}

std::shared_ptr<const ServerPicture> MixerConnection::picture() const {
    const std::lock_guard lock(mutex_);
    return picture_;
}

bool MixerConnection::give(const Order& order) {
    {
        const std::lock_guard lock(mutex_);
        if (!connected_) return false;
        if (const auto* setting = std::get_if<MixerOrder>(&order)) {
            auto painted = std::make_shared<ServerPicture>(*picture_);
            paint(*painted, *setting);
            picture_ = std::move(painted);
        }
        std::erase_if(orders_, [&order](const Order& earlier) { return replaces(order, earlier); });
        orders_.push_back(order);
        ++given_;
    }
    pa_mainloop_wakeup(loop_.get());
    return true;
}

MixerConnection::Watch MixerConnection::watch(std::function<void()> changed) {
    auto made = std::make_shared<const std::function<void()>>(std::move(changed));
    const std::lock_guard lock(watchersMutex_);
    return watchers_.emplace_back(std::move(made));
}

void MixerConnection::unwatch(const Watch& watch) {
    const std::lock_guard lock(watchersMutex_);
    std::erase(watchers_, watch);
}

void MixerConnection::run(const std::stop_token& stopping) {
    while (!stopping.stop_requested()) {
        const CardMoment now = CardClock::now();
        keepUp(now);
        turn(now);
    }
}

void MixerConnection::keepUp(CardMoment now) {
    const bool lost = server_.keepUp(now);
    if (lost) {
        subscribed_ = false;
        asking_ = false;
        unanswered_ = 0;
    }
    const bool ready = !lost && server_.ready();
    if (ready && !subscribed_) subscribe();
    {
        const std::lock_guard lock(mutex_);
        connected_ = ready;
        refused_ = server_.failed();
        if (!ready) orders_.clear();
    }
    if (!ready) return told_.notify_all();
    sendOrders();
    if (stale_ && !asking_ && now - asked_ >= pauseBetweenQuestions) ask(now);
}

void MixerConnection::subscribe() {
    subscribed_ = true;
    stale_ = true;
    ++connections_;
    pa_context_set_subscribe_callback(
        server_.context(),
        [](pa_context*, pa_subscription_event_type_t, std::uint32_t, void* self) {
            static_cast<MixerConnection*>(self)->stale_ = true;
        },
        this);
    constexpr auto all = static_cast<pa_subscription_mask_t>(PA_SUBSCRIPTION_MASK_SINK | PA_SUBSCRIPTION_MASK_SOURCE |
                                                             PA_SUBSCRIPTION_MASK_SERVER);
    forget(pa_context_subscribe(server_.context(), all, nullptr, nullptr));
}

/// One batch at a time, the later ones waiting: a server may pass over a level that it holds to be set already, because
/// it hasn't yet taken note of the one before.
void MixerConnection::sendOrders() {
    if (unanswered_ > 0) return;
    std::vector<Order> orders;
    {
        const std::lock_guard lock(mutex_);
        orders = std::exchange(orders_, {});
        sent_ = given_;
    }
    for (const Order& order : orders) send(order);
    if (!orders.empty()) stale_ = true;
}

void MixerConnection::send(const Order& order) {
    pa_operation* const operation = begin(order);
    if (operation == nullptr) return;
    ++unanswered_;
    forget(operation);
}

pa_operation* MixerConnection::begin(const Order& order) {
    pa_context* const server = server_.context();
    const auto answered = [](pa_context*, int, void* self) { --static_cast<MixerConnection*>(self)->unanswered_; };
    if (const auto* source = std::get_if<DefaultSource>(&order))
        return pa_context_set_default_source(server, source->name.c_str(), answered, this);
    const auto& [side, what] = std::get<MixerOrder>(order);
    const bool sink = side == PulseSide::sink;
    if (const auto* level = std::get_if<SetVolume>(&what)) {
        const auto set = sink ? pa_context_set_sink_volume_by_name : pa_context_set_source_volume_by_name;
        return set(server, level->device.c_str(), &level->volume, answered, this);
    }
    const auto& mute = std::get<SetMute>(what);
    const auto set = sink ? pa_context_set_sink_mute_by_name : pa_context_set_source_mute_by_name;
    return set(server, mute.device.c_str(), mute.muted ? 1 : 0, answered, this);
}

/// The answers come in the order of the questions, and after the orders that were sent before.
void MixerConnection::ask(CardMoment now) {
    stale_ = false;
    asking_ = true;
    asked_ = now;
    sentBeforeAsking_ = sent_;
    gathered_ = {};
    gathered_.connection = connections_;
    pa_context* const server = server_.context();
    forget(pa_context_get_server_info(
        server,
        [](pa_context*, const pa_server_info* info, void* self) {
            static_cast<MixerConnection*>(self)->takeServer(info);
        },
        this));
    forget(pa_context_get_sink_info_list(
        server,
        [](pa_context*, const pa_sink_info* info, int end, void* self) {
            static_cast<MixerConnection*>(self)->takeSink(info, end);
        },
        this));
    forget(pa_context_get_source_info_list(
        server,
        [](pa_context*, const pa_source_info* info, int end, void* self) {
            static_cast<MixerConnection*>(self)->takeSource(info, end);
        },
        this));
}

void MixerConnection::takeServer(const pa_server_info* info) {
    if (info == nullptr) return;
    if (info->default_sink_name != nullptr) gathered_.defaultSink = info->default_sink_name;
    if (info->default_source_name != nullptr) gathered_.defaultSource = info->default_source_name;
}

void MixerConnection::takeSink(const pa_sink_info* info, int end) {
    if (end != 0) return;
    gathered_.sinks.push_back(deviceOf(*info));
    if (info->monitor_source_name != nullptr) gathered_.sinks.back().monitor = info->monitor_source_name;
}

void MixerConnection::takeSource(const pa_source_info* info, int end) {
    if (end == 0) {
        gathered_.sources.push_back(deviceOf(*info));
        gathered_.sources.back().isMonitor = info->monitor_of_sink != PA_INVALID_INDEX;
        return;
    }
    asking_ = false;
    if (end > 0) publish();
}

/// What was ordered since the questions is not in the answers.
void MixerConnection::publish() {
    {
        const std::lock_guard lock(mutex_);
        if (given_ != sentBeforeAsking_) {
            stale_ = true;
            return;
        }
        picture_ = std::make_shared<ServerPicture>(std::move(gathered_));
    }
    told_.notify_all();
    tellWatchers();
}

void MixerConnection::tellWatchers() {
    const std::lock_guard lock(watchersMutex_);
    for (const Watch& watcher : watchers_) (*watcher)();
}

void MixerConnection::turn(CardMoment now) {
    if (pa_mainloop_prepare(loop_.get(), longestSleep(now)) < 0) return;
    if (pa_mainloop_poll(loop_.get()) < 0) return;
    pa_mainloop_dispatch(loop_.get());
}

/// Microseconds; below 0 as long as nothing happens.
int MixerConnection::longestSleep(CardMoment now) const {
    const auto sleep = [](CardClock::duration time) {
        return static_cast<int>(
            std::max<std::int64_t>(0, std::chrono::duration_cast<std::chrono::microseconds>(time).count()));
    };
    if (!server_.ready() || !subscribed_) return sleep(pauseWithoutServer);
    if (stale_ && !asking_) return sleep(asked_ + pauseBetweenQuestions - now);
    return -1;
}

}  // namespace lyrebrook
