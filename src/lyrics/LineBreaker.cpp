#include "lyrics/LineBreaker.h"

#include <QTextBoundaryFinder>
#include <algorithm>
#include <optional>

namespace lyrebrook {
namespace {

/// Place behind the next blank that a line may break at, from a place on; one behind the end when there is none. A tab
/// counts only when a space lies behind it.
qsizetype behindNextBlank(QStringView paragraph, qsizetype from) {
    const qsizetype space = paragraph.indexOf(u' ', from);
    if (space < 0) return paragraph.size() + 1;
    const qsizetype tab = paragraph.first(space).indexOf(u'\t', from);
    return (tab < 0 ? space : tab) + 1;
}

/// Which beginnings of a paragraph are too wide for a line. To measure each of them would take minutes for a book
/// without line ends; but a longer one is never narrower, so few tell of all.
class Beginnings {
  public:
    Beginnings(QStringView text, const Printer& printer, Twips width)
        : text_(text), printer_(printer), width_(static_cast<float>(width)), tooWide_(text.size() + 1) {
        constexpr qsizetype aboutALine = 64;
        for (qsizetype length = aboutALine; !isTooWide(std::min(length, text.size())) && length < text.size();
             length *= 2)
            continue;
        // The rest in doubt are measured one by one, each where a character ends.
        constexpr qsizetype few = 8;
        while (tooWide_ - fits_ > few) isTooWide((fits_ + tooWide_) / 2);
    }

    bool isTooWide(qsizetype length) {
        if (length <= fits_) return false;
        if (length >= tooWide_) return true;
        const bool wider = static_cast<float>(printer_.TextWidth(text_.first(length).toString())) > width_;
        (wider ? tooWide_ : fits_) = length;
        return wider;
    }

    /// The text as far as it matters: beyond lies nothing but what is too wide by far.
    QStringView reach() const { return text_.first(std::min(text_.size(), tooWide_ * 2)); }

  private:
    QStringView text_;
    const Printer& printer_;
    float width_;
    qsizetype fits_ = 0;
    qsizetype tooWide_;
};

/// Where a line ends, and where the next one begins.
struct Break {
    qsizetype end = 0;
    qsizetype rest = 0;
};

/// Nothing when not even the first word fits.
std::optional<Break> breakAtBlank(QStringView paragraph, Beginnings& beginnings) {
    std::optional<Break> last;
    qsizetype behind = 0;
    do {
        behind = behindNextBlank(paragraph, behind);
        if (beginnings.isTooWide(behind - 1)) return last;
        last = {.end = behind, .rest = behind - 1};
    } while (behind <= paragraph.size());
    return Break{.end = paragraph.size(), .rest = paragraph.size()};
}

/// A character is what a reader takes for one: a letter isn't torn from its marks, nor a sign in two. A single one is
/// the answer when all but the last fit, or when none does.
Break breakInsideWord(QStringView paragraph, Beginnings& beginnings) {
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, paragraph);
    const qsizetype first = characters.toNextBoundary();
    qsizetype before = 0;
    for (qsizetype end = first; end < paragraph.size(); end = characters.toNextBoundary()) {
        if (beginnings.isTooWide(end)) return {.end = end, .rest = before};
        before = end;
    }
    return {.end = first, .rest = 0};
}

}  // namespace

QStringView LineBreaker::takeLine(QStringView& paragraph) const {
    // No sheet is wider; the rest of a long paragraph isn't looked at again for each of its lines.
    constexpr qsizetype mostCharacters = 5000;
    const QStringView front = paragraph.first(std::min(paragraph.size(), mostCharacters));
    Beginnings beginnings(front, printer_, width_);
    const auto atBlank = breakAtBlank(front, beginnings);
    const Break place = atBlank ? *atBlank : breakInsideWord(beginnings.reach(), beginnings);
    const QStringView line = paragraph.first(place.end);
    // What begins where the paragraph did would never come to its end.
    paragraph = paragraph.sliced(place.rest > 0 ? place.rest : place.end);
    while (paragraph.startsWith(u' ')) paragraph = paragraph.sliced(1);
    return line;
}

}  // namespace lyrebrook
