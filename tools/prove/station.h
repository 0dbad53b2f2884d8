#pragma once

#include <QString>

namespace kaldo::prove {

/// What a station of the proof is told. It uses its own root and the desk that all share.
struct StationOrders {
    QString root;
    QString ledger;  ///< file that gets a line for whatever the cashier was told
    int number = 0;  ///< which of the stations: its cashier and its patients bear it
    int life = 0;    ///< how often this station was started before
    int notes = 0;   ///< how many it has yet to register
    unsigned seed = 0;
};

inline constexpr int kDesk = 1;
inline constexpr int kDied = 42;  ///< exit code of a station that lost its power

/// A line of the ledger: "note NUMBER PATIENT LINES ADMISSIONS", or "told TEXT OF A BOX".
inline constexpr char kNoteLine[] = "note";
inline constexpr char kToldLine[] = "told";

/// The code of a station's cashier.
QString cashierOf(int station);

/// Works as a cashier in a hurry does, until its notes are registered: every failure is followed by
/// a visit to "Recibos Incompletos", some visits have no reason, some calls fail and some kill the
/// process. Returns the exit code.
int runStation(const StationOrders &orders);

}  // namespace kaldo::prove
