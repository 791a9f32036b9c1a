#include "platform/forms/CommonDialog.h"

#include <QFileInfo>

#include "platform/base/RuntimeError.h"

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
    if (fileName_.isEmpty() && cancelError_) throw RuntimeError(dialogCancelled, "Cancel was selected.");
}

}  // namespace lyrebrook
