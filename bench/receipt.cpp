#include <QTemporaryDir>

#include "bench/bench_station.h"
#include "bench/measurements.h"
#include "payments/receipt.h"
#include "payments/receipt_layout.h"
#include "toolkit/report/paint.h"

namespace kaldo::bench {

namespace {

constexpr int kRuns = 25;
constexpr double kBar = 50;

/// A note of a student, with all that such a receipt prints.
ReceiptContent sampleReceipt() {
    NoteDraft draft;
    draft.notaActual = 1532;
    draft.service.row = QStringLiteral("AL - ALUMNOS");
    draft.service.tipoServ = QStringLiteral("AL");
    draft.service.cadenaServicio = QStringLiteral("ALUMNOS");
    draft.service.area = {8, QStringLiteral("ALUMNOS"), QStringLiteral("N")};
    draft.centroLabel = QStringLiteral("Clínica de licenciatura valle norte");
    draft.payer.matricula = QStringLiteral("1100001");
    draft.payer.alumno = QStringLiteral("ALVAREZ CANO JIMENA");
    for (int at = 1; at <= 6; ++at) {
        NoteLine line;
        line.cant = at;
        line.precio = 220;
        line.total = at * line.precio;
        line.descripcion = QStringLiteral("PRACTICA DE CLINICA EXTRAORDINARIA %1").arg(at);
        draft.lines += line;
        draft.amounts.importeTotal += line.total;
    }
    Payment payment;
    payment.pesos = 5000;
    payment.importeTotal = payment.importeAPagar = draft.amounts.importeTotal;
    payment.subtotal = payment.pesos;
    payment.cambio = payment.pesos - payment.importeTotal;
    payment.tipoCam = 19.5;
    RegisteredNote note;
    note.fechaHora = QDateTime(QDate(2026, 11, 20), QTime(12, 0));
    note.tipoCambio = payment.tipoCam;
    ReceiptOptions options;
    options.nombreCliente = QStringLiteral("Universidad del Litoral");
    options.facultad = QStringLiteral("Facultad de Odontología");
    options.rfc = QStringLiteral("ULI680115AB3");
    options.direccion = QStringLiteral("Av. del Puerto 1200");
    options.tel = QStringLiteral("(686) 555-0142");
    options.educativo = true;
    options.numCaja = 1;
    options.nombreCorto = QStringLiteral("FERNANDA OCHOA");
    ReceiptWriter writer;
    return writer.Ticket(draft, payment, note, {}, options);
}

}  // namespace

Results receipt() {
    const QTemporaryDir folder;
    const ReceiptContent content = sampleReceipt();
    std::vector<double> times;
    for (int run = 0; run <= kRuns; ++run) {
        const double started = milliseconds();
        const report::Document document = layoutReceipt(content, QStringLiteral("ORIGINAL"));
        report::writePdf(document, folder.filePath(QStringLiteral("%1.pdf").arg(run)),
                         QStringLiteral("Recibo de Pago"));
        times.push_back(milliseconds() - started);
    }
    const double first = times.front();
    times.erase(times.begin());
    return {{.name = QStringLiteral("a receipt laid out and written as PDF, the first"),
             .kaldo = first,
             .bar = kBar},
            {.name = QStringLiteral("a receipt laid out and written as PDF"),
             .kaldo = median(times),
             .bar = kBar,
             .runs = kRuns}};
}

}  // namespace kaldo::bench
