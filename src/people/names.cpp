#include "people/names.h"

#include "toolkit/core/text.h"

namespace kaldo {

QString studentName(const QString &paterno, const QString &materno, const QString &nombre) {
    return paterno.trimmed() + QLatin1Char(' ') + materno.trimmed() + QLatin1Char(' ') +
           nombre.trimmed();
}

QString wholeName(const QString &paterno, const QString &materno, const QString &nombre) {
    return cutToWidth(studentName(paterno, materno, nombre).trimmed(), kWholeNameWidth);
}

}  // namespace kaldo
