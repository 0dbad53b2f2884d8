#include "shell/users_report.h"

#include "data/query_rows.h"

using namespace Qt::StringLiterals;

namespace kaldo {

QList<UserRow> userRows(NamedQuery &controlUsuarios) {
    return mapRows(controlUsuarios, [](const QueryRow &row) {
        return UserRow{row.text(u"usuario"_s), row.text(u"nombre"_s), row.text(u"num_caja"_s),
                       row.text(u"centro"_s),  row.text(u"turno"_s),  row.text(u"acceso"_s),
                       row.text(u"campus"_s),  row.text(u"origen"_s), row.text(u"usuarioid"_s),
                       row.text(u"mpo"_s)};
    });
}

report::Document layoutUsers(const CatalogueHeading &heading, const QList<UserRow> &rows) {
    using report::Align;
    const report::Layout layout = catalogueLayout(heading, u"Control de Usuarios"_s);
    const ReportTable table({{u"Usuario"_s, 19},
                             {u"Nombre"_s, 0},
                             {u"Caja"_s, 10, Align::Right},
                             {u"Centro"_s, 12},
                             {u"Turno"_s, 11},
                             {u"Acceso"_s, 13},
                             {u"Campus"_s, 14},
                             {u"Origen"_s, 12},
                             {u"Usuario Id"_s, 18, Align::Right},
                             {u"Mpo"_s, 9, Align::Right}},
                            catalogueWidth());
    return listReport(layout, table, rows, [](const UserRow &row) {
        return QStringList{row.usuario, row.nombre, row.caja,   row.centro,    row.turno,
                           row.acceso,  row.campus, row.origen, row.usuarioid, row.mpo};
    });
}

}  // namespace kaldo
