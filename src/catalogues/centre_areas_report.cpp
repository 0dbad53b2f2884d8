#include "catalogues/centre_areas_report.h"

using namespace Qt::StringLiterals;

namespace kaldo {

report::Document layoutCentreAreas(const CatalogueHeading &heading, const QString &ciudad,
                                   const QList<CentreArea> &rows) {
    report::Layout layout =
        catalogueLayout(heading, u"Centros de Atención / Areas de Venta "_s + ciudad);
    const ReportTable table({{u"Area"_s, 18, report::Align::Right}, {u"Descripción"_s, 0}},
                            catalogueWidth());
    const CentreArea *before = nullptr;
    for (const CentreArea &row : rows) {
        const report::Band line = table.row({QString::number(row.tipoProd), row.descr});
        if (before == nullptr || before->centro != row.centro) {
            layout.repeatOnNewPages(std::nullopt);
            layout.skip(before == nullptr ? 0 : 3);
            layout.placeTogether(
                {groupBand(u"Centro de Atención"_s, row.centroDescr), table.titles(), line});
            layout.repeatOnNewPages(table.titles());
        } else {
            layout.place(line);
        }
        before = &row;
    }
    return layout.finish();
}

}  // namespace kaldo
