#pragma once

#include "data/dm_escolares.h"
#include "data/dm_finanzas.h"
#include "data/dm_ingresos_caja.h"
#include "data/dm_local.h"
#include "data/dm_odonto.h"
#include "data/options.h"
#include "data/session.h"
#include "toolkit/core/clock.h"
#include "toolkit/core/ini_file.h"
#include "toolkit/core/installation.h"
#include "toolkit/forms/file_dialogs.h"
#include "toolkit/forms/messages.h"
#include "toolkit/report/printing.h"

#include "app/frame.h"

namespace kaldo {

/// What every screen gets: the state of the station, its data and its services. Owned by the
/// program; it outlives all screens.
struct Context {
    const Installation &installation;
    const Clock &clock;
    IniFile &ini;
    Session &session;
    Options &options;
    Messages &messages;
    FileDialogs &fileDialogs;
    report::Printing &printing;
    Frame &frame;

    DMConexion &conexion;
    DMLocal &local;
    DMOdonto &odonto;
    DMIngresosCaja &caja;
    DMFinanzas &finanzas;
    DMEscolares &escolares;
};

}  // namespace kaldo
