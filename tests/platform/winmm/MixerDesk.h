#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "platform/winmm/mixer.h"
#include "platform/winmm/recordText.h"

namespace lyrebrook {

inline void PrintTo(const WindowMessage& message, std::ostream* out) {
    *out << std::hex << message.message << ' ' << message.wParam << ' ' << message.lParam;
}

/// A window whose procedure writes down what it hears. One at a time, with the event loop that it needs.
class ListeningWindow {
  public:
    ListeningWindow() {
        heard().clear();
        SetWindowLongA(handle(), GWL_WNDPROC, [](HWND, std::int32_t message, WPARAM wParam, LPARAM lParam) -> LRESULT {
            heard().push_back({message, wParam, lParam});
            return 0;
        });
    }

    HWND handle() { return window_->handle(); }
    void destroy() { window_.reset(); }

    static std::vector<WindowMessage>& heard() {
        static std::vector<WindowMessage> messages;
        return messages;
    }

    /// What has come since the last call.
    static std::vector<WindowMessage> listen() {
        QCoreApplication::processEvents();
        return std::exchange(heard(), {});
    }

  private:
    int argumentCount_ = 0;
    QCoreApplication application_{argumentCount_, nullptr};
    std::unique_ptr<MessageWindow> window_ =
        std::make_unique<MessageWindow>([](const std::function<void()>& action) { action(); });
};

/// An open mixer in the hands of somebody who knows its functions.
class MixerDesk {
  public:
    static constexpr std::int32_t speakers = MIXERLINE_COMPONENTTYPE_DST_SPEAKERS;
    static constexpr std::int32_t waveIn = MIXERLINE_COMPONENTTYPE_DST_WAVEIN;
    static constexpr std::int32_t volume = MIXERCONTROL_CONTROLTYPE_VOLUME;
    static constexpr std::int32_t mute = MIXERCONTROL_CONTROLTYPE_MUTE;
    static constexpr std::int32_t mux = MIXERCONTROL_CONTROLTYPE_MUX;

    explicit MixerDesk(std::int32_t device = 0) {
        EXPECT_EQ(mixerOpen(mixer, device, window.handle(), 0, CALLBACK_WINDOW), MMSYSERR_NOERROR);
    }
    ~MixerDesk() { mixerClose(mixer); }
    MixerDesk(const MixerDesk&) = delete;
    MixerDesk& operator=(const MixerDesk&) = delete;

    MIXERLINE destination(std::int32_t type) const {
        MIXERLINE line{.dwComponentType = type};
        EXPECT_EQ(mixerGetLineInfoA(mixer, line, MIXER_GETLINEINFOF_COMPONENTTYPE), MMSYSERR_NOERROR);
        return line;
    }

    std::vector<MIXERLINE> sources(std::int32_t type) const {
        std::vector<MIXERLINE> lines;
        MIXERLINE line = destination(type);
        const std::int32_t count = line.cConnections;
        for (std::int32_t i = 0; i < count; ++i) {
            line.dwSource = i;
            EXPECT_EQ(mixerGetLineInfoA(mixer, line, MIXER_GETLINEINFOF_SOURCE), MMSYSERR_NOERROR);
            lines.push_back(line);
        }
        return lines;
    }

    std::vector<std::string> names(std::int32_t type) const {
        std::vector<std::string> texts;
        for (const MIXERLINE& line : sources(type)) texts.emplace_back(textOf(line.szShortName));
        return texts;
    }

    /// ID of a source by its name, or of the destination itself without one.
    std::int32_t line(std::int32_t type, const std::string& name = {}) const {
        if (name.empty()) return destination(type).dwLineID;
        for (const MIXERLINE& line : sources(type)) {
            if (textOf(line.szShortName) == name) return line.dwLineID;
        }
        ADD_FAILURE() << "no line " << name;
        return 0;
    }

    MIXERCONTROL control(std::int32_t line, std::int32_t type) const {
        MIXERCONTROL found;
        MIXERLINECONTROLS asked{.dwLineID = line, .dwControlType = type, .pamxctrl = &found};
        EXPECT_EQ(mixerGetLineControlsA(mixer, asked, MIXER_GETLINECONTROLSF_ONEBYTYPE), MMSYSERR_NOERROR);
        return found;
    }

    std::vector<std::int32_t> get(std::int32_t line, std::int32_t type, std::int32_t channels = 1) const {
        const MIXERCONTROL found = control(line, type);
        std::vector<std::int32_t> values(static_cast<std::size_t>(channels * std::max(1, found.cMultipleItems)));
        MIXERCONTROLDETAILS details = detailsOf(found, channels, values);
        EXPECT_EQ(mixerGetControlDetailsA(mixer, details, MIXER_GETCONTROLDETAILSF_VALUE), MMSYSERR_NOERROR);
        return values;
    }

    MMRESULT set(std::int32_t line, std::int32_t type, std::vector<std::int32_t> values) const {
        const MIXERCONTROL found = control(line, type);
        const auto channels = found.cMultipleItems > 0 ? 1 : static_cast<std::int32_t>(values.size());
        return mixerSetControlDetails(mixer, detailsOf(found, channels, values), MIXER_SETCONTROLDETAILSF_VALUE);
    }

    void select(const std::string& name) const {
        std::vector<std::int32_t> flags;
        for (const std::string& each : names(waveIn)) flags.push_back(each == name ? 1 : 0);
        EXPECT_EQ(set(line(waveIn), mux, flags), MMSYSERR_NOERROR);
    }

    std::string selected() const {
        const auto flags = get(line(waveIn), mux);
        const auto flag = std::ranges::find(flags, 1);
        return flag == flags.end() ? std::string() : names(waveIn).at(static_cast<std::size_t>(flag - flags.begin()));
    }

    /// The message that tells of a control.
    WindowMessage changeOf(std::int32_t line, std::int32_t type) const {
        return {MM_MIXM_CONTROL_CHANGE, static_cast<WPARAM>(mixer), control(line, type).dwControlID};
    }

    ListeningWindow window;
    HMIXER mixer = 0;

  private:
    static MIXERCONTROLDETAILS detailsOf(const MIXERCONTROL& control, std::int32_t channels,
                                         std::vector<std::int32_t>& values) {
        return {.dwControlID = control.dwControlID,
                .cChannels = channels,
                .cMultipleItems = control.cMultipleItems,
                .paDetails = values.data()};
    }
};

}  // namespace lyrebrook
