#pragma once

#include "data/data_module.h"
#include "data/dm_conexion.h"

namespace kaldo {

/// The queries and routines of the finance database.
class DMFinanzas final : public DataModule {
public:
    explicit DMFinanzas(DMConexion &connections);

    NamedQuery UsuarioID;
    Procedure inserta_vw_recibopago;
    Procedure BorrarPago;
};

}  // namespace kaldo
