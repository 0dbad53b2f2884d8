#include "people/dossier_register.h"

#include "data/named_query.h"
#include "data/runtime_texts.h"

namespace kaldo {

std::optional<Dossier> findDossier(NamedQuery &expe, const QString &number, const QString &campus) {
    expe.setText(expeText(number, campus));
    expe.open();
    if (expe.isEmpty()) {
        return std::nullopt;
    }
    Dossier found;
    found.expediente = expe.text(QStringLiteral("EXPEDIENTE"));
    found.folio = expe.integer(QStringLiteral("FOLIO"));
    found.prestacion = expe.integer(QStringLiteral("PRESTACION"));
    found.centro = expe.text(QStringLiteral("CENTRO")).trimmed();
    found.centroDescr = expe.text(QStringLiteral("DESCR"));
    found.numEmpleado = expe.integer(QStringLiteral("NUM_EMPL"));
    found.empleado = expe.text(QStringLiteral("EMPLEADO"));
    found.dependencia = expe.text(QStringLiteral("DEPENDENCIA"));
    found.status = expe.text(QStringLiteral("STATUS"));
    found.paterno = expe.text(QStringLiteral("PATERNO"));
    found.materno = expe.text(QStringLiteral("MATERNO"));
    found.paciente = expe.text(QStringLiteral("PACIENTE"));
    found.edad = expe.integer(QStringLiteral("EDAD"));
    found.canalizadoA = expe.text(QStringLiteral("CANALIZADOA"));
    found.alumno = expe.text(QStringLiteral("NOMBRE"));
    return found;
}

QString useDossierQuestion(const Dossier &dossier) {
    return QStringLiteral("Desea usar la información seleccionada de ") + dossier.paciente + u' ' +
           dossier.paterno.trimmed() + u' ' + dossier.materno.trimmed() + QStringLiteral(" ?");
}

Parameters dossierListParameters(const DossierListFilter &filter, const QString &centro,
                                 const QString &campus, const QDate &since) {
    return {{QStringLiteral("CENT"), centro},
            {QStringLiteral("CD"), campus},
            {QStringLiteral("FECHA"), since},
            {QStringLiteral("TIPO"), filter.tipo},
            {QStringLiteral("BAN"), filter.ban}};
}

}  // namespace kaldo
