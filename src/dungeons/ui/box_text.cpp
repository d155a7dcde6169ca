#include "dungeons/ui/box_text.h"

#include "model/text.h"
#include "shared/ui/qt_text.h"

namespace wayscribe {

QString toBoxText(std::string_view text)
{
    return toQString(replaceAll(text, "\r\n", "\n"));
}

std::string fromBoxText(const QString &text)
{
    return replaceAll(fromQString(text), "\n", "\r\n");
}

} // namespace wayscribe
