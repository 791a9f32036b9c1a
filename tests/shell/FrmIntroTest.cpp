#include "shell/FrmIntro.h"

#include <gmock/gmock.h>

#include "backtrack/FrmMixer.h"
#include "backtrack/FrmSelect.h"
#include "projects/FrmSongConfig.h"
#include "recorder/FrmComposer.h"
#include "shell/FrmAbout.h"
#include "shell/modConfig.h"
#include "support/Studio.h"

namespace lyrebrook {
namespace {

using testing::ElementsAre;

class MainWindow : public Studio {
  protected:
    MainWindow() { frmIntro.Show(); }

    void expectTurnedBack(MenuEntry& step, const char* message, FormSlot& shownInstead) {
        desk().willAnswer(vbOK);
        step.Click.fire();
        EXPECT_THAT(desk().takeBoxes(), ElementsAre(Box{QString::fromUtf8(message)}));
        EXPECT_TRUE(shownInstead.isLoaded()) << message;
        shownInstead.Unload();
    }
};

TEST_F(MainWindow, TurnsBackToTheStepThatIsMissing) {
    expectTurnedBack(frmIntro->mnuStep2,
                     "Please select an existing song or create a new song before you click to Step 2!", frmSongConfig);
    expectTurnedBack(frmIntro->mnuStep3,
                     "Please select an existing song or create a new song before you click to Step 3!", frmSongConfig);
    expectTurnedBack(frmIntro->mnuStep4,
                     "Please select an existing song or create a new song before you click to Step 4!", frmSongConfig);
    gSongName = QStringLiteral("My Song");
    expectTurnedBack(frmIntro->mnuStep3, "Please select a backtrack for your song before you go to step 3!", frmSelect);
    gBacktrackFile = path(QStringLiteral("tracks/Version1/none.wav"));
    desk().willAnswer(vbOK);  // the backtrack recorder's own word on a file that isn't there
    desk().willAnswer(vbOK);
    frmIntro->mnuStep4.Click.fire();
    EXPECT_EQ(desk().takeBoxes().front(),
              Box{QStringLiteral("Please record the backtrack for your song before you go to step 4!")});
    EXPECT_TRUE(frmMixer.isLoaded());
}

TEST_F(MainWindow, OpensTheRecorderForAnyFirstWaveThatExists) {
    gSongName = QStringLiteral("My Song");
    giveWave(QStringLiteral("My Song_1.wav"), ramp(44100));
    frmIntro->lblStep4.Click.fire();
    EXPECT_TRUE(frmComposer.isLoaded());
    EXPECT_FALSE(frmMixer.isLoaded());
}

TEST_F(MainWindow, LightsAStepWhenItsScreenCloses) {
    frmIntro->picStatusN[0].Click.fire();
    ASSERT_TRUE(frmSongConfig.isLoaded());
    frmSongConfig.Unload();
    EXPECT_TRUE(frmIntro->picStatusN[0].standsAbove(frmIntro->picStatusY[0]));

    frmSongConfig.Show();
    gSongName = QStringLiteral("My Song");
    frmSongConfig.Unload();
    EXPECT_TRUE(frmIntro->picStatusY[0].standsAbove(frmIntro->picStatusN[0]));
}

TEST_F(MainWindow, EndsTheProgramAtOnceWhenItCloses) {
    frmSongConfig.Show();
    frmIntro->mnuExit.Click.fire();
    EXPECT_TRUE(desk().ended());
    EXPECT_TRUE(frmSongConfig.isLoaded()) << "open screens hear nothing of the end";
}

TEST_F(MainWindow, AboutBoxLeadsToTheMakersPages) {
    frmIntro->mnuAbout2.Click.fire();
    EXPECT_EQ(frmAbout->lblVersion.Caption(), QStringLiteral("Vrn1.2"));
    frmAbout->Label3.Click.fire();
    frmAbout->Label5.Click.fire();
    EXPECT_THAT(desk().takeOpened(), ElementsAre(gWebSiteUrl, gContactUrl));
    frmAbout->cmdOK.setValue(true);
    EXPECT_FALSE(frmAbout.isLoaded());
}

TEST_F(Studio, WarnsOnceWhenThereIsNoSoundCard) {
    card().setOutputCount(0);
    desk().willAnswer(vbOK);
    frmIntro.Show();
    EXPECT_THAT(desk().takeBoxes(),
                ElementsAre(Box{QStringLiteral("No sound card was detected on your computer. Without a sound card you "
                                               "will not hear any sound. Please install before you proceed to avoid "
                                               "further error messages!"),
                                vbInformation, QStringLiteral("Sound Card Test")}));
    EXPECT_TRUE(frmIntro->Visible());
}

}  // namespace
}  // namespace lyrebrook
