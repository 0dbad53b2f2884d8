#include "payments/receipt_copies.h"

namespace kaldo {

QList<PlannedCopy> plannedCopies(const QList<ReceiptCopy> &rows, NoteMode mode,
                                 const QString &servicio, const CopyOptions &options) {
    const bool previews = mode == NoteMode::Consultar && !options.desactivarDuplicados;
    QList<PlannedCopy> copies;
    if (previews && options.duplicadoDeImpresiones == 0) {
        return copies;
    }
    for (const ReceiptCopy &row : rows) {
        const QString only = row.tipoServ.trimmed();
        if (previews) {
            copies.append({row.descripcion.trimmed(), CopyTarget::Preview});
        } else if (only.isEmpty() || only == servicio.trimmed()) {
            copies.append({row.descripcion.trimmed(), CopyTarget::Printer});
        }
    }
    return copies;
}

}  // namespace kaldo
