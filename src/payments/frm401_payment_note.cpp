#include "payments/frm401_payment_note.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QScopeGuard>
#include <QShortcut>

#include <limits>
#include <stdexcept>

#include "payments/frm401_3_payment_form.h"
#include "payments/line_rules.h"
#include "payments/note_rules.h"
#include "payments/service_types.h"
#include "payments/totals.h"

namespace kaldo {

namespace {

constexpr int kAmountDigits = 14;
/// Place of the lines in the form: they take what height is left.
constexpr int kLinesRow = 3;

/// As Enter on the button: the field where the keys came from is left first, and what it has to
/// say may disable the button or keep the focus.
void pressFrom(Button *target) {
    if (!target->isEnabled()) {
        return;
    }
    target->setFocus(Qt::ShortcutFocusReason);
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &enter);
}

}  // namespace

FRM401::FRM401(Context &context, FRM401_3 &formaPago, FRMAlumnos &alumnos)
    : Screen(context, QStringLiteral("FRM401"), QStringLiteral("Registro Pagos")),
      formaPago_(formaPago),
      registration_(context, formaPago.receipt()),
      service_(context),
      payer_(context, alumnos),
      lines_(context, [this](int codigo) { return treatmentAllowed(codigo); }) {
    buildForm();
    wirePanels();
}

FRM401::~FRM401() {
    lines_.detach();
}

// ---- The form

void FRM401::buildForm() {
    using namespace form;
    build(this, column({headingItems(), service_.items(), payer_.items(), lines_.items(),
                        totalsItems()}));
    qobject_cast<QGridLayout *>(layout())->setRowStretch(kLinesRow, 1);
    service_.attach();
    payer_.attach();
    lines_.attach();
    panelEncabezado_->setSizePolicy(panelEncabezado_->sizePolicy().horizontalPolicy(),
                                    QSizePolicy::Fixed);
    // Long names are cut rather than widen the screen.
    for (QLabel *name : {cajero_, centro_}) {
        name->setSizePolicy(QSizePolicy::Ignored, name->sizePolicy().verticalPolicy());
    }
    prestacionLabel_ = findChild<QLabel *>(QStringLiteral("CEdit1_label"));
    RadioGroup1_->setOptionEnabled(int(NoteMode::Consultar), false);
    addShortcuts();
}

form::Item FRM401::headingItems() {
    using namespace form;
    const auto caption = [](const char *text) { return label(QString::fromUtf8(text)); };
    const auto value = [](QLabel **where, const char *name) {
        return label(where, QString::fromLatin1(name)).bold();
    };
    const Item who = column({row({caption("Cajero:"), value(&cajero_, "Cajero").grow()}),
                             row({caption("Centro:"), value(&centro_, "Centro").grow()})});
    const Item where = column({row({caption("Turno:"), value(&turno_, "Turno"), stretch()}),
                               row({caption("Caja:"), value(&caja_, "Caja"), stretch()})});
    return panel(
        &panelEncabezado_, QStringLiteral("PanelEncabezado"),
        row({panel(nullptr, QStringLiteral("PanelCajero"), who).grow(),
             panel(nullptr, QStringLiteral("PanelTurno"), where).with([](QWidget *panel) {
                 panel->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
                 panel->setContentsMargins(0, 0, 12, 0);
             }),
             radio(&RadioGroup1_, QStringLiteral("RadioGroup1"), QStringLiteral("Selecciona"))
                 .options({QStringLiteral("Registrar"), QStringLiteral("Consultar")})
                 .with([](RadioGroup *group) {
                     group->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
                 })
                 .clicked([this](int) { repetirModo(); }),
             text(&Edit1_, QStringLiteral("Edit1"), QStringLiteral("Nota de Pago"))
                 .digits()
                 .width(10)
                 .readOnly()
                 .above(),
             date(&DateEdit1_, QStringLiteral("DateEdit1"), QStringLiteral("Fecha"))
                 .readOnly()
                 .above()}));
}

