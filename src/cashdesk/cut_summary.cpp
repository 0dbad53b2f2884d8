#include "cashdesk/cut_reports.h"

#include "toolkit/report/layout.h"

namespace kaldo {

namespace {

using report::Band;
using report::Style;

constexpr double kRow = 5.6;
constexpr double kFootHeight = 34;

void addTitle(Band &band, double top) {
    band.text({0, top + 1.4, kCutWidth, kCutTitleHeight - 2}, QStringLiteral("R E S U M E N"),
              Style().bold().size(10).center());
}

/// The rows of the summary: a section on the left, a caption, an amount on the right.
class Rows {
public:
    explicit Rows(report::Layout *layout) : layout_(layout) {}

    Rows &row(const QString &section, const QString &caption, const QString &amount,
              bool bold = false) {
        const Style style = Style().size(10).bold(bold);
        Band band(kRow);
        band.text({4, 0.6, 46, kRow}, section, style.bold());
        band.text({52, 0.6, 84, kRow}, caption, style);
        band.text({140, 0.6, kCutWidth - 144, kRow}, amount, style.right());
        layout_->place(band);
        return *this;
    }
    Rows &row(const QString &section, const QString &caption, double amount, bool bold = false) {
        return row(section, caption, formatMoney(amount), bold);
    }
    Rows &heading(const QString &section) { return row(section, QString(), QString()); }
    Rows &rule() {
        Band band(3);
        band.line(4, 1.5, kCutWidth - 4, 1.5, 0.1);
        layout_->place(band);
        return *this;
    }

private:
    report::Layout *layout_;
};

void addIncome(Rows &rows, const CutTotals &totals) {
    const QString none;
    rows.row(QStringLiteral("D.V.N."), QStringLiteral("DESCUENTO VIA NOMINA"), totals.sumadvn)
        .heading(QStringLiteral("TARJETA / CREDITO"))
        .row(none, QStringLiteral("TARJETA"), totals.sumacredito)
        // Invoices in advance are not told apart: the figure has always been zero.
        .row(none, QStringLiteral("FACTURAS ANTICIPADAS"), 0.0)
        .row(QStringLiteral("BECAS"), QStringLiteral("BECAS PRORROGA"), totals.sumadoc)
        .row(none, QStringLiteral("PRESTACION"), totals.sumadm)
        .row(none, QStringLiteral("PAGOS RECONOCIDOS"), totals.sumapagoreconocido)
        .rule();
}

void addClosing(Rows &rows, const CutTotals &totals) {
    const QString none;
    const QString zero = formatMoney(0.0);
    const double net = (Money::rounded(totals.sumatodo) - Money::rounded(totals.sumadm)).toDouble();
    rows.row(none, QStringLiteral("TOTAL INGRESOS"), totals.sumatodo, true)
        .row(none, QStringLiteral("- Pago con anticipo"), totals.sumadm, true)
        .row(none, QStringLiteral("+ Devolucion de Anticipo"), zero)
        .row(none, QStringLiteral("FONDO 11"), QStringLiteral("0.00"))
        .row(none, QStringLiteral("FONDO 12"), QStringLiteral("0.00"))
        .row(none, QStringLiteral("Facturas "), net)
        .row(none, QStringLiteral("Deducibles"), zero)
        .row(none, QStringLiteral("Factura Global"), net)
        .row(none, QStringLiteral("No Facturado"), zero)
        .row(none, QStringLiteral("TOTAL DE CORTE"), net, true);
}

}  // namespace

report::Document layoutReporteResumen(const CutHeading &heading, const CutTotals &totals,
                                      const QList<DollarRow> &dollars) {
    report::Layout layout = cutLayout(heading, addTitle);
    layout.pageFooter(kFootHeight, [heading](Band &band, const report::PageInfo &) {
        band.text({0, 1, kCutWidth, kRow}, receiptRange(heading), Style().size(10).center());
        addSignature(&band, 4, 21, 56, heading.cajero, QStringLiteral("ENCARGADO DE CAJA"));
        addSignature(&band, 70, 21, 56, QString(), QStringLiteral("REVISÓ"));
        addSignature(&band, 136, 21, 56, QString(), QStringLiteral("Vo Bo"));
    });
    Rows rows(&layout);
    const QString none;
    rows.row(QStringLiteral("EFECTIVO:"), QStringLiteral("MONEDA NACIONAL"), totals.sumapesos)
        .row(none, QStringLiteral("CHEQUES"), totals.sumacheque)
        .row(none, QStringLiteral("DEPOSITO M.N."), totals.sumapesosche)
        .heading(QStringLiteral("DLLS"));
    for (const DollarRow &rate : dollars) {
        layout.need(4 * kRow);
        rows.row(none, QStringLiteral("DOLARES "), rate.dolares)
            .row(none, QStringLiteral("CHEQUEDLLS PARA DEPOSITO"), rate.chequedll)
            .row(none, QStringLiteral("COMPLEMENTARIA"), rate.complementaria)
            .row(none, QStringLiteral("Tipo Cambio"), rate.tipocambio);
    }
    rows.rule();
    addIncome(rows, totals);
    addClosing(rows, totals);
    return layout.finish();
}

}  // namespace kaldo
