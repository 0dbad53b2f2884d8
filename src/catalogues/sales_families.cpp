#include "catalogues/sales_families.h"

using namespace Qt::StringLiterals;

namespace kaldo {

QStringList salesFamilies() {
    return {u"AB - ABONO A CUENTA"_s,
            u"AD - ADMISION"_s,
            u"AE - APERTURA DE EXPEDIENTE"_s,
            u"AL - ALUMNOS"_s,
            u"AP - SERVICIOS DE CLINICA"_s,
            u"UE - BIBLIOTECA"_s,
            u"CD - CURSOS Y DIPLOMADOS"_s,
            u"ES - ESPECIALIDADES"_s,
            u"EX - EXAMENES DE ESPECIALIDADES"_s,
            u"LP - PROG. LABIO PALADAR Y HENDIDO"_s,
            u"LE - LABORATORIOS EXTERNOS"_s,
            u"MD - MAESTRIA Y DOCTORADO"_s,
            u"LP - PROG. LABIO PALADAR Y HENDIDO"_s,
            u"OT - OTROS"_s,
            u"PG - PUBLICO GENERAL"_s,
            u"VA - VARIOS"_s};
}

QStringList salesOrigins() {
    return {u"PT - Puerto Alto"_s, u"VN - Valle Norte"_s, u"RC - Rio Claro"_s, u"CS - Costa Sur"_s,
            u"LV - Loma Verde"_s};
}

QString salesFamily(const QString &code) {
    const QStringList families = salesFamilies();
    for (const QString &family : families) {
        if (!code.isEmpty() && family.left(2) == code) {
            return family;
        }
    }
    return code;
}

}  // namespace kaldo
