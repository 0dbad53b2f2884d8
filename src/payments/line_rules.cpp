#include "payments/line_rules.h"

namespace kaldo {

QString faceConceptsLeftOut(int edad) {
    return edad <= 14 ? QStringLiteral("%FACE 2") : QStringLiteral("%FACE 1%");
}

bool needsTreatmentCheck(int tipoProd, int codigo) {
    return tipoProd == kFaceArea &&
           ((codigo >= 96028 && codigo <= 96031) || codigo == 96033 || codigo == 96034);
}

bool conceptFitsAge(const QString &descr, int edad) {
    return descr.contains(QLatin1String("INFANTIL")) == (edad <= 13);
}

}  // namespace kaldo
