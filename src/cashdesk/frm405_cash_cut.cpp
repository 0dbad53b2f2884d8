#include "cashdesk/frm405_cash_cut.h"

#include <optional>

#include "app/binding.h"
#include "cashdesk/payment_label.h"
#include "data/runtime_texts.h"
#include "toolkit/forms/form.h"

namespace kaldo {

namespace {

constexpr auto kInformation = "Información";

/// The shift codes of the fixed list "Turno", in its order.
const QStringList &shiftCodes() {
    static const QStringList codes{QStringLiteral("MA"), QStringLiteral("VE"),
                                   QStringLiteral("CO")};
    return codes;
}

PaidNote paidNote(const CutNote &note, const CutPayment &payment) {
    PaidNote paid;
    paid.credito = payment.credito;
    paid.dolares = payment.dolares;
    paid.pesos = payment.pesos;
    paid.cambio = payment.cambio;
    paid.beca = payment.beca;
    paid.cheque = payment.cheque;
    paid.chequedll = payment.chequedll;
    paid.tipocambio = note.tipoCambio;
    paid.status = note.status;
    return paid;
}

/// The sums of `Qry405_4`, by the order of its text; its sixth, over all forms of payment, isn't
/// used.
PaymentSums paymentSums(const NamedQuery &query) {
    PaymentSums sums;
    sums.pesos = query.number(QStringLiteral("sum"));
    sums.dolares = query.number(QStringLiteral("sum_1"));
    sums.cheque = query.number(QStringLiteral("sum_2"));
    sums.credito = query.number(QStringLiteral("sum_3"));
    sums.pesosCheque = query.number(QStringLiteral("sum_4"));
    sums.prestacion = query.number(QStringLiteral("sum_6"));
    sums.chequedll = query.number(QStringLiteral("sum_7"));
    sums.complementaria = query.number(QStringLiteral("sum_8"));
    return sums;
}

}  // namespace

FRM405::FRM405(Context &context)
    : Screen(context, QStringLiteral("FRM405"), QStringLiteral("Corte de Caja")) {
    buildForm();
}

void FRM405::buildForm() {
    using namespace form;
    const LookupSource cajas{
        &context().caja.DatosCaja,
        QStringLiteral("NUM_CAJA"),
        QStringLiteral("NOMBRE"),
        {{QStringLiteral("NUM_CAJA"), QStringLiteral("No."), 6, CellMask::Integer},
         {QStringLiteral("NOMBRE"), QStringLiteral("Caja"), 22}}};
    form::build(
        this,
        column({
            date(&FechaCorte_, QStringLiteral("FechaCorte"), QStringLiteral("Fecha Corte"))
                .enter([this] { confirmarFecha(); })
                .leave([this] { salirFecha(); })
                .with([this](DateField *field) {
                    connectGuarded(field, &DateField::calendarClosed, this,
                                   [this] { salirFecha(); });
                }),
            lookup(&NumeroCaja_, QStringLiteral("NumeroCaja"), QStringLiteral("Número de Caja "))
                .source(cajas)
                .shown(24)
                .with([this](LookupField *field) { bindLookup(field, &context().caja.DatosCaja); })
                .closedUp([this] { elegirCaja(); })
                .hidden(),
            choice(&Turno_, QStringLiteral("Turno"), QStringLiteral("Turno"))
                .items({QStringLiteral("Matutino"), QStringLiteral("Vespertino"),
                        QStringLiteral("Completo")})
                .closedUp([this] { cerrarTurno(); })
                .hidden(),
            stretch(),
            row({stretch(), button(&Generar_, QStringLiteral("Generar"), QStringLiteral("&Generar"))
                                .icon(QStringLiteral("cash-cut"))
                                .clicked([this] { generar(); })}),
        }));
}

void FRM405::formCreate() {
    FechaCorte_->setDate(context().clock.today());
    Turno_->setEnabled(false);
    Generar_->setEnabled(false);
    NumeroCaja_->setVisible(false);
    Turno_->setVisible(false);
    moveFocus(FechaCorte_);
    context().caja.DatosCaja.open(
        {{QStringLiteral("campus"), context().odonto.campusDelUsuario(session().Usuario.text())}});
    if (isAdministrator()) {
        NumeroCaja_->setVisible(true);
        Turno_->setVisible(true);
        return;
    }
    Generar_->setEnabled(true);
    salirFecha();
}

bool FRM405::isAdministrator() const {
    return session().Acceso.text() == QLatin1String("AM");
}

void FRM405::elegirCaja() {
    CajaCorte_ = static_cast<qint16>(context().caja.DatosCaja.integer(QStringLiteral("num_caja")));
    // What was found is the desk's before.
    UsuarioCorte_ = QString();
    notaMin_ = notaMax_ = 0;
    Generar_->setEnabled(false);
    Turno_->setIndex(-1);
    Turno_->setEnabled(true);
    moveFocus(Turno_);
}

void FRM405::cerrarTurno() {
    NamedQuery &cajeros = context().odonto.ControlUsuarios2;
    cajeros.open({{QStringLiteral("caja"), QString::number(CajaCorte_)},
                  {QStringLiteral("turno"), shiftCodes().value(Turno_->currentIndex())}});
    UsuarioCorte_ = cajeros.text(QStringLiteral("usuario"));
    revisarMovimientos();
    Generar_->setEnabled(true);
    moveFocus(Generar_);
}

void FRM405::salirFecha() {
    if (!FechaCorte_->date().isValid()) {
        FechaCorte_->setDate(context().clock.today());
    }
    if (session().Acceso.text() == QLatin1String("CA")) {
        CajaCorte_ = session().NumCaja;
        UsuarioCorte_ = session().Usuario;
        revisarMovimientos();
    } else if (isAdministrator() && NumeroCaja_->row() >= 0 && Turno_->currentIndex() >= 0) {
        revisarMovimientos();
    }
}

void FRM405::confirmarFecha() {
    // With the button off there is nowhere to go, and the date would never be left.
    if (!isAdministrator() && !Generar_->isEnabled()) {
        salirFecha();
        moveFocus(Generar_->isEnabled() ? static_cast<QWidget *>(Generar_) : FechaCorte_);
    }
}

void FRM405::revisarMovimientos() {
    fechaCorte_ = FechaCorte_->date();
    notaMin_ = notaMax_ = 0;
    NamedQuery &range = context().caja.Qry405;
    range.open({{QStringLiteral("fecha"), fechaCorte_},
                {QStringLiteral("caja"), CajaCorte_},
                {QStringLiteral("usuario"), UsuarioCorte_.text()}});
    notaMax_ = range.integer(QStringLiteral("max"));
    notaMin_ = range.integer(QStringLiteral("min"));
    Generar_->setEnabled(notaMax_ != 0);
    if (notaMax_ == 0) {
        if (AvisoSinMovimientos_) {
            messages().information(
                QStringLiteral("No existen movimientos registrados a esta fecha."),
                QString::fromUtf8(kInformation));
        }
        AvisoSinMovimientos_ = true;
    }
}

void FRM405::generar() {
    if (FechaCorte_->date() != fechaCorte_) {
        // A quick click comes before the date's leave handler; without a shift that checks nothing.
        if (!FechaCorte_->commit()) {
            return;
        }
        salirFecha();
        if (!Generar_->isEnabled()) {
            return;
        }
        fechaCorte_ = FechaCorte_->date();
    }
    SaldoFinal_ = CutBalance();
    if (notaMax_ == 0) {
        moveFocus(FechaCorte_);
        messages().information(
            QStringLiteral(
                "No existe información para esta caja, revise los parámetros de entrada."),
            QString::fromUtf8(kInformation));
        return;
    }
    const CallLimit asLongAsItTakes(context().conexion.calls(), std::nullopt);
    DMIngresosCaja &caja = context().caja;
    caja.Qry405_2.open({{QStringLiteral("fecha"), fechaCorte_},
                        {QStringLiteral("caja"), CajaCorte_},
                        {QStringLiteral("usr"), UsuarioCorte_.text()}});
    caja.Qry405_3.open({{QStringLiteral("caja"), CajaCorte_},
                        {QStringLiteral("fol1"), notaMin_},
                        {QStringLiteral("fol2"), notaMax_}});
    std::optional<Progress> progress;
    if (!caja.Qry405_2.isEmpty()) {
        progress.emplace(context().frame, caja.Qry405_2.count());
        BorrarCorte();
        caja.CorteDetallado.openToAppend();
        do {
            CorteDetallado();
            progress->advance();
        } while (caja.Qry405_2.next());
    }
    CorteBancario();
    Totales();
    Reportes();
}

void FRM405::BorrarCorte() {
    for (const RuntimeText &text : borrarCorteTexts(CajaCorte_, fechaCorte_)) {
        execute(context().caja.CorteDetallado.connection(), QStringLiteral("BorrarCorte"), text);
    }
}

void FRM405::CorteDetallado() {
    DMIngresosCaja &caja = context().caja;
    const CutNote note = caja.cutNote.current();
    if (!countsInCut(note.tipoVta)) {
        return;
    }
    const Parameters key{{QStringLiteral("caja"), note.numCaja},
                         {QStringLiteral("nota"), note.notaVta}};
    caja.VtasContado.open(key);
    caja.FormaPago1.open(key);
    caja.PagosOdontologia1.open(key);

    const auto by =
        session().Acceso.text() == QLatin1String("CA") ? CutBy::Cashier : CutBy::Administrator;
    std::optional<int> pkTipoCaja;
    if (caja.DatosCaja1.isOpen()) {
        pkTipoCaja = caja.DatosCaja1.integer(QStringLiteral("pk_tipo_caja"));
    }
    NamedQuery &detalle = caja.CorteDetallado;
    detalle.append();
    detalle.set(QStringLiteral("num_caja"), note.numCaja);
    detalle.set(QStringLiteral("nota_vta"), note.notaVta);
    detalle.set(QStringLiteral("nombre"), caja.VtasContado.value(QStringLiteral("nombre")));
    detalle.set(QStringLiteral("tipo_pago"),
                paymentLabel(paidNote(note, caja.cutPayment.current()), by, pkTipoCaja));
    detalle.set(QStringLiteral("importe"), note.importeTot);
    detalle.set(QStringLiteral("usuario"), UsuarioCorte_.text());
    if (const int empleado = caja.PagosOdontologia1.integer(QStringLiteral("num_empl"));
        empleado != 0) {
        detalle.set(QStringLiteral("num_empl"), empleado);
    }
    detalle.apply();
    SaldoFinal_.add(note.importeTot);
}

void FRM405::CorteBancario() {
    DMIngresosCaja &caja = context().caja;
    caja.CompletaCorteBancario.execute({{QStringLiteral("usr"), UsuarioCorte_.text()},
                                        {QStringLiteral("caja"), CajaCorte_},
                                        {QStringLiteral("fecha"), fechaCorte_}});
    caja.CorteBancario.open({{QStringLiteral("caja"), CajaCorte_},
                             {QStringLiteral("fcha"), fechaCorte_},
                             {QStringLiteral("usuario"), UsuarioCorte_.text()}});
}

void FRM405::Totales() {
    DMIngresosCaja &caja = context().caja;
    const QVariant numCaja = caja.Qry405_2.value(QStringLiteral("num_caja"));
    caja.Qry405_4.open({{QStringLiteral("caja"), numCaja},
                        {QStringLiteral("fecha"), fechaCorte_},
                        {QStringLiteral("usr"), UsuarioCorte_.text()}});
    const CutTotals totals = cutTotals(UsuarioCorte_, paymentSums(caja.Qry405_4), SaldoFinal_);
    NamedQuery &row = caja.Totales;
    row.openToAppend();
    row.append();
    row.set(QStringLiteral("num_caja"), numCaja);
    row.set(QStringLiteral("usuario"), totals.usuario);
    row.set(QStringLiteral("sumapesos"), totals.sumapesos);
    row.set(QStringLiteral("sumadolares"), totals.sumadolares);
    row.set(QStringLiteral("sumacheque"), totals.sumacheque);
    row.set(QStringLiteral("sumacredito"), totals.sumacredito);
    row.set(QStringLiteral("sumapesosche"), totals.sumapesosche);
    row.set(QStringLiteral("sumchdll"), totals.sumchdll);
    row.set(QStringLiteral("sumacomplemento"), totals.sumacomplemento);
    row.set(QStringLiteral("sumadm"), totals.sumadm);
    row.set(QStringLiteral("sumatodo"), totals.sumatodo);
    row.set(QStringLiteral("sumadvn"), totals.sumadvn);
    row.set(QStringLiteral("sumadoc"), totals.sumadoc);
    row.set(QStringLiteral("sumapagoreconocido"), totals.sumapagoreconocido);
    row.apply();
}

}  // namespace kaldo
