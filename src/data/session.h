#pragma once

#include <QString>
#include <QVariant>

#include "toolkit/core/money.h"
#include "toolkit/core/text.h"

namespace kaldo {

/// Which list of admissions the admission screens show.
enum class AdmissionFilter { Today = 1, Authorised = 2, LastMonth = 3 };

/// How a note was paid, as KDREGISTRA_METODOPAGO_P gets it; all NULL before the first note.
struct MethodOfPayment {
    QVariant cve, importe, moneda, tipoCambio;
};

/// Who works at this station, and on what: filled at start-up and by the login, replaced by the
/// next login. Texts are cut to their width when they are assigned.
struct Session {
    // From the ini file and the clock, at start-up.
    FixedText<8> Cliente;
    QString ClienteNombre;
    FixedText<20> Ciudad;
    FixedText<20> ClienteSql;  ///< "Firebird" or "Informix"
    FixedText<40> SkinName;
    qint16 AnioActual = 0;
    AdmissionFilter FiltroAdmision = AdmissionFilter::Today;
    bool ModoEstadoExpediente = false;

    // From the login.
    qint16 NumCaja = 0;
    FixedText<8> Usuario;
    FixedText<60> NombreUsuario;
    FixedText<60> NombreCorto;
    FixedText<2> Acceso;
    FixedText<2> Turno;
    FixedText<20> TurnoDescr;
    FixedText<1> Mpo;
    FixedText<3> Origen;
    FixedText<2> Origen2;
    FixedText<2> Centro;
    FixedText<5> Prog;
    FixedText<60> CentroDescr;
    Money TipoCambio;  ///< pesos per dollar

    // While the program runs.
    FixedText<8> UltimoExpediente;
    MethodOfPayment
        UltimoMetodo;           ///< of the last note that had one; one without is written with it
    FixedText<60> ClasifDescr;  ///< the sales area that FRM104 shows
    int ImpresoraIndice = -1;   ///< -1 is the default printer

    bool isFirebird() const { return ClienteSql.text() == QLatin1String("Firebird"); }

    /// Shift in words; a code that isn't one leaves the words as they were.
    void CargarTurno();
};

}  // namespace kaldo
