#include "payments/frm401_payment_note.h"

#include "payments/frm401_3_payment_form.h"
#include "payments/registration.h"
#include "payments/service_types.h"

namespace kaldo {

FRM401::FRM401(Context &context, FRM401_3 &formaPago, FRMAlumnos &alumnos)
    : Screen(context, QStringLiteral("FRM401"), QStringLiteral("Registro Pagos")),
      formaPago_(formaPago),
      alumnos_(alumnos),
      descripcionAdicional_(context),
      registration_(std::make_unique<Registration>(context, formaPago.receipt())),
      Expe_(context.odonto.newQuery("Expe")),
      ConsultaAdmision_(context.odonto.newQuery("ConsultaAdmision")),
      ClaveRepetida_(context.local.newQuery("ClaveRepetida")),
      ListaPreciosFace_(context.caja.newQuery("ListaPrecios")),
      precios_(&context.caja.ListaPrecios) {
    buildForm();
}

FRM401::~FRM401() {
    // The queries outlive the screen; what its grid and lists show of them must not.
    grid_->setModel(nullptr);
}

void FRM401::formCreate() {
    Combo();
    panelAlumno_->setVisible(educativo());
    Expe_->close();
    fillHeading();
    RadioGroup1_->setIndex(int(NoteMode::Registrar));
    RadioGroup1Click();
}

void FRM401::Combo() {
    ComboBox1_->setItems(serviceTypeRows(empresarial()));
}

bool FRM401::empresarial() const {
    return options().sector == Sector::Empresarial;
}

bool FRM401::educativo() const {
    return options().sector == Sector::Educativo;
}

void FRM401::fillHeading() {
    const QString centre = session().CentroDescr.text();
    cajero_->setText(session().NombreCorto.text());
    centro_->setText(centre.left(1) + centre.mid(1).toLower());
    centro_->setToolTip(centro_->text());
    turno_->setText(session().TurnoDescr.text());
}

void FRM401::RadioGroup1Click() {
    caja_->setText(QString::number(session().NumCaja));
    Limpiar();
    context().odonto.serviciosxctros.close();
    context().odonto.AreaAtencion.close();
    LimpiarTabla();

    formaPagoButton_->setEnabled(false);
    grid_->setColumnVisible(QStringLiteral("CVE_PROD"), true);
    Habilitar();
    NamedQuery &desk = context().caja.DatosCaja1;
    desk.open({{QStringLiteral("caja"), int(session().NumCaja)}});
    // Without a desk there is no number, and the field stays empty.
    NotaActual_ = desk.integer(QStringLiteral("NOTA_VTA"));
    Edit1_->setText(desk.text(QStringLiteral("NOTA_VTA")));
    moveFocus(ComboBox1_);
}

/// The mode in force chosen once more is no change: a note that is being written stays. Only where
/// its number could not be read the mode is entered again.
void FRM401::repetirModo() {
    if (Edit1_->text().isEmpty()) {
        RadioGroup1Click();
    }
}

/// What a new note and a new service type both put back to the start.
void FRM401::clearCounters() {
    const QDate today = context().clock.today();
    DateEdit1_->setDate(today);
    DateEdit2_->setDate(today);
    PorcPrestacion_ = 0;
    PrestacionExpediente_ = 0;
    NumEmpleado_ = 0;
    FolioAdmision_ = 0;
    TipoPaciente_.clear();
    PrestamoValido_ = false;
    PrestamoPendiente_ = false;
    empleado_->clear();
    dependencia_->clear();
    origen_->clear();
    prestacionLabel_->setText(QStringLiteral("Prestación"));
    for (MoneyField *amount : {CEdit0_, subtotal_, CEdit1_, CEdit2_, CEdit3_}) {
        amount->setValue(0);
    }
    panelAnticipo_->setVisible(false);
    registrar_->setEnabled(false);
}

/// Nobody is identified: the strips of the payer are empty and closed.
void FRM401::clearPayer() {
    for (TextField *field : {Edit2_, tipoPaciente_, paterno_, materno_, nombre_, matricula_,
                             alumno_, noEmpleado_, nombreEmpleado_}) {
        field->clear();
    }
    // The age of nobody yet: a date left at today is asked for.
    edad_->setText(QStringLiteral("0"));
    expedienteTomado_.clear();
    sexo_->setIndex(-1);
    for (TextField *name : {paterno_, materno_, nombre_}) {
        name->setFieldReadOnly(false);
    }
    Edit2_->setFieldReadOnly(false);
    hideDossierList();

    panelPaciente_->setEnabled(false);
    consultarExpedientes_->setEnabled(false);
    filtro_->setEnabled(false);
    panelAlumno_->setEnabled(false);
    panelAlumno_->setVisible(educativo());
    panelOrigen_->setVisible(false);
    panelNacimiento_->setVisible(false);
    panelNoEmpleado_->setVisible(false);
    panelEmpleado_->setVisible(false);
    for (Button *button : {agregar_, borrar_, grabar_, cancelar_}) {
        button->setEnabled(false);
    }
}

void FRM401::Limpiar() {
    clearCounters();
    ComboBox1_->setIndex(-1);
    ComboBox2_->clearField();
    ComboBox3_->clearField();
    panelLugar_->setVisible(false);
    clearPayer();
    TipoServ_.clear();
    CadenaServicio_.clear();
    NombreRepetido_ = false;
    Editando_ = false;
    registrar_->setText(QStringLiteral("&Registrar Información"));
    registrar_->setIconName(QStringLiteral("accept"));
    Edit1_->setFieldReadOnly(true);
    Edit1_->clear();
    ComboBox1_->setEnabled(true);
    ComboBox2_->setEnabled(true);
}

/// Only a choice in the service list runs it, wherever the focus is by then: Tab has left the list
/// before its choice counts.
void FRM401::Limpiar1() {
    clearCounters();
    ComboBox2_->clearField();
    ComboBox3_->clearField();
    panelLugar_->setVisible(false);
    clearPayer();
}

void FRM401::Habilitar() {
    setListsEnabled(true);
    for (TextField *name : {paterno_, materno_, nombre_}) {
        name->setFieldReadOnly(false);
    }
}

void FRM401::setListsEnabled(bool enabled) {
    ComboBox1_->setEnabled(enabled);
    ComboBox2_->setEnabled(enabled);
    ComboBox3_->setEnabled(enabled);
}

void FRM401::LimpiarTabla() {
    NamedQuery &lines = context().local.FBDetalleVtas;
    lines.cancelUpdates();
    context().local.LimpiarTabla.execute({});
    lines.reopen();
    Editando_ = false;
    for (Button *button : {borrar_, grabar_, cancelar_, registrar_}) {
        button->setEnabled(false);
    }
    showTotals();
}

}  // namespace kaldo
