#include "shell/frm_inicio_splash.h"

#include "shell/version.h"
#include "toolkit/forms/button.h"
#include "toolkit/forms/picture_file.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

#include <utility>

namespace kaldo {

namespace {

constexpr QSize kSize(500, 270);
/// The foot of the picture that is left for the version.
constexpr int kFoot = 228;

}  // namespace

FRMInicio::FRMInicio(const QString &file)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      file_(file) {
    setObjectName(QStringLiteral("FRMInicio"));
    setAccessibleName(QStringLiteral("KALDO"));
    setFixedSize(kSize);
    if (const QScreen *screen = QGuiApplication::primaryScreen()) {
        QRect place(QPoint(), kSize);
        place.moveCenter(screen->geometry().center());
        move(place.topLeft());
    }
}

void FRMInicio::formCreate(IniFile &ini) {
    version_ = QString::fromLatin1(kVersion);
    ini.setValue(QStringLiteral("Alert"), QStringLiteral("version"), version_);
}

void FRMInicio::readPicture() {
    if (std::exchange(read_, true)) {
        return;
    }
    if (file_.endsWith(QLatin1String(".svg"))) {
        drawing_.load(file_);
    } else {
        picture_ = QPixmap::fromImage(loadPicture(file_));
    }
}

void FRMInicio::paintEvent(QPaintEvent *) {
    readPicture();
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (drawing_.isValid()) {
        drawing_.render(&painter, rect());
    } else if (!picture_.isNull()) {
        painter.drawPixmap(rect(), picture_);
    } else {
        paintGround(painter);
    }
    const QRect foot = rect().adjusted(24, kFoot, -24, -8);
    painter.setPen(hasPicture() ? QColor(Qt::white) : QColor(0x5b, 0x7a, 0x83));
    painter.drawText(foot, Qt::AlignRight | Qt::AlignVCenter,
                     QStringLiteral("Versión ") + version_);
}

void FRMInicio::paintGround(QPainter &painter) const {
    QLinearGradient ground(0, 0, 0, height());
    ground.setColorAt(0, QColor(0xf8, 0xfa, 0xfb));
    ground.setColorAt(1, QColor(0xdd, 0xe8, 0xea));
    painter.fillRect(rect(), ground);
    painter.setPen(QColor(0xb4, 0xc6, 0xcb));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    const int mark = 84;
    painter.drawPixmap(QRect(width() / 2 - mark / 2, 44, mark, mark),
                       iconNamed(QStringLiteral("logo")).pixmap({mark, mark}, devicePixelRatioF()));
    QFont title = font();
    title.setPointSizeF(font().pointSizeF() * 2.6);
    title.setWeight(QFont::DemiBold);
    painter.setFont(title);
    painter.setPen(QColor(0x33, 0x4e, 0x57));
    painter.drawText(QRect(0, 140, width(), 56), Qt::AlignCenter, QStringLiteral("KALDO"));
    painter.setFont(font());
}

}  // namespace kaldo
