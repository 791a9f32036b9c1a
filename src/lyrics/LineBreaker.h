#pragma once

#include <QStringView>

#include "platform/printing/Printer.h"

namespace lyrebrook {

/// Breaks a paragraph into what fits on one line each, measured with the printer's present font. Keeps a reference to
/// the printer.
class LineBreaker {
  public:
    LineBreaker(const Printer& printer, Twips width) : printer_(printer), width_(width) {}

    /// Takes the next line off the front of `paragraph`, which is empty after the last one. The blank that a line
    /// breaks at stays at its end. A word that is too long is broken inside, one character late, and that character is
    /// said again on the next line.
    QStringView takeLine(QStringView& paragraph) const;

  private:
    const Printer& printer_;
    Twips width_;
};

}  // namespace lyrebrook
