#include "toolkit/forms/drawn_icon.h"

#include <QApplication>
#include <QPainter>
#include <QPixmapCache>
#include <QStyle>
#include <QStyleOption>
#include <QSvgRenderer>

namespace kaldo {

DrawnIcon::DrawnIcon(QString file) : file_(std::move(file)) {}

void DrawnIcon::paint(QPainter *painter, const QRect &area, QIcon::Mode mode, QIcon::State state) {
    const qreal ratio = painter->device()->devicePixelRatioF();
    painter->drawPixmap(area, pixmap(area.size() * ratio, mode, state));
}

QPixmap DrawnIcon::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State) {
    const QString kept = QStringLiteral("%1 %2x%3 %4 %5")
                             .arg(file_)
                             .arg(size.width())
                             .arg(size.height())
                             .arg(mode)
                             .arg(QApplication::palette().cacheKey());
    QPixmap drawing;
    if (!QPixmapCache::find(kept, &drawing)) {
        drawing = draw(size, mode);
        QPixmapCache::insert(kept, drawing);
    }
    return drawing;
}

QPixmap DrawnIcon::draw(const QSize &size, QIcon::Mode mode) const {
    QPixmap drawing(size);
    drawing.fill(Qt::transparent);
    QPainter painter(&drawing);
    QSvgRenderer renderer(file_);
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    renderer.render(&painter);
    painter.end();
    if (mode == QIcon::Normal) {
        return drawing;
    }
    QStyleOption option;
    option.palette = QApplication::palette();
    return QApplication::style()->generatedIconPixmap(mode, drawing, &option);
}

QIconEngine *DrawnIcon::clone() const {
    return new DrawnIcon(*this);
}

QString DrawnIcon::key() const {
    return QStringLiteral("drawn");
}

}  // namespace kaldo
