#include "catalogues/frm102_centre_areas.h"

#include "app/binding.h"
#include "catalogues/centre_areas_report.h"
#include "catalogues/lookups.h"
#include "catalogues/two_lists.h"
#include "data/query_rows.h"
#include "toolkit/forms/form.h"

using namespace Qt::StringLiterals;

namespace kaldo {

FRM102::FRM102(Context &context)
    : Screen(context, u"FRM102"_s, u"Centros de Atencióm / Areas de Ventas"_s) {
    using namespace form;
    form::build(this, column({
                          lookup(&centro_, u"Centro"_s, u"Centro de Atención"_s)
                              .source(centres(context.odonto.CtroAtencion1))
                              .shown(50)
                              .edited([this] { forgetCentre(); })
                              .closedUp([this] { chooseCentre(); }),
                          twoLists(&areas_, context, u"Areas"_s),
                      }));
    bindLookup(centro_, &context.odonto.CtroAtencion1);
}

void FRM102::formCreate() {
    context().odonto.CtroAtencion1.open({{u"cd"_s, session().Origen.text()}});
    areas_->setCentre(QString());
    moveFocus(centro_);
}

void FRM102::activated() {
    const QVariant chosen = centro_->value();
    context().odonto.CtroAtencion1.reopen();
    if (chosen.isValid() && centro_->setValue(chosen)) {
        areas_->reload();
    } else {
        areas_->setCentre(QString());
    }
}

void FRM102::forgetCentre() {
    if (centro_->text().isEmpty()) {
        areas_->setCentre(QString());
    }
}

void FRM102::chooseCentre() {
    areas_->setCentre(centro_->value().toString());
    moveFocus(areas_->availableGrid());
}

bool FRM102::previewReport() {
    NamedQuery &offered = context().odonto.ServxCtroR;
    offered.open({{u"cd"_s, session().Origen.text()}});
    const QList<CentreArea> rows = mapRows(offered, [](const QueryRow &row) {
        return CentreArea{row.text(u"centro"_s), row.text(u"descr"_s),
                          row.value(u"tipo_prod"_s).toInt(), row.text(u"descr_1"_s)};
    });
    previewCatalogue(context(), this, this,
                     layoutCentreAreas(catalogueHeading(context()), session().Ciudad, rows),
                     windowTitle());
    return true;
}

}  // namespace kaldo
