#pragma once

#include "app/frame.h"
#include "data/named_query.h"
#include "data/options.h"
#include "toolkit/forms/messages.h"

namespace kaldo {

/// What the catalogues ask and tell about work on many rows, the same in all of them.
bool confirmGeneration(Messages &messages);
void tellGenerated(Messages &messages);
void tellDeleted(Messages &messages);

/// Appends a row to `target` for each one of `source`, written at once, with the progress bar:
/// `copied` are taken over as they are, `own` sets the other fields for the row of that number.
/// A failure ends it there; the rows before it stay. `target` is open.
void copyRows(Frame &frame, NamedQuery &source, NamedQuery &target, const QStringList &copied,
              const std::function<void(int row)> &own);

/// The sales areas that an installation works with: in a business the first ten only.
NamedQuery::RowFilter areasOfSector(Sector sector);

}  // namespace kaldo
