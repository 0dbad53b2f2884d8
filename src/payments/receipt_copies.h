#pragma once

#include "payments/note_draft.h"

#include <QList>
#include <QString>

namespace kaldo {

/// A row of the local table `recibos`: one copy of a receipt.
struct ReceiptCopy {
    int recibo = 0;
    QString descripcion;
    QString tipoServ;  ///< the whole service row that the copy is for, or empty for all
};

struct CopyOptions {
    bool desactivarDuplicados = false;
    int duplicadoDeImpresiones = 0;  ///< 0: a consulted note is not shown again
};

enum class CopyTarget { Printer, Preview };

struct PlannedCopy {
    QString descripcion;  ///< trimmed
    CopyTarget target = CopyTarget::Printer;

    bool operator==(const PlannedCopy &) const = default;
};

/// Which copies of a note come out, and where. `rows` in the order of `recibo`, none of them prints
/// none; `servicio` is the text of the service type list. A consulted note goes to the preview,
/// every copy of it, unless duplicates are switched off: then it prints like a new one.
QList<PlannedCopy> plannedCopies(const QList<ReceiptCopy> &rows, NoteMode mode,
                                 const QString &servicio, const CopyOptions &options);

}  // namespace kaldo
