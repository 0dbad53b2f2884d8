#pragma once

#include "data/data_module.h"
#include "data/dm_conexion.h"
#include "data/record_reader.h"

namespace kaldo {

/// What the cash cut reads of each note.
struct CutNote {
    int numCaja = 0;
    int notaVta = 0;
    QString tipoVta;
    QString status;
    double importeTot = 0;
    double tipoCambio = 0;  ///< the note's own rate
};

/// What the cash cut reads of a note's payment; NULL amounts are 0.
struct CutPayment {
    double credito = 0;
    double dolares = 0;
    double pesos = 0;
    double cambio = 0;
    double beca = 0;
    double cheque = 0;
    double chequedll = 0;
};

/// The cash desks' queries: price list, notes and their routines, the cash cut. Always bound to
/// FBOdonto, in both branches.
class DMIngresosCaja final : public DataModule {
public:
    explicit DMIngresosCaja(DMConexion &connections);

    // Desk and rate
    NamedQuery DatosCaja;
    NamedQuery DatosCaja1;
    NamedQuery DatosCaja2;
    NamedQuery DatosCajaUsuario;  ///< the desk of the user who logs in; DatosCaja1 stays closed
    NamedQuery TipoCambio;
    Command CambiaPass;
    Command TipoCam;
    Command UDatosCaja;
    Command FolioNota;
    // The bank cut can't read across databases: the clinic keeps a copy of the banks of finance.
    Command CopiaBanco;
    Command BorraBanco;
    Command CopiaBancoPrograma;
    Command BorraBancoProgramas;
    NamedQuery BancosCopia;
    NamedQuery BancoProgramasCopia;

    // The note's lines and its payer
    NamedQuery ListaPrecios;
    NamedQuery ListaPrecios1;
    NamedQuery Clasifservicios;
    NamedQuery Prestaciones1;
    NamedQuery PrestacionSB;
    NamedQuery consulta_empleado_p;
    NamedQuery verifica_pagodetratamiento_p;

    // Registered notes
    NamedQuery Ticket;
    NamedQuery RegistroVtas;
    NamedQuery FormaPago1;
    NamedQuery VtasContado;
    NamedQuery PagosOdontologia1;
    NamedQuery UltimaNota;
    NamedQuery CajaReservada;  ///< a row where this station holds the desk for its repair

    // Cash cut
    NamedQuery Qry405;
    NamedQuery Qry405_2;
    NamedQuery Qry405_3;
    NamedQuery Qry405_4;
    NamedQuery Qry405_5;
    NamedQuery Qry405_10;
    NamedQuery CorteDetallado;
    NamedQuery Totales;
    NamedQuery ConsultaDolares;
    NamedQuery Pesos;
    NamedQuery CorteBancario;
    NamedQuery PagoAnticipo;
    NamedQuery SaldoPaciente;

    RecordReader<CutNote> cutNote{Qry405_2,
                                  {{"num_caja", &CutNote::numCaja},
                                   {"nota_vta", &CutNote::notaVta},
                                   {"tipo_vta", &CutNote::tipoVta},
                                   {"status", &CutNote::status},
                                   {"importe_tot", &CutNote::importeTot},
                                   {"tipocambio", &CutNote::tipoCambio}}};
    RecordReader<CutPayment> cutPayment{FormaPago1,
                                        {{"credito", &CutPayment::credito},
                                         {"dolares", &CutPayment::dolares},
                                         {"pesos", &CutPayment::pesos},
                                         {"cambio", &CutPayment::cambio},
                                         {"beca", &CutPayment::beca},
                                         {"cheque", &CutPayment::cheque},
                                         {"chequedll", &CutPayment::chequedll}}};

    // Routines of a note
    Procedure registra_pago_odontologia_p;
    Procedure sp_registrametodopago;
    Procedure spinsdetalle;
    Procedure registra_historicodontologia_p;
    Procedure registraiva;
    Procedure BorrarDetalleVtas;
    Procedure SP550;
    Procedure ReservaCaja;
    Procedure LiberaCaja;
    Procedure CompletaCorteBancario;

private:
    QVariant cajaCLNombre_;  ///< the note that RegistroVtas holds for CLNombre
    QVariant notaCLNombre_;
};

}  // namespace kaldo
