#include "catalogues/payment_methods_report.h"

using namespace Qt::StringLiterals;

namespace kaldo {

report::Document layoutPaymentMethods(const CatalogueHeading &heading,
                                      const QList<PaymentMethod> &rows) {
    report::Layout layout = catalogueLayout(heading, u"Métodos de Pago"_s);
    const ReportTable table({{u"Clave"_s, 18}, {u"Descripción"_s}}, catalogueWidth());
    layout.place(table.titles());
    layout.repeatOnNewPages(table.titles());
    for (const PaymentMethod &method : rows) {
        layout.place(table.row({method.clave, method.descripcion}));
    }
    return layout.finish();
}

}  // namespace kaldo
