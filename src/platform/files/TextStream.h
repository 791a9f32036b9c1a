#pragma once

#include <QByteArray>
#include <QString>
#include <memory>

#include "platform/base/ReplacingFile.h"

namespace lyrebrook {

/// A text file opened for reading or for writing, line by line, in the product's 8-bit text.
///
/// Reading takes the whole file at the opening: what is written to the file afterwards doesn't show, and a file may be
/// replaced while it is being read. Writing collects the text and puts it in the old file's place at `Close`; a stream
/// that goes away without it leaves the old file as it was. Program's thread. Failures are RuntimeErrors as those of
/// `readFile` and of a ReplacingFile, and "Input past end of file".
class TextStream {
  public:
    static TextStream openForReading(const QString& path);
    static TextStream openForWriting(const QString& path, ReplacingFile::Flush flush = ReplacingFile::Flush::toDisk);

    bool AtEndOfStream() const;
    QString ReadLine();  ///< ends at CR LF, LF, a lone CR or the end of the file
    QString ReadAll();   ///< what is left, with its line ends as they are

    void Write(const QString& text);
    void WriteLine(const QString& text = {});  ///< with CR LF
    void Close();

  private:
    TextStream() = default;

    QByteArray content_;                     ///< read from the file, or waiting for `Close`
    qsizetype position_ = 0;                 ///< of the next line, in bytes
    std::unique_ptr<ReplacingFile> target_;  ///< only when writing
};

}  // namespace lyrebrook
