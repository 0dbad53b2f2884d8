#pragma once

#include "app/catalogue_panel.h"
#include "app/catalogue_report.h"
#include "data/dm_finanzas.h"

namespace kaldo {

/// Opens the sixth level, `csubsubcta`, for the account that a row's five levels make.
void openSixthLevel(DMFinanzas &finanzas, const NamedQuery &row);

/// The five levels of the chart of accounts as columns of a catalogue. Each is chosen from those
/// that the matrix allows under the levels before it in the row.
class AccountLevels {
public:
    AccountLevels(DMFinanzas &finanzas, NamedQuery &row);
    /// Takes its conditions back from the shared queries.
    ~AccountLevels();
    AccountLevels(const AccountLevels &) = delete;
    AccountLevels &operator=(const AccountLevels &) = delete;

    /// "Genero", "Grupo", "Rubro", "Cuenta", "Subcta".
    QList<GridColumn> columns(bool shown) const;
    /// From now on a level that is written opens those below it anew.
    void follow(CataloguePanel *panel);
    /// Opens the lists of all levels for the row as it stands.
    void reopen();

    /// The levels of the row, also the sixth where it is told, with points between them.
    QString nomenclatura(bool withSixth = false) const;

private:
    struct Level {
        NamedQuery *list;
        QString field;
        QString title;
    };
    void reopenBelow(const QString &field);
    void openLevel(int at);

    QList<Level> levels_;
    NamedQuery &row_;
};

/// The five levels and the path as columns of a report, and a row's cells for them.
QList<ReportColumn> accountReportColumns();
QStringList accountCells(const NamedQuery &query, int row);

}  // namespace kaldo
