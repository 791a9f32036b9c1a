#include "platform/forms/Control.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QTest>
#include <QToolTip>

#include "Diary.h"
#include "platform/base/RuntimeError.h"
#include "platform/forms/ControlArray.h"
#include "platform/forms/Frame.h"
#include "platform/forms/Line.h"
#include "platform/forms/ListBox.h"
#include "platform/forms/ListView.h"
#include "platform/forms/PictureBox.h"
#include "platform/forms/ScrollBar.h"
#include "platform/forms/Shape.h"
#include "platform/forms/Slider.h"
#include "platform/forms/TextBox.h"

namespace lyrebrook {
namespace {

class FrmView final : public Form {
  public:
    FrmView() : Form(QStringLiteral("View")) {
        on(imgSlider.MouseDown, [](MouseButton, int, Twips x, Twips y) { tell("down", 1, x, y); });
        on(imgSlider.MouseMove,
           [](MouseButton button, int, Twips x, Twips y) { tell("move", static_cast<int>(button), x, y); });
        on(sLevel, &Slider::Change, &FrmView::sLevel_Change);
    }
    void sLevel_Change(int index) { diary << QStringLiteral("level %1").arg(index); }
    static void tell(const char* what, int button, Twips x, Twips y) {
        diary << QStringLiteral("%1 %2 at %3, %4").arg(QString::fromLatin1(what)).arg(button).arg(x).arg(y);
    }

