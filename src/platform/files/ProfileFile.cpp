#include "platform/files/ProfileFile.h"

#include <QByteArray>
#include <QFileInfo>
#include <optional>
#include <utility>
#include <vector>

#include "platform/base/Check.h"
#include "platform/base/RuntimeError.h"
#include "platform/files/FileContent.h"
#include "platform/files/TextEncoding.h"

namespace lyrebrook {
namespace {

constexpr char lineEnd[] = "\r\n";

bool sameName(QStringView left, QStringView right) {
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

QStringView withoutBlanks(QStringView text) {
    const auto isBlank = [](QChar character) { return character == u' ' || character == u'\t'; };
    while (!text.isEmpty() && isBlank(text.front())) text = text.sliced(1);
    while (!text.isEmpty() && isBlank(text.back())) text.chop(1);
    return text;
}

QStringView withoutQuotes(QStringView text) {
    if (text.size() < 2 || text.front() != text.back()) return text;
    return text.front() == u'"' || text.front() == u'\'' ? text.sliced(1, text.size() - 2) : text;
}

/// One line of a profile file: its bytes, and what it says, if anything.
struct ProfileLine {
    explicit ProfileLine(const RawLine& raw);

    QByteArrayView whole;
    std::optional<QString> section;
    std::optional<QString> key;
    QString value;
    QByteArrayView keyBytes;  ///< the key as the file spells it, with the blanks around it
};

ProfileLine::ProfileLine(const RawLine& raw) : whole(raw.whole) {
    const QString text = decodeText(raw.text);
    const QStringView line = withoutBlanks(text);
    if (line.startsWith(u';')) return;
    if (line.startsWith(u'[')) {
        const qsizetype end = line.indexOf(u']');
        if (end > 0) section = withoutBlanks(line.sliced(1, end - 1)).toString();
        return;
    }
    const qsizetype equals = line.indexOf(u'=');
    if (equals < 0) return;
    key = withoutBlanks(line.first(equals)).toString();
    value = withoutQuotes(withoutBlanks(line.sliced(equals + 1))).toString();
    keyBytes = raw.text.first(raw.text.indexOf('='));
}

/// A profile file taken apart. The lines point into the bytes that it was made from.
class Profile {
  public:
    explicit Profile(QByteArrayView bytes);

    const ProfileLine* find(const QString& section, const QString& key) const;
    QByteArray with(const QString& section, const QString& key, const QString& value) const;

  private:
    std::size_t firstLineOf(const QString& section) const;
    std::size_t lineOf(std::size_t firstLine, const QString& key) const;
    std::size_t endOf(std::size_t firstLine) const;
    bool isBlank(std::size_t line) const { return lines_[line].whole.trimmed().isEmpty(); }
    QByteArray spliced(std::size_t from, std::size_t to, const QByteArray& replacement) const;

    std::vector<ProfileLine> lines_;
};

Profile::Profile(QByteArrayView bytes) {
    while (!bytes.isEmpty()) {
        const RawLine raw = firstLine(bytes);
        lines_.emplace_back(raw);
        bytes = bytes.sliced(raw.whole.size());
    }
}

/// The line behind the section's head; one past the last line plus one when there is no such section.
std::size_t Profile::firstLineOf(const QString& section) const {
    std::size_t line = 0;
    while (line < lines_.size() && !(lines_[line].section && sameName(*lines_[line].section, section))) ++line;
    return line + 1;
}

/// The key's line in the section that begins at `firstLine`, or the section's end.
std::size_t Profile::lineOf(std::size_t firstLine, const QString& key) const {
    std::size_t line = firstLine;
    while (line < lines_.size() && !lines_[line].section && !(lines_[line].key && sameName(*lines_[line].key, key))) {
        ++line;
    }
    return line;
}

/// The line behind the last one of the section that isn't blank: where a new key goes.
std::size_t Profile::endOf(std::size_t firstLine) const {
    std::size_t end = firstLine;
    while (end < lines_.size() && !lines_[end].section) ++end;
    while (end > firstLine && isBlank(end - 1)) --end;
    return end;
}

const ProfileLine* Profile::find(const QString& section, const QString& key) const {
    const std::size_t line = lineOf(firstLineOf(section), key);
    return line < lines_.size() && lines_[line].key ? &lines_[line] : nullptr;
}

QByteArray Profile::with(const QString& section, const QString& key, const QString& value) const {
    const QByteArray newLine = '=' + encodeText(value) + lineEnd;
    const std::size_t first = firstLineOf(section);
    if (first > lines_.size()) {
        return spliced(lines_.size(), lines_.size(),
                       '[' + encodeText(section) + ']' + lineEnd + encodeText(key) + newLine);
    }
    if (const ProfileLine* old = find(section, key)) {
        const std::size_t line = static_cast<std::size_t>(old - lines_.data());
        return spliced(line, line + 1, old->keyBytes.toByteArray() + newLine);
    }
    return spliced(endOf(first), endOf(first), encodeText(key) + newLine);
}

QByteArray Profile::spliced(std::size_t from, std::size_t to, const QByteArray& replacement) const {
    QByteArray bytes;
    for (std::size_t line = 0; line < from; ++line) bytes += lines_[line].whole;
    if (!bytes.isEmpty() && !bytes.endsWith('\n') && !bytes.endsWith('\r')) bytes += lineEnd;
    bytes += replacement;
    for (std::size_t line = to; line < lines_.size(); ++line) bytes += lines_[line].whole;
    return bytes;
}

QString onOneLine(QString value) {
    value.replace(QStringLiteral("\r\n"), QStringLiteral(" ")).replace(u'\r', u' ').replace(u'\n', u' ');
    return value.left(value.indexOf(QChar(0)));
}

/// What a ProfileTransaction holds back. No content while nothing was changed.
struct HeldFile {
    QString file;
    std::optional<QByteArray> content;
};
std::optional<HeldFile> held;

bool isHeld(const QString& file) {
    return held && held->file == file;
}

QByteArray contentOf(const QString& file) {
    if (isHeld(file) && held->content) return *held->content;
    return QFileInfo::exists(file) ? readFile(file) : QByteArray();
}

bool replaced(const QString& file, const QByteArray& content, ReplacingFile::Flush flush) {
    try {
        replaceFile(file, content, flush);
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

}  // namespace

QString GetPrivateProfileString(const QString& section, const QString& key, const QString& defaultValue, int maxChars,
                                const QString& file) {
    try {
        const QByteArray bytes = contentOf(file);
        const Profile profile(bytes);
        const ProfileLine* line = profile.find(section, key);
        return (line ? line->value : defaultValue).left(maxChars - 1);
    } catch (const RuntimeError&) {
        return defaultValue.left(maxChars - 1);
    }
}

bool WritePrivateProfileString(const QString& section, const QString& key, const QString& value, const QString& file,
                               ReplacingFile::Flush flush) {
    try {
        const QByteArray old = contentOf(file);
        const QByteArray updated = Profile(old).with(section, key, onOneLine(value));
        if (updated == old) return true;
        if (!isHeld(file)) return replaced(file, updated, flush);
        held->content = updated;
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

ProfileTransaction::ProfileTransaction(const QString& file) {
    CHECK(!held);
    held = HeldFile{file, {}};
}

ProfileTransaction::~ProfileTransaction() {
    const HeldFile writes = *std::exchange(held, std::nullopt);
    if (writes.content) replaced(writes.file, *writes.content, ReplacingFile::Flush::toDisk);
}

}  // namespace lyrebrook
