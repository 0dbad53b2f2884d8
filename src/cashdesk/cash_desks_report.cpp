#include "cashdesk/cash_desks_report.h"

#include "data/query_rows.h"

using namespace Qt::StringLiterals;

namespace kaldo {

QList<CashDeskRow> cashDeskRows(NamedQuery &datosCaja) {
    return mapRows(datosCaja, [](const QueryRow &row) {
        return CashDeskRow{row.text(u"num_caja"_s),  row.text(u"nombre"_s),
                           row.text(u"bancomn"_s),   row.text(u"bancodll"_s),
                           row.text(u"serie"_s),     row.text(u"serien"_s),
                           row.text(u"tipoliza"_s),  row.text(u"prog_pol"_s),
                           row.text(u"sistemaid"_s), row.text(u"campus"_s)};
    });
}

report::Document layoutCashDesks(CatalogueHeading heading, const QString &ciudad,
                                 const QList<CashDeskRow> &rows) {
    using report::Align;
    heading.linea = u"Campus "_s + ciudad;
    const report::Layout layout = catalogueLayout(heading, u"Datos Caja"_s);
    const ReportTable table({{u"Caja"_s, 9, Align::Right},
                             {u"Nombre"_s, 0},
                             {u"Banco M.N."_s, 18, Align::Right},
                             {u"Banco Dll."_s, 18, Align::Right},
                             {u"Serie"_s, 11},
                             {u"Serie N"_s, 13},
                             {u"Tipo Poliza"_s, 18, Align::Right},
                             {u"Prog."_s, 12, Align::Right},
                             {u"Sistema Id"_s, 17, Align::Right},
                             {u"Campus"_s, 13, Align::Center}},
                            catalogueWidth());
    return listReport(layout, table, rows, [](const CashDeskRow &row) {
        return QStringList{row.numCaja, row.nombre,   row.bancomn, row.bancodll,  row.serie,
                           row.serien,  row.tipoliza, row.progPol, row.sistemaid, row.campus};
    });
}

}  // namespace kaldo
