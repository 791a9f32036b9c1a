#pragma once

#include "platform/forms/CommandButton.h"
#include "platform/forms/FormInstance.h"
#include "platform/forms/Label.h"
#include "platform/forms/PictureBox.h"

namespace lyrebrook {

/// The About box: the version, and the maker's two pages on the web.
class FrmAbout final : public Form {
  public:
    FrmAbout();

    void Form_Load() override;

    PictureBox Picture1;
    Label lblVersion;
    Label Label3, Label5;
    CommandButton cmdOK;

  private:
    void layOut();
    void Label3_Click();
    void Label5_Click();
    void cmdOK_Click();
};

extern FormInstance<FrmAbout> frmAbout;

}  // namespace lyrebrook
