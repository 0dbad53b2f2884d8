#include "tools/demo/manual_pictures.h"

#include <QBuffer>
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
/// As wide as the help shows them: it would scale them without smoothing.
constexpr int kWidest = 700;

int distance(QRgb a, QRgb b) {
    const int red = qRed(a) - qRed(b);
    const int green = qGreen(a) - qGreen(b);
    const int blue = qBlue(a) - qBlue(b);
    return red * red + green * green + blue * blue;
}

/// The colours that fill most of the picture, none of them closer than so to another.
QList<QRgb> paletteOf(const QImage &image, int apart) {
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
        const bool near =
            std::any_of(palette.cbegin(), palette.cend(),
                        [colour, apart](QRgb other) { return distance(colour, other) < apart; });
        if (!near && palette.size() < kColours) {
            palette += colour;
        }
    }
    return palette;
}

uchar nearest(const QList<QRgb> &palette, QRgb colour) {
    const auto closest = std::min_element(
        palette.cbegin(), palette.cend(),
        [colour](QRgb a, QRgb b) { return distance(a, colour) < distance(b, colour); });
    return static_cast<uchar>(closest - palette.cbegin());
}

QImage reduced(const QImage &image, int apart) {
    const QList<QRgb> palette = paletteOf(image, apart);
    QImage small(image.size(), QImage::Format_Indexed8);
    small.setColorTable(palette);
    QHash<QRgb, uchar> known;
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const QRgb colour = line[x];
            auto index = known.find(colour);
            if (index == known.end()) {
                index = known.insert(colour, nearest(palette, colour));
            }
            small.scanLine(y)[x] = *index;
        }
    }
    return small;
}

/// As a PNG with as many colours as fit the size that a picture of the manual may have.
QByteArray encoded(const QImage &picture) {
    constexpr int kLargest = 60 * 1024;
    QImage image = picture.convertToFormat(QImage::Format_RGB32);
    if (image.width() > kWidest) {
        image = image.scaledToWidth(kWidest, Qt::SmoothTransformation);
    }
    const auto bytesOf = [](const QImage &made, int apart) {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        reduced(made, apart).save(&buffer, "PNG");
        return bytes;
    };
    int apart = 300;
    QByteArray bytes = bytesOf(image, apart);
    for (; bytes.size() > kLargest; apart *= 2) {
        bytes = bytesOf(image, apart);
    }
    return bytes;
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

    void logIn(const QString &user, const QString &password) {
        script_.at(u"FRMAcceso"_s, u"Edit1"_s).type(user).enter();
        script_.at(u"FRMAcceso"_s, u"Edit2"_s).type(password).enter();
    }
    void picture(const QString &window, const QString &file) {
        script_.at(window).call([this, window, file] {
            if (QWidget *shown = windowNamed(window)) {
                save(shown->grab().toImage(), file);
            } else {
                missed_ += file;
            }
        });
    }
    void wholeDesktop(const QString &file) {
        script_.call([this, file] { save(desktopPicture(), file); });
    }
    /// An entry of the menu and the screen that it opens.
    void open(const QString &heading, const QStringList &entries, const QString &name) {
        script_.menu(heading);
        for (const QString &entry : entries) {
            script_.choose(entry);
        }
        script_.at(name);
    }
    void catalogue(const QStringList &entries, const QString &name) {
        open(u"Mantenimiento"_s, entries, name);
        picture(name, name.toLower());
    }
    /// One whose list depends on what is chosen above it, each by the beginning of its name.
    void catalogue(const QStringList &entries, const QString &name, const QStringList &choices) {
        open(u"Mantenimiento"_s, entries, name);
        for (const QString &choice : choices) {
            script_.type(choice).enter();
        }
        picture(name, name.toLower());
    }
    void tab(int times, Qt::KeyboardModifiers modifiers = {}) {
        for (int time = 0; time < times; ++time) {
            script_.press(Qt::Key_Tab, modifiers);
        }
    }
    void save(const QImage &image, const QString &file) {
        QFile out(u"%1/%2.png"_s.arg(folder_, file));
        const QByteArray bytes = encoded(image);
        if (!out.open(QIODevice::WriteOnly) || out.write(bytes) != bytes.size()) {
            missed_ += file;
        }
    }
    const QStringList &missed() const { return missed_; }

private:
    KeyScript &script_;
    QString folder_;
    QStringList missed_;
};

void mainWindow(KeyScript &script, Tour &tour) {
    script.at(u"FRMAcceso"_s, u"Edit1"_s);
    tour.picture(u"FRMAcceso"_s, u"frmacceso"_s);
    tour.logIn(u"admin"_s, u"admin"_s);
    script.at(u"FRM000"_s).menu(u"Mantenimiento"_s);
    tour.wholeDesktop(u"frm000"_s);
    script.press(Qt::Key_Escape).press(Qt::Key_Escape);
}

