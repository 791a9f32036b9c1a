#include <QHBoxLayout>
#include <QHelpEvent>
#include <QStyledItemDelegate>
#include <QTextDocument>
#include <QToolTip>
#include <QVBoxLayout>

#include "backtrack/FrmSelect.h"
#include "platform/forms/ListView.h"

namespace lyrebrook {
namespace {

/// A list's entry in one line: a name that is too wide loses its middle, and its tool tip tells it whole. What no path
/// can be, such as a line of megabytes from some other file, is cut before the fonts have to measure it.
class EntryDelegate final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant& value, const QLocale&) const override { return cut(value.toString(), 200); }

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override {
        const bool fits = sizeHint(option, index).width() <= view->visualRect(index).width();
        if (event->type() != QEvent::ToolTip || fits) return false;  // the list's own tool tip will do
        const QString entry = cut(index.data().toString(), 1000);
        QToolTip::showText(event->globalPos(), Qt::convertFromPlainText(entry), view, view->visualRect(index));
        return true;
    }

  private:
    static QString cut(const QString& text, qsizetype charactersOfAnEnd) {
        if (text.size() <= 2 * charactersOfAnEnd) return text;
        return text.first(charactersOfAnEnd) + u'\u2026' + text.last(charactersOfAnEnd);
    }
};

void showEntriesInOneLine(ListBox& list) {
    auto& view = static_cast<ListView&>(*list.widget());
    view.setItemDelegate(new EntryDelegate(&view));
    view.setTextElideMode(Qt::ElideMiddle);
    view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

}  // namespace

FrmSelect::FrmSelect()
    : Form(QStringLiteral("Select Song")),
      Frame1(content(), QStringLiteral("Step 1")),
      Label5(Frame1, QStringLiteral("Navigate to the directory where backtrack files are stored. Click 'Add to "
                                    "playlist' to add all files in the selected directory to the playlist.")),
      Drive1(Frame1),
      TxtPath(Frame1),
      Dir1(Frame1),
      File1(Frame1),
      CmdAdd(Frame1, QStringLiteral("ADD TO PLAYLIST")),
      Frame2(content(), QStringLiteral("Step 2")),
      Label4(Frame2, QStringLiteral("No title selected")),
      Label8(Frame2,
             QStringLiteral("Select a file in the playlist below that will be the backtrack for your new song.")),
      Label2(Frame2, QStringLiteral("Playlist")),
      lblfeedback(Frame2),
      List1(Frame2),
      CmdOpen(Frame2, QStringLiteral("OPEN")),
      CmdSave(Frame2, QStringLiteral("SAVE")),
      CmdDelete(Frame2, QStringLiteral("DELETE")),
      CmdClear(Frame2, QStringLiteral("CLEAR")),
      cmdListen(content(), QStringLiteral("Listen")),
      cmdStop(content(), QStringLiteral("Stop")),
      cmdMixer(content(), QStringLiteral("Adjust Volume Levels")),
      cmdHelp(content(), QStringLiteral("Help")),
      btnEnd(content(), QStringLiteral("Close")),
      mnuPL(*this, QStringLiteral("Play List")),
      mnuOpen(mnuPL, QStringLiteral("Open Play List")),
      mnuSave(mnuPL, QStringLiteral("Save Play List")) {
    File1.setPattern(QStringLiteral("*.Wav;*.mid;*.MID;*.Mid;*.WAV;*.Wav"));
    for (CommandButton* button : {&CmdAdd, &CmdSave, &CmdDelete, &CmdClear}) button->setEnabled(false);
    mnuSave.setEnabled(false);
    mnuOpen.setShortcut(QKeySequence::Open);
    mnuSave.setShortcut(QKeySequence::Save);
    layOut();
    connectHandlers();
}

void FrmSelect::layOut() {
    Frame1.widget()->setLayout(layOutBrowser());
    Frame2.widget()->setLayout(layOutPlaylist());
    cmdListen.setLook(Look::primary);

    auto* frames = new QHBoxLayout;
    frames->setSpacing(16);
    frames->addWidget(Frame1, 4);
    frames->addWidget(Frame2, 5);

    auto* buttons = new QHBoxLayout;
    for (CommandButton* button : {&cmdListen, &cmdStop}) {
        button->widget()->setMinimumWidth(110);
        buttons->addWidget(*button);
    }
    buttons->addStretch(1);
    for (CommandButton* button : {&cmdMixer, &cmdHelp, &btnEnd}) buttons->addWidget(*button);

    auto* column = new QVBoxLayout(content());
    column->setContentsMargins(20, 14, 20, 18);
    column->setSpacing(14);
    column->addLayout(frames, 1);
    column->addLayout(buttons);
    window().setMinimumSize(800, 540);  // a wrapped label asks for less than it needs
    window().resize(960, 600);
}

QVBoxLayout* FrmSelect::layOutBrowser() {
    Label5.setWordWrap(true);
    Label5.setLook(Look::hint);
    Drive1.setAccessibleName(QStringLiteral("Places"));
    TxtPath.setAccessibleName(QStringLiteral("Folder"));
    Dir1.setToolTipText(QStringLiteral("Directory window"));
    Dir1.setAccessibleName(QStringLiteral("Directory window"));
    File1.setToolTipText(QStringLiteral("File window"));
    File1.setAccessibleName(QStringLiteral("File window"));
    static_cast<ListView&>(*File1.widget()).enterOpens = true;  // the keyboard's double click
    showEntriesInOneLine(File1);
    for (QWidget* list : {Dir1.widget(), File1.widget()}) list->setMinimumHeight(100);

    auto* column = new QVBoxLayout;
    column->setSpacing(8);
    column->addWidget(Label5);
    column->addWidget(Drive1);
    column->addWidget(TxtPath);
    column->addWidget(Dir1, 1);
    column->addWidget(File1, 1);
    column->addWidget(CmdAdd);
    return column;
}

QVBoxLayout* FrmSelect::layOutPlaylist() {
    Label4.setLook(Look::heading);
    Label4.widget()->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);  // no title makes the window wider
    Label8.setWordWrap(true);
    Label8.setLook(Look::hint);
    lblfeedback.setForeColor(red);
    lblfeedback.setAlignment(Qt::AlignRight);
    List1.setToolTipText(QStringLiteral("Playlist window"));
    List1.setAccessibleName(QStringLiteral("Playlist window"));
    showEntriesInOneLine(List1);

    auto* caption = new QHBoxLayout;
    caption->addWidget(Label2);
    caption->addWidget(lblfeedback, 1);
    auto* buttons = new QHBoxLayout;
    for (CommandButton* button : {&CmdOpen, &CmdSave, &CmdDelete, &CmdClear}) buttons->addWidget(*button, 1);
    auto* column = new QVBoxLayout;
    column->setSpacing(8);
    column->addWidget(Label4);
    column->addWidget(Label8);
    column->addLayout(caption);
    column->addWidget(List1, 1);
    column->addLayout(buttons);
    return column;
}

}  // namespace lyrebrook
