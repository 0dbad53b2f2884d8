#include "data/dm_escolares.h"

namespace kaldo {

DMEscolares::DMEscolares(DMConexion &connections)
    : DataModule(QStringLiteral("DMEscolares"),
                 connections.branch(connections.FBEscolares, connections.InfxEscolar)),
      MatriculaPadron({"MatriculaPadron", "select * from MATRICULA_PADRON_P(:P_MATRICULA)"}),
      Bposgrado({"Bposgrado",
                 "SELECT Matricula, Nombres FROM v_infoalumnos2 V_infoalumnos2 where "
                 "matricula=:matricula"}) {
    bindAll({&MatriculaPadron, &Bposgrado});
}

}  // namespace kaldo
