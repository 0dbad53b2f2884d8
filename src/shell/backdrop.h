#pragma once

#include <QMdiArea>
#include <QPixmap>
#include <QTimer>

namespace kaldo {

/// The client area of the main window: the child screens over the picture of the colour scheme,
/// which is stretched over the whole area.
class Backdrop : public QMdiArea {
    Q_OBJECT

public:
    explicit Backdrop(QWidget *parent = nullptr);

    /// A file that holds no picture gives a plain quiet ground with the system's mark. The picture
    /// is read and stretched a moment after the area has got another size: no window waits for it.
    void setPicture(const QString &file);
    bool hasPicture() const { return !file_.isEmpty(); }
    /// As it is painted; null until the first reading has ended.
    const QPixmap &stretched() const { return stretched_; }
    void setCaption(const QString &caption, const QString &subtitle);
    void setCaptionVisible(bool visible);
    void setCaptionColours(const QColor &caption, const QColor &link);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintPicture(QPainter &painter, const QRect &area);
    QSize pictureSize() const;
    void readPicture();
    void paintGround(QPainter &painter, const QRect &area);
    void paintMark(QPainter &painter, const QRect &area);
    void paintCaption(QPainter &painter, const QRect &area);

    QString file_;
    QPixmap stretched_;
    QTimer rest_;  ///< from the last change of the size to the reading
    QString caption_;
    QString subtitle_;
    QColor captionColour_;
    QColor linkColour_;
    bool captionVisible_ = true;
};

}  // namespace kaldo
