#include <QScopeGuard>

#include "payments/frm401_3_payment_form.h"
#include "payments/frm401_payment_note.h"
#include "payments/registration.h"

namespace kaldo {

namespace {

/// From here on "0" says that there is no student.
const QString &noStudent() {
    static const QString text = QStringLiteral("0");
    return text;
}

}  // namespace

void FRM401::registrarInformacion() {
    registrar_->setEnabled(false);
    auto usableAgain = qScopeGuard([this] { registrar_->setEnabled(true); });
    NotaActual_ = Edit1_->text().toInt();
    if (matricula_->text().trimmed().isEmpty()) {
        matricula_->setText(noStudent());
    }

    const NoteDraft note = draft();
    const Payment payment = formaPago_.pay(note, this);
    if (!payment.confirmado) {
        NoEditar();
        moveFocus(registrar_);
        return;
    }
    usableAgain.dismiss();
    registration_->registrar(note, payment);
    session().UltimoExpediente = QString();
    formCreate();
}

/// All that registration and receipt need of this screen, copied once.
NoteDraft FRM401::draft() {
    NoteDraft note;
    note.mode = NoteMode::Registrar;
    note.notaActual = NotaActual_;
    note.fecha = DateEdit1_->date();
    note.servicio = ComboBox1_->currentText();
    note.tipoServ = TipoServ_;
    note.cadenaServicio = CadenaServicio_;
    const NamedQuery &area = context().odonto.serviciosxctros;
    note.area = {area.integer(QStringLiteral("TIPO_PROD")), area.text(QStringLiteral("DESCR")),
                 area.text(QStringLiteral("ANTICIPO"))};
    note.centroLabel = centro_->text();

    note.lugarShown = !panelLugar_->isHidden();
    if (note.lugarShown && !ComboBox3_->text().isEmpty()) {
        note.lugarArea = context().odonto.AreaAtencion.text(QStringLiteral("AREA"));
        note.lugarDescr = ComboBox3_->text();
    }

    note.expediente = Edit2_->text();
    note.folioAdmision = FolioAdmision_;
    note.paterno = paterno_->text();
    note.materno = materno_->text();
    note.nombre = nombre_->text();
    note.matricula = matricula_->text();
    note.alumno = alumno_->text();

    note.noEmpleado = noEmpleado_->text();
    note.nombreEmpleado = nombreEmpleado_->text();
    note.numEmpleado = NumEmpleado_;
    note.empleadoPanelShown = !panelEmpleado_->isHidden();
    note.empleadoLabel = empleado_->text();
    note.dependenciaLabel = dependencia_->text();

    const NamedQuery &type = context().caja.Prestaciones1;
    note.tipoPacienteRow = {type.integer(QStringLiteral("PRESTACION")),
                            type.text(QStringLiteral("DESCRIPCION"))};
    note.porcPrestacion = PorcPrestacion_;
    note.prestacionExpediente = PrestacionExpediente_;
    note.prestacionLabel = prestacionLabel_->text();

    note.nacimientoShown = !panelNacimiento_->isHidden();
    note.edad = edad_->text().toInt();
    note.tipoPaciente = TipoPaciente_;
    note.fechaNac = DateEdit2_->date();
    note.sexo = static_cast<Sex>(sexo_->index() + 1);

    note.prestacion = CEdit1_->value();
    note.iva = CEdit2_->value();
    note.importeTotal = CEdit3_->value();
    note.pagoAnticipoShown = !panelAnticipo_->isHidden();
    note.pagoAnticipo = CEdit0_->value();
    note.lines = lines();
    return note;
}

}  // namespace kaldo
