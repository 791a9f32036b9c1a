#include <algorithm>

#include "democd/FrmDemoCD.h"
#include "democd/MediaFolder.h"
#include "democd/SiteGenerator.h"
#include "platform/base/RuntimeError.h"
#include "platform/files/App.h"
#include "platform/files/Text.h"
#include "platform/forms/Desktop.h"
#include "shell/FrmIntro.h"

namespace lyrebrook {

/// While one is alive, the user can look at the wizard and close it, but neither change the texts that the site is made
/// from nor start it again.
class FrmDemoCD::TextsHeld {
  public:
    explicit TextsHeld(FrmDemoCD& form) : form_(form), createHadFocus_(form.cmdCreate.widget()->hasFocus()) {
        enable(false);
    }
    ~TextsHeld() {
        enable(true);
        if (createHadFocus_) form_.cmdCreate.SetFocus();
    }
    TextsHeld(const TextsHeld&) = delete;
    TextsHeld& operator=(const TextsHeld&) = delete;

  private:
    void enable(bool enabled) {
        for (int tab = 1; tab <= 3; ++tab) form_.Frame1[tab].setEnabled(enabled);
        form_.cmdDelete.setEnabled(enabled);
        form_.cmdCreate.setEnabled(enabled);
    }

    FrmDemoCD& form_;
    bool createHadFocus_;
};

void FrmDemoCD::cmdCreate_Click() {
    const QString title = comTitles.Text();
    setMousePointer(MousePointer::hourglass);
    if (validateWizard() && !finalize(title)) return;
    setMousePointer(MousePointer::standard);
    frmIntro->picStatusY[4].ZOrder();
}

bool FrmDemoCD::validateWizard() {
    const QString title = comTitles.Text();
    if (title == u"Enter new or select existing title..." || trimBlanks(title).isEmpty()) {
        MsgBox(
            QStringLiteral("Please enter or select a TITLE for your CD in STEP 1 of this wizard before you finalize!"));
        return false;
    }
    const std::initializer_list<const TextBox*> required = {&txtName, &txtAge, &txtCountry, &txtOwner, &txtCV};
    if (std::ranges::any_of(required, [](const TextBox* box) { return trimBlanks(box->Text()).isEmpty(); })) {
        MsgBox(QStringLiteral("Please fill out ALL the fields in STEP 1 of this wizard before you finalize!"));
        return false;
    }
    return true;
}

bool FrmDemoCD::finalize(const QString& title) {
    const TextsHeld held(*this);
    frmMessage.setVisible(false);
    lblFeedback.setVisible(true);
    DoEvents();
    if (comTitles.Text() == demoWorkset) {
        MsgBox(
            QStringLiteral("The 'Demo Workset' that you've chosen can not be updated or changed. It must be used as an "
                           "example when creating other worksets."));
    } else {
        saveWorkset(worksetFolder_ + comTitles.Text() + QStringLiteral(".xon"));
        createSite();
        if (!copyMedia()) return false;
    }
    lblFeedback.setVisible(false);
    frmMessage.setVisible(true);
    loadWorksetTitles();
    comTitles.setText(title);
    return true;
}

void FrmDemoCD::saveWorkset(const QString& path) {
    const Workset workset = typedWorkset();
    html_ = htmlOf(workset);
    writeWorkset(path, comTitles.Text(), workset, html_);
}

void FrmDemoCD::createSite() {
    const SiteGenerator generator(App::Path() + QStringLiteral("/templates/cdRedPlayer/"),
                                  App::Path() + QStringLiteral("/DemoCD/"),
                                  [](const QString& message) { MsgBox(message); });
    generator.createSite(typedWorkset(), html_);
}

bool FrmDemoCD::copyMedia() {
    const QString siteFolder = App::Path() + QStringLiteral("/DemoCD/");
    try {
        rebuildMediaFolder(siteFolder, typedWorkset(), [] { DoEvents(); });
        return true;
    } catch (const RuntimeError& error) {
        setMousePointer(MousePointer::standard);
        lblFeedback.setVisible(false);
        MsgBox(QStringLiteral("Access to CD directory denied!\r\n\r\nCause: ") +
               QString::fromStdString(error.description()) + QStringLiteral(" | Directory causing error: ") +
               mediaFolderPath(siteFolder) +
               QStringLiteral("\r\n\r\nSolution: It is possible that the files are currently open in your browser. "
                              "Close the browser window and try again!"));
        return false;
    }
}

}  // namespace lyrebrook
