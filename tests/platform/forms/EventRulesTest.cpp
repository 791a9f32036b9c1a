// Which event a control fires, when the user acts and when code sets the same.
#include <QApplication>
#include <QScrollBar>
#include <QTabBar>
#include <QTest>

#include "Diary.h"
#include "platform/base/RuntimeError.h"
#include "platform/forms/CheckBox.h"
#include "platform/forms/ComboBox.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/Label.h"
#include "platform/forms/ListBox.h"
#include "platform/forms/ListView.h"
#include "platform/forms/OptionButton.h"
#include "platform/forms/PictureBox.h"
#include "platform/forms/ScrollBar.h"
#include "platform/forms/Slider.h"
#include "platform/forms/TabStrip.h"
#include "platform/forms/TextBox.h"

namespace lyrebrook {
namespace {

class FrmAll final : public Form {
  public:
    FrmAll() : Form(QStringLiteral("All")) {
        for (Control* control : std::initializer_list<Control*>{&button, &check, &first, &second, &list, &combo,
                                                                &slider, &bar, &text, &tabs, &label, &picture}) {
            control->Move(0, next);
            next += 900;
        }
        list.setHeight(1500);
        for (const char* line : {"one", "two", "three"}) {
            list.AddItem(QString::fromLatin1(line));
            combo.AddItem(QString::fromLatin1(line));
        }
        slider.setWidth(3000);
        tell(button.Click, "Click");
        tell(check.Click, "Click");
        tell(first.Click, "Click");
        tell(second.Click, "Click 2");
        tell(list.Click, "Click");
        tell(list.DblClick, "DblClick");
        tell(combo.Click, "Click");
        tell(combo.Change, "Change");
        tell(slider.Scroll, "Scroll");
        tell(slider.Change, "Change");
        tell(slider.Click, "Click");
        tell(slider.MouseUp, "MouseUp");
        tell(bar.Scroll, "Scroll");
        tell(bar.Change, "Change");
        tell(text.Change, "Change");
        tell(text.GotFocus, "GotFocus");
        tell(text.LostFocus, "LostFocus");
        tell(tabs.Click, "Click");
        tell(label.Click, "Click");
        tell(picture.Click, "Click");
        on(text.KeyPress, [](int key) { diary << QStringLiteral("Key %1").arg(key); });
        window().resize(400, 900);
    }
    void tell(Event<>& event, const char* name) {
        on(event, [name] { diary << QString::fromLatin1(name); });
    }

    CommandButton button{content()};
    CheckBox check{content()};
    OptionButton first{content()}, second{content()};
    ListBox list{content()};
    ComboBox combo{content()};
    Slider slider{content()};
    ScrollBar bar{content(), Orientation::horizontal};
    TextBox text{content()};
    TabStrip tabs{content(), {"a", "b"}};
    Label label{content(), QStringLiteral("label")};
    PictureBox picture{content()};
    Twips next = 0;
};
FormInstance<FrmAll> frmAll;

void clickLine(FrmAll& form, int line) {
    auto* view = static_cast<ListView*>(form.list.widget());
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualItemRect(view->item(line)).center());
}

void doubleClickLine(FrmAll& form, int line) {
    clickLine(form, line);
    auto* view = static_cast<ListView*>(form.list.widget());
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, view->visualItemRect(view->item(line)).center());
}

void drag(FrmAll& form, std::initializer_list<int> values) {
    auto* bar = static_cast<QScrollBar*>(form.bar.widget());
    bar->setSliderDown(true);
    for (const int value : values) bar->setSliderPosition(value);
    bar->setSliderDown(false);
}

void clickTab(FrmAll& form, int index) {
    auto* bar = static_cast<QTabBar*>(form.tabs.widget());
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(index).center());
}

void click(Control& control) {
    QTest::mouseClick(control, Qt::LeftButton);
}

void letGoOutside(Control& control) {
    QTest::mousePress(control, Qt::LeftButton);
    QTest::mouseRelease(control, Qt::LeftButton, {}, QPoint(20, -60));
}

struct Rule {
    const char* name;
    std::function<void(FrmAll&)> act;
    QStringList events;
};
void PrintTo(const Rule& rule, std::ostream* out) {
    *out << rule.name;
}

class EventRules : public AtDesk, public testing::WithParamInterface<Rule> {};

TEST_P(EventRules, FireWhatTheProductSays) {
    frmAll.Show();
    desk.DoEvents();
    diary.clear();
    GetParam().act(*frmAll);
    EXPECT_EQ(takeDiary(), GetParam().events);
}

