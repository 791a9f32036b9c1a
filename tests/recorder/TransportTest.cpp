#include "recorder/Transport.h"

#include <gtest/gtest.h>

#include "platform/sound/SoundFormat.h"
#include "recorder/Marks.h"
#include "recorder/TrackView.h"

namespace lyrebrook {
namespace {

TEST(RunningSong, EndsWhenTheMusicsCursorReads0Again) {
    Transport transport;
    transport.begin(0);
    transport.read(0);
    EXPECT_TRUE(transport.playing) << "the first reading may be early";
    transport.read(400);
    EXPECT_TRUE(transport.playing);
    transport.read(0);
    EXPECT_FALSE(transport.playing);

    transport.begin(400);
    transport.read(0);
    EXPECT_FALSE(transport.playing) << "no grace away from the start";
}

TEST(RunningSong, TellsItsTime) {
    constexpr std::int32_t minute = 60 * bytesPerSecond;
    EXPECT_EQ(timeText(minute + bytesPerSecond * 3 / 2, 5 * minute), QStringLiteral("01:01.50"));
    EXPECT_EQ(timeText(100 * minute, 110 * minute), QStringLiteral(":00.00")) << "there is no room for more minutes";
    EXPECT_EQ(timeText(0, 0), QStringLiteral("00:00.00"));
}

TEST(PunchMarks, ToggleAtTheCursorAndNeverCross) {
    Marks marks;
    EXPECT_TRUE(marks.toggleOut(0.5F));
    EXPECT_FALSE(marks.toggleIn(0.5F));
    EXPECT_TRUE(marks.toggleIn(0.25F));
    EXPECT_EQ(marks.punchIn, 0.25);
    EXPECT_FALSE(marks.toggleOut(0.25F)) << "clearing is refused under the same test";
    EXPECT_EQ(marks.punchOut, 0.5);
    EXPECT_TRUE(marks.toggleOut(0.3F));
    EXPECT_EQ(marks.punchOut, 1);
    marks.repeatOn = true;
    EXPECT_FALSE(marks.passedBy(0.99F)) << "a cleared OUT is the end of the song";
    EXPECT_TRUE(marks.toggleRepeat() && !marks.repeatOn) << "without marks it only goes off";
    EXPECT_TRUE(marks.toggleIn(0.9F));
    EXPECT_EQ(marks.punchIn, 0);
    EXPECT_FALSE(marks.punchInSet || marks.punchOutSet);
}

TEST(PictureOfTheTracks, FindsPlacesInTheSongAndHoldsThemInside) {
    const SongBar bar{.width = 8000, .songBytes = 1'000'000};
    EXPECT_EQ(bar.cursorX(250'000), 2100);
    EXPECT_EQ(bar.fractionAt(2100), 0.25);
    EXPECT_EQ(bar.fractionAt(50), 0);
    EXPECT_EQ(bar.fractionAt(9000), 1);
    EXPECT_EQ((SongBar{}.fractionAt(500)), 0);
    EXPECT_EQ((SongBar{}.cursorX(500)), 100);
}

}  // namespace
}  // namespace lyrebrook
