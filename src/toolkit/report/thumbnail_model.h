#pragma once

#include "toolkit/report/document.h"

#include <QAbstractListModel>
#include <QCache>
#include <QImage>
#include <QSize>

namespace kaldo::report {

/// The pages of a document as small pictures, drawn when they are first seen.
class ThumbnailModel : public QAbstractListModel {
    Q_OBJECT

public:
    /// The document must outlive the model.
    ThumbnailModel(const Document &document, QSize size, double devicePixelRatio, QObject *parent);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    const Document &document_;
    QSize size_;
    double ratio_;
    mutable QCache<int, QImage> drawn_{300};
};

}  // namespace kaldo::report
