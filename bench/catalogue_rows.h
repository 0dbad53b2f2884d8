#pragma once

#include "tests/support/test_installation.h"

namespace kaldo::bench {

/// Rows that each catalogue's table gets.
inline constexpr int kCatalogueRows = 10000;

/// Ten thousand rows more in every catalogue of the campus of Valle Norte but the cash desks. Lists
/// that belong to something belong to centre "01", its sales area "INFANTIL" and, the prices, to
/// "AREA 1".
void storeCatalogues(const test::TestInstallation &installation);

/// The cash desks: by themselves, since the users' list shows the name of each user's desk, and a
/// school has a few dozen.
void storeCashDesks(const test::TestInstallation &installation);

/// As many items as a sales area can hold: their codes tell a thousand apart.
inline constexpr int kListItems = 1000;

/// A price list of kListItems in the sales area "ORIGEN", and areas "DESTINO 1" and so on in the
/// other campus.
void storePriceList(const test::TestInstallation &installation, int targets);

}  // namespace kaldo::bench
