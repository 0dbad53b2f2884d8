#pragma once

#include "data/dm_ingresos_caja.h"

namespace kaldo {

/// A desk as a station saw it: its highest note, and the number that its counter gives next.
struct DeskFigures {
    qint64 ultima = 0;
    qint64 siguiente = 0;

    bool operator==(const DeskFigures &) const = default;
};

/// Keeps other stations from registering on a desk and from repairing it, from its making until its
/// end; held only if the desk still is as it was seen, and nobody else works on it.
class DeskReservation {
public:
    /// Throws DatabaseError.
    DeskReservation(DMIngresosCaja &caja, int numCaja, const DeskFigures &seen);
    ~DeskReservation();
    DeskReservation(const DeskReservation &) = delete;
    DeskReservation &operator=(const DeskReservation &) = delete;

    bool held() const { return held_; }

private:
    DMIngresosCaja &caja_;
    int numCaja_;
    bool held_ = false;
};

}  // namespace kaldo
