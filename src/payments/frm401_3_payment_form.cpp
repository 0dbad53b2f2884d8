#include "payments/frm401_3_payment_form.h"

#include <QTimer>

#include <utility>

namespace kaldo {

FRM401_3::FRM401_3(Context &context)
    : Dialog(context, QStringLiteral("FRM401_3"), QStringLiteral("Forma de Pago")),
      receipt_(context) {}

std::optional<AcceptedPayment> FRM401_3::pay(const NoteDraft &draft, ScreenBase *opener) {
    draft_ = draft;
    if (skipsDialog(draft_)) {
        context().caja.TipoCambio.open();
        const double rate = context().caja.TipoCambio.number(QStringLiteral("tipo_cam"));
        return AcceptedPayment{draft_, skippedPayment(draft_, rate)};
    }
    if (showModal(opener) != Accepted) {
        return std::nullopt;
    }
    return AcceptedPayment{draft_, payment_};
}

void FRM401_3::activated() {
    ready_ = false;
    acceptable(false);
    payment_ = Payment{};
    Edit12_->clear();
    showPayment();
    showLayout();
    CEdit4_->setFocus();

    context().caja.TipoCambio.open();
    payment_ = openPayment(draft_, context().caja.TipoCambio.number(QStringLiteral("tipo_cam")));
    ready_ = true;
    showPayment();
    showLayout();
    moveFocus(CEdit4_);
    Totales();
    if (draft_.benefit.porcPrestacion > 0) {
        moveFocus(CEdit4_);
    }
    if (draft_.service.area.takesAdvances()) {
        // Asked over the dialog, so that the cashier sees the amounts.
        QTimer::singleShot(0, this, guarded([this] { preguntarAnticipo(); }));
    }
}

void FRM401_3::preguntarAnticipo() {
    const Answer answer = messages().confirm(QStringLiteral("¿El paciente dará anticipo?"));
    if (answer == Answer::Ended) {
        return;
    }
    if (answer == Answer::Yes) {
        messages().information(QStringLiteral(
            "Los anticipos todavía no están disponibles. La nota se cobra completa."));
    }
    moveFocus(CEdit4_);
}

void FRM401_3::showPayment() {
    RadioGroup1_->setIndex(payment_.tipoDePago == PaymentKind::ChequeMN ? 1 : 0);
    RadioGroup2_->setIndex(payment_.tipoDeTarjeta == CardKind::None
                               ? -1
                               : (payment_.tipoDeTarjeta == CardKind::Debito ? 0 : 1));
    CEdit2_->setValue(payment_.tarjetaCredito);
    CEdit3_->setValue(payment_.dolares);
    CEdit4_->setValue(payment_.pesos);
    CEdit5_->setValue(payment_.cheque);
    Edit1_->setText(payment_.banco);
    Edit2_->setText(payment_.numCuenta);
    Edit3_->setText(payment_.numCheque);
    CEdit0_->setValue(payment_.cantidadAnticipo);
    CEdit1_->setValue(payment_.importeTotal);
    CEdit6_->setValue(payment_.saldo);
    CEdit8_->setValue(payment_.importeAPagar);
    CEdit11_->setValue(payment_.prestacion);
    LabelTipoCambio_->setText(formatPlainNumber(payment_.tipoCam));
    enableTenders();
    showTotals();
}

void FRM401_3::showTotals() {
    CEdit7_->setValue(payment_.subtotal);
    CEdit9_->setValue(payment_.diferencia);
    CEdit9_->setShownText(differenceText(payment_.diferencia));
    CEdit10_->setValue(payment_.cambio);
}

void FRM401_3::showLayout() {
    PanelAnticipo_->setVisible(payment_.anticipoPanelShown);
    PanelPrestacion_->setVisible(payment_.prestacionPanelShown);
    RadioGroup2_->setVisible(payment_.tipoDeTarjeta != CardKind::None);
    LabelPrestacion_->setText(draft_.benefit.label());
    adjustSize();
}

void FRM401_3::enableTenders() {
    const bool cheque = payment_.tipoDePago == PaymentKind::ChequeMN;
    CEdit2_->setEnabled(!cheque);
    CEdit3_->setEnabled(!cheque);
    CEdit4_->setEnabled(!cheque);
    CEdit5_->setEnabled(cheque);
    PanelCheque_->setVisible(cheque);
}

void FRM401_3::acceptable(bool enabled) {
    if (!enabled && ImprimirRecibo_->hasFocus()) {
        // Not on to the button that closes the window.
        moveFocus(payment_.tipoDePago == PaymentKind::ChequeMN ? CEdit5_ : CEdit4_);
    }
    ImprimirRecibo_->setEnabled(enabled && ready_);
}

/// What was painted has been seen, but while the mouse holds the button down for a press.
bool FRM401_3::eventFilter(QObject *watched, QEvent *event) {
    if (watched == CEdit7_ && event->type() == QEvent::Paint && !ImprimirRecibo_->isDown()) {
        seen_ = CEdit7_->value();
    }
    return Dialog::eventFilter(watched, event);
}

void FRM401_3::readBoxes() {
    payment_.tarjetaCredito = CEdit2_->value();
    payment_.dolares = CEdit3_->value();
    payment_.pesos = CEdit4_->value();
    payment_.cheque = CEdit5_->value();
    payment_.banco = Edit1_->text();
    payment_.numCuenta = Edit2_->text();
    payment_.numCheque = Edit3_->text();
}

void FRM401_3::Totales() {
    readBoxes();
    recomputeTotals(&payment_);
    showTotals();
    acceptable(nothingMissing(payment_));
    if (ImprimirRecibo_->isEnabled()) {
        moveFocus(ImprimirRecibo_);
    }
}

void FRM401_3::RadioGroup1Click(PaymentKind kind) {
    choosePaymentKind(&payment_, kind);
    olvidarTarjeta();
    showPayment();
    acceptable(isEnough(payment_));
    moveFocus(kind == PaymentKind::ChequeMN ? static_cast<QWidget *>(Edit1_) : CEdit4_);
}

void FRM401_3::ValidaTarjeta() {
    if (cardCoversAllButMoreCameIn(payment_)) {
        messages().warning(
            QStringLiteral("El importe de Tarjeta es igual al importe del recibo de pago, pero hay "
                           "ingreso de más en otras monedas."));
    }
}

/// A box at zero is blank for typing. A text that is no amount stays, to be mended.
void FRM401_3::llegarAImporte(MoneyField *box) {
    double amount = 0;
    if (parseMoney(box->text(), &amount) && amount == 0) {
        box->setBlank();
    }
}

void FRM401_3::llegarATarjeta() {
    acceptable(false);
    llegarAImporte(CEdit2_);
}

void FRM401_3::teclearTarjeta(double importe) {
    typeTaken_ = false;
    if (importe <= 0 || payment_.tipoDeTarjeta != CardKind::None) {
        return;
    }
    RadioGroup2_->setVisible(true);
    CEdit2_->setValue(0);
    messages().information(
        QStringLiteral("Seleccione un tipo de tarjeta antes de ingresar el importe."));
    moveFocus(RadioGroup2_);
}

void FRM401_3::enterTarjeta() {
    readBoxes();
    if (cardExceedsDue(payment_)) {
        messages().warning(
            QStringLiteral("El importe de Tarjeta no puede exceder el importe del recibo de pago, "
                           "vuelva a intentar."));
        CEdit2_->setValue(0);
        stayHere();
        return;
    }
    if (std::exchange(typeTaken_, false) && payment_.tarjetaCredito == 0) {
        // The Enter that meant to take the type, which an arrow had taken already.
        stayHere();
        return;
    }
    Totales();
    if (!nothingMissing(payment_)) {
        moveFocus(CEdit3_);
    }
}

void FRM401_3::salirDeTarjeta() {
    if (RadioGroup2_->isAncestorOf(focusWidget())) {
        // On the way to the type of the card: neither is it forgotten nor the receipt near.
        readBoxes();
        recomputeTotals(&payment_);
        showTotals();
        return;
    }
    if (CEdit2_->value() == 0) {
        olvidarTarjeta();
    }
    salirDeImporte();
}

void FRM401_3::salirDeImporte() {
    Totales();
    ValidaTarjeta();
}

void FRM401_3::elegirTarjeta(CardKind kind) {
    payment_.tipoDeTarjeta = kind;
    typeTaken_ = true;
    moveFocus(CEdit2_);
}

/// Enter takes the type that the focus stands on.
void FRM401_3::enterTipoDeTarjeta() {
    if (auto *button = qobject_cast<QAbstractButton *>(focusWidget());
        button != nullptr && !button->isChecked()) {
        button->click();
    } else {
        moveFocus(CEdit2_);
    }
}

void FRM401_3::olvidarTarjeta() {
    payment_.tipoDeTarjeta = CardKind::None;
    RadioGroup2_->setIndex(-1);
    RadioGroup2_->setVisible(false);
}

void FRM401_3::enterDolares() {
    moveFocus(CEdit4_);
    Totales();
}

/// Of a box that may be the last one: "Pesos", and "Cheque".
void FRM401_3::enterUltimo() {
    Totales();
    if (!nothingMissing(payment_)) {
        // Enter must not wander on to the button that closes the window.
        stayHere();
    }
}

void FRM401_3::enterEdit12() {
    const QString digits = Edit12_->text().remove(QLatin1Char(' '));
    if (digits.isEmpty()) {
        messages().information(QStringLiteral("Campo obligatorio, vuelva a intentar."));
        stayHere();
    } else if (digits.size() == 4) {
        CEdit2_->setValue(0);
        moveFocus(CEdit2_);
    } else {
        messages().information(QStringLiteral("Se deben capturar 4 digitos, vuelva a intentar."));
        stayHere();
    }
}

bool FRM401_3::commitFocused() {
    Field *field = Field::of(focusWidget());
    return field == nullptr || field->commit();
}

/// Asks once where more was typed than anybody hands over: a number in the wrong box.
bool FRM401_3::meantSo() {
    if (!farMoreThanDue(payment_)) {
        return true;
    }
    const bool meant =
        messages().confirm(QStringLiteral("Se reciben %1 para pagar %2, ¿es correcto?")
                               .arg(formatMoney(payment_.subtotal),
                                    formatMoney(payment_.importeAPagar))) == Answer::Yes;
    if (!meant) {
        moveFocus(payment_.tipoDePago == PaymentKind::ChequeMN ? CEdit5_ : CEdit4_);
    }
    return meant;
}

void FRM401_3::imprimirRecibo() {
    if (!commitFocused()) {
        return;
    }
    Totales();
    if (std::exchange(seen_, payment_.subtotal) != payment_.subtotal) {
        return;  // pressed from a box, by letter or mouse: the new totals are to be seen first
    }
    if (ready_ && isEnough(payment_)) {
        if (meantSo()) {
            accept();
        }
    } else {
        acceptable(false);
    }
}

}  // namespace kaldo
