#include "payments/receipt_totals.h"

#include "payments/service_types.h"
#include "payments/totals.h"

namespace kaldo {

namespace {

ReceiptRow row(const char *caption, double amount) {
    return {QString::fromUtf8(caption), formatMoney(amount)};
}

/// The cases of one note; the words "screen" and "dialog" tell whose amount is meant.
class Cases {
public:
    Cases(const NoteDraft &screen, const Payment &dialog, const ReceiptExtras &extras)
        : screen_(screen),
          dialog_(dialog),
          ant_(extras.edoctaSaldoAnt.value_or(AccountMovement{})),
          ant1_(extras.edoctaSaldoAnt1.value_or(AccountMovement{})) {}

    ReceiptTotals advanceArea() const {
        if (screen_.benefit.porcPrestacion > 0) {
            return bothPanels() ? advanceWithBenefit() : balanceWithBenefit();
        }
        if (screen_.service.row == kAbonoACuenta) {
            return bothPanels() ? accountWithBenefit() : account();
        }
        return dialog_.anticipoPanelShown && !dialog_.prestacionPanelShown ? advance() : cash();
    }

    ReceiptTotals plainArea() const {
        if (Money::rounded(screen_.amounts.prestacion) <= Money()) {
            return cash(dialog_.importeTotal);
        }
        ReceiptTotals totals{subtotalOf(screen_.lines), {benefit()}, 100};
        if (screen_.benefit.porcPrestacion != 100) {
            totals.rows.append(row("EFECTIVO", dialog_.importeTotal));
        }
        totals.rows.append(total(screen_.amounts.importeTotal));
        return totals;
    }

private:
    bool bothPanels() const { return dialog_.anticipoPanelShown && dialog_.prestacionPanelShown; }
    bool isAbono() const { return screen_.tipoServNota == QLatin1String("ABO"); }

    ReceiptRow benefit() const {
        return {QStringLiteral("PRESTACIÓN %1%").arg(screen_.benefit.porcPrestacion),
                formatMoney(dialog_.prestacion)};
    }
    ReceiptRow balance() const {
        return row("SALDO A PAGAR", isAbono() ? ant1_.saldo : ant_.saldo);
    }
    ReceiptRow abono() const { return row("ABONO", ant1_.importe); }
    static ReceiptRow total(double amount) { return row("TOTAL", amount); }

    ReceiptTotals accountWithBenefit() const {
        return {dialog_.importeTotal,
                {benefit(), isAbono() ? abono() : row("EFECTIVO", dialog_.importeTotal), balance(),
                 total(screen_.amounts.importeTotal)},
                100};
    }
    ReceiptTotals account() const {
        return {dialog_.importeTotal,
                {row("EFECTIVO", dialog_.importeTotal), isAbono() ? abono() : ReceiptRow{},
                 balance(), total(screen_.amounts.importeTotal)},
                100};
    }
    ReceiptTotals advance() const {
        return {screen_.amounts.importeTotal,
                {row("ANTICIPO", dialog_.cantidadAnticipo), row("SALDO A PAGAR", dialog_.saldo),
                 row("IVA", screen_.amounts.iva), total(dialog_.cantidadAnticipo)},
                100};
    }
    ReceiptTotals cash() const { return cash(screen_.amounts.importeTotal); }
    ReceiptTotals cash(double subtotal) const {
        return {subtotal,
                {row("EFECTIVO", dialog_.importeTotal), row("IVA", 0), total(dialog_.importeTotal)},
                80};
    }
    ReceiptTotals advanceWithBenefit() const {
        const double paid = dialog_.cantidadAnticipo - dialog_.prestacion;
        return {dialog_.cantidadAnticipo,
                {benefit(), row("EFECTIVO", paid),
                 isAbono() ? abono() : row("ANTICIPO", dialog_.cantidadAnticipo), balance(),
                 row("IVA", screen_.amounts.iva), total(paid)},
                120};
    }
    ReceiptTotals balanceWithBenefit() const {
        return {dialog_.importeTotal,
                {benefit(), row(isAbono() ? "ABONO" : "EFECTIVO", dialog_.importeTotal), balance(),
                 total(screen_.amounts.importeTotal)},
                100};
    }

    const NoteDraft &screen_;
    const Payment &dialog_;
    const AccountMovement ant_;
    const AccountMovement ant1_;
};

}  // namespace

std::optional<ReceiptTotals> receiptTotals(const NoteDraft &draft, const Payment &payment,
                                           const ReceiptExtras &extras) {
    const Cases cases(draft, payment, extras);
    if (draft.service.area.takesAdvances()) {
        return cases.advanceArea();
    }
    if (draft.amounts.pagoAnticipoShown) {
        return std::nullopt;
    }
    return cases.plainArea();
}

}  // namespace kaldo
