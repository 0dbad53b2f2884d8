#include "toolkit/forms/picture_file.h"

#include <QFileInfo>
#include <QImageReader>

namespace kaldo {

QImage loadPicture(const QString &file) {
    if (!QFileInfo(file).isFile()) {
        return {};
    }
    // A reader that may guess loads every plug-in for pictures first, a millisecond of each start.
    QImageReader png(file, "png");
    png.setAutoDetectImageFormat(false);
    const QImage image = png.read();
    if (!image.isNull()) {
        return image;
    }
    QImageReader any(file);
    any.setDecideFormatFromContent(true);
    return any.read();
}

}  // namespace kaldo
