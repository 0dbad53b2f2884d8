#pragma once

#include "data/named_query.h"
#include "toolkit/forms/list_popup.h"

namespace kaldo {

/// The drop-downs that several catalogues share.

/// The programmes of the finance database, by `programaid`.
LookupSource programmes(NamedQuery &programas);
/// The centres of the campus, by `centro`.
LookupSource centres(NamedQuery &ctroAtencion);
/// Sales areas, by `tipo_prod`.
LookupSource salesAreas(NamedQuery &areas);
/// Numbers with their `descripcion`, by the number: accounts, taxes.
LookupSource numbered(NamedQuery &list, const QString &field, const QString &title);
/// The campuses, by `ciudad`.
LookupSource campuses(NamedQuery &ctroAtencion3);

}  // namespace kaldo