    PictureBox imgContainer{content()};
    PictureBox imgSlider{imgContainer.widget()};
    Shape shpTake{imgSlider, red};
    Line lnCursor{imgSlider, green};
    Frame Frame1{content(), QStringLiteral("Strip")};
    ControlArray<Slider> sLevel{1, 2, [this](int) { return std::make_unique<Slider>(content()); }};
    ListBox list{content()};
    TextBox page{content(), {}, Lines::multiple};
    ScrollBar bar{content(), Orientation::horizontal};
};
FormInstance<FrmView> frmView;

class Controls : public AtDesk {
  protected:
    FrmView& view = *frmView;
};

TEST_F(Controls, LengthsReadBackAsGivenAndSnapToPixelsOnScreen) {
    view.shpTake.Move(-1234.56, 7, 115.3, 350);
    EXPECT_EQ(view.shpTake.Left(), -1234.56);
    EXPECT_EQ(view.shpTake.Width(), 115.3);
    EXPECT_EQ(view.shpTake.widget()->geometry(), QRect(-82, 0, 8, 23));
    view.shpTake.widget()->resize(10, 10);
    EXPECT_EQ(view.shpTake.Width(), 150) << "what a layout gave";
}

TEST_F(Controls, CursorLineStandsWhereItsEndsAre) {
    view.lnCursor.setX1(1500.2);
    view.lnCursor.setX2(1500.2);
    view.lnCursor.setY2(1700);
    EXPECT_EQ(view.lnCursor.X1(), 1500.2);
    EXPECT_EQ(view.lnCursor.widget()->geometry(), QRect(100, 0, 1, 113));
}

TEST_F(Controls, TheMouseGoesThroughShapesToThePictureInItsTwips) {
    view.imgContainer.Move(150, 150, 3000, 1500);
    view.imgSlider.Move(-1500, 0, 6000, 1500);
    view.shpTake.Move(1500, 0, 3000, 1500);
    view.imgContainer.ZOrder();
    frmView.Show();
    desk.DoEvents();
    QWidget* hit = view.content()->childAt(20, 20);
    ASSERT_EQ(hit, view.imgSlider.widget());
    QTest::mousePress(hit, Qt::LeftButton, {}, hit->mapFrom(view.content(), QPoint(20, 20)));
    QTest::mouseMove(hit, QPoint(4, 2));
    QTest::mouseRelease(hit, Qt::LeftButton);
    ASSERT_GE(diary.size(), 2);
    EXPECT_EQ(diary.at(0), "down 1 at 1650, 150");
    EXPECT_EQ(diary.at(1), "move 1 at 60, 30");
}

TEST_F(Controls, ArraysGrowAtRunTimeUnderOneHandler) {
    EXPECT_TRUE(view.sLevel[2].Visible());
    EXPECT_FALSE(view.sLevel.load(3).Visible());
    view.sLevel[3].setVisible(true);
    view.sLevel.load(3);
    EXPECT_TRUE(view.sLevel[3].Visible()) << "a second load changes nothing";
    EXPECT_EQ(view.sLevel.Count(), 3);
    EXPECT_EQ(view.sLevel.UBound(), 3);
    view.sLevel[1].setValue(4);
    view.sLevel[3].setValue(4);
    EXPECT_EQ(takeDiary(), QStringList({"level 1", "level 3"}));
    EXPECT_THROW(view.sLevel[0], RuntimeError);
}

TEST_F(Controls, ContainerAndOrderChangeWithoutOtherTraces) {
    view.sLevel[1].Move(300, 450);
    view.sLevel[1].setContainer(view.Frame1);
    EXPECT_EQ(view.sLevel[1].widget()->parentWidget(), view.Frame1.widget());
    EXPECT_TRUE(view.sLevel[1].Visible());
    EXPECT_EQ(view.sLevel[1].Left(), 300);
    EXPECT_TRUE(view.lnCursor.standsAbove(view.shpTake));
    view.shpTake.ZOrder();
    EXPECT_TRUE(view.shpTake.standsAbove(view.lnCursor));
}

TEST_F(Controls, VerticalSliderHasItsMinimumAtTheTop) {
    Slider fader(view.content(), Orientation::vertical, {0, 3000, 1, 5, 200, 1000});
    fader.setValueText([](std::int32_t value) { return QStringLiteral("-%1 dB").arg(value / 100); });
    QTest::keyClick(fader, Qt::Key_Up);
    EXPECT_EQ(fader.Value(), 999);
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(fader.widget());
    EXPECT_EQ(spoken->text(QAccessible::Value), "-9 dB");
    EXPECT_EQ(spoken->valueInterface()->maximumValue(), 3000);
}

TEST_F(Controls, ListKeepsItsSelectionOnlyWithItsLine) {
    for (const char* line : {"a", "b", "c"}) view.list.AddItem(QString::fromLatin1(line));
    view.list.setItemData(view.list.NewIndex(), 352800);
    EXPECT_EQ(view.list.ItemData(2), 352800);
    EXPECT_EQ(view.list.List(3), "");
    EXPECT_EQ(view.list.ListIndex(), -1);
    view.list.setListIndex(1);
    view.list.RemoveItem(0);
    EXPECT_EQ(view.list.Text(), "b");
    view.list.RemoveItem(0);
    EXPECT_EQ(view.list.ListIndex(), -1);
    EXPECT_THROW(view.list.RemoveItem(1), RuntimeError);
    EXPECT_THROW(view.list.RemoveItem(-1), RuntimeError);
}

TEST_F(Controls, ALineThatIsCutIsShownWholeByATip) {
    frmView.Show();
    view.list.Move(0, 0, 1500, 1500);
    const QString longLine = QStringLiteral("Device #0:    Built-in Audio Analog Stereo");
    view.list.AddItem(longLine);
    view.list.AddItem(QStringLiteral("a"));
    auto& lines = static_cast<ListView&>(*view.list.widget());
    for (const int line : {1, 0}) {
        const QPoint place = lines.visualItemRect(lines.item(line)).center();
        QHelpEvent help(QEvent::ToolTip, place, place);
        QCoreApplication::sendEvent(lines.viewport(), &help);
        EXPECT_EQ(QToolTip::text(), line == 0 ? longLine : QString());
    }
}

TEST_F(Controls, LinesOfAPageAreJoinedByCarriageReturnAndLineFeed) {
    view.page.setText(QStringLiteral("one\r\ntwo\r\n"));
    EXPECT_EQ(view.page.Text(), "one\r\ntwo\r\n");
    QTest::keyClick(view.page, Qt::Key_Return);
    EXPECT_EQ(view.page.Text(), "\r\none\r\ntwo\r\n");
}

TEST_F(Controls, ScrollBarMayRunDownwards) {
    view.bar.setMax(-500);
    view.bar.setValue(-300);
    EXPECT_EQ(view.bar.Value(), -300);
    EXPECT_EQ(view.bar.Max(), -500);
}

TEST_F(Controls, LinesDrawnByCodeFillTheirUnitsAndStay) {
    view.imgSlider.Move(0, 0, 150, 300);
    ASSERT_EQ(view.imgSlider.ScaleHeight(), 300);
    view.imgSlider.setBackColor(black);
    for (int y = 150; y < 300; ++y) view.imgSlider.DrawLine(QLineF(0, y, 150, y), green);
    view.shpTake.setVisible(false);
    view.lnCursor.setVisible(false);
    const QImage seen = view.imgSlider.widget()->grab().toImage();
    EXPECT_EQ(seen.pixelColor(5, 9), QColor(0, 0, 0));
    EXPECT_EQ(seen.pixelColor(0, 10), QColor(0, 255, 0));
    EXPECT_EQ(seen.pixelColor(9, 19), QColor(0, 255, 0));
}

}  // namespace
}  // namespace lyrebrook
