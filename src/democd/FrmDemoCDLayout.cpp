#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "democd/FrmDemoCD.h"

namespace lyrebrook {
namespace {

/// Maker of like controls, each inside the frame of its index.
template <class T, class... Args>
auto inside(const ControlArray<Frame>& frames, const Args&... args) {
    return [&frames, args...](int index) { return std::make_unique<T>(frames[index], args...); };
}

auto numberedFrames(QWidget* page, const QString& caption) {
    return [page, caption](int index) { return std::make_unique<Frame>(page, caption.arg(index)); };
}

ControlArray<TextBox>::Maker hiddenBoxes(const ControlArray<Frame>& frames) {
    return [&frames](int index) {
        auto box = std::make_unique<TextBox>(frames[index], notSelected.toString());
        box->setVisible(false);
        return box;
    };
}

struct Place {
    int row = 0;
    int column = 0;
    int columns = 1;    ///< that the box takes
    bool tall = false;  ///< the box has several lines, and its name stands at the first
};

constexpr int firstLine = 8;  ///< pixels from a box's edge to its text

/// A box with its name at its left, in a grid of such pairs.
void addField(QGridLayout& grid, Place place, const QString& name, Control& box) {
    auto* label = new QLabel(name);
    label->setBuddy(box);
    box.setAccessibleName(name);
    box.widget()->setMinimumWidth(60);  // a list of long titles must not widen the page
    if (place.tall) label->setContentsMargins(0, firstLine, 0, 0);
    grid.addWidget(label, place.row, place.column, place.tall ? Qt::AlignTop : Qt::Alignment());
    grid.addWidget(box, place.row, place.column + 1, 1, place.columns);
}

}  // namespace

FrmDemoCD::FrmDemoCD()
    : Form(QStringLiteral("Demo CD Wizard")),
      frmTop(content()),
      Label19(frmTop, QStringLiteral("Demo CD Wizard")),
      Label1(frmTop, QStringLiteral("Follow steps 1 to 3 to enter the information that will be displayed in your demo "
                                    "CD. Then click 'Save and Finalize' to create the website that can be copied to a "
                                    "CD.")),
      TabStrip1(content(), {QStringLiteral("Step 1: Create Project"), QStringLiteral("Step 2: Add Songs"),
                            QStringLiteral("Step 3: Add Photos"), QStringLiteral("Step 4: Save/Finalize")}),
      Frame1(1, 4, [this](int) { return std::make_unique<Frame>(content()); }),
      comTitles(Frame1[1]),
      txtName(Frame1[1]),
      txtAge(Frame1[1]),
      txtCountry(Frame1[1]),
      txtOwner(Frame1[1]),
      txtCV(Frame1[1], {}, Lines::multiple),
      txtEmail(Frame1[1]),
      txtPostal(Frame1[1], {}, Lines::multiple),
      txtPhone(Frame1[1]),
      Label13(Frame1[2], QStringLiteral("Enter a title and select an audio file for each song that must be included in "
                                        "the demo CD.")),
      fraSong(1, 3, numberedFrames(Frame1[2], QStringLiteral("Song %1"))),
      txtSongTitle(1, 3, inside<TextBox>(fraSong)),
      lblPath(1, 3, inside<Label>(fraSong, notSelected.toString())),
      cmdOpenSong(1, 3, inside<CommandButton>(fraSong, QStringLiteral("Get File"))),
      cmdDeleteFile(1, 3, inside<CommandButton>(fraSong, QStringLiteral("Remove"))),
      txtPathLong(1, 3, hiddenBoxes(fraSong)),
      Label27(Frame1[3], QStringLiteral("Select a file and add a short description for each photograph.")),
      fraPhoto(1, 3, numberedFrames(Frame1[3], QStringLiteral("Photo %1"))),
      txtPhotoPath(1, 3, inside<Label>(fraPhoto, notSelected.toString())),
      txtPhotoDesc(1, 3, inside<TextBox>(fraPhoto, QString(), Lines::multiple)),
      cmdOpenPhoto(1, 3, inside<CommandButton>(fraPhoto, QStringLiteral("Get File"))),
      cmdDeletePhoto(1, 3, inside<CommandButton>(fraPhoto, QStringLiteral("Remove"))),
      txtPhotoPathLong(1, 3, hiddenBoxes(fraPhoto)),
      cmdCreate(Frame1[4], QStringLiteral("Save and Finalize")),
      lblFeedback(Frame1[4], QStringLiteral("Creating CD content... please wait!")),
      frmMessage(Frame1[4], QStringLiteral("Congratulations!")),
      Label8(frmMessage, QStringLiteral("The content files for your CD has been created successfully!")),
      Label9(frmMessage, QStringLiteral("You can view the web pages by clicking on the following link:")),
      lblwebURL(frmMessage, QStringLiteral("Show me!")),
      Label11(frmMessage, QStringLiteral("Instructions")),
      Label17(frmMessage, QStringLiteral("To complete the CD you should now copy ALL the files in the following "
                                         "directory to the ROOT directory of your CD:")),
      lblCDPath(frmMessage, QStringLiteral("Directory here...")),
      Label10(frmMessage, QStringLiteral("(Click here to open folder)")),
      cmdDelete(content(), QStringLiteral("Delete workset")),
      cmdHelp(content(), QStringLiteral("Help")),
      cmdClose(content(), QStringLiteral("Close")) {
    comTitles.setToolTipText(QStringLiteral("Select an existing CD title or enter a new title."));
    txtOwner.setToolTipText(
        QStringLiteral("The person/s that owns copyright to the songs that will be included on the CD."));
    cmdDelete.setToolTipText(QStringLiteral("Delet the currently selected project"));
    layOut();
    connectHandlers();
}

void FrmDemoCD::layOut() {
    layOutTop();
    layOutProject();
    layOutPages();
    layOutEnd();
    Frame1.forEach([](int, Frame& page) {
        page.setLook(Look::page);
        page.setWidth(8265);
        page.setHeight(6330);
    });

    cmdDelete.setLook(Look::danger);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdDelete);
    buttons->addStretch(1);
    buttons->addWidget(cmdHelp);
    buttons->addWidget(cmdClose);
    auto* column = new QVBoxLayout(content());
    column->setContentsMargins(16, 0, 16, 9);
    column->addStretch(1);
    column->addLayout(buttons);
}

