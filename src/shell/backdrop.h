#pragma once

#include <QMdiArea>
#include <QPixmap>

class QPushButton;

namespace kaldo {

/// The client area of the main window: the child screens over the picture of the colour scheme,
/// which is stretched over the whole area.
class Backdrop : public QMdiArea {
    Q_OBJECT

public:
    explicit Backdrop(QWidget *parent = nullptr);

    /// A null picture gives a plain quiet ground with the system's mark.
    void setPicture(const QPixmap &picture);
    const QPixmap &picture() const { return picture_; }
    void setCaption(const QString &caption, const QString &subtitle);
    void setCaptionVisible(bool visible);
    void setCaptionColours(const QColor &caption, const QColor &link);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintGround(QPainter &painter, const QRect &area);
    void paintCaption(QPainter &painter, const QRect &area);

    QPixmap picture_;
    QPixmap stretched_;
    QString caption_;
    QString subtitle_;
    QColor captionColour_;
    QColor linkColour_;
    bool captionVisible_ = true;
};

}  // namespace kaldo