void organisation(KeyScript &script, Tour &tour) {
    const QString centre = u"CLINICA DE LIC"_s;
    tour.catalogue({u"Centros de atención"_s}, u"FRM100"_s);
    script.press(Qt::Key_F2).at(u"FRM100"_s);
    tour.picture(u"FRM100"_s, u"catalogo-edicion"_s);
    script.press(Qt::Key_Escape).press(Qt::Key_Escape);
    tour.catalogue({u"Áreas de venta"_s}, u"FRM105"_s);
    tour.catalogue({u"Centros Atención / Area Ventas"_s}, u"FRM102"_s, {centre});
    tour.catalogue({u"Clinicas por Areas de Ventas"_s}, u"FRM101"_s, {centre, u"ADULTOS"_s});
    tour.catalogue({u"Clasificación de Pacientes"_s}, u"FRM103"_s);
    tour.catalogue({u"Clasificación de Servicios Prestados"_s}, u"FRM104"_s,
                   {centre, u"ADULTOS"_s});
    // Past the navigator and the two buttons that are on.
    tour.tab(7, Qt::ShiftModifier);
    script.at(u"FRM104"_s, u"ActualizarDescuento"_s).enter();
    tour.picture(u"FRM104a"_s, u"frm104a"_s);
    script.press(Qt::Key_Escape).at(u"FRM104"_s);
}

void pricesAndMoney(KeyScript &script, Tour &tour) {
    tour.catalogue({u"Lista de Precios"_s}, u"FRM107"_s, {u"ADULTOS"_s});
    script.press(Qt::Key_F10, Qt::ControlModifier);
    tour.picture(u"PreviewWindow"_s, u"preliminar"_s);
    script.press(Qt::Key_Escape).at(u"FRM107"_s);
    tour.catalogue({u"Laboratorios Externos"_s}, u"FRM106"_s);
    tour.catalogue({u"Forma de Pago"_s}, u"FRM108"_s);
    tour.catalogue({u"Métodos de Pago"_s}, u"FRM109"_s);
    tour.catalogue({u"Finanzas"_s, u"Bancos"_s}, u"FRM110"_s);
    tour.catalogue({u"Finanzas"_s, u"Tipo Cambio"_s}, u"FRM111"_s);
}

void administration(KeyScript &script, Tour &tour) {
    const QString panel = u"FRMControlPanel"_s;
    script.press(Qt::Key_F9);
    tour.picture(panel, u"frmcontrolpanel"_s);
    for (const QString &page :
         {u"sistema"_s, u"opciones"_s, u"impresiones"_s, u"configuraciones"_s}) {
        script.press(Qt::Key_Tab, Qt::ControlModifier);
        tour.picture(panel, u"frmcontrolpanel-"_s + page);
    }
    script.press(Qt::Key_Escape).at(u"FRM000"_s);
    for (const auto &[entry, name] : {std::pair(u"Control de Usuarios"_s, u"FRMControlUsuarios"_s),
                                      std::pair(u"Datos Caja"_s, u"FRMDatosCaja"_s)}) {
        tour.open(u"Administración"_s, {entry}, name);
        tour.picture(name, name.toLower());
    }
}

void changeOfPassword(KeyScript &script, Tour &tour) {
    script.press(Qt::Key_F11);
    tour.logIn(u"cajero1"_s, u"caja1"_s);
    script.at(u"FRM000"_s).press(Qt::Key_F11);
    script.at(u"FRMAcceso"_s, u"Edit1"_s).type(u"cajero1"_s).enter();
    script.at(u"FRMAcceso"_s, u"Edit2"_s).alt('c');
    tour.picture(u"FRMPass"_s, u"frmpass"_s);
    script.press(Qt::Key_Escape).at(u"FRMAcceso"_s, u"Edit2"_s);
    script.press(Qt::Key_Escape).at(u"FRM000"_s);
}

void addLine(KeyScript &script, const QString &key, const QString &quantity) {
    script.at(u"FRM401"_s, u"AgregarRegistro"_s).enter();
    script.at(u"FRM401"_s, u"Detalle"_s).type(key).enter().enter().type(quantity).enter();
    script.at(u"FRM401"_s, u"AgregarRegistro"_s);
}

