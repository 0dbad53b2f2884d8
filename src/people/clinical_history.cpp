#include "people/clinical_history.h"

#include "data/clinical_history_columns.h"

namespace kaldo {

namespace {

Parameters withoutAnswers() {
    Parameters parameters;
    for (const ClinicalHistoryColumn &column : clinicalHistoryColumns()) {
        QVariant value;
        if (column.width > 0) {
            value = column.width == 1 ? QStringLiteral("N") : QStringLiteral("");
        }
        parameters.append({QString::fromLatin1(column.name), value});
    }
    return parameters;
}

}  // namespace

Parameters emptyClinicalHistory(int folio) {
    static const Parameters kEmpty = withoutAnswers();
    Parameters parameters = kEmpty;
    parameters.first().second = folio;
    return parameters;
}

}  // namespace kaldo
