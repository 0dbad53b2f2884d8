#include "data/runtime_texts.h"
#include "payments/frm401_payment_note.h"
#include "payments/service_types.h"
#include "people/employee.h"

namespace kaldo {

void FRM401::elegirTipoServicio() {
    if (!context().local.FBDetalleVtas.isEmpty() || ComboBox1_->currentIndex() < 0) {
        return;
    }
    Limpiar1();
    PorcPrestacion_ = 0;
    TipoServ_ = tipoServOf(ComboBox1_->currentText());
    CadenaTS();
    context().odonto.serviciosxctros.open({{QStringLiteral("P_CENTRO"), session().Centro.text()},
                                           {QStringLiteral("P_DIRIGIDO"), TipoServ_}});
    moveFocus(ComboBox2_);
}

void FRM401::CadenaTS() {
    CadenaServicio_ = cadenaServicioOf(ComboBox1_->currentText());
}

int FRM401::tipoProd() const {
    return context().odonto.serviciosxctros.integer(QStringLiteral("TIPO_PROD"));
}

void FRM401::elegirArea() {
    if (ComboBox2_->text().isEmpty()) {
        return;
    }
    NamedQuery &places = context().odonto.AreaAtencion;
    places.open({{QStringLiteral("centro"), session().Centro.text()},
                 {QStringLiteral("tipo"), tipoProd()}});
    ComboBox3_->clearField();
    identifyAnew();
    panelLugar_->setVisible(!places.isEmpty());
    if (places.isEmpty()) {
        ClasServicios();
    } else {
        moveFocus(ComboBox3_);
    }
}

void FRM401::elegirLugar() {
    if (!ComboBox3_->text().isEmpty()) {
        ClasServicios();
    }
}

/// Whoever was identified before has to pass the tests of the area and place that come.
void FRM401::identifyAnew() {
    expedienteTomado_.clear();
    panelPaciente_->setEnabled(false);
    panelAlumno_->setEnabled(false);
    panelNoEmpleado_->setVisible(false);
    agregar_->setEnabled(false);
}

/// The service decides how the payer is identified.
void FRM401::ClasServicios() {
    identifyAnew();
    switch (payerPath(TipoServ_)) {
        case PayerPath::OpenDossier:
            abrirExpediente();
            return;
        case PayerPath::Dossier:
            identifyByDossier();
            break;
        case PayerPath::Names:
            identifyByNames();
            break;
        case PayerPath::Student:
            identifyByStudent();
            break;
        case PayerPath::EmployeeOrStudent:
            identifyEmployeeOrStudent();
            break;
        case PayerPath::None:
            openPatientType(kPlainPatient);
            break;
    }
    openPriceList();
}

void FRM401::openPatientType(int prestacion) {
    context().caja.Prestaciones1.open({{QStringLiteral("prestacion"), prestacion}});
}

void FRM401::openPriceList() {
    precios_ = &context().caja.ListaPrecios;
    precios_->open({{QStringLiteral("tipo_prod"), tipoProd()}});
    showPriceList();
    if (!TipoServ_.isEmpty() && precios_->isEmpty()) {
        messages().information(
            QStringLiteral("No existe lista de precios para est tipo de servicios, presione "
                           "cualquier tecla para continuar."));
    }
}

/// The list without the concepts for the other age.
void FRM401::openPriceListForAge(int edad) {
    constexpr int kOldestChild = 14;
    ListaPreciosFace_->setText(listaPreciosFaceText(tipoProd(), edad <= kOldestChild));
    ListaPreciosFace_->open();
    precios_ = ListaPreciosFace_.get();
    showPriceList();
}

/// "Clave" of the grid chooses from the list in force.
void FRM401::showPriceList() {
    grid_->setLookup(
        QStringLiteral("CVE_PROD"),
        {precios_,
         QStringLiteral("CVE_PROD"),
         QStringLiteral("DESCR"),
         {{QStringLiteral("DESCR"), QStringLiteral("Descripción"), 62, CellMask::Text},
          {QStringLiteral("MENUDEO"), QStringLiteral("Precio"), 14, CellMask::MoneyTight}}});
}

/// Dossiers are not opened at this desk yet: the choice is taken back.
void FRM401::abrirExpediente() {
    messages().information(
        QStringLiteral("La apertura de expedientes aún no está disponible en esta caja."));
    context().odonto.serviciosxctros.close();
    context().odonto.AreaAtencion.close();
    ComboBox1_->setIndex(-1);
    ComboBox2_->clearField();
    ComboBox3_->clearField();
    panelLugar_->setVisible(false);
    TipoServ_.clear();
    CadenaServicio_.clear();
    moveFocus(ComboBox1_);
}

void FRM401::identifyByDossier() {
    openPatientType(kPlainPatient);
    panelPaciente_->setEnabled(true);
    consultarExpedientes_->setEnabled(true);
    filtro_->setEnabled(true);
    Edit2_->setFieldReadOnly(false);
    moveFocus(Edit2_);
}

void FRM401::identifyByNames() {
    openPatientType(kPlainPatient);
    Edit2_->setFieldReadOnly(true);
    panelPaciente_->setEnabled(true);
    moveFocus(paterno_);
}

void FRM401::identifyByStudent() {
    panelAlumno_->setVisible(true);
    panelAlumno_->setEnabled(true);
    moveFocus(matricula_);
}

void FRM401::identifyEmployeeOrStudent() {
    openPatientType(kPlainPatient);
    // Asked anew: the answer of before must not name the payer.
    LimpiaEmpleado();
    for (TextField *field : {noEmpleado_, matricula_, alumno_, paterno_, materno_, nombre_}) {
        field->clear();
    }
    if (messages().confirm(QStringLiteral("Es empleado?")) == Answer::Yes) {
        panelNoEmpleado_->setVisible(true);
        moveFocus(noEmpleado_);
        return;
    }
    NumEmpleado_ = 0;
    openPatientType(kPlainPatient);
    if (messages().confirm(QStringLiteral("Es alumno regular?")) == Answer::Yes) {
        panelAlumno_->setVisible(true);
        panelAlumno_->setEnabled(true);
        moveFocus(matricula_);
    } else {
        Edit2_->setFieldReadOnly(true);
        panelPaciente_->setEnabled(true);
        moveFocus(paterno_);
    }
}

}  // namespace kaldo
