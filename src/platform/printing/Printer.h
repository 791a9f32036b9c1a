#pragma once

#include <QString>

#include "platform/base/Twips.h"
#include "platform/printing/TextStyle.h"

namespace lyrebrook {

/// A sheet of paper after the other, written from a place that moves, in twips from the paper's own left and upper
/// edge. Measuring begins no document; the first `Print` or `NewPage` does, and `EndDoc` sends it off. Program's
/// thread.
///
/// A printer that fails is a RuntimeError; the document that it happened in is gone then, and the next one begins at
/// the top of a first page.
class Printer {
  public:
    virtual ~Printer() = default;

    virtual Twips ScaleWidth() const = 0;  ///< of the whole sheet
    virtual Twips ScaleHeight() const = 0;

    virtual Twips CurrentX() const = 0;
    virtual Twips CurrentY() const = 0;
    virtual void setCurrentX(Twips x) = 0;
    virtual void setCurrentY(Twips y) = 0;

    virtual Twips TextWidth(const QString& text) const = 0;
    virtual Twips TextHeight(const QString& text) const = 0;  ///< of a line, an empty one too
    virtual void setFont(const Font& font) = 0;

    /// Writes a line with its upper left corner at the current place, which moves to the left edge, one line down.
    virtual void Print(const QString& text) = 0;
    /// The current place is the upper left corner of the next sheet.
    virtual void NewPage() = 0;
    virtual void EndDoc() = 0;
};

}  // namespace lyrebrook
