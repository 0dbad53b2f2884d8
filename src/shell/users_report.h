#pragma once

#include "app/catalogue_report.h"
#include "data/named_query.h"

namespace kaldo {

struct UserRow {
    QString usuario, nombre, caja, centro, turno, acceso, campus, origen, usuarioid, mpo;
};

/// The rows of `ControlUsuarios`.
QList<UserRow> userRows(NamedQuery &controlUsuarios);

/// One line per user; desk and centre by their keys.
report::Document layoutUsers(const CatalogueHeading &heading, const QList<UserRow> &rows);

}  // namespace kaldo
