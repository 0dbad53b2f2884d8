#pragma once

namespace kaldo {

class CheckField;
class DataGrid;
class DateField;
class LookupField;
class MaskedField;
class NamedQuery;
class NumberField;
class TextField;

/// A grid over a named query: the grid's current row is the query's cursor, and the row is open in
/// the grid while it is open in the query. The query outlives the grid.
void bindGrid(DataGrid *grid, NamedQuery *query);

/// A drop-down whose picked row is the query's cursor by the time that closedUp() is told.
void bindLookup(LookupField *field, NamedQuery *query);

/// Fields that show a column of the query's current row, and write into it what the user types. To
/// be read-only while no row is open is the screen's matter. The query outlives the field.
void bindField(TextField *field, NamedQuery *query, const QString &column);
void bindField(NumberField *field, NamedQuery *query, const QString &column);
void bindField(MaskedField *field, NamedQuery *query, const QString &column);
/// A text that is no date, or not yet, leaves the row's date as it was.
void bindField(DateField *field, NamedQuery *query, const QString &column);
/// "S" and "N".
void bindField(CheckField *field, NamedQuery *query, const QString &column);
/// The column holds the value field of the drop-down's source.
void bindField(LookupField *field, NamedQuery *query, const QString &column);

}  // namespace kaldo
