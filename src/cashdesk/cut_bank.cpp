#include "cashdesk/cut_reports.h"

#include "toolkit/report/layout.h"

#include <array>

namespace kaldo {

namespace {

using report::Align;
using report::Band;
using report::Style;
using report::Wrap;

constexpr CutColumn kBanco{"Banco", 1, 62, Align::Left};
constexpr CutColumn kCuenta{"Cuenta", 65, 44, Align::Left};
constexpr CutColumn kImporte{"Importe", 111, 32, Align::Right};
constexpr CutColumn kFuente{"Fuente Fto.", 146, 18, Align::Center};
constexpr CutColumn kFondo{"Fondo", 165, 12, Align::Center};
constexpr CutColumn kPrograma{"Programa", 178, 17, Align::Center};

constexpr double kRow = 5;
constexpr double kFootHeight = 34;

void addTitles(Band &band, double top) {
    addCutTitles(&band, top, std::array{kBanco, kCuenta, kImporte, kFuente, kFondo, kPrograma});
}

Band accountBand(const BankCutRow &row) {
    const Style bold = Style().size(9).bold();
    Band band(kRow + 1.5);
    const auto cell = [&](const CutColumn &column, const QString &text) {
        band.memo(column.cell(1.5, kRow), text, column.style(bold).wrap(Wrap::Word));
    };
    cell(kBanco, row.nomBanco);
    cell(kCuenta, row.nomenclatura);
    cell(kFuente, row.ftefto);
    cell(kFondo, row.fondo);
    cell(kPrograma, row.prog);
    return band;
}

Band conceptBand(const BankCutRow &row) {
    const Style style = Style().size(9);
    Band band(kRow);
    band.memo({kBanco.x + 6, 0, kImporte.x - 10, kRow}, row.concepto, style.wrap(Wrap::Word));
    band.text({kImporte.x, 0, kImporte.width, kRow}, formatMoney(row.importe, MoneyMask::Spaced),
              style.right());
    return band;
}

Band sumBand(Money sum) {
    const Style bold = Style().size(9).bold();
    Band band(kRow + 3);
    band.line(kImporte.x, 0.4, kImporte.x + kImporte.width, 0.4);
    band.text({kCuenta.x, 1, kCuenta.width, kRow}, QStringLiteral("Importe Total"), bold.right());
    band.text({kImporte.x, 1, kImporte.width, kRow}, formatMoney(sum), bold.right());
    return band;
}

}  // namespace

report::Document layoutReporteBancario(const CutHeading &heading, const QList<BankCutRow> &rows) {
    report::Layout layout = cutLayout(heading, addTitles);
    layout.pageFooter(kFootHeight, [heading](Band &band, const report::PageInfo &) {
        band.text({0, 1, kCutWidth, kRow}, receiptRangeOfBankCut(heading),
                  Style().size(10).center());
        addSignature(&band, 4, 21, 56, heading.cajero, QStringLiteral("ENCARGADO DE CAJA"));
        addSignature(&band, 70, 21, 56, QString(), QStringLiteral("REVISÓ"));
        addSignature(&band, 136, 21, 56, QString(), QStringLiteral("MENSAJERO"));
    });
    for (qsizetype at = 0; at < rows.size();) {
        Band head = accountBand(rows.at(at));
        Money sum;
        const QString todo = rows.at(at).todo;
        for (bool first = true; at < rows.size() && rows.at(at).todo == todo; ++at) {
            const Band movement = conceptBand(rows.at(at));
            if (first) {
                layout.placeTogether({head, movement});
            } else {
                layout.place(movement);
            }
            first = false;
            sum += Money::rounded(rows.at(at).importe);
        }
        layout.place(sumBand(sum));
    }
    return layout.finish();
}

}  // namespace kaldo
