#pragma once

#include "data/data_module.h"
#include "data/dm_conexion.h"

namespace kaldo {

/// The queries and routines of the finance database.
class DMFinanzas final : public DataModule {
public:
    explicit DMFinanzas(DMConexion &connections);

    NamedQuery UsuarioID;
    NamedQuery cg_usuario;

    // Chart of accounts: each level as the matrix of allowed combinations offers it
    NamedQuery cgenero;
    NamedQuery cgrupo;
    NamedQuery crubro;
    NamedQuery ccuenta;
    NamedQuery csubcta;
    NamedQuery csubsubcta;

    // Programmes, taxes, banks
    NamedQuery Programas;
    NamedQuery Programas1;
    NamedQuery tipodeiva;
    NamedQuery clasificacioniva;
    NamedQuery Bancos;
    NamedQuery BancosMN;
    NamedQuery BancosDL;
    NamedQuery BancoPrograma;
    // For the clinic's copy; the screen's own lists keep their cursors.
    NamedQuery BancosTodos;
    NamedQuery BancoProgramasTodos;

    Procedure inserta_vw_recibopago;
    Procedure BorrarPago;
};

}  // namespace kaldo
