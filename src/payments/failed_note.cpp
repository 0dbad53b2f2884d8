#include "payments/failed_note.h"

#include "data/database_error.h"
#include "toolkit/core/log.h"

namespace kaldo {

QString tellFailedNote(Context &context, int nota) {
    try {
        DMIngresosCaja &caja = context.caja;
        const int numCaja = context.session.NumCaja;
        caja.LiberaCaja.execute({{QStringLiteral("num_caja"), numCaja}});
        caja.RegistroVtas.open(
            {{QStringLiteral("num_caja"), numCaja}, {QStringLiteral("nota_vta"), nota}});
        const QString capto = caja.RegistroVtas.text(QStringLiteral("capto")).trimmed();
        if (!capto.isEmpty() && capto != context.session.Usuario.text().trimmed()) {
            return QStringLiteral("\n\nOtra estación usa la caja %1: la nota %2 es del usuario %3.")
                .arg(numCaja)
                .arg(nota)
                .arg(capto);
        }
    } catch (const DatabaseError &failure) {
        logSwallowed(QStringLiteral("caja de la nota %1").arg(nota), failure);
        // A database that is away has no note to tell of, and its hold on the desk lapses.
    }
    return {};
}

}  // namespace kaldo
