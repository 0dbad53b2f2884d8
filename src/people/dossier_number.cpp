#include "people/dossier_number.h"

#include "toolkit/core/text.h"

namespace kaldo {

namespace {

constexpr int kCounterDigits = 5;

}  // namespace

QString completeDossierNumber(const QString &typed) {
    if (characterCount(typed) >= kDossierNumberWidth) {
        return typed;
    }
    const qsizetype slash = typed.indexOf(QLatin1Char('/'));
    const QString number = slash < 0 ? typed : typed.left(slash);
    const QString year = slash < 0 ? QString() : typed.mid(slash + 1, 2);
    return number.rightJustified(kCounterDigits, QLatin1Char('0')) + QLatin1Char('/') + year;
}

}  // namespace kaldo