form::Item FRM401::totalsItems() {
    using namespace form;
    const auto amount = [](MoneyField **where, const char *name, const char *caption) {
        return money(where, QString::fromLatin1(name), QString::fromUtf8(caption))
            .width(kAmountDigits)
            .readOnly()
            .above();
    };
    return row({panel(nullptr, QStringLiteral("PanelBotones"),
                      row({button(&registrar_, QStringLiteral("Registrar"),
                                  QStringLiteral("&Registrar Información"))
                               .hint(QStringLiteral("Registrar Información (Ctrl+Entrar)"))
                               .icon(QStringLiteral("accept"))
                               .clicked([this] { registrarInformacion(); }),
                           button(&formaPagoButton_, QStringLiteral("FormaPago"),
                                  QStringLiteral("&Forma de Pago"))
                               .icon(QStringLiteral("pay"))
                               .disabled(),
                           button(&cerrar_, QStringLiteral("Cerrar"), QStringLiteral("&Cerrar"))
                               .icon(QStringLiteral("close"))
                               .escape()
                               .clicked([this] { emit closeRequested(); })})),
                stretch(),
                strip(&panelAnticipo_, QStringLiteral("PanelAnticipo"),
                      {amount(&CEdit0_, "CEdit0", "Pago de Anticipo")})
                    .with([](QWidget *panel) {
                        QSizePolicy policy = panel->sizePolicy();
                        policy.setRetainSizeWhenHidden(true);
                        panel->setSizePolicy(policy);
                    })
                    .hidden(),
                amount(&subtotal_, "SubTotal", "SubTotal"),
                amount(&CEdit1_, "CEdit1", "Prestación"), amount(&CEdit2_, "CEdit2", "IVA"),
                amount(&CEdit3_, "CEdit3", "Importe Total").with([](MoneyField *field) {
                    QFont font = field->font();
                    font.setBold(true);
                    field->setFont(font);
                })});
}

void FRM401::wirePanels() {
    connectGuarded(&service_, &ServiceChoice::typeChosen, this, [this] { Limpiar(); });
    connectGuarded(&service_, &ServiceChoice::reopened, this, [this] { payer_.close(); });
    connectGuarded(&service_, &ServiceChoice::chosen, this, [this] { ClasServicios(); });
    payer_.setDossierHandler([this](std::optional<int> edad) { dossierTaken(edad); });
    connectGuarded(&payer_, &PayerPanel::identified, this, [this] { lines_.focus(); });
    connectGuarded(&payer_, &PayerPanel::changed, this, [this] { showState(); });
    connectGuarded(&payer_, &PayerPanel::givenUp, this, [this] { formCreate(); });
    connectGuarded(&lines_, &LinesPanel::changed, this, [this] { showState(); });
}

void FRM401::addShortcuts() {
    const auto shortcut = [this](const QKeySequence &keys, Button *target) {
        auto *action = new QShortcut(keys, this);
        action->setContext(Qt::WidgetWithChildrenShortcut);
        action->setAutoRepeat(false);
        connectGuarded(action, &QShortcut::activated, target, [target] { pressFrom(target); });
    };
    shortcut(QKeySequence(Qt::Key_Insert), lines_.agregar());
    shortcut(QKeySequence(Qt::CTRL | Qt::Key_Delete), lines_.borrar());
    // Its letter is a menu's too.
    shortcut(QKeySequence(Qt::CTRL | Qt::Key_Return), registrar_);
    shortcut(QKeySequence(Qt::CTRL | Qt::Key_Enter), registrar_);
}

// ---- Heading, mode

void FRM401::formCreate() {
    fillHeading();
    RadioGroup1_->setIndex(int(NoteMode::Registrar));
    RadioGroup1Click();
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
    Edit1_->clear();
    service_.reset();
    Limpiar();
    lines_.empty();
    readNumber();
    service_.focus();
}

/// Without a desk there is no number, and the field stays empty.
void FRM401::readNumber() {
    NamedQuery &desk = context().caja.DatosCaja1;
    desk.open({{QStringLiteral("caja"), int(session().NumCaja)}});
    NotaActual_ = desk.integer(QStringLiteral("NOTA_VTA"));
    Edit1_->setText(desk.text(QStringLiteral("NOTA_VTA")));
    lines_.setNote(NotaActual_);
}

/// A dialog above may have been the repair, which moves the counter of the desk.
void FRM401::activated() {
    readNumber();
}

/// A note with lines asks for itself, whatever closes it.
bool FRM401::holdsTypedWork() const {
    return !holdsLines() && Screen::holdsTypedWork();
}

void FRM401::closeEvent(QCloseEvent *event) {
    if (holdsLines() &&
        messages().confirmLoss(
            QStringLiteral("La nota tiene conceptos que no se han registrado y se perderán. ¿Desea "
                           "cerrarla?"),
            {}) == Answer::No) {
        event->ignore();
    }
}

/// The mode in force chosen once more is no change: a note that is being written stays. Only where
/// its number could not be read the mode is entered again.
void FRM401::repetirModo() {
    if (Edit1_->text().isEmpty()) {
        RadioGroup1Click();
    }
}

