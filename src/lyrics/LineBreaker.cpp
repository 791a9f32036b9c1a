#include "lyrics/LineBreaker.h"

#include <QTextBoundaryFinder>
#include <algorithm>

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

}  // namespace

QStringView LineBreaker::takeLine(QStringView& paragraph) const {
    // No sheet is wider; the rest of a long paragraph isn't looked at again for each of its lines.
    constexpr qsizetype mostCharacters = 5000;
    const QStringView reach = paragraph.first(std::min(paragraph.size(), mostCharacters));
    const auto atBlank = breakAtBlank(reach);
    const Break place = atBlank ? *atBlank : breakInsideWord(reach);
    const QStringView line = paragraph.first(place.end);
    // What begins where the paragraph did would never come to its end.
    paragraph = paragraph.sliced(place.rest > 0 ? place.rest : place.end);
    while (paragraph.startsWith(u' ')) paragraph = paragraph.sliced(1);
    return line;
}

/// Nothing when not even the first word fits.
std::optional<LineBreaker::Break> LineBreaker::breakAtBlank(QStringView paragraph) const {
    std::optional<Break> last;
    qsizetype behind = 0;
    do {
        behind = behindNextBlank(paragraph, behind);
        if (isTooWide(paragraph.first(behind - 1))) return last;
        last = {.end = behind, .rest = behind - 1};
    } while (behind <= paragraph.size());
    return Break{.end = paragraph.size(), .rest = paragraph.size()};
}

/// A character is what a reader takes for one: a letter isn't torn from its marks, nor a sign in two. A single one is
/// the answer when all but the last fit, or when none does.
LineBreaker::Break LineBreaker::breakInsideWord(QStringView paragraph) const {
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, paragraph);
    const qsizetype first = characters.toNextBoundary();
    qsizetype before = 0;
    for (qsizetype end = first; end < paragraph.size(); end = characters.toNextBoundary()) {
        if (isTooWide(paragraph.first(end))) return {.end = end, .rest = before};
        before = end;
    }
    return {.end = first, .rest = 0};
}

bool LineBreaker::isTooWide(QStringView text) const {
    return static_cast<float>(printer_.TextWidth(text.toString())) > static_cast<float>(width_);
}

}  // namespace lyrebrook
