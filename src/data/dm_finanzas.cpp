#include "data/dm_finanzas.h"

namespace kaldo {

DMFinanzas::DMFinanzas(DMConexion &connections)
    : DataModule(QStringLiteral("DMFinanzas"),
                 connections.branch(connections.FBFinanzas, connections.InfxFinanzas)),
      UsuarioID({"UsuarioID",
                 "SELECT usuarioid, app_login, mpo FROM cg_usuario  where app_login=:usuario"}),
      inserta_vw_recibopago("inserta_vw_recibopago", "INSERTA_VW_RECIBOPAGO", "v_caja, v_nota"),
      BorrarPago("BorrarPago", "BORRARPAGO", "num_caja, nota_vta") {
    bindAll({&UsuarioID});
    bindAll({&inserta_vw_recibopago, &BorrarPago});
}

}  // namespace kaldo
