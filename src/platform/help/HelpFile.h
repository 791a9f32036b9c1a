#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <vector>

namespace lyrebrook {

struct HelpTopic {
    std::int32_t number = 0;
    QString title;
    QString markdown;
    QString plainText;  ///< title and body as they are read, for the search
};

/// The help file's topics in their order. A topic begins with a line "=== number title" and goes on, in Markdown, to
/// the next such line; links to other topics are written "topic:number". What stands before the first topic is a note
/// to the file's authors. A file that is missing, can't be read or holds no topic gives one topic that says so: a
/// person who asked for help must not be left without an answer.
class HelpFile {
  public:
    explicit HelpFile(const QString& path);

    const std::vector<HelpTopic>& topics() const { return topics_; }

    /// Place of the topic with this number; the first topic's when there is none.
    std::size_t placeOf(std::int32_t number) const;

  private:
    void read(const QString& path);

    std::vector<HelpTopic> topics_;
};

/// The words of a search; blanks part them.
QStringList searchWords(const QString& text);

/// Whether the topic holds every word, in any case, also as a part of a longer word.
bool holdsWords(const HelpTopic& topic, const QStringList& words);

}  // namespace lyrebrook
