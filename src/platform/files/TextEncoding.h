#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace lyrebrook {

/// The product's 8-bit text. It is written as UTF-8. A piece that is not valid UTF-8 is read as Windows-1252, so that
/// files made on older machines keep their accents; give whole lines, for a file may hold both kinds. A byte order mark
/// at the start is not part of the text, NUL is a character like any other.
QString decodeText(QByteArrayView bytes);
QByteArray encodeText(const QString& text);

/// A line without and with what ends it: CR LF, LF, a lone CR, or nothing at the end of the file.
struct RawLine {
    QByteArrayView text;
    QByteArrayView whole;
};

/// The first line of `bytes`, which must not be empty.
RawLine firstLine(QByteArrayView bytes);

}  // namespace lyrebrook
