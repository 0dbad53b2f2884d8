#include "catalogues/price_list_report.h"

#include "data/query_rows.h"
#include "toolkit/core/money.h"

using namespace Qt::StringLiterals;

namespace kaldo {

namespace {

using report::Align;

constexpr double kAreaGap = 2;

ReportTable priceTable(bool accounts) {
    QList<ReportColumn> columns = {{u"Clave"_s, 13, Align::Right},
                                   {u"Descripción"_s, 0},
                                   {u"Unidad Medida"_s, 25},
                                   {u"Vigente"_s, 14, Align::Center},
                                   {u"Precio"_s, 21, Align::Right}};
    if (accounts) {
        columns += {{u"Programa"_s, 16},    {u"Subsubcta"_s, 17}, {u"T. Iva"_s, 11},
                    {u"Clasif. IVA"_s, 13}, {u"Subsubcta"_s, 27}, {u"Clave Prod Serv"_s, 18}};
    }
    return ReportTable(columns, catalogueWidth(true));
}

QStringList priceCells(const PriceListRow &row) {
    return {row.cveProd,
            row.descr,
            row.unidad,
            row.vigente,
            formatMoney(row.menudeo),
            row.prog,
            row.subsubcta,
            row.tipodeiva,
            row.clasificacioniva,
            row.nomenclatura,
            row.claveprodserv};
}

}  // namespace

QList<PriceListRow> priceListRows(NamedQuery &listaprecios, NamedQuery &umedida) {
    const QHash<QString, QString> units = namesByCode(umedida, u"unimed"_s, u"descr"_s);
    return mapRows(listaprecios, [&units](const QueryRow &from) {
        PriceListRow row;
        row.tipoProd = from.value(u"tipo_prod"_s).toInt();
        row.area = from.text(u"descr"_s);
        row.cveProd = from.text(u"cve_prod"_s);
        row.descr = from.text(u"descr_1"_s);
        row.unidad = units.value(from.text(u"unimed"_s));
        row.vigente = from.text(u"vigente"_s);
        row.menudeo = from.value(u"menudeo"_s).toDouble();
        row.prog = from.text(u"prog"_s);
        row.subsubcta = from.text(u"subsubcta"_s);
        row.tipodeiva = from.text(u"tipodeiva"_s);
        row.clasificacioniva = from.text(u"clasificacioniva"_s);
        row.nomenclatura = from.text(u"nomenclatura"_s);
        row.claveprodserv = from.text(u"claveprodserv"_s);
        return row;
    });
}

report::Document layoutPriceList(const CatalogueHeading &heading, const QString &ciudad,
                                 const QList<PriceListRow> &rows, bool accounts) {
    report::Layout layout = catalogueLayout(heading, u"Lista de Precios "_s + ciudad, true);
    const ReportTable table = priceTable(accounts);
    const PriceListRow *before = nullptr;
    for (const PriceListRow &row : rows) {
        const report::Band line = table.row(priceCells(row));
        if (before == nullptr || before->tipoProd != row.tipoProd) {
            report::Band head =
                groupBand(u"Área Venta"_s, u"%1   %2"_s.arg(row.tipoProd).arg(row.area));
            head.append(table.titles());
            layout.repeatOnNewPages(std::nullopt);
            layout.skip(before == nullptr ? 0 : kAreaGap);
            layout.placeTogether({head, line});
            layout.repeatOnNewPages(head);
        } else {
            layout.place(line);
        }
        before = &row;
    }
    return layout.finish();
}

}  // namespace kaldo
