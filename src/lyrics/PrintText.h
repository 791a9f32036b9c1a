#pragma once

#include "lyrics/PrintLayout.h"
#include "platform/forms/TextBox.h"

namespace lyrebrook {

enum class PrintedPart { whole, selection };

/// Prints what a text box holds, in the box's font and alignment, on the printer in use. True when it went there; a
/// printer that fails is told in a message box.
bool PrintText(const TextBox& box, const PageMargins& margins, PrintedPart part);

}  // namespace lyrebrook
