#include "catalogues/sales_areas_report.h"

#include "catalogues/account_levels.h"
#include "catalogues/sales_families.h"

using namespace Qt::StringLiterals;

namespace kaldo {

using report::Align;

QList<SalesAreaRow> salesAreaRows(NamedQuery &areaventa) {
    QList<SalesAreaRow> rows;
    const int count = areaventa.count();
    for (int at = 0; at < count; ++at) {
        const auto text = [&](const QString &field) {
            return areaventa.valueAt(at, field).toString();
        };
        rows += SalesAreaRow{text(u"tipo_prod"_s), text(u"descr"_s), text(u"vigente"_s),
                             salesFamily(text(u"dirigidoa"_s)), accountCells(areaventa, at)};
    }
    return rows;
}

report::Document layoutSalesAreas(const CatalogueHeading &heading, const QString &ciudad,
                                  const QList<SalesAreaRow> &rows, bool accounts) {
    const report::Layout layout = catalogueLayout(heading, u"Áreas de Servicio "_s + ciudad);
    QList<ReportColumn> columns = {{u"Area"_s, 12, Align::Right}, {u"Descripción"_s, 0}};
    columns += accounts
                   ? accountReportColumns()
                   : QList<ReportColumn>{{u"Vigente"_s, 16, Align::Center}, {u"Dirigido a"_s, 72}};
    const ReportTable table(columns, catalogueWidth());
    return listReport(layout, table, rows, [accounts](const SalesAreaRow &row) {
        const QStringList state = {row.vigente, row.dirigidoa};
        return QStringList{row.tipoProd, row.descr} + (accounts ? row.cuentas : state);
    });
}

}  // namespace kaldo
