#pragma once

namespace kaldo {

class DataGrid;
class LookupField;
class NamedQuery;

/// A grid over a named query: the grid's current row is the query's cursor, and the row is open in
/// the grid while it is open in the query. The query outlives the grid.
void bindGrid(DataGrid *grid, NamedQuery *query);

/// A drop-down whose picked row becomes the query's cursor before closedUp() reaches the screen's
/// own handler: bind before connecting that.
void bindLookup(LookupField *field, NamedQuery *query);

}  // namespace kaldo
