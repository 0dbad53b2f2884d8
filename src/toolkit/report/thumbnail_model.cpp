#include "toolkit/report/thumbnail_model.h"

#include "toolkit/report/paint.h"

#include <QPainter>

namespace kaldo::report {

ThumbnailModel::ThumbnailModel(const Document &document, QSize size, double devicePixelRatio,
                               QObject *parent)
    : QAbstractListModel(parent), document_(document), size_(size), ratio_(devicePixelRatio) {}

int ThumbnailModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : document_.pageCount();
}

QVariant ThumbnailModel::data(const QModelIndex &index, int role) const {
    if (!index.isValid() || index.row() >= document_.pageCount())
        return {};
    if (role == Qt::DisplayRole)
        return QString::number(index.row() + 1);
    if (role == Qt::AccessibleTextRole)
        return QStringLiteral("Página %1").arg(index.row() + 1);
    if (role != Qt::DecorationRole)
        return {};
    if (const QImage *known = drawn_.object(index.row()))
        return *known;
    QImage image = thumbnail(document_, index.row(), size_ * ratio_);
    {
        QPainter painter(&image);
        painter.setPen(Qt::gray);
        painter.drawRect(0, 0, image.width() - 1, image.height() - 1);
    }
    image.setDevicePixelRatio(ratio_);
    drawn_.insert(index.row(), new QImage(image));
    return image;
}

}  // namespace kaldo::report
