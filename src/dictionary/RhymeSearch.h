#pragma once

#include <QByteArray>
#include <QString>
#include <cstdint>

namespace lyrebrook {

/// One pass through a word list for the lines that end in a term, whatever its case. The caller takes it line by line,
/// so that events can run in between; searches may be nested, each with its own place and counts.
///
/// The file is read whole at the making: RuntimeErrors as those of `readFile`, which here name the file. Program's
/// thread.
class RhymeSearch {
  public:
    struct Line {
        bool isBlank = false;    ///< skipped: neither compared nor counted
        bool endsGroup = false;  ///< five hits stand since the last gap, so a gap comes first, hit or not
        bool rhymes = false;
        QString word;  ///< of a rhyme: the whole line in the file's own case
    };

    RhymeSearch(const QString& path, const QString& term);

    /// Until the end of the file or the 200th hit.
    bool goesOn() const { return place_ < content_.size() && hits_ < mostHits; }
    Line readLine();

  private:
    static constexpr std::int16_t mostHits = 200;
    static constexpr std::int16_t groupSize = 5;

    bool rhymes(QByteArrayView line) const;
    bool rhymesAsText(const QString& line) const;

    QByteArray content_;
    qsizetype place_ = 0;  ///< of the next line, in bytes
    qsizetype termLength_;
    QString upperTerm_;
    QByteArray upperLetters_;  ///< the same for the lines that are plain ASCII at their end, empty when it isn't itself
    std::int16_t group_ = 0;
    std::int16_t hits_ = 0;
};

}  // namespace lyrebrook
