#include "platform/forms/CommonDialog.h"

#include <QFileInfo>
#include <QPrinter>

#include "platform/base/RuntimeError.h"
#include "platform/printing/PaperPrinter.h"

namespace lyrebrook {
namespace {

constexpr RuntimeErrorNumber dialogCancelled{32755};

}  // namespace

QString CommonDialog::FileTitle() const {
    return QFileInfo(fileName_).fileName();
}

void CommonDialog::show(FileQuestion::Purpose purpose) {
    question_.purpose = purpose;
    fileName_ = desktop().chooseFile(question_);
    if (fileName_.isEmpty()) cancelled();
}

void CommonDialog::cancelled() const {
    if (cancelError_) throw RuntimeError(dialogCancelled, "Cancel was selected.");
}

void CommonDialog::ShowPrinter() {
    auto chosen = std::make_unique<QPrinter>(QPrinter::HighResolution);
    chosen->setDocName(QStringLiteral("Lyrebrook"));  // in the printer's queue, and as the proposed file name
    if (!desktop().choosePrinter(*chosen)) return cancelled();
    copies_ = static_cast<std::int16_t>(chosen->copyCount());
    desktop().setPrinter(std::make_unique<PaperPrinter>(std::move(chosen)));
}

}  // namespace lyrebrook
