#include "catalogues/account_levels.h"

#include "catalogues/lookups.h"
#include "toolkit/forms/application.h"

using namespace Qt::StringLiterals;

namespace kaldo {

void openSixthLevel(DMFinanzas &finanzas, const NamedQuery &row) {
    Parameters account;
    for (const auto &level :
         {u"generoid"_s, u"grupoid"_s, u"cgrubroid"_s, u"cuentaid"_s, u"subctaid"_s}) {
        account.append({level, row.value(level)});
    }
    finanzas.csubsubcta.open(account);
}

AccountLevels::AccountLevels(DMFinanzas &finanzas, NamedQuery &row)
    : levels_{{&finanzas.cgenero, u"GENEROID"_s, u"Genero"_s},
              {&finanzas.cgrupo, u"GRUPOID"_s, u"Grupo"_s},
              {&finanzas.crubro, u"CGRUBROID"_s, u"Rubro"_s},
              {&finanzas.ccuenta, u"CUENTAID"_s, u"Cuenta"_s},
              {&finanzas.csubcta, u"SUBCTAID"_s, u"Subcta"_s}},
      row_(row) {}

AccountLevels::~AccountLevels() {
    for (const Level &level : std::as_const(levels_)) {
        level.list->setFilter({});
        level.list->close();
    }
}

QList<GridColumn> AccountLevels::columns(bool shown) const {
    QList<GridColumn> columns;
    for (const Level &level : levels_) {
        GridColumn column(level.field, level.title, 6);
        column.mask(CellMask::Integer)
            .editable()
            .strict()
            .lookup(numbered(*level.list, level.field, level.title));
        columns += shown ? column : column.hidden();
    }
    return columns;
}

void AccountLevels::follow(CataloguePanel *panel) {
    connectGuarded(panel->grid(), &DataGrid::cellEdited, panel,
                   [this](const QString &field) { reopenBelow(field); });
}

void AccountLevels::reopen() {
    for (int at = 0; at < levels_.size(); ++at) {
        openLevel(at);
    }
}

void AccountLevels::reopenBelow(const QString &field) {
    bool below = false;
    for (int at = 0; at < levels_.size(); ++at) {
        if (below) {
            openLevel(at);
        }
        below = below || levels_.at(at).field == field;
    }
}

void AccountLevels::openLevel(int at) {
    QList<std::pair<QString, QVariant>> above;
    for (int upper = 0; upper < at; ++upper) {
        const QVariant value = row_.value(levels_.at(upper).field);
        if (value.isValid()) {
            above += {levels_.at(upper).field, value};
        }
    }
    NamedQuery *list = levels_.at(at).list;
    list->setFilter([above](const NamedQuery::RowReader &row) {
        return std::all_of(above.begin(), above.end(), [&row](const auto &level) {
            return row(level.first).toInt() == level.second.toInt();
        });
    });
    list->open();
}

QString AccountLevels::nomenclatura(bool withSixth) const {
    QStringList parts;
    for (const Level &level : levels_) {
        parts += row_.text(level.field);
    }
    if (withSixth) {
        parts += row_.text(u"SUBSUBCTAID"_s);
    }
    return parts.join(u'.');
}

QList<ReportColumn> accountReportColumns() {
    QList<ReportColumn> columns;
    for (const auto &title : {u"Genero"_s, u"Grupo"_s, u"Rubro"_s, u"Cuenta"_s, u"Subcta"_s}) {
        columns += {title, 13, report::Align::Center};
    }
    return columns << ReportColumn{u"Nomenclatura"_s, 38};
}

QStringList accountCells(const NamedQuery &query, int row) {
    QStringList cells;
    for (const auto &field : {u"generoid"_s, u"grupoid"_s, u"cgrubroid"_s, u"cuentaid"_s,
                              u"subctaid"_s, u"nomenclatura"_s}) {
        cells += query.valueAt(row, field).toString();
    }
    return cells;
}

}  // namespace kaldo
