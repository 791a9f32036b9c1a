#include "democd/FrmDemoCD.h"

#include <algorithm>
#include <initializer_list>

#include "platform/base/RuntimeError.h"
#include "platform/files/App.h"
#include "platform/files/FileSystemObject.h"
#include "platform/files/Text.h"
#include "platform/forms/Desktop.h"
#include "projects/SongData.h"
#include "recorder/FrmComposer.h"
#include "shell/FrmIntro.h"

namespace lyrebrook {

FormInstance<FrmDemoCD> frmDemoCD;

namespace {

/// Anywhere in the name: "song.mid.txt" passes.
bool holdsOneOf(const QString& name, std::initializer_list<const char*> endings) {
    return std::ranges::any_of(
        endings, [lower = name.toLower()](const char* ending) { return lower.contains(QLatin1String(ending)); });
}

}  // namespace

void FrmDemoCD::connectHandlers() {
    on(TabStrip1.Click, &FrmDemoCD::TabStrip1_Click);
    on(comTitles.Click, &FrmDemoCD::comTitles_Click);
    on(comTitles.LostFocus, &FrmDemoCD::comTitles_LostFocus);
    on(cmdOpenSong, &CommandButton::Click, &FrmDemoCD::cmdOpenSong_Click);
    on(cmdOpenPhoto, &CommandButton::Click, &FrmDemoCD::cmdOpenPhoto_Click);
    on(cmdDeleteFile, &CommandButton::Click, &FrmDemoCD::cmdDeleteFile_Click);
    on(cmdDeletePhoto, &CommandButton::Click, &FrmDemoCD::cmdDeletePhoto_Click);
    on(cmdCreate.Click, &FrmDemoCD::cmdCreate_Click);
    on(cmdDelete.Click, &FrmDemoCD::cmdDelete_Click);
    on(cmdHelp.Click, [] { frmIntro->openHelp(12); });
    on(cmdClose.Click, [] { frmDemoCD.Unload(); });
    on(Label10.Click, &FrmDemoCD::Label10_Click);
    on(lblwebURL.Click, &FrmDemoCD::lblwebURL_Click);
}

void FrmDemoCD::Form_Load() {
    Frame1.forEach([](int, Frame& page) { page.Move(240, 2160); });
    setFixedClientSize(8745, 9165);
    currentTab_ = 1;
    worksetFolder_ = App::Path() + QStringLiteral("/projects/");
    for (int tab = 2; tab <= 4; ++tab) Frame1[tab].setVisible(false);
    loadWorksetTitles();
}

void FrmDemoCD::TabStrip1_Click() {
    const auto tab = static_cast<std::int16_t>(TabStrip1.SelectedItem());
    if (tab == currentTab_) return;
    Frame1[tab].setVisible(true);
    Frame1[currentTab_].setVisible(false);
    currentTab_ = tab;
}

void FrmDemoCD::comTitles_Click() {
    loadWorkset(worksetFolder_ + comTitles.Text() + QStringLiteral(".xon"));
    frmMessage.setVisible(false);
}

void FrmDemoCD::comTitles_LostFocus() {
    comTitles.setText(StrToDbStr(comTitles.Text()));
}

bool FrmDemoCD::chooseFile(const QString& filter) {
    CommonDialog1.setFilter(filter);
    CommonDialog1.setInitDir(QStringLiteral("c:\\"));
    CommonDialog1.ShowOpen();
    return !CommonDialog1.FileName().isEmpty();
}

void FrmDemoCD::cmdOpenSong_Click(int index) {
    if (!chooseFile(QStringLiteral("All Files (*.*)|*.*"))) return;
    if (!holdsOneOf(CommonDialog1.FileTitle(), {".mid", ".midi", ".wav", ".mp3"})) {
        MsgBox(QStringLiteral(
            "You can only select audio files with the following extensions; *.Mid, *.Midi, *.Wav, *.Mp3"));
        return;
    }
    lblPath[index].setCaption(CommonDialog1.FileTitle());
    txtPathLong[index].setText(CommonDialog1.FileName());
}

void FrmDemoCD::cmdOpenPhoto_Click(int index) {
    if (!chooseFile(QStringLiteral("Jpeg images (*.Jpg)|*.jpg|Gif Images (*.Gif)|*.Gif"))) return;
    if (!holdsOneOf(CommonDialog1.FileTitle(), {".gif", ".jpg"})) {
        MsgBox(QStringLiteral("You can only images with the following extensions: *.Jpeg, *.Gif"));
        return;
    }
    txtPhotoPath[index].setCaption(CommonDialog1.FileTitle());
    txtPhotoPathLong[index].setText(CommonDialog1.FileName());
}

void FrmDemoCD::cmdDeleteFile_Click(int index) {
    lblPath[index].setCaption(notSelected.toString());
    txtPathLong[index].setText(notSelected.toString());
    txtSongTitle[index].setText({});
}

void FrmDemoCD::cmdDeletePhoto_Click(int index) {
    txtPhotoPath[index].setCaption(notSelected.toString());
    txtPhotoPathLong[index].setText(notSelected.toString());
    txtPhotoDesc[index].setText({});
}

void FrmDemoCD::cmdDelete_Click() {
    const QString title = trimBlanks(comTitles.Text());
    if (title.isEmpty()) {
        MsgBox(QStringLiteral("Please select a 'Workset' before you click delete"));
        return;
    }
    if (isDemoWorkset()) {
        MsgBox(
            QStringLiteral("The 'Demo Workset' can not be deleted. You can use it as an example for other worksets."));
        return;
    }
    const QString question = QStringLiteral("Are you sure you want to delete this workset: \"") + title.toUpper() +
                             QStringLiteral("\" and all saved data?");
    if (MsgBox(question, vbYesNo, QStringLiteral("Delete")) != vbYes) return;
    frmComposer->deleteFile(App::Path() + QStringLiteral("/projects/") + comTitles.Text() + QStringLiteral(".xon"));
    MsgBox(QStringLiteral("Workset Deleted!"));
    loadWorksetTitles();
}

bool FrmDemoCD::isDemoWorkset() const {
    return trimBlanks(comTitles.Text()) == demoWorkset;
}

void FrmDemoCD::Label10_Click() {
    lblCDPath.setCaption(App::Path() +
                         (isDemoWorkset() ? QStringLiteral("/DemoCD_Example/") : QStringLiteral("/DemoCD/")));
    desktop().openExternally(lblCDPath.Caption());
}

void FrmDemoCD::lblwebURL_Click() {
    desktop().openExternally(App::Path() + (isDemoWorkset() ? QStringLiteral("/DemoCD_Example/index.htm")
                                                            : QStringLiteral("/DemoCD/index.htm")));
}

void FrmDemoCD::loadWorksetTitles() {
    comTitles.Clear();
    comTitles.setText(QStringLiteral("Enter new or select existing title..."));
    const QString folder = App::Path() + QStringLiteral("/projects/");
    std::vector<File> files;
    try {
        files = FileSystemObject().GetFolder(folder).Files();
    } catch (const RuntimeError&) {
        MsgBox(QStringLiteral("Invalid directory for workset files - ") + folder);
        return;
    }
    for (const File& file : files) {
        if (isWorksetFile(file.Name)) comTitles.AddItem(worksetTitle(file.Name));
        DoEvents();
    }
}

void FrmDemoCD::loadWorkset(const QString& path) {
    if (trimBlanks(comTitles.Text()).isEmpty()) return;
    showWorkset(readWorkset(path));
}

void FrmDemoCD::showWorkset(const Workset& workset) {
    txtName.setText(workset.artistName);
    txtAge.setText(workset.age);
    txtPostal.setText(workset.postal);
    txtEmail.setText(workset.email);
    txtPhone.setText(workset.phone);
    txtCountry.setText(workset.country);
    txtOwner.setText(workset.owner);
    txtCV.setText(workset.cv);
    for (int i = 1; i <= 3; ++i) {
        const WorksetSong& song = workset.songs.at(static_cast<std::size_t>(i - 1));
        txtSongTitle[i].setText(song.title);
        lblPath[i].setCaption(song.file.name);
        txtPathLong[i].setText(song.file.path);

        const WorksetPhoto& photo = workset.photos.at(static_cast<std::size_t>(i - 1));
        txtPhotoDesc[i].setText(photo.description);
        txtPhotoPath[i].setCaption(photo.file.name);
        txtPhotoPathLong[i].setText(photo.file.path);
    }
}

Workset FrmDemoCD::typedWorkset() const {
    Workset workset{.artistName = txtName.Text(),
                    .age = txtAge.Text(),
                    .postal = txtPostal.Text(),
                    .email = txtEmail.Text(),
                    .phone = txtPhone.Text(),
                    .country = txtCountry.Text(),
                    .owner = txtOwner.Text(),
                    .cv = txtCV.Text(),
                    .songs = {},
                    .photos = {}};
    for (int i = 1; i <= 3; ++i) {
        workset.songs.at(static_cast<std::size_t>(i - 1)) = {txtSongTitle[i].Text(),
                                                             {lblPath[i].Caption(), txtPathLong[i].Text()}};
        workset.photos.at(static_cast<std::size_t>(i - 1)) = {txtPhotoDesc[i].Text(),
                                                              {txtPhotoPath[i].Caption(), txtPhotoPathLong[i].Text()}};
    }
    return workset;
}

}  // namespace lyrebrook
