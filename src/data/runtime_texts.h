#pragma once

#include <QString>

#include "data/runtime_text.h"

namespace kaldo {

/// The texts that screens rebuild at run time, both spellings side by side.

/// `Expe`: the dossiers whose number begins with `expediente` in the campuses that begin with
/// `campus`.
RuntimeText expeText(const QString &expediente, const QString &campus);

/// `ConsultaAdmision`: admissions of persons whose three names hold these texts.
RuntimeText consultaAdmisionText(const QString &paterno, const QString &materno,
                                 const QString &paciente);

/// `ListaPrecios` of an area without the concepts for the other age: children see no "FACE 2",
/// older patients no "FACE 1".
RuntimeText listaPreciosFaceText(int tipoProd, bool child);

/// The lines of the working table with this key.
RuntimeText claveRepetidaText(const QVariant &cveProd);

/// The duplicate checks of the station's registry. That of the two lists of databases names a table
/// and a column that don't exist and fails with the database's own message.
RuntimeText firebirdDuplicadoText(const QVariant &noidx);
RuntimeText informixDuplicadoText(const QVariant &noidx);
RuntimeText recibosDuplicadoText(const QVariant &recibo);

/// `BorrarCorte`: the three deletes that empty the work tables of a cut, in their order.
QList<RuntimeText> borrarCorteTexts(int caja, const QDate &fecha);

}  // namespace kaldo
