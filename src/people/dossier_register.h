#pragma once

#include <QDate>
#include <QString>

#include <optional>

#include "data/parameters.h"
#include "people/age.h"

namespace kaldo {

class NamedQuery;

/// A patient's dossier with what the desks ask of it.
struct Dossier {
    QString expediente;
    int folio = 0;  ///< of its admission
    int prestacion = 0;
    QString centro;       ///< trimmed
    QString centroDescr;  ///< its words
    int numEmpleado = 0;  ///< whose benefit it has
    QString empleado;
    QString dependencia;
    QString status;  ///< "AU" while in force, "CA" when cancelled
    QString paterno;
    QString materno;
    QString paciente;
    int edad = 0;
    QString canalizadoA;  ///< student number, empty or "0" for none
    QString alumno;
};

/// The first dossier whose number begins with `number` in the campuses that begin with `campus`;
/// unset for none. `expe` is a query of the asking screen and stays open on it.
std::optional<Dossier> findDossier(NamedQuery &expe, const QString &number, const QString &campus);

/// Asks whether the person of a dossier is the one at the window.
QString useDossierQuestion(const Dossier &dossier);

/// The values of `CargarExp`: the dossiers of a centre in a campus since a day.
Parameters dossierListParameters(const DossierListFilter &filter, const QString &centro,
                                 const QString &campus, const QDate &since);

}  // namespace kaldo
