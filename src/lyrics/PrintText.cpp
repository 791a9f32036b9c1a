#include "lyrics/PrintText.h"

#include "platform/forms/Desktop.h"

namespace lyrebrook {

bool PrintText(const TextBox& box, const PageMargins& margins, PrintedPart part) {
    try {
        const QString text = part == PrintedPart::selection ? box.SelText() : box.Text();
        return printLayout(desktop().printer(), {text, box.Font(), box.Alignment()}, margins);
    } catch (const std::exception&) {
        MsgBox(QStringLiteral("Print function not supported on your operating system!"));
        return false;
    }
}

}  // namespace lyrebrook
