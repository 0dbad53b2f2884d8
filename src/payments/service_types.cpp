#include "payments/service_types.h"

#include "toolkit/core/text.h"

#include <algorithm>
#include <initializer_list>

namespace kaldo {

namespace {

constexpr int kRowsOfEveryInstallation = 7;

bool isOneOf(const QString &code, std::initializer_list<const char *> codes) {
    return std::any_of(codes.begin(), codes.end(),
                       [&](const char *one) { return code == QLatin1StringView(one); });
}

}  // namespace

QStringList serviceTypeRows(bool empresarial) {
    const QStringList rows{
        QStringLiteral("AD - ADMISION"),
        QStringLiteral("AE - APERTURA DE EXPEDIENTE"),
        QStringLiteral("AP - SERVICIOS DE CLINICA"),
        QStringLiteral("ES - ESPECIALIDADES"),
        QStringLiteral("OT - OTROS"),
        QStringLiteral("PG - PUBLICO GENERAL"),
        QString(kLaboratoriosExternos),
        QStringLiteral("AL - ALUMNOS"),
        QStringLiteral("CD - CURSOS Y DIPLOMADOS"),
        QStringLiteral("VA - VARIOS"),
        QStringLiteral("UE - BIBLIOTECA"),
        QStringLiteral("MD - MAESTRIA Y DOCTORADO"),
        QStringLiteral("EX - EXAMENES DE ESPECIALIDADES"),
        QStringLiteral("PR - PROG. LABIO PALADAR Y HENDIDO"),
        QString(kAbonoACuenta),
    };
    return empresarial ? rows.first(kRowsOfEveryInstallation) : rows;
}

QString tipoServOf(const QString &row) {
    return row.left(2);
}

QString cadenaServicioOf(const QString &row) {
    return cutToWidth(row.mid(5), 80);
}

PayerPath payerPath(const QString &tipoServ) {
    if (tipoServ == QLatin1String("AE")) {
        return PayerPath::OpenDossier;
    }
    if (isOneOf(tipoServ, {"LE", "AP", "ES"})) {
        return PayerPath::Dossier;
    }
    if (isOneOf(tipoServ, {"AD", "PG", "LP", "CD", "EX", "MD", "OT"})) {
        return PayerPath::Names;
    }
    if (tipoServ == QLatin1String("AL")) {
        return PayerPath::Student;
    }
    return isOneOf(tipoServ, {"VA", "UE"}) ? PayerPath::EmployeeOrStudent : PayerPath::None;
}

bool namesLeadToLines(const QString &tipoServ) {
    return isOneOf(tipoServ, {"PG", "LP", "CD", "EX", "MD", "OT", "VA", "UE"});
}

bool chargesDossier(const QString &tipoServ) {
    return isOneOf(tipoServ, {"AE", "AP", "ES", "LE"});
}

bool receiptNamesPayer(const QString &tipoServ) {
    return isOneOf(tipoServ, {"AD", "CD", "LP", "OT", "PG", "VA"});
}

bool skipsDialogWhenCovered(const QString &tipoServ) {
    return isOneOf(tipoServ, {"AE", "AP", "LE"});
}

}  // namespace kaldo
