#pragma once

#include <QDate>
#include <QString>

namespace kaldo {

/// Whole years between two days: the days between them over 365.25, cut to an integer.
int ageInYears(const QDate &birth, const QDate &today);

/// True for an age in [minimum, maximum].
inline bool ageWithin(int age, int minimum, int maximum) {
    return age >= minimum && age <= maximum;
}

/// True unless the date lies after today or makes an age above `oldest`.
bool birthDatePlausible(const QDate &birth, const QDate &today, int oldest);

/// "I" up to `childUpTo` years, "A" above. Screens draw the line at 13 or at 14 by intent.
QString tipoPacienteOf(int age, int childUpTo);

/// Which dossiers the drop-down of a sales area lists.
struct DossierListFilter {
    QString tipo;  ///< "I", "A", or empty for any
    QString ban;   ///< "1" campus by type, "2" centre by type, "3" centre whatever the type
};

/// From the age limits and the text of the sales area, and whether the station may see the dossiers
/// of other centres.
DossierListFilter dossierListFilter(int edadMin, int edadMax, const QString &area,
                                    bool otherCentres);

}  // namespace kaldo
