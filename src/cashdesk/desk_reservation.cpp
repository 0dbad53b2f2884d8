#include "cashdesk/desk_reservation.h"

#include "data/database_error.h"
#include "toolkit/core/log.h"

namespace kaldo {

DeskReservation::DeskReservation(DMIngresosCaja &caja, int numCaja, const DeskFigures &seen)
    : caja_(caja), numCaja_(numCaja) {
    caja_.ReservaCaja.execute({{QStringLiteral("num_caja"), numCaja_},
                               {QStringLiteral("ultima"), seen.ultima},
                               {QStringLiteral("siguiente"), seen.siguiente}});
    caja_.CajaReservada.open({{QStringLiteral("caja"), numCaja_}});
    held_ = !caja_.CajaReservada.isEmpty();
}

DeskReservation::~DeskReservation() {
    if (!held_) {
        return;
    }
    try {
        caja_.LiberaCaja.execute({{QStringLiteral("num_caja"), numCaja_}});
    } catch (const DatabaseError &failure) {
        logSwallowed(QStringLiteral("uso de la caja %1").arg(numCaja_), failure);
        // It lapses with the attachment, or after some minutes.
    }
}

}  // namespace kaldo
