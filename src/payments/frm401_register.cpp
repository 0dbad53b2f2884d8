#include <QScopeGuard>

#include <limits>
#include <stdexcept>

#include "payments/frm401_3_payment_form.h"
#include "payments/frm401_payment_note.h"
#include "payments/registration.h"
#include "payments/registration_parameters.h"

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
    if (!takeNoteNumber()) {
        return;
    }
    if (matricula_->text().trimmed().isEmpty()) {
        matricula_->setText(noStudent());
    }

    const NoteDraft note = draft();
    // A number that is none is told before anything is paid.
    static_cast<void>(matriculaNumber(note));
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

/// Fails without a number, and refuses the last one that the desk can count: nothing could follow
/// it.
bool FRM401::takeNoteNumber() {
    bool isNumber = false;
    const int number = Edit1_->text().toInt(&isNumber);
    if (!isNumber) {
        throw std::runtime_error("La caja no tiene un número de nota válido.");
    }
    if (number == std::numeric_limits<int>::max()) {
        messages().warning(QStringLiteral("La caja llegó a la última nota posible, %1. Corrija la "
                                          "numeración en Datos Caja antes de registrar.")
                               .arg(number));
        return false;
    }
    NotaActual_ = number;
    return true;
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
