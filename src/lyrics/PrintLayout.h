#pragma once

#include <QString>

#include "platform/printing/Printer.h"

namespace lyrebrook {

/// From the paper's edges.
struct PageMargins {
    Twips left = 0;
    Twips right = 0;
    Twips top = 0;
    Twips bottom = 0;
};

/// A text with paragraphs joined by CR LF, and how it looks.
struct PrintedText {
    QString text;
    Font font;
    TextAlignment alignment = TextAlignment::left;
};

/// Prints a text as one document: wrapped at blanks into the margins, on as many pages as it takes. False, and nothing
/// printed, for an empty text or when the margins leave no room. RuntimeErrors are the printer's.
bool printLayout(Printer& printer, const PrintedText& text, const PageMargins& margins);

}  // namespace lyrebrook
