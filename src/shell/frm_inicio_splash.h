#pragma once

#include <QPixmap>
#include <QWidget>

#include "toolkit/core/ini_file.h"

namespace kaldo {

/// The splash: a borderless window over everything else, in the middle of the desktop, until its
/// owner destroys it.
class FRMInicio final : public QWidget {
    Q_OBJECT

public:
    /// Where the file holds no picture, one is drawn.
    explicit FRMInicio(const QString &file);

    /// Writes the version of the running program to the ini file and shows it.
    void formCreate(IniFile &ini);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void readPicture();
    void paintGround(QPainter &painter) const;

    QString file_;
    bool read_ = false;
    QPixmap picture_;
    QString version_;
};

}  // namespace kaldo
