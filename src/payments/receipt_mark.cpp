#include "payments/receipt_mark.h"

#include "data/database_error.h"
#include "toolkit/core/log.h"

namespace kaldo {

namespace {

Parameters noteOf(int caja, int nota) {
    return {{QStringLiteral("caja"), caja}, {QStringLiteral("nota"), nota}};
}

}  // namespace

void markReceipts(Context &context, int nota) {
    context.local.MarcaRecibo.execute(noteOf(context.session.NumCaja, nota));
}

void unmarkReceipts(Context &context, int nota) {
    try {
        context.local.QuitaMarcaRecibo.execute(noteOf(context.session.NumCaja, nota));
    } catch (const DatabaseError &failure) {
        logSwallowed(QStringLiteral("marca de la nota %1").arg(nota), failure);
        // The patient has the paper, and the note must not be typed again.
    }
}

void tellUnfinishedReceipts(Context &context) {
    NamedQuery &mark = context.local.ReciboPendiente;
    mark.open();
    if (mark.isEmpty()) {
        return;
    }
    const int caja = mark.integer(QStringLiteral("num_caja"));
    const int nota = mark.integer(QStringLiteral("nota_vta"));
    NamedQuery &desk = context.caja.DatosCajaUsuario;
    desk.open({{QStringLiteral("caja"), caja}});
    if (desk.integer(QStringLiteral("nota_vta")) <= nota) {
        return;
    }
    context.messages.warning(
        QStringLiteral("Los recibos de la nota %1-%2 no se terminaron de imprimir. La nota está "
                       "registrada; vuelva a imprimir sus recibos.")
            .arg(caja)
            .arg(nota),
        QStringLiteral("Información"));
    context.local.QuitaMarcaRecibo.execute(noteOf(caja, nota));
}

}  // namespace kaldo