/// What a new note and a new service type both put back to the start.
void FRM401::Limpiar() {
    DateEdit1_->setDate(context().clock.today());
    benefit_ = {};
    payer_.clear();
}

// ---- From the service to the lines

/// The service decides how the payer is identified.
void FRM401::ClasServicios() {
    const Service &service = service_.service();
    if (payerPath(service.tipoServ) == PayerPath::OpenDossier) {
        abrirExpediente();
        return;
    }
    payer_.identify(service);
    if (payerPath(service.tipoServ) == PayerPath::None) {
        messages().information(
            QStringLiteral("%1 no se cobra en esta pantalla: para este servicio no se pide a "
                           "nadie, y sin saber quién paga no se agregan conceptos.")
                .arg(service.cadenaServicio));
    }
    if (!lines_.openPrices(service.area.tipoProd)) {
        messages().information(
            QStringLiteral("No existe lista de precios para est tipo de servicios, presione "
                           "cualquier tecla para continuar."));
    }
}

/// Dossiers are not opened at this desk yet: the choice is taken back.
void FRM401::abrirExpediente() {
    messages().information(
        QStringLiteral("La apertura de expedientes aún no está disponible en esta caja."));
    service_.reset();
    service_.focus();
}

/// The lines of another patient go; an area that asks the age offers what is meant for it.
void FRM401::dossierTaken(std::optional<int> edad) {
    lines_.empty();
    if (edad && service_.service().area.tipoProd == kFaceArea) {
        lines_.openPricesForAge(*edad);
    }
}

/// Some treatments of the FACE area are charged to a dossier once at a time.
bool FRM401::treatmentAllowed(int codigo) {
    const QString expediente = payer_.payer().expediente;
    if (expediente.isEmpty() || !needsTreatmentCheck(service_.service().area.tipoProd, codigo)) {
        return true;
    }
    NamedQuery &check = context().caja.verifica_pagodetratamiento_p;
    check.open(
        {{QStringLiteral("P_EXPEDIENTE"), expediente}, {QStringLiteral("P_CODIGO"), codigo}});
    if (check.integer(QStringLiteral("VALOR")) != 0) {
        return true;
    }
    messages().information(check.text(QStringLiteral("MENSAJE")));
    return false;
}

// ---- Totals and buttons

/// The amounts follow from the lines as they are saved. Nothing is rounded.
NoteAmounts FRM401::amounts() const {
    const NoteTotals totals = noteTotals(subtotalOf(lines_.lines()), benefit_.porcPrestacion);
    NoteAmounts amounts;
    amounts.prestacion = totals.prestacion;
    amounts.importeTotal = totals.importeTotal;
    return amounts;
}

/// The one place that shows the totals and says what can be pressed.
void FRM401::showState() {
    const NoteAmounts shown = amounts();
    subtotal_->setValue(subtotalOf(lines_.lines()));
    prestacionLabel_->setText(benefit_.label());
    CEdit1_->setValue(shown.prestacion);
    CEdit2_->setValue(shown.iva);
    CEdit3_->setValue(shown.importeTotal);

    const NoteButtons on =
        enabledButtons({payer_.complete(), lines_.editing(), lines_.conceptTaken(),
                        static_cast<int>(lines_.lines().size())});
    service_.setEnabled(on.service);
    lines_.enable(on);
    registrar_->setEnabled(on.registrar);
}

// ---- Registering

void FRM401::registrarInformacion() {
    registrar_->setEnabled(false);
    auto usableAgain = qScopeGuard([this] { showState(); });
    if (!takeNoteNumber()) {
        return;
    }
    payer_.markNoStudent();
    const NoteDraft written = draft();
    // What the routines would refuse is told before anything is paid.
    checkNumbers(written);
    const std::optional<AcceptedPayment> accepted = formaPago_.pay(written, nullptr);
    if (!accepted) {
        moveFocus(registrar_);
        return;
    }
    usableAgain.dismiss();
    registration_.registrar(accepted->note, accepted->payment);
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

/// The note as it stands: each panel gives what was chosen in it.
NoteDraft FRM401::draft() const {
    NoteDraft note;
    note.mode = NoteMode::Registrar;
    note.notaActual = NotaActual_;
    note.fecha = DateEdit1_->date();
    note.centroLabel = centro_->text();
    note.service = service_.service();
    note.payer = payer_.payer();
    note.benefit = benefit_;
    note.amounts = amounts();
    note.lines = lines_.lines();
    return note;
}

}  // namespace kaldo
