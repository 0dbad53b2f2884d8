#include "toolkit/report/item_slices.h"
#include "toolkit/report/layout.h"
#include "toolkit/report/text_shape.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include <algorithm>
#include <cmath>
#include <utility>

namespace kaldo::report {

namespace {

/// Scanned logos come in sizes that no printer shows and every PDF file would carry.
constexpr double pictureDotsPerMm = 300.0 / 25.4;

QImage scaledToPrint(const QImage &image, const QSizeF &boxMm) {
    const QSize wanted(static_cast<int>(std::ceil(boxMm.width() * pictureDotsPerMm)),
                       static_cast<int>(std::ceil(boxMm.height() * pictureDotsPerMm)));
    const QSize fitted = image.size().scaled(wanted, Qt::KeepAspectRatio);
    if (fitted.isEmpty() || fitted.width() >= image.width())
        return image;
    // A picture with a palette would be scaled to one of a coarser palette, full of dots.
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied)
        .scaled(fitted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

}  // namespace

Picture Picture::load(const QString &path) {
    if (path.isEmpty() || !QFileInfo(path).isFile())
        return {};
    if (path.endsWith(QStringLiteral(".svg"), Qt::CaseInsensitive)) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? fromSvg(file.readAll()) : Picture();
    }
    QImageReader reader(path);
    // Files of the installation often bear the extension of another format.
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    return fromImage(reader.read());
}

Picture Picture::fromImage(const QImage &image) {
    Picture result;
    result.image_ = image;
    result.scaled_ = std::make_shared<Scaled>();
    return result;
}

Picture Picture::fromSvg(const QByteArray &svg) {
    Picture result;
    result.svg_ = svg;
    return result;
}

QImage Picture::atPrintSize(const QSizeF &boxMm) const {
    if (image_.isNull())
        return {};
    if (scaled_->box != boxMm)
        *scaled_ = {boxMm, scaledToPrint(image_, boxMm)};
    return scaled_->image;
}

Band &Band::text(const QRectF &rect, const QString &text, const Style &style) {
    std::vector<TextLine> lines = shapeText(text, rect.width(), style);
    if (lines.empty())
        return *this;
    if (style.wrapping == Wrap::Word || style.wrapping == Wrap::Anywhere)
        keepLinesThatFit(lines, rect.size(), style);
    Text item{rect, style, std::move(lines)};
    for (TextLine &line : item.lines)
        line.baseline += rect.topLeft();
    items_.emplace_back(std::move(item));
    return *this;
}

Band &Band::memo(const QRectF &rect, const QString &text, const Style &style) {
    const Style flowing = style.wrapping == Wrap::None ? style.wrap(Wrap::Word) : style;
    std::vector<TextLine> lines = shapeText(text, rect.width(), flowing);
    if (lines.empty())
        return *this;
    const double below = std::max(0.0, designed_ - rect.bottom());
    QRectF grown = rect;
    grown.setHeight(
        std::max(rect.height(), static_cast<double>(lines.size()) * lineHeight(flowing)));
    Text item{grown, flowing, std::move(lines)};
    for (TextLine &line : item.lines)
        line.baseline += rect.topLeft();
    items_.emplace_back(std::move(item));
    growTo(grown.bottom() + below);
    return *this;
}

Band &Band::line(double x1, double y1, double x2, double y2, double penMm) {
    items_.emplace_back(Line{QLineF(x1, y1, x2, y2), penMm, Qt::black});
    return *this;
}

Band &Band::box(const QRectF &rect, double penMm, const QColor &fill) {
    items_.emplace_back(Box{rect, penMm, fill, Qt::black});
    return *this;
}

Band &Band::picture(const QRectF &rect, const Picture &picture) {
    if (!picture.svg().isEmpty())
        items_.emplace_back(Drawing{rect, picture.svg()});
    else if (!picture.isEmpty())
        items_.emplace_back(Image{rect, picture.atPrintSize(rect.size())});
    return *this;
}

Band &Band::fullHeightLine(double x, double penMm) {
    spans_.push_back({x, 0.0, penMm, QColor(), true});
    return *this;
}

Band &Band::fullHeightBox(double x, double width, double penMm, const QColor &fill) {
    spans_.push_back({x, width, penMm, fill, false});
    return *this;
}

void Band::setHeight(double heightMm) {
    height_ = std::max(0.0, heightMm);
}

void Band::growTo(double heightMm) {
    height_ = std::max(height_, heightMm);
}

Band &Band::append(const Band &below) {
    const std::vector<Item> items = below.itemsAt({0.0, height_});
    items_.insert(items_.end(), items.begin(), items.end());
    height_ += below.height_;
    designed_ = height_;
    return *this;
}

std::vector<Item> Band::itemsAt(const QPointF &origin) const {
    std::vector<Item> result;
    result.reserve(spans_.size() + items_.size());
    for (const Span &span : spans_) {
        if (span.isLine)
            result.emplace_back(Line{QLineF(span.x, 0.0, span.x, height_), span.pen, Qt::black});
        else
            result.emplace_back(
                Box{QRectF(span.x, 0.0, span.width, height_), span.pen, span.fill, Qt::black});
    }
    result.insert(result.end(), items_.begin(), items_.end());
    for (Item &item : result)
        moveItem(item, origin);
    return result;
}

}  // namespace kaldo::report
