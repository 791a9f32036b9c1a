#include "platform/help/HelpFile.h"

#include <QRegularExpression>
#include <QTextDocument>
#include <algorithm>

#include "platform/base/FileErrors.h"
#include "platform/files/TextStream.h"

namespace lyrebrook {
namespace {

QString withoutMarkup(const QString& markdown) {
    QTextDocument document;
    document.setMarkdown(markdown);
    return document.toPlainText();
}

HelpTopic apologyFor(const QString& path, const RuntimeError& error) {
    return {0,
            QStringLiteral("Help is not there"),
            QStringLiteral("The help file could not be read:\n\n    %1\n\n%2.\n")
                .arg(path, QString::fromStdString(error.description())),
            {}};
}

}  // namespace

HelpFile::HelpFile(const QString& path) {
    try {
        read(path);
    } catch (const RuntimeError& error) {
        topics_.assign(1, apologyFor(path, error));
    }
    for (HelpTopic& topic : topics_) topic.plainText = topic.title + u'\n' + withoutMarkup(topic.markdown);
}

void HelpFile::read(const QString& path) {
    static const QRegularExpression head(QStringLiteral("^=== (\\d+) (.+)$"));
    TextStream stream = TextStream::openForReading(path);
    while (!stream.AtEndOfStream()) {
        const QString line = stream.ReadLine();
        if (const auto match = head.match(line); match.hasMatch()) {
            topics_.push_back({match.captured(1).toInt(), match.captured(2), {}, {}});
        } else if (!topics_.empty()) {
            topics_.back().markdown += line + u'\n';
        }
    }
    if (topics_.empty()) throw fileError(RuntimeErrorNumber::pathFileAccess);
}

std::size_t HelpFile::placeOf(std::int32_t number) const {
    const auto topic = std::ranges::find(topics_, number, &HelpTopic::number);
    return topic == topics_.end() ? 0 : static_cast<std::size_t>(topic - topics_.begin());
}

QStringList searchWords(const QString& text) {
    return text.split(u' ', Qt::SkipEmptyParts);
}

bool holdsWords(const HelpTopic& topic, const QStringList& words) {
    return std::ranges::all_of(
        words, [&](const QString& word) { return topic.plainText.contains(word, Qt::CaseInsensitive); });
}

}  // namespace lyrebrook
