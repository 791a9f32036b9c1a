#include "platform/files/TextStream.h"

#include <utility>

#include "platform/base/Check.h"
#include "platform/base/FileErrors.h"
#include "platform/files/FileContent.h"
#include "platform/files/TextEncoding.h"

namespace lyrebrook {

TextStream TextStream::openForReading(const QString& path) {
    TextStream stream;
    stream.content_ = readFile(path);
    return stream;
}

TextStream TextStream::openForWriting(const QString& path, ReplacingFile::Flush flush) {
    TextStream stream;
    stream.target_ = std::make_unique<ReplacingFile>(nativePath(path), flush);
    return stream;
}

bool TextStream::AtEndOfStream() const {
    return position_ == content_.size();
}

QString TextStream::ReadLine() {
    CHECK(!target_);
    if (AtEndOfStream()) throw fileError(RuntimeErrorNumber::inputPastEndOfFile);
    const RawLine line = firstLine(QByteArrayView(content_).sliced(position_));
    position_ += line.whole.size();
    return decodeText(line.text);
}

QString TextStream::ReadAll() {
    CHECK(!target_);
    if (AtEndOfStream()) throw fileError(RuntimeErrorNumber::inputPastEndOfFile);
    QString text;
    while (!AtEndOfStream()) {
        const RawLine line = firstLine(QByteArrayView(content_).sliced(position_));
        position_ += line.whole.size();
        text += decodeText(line.whole);
    }
    return text;
}

void TextStream::Write(const QString& text) {
    CHECK(target_);
    content_ += encodeText(text);
}

void TextStream::WriteLine(const QString& text) {
    Write(text);
    Write(QStringLiteral("\r\n"));
}

void TextStream::Close() {
    const QByteArray content = std::exchange(content_, {});
    position_ = 0;
    const auto target = std::exchange(target_, nullptr);
    if (!target) return;
    target->write(std::as_bytes(std::span(content.data(), static_cast<std::size_t>(content.size()))));
    target->commit();
}

}  // namespace lyrebrook
