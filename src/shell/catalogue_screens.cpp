#include "shell/catalogue_screens.h"

#include "cashdesk/frm_datos_caja_cash_desks.h"
#include "catalogues/frm100_care_centres.h"
#include "catalogues/frm101_clinics.h"
#include "catalogues/frm102_centre_areas.h"
#include "catalogues/frm103_patient_classes.h"
#include "catalogues/frm104_service_classes.h"
#include "catalogues/frm105_sales_areas.h"
#include "catalogues/frm106_external_laboratories.h"
#include "catalogues/frm107_price_list.h"
#include "catalogues/frm108_payment_forms.h"
#include "catalogues/frm109_payment_methods.h"
#include "catalogues/frm110_banks.h"
#include "catalogues/frm111_exchange_rate.h"
#include "shell/frm_control_usuarios_users.h"

namespace kaldo {

namespace {

template <typename S>
void add(FRM000 &window, Context &context, const char *entry) {
    window.setScreen(QString::fromLatin1(entry),
                     [&context] { return std::make_unique<S>(context); });
}

}  // namespace

void registerCatalogues(FRM000 &window, Context &context) {
    add<FRM100>(window, context, "B1");
    add<FRM105>(window, context, "B2");
    add<FRM102>(window, context, "B3");
    add<FRM103>(window, context, "B4");
    add<FRM104>(window, context, "B5");
    add<FRM101>(window, context, "B6");
    add<FRM108>(window, context, "B7");
    add<FRM109>(window, context, "B8");
    add<FRM107>(window, context, "B9");
    add<FRM106>(window, context, "B10");
    add<FRM110>(window, context, "B11");
    add<FRM111>(window, context, "B12");
    add<FRMControlUsuarios>(window, context, "I1");
    add<FRMDatosCaja>(window, context, "I2");
}

}  // namespace kaldo
