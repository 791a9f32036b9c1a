#pragma once

#include <array>
#include <span>
#include <vector>

#include "platform/sound/EngineUnit.h"
#include "platform/sound/SoundCard.h"
#include "platform/sound/cards/pulse/FrameGlide.h"

namespace lyrebrook {

/// Lays the frames of an input on the timeline. `lead` is how far a frame's place on the timeline is ahead of its
/// number in the input, as measured at present. Once placed, frames join on and pass unchanged. When the lead moves on,
/// because the input's clock runs beside the output's, single frames are glided in or out; when it leaps, sound was
/// lost, and the place leaps too. Places never go back. Used on the card's thread; memory is taken when it is made.
class CaptureClock {
  public:
    CaptureClock();

    /// The input begins anew, with frame number 0. What was not delivered is dropped.
    void restart();

    /// Nobody wants the input until it begins anew, so that nothing is lost meanwhile.
    void rest() { resting_ = true; }

    /// The input stood still; the place of what comes now has to be found anew.
    void interrupt();

    /// The next frames of the input. What is not delivered within a second or so is lost.
    void take(std::span<const StereoFrame> frames) noexcept;

    /// The next frames of the input did not arrive.
    void lose(Frames frames) noexcept;

    void deliver(double lead, SoundCardClient& client) noexcept;

    /// Frames that were wanted and never came.
    Frames lost() const { return lost_; }

  private:
    static constexpr std::size_t ringFrames = 65536;
    static constexpr Frames lookAhead = FrameGlide::from - 1;

    void put(StereoFrame frame) noexcept;
    void findPlace(Frames lead) noexcept;
    void correct(double lead) noexcept;
    void leap(Frames frames) noexcept;
    std::size_t fillBlock() noexcept;
    std::size_t fillSteady() noexcept;
    std::size_t fillGliding() noexcept;
    std::array<StereoFrame, FrameGlide::before + FrameGlide::from> around(Frames frame) const noexcept;
    bool ready() const { return end_ - at_ > lookAhead; }

    std::vector<StereoFrame> ring_;
    std::array<StereoFrame, mixBlockFrames> block_{};
    FrameGlide glide_;
    Frames end_ = 0;  // frames taken
    Frames at_ = 0;   // the next to be delivered
    Frames place_ = 0;
    Frames lost_ = 0;
    bool placed_ = false;
    bool resting_ = true;
    bool correcting_ = false;
};

}  // namespace lyrebrook
