#include "shell/backdrop.h"

#include "toolkit/forms/button.h"

#include <QPainter>

namespace kaldo {

namespace {

const QColor kGroundTop(0xf8, 0xfa, 0xfb);
const QColor kGroundBottom(0xdd, 0xe8, 0xea);
const QColor kGroundText(0x33, 0x4e, 0x57);
const QColor kGroundLink(0x5b, 0x7a, 0x83);

}  // namespace

Backdrop::Backdrop(QWidget *parent)
    : QMdiArea(parent), captionColour_(kGroundText), linkColour_(kGroundLink) {
    setObjectName(QStringLiteral("backdrop"));
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setFocusPolicy(Qt::NoFocus);
}

void Backdrop::setPicture(const QPixmap &picture) {
    picture_ = picture;
    stretched_ = QPixmap();
    if (picture_.isNull()) {
        captionColour_ = kGroundText;
        linkColour_ = kGroundLink;
    }
    viewport()->update();
}

void Backdrop::setCaption(const QString &caption, const QString &subtitle) {
    caption_ = caption;
    subtitle_ = subtitle;
    viewport()->update();
}

void Backdrop::setCaptionVisible(bool visible) {
    captionVisible_ = visible;
    viewport()->update();
}

void Backdrop::setCaptionColours(const QColor &caption, const QColor &link) {
    captionColour_ = caption;
    linkColour_ = link;
    viewport()->update();
}

void Backdrop::paintEvent(QPaintEvent *) {
    QPainter painter(viewport());
    const QRect area = viewport()->rect();
    if (picture_.isNull()) {
        paintGround(painter, area);
    } else {
        const QSize pixels = area.size() * devicePixelRatioF();
        if (stretched_.size() != pixels) {
            stretched_ = picture_.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        }
        painter.drawPixmap(area, stretched_);
    }
    if (captionVisible_) {
        paintCaption(painter, area);
    }
}

void Backdrop::paintGround(QPainter &painter, const QRect &area) {
    QLinearGradient ground(area.topLeft(), area.bottomLeft());
    ground.setColorAt(0, kGroundTop);
    ground.setColorAt(1, kGroundBottom);
    painter.fillRect(area, ground);
    const int size = qMin(area.width(), area.height()) / 3;
    const QRect mark(area.center().x() - size / 2, area.center().y() - size / 2, size, size);
    painter.setOpacity(0.14);
    painter.drawPixmap(mark,
                       iconNamed(QStringLiteral("logo")).pixmap(mark.size(), devicePixelRatioF()));
    painter.setOpacity(1);
}

void Backdrop::paintCaption(QPainter &painter, const QRect &area) {
    const QRect inner = area.adjusted(28, 22, -28, -22);
    QFont title = font();
    title.setPointSizeF(font().pointSizeF() * 1.8);
    title.setWeight(QFont::DemiBold);
    painter.setFont(title);
    painter.setPen(captionColour_);
    painter.drawText(inner, Qt::AlignLeft | Qt::AlignTop, caption_);
    QFont small = font();
    small.setPointSizeF(font().pointSizeF() * 1.1);
    painter.setFont(small);
    painter.setPen(linkColour_);
    painter.drawText(inner, Qt::AlignRight | Qt::AlignBottom, subtitle_);
}

}  // namespace kaldo
