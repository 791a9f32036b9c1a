#pragma once

#include <QString>
#include <cstdint>

#include "platform/forms/Desktop.h"

namespace lyrebrook {

/// The dialogs for a file to open or to save, and for the printer. A cancelled dialog leaves an empty `FileName` and
/// the printer as it was; with `CancelError` it is a `RuntimeError` instead.
class CommonDialog {
  public:
    /// Pairs of description and patterns, all joined by "|": "Text (*.txt)|*.txt".
    void setFilter(const QString& filter) { question_.filter = filter; }
    void setInitDir(const QString& folder) { question_.folder = folder; }
    void setCancelError(bool error) { cancelError_ = error; }

    void ShowOpen() { show(FileQuestion::Purpose::open); }
    /// An existing file may be chosen without a question.
    void ShowSave() { show(FileQuestion::Purpose::save); }

    /// Puts the printer that is chosen in use; `Copies` are then the caller's to make.
    void ShowPrinter();

    std::int16_t Copies() const { return copies_; }
    /// Full path of the file that was chosen.
    QString FileName() const { return fileName_; }
    /// The same without its folder.
    QString FileTitle() const;

  private:
    void show(FileQuestion::Purpose purpose);
    void cancelled() const;

    FileQuestion question_;
    QString fileName_;
    std::int16_t copies_ = 1;
    bool cancelError_ = false;
};

}  // namespace lyrebrook
