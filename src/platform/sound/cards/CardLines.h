#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "platform/sound/EngineUnit.h"

namespace lyrebrook {

/// A line that has a level and a mute in what is heard.
enum class CardLine : std::uint8_t { master, wave, softwareSynth, cd, lineIn, microphone, aux };
inline constexpr std::size_t cardLineCount = 7;

/// What can be recorded, each with a level of its own.
enum class RecordingLine : std::uint8_t { stereoMix, microphone, lineIn, cd, wave, aux };
inline constexpr std::size_t recordingLineCount = 6;

/// Both sides of a line's level, 0 to 65535, which is unchanged loudness; in between it is proportional.
struct LineLevel {
    std::uint16_t left = 65535;
    std::uint16_t right = 65535;

    friend bool operator==(const LineLevel&, const LineLevel&) = default;
};

/// Levels, mutes and the selection of a card's lines, all open at first. Set on the program's thread and read on the
/// card's as well, which never waits. Shared by the card and whoever sets it, and may outlive the card.
class CardLines {
  public:
    using Watch = std::shared_ptr<const std::function<void()>>;

    CardLines();

    void setLevel(CardLine line, LineLevel level);
    LineLevel level(CardLine line) const;
    void setMuted(CardLine line, bool muted);
    bool muted(CardLine line) const;
    void selectRecording(RecordingLine line);
    RecordingLine selectedRecording() const noexcept { return selected_; }
    void setRecordingLevel(RecordingLine line, LineLevel level);
    LineLevel recordingLevel(RecordingLine line) const;

    /// The program's thread: `changed` is called after every setting, as long as what is returned is kept.
    [[nodiscard]] Watch watch(std::function<void()> changed);

    /// For what changed beside the lines and is watched with them.
    void tellWatchers();

    /// What the settings do to the sound.
    StereoGain gain(CardLine line) const noexcept;
    StereoGain recordingGain() const noexcept;

  private:
    /// Left in the upper half, right in the lower.
    static constexpr std::uint32_t fullLevel = 0xFFFFFFFF;
    struct LineControl {
        std::atomic<std::uint32_t> level{fullLevel};
        std::atomic<bool> muted{false};
    };

    std::array<LineControl, cardLineCount> lines_;
    std::array<std::atomic<std::uint32_t>, recordingLineCount> recordingLevels_;
    std::atomic<RecordingLine> selected_{RecordingLine::stereoMix};
    std::vector<std::weak_ptr<const std::function<void()>>> watchers_;
};

}  // namespace lyrebrook
