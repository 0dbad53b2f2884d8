#pragma once

#include <QPixmap>
#include <QSvgRenderer>
#include <QWidget>

#include "toolkit/core/ini_file.h"

namespace kaldo {

/// The splash: a borderless window over everything else, in the middle of the desktop, until its
/// owner destroys it.
class FRMInicio final : public QWidget {
    Q_OBJECT

public:
    /// An SVG drawing, which is sharp on every screen, or a picture file. Where the file holds
    /// neither, a plain ground is painted.
    explicit FRMInicio(const QString &file);

    /// Writes the version of the running program to the ini file and shows it.
    void formCreate(IniFile &ini);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void readPicture();
    bool hasPicture() const { return drawing_.isValid() || !picture_.isNull(); }
    void paintGround(QPainter &painter) const;

    QString file_;
    bool read_ = false;
    QSvgRenderer drawing_;
    QPixmap picture_;
    QString version_;
};

}  // namespace kaldo
