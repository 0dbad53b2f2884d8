#pragma once

#include "data/data_module.h"
#include "data/dm_conexion.h"

namespace kaldo {

/// The queries over the station's own database: the registry of databases, the receipts that a
/// note prints, and the lines of the note being written.
class DMLocal final : public DataModule {
public:
    explicit DMLocal(DMConexion &connections);

    NamedQuery Firebird;
    NamedQuery Informix;
    NamedQuery Recibos;
    NamedQuery FBDetalleVtas;
    NamedQuery Unidades;

    /// Empties the working table of the note.
    Command LimpiarTabla;

    // The note whose receipts aren't finished
    NamedQuery ReciboPendiente;
    Command MarcaRecibo;
    Command QuitaMarcaRecibo;
};

}  // namespace kaldo
