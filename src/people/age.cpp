#include "people/age.h"

namespace kaldo {

int ageInYears(const QDate &birth, const QDate &today) {
    return static_cast<int>(static_cast<double>(birth.daysTo(today)) / 365.25);
}

bool birthDatePlausible(const QDate &birth, const QDate &today, int oldest) {
    return birth.isValid() && birth <= today && ageInYears(birth, today) <= oldest;
}

QString tipoPacienteOf(int age, int childUpTo) {
    return age <= childUpTo ? QStringLiteral("I") : QStringLiteral("A");
}

DossierListFilter dossierListFilter(int edadMin, int edadMax, const QString &area,
                                    bool otherCentres) {
    DossierListFilter filter;
    if (edadMin >= 1 && edadMax <= 14) {
        filter.tipo = QStringLiteral("I");
    } else if (edadMin >= 15 && edadMax <= 100) {
        filter.tipo = QStringLiteral("A");
    }
    const bool byAgeGroup = area == QLatin1String("ADULTOS") || area == QLatin1String("INFANTIL");
    if (edadMin >= 1 && edadMax <= 100 && !byAgeGroup) {
        filter.ban = QStringLiteral("3");
    } else {
        filter.ban = otherCentres ? QStringLiteral("1") : QStringLiteral("2");
    }
    return filter;
}

}  // namespace kaldo
