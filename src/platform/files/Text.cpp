#include "platform/files/Text.h"

namespace lyrebrook {

QString trimBlanks(const QString& text) {
    qsizetype first = 0;
    qsizetype end = text.size();
    while (first < end && text[first] == u' ') ++first;
    while (end > first && text[end - 1] == u' ') --end;
    return text.sliced(first, end - first);
}

}  // namespace lyrebrook
