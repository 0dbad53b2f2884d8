#include "cashdesk/cut_reports.h"

#include "toolkit/report/layout.h"

#include <array>

namespace kaldo {

namespace {

using report::Align;
using report::Band;
using report::Style;
using report::Wrap;

constexpr CutColumn kRecibo{"NO.RECIBO", 1, 26, Align::Left};
constexpr CutColumn kNombre{"NOMBRE", 28, 84, Align::Left};
constexpr CutColumn kForma{"FORMA DE PAGO", 114, 50, Align::Left};
constexpr CutColumn kImporte{"IMPORTE", 166, 28.9, Align::Right};

constexpr double kLine = 4.6;
constexpr double kDetailLine = 4.2;

void addTitles(Band &band, double top) {
    addCutTitles(&band, top, std::array{kRecibo, kNombre, kForma, kImporte});
}

Band noteBand(int cajaCorte, const ReceiptListRow &row) {
    const Style style = Style().size(9);
    const Style wrapped = style.wrap(Wrap::Word);
    constexpr double top = 1.2;
    Band band(kLine + top);
    band.text({kRecibo.x, top, kRecibo.width, kLine},
              QStringLiteral("%1-%2").arg(cajaCorte).arg(row.notaVta), style.bold());
    band.memo({kNombre.x, top, kNombre.width, kLine}, row.clNombre, wrapped);
    band.memo({kForma.x, top, kForma.width, kLine}, row.tipoPago, wrapped);
    band.text({kImporte.x, top, kImporte.width, kLine}, formatMoney(row.importe), style.right());
    return band;
}

/// The line's account, where it is wanted, its concept and its amount.
Band lineBand(const ReceiptListRow &row, bool accounts) {
    const Style style = Style().size(8);
    constexpr double amountLeft = 134;
    double left = kNombre.x + 3;
    Band band(kDetailLine);
    if (accounts) {
        band.text({left, 0, 38, kDetailLine}, row.nomenclatura, style.wrap(Wrap::Elide));
        band.text({left + 39, 0, 12, kDetailLine}, row.prog, style);
        left += 52;
    }
    band.memo({left, 0, amountLeft - left - 1, kDetailLine}, row.descr, style.wrap(Wrap::Word));
    band.text({amountLeft, 0, 30, kDetailLine}, formatMoney(Money::rounded(row.cant * row.precio)),
              style.right());
    return band;
}

void addSum(Band *band, double top, const QString &caption, const QString &amount,
            const Style &style) {
    band->text({60, top, 100, kLine}, caption, style.right());
    band->text({kImporte.x - 8, top, kImporte.width + 8, kLine}, amount, style.right());
}

Band summaryBand(const CutHeading &heading, const ReceiptList &list) {
    const Style style = Style().size(10);
    Band band(list.contabilidadGubernamental ? 62 : 54);
    band.line(0, 2, kCutWidth, 2);
    addSum(&band, 4, QStringLiteral("SALDO FINAL DEL CORTE"), formatMoney(list.saldoFinal),
           style.bold());
    addSum(&band, 10, QStringLiteral("- Pago con Anticipo"), formatMoney(list.pagoAnticipo), style);
    addSum(&band, 16, receiptRange(heading), formatMoney(list.saldoFinal), style);
    addSignature(&band, (kCutWidth - 76) / 2, 40, 76, heading.cajero,
                 QStringLiteral("ENCARGADO DE CAJA"));
    if (list.contabilidadGubernamental) {
        band.text({0, 55, kCutWidth, kLine},
                  QStringLiteral("Nota: Importe tomado del fondo revolvente"),
                  style.bold().italic());
    }
    return band;
}

}  // namespace

report::Document layoutReporteRecibos(const CutHeading &heading, const ReceiptList &list) {
    report::Layout layout = cutLayout(heading, addTitles);
    const ReceiptListRow *before = nullptr;
    for (const ReceiptListRow &row : list.rows) {
        const Band line = lineBand(row, list.contabilidadGubernamental);
        if (before == nullptr || before->notaVta != row.notaVta) {
            layout.placeTogether({noteBand(list.cajaCorte, row), line});
        } else {
            layout.place(line);
        }
        before = &row;
    }
    layout.place(summaryBand(heading, list));
    return layout.finish();
}

}  // namespace kaldo
