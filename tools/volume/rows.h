#pragma once

#include <memory>

#include "tools/volume/school.h"

namespace kaldo::volume {

/// Writes the rows that the routines would write, straight into the tables: the fast way.
std::unique_ptr<Writer> makeRowWriter(BulkDatabase &clinic, BulkDatabase &finance);

/// Registers the same through the stored routines, in the order of the stations: the way that the
/// fast one is compared with. What no routine writes yet (dossiers, accounts and what is paid on
/// them) comes by the same statements as above.
std::unique_ptr<Writer> makeRoutineWriter(BulkDatabase &clinic, BulkDatabase &finance);

/// Desks, cashiers and students before the first day.
void writePeople(const School &school, BulkDatabase &clinic, BulkDatabase &finance,
                 BulkDatabase &students);
/// Counters and sequences after the last one.
void writeCounters(const School &school, BulkDatabase &clinic);

}  // namespace kaldo::volume
