#pragma once

#include <memory>

#include "platform/printing/Printer.h"

class QPrinter;

namespace lyrebrook {

/// One of the desktop's printers as a person set it up, or a PDF file in its place, which is written as a whole by
/// `EndDoc`: a document that fails leaves an old file as it was. Each document goes out once, whatever number of copies
/// the set-up says.
class PaperPrinter final : public Printer {
  public:
    explicit PaperPrinter(std::unique_ptr<QPrinter> setUp);
    ~PaperPrinter() override;

    Twips ScaleWidth() const override;
    Twips ScaleHeight() const override;
    Twips CurrentX() const override { return x_; }
    Twips CurrentY() const override { return y_; }
    void setCurrentX(Twips x) override { x_ = x; }
    void setCurrentY(Twips y) override { y_ = y; }
    Twips TextWidth(const QString& text) const override;
    Twips TextHeight(const QString& text) const override;
    void setFont(const Font& font) override { font_ = font; }
    void Print(const QString& text) override;
    void NewPage() override;
    void EndDoc() override;

  private:
    class Document;

    /// The document that is being written, begun if need be.
    Document& document();
    /// Runs a step of the document; one that fails takes the document along.
    template <class Step>
    void inDocument(Step step);
    void moveTo(Twips x, Twips y);

    std::unique_ptr<QPrinter> setUp_;
    std::unique_ptr<Document> document_;
    Font font_;
    Twips x_ = 0;
    Twips y_ = 0;
};

}  // namespace lyrebrook
