#include "catalogues/payment_methods_report.h"

using namespace Qt::StringLiterals;

namespace kaldo {

report::Document layoutPaymentMethods(const CatalogueHeading &heading,
                                      const QList<PaymentMethod> &rows) {
    const report::Layout layout = catalogueLayout(heading, u"Métodos de Pago"_s);
    const ReportTable table({{u"Clave"_s, 18}, {u"Descripción"_s}}, catalogueWidth());
    return listReport(layout, table, rows, [](const PaymentMethod &method) {
        return QStringList{method.clave, method.descripcion};
    });
}

}  // namespace kaldo
