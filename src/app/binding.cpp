#include "app/binding.h"

#include "data/named_query.h"
#include "toolkit/forms/application.h"
#include "toolkit/forms/data_grid.h"
#include "toolkit/forms/lookup_field.h"

namespace kaldo {

void bindGrid(DataGrid *grid, NamedQuery *query) {
    grid->setModel(query);
    connectGuarded(grid, &DataGrid::currentRowChanged, grid, [query](int row) {
        if (row >= 0 && row != query->position()) {
            query->moveTo(row);
        }
    });
    connectGuarded(query, &NamedQuery::cursorMoved, grid, [grid](int row) {
        if (row >= 0 && row != grid->currentRow()) {
            grid->setCurrentRow(row);
        }
    });
    const auto followState = [grid, query] {
        grid->setRowEdit(query->state() == NamedQuery::State::Editing ||
                         query->state() == NamedQuery::State::Inserting);
    };
    connectGuarded(query, &NamedQuery::stateChanged, grid, followState);
    followState();
}

void bindLookup(LookupField *field, NamedQuery *query) {
    connectGuarded(field, &LookupField::rowTaken, field, [query](int row) { query->moveTo(row); });
}

}  // namespace kaldo
