#pragma once

#include <QString>
#include <cstdint>

#include "democd/Workset.h"
#include "platform/forms/ComboBox.h"
#include "platform/forms/CommandButton.h"
#include "platform/forms/CommonDialog.h"
#include "platform/forms/ControlArray.h"
#include "platform/forms/FormInstance.h"
#include "platform/forms/Frame.h"
#include "platform/forms/Label.h"
#include "platform/forms/TabStrip.h"
#include "platform/forms/TextBox.h"

class QBoxLayout;

namespace lyrebrook {

/// Step 5: collects an artist's details, songs and photographs under a workset title, and makes a small site of them
/// that can be copied to a CD. One button writes the workset and the site; nothing else saves anything. Events are
/// served while the site is made, but the texts that it is made from can't be changed meanwhile.
class FrmDemoCD final : public Form {
  public:
    FrmDemoCD();

    void Form_Load() override;

    Frame frmTop;
    Label Label19, Label1;
    TabStrip TabStrip1;
    ControlArray<Frame> Frame1;  ///< the pages of the tabs, 1 to 4

    ComboBox comTitles;
    TextBox txtName, txtAge, txtCountry, txtOwner, txtCV, txtEmail, txtPostal, txtPhone;

    // Songs and photographs are counted from 1 to 3. A file's full path stands in a box that is never seen.
    Label Label13;
    ControlArray<Frame> fraSong;
    ControlArray<TextBox> txtSongTitle;
    ControlArray<Label> lblPath;
    ControlArray<CommandButton> cmdOpenSong, cmdDeleteFile;
    ControlArray<TextBox> txtPathLong;

    Label Label27;
    ControlArray<Frame> fraPhoto;
    ControlArray<Label> txtPhotoPath;
    ControlArray<TextBox> txtPhotoDesc;
    ControlArray<CommandButton> cmdOpenPhoto, cmdDeletePhoto;
    ControlArray<TextBox> txtPhotoPathLong;

    CommandButton cmdCreate;
    Label lblFeedback;
    Frame frmMessage;
    Label Label8, Label9, lblwebURL, Label11, Label17, lblCDPath, Label10;

    CommandButton cmdDelete, cmdHelp, cmdClose;

  private:
    class TextsHeld;

    void layOut();
    void layOutTop();
    void layOutProject();
    void layOutSong(int index);
    void layOutPhoto(int index);
    void layOutPages();
    void layOutEnd();
    void layOutMessage();
    void connectHandlers();

    void TabStrip1_Click();
    void comTitles_Click();
    void comTitles_LostFocus();
    void cmdOpenSong_Click(int index);
    void cmdOpenPhoto_Click(int index);
    void cmdDeleteFile_Click(int index);
    void cmdDeletePhoto_Click(int index);
    void cmdCreate_Click();
    void cmdDelete_Click();
    void Label10_Click();
    void lblwebURL_Click();

    /// Whether a file was chosen.
    bool chooseFile(const QString& filter);
    bool isDemoWorkset() const;

    void loadWorksetTitles();
    void loadWorkset(const QString& path);
    void saveWorkset(const QString& path);
    Workset typedWorkset() const;
    void showWorkset(const Workset& workset);

    bool validateWizard();
    void createSite();
    /// False when the media folder couldn't be made, which is told by then.
    bool finalize(const QString& title);
    bool copyMedia();

    CommonDialog CommonDialog1;
    QString worksetFolder_;
    std::int16_t currentTab_ = 1;
    WorksetHtml html_;  ///< what `saveWorkset` made of the texts with line breaks
};

extern FormInstance<FrmDemoCD> frmDemoCD;

}  // namespace lyrebrook
