#include "payments/receipt_printer.h"

#include "data/query_rows.h"
#include "payments/receipt_copies.h"
#include "payments/receipt_layout.h"
#include "payments/receipt_mark.h"

namespace kaldo {

namespace {

QString of(const IniFile &ini, const char *key) {
    return ini.value(QStringLiteral("Cliente"), QString::fromLatin1(key));
}

ReceiptOptions receiptOptions(const Context &context) {
    const Options &panel = context.options;
    ReceiptOptions options;
    options.nombreCliente = panel.NombreInstitucion;
    options.facultad = panel.Facultad;
    options.rfc = of(context.ini, "rfc");
    options.direccion = of(context.ini, "direccion");
    options.tel = of(context.ini, "tel");
    options.capitals = context.ini.isYes(QStringLiteral("Cliente"), QStringLiteral("maysucula"));
    options.generarPolizas = panel.GenerarPolizas;
    options.contabilidadGubernamental = panel.ContabilidadGubernamental;
    options.educativo = panel.sector == Sector::Educativo;
    options.numCaja = context.session.NumCaja;
    options.nombreCorto = context.session.NombreCorto;
    return options;
}

RegisteredNote registeredNote(Context &context, int nota) {
    NamedQuery &note = context.caja.Ticket;
    note.open({{QStringLiteral("caja"), context.session.NumCaja}, {QStringLiteral("nota"), nota}});
    RegisteredNote read;
    read.fechaHora = note.value(QStringLiteral("fecha_hora")).toDateTime();
    read.campusId = note.integer(QStringLiteral("campusid"));
    read.sistemaId = note.integer(QStringLiteral("sistemaid"));
    read.polizaId = note.integer(QStringLiteral("polizaid"));
    read.tipoCambio = note.number(QStringLiteral("tipocambio"));
    return read;
}

QList<ReceiptCopy> rowsOf(NamedQuery &recibos) {
    if (!recibos.isOpen()) {
        recibos.open();
    }
    return mapRows(recibos, [](const QueryRow &row) {
        return ReceiptCopy{row.value(QStringLiteral("recibo")).toInt(),
                           row.text(QStringLiteral("descripcion")),
                           row.text(QStringLiteral("tipo_serv"))};
    });
}

}  // namespace

void ReceiptPrinter::Ticket(const NoteDraft &draft, const Payment &payment,
                            const ReceiptExtras &extras) {
    const RegisteredNote note = registeredNote(context_, draft.notaActual);
    content_ = writer_.Ticket(draft, payment, note, extras, receiptOptions(context_));
    if (draft.mode == NoteMode::Registrar) {
        markReceipts(context_, draft.notaActual);
    }
}

void ReceiptPrinter::Recibos(const NoteDraft &draft) {
    const QString title = QStringLiteral("Recibo de Pago");
    const QList<ReceiptCopy> rows = rowsOf(context_.local.Recibos);
    CopyOptions options;
    options.desactivarDuplicados = context_.options.DesactivarDuplicados;
    options.duplicadoDeImpresiones = context_.options.SegundosDuplicado;
    for (const PlannedCopy &copy : plannedCopies(rows, draft.mode, draft.service.row, options)) {
        const report::Document document = layoutReceipt(content_, copy.descripcion);
        if (copy.target == CopyTarget::Preview) {
            context_.printing.preview(document, title, nullptr);
        } else {
            // A file of it is found again by its desk and number.
            report::PrintJob job;
            job.title = QStringLiteral("%1 %2-%3")
                            .arg(title)
                            .arg(int(context_.session.NumCaja))
                            .arg(draft.notaActual);
            context_.printing.print(document, job);
        }
    }
    unmarkReceipts(context_, draft.notaActual);
}

}  // namespace kaldo
