#pragma once

#include "data/data_module.h"
#include "data/dm_conexion.h"

namespace kaldo {

/// The queries of the student database. The connection comes up with the first of them.
class DMEscolares final : public DataModule {
public:
    explicit DMEscolares(DMConexion &connections);

    NamedQuery MatriculaPadron;
    NamedQuery Bposgrado;
};

}  // namespace kaldo
