#include "data/runtime_texts.h"
#include "payments/frm401_payment_note.h"
#include "payments/line_rules.h"
#include "people/age.h"
#include "people/dossier_number.h"
#include "people/employee_register.h"

namespace kaldo {

void FRM401::repetirExpediente() {
    if (!Edit2_->isReadOnly() && !session().UltimoExpediente.text().isEmpty()) {
        Edit2_->setText(session().UltimoExpediente.text());
        pagadorCambiado();
    }
}

void FRM401::LlenaExpediente() {
    Edit2_->setText(completeDossierNumber(Edit2_->text()));
}

void FRM401::buscarExpediente() {
    if (Edit2_->text().isEmpty()) {
        return;
    }
    LlenaExpediente();
    forgetDossier();
    Expe_->setText(expeText(Edit2_->text(), session().Origen.text()));
    Expe_->open();
    if (Expe_->isEmpty()) {
        messages().information(
            QStringLiteral("Este expediente no se encuentra registrado, vuelva a capturar un "
                           "expediente valido."));
        refuseDossier();
        return;
    }
    if (Expe_->text(QStringLiteral("STATUS")) == QLatin1String("CA")) {
        messages().information(
            QStringLiteral("El expediente se encuentra cancelado, revise la infrmación."));
        Edit2_->clear();
        moveFocus(Edit2_);
    }
    if (!expedienteDeEsteCentro()) {
        refuseDossier();
        return;
    }

    NamedQuery &limits = context().caja.Clasifservicios;
    limits.open({{QStringLiteral("cd"), session().Origen.text()},
                 {QStringLiteral("tipo_prod"), tipoProd()}});
    FolioAdmision_ = Expe_->integer(QStringLiteral("FOLIO"));
    matricula_->setText(Expe_->text(QStringLiteral("CANALIZADOA")));
    alumno_->setText(Expe_->text(QStringLiteral("NOMBRE")));
    if (limits.text(QStringLiteral("REQUIERE_EDAD")) != QLatin1String("S")) {
        DatosExpediente();
        return;
    }
    if (!edadCorresponde()) {
        refuseDossier();
        return;
    }
    // A dossier that is not in force ends here without a word.
    if (Expe_->text(QStringLiteral("STATUS")) != QLatin1String("AU")) {
        forgetDossier();
        moveFocus(Edit2_);
        return;
    }
    DatosExpediente();
    if (tipoProd() == kFaceArea) {
        openPriceListForAge(Expe_->integer(QStringLiteral("EDAD")));
    }
}

bool FRM401::expedienteDeEsteCentro() {
    if (Expe_->text(QStringLiteral("CENTRO")).trimmed() == session().Centro.text()) {
        return true;
    }
    const QString centre = Expe_->text(QStringLiteral("DESCR"));
    if (!options().ExpedientesOtrosCentros) {
        messages().information(QStringLiteral("Este espediente pertenece a: ") + centre +
                               QStringLiteral(". No tiene los permisos necesarios para "
                                              "utilizarlo, consúltelo con su analista."));
        return false;
    }
    origen_->setText(centre);
    panelOrigen_->setVisible(true);
    return true;
}

bool FRM401::edadCorresponde() {
    const NamedQuery &limits = context().caja.Clasifservicios;
    const int age = Expe_->integer(QStringLiteral("EDAD"));
    if (ageWithin(age, limits.integer(QStringLiteral("EDADMIN")),
                  limits.integer(QStringLiteral("EDADMAX")))) {
        return true;
    }
    messages().information(
        QStringLiteral("La edad del paciente es de %1 años y no corresponde a la categoría de ")
            .arg(age) +
        ComboBox2_->text());
    return false;
}

/// Nothing of an earlier dossier stays while another one is sought.
void FRM401::forgetDossier() {
    LimpiaEmpleado();
    expedienteTomado_.clear();
    FolioAdmision_ = 0;
    PrestacionExpediente_ = 0;
    for (TextField *field : {paterno_, materno_, nombre_, matricula_, alumno_, tipoPaciente_}) {
        field->clear();
    }
    panelOrigen_->setVisible(false);
    origen_->clear();
    panelAlumno_->setEnabled(false);
    agregar_->setEnabled(false);
    registrar_->setEnabled(false);
}

void FRM401::refuseDossier() {
    forgetDossier();
    Edit2_->clear();
    moveFocus(Edit2_);
}

void FRM401::DatosExpediente() {
    if (Expe_->isEmpty()) {
        return;
    }
    if (!useDossier()) {
        refuseDossier();
        hideDossierList();
        return;
    }
    LimpiarTabla();
    setListsEnabled(true);
    takeDossierData();
    if (!takeEmployeeOfDossier()) {
        return;
    }
    if (!Edit2_->text().isEmpty() && !context().local.FBDetalleVtas.isEmpty()) {
        registrar_->setEnabled(true);
    }
    CargarPrestacion();
    if (TipoServ_ == QLatin1String("AP") &&
        ComboBox2_->text() == QLatin1String("SERVICIOS DE DIPLOMADOS")) {
        readyForLines();
    } else if (educativo()) {
        panelAlumno_->setEnabled(true);
        hideDossierList();
        moveFocus(matricula_);
    } else {
        readyForLines();
    }
}

bool FRM401::useDossier() {
    return messages().confirm(QStringLiteral("Desea usar la información seleccionada de ") +
                              Expe_->text(QStringLiteral("PACIENTE")) + u' ' +
                              Expe_->text(QStringLiteral("PATERNO")).trimmed() + u' ' +
                              Expe_->text(QStringLiteral("MATERNO")).trimmed() +
                              QStringLiteral(" ?")) == Answer::Yes;
}

void FRM401::takeDossierData() {
    PrestacionExpediente_ = Expe_->integer(QStringLiteral("PRESTACION"));
    Edit2_->setText(Expe_->text(QStringLiteral("EXPEDIENTE")));
    expedienteTomado_ = Edit2_->text();
    paterno_->setText(Expe_->text(QStringLiteral("PATERNO")));
    materno_->setText(Expe_->text(QStringLiteral("MATERNO")));
    nombre_->setText(Expe_->text(QStringLiteral("PACIENTE")));
    for (TextField *name : {paterno_, materno_, nombre_}) {
        name->setFieldReadOnly(true);
    }
    if (Expe_->integer(QStringLiteral("CANALIZADOA")) > 0) {
        matricula_->setText(Expe_->text(QStringLiteral("CANALIZADOA")));
        alumno_->setText(Expe_->text(QStringLiteral("NOMBRE")));
    }
    if (PrestacionExpediente_ > 0) {
        openPatientType(PrestacionExpediente_);
        tipoPaciente_->setText(context().caja.Prestaciones1.text(QStringLiteral("DESCRIPCION")));
    } else {
        openPatientType(kPlainPatient);  // not the one of the dossier before
    }
}

/// The benefit of a dossier comes from an employee who must be one still.
bool FRM401::takeEmployeeOfDossier() {
    LimpiaEmpleado();
    if (PrestacionExpediente_ <= 1) {
        return true;
    }
    const int number = Expe_->integer(QStringLiteral("NUM_EMPL"));
    if (!isCurrentEmployee(findEmployee(context().caja, QString::number(number)))) {
        messages().information(
            QStringLiteral("El Empleado NO esta vigente, consulte con R.H. ó cambie la "
                           "prestación del expediente. "));
        moveFocus(Edit2_);
        return false;
    }
    NumEmpleado_ = number;
    empleado_->setText(employeeLabel(number, Expe_->text(QStringLiteral("EMPLEADO"))));
    dependencia_->setText(Expe_->text(QStringLiteral("DEPENDENCIA")));
    panelEmpleado_->setVisible(true);
    return true;
}

/// A dossier pays the full price.
void FRM401::CargarPrestacion() {
    PorcPrestacion_ = 0;
    prestacionLabel_->setText(QStringLiteral("Prestación"));
}

void FRM401::LimpiaEmpleado() {
    NumEmpleado_ = 0;
    nombreEmpleado_->clear();
    empleado_->clear();
    dependencia_->clear();
    panelEmpleado_->setVisible(false);
    PorcPrestacion_ = 0;
    prestacionLabel_->setText(QStringLiteral("Prestación"));
}

void FRM401::consultarExpedientes() {
    if (!panelPaciente_->isEnabled()) {
        return;
    }
    if (!listaExpedientes_->isHidden()) {
        hideDossierList();
        moveFocus(Edit2_);
        return;
    }
    const QDate since = options().fechaExpedientes();
    if (!since.isValid()) {
        messages().warning(
            QStringLiteral("La fecha inicial de búsqueda de expedientes no es válida, revise el "
                           "panel de control."));
        return;
    }
    for (TextField *field : {matricula_, alumno_, tipoPaciente_}) {
        field->clear();
    }
    const NamedQuery &area = context().odonto.serviciosxctros;
    const DossierListFilter filter = dossierListFilter(
        area.integer(QStringLiteral("EDADMIN")), area.integer(QStringLiteral("EDADMAX")),
        ComboBox2_->text(), options().ExpedientesOtrosCentros);
    context().odonto.CargarExp.open({{QStringLiteral("CENT"), session().Centro.text()},
                                     {QStringLiteral("CD"), session().Origen.text()},
                                     {QStringLiteral("FECHA"), since},
                                     {QStringLiteral("TIPO"), filter.tipo},
                                     {QStringLiteral("BAN"), filter.ban}});
    listaExpedientes_->setVisible(true);
    moveFocus(listaExpedientes_);
}

void FRM401::tomarExpediente() {
    Edit2_->setText(context().odonto.CargarExp.text(QStringLiteral("EXPEDIENTE")));
    hideDossierList();
    Edit2_->pressEnter();
}

void FRM401::cancelarLista() {
    Edit2_->clear();
    pagadorCambiado();
    hideDossierList();
    moveFocus(Edit2_);
}

void FRM401::hideDossierList() {
    listaExpedientes_->closeList();
    listaExpedientes_->setVisible(false);
    listaExpedientes_->clearField();
}

void FRM401::alternarFiltro() {
    const bool on = !listaExpedientes_->filtering();
    listaExpedientes_->setFiltering(on);
    const QString hint = on ? QStringLiteral("Desactivar Filtro de Busqueda")
                            : QStringLiteral("Activar Filtro de Busqueda");
    filtro_->setText(hint);
    filtro_->setToolTip(hint);
    filtro_->setAccessibleName(hint);
    filtro_->setIconName(on ? QStringLiteral("filter-off") : QStringLiteral("filter"));
    moveFocus(listaExpedientes_->isHidden() ? static_cast<QWidget *>(Edit2_) : listaExpedientes_);
}

}  // namespace kaldo
