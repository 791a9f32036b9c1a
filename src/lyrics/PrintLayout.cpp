#include "lyrics/PrintLayout.h"

#include <QList>

#include "lyrics/LineBreaker.h"

namespace lyrebrook {
namespace {

/// Places lines on pages, from the printer's current place on.
class Pages {
  public:
    Pages(Printer& printer, TextAlignment alignment, const PageMargins& margins)
        : printer_(printer), alignment_(alignment), margins_(margins) {}

    Twips lineWidth() const { return printer_.ScaleWidth() - margins_.left - margins_.right; }
    bool leaveRoom() const { return lineWidth() > 0 && printer_.ScaleHeight() - margins_.top - margins_.bottom > 0; }

    void startBelowMargin() {
        if (printer_.CurrentY() < margins_.top) printer_.setCurrentY(margins_.top);
    }

    void print(const QString& line) {
        if (printer_.ScaleHeight() - margins_.bottom < printer_.TextHeight(line) + printer_.CurrentY()) {
            printer_.NewPage();
            printer_.setCurrentY(margins_.top);
        }
        printer_.setCurrentX(beginOf(line));
        printer_.Print(line);
    }

  private:
    Twips beginOf(const QString& line) const {
        switch (alignment_) {
            case TextAlignment::right:
                return printer_.ScaleWidth() - margins_.right - printer_.TextWidth(line);
            case TextAlignment::centre:
                return (lineWidth() - printer_.TextWidth(line)) / 2 + margins_.left;
            default:
                return margins_.left;
        }
    }

    Printer& printer_;
    TextAlignment alignment_;
    PageMargins margins_;
};

/// An empty paragraph is an empty line.
void printParagraph(Pages& pages, const LineBreaker& breaker, QStringView paragraph) {
    do {
        pages.print(breaker.takeLine(paragraph).toString());
    } while (!paragraph.isEmpty());
}

}  // namespace

bool printLayout(Printer& printer, const PrintedText& text, const PageMargins& margins) {
    Pages pages(printer, text.alignment, margins);
    if (text.text.isEmpty() || !pages.leaveRoom()) return false;
    printer.setFont(text.font);
    pages.startBelowMargin();
    const LineBreaker breaker(printer, pages.lineWidth());
    for (const QStringView paragraph : QStringView(text.text).split(QStringLiteral("\r\n"))) {
        printParagraph(pages, breaker, paragraph);
    }
    printer.EndDoc();
    return true;
}

}  // namespace lyrebrook
