#include "people/frm_alumnos_student_choice.h"

#include <QHeaderView>

#include "app/binding.h"
#include "people/names.h"
#include "people/student.h"
#include "toolkit/forms/form.h"

namespace kaldo {

FRMAlumnos::FRMAlumnos(Context &context)
    : Dialog(context, QStringLiteral("FRMAlumnos"), QStringLiteral("Datos Alumno")) {}

std::optional<QString> FRMAlumnos::choose(const QString &heading, ScreenBase *opener) {
    heading_ = heading;
    alumno_.reset();
    showModal(opener);
    return alumno_;
}

void FRMAlumnos::build() {
    using namespace form;
    const QList<GridColumn> columns{
        GridColumn(QStringLiteral("UNIDAD_CLAVE"), QStringLiteral("Facultad"), 9)
            .align(Qt::AlignLeft),
        GridColumn(QStringLiteral("UNIDAD_DESC"), QStringLiteral("Descripción"), 42).stretch(),
        GridColumn(QStringLiteral("VIGENCIA_DESC"), QStringLiteral("Vigencia"), 16)};
    form::build(
        this,
        column({
            label(&headingLabel_, QStringLiteral("Label1")).bold().wrap().fill(),
            label(QStringLiteral("Encontrados")),
            grid(&grid_, QStringLiteral("Encontrados"))
                .accessible(QStringLiteral("Encontrados"))
                .hint(QStringLiteral("Seleccione con Doble Click"))
                .columns(columns)
                .with([](DataGrid *widget) { widget->setRowSelection(true); })
                .fill()
                .grow(),
            row({text(&total_, QStringLiteral("TotalRecibos"), QStringLiteral("Total de Recibos"))
                     .width(5)
                     .readOnly(),
                 stretch(),
                 button(&asignar_, QStringLiteral("AsignarMatricula"),
                        QStringLiteral("Asignar &Matricula"))
                     .icon(QStringLiteral("accept"))
                     .clicked([this] { asignarMatricula(); }),
                 button(&cerrar_, QStringLiteral("Cerrar"), QStringLiteral("&Cerrar"))
                     .icon(QStringLiteral("close"))
                     .clicked([this] { reject(); })
                     .escape()}),
        }));
    bindGrid(grid_, &context().escolares.MatriculaPadron);
    connectGuarded(grid_, &DataGrid::currentRowChanged, this, [this] { rowChosen(); });
    grid_->setDoubleClickHandler([this] { asignarMatricula(); });
    grid_->setColumnEnterHandler([this](const QString &) { asignarMatricula(); });
    grid_->setMinimumHeight(fontMetrics().height() * 9);
    resize(fontMetrics().averageCharWidth() * 92, sizeHint().height());
}

void FRMAlumnos::activated() {
    headingLabel_->setText(heading_);
    total_->setText(QString::number(context().escolares.MatriculaPadron.count()));
    grid_->setCurrentRow(0);
    rowChosen();
    moveFocus(grid_);
}

void FRMAlumnos::rowChosen() {
    asignar_->setEnabled(context().escolares.MatriculaPadron.text(
                             QStringLiteral("VIGENCIA_DESC")) == QLatin1String("ACTIVO"));
}

void FRMAlumnos::asignarMatricula() {
    const NamedQuery &roll = context().escolares.MatriculaPadron;
    if (!asignar_->isEnabled()) {
        stayHere();
        return;
    }
    if (!isSchoolUnit(roll.integer(QStringLiteral("UNIDAD_CLAVE")))) {
        messages().warning(QStringLiteral("El Alumno pertenece a la Facultad: %1. Verifique la "
                                          "información con Servicios Escolares.")
                               .arg(roll.text(QStringLiteral("UNIDAD_DESC"))));
        moveFocus(grid_);
        return;
    }
    alumno_ = studentName(roll.text(QStringLiteral("NOMBRE_PATERNO")),
                          roll.text(QStringLiteral("NOMBRE_MATERNO")),
                          roll.text(QStringLiteral("NOMBRE_NOM")))
                  .toUpper();
    accept();
}

}  // namespace kaldo
