#include "cashdesk/cash_desks_report.h"

using namespace Qt::StringLiterals;

namespace kaldo {

QList<CashDeskRow> cashDeskRows(NamedQuery &datosCaja) {
    QList<CashDeskRow> rows;
    const int count = datosCaja.count();
    for (int at = 0; at < count; ++at) {
        const auto text = [&](const QString &field) {
            return datosCaja.valueAt(at, field).toString();
        };
        rows += CashDeskRow{text(u"num_caja"_s), text(u"nombre"_s),   text(u"bancomn"_s),
                            text(u"bancodll"_s), text(u"serie"_s),    text(u"serien"_s),
                            text(u"tipoliza"_s), text(u"prog_pol"_s), text(u"sistemaid"_s),
                            text(u"campus"_s)};
    }
    return rows;
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
