#pragma once

#include "bench/results.h"

namespace kaldo::bench {

/// Registering a note through the real screen, against its bare replay. One of the three ways to
/// reach the databases at a time.
Results registrationEmbedded();
Results registrationOnServer();
Results registrationWithoutForcedWrites();

/// Start-up to the login against an empty program with the same attaches.
Results startUp();

/// The payment note opened and painted, and its price list of 300 items.
Results paymentNote();

/// A receipt laid out and written as PDF.
Results receipt();

/// The cash cut of 10,000 notes against its bare statements.
Results cashCut();

/// Each catalogue over a table of 10,000 rows, opened and painted.
Results catalogues();
/// A price list copied into other sales areas, against its bare statements.
Results priceListCopy();

/// What a station feels on twenty years of data, in one table with the small database. `root`: an
/// installation that scripts/volume has filled; some admissions are registered in it.
Results onVolume(const QString &root);
/// The start over these databases against the start over the example school.
Results startUpOn(const QString &root);

/// Resident memory after many registered notes. Runs in a process of its own.
Results memory();
/// What that process does: prints its two figures.
int memoryChild();

}  // namespace kaldo::bench
