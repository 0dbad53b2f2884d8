#include "data/dm_ingresos_caja.h"

namespace kaldo {

DMIngresosCaja::DMIngresosCaja(DMConexion &connections)
    : DataModule(QStringLiteral("DMIngresosCaja"), connections.FBOdonto),
      DatosCaja(
          {"DatosCaja", "select * from datoscaja where campus=:campus", "datoscaja", "num_caja"}),
      DatosCaja1(
          {"DatosCaja1", "select * from datoscaja where num_caja=:caja", "datoscaja", "num_caja"}),
      DatosCaja2({"DatosCaja2", "select * from datoscaja order by num_caja"}),
      DatosCajaUsuario({"DatosCajaUsuario", "select * from datoscaja where num_caja=:caja"}),
      TipoCambio({"TipoCambio", "SELECT tipo_cam, llave FROM Control"}),
      CambiaPass("CambiaPass", "update controlusuarios set pass=:pass where usuario=:usuario"),
      TipoCam("TipoCam", "update  control set tipo_cam=:tipo where llave='1'"),
      UDatosCaja("UDatosCaja", "update datoscaja set nota_vta=:nota where num_caja=:caja"),
      FolioNota("FolioNota", "update datoscaja set nota_vta=:nota where num_caja=:caja"),
      CopiaBanco("CopiaBanco",
                 "update or insert into cg_banco (bancoid, generoid, grupoid, cgrubroid, cuentaid, "
                 "subctaid, subsubctaid, nomenclatura, descripcion, tipomoneda, posleftnumcheque) "
                 "values (:bancoid, :generoid, :grupoid, :cgrubroid, :cuentaid, :subctaid, "
                 ":subsubctaid, :nomenclatura, :descripcion, :tipomoneda, :posleftnumcheque) "
                 "matching (bancoid)"),
      BorraBanco("BorraBanco", "delete from cg_banco where bancoid=:bancoid"),
      CopiaBancoPrograma("CopiaBancoPrograma",
                         "update or insert into cg_bancoporprograma (bancoid, programaid) values "
                         "(:bancoid, :programaid) matching (bancoid, programaid)"),
      BorraBancoProgramas("BorraBancoProgramas",
                          "delete from cg_bancoporprograma where bancoid=:bancoid"),
      BancosCopia({"BancosCopia", "select * from cg_banco"}),
      BancoProgramasCopia({"BancoProgramasCopia", "select * from cg_bancoporprograma"}),
      ListaPrecios({"ListaPrecios",
                    "SELECT * FROM  listaprecios Listaprecios  where tipo_prod=:tipo_prod order by "
                    "descr"}),
      ListaPrecios1({"ListaPrecios1", "select * from ListaPrecios  Where codigo=:codigo"}),
      Clasifservicios({"Clasifservicios",
                       "SELECT * FROM Clasifservicios where ciudad=:cd and tipo_prod=:tipo_prod"}),
      Prestaciones1({"Prestaciones1", "SELECT * FROM Prestaciones where prestacion=:prestacion"}),
      PrestacionSB({"PrestacionSB", "SELECT * FROM Prestaciones ORDER BY prestacion"}),
      consulta_empleado_p(
          {"consulta_empleado_p", "select * from KDCONSULTA_EMPLEADO_P(:P_NUMEMPL)"}),
      verifica_pagodetratamiento_p(
          {"verifica_pagodetratamiento_p",
           "select * from KDVERIFICA_PAGODETRATAMIENTO_P(:P_EXPEDIENTE, :P_CODIGO)"}),
      Ticket({"Ticket", "SELECT * from registrovtas where num_caja=:caja and nota_vta=:nota"}),
      RegistroVtas({"RegistroVtas",
                    "select * from registrovtas where num_caja=:num_caja and nota_vta=:nota_vta"}),
      FormaPago1({"FormaPago1", "select * from formapago where num_caja=:caja and nota_vta=:nota"}),
      VtasContado(
          {"VtasContado", "select *  from vtascontado where num_caja =:caja  and nota_vta=:nota"}),
      PagosOdontologia1({"PagosOdontologia1",
                         "select * from pagos_odontologia  where num_caja=:caja and "
                         "nota_vta=:nota"}),
      UltimaNota({"UltimaNota", "select max(nota_vta) from registrovtas where num_caja=:caja "}),
      CajaReservada({"CajaReservada",
                     "select num_caja from uso_caja where num_caja=:caja and "
                     "conexion=current_connection and nota_vta is null"}),
      Qry405({"Qry405",
              "select max(nota_vta),min(nota_vta) from registrovtas  where fecha=:fecha   and  "
              "num_caja =:caja and capto=:usuario"}),
      Qry405_2({"Qry405_2",
                "select * from registrovtas where fecha=:fecha  and  num_caja=:caja   and "
                "capto=:usr order by num_caja,nota_vta"}),
      Qry405_3({"Qry405_3",
                "select sum(complementaria) from formapago  where num_caja=:caja and "
                "nota_vta>=:fol1 and nota_vta<=:fol2"}),
      Qry405_4({"Qry405_4",
                "SELECT  sum(c.pesos),sum(c.dolares),sum(c.cheque),sum(c.credito),"
                "sum(c.pesos+c.cheque), "
                "sum(c.pesos+c.dolares+c.chequedll+c.cheque+c.credito+c.beca+(c.complementaria)), "
                "sum(c.prestacion),sum(c.chequedll),sum(c.complementaria) FROM formapago c, "
                "registrovtas r  where c.num_caja=:caja and r.num_caja=c.num_caja  and "
                "r.nota_vta=c.nota_vta  and r.fecha=:fecha and r.capto=:usr and r.status<>'CA'"}),
      Qry405_5({"Qry405_5",
                "select DISTINCT a.num_caja,a.nota_vta,a.nombre,a.num_empl,a.tipo_pago,a.importe, "
                "SUM(a.IMPORTE),b.ingresoid,b.prog,b.codigo,sum(b.cant),b.precio,b.des_adic,"
                "b.importeiva,b.subsubcta from cortedetallado a, detallevtas b WHERE "
                "a.usuario=:usuario and a.num_caja=:caja and b.num_caja=a.num_caja and "
                "b.nota_vta=a.nota_vta  GROUP BY "
                "a.num_caja,a.nota_vta,a.nombre,a.num_empl,a.tipo_pago,a.importe, "
                "b.ingresoid,b.prog,b.codigo,b.precio,b.des_adic,b.importeiva,b.subsubcta order "
                "by a.nota_vta"}),
      Qry405_10({"Qry405_10",
                 "select sum(d.importe) from detallepago d where d.num_caja=:caja and d.idtipo=10  "
                 "and d.nota_vta in(select r.nota_vta from registrovtas r  where r.fecha=:fecha "
                 "and r.num_caja=d.num_caja and r.nota_vta=d.nota_vta and r.status<>'CA' and "
                 "r.capto=:usr)"}),
      CorteDetallado({"CorteDetallado", "select * from cortedetallado", "cortedetallado",
                      "num_caja,nota_vta"}),
      Totales({"Totales", "select *  from totales ", "totales", "num_caja,usuario"}),
      ConsultaDolares({"ConsultaDolares",
                       "select r.tipocambio,sum(f.dolares) as dolares, "
                       "sum(r.tipocambio*f.dolares) as suma, "
                       "sum(r.tipocambio*f.dolares)-sum(f.dolares) as "
                       "complementaria,sum(f.chequedll)  as chequedll from registrovtas r, "
                       "formapago f where r.num_caja=:caja and r.fecha=:fcha and r.capto=:usr and "
                       "r.status='GE'  and f.num_caja=r.num_caja and f.nota_vta=r.nota_vta and "
                       "f.dolares>=0 group by r.tipocambio"}),
      Pesos({"Pesos",
             "select distinct t.sumapesos,t.sumadolares,t.sumacheque,t.sumacredito, "
             "t.sumapesosche,t.sumatodo,t.sumadm,t.sumadoc,t.sumchdll,t.sumacomplemento,"
             "t.sumapagoreconocido from totales t, registrovtas r where t.usuario=:usr  and  "
             "t.num_caja=:caja and r.num_caja=t.num_caja and r.fecha=:fecha"}),
      CorteBancario({"CorteBancario",
                     "select  cb.subsubctaid||cb.ftefto||cb.fondo||cb.bancoid as "
                     "todo,cb.subsubctaid, "
                     "cb.nomenclatura,cb.nom_banco,cb.ftefto,cb.fondo,cb.concepto,cb.importe,"
                     "cb.prog   from cortebancario cb where num_caja=:caja and fechacorte=:fcha "
                     "and usuario=:usuario order by 1"}),
      PagoAnticipo({"PagoAnticipo",
                    "select sum(es.importe-es.saldo) from registrovtas re, anticipos a, "
                    "estadocuenta es where re.recibo=es.recibopago and re.recibo=a.recibo_anticipo "
                    "and re.fecha=:fecha and es.expediente=a.expediente  and es.concepto like "
                    "'PAGO DE ANTICIPO%' and re.status<>'CA' and re.num_caja=:caja"}),
      SaldoPaciente({"SaldoPaciente",
                     "SELECT sum(cambio) FROM saldopaciente Where num_caja=:caja and "
                     "nota_vta>=:nota1 and nota_vta<=:nota2"}),
      registra_pago_odontologia_p(
          "registra_pago_odontologia_p", "KDREGISTRA_PAGO_ODO_P",
          "p_numcaja, p_notavta, p_mpio, p_usuario, p_importe, p_tiposerv, p_tipocte, p_paciente, "
          "p_matricula, p_alumno, p_tipocambio, p_pesos, p_dolares, p_cheque, p_credito, p_cambio, "
          "p_imprestacion, p_numcheque, p_numempl, p_expediente, p_turno, p_centro, p_prestacion, "
          "p_pordscto, p_impdscto, p_area, p_paterno, p_materno, p_nombre"),
      sp_registrametodopago("sp_registrametodopago", "KDREGISTRA_METODOPAGO_P",
                            "caja, nota, cve, importe, cta, rfcbanco, banco, operacion, "
                            "rfcdestino, ctadestino, moneda, tipocambio"),
      spinsdetalle("spinsdetalle", "KDREGISTRA_SPINSDETALLE_P",
                   "p_caja, p_notavta, p_codigo, p_cant, p_precio, p_porcdescto, p_nombre, p_prog, "
                   "p_sscta, p_desadic, p_fondo, p_orig, p_safolio, p_ftefto, p_areactr"),
      registra_historicodontologia_p(
          "registra_historicodontologia_p", "KDREGISTRA_HISTORICO_ODO_P",
          "p_expediente, p_codigo, p_tipo_prod, p_cve_prod, p_caja, p_notavta, p_fecha, p_descr, "
          "p_cant, p_precio, p_matricula, p_origen, p_areactr"),
      registraiva("registraiva", "KDREGISTRAIVA", "caja, nota"),
      BorrarDetalleVtas("BorrarDetalleVtas", "KDBORRARDETALLEVTAS", "num_caja, nota_vta"),
      SP550("SP550", "SP550", "num_caja, nota_vta"),
      ReservaCaja("ReservaCaja", "KDRESERVACAJA", "num_caja, ultima, siguiente"),
      LiberaCaja("LiberaCaja", "KDLIBERACAJA", "num_caja"),
      CompletaCorteBancario("CompletaCorteBancario", "KDCOMPLETACORTEBANCARIO",
                            "usr, caja, fecha") {
    bindAll({&DatosCaja,
             &BancosCopia,
             &BancoProgramasCopia,
             &DatosCaja1,
             &DatosCaja2,
             &DatosCajaUsuario,
             &TipoCambio,
             &ListaPrecios,
             &ListaPrecios1,
             &Clasifservicios,
             &Prestaciones1,
             &PrestacionSB,
             &consulta_empleado_p,
             &verifica_pagodetratamiento_p,
             &Ticket,
             &RegistroVtas,
             &FormaPago1,
             &VtasContado,
             &PagosOdontologia1,
             &UltimaNota,
             &CajaReservada,
             &Qry405,
             &Qry405_2,
             &Qry405_3,
             &Qry405_4,
             &Qry405_5,
             &Qry405_10,
             &CorteDetallado,
             &Totales,
             &ConsultaDolares,
             &Pesos,
             &CorteBancario,
             &PagoAnticipo,
             &SaldoPaciente});
    bindAll({&CambiaPass, &TipoCam, &UDatosCaja, &FolioNota, &CopiaBanco, &BorraBanco,
             &CopiaBancoPrograma, &BorraBancoProgramas});
    bindAll({&registra_pago_odontologia_p, &sp_registrametodopago, &spinsdetalle,
             &registra_historicodontologia_p, &registraiva, &BorrarDetalleVtas, &SP550,
             &ReservaCaja, &LiberaCaja, &CompletaCorteBancario});

    // The rows of a note follow each other: its head is read once.
    Qry405_5.addCalculated(QStringLiteral("CLNombre"), [this](const NamedQuery::RowReader &row) {
        const QVariant caja = row(QStringLiteral("num_caja"));
        const QVariant nota = row(QStringLiteral("nota_vta"));
        if (caja != cajaCLNombre_ || nota != notaCLNombre_) {
            RegistroVtas.open(
                {{QStringLiteral("num_caja"), caja}, {QStringLiteral("nota_vta"), nota}});
            cajaCLNombre_ = caja;
            notaCLNombre_ = nota;
        }
        const QString nombre = row(QStringLiteral("nombre")).toString();
        const int matricula = RegistroVtas.integer(QStringLiteral("matricula"));
        return matricula > 0 ? QString::number(matricula) + u' ' + nombre : nombre;
    });
    QObject::connect(&Qry405_5, &NamedQuery::modelAboutToBeReset, &Qry405_5,
                     [this] { notaCLNombre_ = QVariant(); });
    Pesos.addCalculated(QStringLiteral("CLAnticipadas"),
                        [](const NamedQuery::RowReader &) { return 0; });
}

}  // namespace kaldo
