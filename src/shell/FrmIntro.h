#pragma once

#include <cstdint>

#include "platform/forms/ControlArray.h"
#include "platform/forms/FormInstance.h"
#include "platform/forms/Label.h"
#include "platform/forms/MenuEntry.h"
#include "platform/forms/PictureBox.h"

class QGridLayout;

namespace lyrebrook {

/// The main window: five steps, a status light beside each, and the rules on which step may be entered when. Stays open
/// behind the steps; its end is the program's. Each step's screen sets its own light when it closes.
class FrmIntro final : public Form {
  public:
    FrmIntro();

    void Form_Load() override;
    void Form_Unload() override;

    /// Whether the current song's first wave is on the disk. Without a song the disk isn't asked.
    bool checkFileExists() const;

    /// Shows the help's contents for 0, else one topic.
    void openHelp(std::int32_t helpId);

    /// Unloads a form and ends the program.
    void exitProgram(FormSlot& form);

    void mnuStep1_Click();
    void mnuStep2_Click();
    void mnuStep3_Click();
    void mnuStep4_Click();
    void mnuStep5_Click();

    /// Lights of the steps, index 0 to 4, stacked pairwise: the one in front is the one seen.
    ControlArray<PictureBox> picStatusN;
    ControlArray<PictureBox> picStatusY;

    PictureBox picBanner;
    Label lblStep1, lblStep2, lblStep3, lblStep4, lblStep5;
    Label Label3, Label5, Label9, Label7, Label1;

    MenuEntry mnuSteps;
    MenuEntry mnuStep1, mnuStep2, mnuStep3, mnuStep4, mnuStep5;
    MenuEntry mnuHelp, mnuHelp2;
    MenuEntry mnuAbout, mnuAbout2;
    MenuEntry mnuExit;

  private:
    void layOut();
    void addStep(QGridLayout& grid, int index, Label& number, Label& purpose);
    void connectHandlers();
    void testSoundCard();
    void picStatusN_Click(int index);
    void mnuAbout2_Click();
    void mnuExit_Click();
};

extern FormInstance<FrmIntro> frmIntro;

}  // namespace lyrebrook
