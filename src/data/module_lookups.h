#pragma once

#include "data/dm_finanzas.h"
#include "data/dm_ingresos_caja.h"
#include "data/dm_odonto.h"

namespace kaldo {

/// The look-ups that go from a query of one module to one of another: desk and centre of a user,
/// the banks of a desk. Once, before any of these queries is opened.
void linkModules(DMOdonto &odonto, DMIngresosCaja &caja, DMFinanzas &finanzas);

}  // namespace kaldo
