#include "platform/sound/cards/pulse/PulseServer.h"

#include <string_view>
#include <utility>

namespace lyrebrook {
namespace {

constexpr std::chrono::milliseconds pauseBetweenAttempts{500};
constexpr std::chrono::seconds longestAttempt{3};

/// What servers offer when there is no card at all.
constexpr std::string_view noRealOutput = "auto_null";

PulseHandle<pa_proplist> aboutUs() {
    PulseHandle<pa_proplist> about(pa_proplist_new());
    pa_proplist_sets(about.get(), PA_PROP_APPLICATION_NAME, "Lyrebrook");
    pa_proplist_sets(about.get(), PA_PROP_APPLICATION_ID, "lyrebrook");
    return about;
}

}  // namespace

bool PulseServer::keepUp(CardMoment now) {
    const bool tooSlow = !ready() && now - begun_ > longestAttempt;
    const bool gone = context_ != nullptr && (failed_ || tooSlow);
    const bool wasReady = ready();
    if (gone) outputs_ = -1;
    if (gone && wasReady) return true;
    if (gone) context_.reset();
    if (context_ == nullptr && now - begun_ > pauseBetweenAttempts) connect(now);
    return false;
}

void PulseServer::close() {
    context_.reset();
    outputs_ = -1;
}

void PulseServer::connect(CardMoment now) {
    begun_ = now;
    failed_ = false;
    const auto about = aboutUs();
    context_.reset(pa_context_new_with_proplist(pa_mainloop_get_api(&loop_), "Lyrebrook", about.get()));
    pa_context_set_state_callback(
        context_.get(), [](pa_context*, void* self) { static_cast<PulseServer*>(self)->contextChanged(); }, this);
    pa_context_set_subscribe_callback(
        context_.get(),
        [](pa_context*, pa_subscription_event_type_t, std::uint32_t, void* self) {
            static_cast<PulseServer*>(self)->countOutputs();
        },
        this);
    // A server that starts by itself does so when it is connected to; waiting for one to be started could take long.
    if (pa_context_connect(context_.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0) failed_ = true;
}

void PulseServer::contextChanged() {
    const pa_context_state_t state = pa_context_get_state(context_.get());
    if (!PA_CONTEXT_IS_GOOD(state)) failed_ = true;
    if (state != PA_CONTEXT_READY) return;
    const auto devices = static_cast<pa_subscription_mask_t>(PA_SUBSCRIPTION_MASK_SINK | PA_SUBSCRIPTION_MASK_SOURCE);
    forget(pa_context_subscribe(context_.get(), devices, nullptr, nullptr));
    countOutputs();
}

void PulseServer::countOutputs() {
    forget(pa_context_get_sink_info_list(
        context_.get(),
        [](pa_context*, const pa_sink_info* sink, int end, void* self) {
            auto& server = *static_cast<PulseServer*>(self);
            if (end == 0) {
                server.noteOutput(*sink);
            } else if (end > 0) {
                server.outputs_ = std::exchange(server.counted_, 0);
            }
        },
        this));
}

void PulseServer::noteOutput(const pa_sink_info& sink) {
    if (sink.name != noRealOutput) ++counted_;
}

}  // namespace lyrebrook
