#pragma once

namespace kaldo {

class DataGrid;
class LookupField;
class NamedQuery;

/// A grid over a named query: the grid's current row is the query's cursor, and the row is open in
/// the grid while it is open in the query. The query outlives the grid.
void bindGrid(DataGrid *grid, NamedQuery *query);

/// A drop-down whose picked row is the query's cursor by the time that closedUp() is told.
void bindLookup(LookupField *field, NamedQuery *query);

}  // namespace kaldo
