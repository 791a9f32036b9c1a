#include "platform/help/HelpViewer.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>

#include "platform/help/HelpFile.h"

namespace lyrebrook {
namespace {

class HelpViewerTest : public testing::Test {
  protected:
    void SetUp() override {
        QFile file(file_);
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(
            "For authors: microphone\n"
            "=== 0 Welcome\nFive **steps**. See [recording](topic:3).\n"
            "=== 3 Recording\n## Levels\nTake the microphone.\n"
            "=== 20 Rhymes\nSearch *endings*.\n");
    }
    void TearDown() override {
        if (!windows().isEmpty()) delete windows().front();
    }

    QString titlesInSight() const {
        QStringList titles;
        for (int row = 0; row < contents()->count(); ++row) {
            if (!contents()->item(row)->isHidden()) titles << contents()->item(row)->text();
        }
        return titles.join(',');
    }
    QString text() const { return find<QTextBrowser>("helpText")->toPlainText(); }
    void searchFor(const QString& words) const { find<QLineEdit>("helpSearch")->setText(words); }
    QListWidget* contents() const { return find<QListWidget>("helpContents"); }
    QWidgetList windows() const {
        QWidgetList found;
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->windowTitle() == "Lyrebrook Help") found << window;
        }
        return found;
    }
    template <class Widget>
    Widget* find(const char* name) const {
        return windows().front()->findChild<Widget*>(name);
    }

    QTemporaryDir folder_;
    QString file_ = folder_.filePath("help.hlp");
};

TEST_F(HelpViewerTest, OpensTheTopicThatAScreenAsksForInItsOneWindow) {
    const std::tuple<HelpCommand, int, QString> cases[] = {{HelpCommand::topic, 20, "Rhymes"},
                                                           {HelpCommand::topic, 3, "Recording"},
                                                           {HelpCommand::topic, 99, "Welcome"},
                                                           {HelpCommand::contentsFinder, 3, "Welcome"}};
    for (const auto& [command, number, title] : cases) {
        HelpViewer::show(file_, command, number);
        EXPECT_TRUE(text().startsWith(title + '\n')) << text().toStdString();
        EXPECT_EQ(contents()->currentItem()->text(), title);
        EXPECT_EQ(windows().size(), 1);
    }
}

TEST_F(HelpViewerTest, TheSearchKeepsTheTopicsThatHoldAllWords) {
    HelpViewer::show(file_, HelpCommand::contentsFinder, 0);
    const std::tuple<QString, QString, QString> cases[] = {{"MICRO take", "Recording", "1 topic found."},
                                                           {"re", "Welcome,Recording", "2 topics found."},
                                                           {"topic", "", "No topic holds these words."},
                                                           {"  ", "Welcome,Recording,Rhymes", ""}};
    for (const auto& [words, titles, found] : cases) {
        searchFor(words);
        EXPECT_EQ(titlesInSight(), titles);
        EXPECT_EQ(find<QLabel>("helpFound")->text(), found);
    }
    searchFor("microphone");
    EXPECT_TRUE(text().startsWith("Recording"));
    EXPECT_EQ(find<QTextBrowser>("helpText")->extraSelections().size(), 1);
}

TEST_F(HelpViewerTest, TheKeyboardReachesTheSearchAndLeavesTheWindow) {
    HelpViewer::show(file_, HelpCommand::topic, 3);
    searchFor("endings");
    QTest::keyClick(windows().front(), Qt::Key_Escape);
    EXPECT_EQ(titlesInSight(), "Welcome,Recording,Rhymes");
    QTest::keyClick(windows().front(), Qt::Key_Escape);
    EXPECT_FALSE(windows().front()->isVisible());
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    HelpViewer::show(file_, HelpCommand::topic, 20);
    EXPECT_TRUE(text().startsWith("Rhymes"));
}

TEST_F(HelpViewerTest, AMissingFileIsToldInTheWindow) {
    HelpViewer::show(folder_.filePath("none.hlp"), HelpCommand::topic, 3);
    EXPECT_TRUE(text().contains("none.hlp")) << text().toStdString();
    QFile::resize(file_, 0);
    HelpViewer::show(file_, HelpCommand::contentsFinder, 0);
    EXPECT_TRUE(text().contains("help.hlp")) << text().toStdString();
}

TEST(ShippedHelp, HasATopicForEachScreenAndNoLinkIntoTheVoid) {
    const HelpFile help(LYREBROOK_HELP_FILE);
    const auto has = [&](int number) { return help.topics().at(help.placeOf(number)).number == number; };
    for (const int number : {1, 2, 3}) EXPECT_TRUE(has(number)) << number;
    const QRegularExpression link("\\(topic:(\\d+)\\)");
    for (const HelpTopic& topic : help.topics()) {
        for (auto match = link.globalMatch(topic.markdown); match.hasNext();) {
            EXPECT_TRUE(has(match.next().captured(1).toInt())) << topic.title.toStdString();
        }
    }
}

}  // namespace
}  // namespace lyrebrook

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
