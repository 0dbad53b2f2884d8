#include "data/dm_finanzas.h"

namespace kaldo {

DMFinanzas::DMFinanzas(DMConexion &connections)
    : DataModule(QStringLiteral("DMFinanzas"),
                 connections.branch(connections.FBFinanzas, connections.InfxFinanzas)),
      UsuarioID({"UsuarioID",
                 "SELECT usuarioid, app_login, mpo FROM cg_usuario  where app_login=:usuario"}),
      cg_usuario({"cg_usuario", "select * from cg_usuario", "cg_usuario", "usuarioid"}),
      cgenero({"cgenero",
               "select distinct g.generoid, g.descripcion from cg_genero g, cg_matrizdi m where "
               "(g.generoid = m.generoid_a)"}),
      cgrupo({"cgrupo",
              "select distinct g.generoid, g.grupoid, g.descripcion from cg_grupo g, cg_matrizdi m "
              "where  (g.generoid = m.generoid_a)   and  (g.grupoid = m.grupoid_a)"}),
      crubro({"crubro",
              "select distinct r.generoid, r.grupoid, r.cgrubroid, r.descripcion from cg_rubro r, "
              "cg_matrizdi m where (r.generoid = m.generoid_a) and (r.grupoid = m.grupoid_a) and "
              "(r.cgrubroid = m.cgrubroid_a)"}),
      ccuenta({"ccuenta",
               "select distinct c.generoid, c.grupoid, c.cgrubroid, c.cuentaid, c.descripcion from "
               "cg_cuenta c, cg_matrizdi m where (c.generoid = m.generoid_a) and (c.grupoid = "
               "m.grupoid_a) and (c.cgrubroid = m.cgrubroid_a) and (c.cuentaid = m.cuentaid_a)"}),
      csubcta({"csubcta",
               "select distinct s.generoid, s.grupoid, s.cgrubroid, s.cuentaid, s.subctaid, "
               "s.nomenclatura, s.descripcion from cg_subcta s, cg_matrizdi m where (s.generoid = "
               "m.generoid_a) and (s.grupoid = m.grupoid_a) and (s.cgrubroid = m.cgrubroid_a) and "
               "(s.cuentaid = m.cuentaid_a) and (s.subctaid = m.subctaid_a)"}),
      csubsubcta({"csubsubcta",
                  "select distinct sb.subsubctaid, sb.nomenclatura, sb.descripcion from "
                  "cg_subsubcta sb, cg_matrizdi m where (sb.generoid = m.generoid_a) and "
                  "(sb.grupoid = m.grupoid_a) and (sb.cgrubroid = m.cgrubroid_a) and (sb.cuentaid "
                  "= m.cuentaid_a) and (sb.subctaid = m.subctaid_a) and (sb.generoid =:generoid) "
                  "and (sb.grupoid =:grupoid) and (sb.cgrubroid =:cgrubroid) and "
                  "(sb.cuentaid=:cuentaid) and (sb.subctaid=:subctaid)"}),
      Programas({"Programas", "select * from programa"}),
      Programas1({"Programas1", "select * from programa"}),
      tipodeiva({"tipodeiva", "select * from cg_tipodeiva"}),
      clasificacioniva({"clasificacioniva", "select * from cg_clasificacioniva"}),
      Bancos({"Bancos", "select * from cg_banco", "cg_banco", "bancoid"}),
      BancosMN({"BancosMN", "select * from cg_banco where tipomoneda=1"}),
      BancosDL({"BancosDL", "select * from cg_banco where tipomoneda=2"}),
      BancoPrograma({"BancoPrograma", "select * from cg_bancoporprograma where bancoid=:bancoid",
                     "cg_bancoporprograma", "bancoid,programaid"}),
      BancosTodos({"BancosTodos", "select * from cg_banco"}),
      BancoProgramasTodos({"BancoProgramasTodos", "select * from cg_bancoporprograma"}),
      inserta_vw_recibopago("inserta_vw_recibopago", "INSERTA_VW_RECIBOPAGO", "v_caja, v_nota"),
      BorrarPago("BorrarPago", "BORRARPAGO", "num_caja, nota_vta") {
    bindAll({&UsuarioID, &cg_usuario, &cgenero, &cgrupo, &crubro, &ccuenta, &csubcta, &csubsubcta,
             &Programas, &Programas1, &tipodeiva, &clasificacioniva, &Bancos, &BancosMN, &BancosDL,
             &BancoPrograma, &BancosTodos, &BancoProgramasTodos});
    bindAll({&inserta_vw_recibopago, &BorrarPago});
}

}  // namespace kaldo
