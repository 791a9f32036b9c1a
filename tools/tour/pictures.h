#pragma once

#include <QString>

#include "platform/forms/Form.h"

namespace lyrebrook {

/// Saves a picture of a form as it stands: `folder`/`file`, and the same in `folder`/200 as it is at 200 percent. False
/// when one couldn't be written.
bool savePicture(Form& form, const QString& folder, const QString& file);

}  // namespace lyrebrook
