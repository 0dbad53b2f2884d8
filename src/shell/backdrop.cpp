#include "shell/backdrop.h"

#include "toolkit/forms/application.h"
#include "toolkit/forms/button.h"
#include "toolkit/forms/picture_file.h"

#include <QFileInfo>
#include <QImage>
#include <QPainter>

namespace kaldo {

namespace {

/// How long the size must have stood still.
constexpr std::chrono::milliseconds kRest(50);

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
    rest_.setSingleShot(true);
    rest_.setInterval(kRest);
    connectGuarded(&rest_, &QTimer::timeout, this, [this] { readPicture(); });
}

void Backdrop::setPicture(const QString &file) {
    file_ = QFileInfo(file).isFile() ? file : QString();
    stretched_ = QPixmap();
    if (!hasPicture()) {
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
    if (hasPicture()) {
        paintPicture(painter, area);
    } else {
        paintGround(painter, area);
        paintMark(painter, area);
    }
    const bool toCome = hasPicture() && stretched_.isNull();
    if (captionVisible_ && !toCome) {
        paintCaption(painter, area);
    }
}

void Backdrop::paintPicture(QPainter &painter, const QRect &area) {
    if (stretched_.size() != pictureSize()) {
        rest_.start();
    }
    if (stretched_.isNull()) {
        painter.fillRect(area, kGroundBottom);
    } else {
        painter.drawPixmap(area, stretched_);
    }
}

QSize Backdrop::pictureSize() const {
    return viewport()->size() * devicePixelRatioF();
}

void Backdrop::readPicture() {
    // Of a picture with a palette scaling would give one of a coarser palette, full of dots.
    stretched_ = QPixmap::fromImage(
        loadPicture(file_)
            .convertToFormat(QImage::Format_ARGB32_Premultiplied)
            .scaled(pictureSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    if (stretched_.isNull()) {
        setPicture({});
    }
    viewport()->update();
}

void Backdrop::paintGround(QPainter &painter, const QRect &area) {
    QLinearGradient ground(area.topLeft(), area.bottomLeft());
    ground.setColorAt(0, kGroundTop);
    ground.setColorAt(1, kGroundBottom);
    painter.fillRect(area, ground);
}

void Backdrop::paintMark(QPainter &painter, const QRect &area) {
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
    painter.drawText(inner, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, caption_);
    painter.setFont(font());
    painter.setPen(linkColour_);
    painter.drawText(inner, Qt::AlignRight | Qt::AlignBottom | Qt::TextWordWrap, subtitle_);
}

}  // namespace kaldo
