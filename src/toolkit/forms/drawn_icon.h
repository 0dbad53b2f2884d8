#pragma once

#include <QIconEngine>

namespace kaldo {

/// The engine of an icon that is an SVG drawing: sharp at every size, read when it is first
/// painted. Qt's own engine comes as a plug-in, which every start of the program would look for and
/// load.
class DrawnIcon final : public QIconEngine {
public:
    explicit DrawnIcon(QString file);

    void paint(QPainter *painter, const QRect &area, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine *clone() const override;
    QString key() const override;
    bool isNull() override { return false; }

private:
    QPixmap draw(const QSize &size, QIcon::Mode mode) const;

    QString file_;
};

}  // namespace kaldo
