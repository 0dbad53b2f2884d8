#include "shell/frm_version_about.h"

#include "shell/version.h"
#include "toolkit/forms/form.h"
#include "toolkit/forms/picture_file.h"

#include <QPixmap>

namespace kaldo {

namespace {

constexpr QSize kLargest(480, 240);
constexpr int kDrawing = 96;

}  // namespace

FRMVersion::FRMVersion(Context &context)
    : Dialog(context, QStringLiteral("FRMVersion"), QStringLiteral("Acerca de...")) {}

void FRMVersion::build() {
    using namespace form;
    const QStringList &outside = context().conexion.outside();
    const QString elsewhere =
        QStringLiteral("Bases de datos fuera de la carpeta de esta instalación:\n") +
        outside.join(u'\n');
    form::build(
        this,
        column({
            row({stretch(), form::label(&Image1_, QStringLiteral("Image1")), stretch()}),
            row({stretch(),
                 form::label(QStringLiteral("Versión  ") + QString::fromLatin1(kVersion))
                     .with([](QLabel *label) { label->setObjectName("Label1"); })
                     .heading(),
                 stretch()}),
            row({stretch(),
                 form::label(outside.isEmpty() ? QString() : elsewhere).with([](QLabel *label) {
                     label->setObjectName("outside");
                 }),
                 stretch()}),
            form::line(),
            row({stretch(),
                 button(nullptr, QStringLiteral("BitBtn1"), QStringLiteral("&Cerrar Ventana"))
                     .icon(QStringLiteral("close"))
                     .escape()
                     .clicked([this] { reject(); })}),
        }));
    showPicture();
}

void FRMVersion::showPicture() {
    QPixmap picture = QPixmap::fromImage(loadPicture(
        context().installation.map(QStringLiteral("C:\\KALDO\\images\\KALDO\\kaldo.png"))));
    if (picture.isNull()) {
        picture = iconNamed(QStringLiteral("logo"))
                      .pixmap(QSize(kDrawing, kDrawing), devicePixelRatioF());
    } else if (picture.width() > kLargest.width() || picture.height() > kLargest.height()) {
        picture = picture.scaled(kLargest, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }
    Image1_->setPixmap(picture);
}

}  // namespace kaldo
