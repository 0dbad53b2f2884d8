#include "data/module_lookups.h"

using namespace Qt::StringLiterals;

namespace kaldo {

void linkModules(DMOdonto &odonto, DMIngresosCaja &caja, DMFinanzas &finanzas) {
    NamedQuery &users = odonto.ControlUsuarios;
    users.addLookup(u"LKCaja"_s, u"num_caja"_s, caja.DatosCaja2, u"num_caja"_s, u"nombre"_s);
    users.addLookup(u"LKCentro"_s, u"centro"_s, odonto.CtroAtencion1, u"centro"_s, u"descr"_s);
    NamedQuery &desks = caja.DatosCaja;
    desks.addLookup(u"LKBancoMN"_s, u"bancomn"_s, finanzas.BancosMN, u"bancoid"_s,
                    u"descripcion"_s);
    desks.addLookup(u"LKBancoDL"_s, u"bancodll"_s, finanzas.BancosDL, u"bancoid"_s,
                    u"descripcion"_s);
}

}  // namespace kaldo
