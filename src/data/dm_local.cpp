#include "data/dm_local.h"

namespace kaldo {

DMLocal::DMLocal(DMConexion &connections)
    : DataModule(QStringLiteral("DMLocal"), connections.FBLocal),
      Firebird({"Firebird", "Select * from Firebird order by noidx", "firebird", "noidx"}),
      Informix({"Informix", "Select * from Informix order by noidx", "informix", "noidx"}),
      Recibos({"Recibos", "select * from recibos order by recibo", "recibos", "recibo"}),
      // Lines whose key was left empty are told apart by their code.
      FBDetalleVtas({"FBDetalleVtas", "select * from detallevtas", "detallevtas",
                     "tipo_prod,cve_prod,codigo"}),
      Unidades({"Unidades", "select * from unidades where unidad=:unidad"}),
      LimpiarTabla("LimpiarTabla", "Delete from detallevtas") {
    bindAll({&Firebird, &Informix, &Recibos, &FBDetalleVtas, &Unidades});
    bindAll({&LimpiarTabla});
}

}  // namespace kaldo
