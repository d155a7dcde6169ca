#include "view/draw/png_file.h"

#include "storage/atomic_file.h"

#include <QBuffer>
#include <QByteArray>
#include <QImage>

#include <string_view>

namespace wayscribe {

bool writePngFile(const QImage &picture, const std::string &path, std::string &reason)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!picture.save(&buffer, "PNG")) {
        reason = "the picture could not be encoded as PNG";
        return false;
    }
    BufferedFileWriter writer;
    if (!writer.open(path, reason))
        return false;
    writer.write(std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
    return writer.commit(reason);
}

} // namespace wayscribe