const Rule rules[] = {
    {"button, user", [](FrmAll& f) { click(f.button); }, {"Click"}},
    {"button, Enter", [](FrmAll& f) { QTest::keyClick(f.button, Qt::Key_Return); }, {"Click"}},
    {"button, True", [](FrmAll& f) { f.button.setValue(true); }, {"Click"}},
    {"button, False", [](FrmAll& f) { f.button.setValue(false); }, {}},
    {"check, user", [](FrmAll& f) { QTest::keyClick(f.check, Qt::Key_Space); }, {"Click"}},
    {"check, changed", [](FrmAll& f) { f.check.setValue(1), f.check.setValue(0); }, {"Click", "Click"}},
    {"check, same", [](FrmAll& f) { f.check.setValue(0); }, {}},
    {"option, chosen", [](FrmAll& f) { f.first.setValue(true), f.second.setValue(true); }, {"Click", "Click 2"}},
    {"option, chosen already", [](FrmAll& f) { f.first.setValue(true), f.first.setValue(true); }, {"Click"}},
    {"option, user", [](FrmAll& f) { QTest::keyClick(f.second, Qt::Key_Space); }, {"Click 2"}},
    {"list, same index", [](FrmAll& f) { f.list.setListIndex(1), f.list.setListIndex(1); }, {"Click", "Click"}},
    {"list, same line", [](FrmAll& f) { clickLine(f, 1), clickLine(f, 1); }, {"Click", "Click"}},
    {"list, double", [](FrmAll& f) { doubleClickLine(f, 1); }, {"Click", "DblClick"}},
    {"list, key", [](FrmAll& f) { f.list.setListIndex(0), QTest::keyClick(f.list, Qt::Key_Down); }, {"Click", "Click"}},
    {"list, key at end", [](FrmAll& f) { f.list.setListIndex(2), QTest::keyClick(f.list, Qt::Key_Down); }, {"Click"}},
    {"list, contents", [](FrmAll& f) { f.list.AddItem("four"), f.list.RemoveItem(0), f.list.Clear(); }, {}},
    {"combo, picked", [](FrmAll& f) { f.combo.setListIndex(1); }, {"Click"}},
    {"combo, typed", [](FrmAll& f) { QTest::keyClicks(f.combo, "on"); }, {"Change", "Change"}},
    {"combo, Enter on a line's text",
     [](FrmAll& f) { f.combo.setText("two"), QTest::keyClick(f.combo, Qt::Key_Return); },
     {"Change"}},
    {"slider, changed", [](FrmAll& f) { f.slider.setValue(5); }, {"Change"}},
    {"slider, same", [](FrmAll& f) { f.slider.setValue(0); }, {}},
    {"slider, beyond", [](FrmAll& f) { f.slider.setValue(25), f.slider.setValue(26); }, {"Change"}},
    {"slider, limits pull", [](FrmAll& f) { f.slider.setValue(9), f.slider.setMax(5); }, {"Change"}},
    {"slider, key", [](FrmAll& f) { QTest::keyClick(f.slider, Qt::Key_Right); }, {"Scroll", "Change"}},
    {"slider, groove", [](FrmAll& f) { click(f.slider); }, {"Scroll", "Change", "Click", "MouseUp"}},
    {"slider, let go outside", [](FrmAll& f) { letGoOutside(f.slider); }, {"Scroll", "Change", "MouseUp"}},
    {"bar, changed", [](FrmAll& f) { f.bar.setValue(5), f.bar.setValue(5); }, {"Change"}},
    {"bar, key", [](FrmAll& f) { QTest::keyClick(f.bar, Qt::Key_Right); }, {"Change"}},
    {"bar, drag",
     [](FrmAll& f) {
         drag(f, {10, 20});
     },
     {"Scroll", "Scroll", "Change"}},
    {"bar, drag and back",
     [](FrmAll& f) {
         drag(f, {10, 0});
     },
     {"Scroll", "Scroll"}},
    {"text, set", [](FrmAll& f) { f.text.setText("a"), f.text.setText("a"); }, {"Change"}},
    {"text, typed", [](FrmAll& f) { QTest::keyClick(f.text, 'a'); }, {"Key 97", "Change"}},
    {"text, Enter", [](FrmAll& f) { QTest::keyClick(f.text, Qt::Key_Return); }, {"Key 13"}},
    {"text, focus", [](FrmAll& f) { f.text.SetFocus(), f.button.SetFocus(); }, {"GotFocus", "LostFocus"}},
    {"text, another window",
     [](FrmAll& f) { f.text.SetFocus(), QApplication::setActiveWindow(nullptr); },
     {"GotFocus"}},
    {"tabs, code", [](FrmAll& f) { f.tabs.setSelectedItem(2), f.tabs.setSelectedItem(2); }, {"Click"}},
    {"tabs, user", [](FrmAll& f) { clickTab(f, 1), clickTab(f, 1); }, {"Click", "Click"}},
    {"label", [](FrmAll& f) { click(f.label); }, {"Click"}},
    {"picture", [](FrmAll& f) { click(f.picture); }, {"Click"}},
};
INSTANTIATE_TEST_SUITE_P(Controls, EventRules, testing::ValuesIn(rules));

}  // namespace
}  // namespace lyrebrook
