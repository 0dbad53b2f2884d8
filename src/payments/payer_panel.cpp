#include "payments/payer_panel.h"

#include "data/runtime_texts.h"
#include "payments/note_rules.h"
#include "payments/service_types.h"
#include "people/age.h"
#include "people/dossier_number.h"
#include "people/employee_register.h"
#include "people/repeated_patient.h"

namespace kaldo {

PayerPanel::PayerPanel(Context &context, FRMAlumnos &alumnos)
    : ScreenBase(context),
      student_(context, alumnos),
      employee_(context),
      birth_(context),
      picker_(context.odonto.CargarExp, [this] { return listaDeExpedientes(); }),
      Expe_(context.odonto.newQuery("Expe")),
      ConsultaAdmision_(context.odonto.newQuery("ConsultaAdmision")) {
    connectGuarded(&student_, &StudentStrip::edited, this, [this] { takeBack(); });
    connectGuarded(&student_, &StudentStrip::refused, this, [this] { takeBack(); });
    connectGuarded(&student_, &StudentStrip::found, this, [this] { acceptAndGoOn(); });
    connectGuarded(&employee_, &EmployeeStrip::edited, this, [this] { emit changed(); });
    connectGuarded(&employee_, &EmployeeStrip::refused, this, [this] { takeBack(); });
    connectGuarded(&employee_, &EmployeeStrip::found, this,
                   [this](int tipoEmpleado) { employeeFound(tipoEmpleado); });
    connectGuarded(&birth_, &BirthStrip::changed, this, [this] { birthChanged(); });
    connectGuarded(&birth_, &BirthStrip::answered, this, [this] { birthAnswered(); });
    connectGuarded(&picker_, &DossierPicker::picked, this, [this](const QString &expediente) {
        Edit2_->setText(expediente);
        Edit2_->pressEnter();
    });
    connectGuarded(&picker_, &DossierPicker::cancelled, this, [this] {
        Edit2_->clear();
        emit changed();
    });
}

void PayerPanel::clear() {
    service_ = {};
    found_ = {};
    Expe_->close();
    Edit2_->clear();
    Edit2_->setFieldReadOnly(false);
    tipoPaciente_->clear();
    clearNames();
    setNamesReadOnly(false);
    panelOrigen_->setVisible(false);
    origen_->clear();
    student_.clear();
    employee_.clear();
    birth_.clear();
    picker_.hide();
    picker_.setEnabled(false);
    close();
}

void PayerPanel::close() {
    panelPaciente_->setEnabled(false);
    student_.setOpen(false);
    employee_.close();
    takeBack();
}

void PayerPanel::identify(const Service &service) {
    close();
    service_ = service;
    found_.tipoPaciente = patientType(kPlainPatient);
    switch (payerPath(service.tipoServ)) {
        case PayerPath::Dossier:
            identifyByDossier();
            break;
        case PayerPath::Names:
            identifyByNames();
            break;
        case PayerPath::Student:
            student_.ask();
            break;
        case PayerPath::EmployeeOrStudent:
            identifyEmployeeOrStudent();
            break;
        case PayerPath::OpenDossier:
        case PayerPath::None:
            break;
    }
}

void PayerPanel::identifyByDossier() {
    panelPaciente_->setEnabled(true);
    picker_.setEnabled(true);
    Edit2_->setFieldReadOnly(false);
    moveFocus(Edit2_);
}

void PayerPanel::identifyByNames() {
    Edit2_->setFieldReadOnly(true);
    panelPaciente_->setEnabled(true);
    moveFocus(paterno_);
}

void PayerPanel::identifyEmployeeOrStudent() {
    // Asked anew: the answer of before must not name the payer.
    employee_.clear();
    student_.show({}, {});
    clearNames();
    if (messages().confirm(QStringLiteral("Es empleado?")) == Answer::Yes) {
        employee_.ask();
    } else if (messages().confirm(QStringLiteral("Es alumno regular?")) == Answer::Yes) {
        student_.ask();
    } else {
        identifyByNames();
    }
}

bool PayerPanel::complete() const {
    return payerComplete(shown(), accepted_);
}

void PayerPanel::markNoStudent() {
    if (!accepted_ || !student_.matricula().trimmed().isEmpty()) {
        return;
    }
    accepted_->matricula = QStringLiteral("0");
    student_.show(accepted_->matricula, accepted_->alumno);
}

/// What the look-ups told, and what the fields show.
Payer PayerPanel::shown() const {
    Payer payer = found_;
    payer.expediente = Edit2_->text();
    payer.paterno = paterno_->text();
    payer.materno = materno_->text();
    payer.nombre = nombre_->text();
    payer.matricula = student_.matricula();
    payer.alumno = student_.alumno();
    payer.noEmpleado = employee_.noEmpleado();
    payer.nombreEmpleado = employee_.nombre();
    const PayingEmployee &employee = employee_.employee();
    payer.numEmpleado = employee.numEmpleado;
    payer.empleadoPanelShown = employee.numEmpleado != 0;
    payer.empleadoLabel = employee.empleado;
    payer.dependenciaLabel = employee.dependencia;
    payer.nacimiento = birth_.birth();
    payer.sexo = birth_.sexo();
    return payer;
}

void PayerPanel::accept() {
    accepted_ = shown();
    emit changed();
}

void PayerPanel::acceptAndGoOn() {
    if (Edit2_->text() != found_.expediente) {
        moveFocus(Edit2_);  // another number was typed there, and not looked up
        return;
    }
    accept();
    emit identified();
}

void PayerPanel::takeBack() {
    accepted_.reset();
    emit changed();
}

PatientType PayerPanel::patientType(int prestacion) {
    NamedQuery &type = context().caja.Prestaciones1;
    type.open({{QStringLiteral("prestacion"), prestacion}});
    return {type.integer(QStringLiteral("PRESTACION")), type.text(QStringLiteral("DESCRIPCION"))};
}

// ---- The dossier

void PayerPanel::repetirExpediente() {
    if (!Edit2_->isReadOnly() && !session().UltimoExpediente.text().isEmpty()) {
        Edit2_->setText(session().UltimoExpediente.text());
        emit changed();
    }
}

void PayerPanel::buscarExpediente() {
    if (Edit2_->text().isEmpty()) {
        return;
    }
    Edit2_->setText(completeDossierNumber(Edit2_->text()));
    forgetDossier();
    const std::optional<Dossier> dossier =
        findDossier(*Expe_, Edit2_->text(), session().Origen.text());
    if (!dossier) {
        messages().information(
            QStringLiteral("Este expediente no se encuentra registrado, vuelva a capturar un "
                           "expediente valido."));
        refuseDossier();
        return;
    }
    if (dossier->status == QLatin1String("CA")) {
        // Told, but no reason to stop.
        messages().information(
            QStringLiteral("El expediente se encuentra cancelado, revise la infrmación."));
        Edit2_->clear();
        moveFocus(Edit2_);
    }
    if (!deEsteCentro(*dossier)) {
        refuseDossier();
        return;
    }

    NamedQuery &limits = context().caja.Clasifservicios;
    limits.open({{QStringLiteral("cd"), session().Origen.text()},
                 {QStringLiteral("tipo_prod"), service_.area.tipoProd}});
    found_.folioAdmision = dossier->folio;
    student_.show(dossier->canalizadoA, dossier->alumno);
    if (limits.text(QStringLiteral("REQUIERE_EDAD")) != QLatin1String("S")) {
        DatosExpediente(*dossier, std::nullopt);
    } else if (!ageWithin(dossier->edad, limits.integer(QStringLiteral("EDADMIN")),
                          limits.integer(QStringLiteral("EDADMAX")))) {
        messages().information(
            QStringLiteral("La edad del paciente es de %1 años y no corresponde a la categoría de ")
                .arg(dossier->edad) +
            service_.area.descr);
        refuseDossier();
    } else if (dossier->status != QLatin1String("AU")) {
        // A dossier that is not in force ends here without a word.
        forgetDossier();
        moveFocus(Edit2_);
    } else {
        DatosExpediente(*dossier, dossier->edad);
    }
}

bool PayerPanel::deEsteCentro(const Dossier &dossier) {
    if (dossier.centro == session().Centro.text()) {
        return true;
    }
    if (!options().ExpedientesOtrosCentros) {
        messages().information(QStringLiteral("Este espediente pertenece a: ") +
                               dossier.centroDescr +
                               QStringLiteral(". No tiene los permisos necesarios para "
                                              "utilizarlo, consúltelo con su analista."));
        return false;
    }
    origen_->setText(dossier.centroDescr);
    panelOrigen_->setVisible(true);
    return true;
}

void PayerPanel::DatosExpediente(const Dossier &dossier, std::optional<int> edad) {
    if (messages().confirm(useDossierQuestion(dossier)) != Answer::Yes) {
        refuseDossier();
        picker_.hide();
        return;
    }
    takeDossier_(edad);
    showDossier(dossier);
    if (!takeEmployeeOf(dossier)) {
        return;
    }
    found_.expediente = dossier.expediente;
    const bool diploma = service_.tipoServ == QLatin1String("AP") &&
                         service_.area.descr == QLatin1String("SERVICIOS DE DIPLOMADOS");
    if (!diploma && options().sector == Sector::Educativo) {
        picker_.hide();
        student_.ask();
    } else {
        acceptAndGoOn();
    }
}

void PayerPanel::showDossier(const Dossier &dossier) {
    Edit2_->setText(dossier.expediente);
    paterno_->setText(dossier.paterno);
    materno_->setText(dossier.materno);
    nombre_->setText(dossier.paciente);
    setNamesReadOnly(true);
    found_.prestacionExpediente = dossier.prestacion;
    // Without a type of its own, that of anyone, and not the one of the dossier before.
    found_.tipoPaciente = patientType(dossier.prestacion > 0 ? dossier.prestacion : kPlainPatient);
    tipoPaciente_->setText(dossier.prestacion > 0 ? found_.tipoPaciente.descripcion : QString());
}

/// The benefit of a dossier comes from an employee who must be one still.
bool PayerPanel::takeEmployeeOf(const Dossier &dossier) {
    employee_.forget();
    if (dossier.prestacion <= kPlainPatient) {
        return true;
    }
    const QString number = QString::number(dossier.numEmpleado);
    if (!isCurrentEmployee(findEmployee(context().caja, number))) {
        messages().information(
            QStringLiteral("El Empleado NO esta vigente, consulte con R.H. ó cambie la "
                           "prestación del expediente. "));
        moveFocus(Edit2_);
        return false;
    }
    employee_.show({dossier.numEmpleado, employeeLabel(dossier.numEmpleado, dossier.empleado),
                    dossier.dependencia});
    return true;
}

/// Nothing of an earlier dossier stays while another one is sought.
void PayerPanel::forgetDossier() {
    found_ = {};
    employee_.forget();
    clearNames();
    student_.show({}, {});
    student_.setOpen(false);
    tipoPaciente_->clear();
    panelOrigen_->setVisible(false);
    origen_->clear();
    takeBack();
}

void PayerPanel::refuseDossier() {
    forgetDossier();
    Edit2_->clear();
    moveFocus(Edit2_);
}

std::optional<Parameters> PayerPanel::listaDeExpedientes() {
    const QDate since = options().fechaExpedientes();
    if (!since.isValid()) {
        messages().warning(
            QStringLiteral("La fecha inicial de búsqueda de expedientes no es válida, revise el "
                           "panel de control."));
        return std::nullopt;
    }
    student_.show({}, {});
    tipoPaciente_->clear();
    emit changed();
    const DossierListFilter filter =
        dossierListFilter(service_.area.edadMin, service_.area.edadMax, service_.area.descr,
                          options().ExpedientesOtrosCentros);
    return dossierListParameters(filter, session().Centro.text(), session().Origen.text(), since);
}

// ---- Names, birth, employee

void PayerPanel::enterNombre() {
    if (!Obligatorio(paterno_, QStringLiteral("Apellido Paterno es")) ||
        !Obligatorio(nombre_, QStringLiteral("Nombre es"))) {
        return;
    }
    if (service_.tipoServ == QLatin1String("AD")) {
        enterNombreAdmision();
    } else if (namesLeadToLines(service_.tipoServ)) {
        acceptAndGoOn();
    }
}

void PayerPanel::enterNombreAdmision() {
    takeBack();
    if (!ValidaNombre()) {
        emit givenUp();
        return;
    }
    const bool asked =
        options().SaltarAdmision &&
        (options().sector == Sector::Empresarial ||
         messages().confirm(QStringLiteral("¿El alumno viene con el paciente?")) != Answer::No);
    if (asked) {
        birth_.ask();
        accept();  // complete once the birth is known, too
    } else {
        birth_.hide();
        acceptAndGoOn();
    }
}

/// Asks whether to go on with a patient whose names were already admitted.
bool PayerPanel::ValidaNombre() {
    ConsultaAdmision_->setText(
        consultaAdmisionText(paterno_->text(), materno_->text(), nombre_->text()));
    ConsultaAdmision_->open();
    if (ConsultaAdmision_->isEmpty()) {
        return true;
    }
    const QString question =
        repeatedPatientQuestion(ConsultaAdmision_->date(QStringLiteral("FECHA_NAC")),
                                ConsultaAdmision_->integer(QStringLiteral("NUM_CAJA")),
                                ConsultaAdmision_->integer(QStringLiteral("NOTA_VTA")));
    return messages().confirm(question) != Answer::No;
}

void PayerPanel::birthChanged() {
    if (accepted_) {
        accepted_->nacimiento = birth_.birth();
        accepted_->sexo = birth_.sexo();
    }
    emit changed();
}

void PayerPanel::birthAnswered() {
    birthChanged();
    if (complete()) {
        emit identified();
    }
}

void PayerPanel::employeeFound(int tipoEmpleado) {
    if (const std::optional<int> type = patientTypeOfEmployee(tipoEmpleado)) {
        found_.tipoPaciente = patientType(*type);
    }
    acceptAndGoOn();
}

void PayerPanel::setNamesReadOnly(bool readOnly) {
    for (TextField *name : {paterno_, materno_, nombre_}) {
        name->setFieldReadOnly(readOnly);
    }
}

void PayerPanel::clearNames() {
    for (TextField *name : {paterno_, materno_, nombre_}) {
        name->clear();
    }
}

// ---- The form

form::Item PayerPanel::dossierItems() {
    using namespace form;
    return row(
        {text(&Edit2_, QStringLiteral("Edit2"), QStringLiteral("Expediente"))
             .upper()
             .width(kDossierNumberWidth)
             .key(Qt::Key_F5, [this] { picker_.toggle(); })
             .key(Qt::Key_F8, [this] { repetirExpediente(); })
             .edited([this] { emit changed(); })
             .enter([this] { buscarExpediente(); }),
         picker_.items(),
         text(&tipoPaciente_, QStringLiteral("TipoPaciente"), QStringLiteral("Tipo de Paciente"))
             .width(100)
             .shown(26)
             .readOnly()});
}

form::Item PayerPanel::nameItems() {
    using namespace form;
    const auto name = [this](TextField **where, const char *caption, int width) {
        return text(where, QString::fromLatin1(caption), QString::fromLatin1(caption))
            .upper()
            .width(width)
            .edited([this] { emit changed(); })
            .grow();
    };
    return rowAbove({name(&paterno_, "Paterno", 40).enter([this] {
                         Obligatorio(paterno_, QStringLiteral("Apellido Paterno es"));
                     }),
                     name(&materno_, "Materno", 40),
                     name(&nombre_, "Nombre", 70).enter([this] { enterNombre(); })});
}

form::Item PayerPanel::items() {
    using namespace form;
    const Item origin = strip(&panelOrigen_, QStringLiteral("PanelOrigen"),
                              {label(QStringLiteral("Origen del Expediente:")),
                               label(&origen_, QStringLiteral("Origen")).bold().grow()})
                            .grow();
    // Enabled and disabled as one for the path of the service; the birth strip and the employee's
    // benefit never stand together and share their row.
    return column({panel(&panelPaciente_, QStringLiteral("PanelPaciente"),
                         column({dossierItems(), nameItems()}))
                       .fill(),
                   panel(&panelOtros_, QStringLiteral("PanelOtros"),
                         row({student_.item(), panel(nullptr, QStringLiteral("PanelDerecho"),
                                                     row({employee_.numberItem(), origin}))
                                                   .grow()}))
                       .fill(),
                   panel(&panelDatos_, QStringLiteral("PanelDatos"),
                         row({birth_.item(), employee_.benefitItem()}))
                       .fill()});
}

void PayerPanel::attach() {
    picker_.attach(Edit2_);
    employee_.attach();
    origen_->setSizePolicy(QSizePolicy::Ignored, origen_->sizePolicy().verticalPolicy());
    // Strips come and go without moving the rest.
    for (QWidget *panel : {panelOtros_, panelDatos_}) {
        panel->setMinimumHeight(panel->sizeHint().height());
    }
    for (QWidget *panel : {panelPaciente_, panelOtros_, panelDatos_}) {
        panel->setSizePolicy(panel->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    }
}

}  // namespace kaldo