/// The note of a student who stands twice in the roll.
void note(KeyScript &script, Tour &tour) {
    script.press(Qt::Key_G, Qt::ControlModifier);
    script.at(u"FRM401"_s, u"ComboBox1"_s).type(u"AL"_s).enter();
    script.at(u"FRM401"_s, u"ComboBox2"_s).type(u"ALUMNOS"_s).enter();
    script.at(u"FRM401"_s, u"Matricula"_s).type(u"1100008"_s).enter();
    tour.picture(u"FRMAlumnos"_s, u"frmalumnos"_s);
    script.enter();
    addLine(script, u"9"_s, u"2"_s);
    addLine(script, u"10"_s, u"1"_s);
    tour.picture(u"FRM401"_s, u"frm401"_s);
    tour.tab(2);
    script.at(u"FRM401"_s, u"Detalle"_s).press(Qt::Key_F6);
    script.at(u"FRM401_4"_s, u"Memo1"_s).type(u"segundo juego, entrega en clinica 3"_s);
    tour.picture(u"FRM401_4"_s, u"frm401_4"_s);
    script.alt('a').at(u"FRM401"_s).press(Qt::Key_Return, Qt::ControlModifier);
    script.at(u"FRM401_3"_s, u"CEdit4"_s).type(u"200"_s).enter();
    script.at(u"FRM401_3"_s, u"ImprimirRecibo"_s);
    tour.picture(u"FRM401_3"_s, u"frm401_3"_s);
    script.enter().atBox(u"La información ha sido registrada correctamente"_s).enter();
    script.at(u"FRM401"_s, u"ComboBox1"_s);
}

void cutAndRepair(KeyScript &script, Tour &tour) {
    tour.open(u"Caja"_s, {u"Corte de Caja"_s}, u"FRM405"_s);
    tour.picture(u"FRM405"_s, u"frm405"_s);
    script.alt('g');
    tour.picture(u"PreviewWindow"_s, u"corte-recibos"_s);
    for (int report = 0; report < 3; ++report) {
        script.at(u"PreviewWindow"_s).press(Qt::Key_Escape);
    }
    script.at(u"FRM405"_s);
    tour.open(u"Funciones Especiales"_s, {u"Recibos Incompletos"_s}, u"FRM801"_s);
    tour.picture(u"FRM801"_s, u"frm801"_s);
    script.press(Qt::Key_Escape).at(u"FRM405"_s);
}

void exampleSchool(KeyScript &script, Tour &tour) {
    mainWindow(script, tour);
    organisation(script, tour);
    pricesAndMoney(script, tour);
    administration(script, tour);
    changeOfPassword(script, tour);
    note(script, tour);
    cutAndRepair(script, tour);
}

void emptyInstallation(KeyScript &script, Tour &tour) {
    const QString wizard = u"FRMInicioFirebird"_s;
    tour.logIn(u"admin"_s, u"admin"_s);
    script.at(wizard, u"Edit1"_s);
    tour.picture(wizard, u"frminiciofirebird"_s);
    script.type(u"Valle Norte"_s).enter().type(u"BCN"_s).enter().type(u"2"_s).enter();
    script.at(wizard, u"Edit2"_s);
    for (const QString &value :
         {u"01"_s, u"Clinica de licenciatura"_s, u"Av. del Puerto 1200"_s, u"Centro"_s,
          u"6865550142"_s, u"1"_s, u"CAJA 01"_s, u"caja1"_s, u"caja1"_s, u"PEREZ LUNA ANA"_s}) {
        script.type(value).enter();
    }
    script.alt('s').at(wizard, u"Areas"_s);
    for (int area = 0; area < 4; ++area) {
        script.press(Qt::Key_Insert);
    }
    tour.picture(wizard, u"frminiciofirebird-areas"_s);
    script.alt('s').at(wizard);
    tour.picture(wizard, u"frminiciofirebird-final"_s);
}

}  // namespace

int takeManualPictures(int argc, char **argv, Installed installed) {
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    Application application(argc, argv);
    ProgramSettings settings;
    settings.root = QString::fromLocal8Bit(argv[2]);
    settings.splash = std::chrono::milliseconds(10);
    Program program(settings);

    KeyScript script;
    const QString folder = QString::fromLocal8Bit(argv[3]);
    QDir().mkpath(folder);
    Tour tour(script, folder);
    installed == Installed::Empty ? emptyInstallation(script, tour) : exampleSchool(script, tour);
    QObject::connect(&script, &KeyScript::failed, [&](const QString &text) {
        std::cerr << "pictures: " << text.toStdString() << '\n';
        tour.save(desktopPicture(), u"failed"_s);
        application.endApplication(kFailed);
    });
    QObject::connect(&script, &KeyScript::finished, [&] { application.endApplication(); });
    script.start();
    const int code = program.run();
    for (const QString &file : tour.missed()) {
        std::cerr << "pictures: no " << file.toStdString() << '\n';
    }
    return code == 0 && script.isDone() && tour.missed().isEmpty() ? 0 : kFailed;
}

}  // namespace kaldo
