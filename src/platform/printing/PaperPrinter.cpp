#include "platform/printing/PaperPrinter.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>

#include "platform/base/RuntimeError.h"
#include "platform/files/FileContent.h"

namespace lyrebrook {
namespace {

constexpr Twips twipsPerPoint = 20;

RuntimeError printerError() {
    return {RuntimeErrorNumber::printerError, "Printer error"};
}

QFont toQFont(const Font& font) {
    QFont result(font.Name);
    result.setPointSizeF(font.Size);
    result.setBold(font.Bold);
    result.setItalic(font.Italic);
    result.setStrikeOut(font.Strikethrough);
    result.setUnderline(font.Underline);
    result.setWeight(static_cast<QFont::Weight>(font.Weight));
    return result;
}

double dotsPerTwip(const QPrinter& printer) {
    return printer.resolution() / twipsPerInch;
}

QPageLayout wholeSheet(QPageLayout layout) {
    layout.setMode(QPageLayout::FullPageMode);
    return layout;
}

}  // namespace

/// Goes to the printer page by page, or into memory until the PDF is whole.
class PaperPrinter::Document {
  public:
    explicit Document(QPrinter& printer) : printer_(printer) {
        if (printer.outputFormat() == QPrinter::PdfFormat) {
            pdf_ = std::make_unique<QPdfWriter>(&bytes_);
            pdf_->setResolution(printer.resolution());
            pdf_->setPageLayout(printer.pageLayout());
            bytes_.open(QIODevice::WriteOnly);
        }
        if (!painter_.begin(&device())) throw printerError();
    }

    ~Document() {
        if (!pdf_ && painter_.isActive()) printer_.abort();
    }
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;

    void write(const QString& text, const QFont& font, const QPointF& upperLeft) {
        painter_.setFont(font);
        painter_.drawText(upperLeft + QPointF(0, QFontMetricsF(font, &printer_).ascent()), text);
        requireHealth();
    }

    void newPage() {
        if (!device().newPage()) throw printerError();
        requireHealth();
    }

    void end() {
        if (!painter_.end()) throw printerError();
        if (pdf_) return replaceFile(printer_.outputFileName(), bytes_.data());
        if (printer_.printerState() == QPrinter::Error) throw printerError();
    }

  private:
    QPagedPaintDevice& device() {
        if (pdf_) return *pdf_;
        return printer_;
    }

    void requireHealth() const {
        const auto state = printer_.printerState();
        if (!pdf_ && (state == QPrinter::Error || state == QPrinter::Aborted)) throw printerError();
    }

    QPrinter& printer_;
    QBuffer bytes_;
    std::unique_ptr<QPdfWriter> pdf_;
    QPainter painter_;
};

PaperPrinter::PaperPrinter(std::unique_ptr<QPrinter> setUp) : setUp_(std::move(setUp)) {
    setUp_->setPageLayout(wholeSheet(setUp_->pageLayout()));
    setUp_->setCopyCount(1);
}

PaperPrinter::~PaperPrinter() = default;

Twips PaperPrinter::ScaleWidth() const {
    return setUp_->pageLayout().fullRect(QPageLayout::Point).width() * twipsPerPoint;
}

Twips PaperPrinter::ScaleHeight() const {
    return setUp_->pageLayout().fullRect(QPageLayout::Point).height() * twipsPerPoint;
}

Twips PaperPrinter::TextWidth(const QString& text) const {
    return QFontMetricsF(toQFont(font_), setUp_.get()).horizontalAdvance(text) / dotsPerTwip(*setUp_);
}

Twips PaperPrinter::TextHeight(const QString&) const {
    return QFontMetricsF(toQFont(font_), setUp_.get()).height() / dotsPerTwip(*setUp_);
}

PaperPrinter::Document& PaperPrinter::document() {
    if (!document_) document_ = std::make_unique<Document>(*setUp_);
    return *document_;
}

template <class Step>
void PaperPrinter::inDocument(Step step) {
    try {
        step(document());
    } catch (...) {
        document_.reset();
        moveTo(0, 0);
        throw;
    }
}

void PaperPrinter::moveTo(Twips x, Twips y) {
    x_ = x;
    y_ = y;
}

void PaperPrinter::Print(const QString& text) {
    const QPointF place = QPointF(x_, y_) * dotsPerTwip(*setUp_);
    inDocument([&](Document& document) { document.write(text, toQFont(font_), place); });
    moveTo(0, y_ + TextHeight(text));
}

void PaperPrinter::NewPage() {
    inDocument([](Document& document) { document.newPage(); });
    moveTo(0, 0);
}

void PaperPrinter::EndDoc() {
    inDocument([](Document& document) { document.end(); });
    document_.reset();
    moveTo(0, 0);
}

}  // namespace lyrebrook