void FrmDemoCD::layOutTop() {
    Label19.setLook(Look::title);
    Label1.setLook(Look::hint);
    Label1.setWordWrap(true);
    auto* column = new QVBoxLayout(frmTop);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    column->addWidget(Label19);
    column->addWidget(Label1);
    column->addStretch(1);
    frmTop.setLook(Look::bare);
    frmTop.Move(240, 120, 8265, 1410);
    TabStrip1.Move(240, 1590, 8265, 570);
}

void FrmDemoCD::layOutProject() {
    auto* grid = new QGridLayout(Frame1[1]);
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(8);
    grid->setColumnStretch(1, 3);
    grid->setColumnStretch(3, 2);
    addField(*grid, {.row = 0, .columns = 3}, QStringLiteral("Workset Title"), comTitles);
    addField(*grid, {.row = 1}, QStringLiteral("Artist Name"), txtName);
    addField(*grid, {.row = 1, .column = 2}, QStringLiteral("Age"), txtAge);
    addField(*grid, {.row = 2}, QStringLiteral("Country"), txtCountry);
    addField(*grid, {.row = 2, .column = 2}, QStringLiteral("Copyright"), txtOwner);
    auto* cvLabel = new QLabel(QStringLiteral("CV Information (Background, Achievements, Gigs, Vision, etc)"));
    cvLabel->setBuddy(txtCV);
    txtCV.setAccessibleName(cvLabel->text());
    grid->addWidget(cvLabel, 3, 0, 1, 4);
    grid->addWidget(txtCV, 4, 0, 1, 4);
    addField(*grid, {.row = 5}, QStringLiteral("Email"), txtEmail);
    addField(*grid, {.row = 5, .column = 2}, QStringLiteral("Telephone"), txtPhone);
    addField(*grid, {.row = 6, .columns = 3, .tall = true}, QStringLiteral("Postal Address"), txtPostal);
    grid->setRowStretch(4, 3);
    grid->setRowStretch(6, 2);
}

void FrmDemoCD::layOutPages() {
    auto* songs = new QVBoxLayout(Frame1[2]);
    songs->setSpacing(14);
    Label13.setWordWrap(true);
    songs->addWidget(Label13);
    auto* photos = new QVBoxLayout(Frame1[3]);
    Label27.setWordWrap(true);
    photos->addWidget(Label27);
    for (int index = 1; index <= 3; ++index) {
        layOutSong(index);
        songs->addWidget(fraSong[index]);
        layOutPhoto(index);
        photos->addWidget(fraPhoto[index], 1);
    }
    songs->addStretch(1);
}

void FrmDemoCD::layOutSong(int index) {
    auto* grid = new QGridLayout(fraSong[index]);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setColumnStretch(1, 1);
    addField(*grid, {.row = 0, .columns = 3}, QStringLiteral("Title:"), txtSongTitle[index]);
    addField(*grid, {.row = 1}, QStringLiteral("Selected song:"), lblPath[index]);
    lblPath[index].setElided();
    grid->addWidget(cmdOpenSong[index], 1, 2);
    grid->addWidget(cmdDeleteFile[index], 1, 3);
}

void FrmDemoCD::layOutPhoto(int index) {
    auto* grid = new QGridLayout(fraPhoto[index]);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setColumnStretch(1, 1);
    addField(*grid, {.row = 0}, QStringLiteral("File name:"), txtPhotoPath[index]);
    txtPhotoPath[index].setElided();
    grid->addWidget(cmdOpenPhoto[index], 0, 2);
    grid->addWidget(cmdDeletePhoto[index], 0, 3);
    addField(*grid, {.row = 1, .columns = 3, .tall = true}, QStringLiteral("Description:"), txtPhotoDesc[index]);
}

void FrmDemoCD::layOutEnd() {
    layOutMessage();
    cmdCreate.setLook(Look::primary);
    cmdCreate.widget()->setMinimumSize(200, 42);
    lblFeedback.setLook(Look::heading);
    lblFeedback.setAlignment(Qt::AlignCenter);
    lblFeedback.setVisible(false);
    frmMessage.setVisible(false);
    auto* column = new QVBoxLayout(Frame1[4]);
    column->setContentsMargins(16, 16, 16, 8);
    column->setSpacing(14);
    column->addWidget(cmdCreate, 0, Qt::AlignHCenter);
    column->addWidget(lblFeedback);
    column->addWidget(frmMessage);
    column->addStretch(1);
}

void FrmDemoCD::layOutMessage() {
    Label8.setLook(Look::heading);
    Label11.setLook(Look::heading);
    lblwebURL.makeLink();
    Label10.makeLink();
    lblCDPath.setElided();
    auto* column = new QVBoxLayout(frmMessage);
    column->setSpacing(8);
    for (Label* line : {&Label8, &Label9, &lblwebURL, &Label11, &Label17, &lblCDPath, &Label10}) {
        const bool link = line == &lblwebURL || line == &Label10;
        line->setWordWrap(!link && line != &lblCDPath);
        if (line == &Label11) column->addSpacing(12);
        column->addWidget(*line, 0, link ? Qt::AlignLeft : Qt::Alignment());
    }
}

}  // namespace lyrebrook
