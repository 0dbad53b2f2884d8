#include "tools/demo/manual_pictures.h"

#include <QDir>
#include <QHash>
#include <QImage>
#include <QMdiSubWindow>

#include <algorithm>
#include <iostream>

#include "shell/program.h"
#include "toolkit/forms/application.h"
#include "tools/support/key_script.h"

using namespace Qt::StringLiterals;

namespace kaldo {

namespace {

constexpr int kFailed = 1;
constexpr int kColours = 96;
constexpr int kWidest = 760;

/// The pictures of two runs differ only where a screen does.
class StillClock final : public Clock {
public:
    QDateTime now() const override { return {QDate(2024, 6, 3), QTime(9, 30)}; }
};

int distance(QRgb a, QRgb b) {
    const int red = qRed(a) - qRed(b);
    const int green = qGreen(a) - qGreen(b);
    const int blue = qBlue(a) - qBlue(b);
    return red * red + green * green + blue * blue;
}

/// The colours that fill most of the picture, none of them close to another.
QList<QRgb> paletteOf(const QImage &image) {
    constexpr int kApart = 60;
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            ++counts[line[x] | 0xff000000];
        }
    }
    QList<QRgb> colours = counts.keys();
    std::sort(colours.begin(), colours.end(), [&counts](QRgb a, QRgb b) {
        return counts.value(a) != counts.value(b) ? counts.value(a) > counts.value(b) : a < b;
    });
    QList<QRgb> palette;
    for (const QRgb colour : std::as_const(colours)) {
        const bool near = std::any_of(palette.cbegin(), palette.cend(), [colour](QRgb other) {
            return distance(colour, other) < kApart;
        });
        if (!near && palette.size() < kColours) {
            palette += colour;
        }
    }
    return palette;
}

QImage reduced(const QImage &picture) {
    QImage image = picture.convertToFormat(QImage::Format_RGB32);
    if (image.width() > kWidest) {
        image = image.scaledToWidth(kWidest, Qt::SmoothTransformation);
    }
    return image.convertToFormat(QImage::Format_Indexed8, paletteOf(image), Qt::ThresholdDither);
}

/// The window called so, with its frame where it is a child of the main window.
QWidget *windowNamed(const QString &name) {
    for (QWidget *widget : QApplication::allWidgets()) {
        if (widget->objectName() != name || !widget->isVisible()) {
            continue;
        }
        auto *frame = qobject_cast<QMdiSubWindow *>(widget->parentWidget());
        return frame != nullptr ? frame : widget;
    }
    return nullptr;
}

/// The strokes, and what they pass.
class Tour {
public:
    Tour(KeyScript &script, const QString &folder) : script_(script), folder_(folder) {}

    void atLogin() {
        script_.at(u"FRMAcceso"_s, u"Edit1"_s);
        picture(u"FRMAcceso"_s, u"frmacceso"_s);
    }
    void logIn(const QString &user, const QString &password) {
        script_.at(u"FRMAcceso"_s, u"Edit1"_s).type(user).enter().type(password).enter();
    }
    /// Someone else takes the station over.
    void changeUser(const QString &user, const QString &password) {
        script_.press(Qt::Key_F11);
        logIn(user, password);
        script_.at(u"FRM000"_s);
    }
    void picture(const QString &window, const QString &file) {
        script_.call([this, window, file] {
            if (QWidget *shown = windowNamed(window)) {
                save(shown->grab().toImage(), file);
            }
        });
    }
    void wholeDesktop(const QString &file) {
        script_.call([this, file] { save(desktopPicture(), file); });
    }
    /// An entry of the menu and the screen that it opens.
    void screen(const QString &heading, const QString &entry, const QString &name) {
        script_.menu(heading).choose(entry).at(name);
        picture(name, name.toLower());
    }

    void save(const QImage &image, const QString &file) {
        if (reduced(image).save(u"%1/%2.png"_s.arg(folder_, file))) {
            ++saved_;
        }
    }
    int saved() const { return saved_; }

private:
    KeyScript &script_;
    QString folder_;
    int saved_ = 0;
};

void administrator(KeyScript &script, Tour &tour) {
    const QString keeping = u"Mantenimiento"_s;
    tour.atLogin();
    tour.logIn(u"admin"_s, u"admin"_s);
    script.at(u"FRM000"_s).menu(keeping);
    tour.wholeDesktop(u"frm000"_s);
    script.press(Qt::Key_Escape).press(Qt::Key_Escape);
    tour.screen(keeping, u"Centros de atención"_s, u"FRM100"_s);
    tour.screen(keeping, u"Lista de Precios"_s, u"FRM107"_s);
}

void cashier(KeyScript &script, Tour &tour) {
    tour.changeUser(u"cajero1"_s, u"caja1"_s);
    tour.screen(u"Caja"_s, u"Corte de Caja"_s, u"FRM405"_s);
    tour.screen(u"Funciones Especiales"_s, u"Recibos Incompletos"_s, u"FRM801"_s);
    script.press(Qt::Key_Escape);
}

}  // namespace

int takeManualPictures(int argc, char **argv) {
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    Application application(argc, argv);
    const StillClock clock;
    ProgramSettings settings;
    settings.root = QString::fromLocal8Bit(argv[2]);
    settings.clock = &clock;
    settings.splash = std::chrono::milliseconds(10);
    Program program(settings);

    KeyScript script;
    const QString folder = QString::fromLocal8Bit(argv[3]);
    QDir().mkpath(folder);
    Tour tour(script, folder);
    administrator(script, tour);
    cashier(script, tour);
    QObject::connect(&script, &KeyScript::failed, [&](const QString &text) {
        std::cerr << "pictures: " << text.toStdString() << '\n';
        tour.save(desktopPicture(), u"failed"_s);
        application.endApplication(kFailed);
    });
    QObject::connect(&script, &KeyScript::finished, [&] { application.endApplication(); });
    script.start();
    const int code = program.run();
    std::cout << tour.saved() << " pictures\n";
    return code == 0 && script.isDone() ? 0 : kFailed;
}

}  // namespace kaldo
