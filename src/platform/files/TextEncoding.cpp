#include "platform/files/TextEncoding.h"

#include <algorithm>
#include <array>

#include "platform/base/Check.h"

namespace lyrebrook {
namespace {

// The half of a row in which Windows-1252 differs from Latin-1. Its five gaps stand for the control of the same number.
constexpr std::array<char16_t, 32> from80To9F = {
    u'\u20AC', 0x81,      u'\u201A', u'\u0192', u'\u201E', u'\u2026', u'\u2020', u'\u2021',
    u'\u02C6', u'\u2030', u'\u0160', u'\u2039', u'\u0152', 0x8D,      u'\u017D', 0x8F,
    0x90,      u'\u2018', u'\u2019', u'\u201C', u'\u201D', u'\u2022', u'\u2013', u'\u2014',
    u'\u02DC', u'\u2122', u'\u0161', u'\u203A', u'\u0153', 0x9D,      u'\u017E', u'\u0178'};

QString decodeWindows1252(QByteArrayView bytes) {
    QString text = QString::fromLatin1(bytes);
    for (QChar& character : text) {
        const std::size_t place = static_cast<std::size_t>(character.unicode()) - 0x80;
        if (place < from80To9F.size()) character = from80To9F.at(place);
    }
    return text;
}

}  // namespace

QString decodeText(QByteArrayView bytes) {
    return bytes.isValidUtf8() ? QString::fromUtf8(bytes) : decodeWindows1252(bytes);
}

QByteArray encodeText(const QString& text) {
    return text.toUtf8();
}

RawLine firstLine(QByteArrayView bytes) {
    CHECK(!bytes.isEmpty());
    const auto end = std::find_if(bytes.begin(), bytes.end(), [](char byte) { return byte == '\r' || byte == '\n'; });
    const qsizetype length = end - bytes.begin();
    const bool isPair = bytes.sliced(length).startsWith("\r\n");
    return {bytes.first(length), bytes.first(std::min(bytes.size(), length + (isPair ? 2 : 1)))};
}

}  // namespace lyrebrook
