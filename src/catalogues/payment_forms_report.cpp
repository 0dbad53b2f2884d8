#include "catalogues/payment_forms_report.h"

#include "catalogues/account_levels.h"

using namespace Qt::StringLiterals;

namespace kaldo {

report::Document layoutPaymentForms(const CatalogueHeading &heading,
                                    const QList<PaymentFormRow> &rows, bool accounts) {
    const report::Layout layout = catalogueLayout(heading, u"Forma de Pago"_s);
    QList<ReportColumn> columns = {{u"Tipo"_s, 12, report::Align::Right}, {u"Descripción"_s, 0}};
    if (accounts) {
        columns += accountReportColumns();
    }
    const ReportTable table(columns, catalogueWidth());
    return listReport(layout, table, rows, [accounts](const PaymentFormRow &row) {
        return QStringList{row.idtipo, row.tipopago} + (accounts ? row.cuentas : QStringList());
    });
}

}  // namespace kaldo
