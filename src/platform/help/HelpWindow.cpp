#include "platform/help/HelpWindow.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QShortcut>
#include <QSplitter>
#include <QTextBrowser>
#include <QTextCursor>
#include <QTextDocument>
#include <QUrl>
#include <QVBoxLayout>
#include <initializer_list>

namespace lyrebrook {
namespace {

constexpr auto topicScheme = "topic";

QString asSentence(int topics) {
    if (topics == 0) return QStringLiteral("No topic holds these words.");
    return topics == 1 ? QStringLiteral("1 topic found.") : QStringLiteral("%1 topics found.").arg(topics);
}

}  // namespace

HelpWindow::HelpWindow(const HelpFile& help)
    : help_(help),
      search_(new QLineEdit(this)),
      contents_(new QListWidget(this)),
      found_(new QLabel(this)),
      text_(new QTextBrowser(this)) {
    setWindowTitle(QStringLiteral("Lyrebrook Help"));
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);
    createText();
    auto* halves = new QSplitter(this);
    halves->addWidget(createContents());
    halves->addWidget(text_);
    halves->setStretchFactor(1, 1);
    halves->setChildrenCollapsible(false);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(halves);
    resize(fontMetrics().averageCharWidth() * 120, fontMetrics().lineSpacing() * 36);
    connectSignals();
    open(help);
}

QWidget* HelpWindow::createContents() {
    search_->setObjectName(QStringLiteral("helpSearch"));
    search_->setPlaceholderText(QStringLiteral("Search all topics"));
    search_->setToolTip(QStringLiteral("Shows the topics that hold all of these words (Ctrl+F)"));
    search_->setClearButtonEnabled(true);
    contents_->setObjectName(QStringLiteral("helpContents"));
    auto* searchLabel = new QLabel(QStringLiteral("&Search"));
    searchLabel->setBuddy(search_);
    auto* contentsLabel = new QLabel(QStringLiteral("&Contents"));
    contentsLabel->setBuddy(contents_);
    found_->setObjectName(QStringLiteral("helpFound"));
    auto* side = new QWidget(this);
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    for (QWidget* part : std::initializer_list<QWidget*>{searchLabel, search_, found_, contentsLabel, contents_}) {
        column->addWidget(part);
    }
    return side;
}

void HelpWindow::createText() {
    text_->setObjectName(QStringLiteral("helpText"));
    text_->setAccessibleName(QStringLiteral("Help text"));
    text_->setOpenLinks(false);
    text_->setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
    text_->document()->setDocumentMargin(fontMetrics().lineSpacing());
}

void HelpWindow::connectSignals() {
    connect(search_, &QLineEdit::textChanged, this, &HelpWindow::search);
    connect(search_, &QLineEdit::returnPressed, contents_, [this] { contents_->setFocus(); });
    connect(contents_, &QListWidget::currentRowChanged, this, &HelpWindow::showSelected);
    connect(contents_, &QListWidget::itemActivated, text_, [this] { text_->setFocus(); });
    connect(text_, &QTextBrowser::anchorClicked, this, &HelpWindow::followLink);
    const auto* find = new QShortcut(QKeySequence::Find, this);
    connect(find, &QShortcut::activated, search_, [this] {
        search_->setFocus();
        search_->selectAll();
    });
}

void HelpWindow::open(const HelpFile& help) {
    help_ = help;
    contents_->clear();
    for (const HelpTopic& topic : help_.topics()) contents_->addItem(topic.title);
    search_->clear();
    found_->clear();
}

void HelpWindow::showContents() {
    select(0);
    contents_->setFocus();
}

void HelpWindow::showTopic(std::int32_t number) {
    select(help_.placeOf(number));
    text_->setFocus();
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) return QWidget::keyPressEvent(event);
    if (search_->text().isEmpty()) {
        close();
    } else {
        search_->clear();
    }
}

void HelpWindow::select(std::size_t place) {
    contents_->setCurrentRow(static_cast<int>(place));
    showSelected();
}

void HelpWindow::showSelected() {
    if (contents_->currentRow() < 0) return text_->clear();
    const HelpTopic& topic = help_.topics().at(static_cast<std::size_t>(contents_->currentRow()));
    text_->setMarkdown(QStringLiteral("# ") + topic.title + QStringLiteral("\n\n") + topic.markdown);
    markWords();
}

void HelpWindow::search() {
    const QStringList words = searchWords(search_->text());
    const int topics = hideTopicsWithout(words);
    found_->setText(words.isEmpty() ? QString() : asSentence(topics));
    const QListWidgetItem* current = contents_->currentItem();
    if (!current || current->isHidden()) {
        int first = 0;
        while (first < contents_->count() && contents_->item(first)->isHidden()) ++first;
        contents_->setCurrentRow(first < contents_->count() ? first : -1);
    }
    markWords();
}

/// Returns how many topics remain.
int HelpWindow::hideTopicsWithout(const QStringList& words) {
    int remaining = 0;
    for (int row = 0; row < contents_->count(); ++row) {
        const bool holds = holdsWords(help_.topics().at(static_cast<std::size_t>(row)), words);
        contents_->item(row)->setHidden(!holds);
        if (holds) ++remaining;
    }
    return remaining;
}

/// Colours every place of the words searched for and brings the first of them into sight.
void HelpWindow::markWords() {
    QList<QTextEdit::ExtraSelection> marks;
    for (const QString& word : searchWords(search_->text())) {
        QTextCursor place = text_->document()->find(word);
        for (; !place.isNull(); place = text_->document()->find(word, place)) {
            QTextCharFormat format;
            format.setBackground(palette().highlight());
            format.setForeground(palette().highlightedText());
            marks.push_back({place, format});
        }
    }
    text_->setExtraSelections(marks);
    if (marks.isEmpty()) return;
    QTextCursor first = marks.front().cursor;
    first.clearSelection();
    text_->setTextCursor(first);
}

void HelpWindow::followLink(const QUrl& link) {
    if (link.scheme() != QLatin1String(topicScheme)) return;
    search_->clear();
    showTopic(link.path().toInt());
}

}  // namespace lyrebrook
