#pragma once

#include <pulse/pulseaudio.h>

#include <memory>

namespace lyrebrook {

/// Takes a thing of the server's client library down. No callback of it comes afterwards, but for the answers to
/// requests that are under way.
struct PulseFree {
    void operator()(pa_mainloop* loop) const noexcept { pa_mainloop_free(loop); }
    void operator()(pa_proplist* list) const noexcept { pa_proplist_free(list); }
    void operator()(pa_context* context) const noexcept {
        pa_context_set_state_callback(context, nullptr, nullptr);
        pa_context_set_subscribe_callback(context, nullptr, nullptr);
        pa_context_disconnect(context);
        pa_context_unref(context);
    }
    void operator()(pa_stream* stream) const noexcept {
        pa_stream_set_state_callback(stream, nullptr, nullptr);
        pa_stream_set_read_callback(stream, nullptr, nullptr);
        pa_stream_set_write_callback(stream, nullptr, nullptr);
        pa_stream_set_latency_update_callback(stream, nullptr, nullptr);
        pa_stream_set_underflow_callback(stream, nullptr, nullptr);
        pa_stream_set_moved_callback(stream, nullptr, nullptr);
        pa_stream_disconnect(stream);
        pa_stream_unref(stream);
    }
};

template <class Thing>
using PulseHandle = std::unique_ptr<Thing, PulseFree>;

/// For requests whose end is told elsewhere, or to nobody.
inline void forget(pa_operation* operation) noexcept {
    if (operation != nullptr) pa_operation_unref(operation);
}

}  // namespace lyrebrook
