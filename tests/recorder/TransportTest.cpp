#include "recorder/Transport.h"

#include <gtest/gtest.h>

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
    EXPECT_EQ(timeText(61 * 176400 + 88200, 300 * 176400), QStringLiteral("01:01.50"));
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
    EXPECT_TRUE(marks.toggleIn(0.9F));
    EXPECT_EQ(marks.punchIn, 0);
    EXPECT_FALSE(marks.punchInSet || marks.punchOutSet);
}

TEST(PunchMarks, RepeatNeedsBothToGoOnAndNoneToGoOff) {
    Marks marks;
    marks.toggleIn(0.25F);
    EXPECT_FALSE(marks.toggleRepeat());
    marks.toggleOut(0.5F);
    EXPECT_TRUE(marks.toggleRepeat());
    EXPECT_FALSE(marks.passedBy(0.5F));
    EXPECT_TRUE(marks.passedBy(0.51F));
    marks.toggleOut(0.6F);
    EXPECT_FALSE(marks.passedBy(0.99F)) << "a cleared OUT is the end of the song";
    EXPECT_TRUE(marks.toggleRepeat());
    EXPECT_FALSE(marks.repeatOn);
}

constexpr TrackView::Size frame{9975, 1335};

TEST(PictureOfTheTracks, MeasuresTheSongBetweenTwoMargins) {
    const TrackView view(frame, 4, 1.0F, 2'000'000);
    EXPECT_EQ(view.rows().height, 1700);
    EXPECT_EQ(view.below(), 365);
    EXPECT_EQ(view.window().width, 8525);
    EXPECT_EQ(view.picture().width, 8475);
    EXPECT_EQ(TrackView::rowTop(3), 825);
    EXPECT_NEAR(view.widthOf(2'000'000), 8275, 0.01);
    EXPECT_NEAR(view.widthOf(1'000'000), 8275 / 2.0, 0.01);
    EXPECT_EQ(TrackView(frame, 4, 1.0F, 0).widthOf(100), 0);
}

TEST(PictureOfTheTracks, ScrollsOnlyWhatIsWiderThanTheWindow) {
    EXPECT_EQ(TrackView::zoomAt(50), 1.0F);
    EXPECT_NEAR(TrackView::zoomAt(0), 0.0909, 0.0001);
    EXPECT_NEAR(TrackView::zoomAt(200), 3.727, 0.001);
    EXPECT_EQ(TrackView(frame, 4, 1.0F, 1).scrollScale(), 0);
    EXPECT_LT(TrackView(frame, 4, 0.5F, 1).scrollScale(), 0);
    const TrackView wide(frame, 4, 2.0F, 1);
    EXPECT_FLOAT_EQ(wide.scrollScale(), 8.475F);
    EXPECT_NEAR(wide.pictureLeft(1000) + wide.picture().width, wide.window().width - 50, 0.01) << "the right end";
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
