#include "dictionary/RhymeSearch.h"

#include <algorithm>

#include "platform/base/RuntimeError.h"
#include "platform/files/FileContent.h"
#include "platform/files/TextEncoding.h"

namespace lyrebrook {
namespace {

bool isAscii(QByteArrayView bytes) {
    return std::all_of(bytes.begin(), bytes.end(), [](char byte) { return static_cast<signed char>(byte) >= 0; });
}

char upper(char letter) {
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

bool isBlank(QByteArrayView line) {
    return std::all_of(line.begin(), line.end(), [](char byte) { return byte == ' '; });
}

/// The error that ends the program should say which file to look for.
QByteArray readWordList(const QString& path) {
    try {
        return readFile(path);
    } catch (const RuntimeError& error) {
        throw RuntimeError(static_cast<RuntimeErrorNumber>(error.number()),
                           error.description() + ": " + path.toStdString());
    }
}

}  // namespace

RhymeSearch::RhymeSearch(const QString& path, const QString& term)
    : content_(readWordList(path)), termLength_(term.size()), upperTerm_(term.toUpper()) {
    const QByteArray letters = term.toUtf8();
    if (isAscii(letters)) upperLetters_ = letters.toUpper();
}

RhymeSearch::Line RhymeSearch::readLine() {
    const RawLine raw = firstLine(QByteArrayView(content_).sliced(place_));
    place_ += raw.whole.size();

    Line line;
    line.isBlank = isBlank(raw.text);
    if (line.isBlank) return line;
    line.endsGroup = group_ == groupSize;
    if (line.endsGroup) group_ = 0;
    line.rhymes = rhymes(raw.text);
    if (line.rhymes) {
        line.word = decodeText(raw.text);
        ++group_;
        ++hits_;
    }
    return line;
}

/// Nearly all lines are told by their last bytes, without being made a text: a pass touches each word of a language.
bool RhymeSearch::rhymes(QByteArrayView line) const {
    const QByteArrayView end = line.last(std::min(line.size(), termLength_));
    if (upperLetters_.isEmpty() || !isAscii(end)) return rhymesAsText(decodeText(line));
    return std::equal(end.begin(), end.end(), upperLetters_.begin(), upperLetters_.end(),
                      [](char left, char right) { return upper(left) == right; });
}

bool RhymeSearch::rhymesAsText(const QString& line) const {
    return line.last(std::min(line.size(), termLength_)).toUpper() == upperTerm_;
}

}  // namespace lyrebrook
