#include "shell/users_report.h"

using namespace Qt::StringLiterals;

namespace kaldo {

QList<UserRow> userRows(NamedQuery &controlUsuarios) {
    QList<UserRow> rows;
    const int count = controlUsuarios.count();
    for (int at = 0; at < count; ++at) {
        const auto text = [&](const QString &field) {
            return controlUsuarios.valueAt(at, field).toString();
        };
        rows +=
            UserRow{text(u"usuario"_s),   text(u"nombre"_s), text(u"num_caja"_s), text(u"centro"_s),
                    text(u"turno"_s),     text(u"acceso"_s), text(u"campus"_s),   text(u"origen"_s),
                    text(u"usuarioid"_s), text(u"mpo"_s)};
    }
    return rows;
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
