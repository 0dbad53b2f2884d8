#pragma once

#include <QString>
#include <QStringList>

namespace kaldo {

/// The rows of "Tipo de Servicio". An "Empresarial" installation has the first seven only.
QStringList serviceTypeRows(bool empresarial);

/// The two letters of a row: "AD - ADMISION" gives "AD".
QString tipoServOf(const QString &row);

/// The words of a row, from its sixth character on, at most 80: "AD - ADMISION" gives "ADMISION".
QString cadenaServicioOf(const QString &row);

/// How the payer of a service is identified.
enum class PayerPath {
    OpenDossier,        ///< AE: the dialog that opens dossiers
    Dossier,            ///< LE, AP, ES: a dossier number
    Names,              ///< AD, PG, LP, CD, EX, MD, OT: the three names
    Student,            ///< AL: a student number
    EmployeeOrStudent,  ///< VA, UE: asks which of them
    None                ///< any other code opens nothing
};
PayerPath payerPath(const QString &tipoServ);

/// Enter in "Nombre" leads to the lines for these codes. 'AD' has rules of its own.
bool namesLeadToLines(const QString &tipoServ);

/// AE, AP, ES, LE: the note is the patient's, whatever student or employee stands beside.
bool chargesDossier(const QString &tipoServ);

/// AD, CD, LP, OT, PG, VA: without dossier and student the receipt names the payer.
bool receiptNamesPayer(const QString &tipoServ);

/// AE, AP, LE: with a benefit of 100 % nothing is paid and the payment dialog is skipped.
bool skipsDialogWhenCovered(const QString &tipoServ);

/// The row of the services of external laboratories.
inline constexpr QLatin1StringView kLaboratoriosExternos{"LE - LABORATORIOS EXTERNOS"};
/// The row of payments to an account.
inline constexpr QLatin1StringView kAbonoACuenta{"AB - ABONO A CUENTA"};
/// The words of an admission: the only service whose note creates one.
inline constexpr QLatin1StringView kAdmision{"ADMISION"};

}  // namespace kaldo
