#pragma once

#include "data/parameters.h"

#include <QDate>
#include <QString>

#include <optional>

namespace kaldo {

enum class Sex { Unset, Femenino, Masculino };

/// The date of birth of who is admitted and what follows from it.
struct Birth {
    QDate fecha;
    int edad = 0;          ///< whole years
    QString tipoPaciente;  ///< "I" or "A"; empty while the date was not accepted
};

/// A person who comes for the first time. Texts as they were typed: neither trimmed nor cut.
struct NewAdmission {
    int folio = 0;
    int numCaja = 0;
    int notaVta = 0;
    QString centro;
    QString paterno;
    QString materno;
    QString nombre;
    std::optional<Birth> nacimiento;  ///< asked where the student comes with the patient
    Sex sexo = Sex::Unset;
};

/// KDREGISTRA_ADMISION_P: authorised where the birth was asked, else waiting for the clinic.
Parameters admissionParameters(const NewAdmission &admission);

/// KDREGISTRA_DATOSGENERALES_P
Parameters generalDataParameters(const NewAdmission &admission);

}  // namespace kaldo
