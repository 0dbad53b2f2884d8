#include "catalogues/lookups.h"

using namespace Qt::StringLiterals;

namespace kaldo {

LookupSource programmes(NamedQuery &programas) {
    return {&programas,
            u"PROGRAMAID"_s,
            u"PROGRAMAID"_s,
            {{u"PROGRAMAID"_s, u"Programa"_s, 10}, {u"NOMBRE"_s, u"Nombre"_s, 40}}};
}

LookupSource centres(NamedQuery &ctroAtencion) {
    return {&ctroAtencion,
            u"CENTRO"_s,
            u"DESCR"_s,
            {{u"CENTRO"_s, u"Centro"_s, 8}, {u"DESCR"_s, u"Descripción"_s, 44}}};
}

LookupSource salesAreas(NamedQuery &areas) {
    return {
        &areas,
        u"TIPO_PROD"_s,
        u"DESCR"_s,
        {{u"TIPO_PROD"_s, u"Area"_s, 8, CellMask::Integer}, {u"DESCR"_s, u"Descripción"_s, 44}}};
}

LookupSource numbered(NamedQuery &list, const QString &field, const QString &title) {
    return {&list,
            field,
            field,
            {{field, title, 10, CellMask::Integer}, {u"DESCRIPCION"_s, u"Descripción"_s, 44}}};
}

LookupSource campuses(NamedQuery &ctroAtencion3) {
    return {&ctroAtencion3, u"CIUDAD"_s, u"CIUDAD"_s, {{u"CIUDAD"_s, u"Ciudad"_s, 10}}};
}

}  // namespace kaldo
