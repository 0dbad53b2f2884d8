#include "catalogues/bulk_work.h"
#include "catalogues/frm107_price_list.h"
#include "catalogues/item_code.h"

using namespace Qt::StringLiterals;

namespace kaldo {

void FRM107::toggleDuplicates() {
    const bool open = !duplicados_->isVisible();
    duplicados_->setVisible(open);
    if (open) {
        context().odonto.CtroAtencion3.open();
        moveFocus(ciudad_);
    } else {
        moveFocus(panel_->grid());
    }
}

void FRM107::chooseCampus() {
    DMOdonto &odonto = context().odonto;
    if (ciudad_->text() == odonto.AreaVenta.text(u"ciudad"_s)) {
        messages().warning(
            u"¡Solo se pueden duplicar áreas a otras ciudades, verifique su información!"_s);
        ciudad_->clearField();
        stayHere();
        return;
    }
    odonto.AreaVenta2.open({{u"cd"_s, ciudad_->text()}});
    context().finanzas.Programas1.open();
    areaDestino_->clearField();
    programa_->clearField();
    enableGenerate();
    moveFocus(areaDestino_);
}

void FRM107::chooseTarget() {
    enableGenerate();
}

void FRM107::choosePrograma() {
    generar_->setEnabled(true);
    moveFocus(generar_);
}

void FRM107::enableGenerate() {
    const bool filled = !ciudad_->text().isEmpty() && !areaDestino_->text().isEmpty() &&
                        !programa_->text().isEmpty();
    generar_->setEnabled(filled && areaDestino_->text() != area_->text());
}

void FRM107::generarLista() {
    // The programme enables the button before the areas are there.
    for (LookupField *area : {area_, areaDestino_}) {
        if (!area->value().isValid()) {
            panel_->required();
            moveFocus(area);
            return;
        }
    }
    if (!confirmGeneration(messages())) {
        return;
    }
    copyItems(areaDestino_->value().toInt(), programa_->text());
    context().odonto.Listaprecios1.first();
    generar_->setEnabled(false);
    tellGenerated(messages());
    areaDestino_->clearField();
    programa_->clearField();
}

void FRM107::copyItems(int target, const QString &programa) {
    NamedQuery &source = context().odonto.Listaprecios1;
    NamedQuery &list = context().odonto.Listaprecios3;
    list.openToAppend({{u"tipoprod"_s, target}});
    copyRows(context().frame, source, list,
             {u"cve_prod"_s, u"descr"_s, u"unimed"_s, u"menudeo"_s, u"fecha_mov"_s, u"subsubcta"_s,
              u"nomenclatura"_s, u"porcentajeiva"_s, u"tipodeiva"_s, u"clasificacioniva"_s,
              u"vigente"_s, u"claveprodserv"_s},
             [&](int item) {
                 const int cveProd = source.valueAt(item, u"cve_prod"_s).toInt();
                 list.set(u"codigo"_s, itemCode(target, cveProd));
                 list.set(u"tipo_prod"_s, target);
                 list.set(u"prog"_s, programa);
             });
}

}  // namespace kaldo
