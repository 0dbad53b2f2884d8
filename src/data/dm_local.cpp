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
      LimpiarTabla("LimpiarTabla", "Delete from detallevtas"),
      ReciboPendiente({"ReciboPendiente", "select num_caja, nota_vta from recibopendiente"}),
      MarcaRecibo("MarcaRecibo",
                  "update or insert into recibopendiente (llave, num_caja, nota_vta) values (1, "
                  ":caja, :nota) matching (llave)"),
      QuitaMarcaRecibo("QuitaMarcaRecibo",
                       "delete from recibopendiente where num_caja=:caja and nota_vta=:nota") {
    bindAll({&Firebird, &Informix, &Recibos, &FBDetalleVtas, &Unidades, &ReciboPendiente});
    bindAll({&LimpiarTabla, &MarcaRecibo, &QuitaMarcaRecibo});
}

}  // namespace kaldo
