#include "catalogues/frm107_price_list.h"
#include "catalogues/item_code.h"
#include "data/catalogue_texts.h"

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
    const QString question =
        u"¿Los datos proporcionados son correctos para generar este proceso? "_s;
    // The programme enables the button before the areas are there.
    if (!areaDestino_->value().isValid() || !areaChosen() ||
        messages().confirm(question) != Answer::Yes) {
        return;
    }
    copyItems(areaDestino_->value().toInt(), programa_->text());
    context().odonto.Listaprecios1.first();
    generar_->setEnabled(false);
    messages().information(
        u"La información ha sido registrada correctamente, presione cualquier tecla para continuar."_s,
        u"Información"_s);
    areaDestino_->clearField();
    programa_->clearField();
}

void FRM107::copyItems(int target, const QString &programa) {
    static const QStringList copied = {
        u"cve_prod"_s,         u"descr"_s,         u"unimed"_s,
        u"menudeo"_s,          u"fecha_mov"_s,     u"subsubcta"_s,
        u"nomenclatura"_s,     u"porcentajeiva"_s, u"tipodeiva"_s,
        u"clasificacioniva"_s, u"vigente"_s,       u"claveprodserv"_s};
    const NamedQuery &source = context().odonto.Listaprecios1;
    NamedQuery &list = context().odonto.Listaprecios3;
    const int items = context().odonto.Listaprecios1.count();
    list.openToAppend({{u"tipoprod"_s, target}});
    Progress progress(context().frame, items);
    try {
        for (int item = 0; item < items; ++item) {
            list.append();
            list.set(u"codigo"_s, itemCode(target, source.valueAt(item, u"cve_prod"_s).toInt()));
            list.set(u"tipo_prod"_s, target);
            list.set(u"prog"_s, programa);
            for (const QString &field : copied) {
                list.set(field, source.valueAt(item, field));
            }
            list.apply();
            progress.advance();
        }
    } catch (...) {
        list.cancelUpdates();
        throw;
    }
}

}  // namespace kaldo
