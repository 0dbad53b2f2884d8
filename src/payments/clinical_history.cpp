#include "payments/clinical_history.h"

#include "data/clinical_history_columns.h"

namespace kaldo {

Parameters emptyClinicalHistory(int folio) {
    Parameters parameters;
    for (const ClinicalHistoryColumn &column : clinicalHistoryColumns()) {
        const QString name = QString::fromLatin1(column.name);
        QVariant value;
        if (name == QLatin1String("folio")) {
            value = folio;
        } else if (column.width > 0) {
            value = column.width == 1 ? QStringLiteral("N") : QStringLiteral("");
        }
        parameters.append({name, value});
    }
    return parameters;
}

}  // namespace kaldo
