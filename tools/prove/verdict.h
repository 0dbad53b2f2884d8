#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include "data/connection.h"

namespace kaldo::prove {

/// A note that a cashier was told to be registered: a patient holds its receipt.
struct ToldNote {
    int number = 0;
    QString cashier;
    QString patient;
    int lines = 0;
    int admissions = 0;
};

/// What the ledgers of all stations say.
struct Told {
    QList<ToldNote> notes;
    QHash<QString, int> boxes;  ///< how often each text was shown, other than a registered note
};

/// Adds a station's ledger; throws std::runtime_error for a line that is none.
void readLedger(const QString &path, const QString &cashier, Told *told);

/// The notes that were told against the databases.
struct Verdict {
    int lost = 0;     ///< told, and gone or another patient's
    int doubled = 0;  ///< numbers that two patients hold
    int maimed = 0;   ///< told, and a piece is missing or there twice
    int orphans = 0;  ///< pieces of notes without a head
    QStringList examples;

    bool holds() const { return lost + doubled + maimed + orphans == 0; }
};

Verdict judge(const Told &told, Connection &clinic, Connection &finance);

}  // namespace kaldo::prove
