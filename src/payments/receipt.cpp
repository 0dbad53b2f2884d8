#include "payments/receipt.h"

#include "payments/amount_in_words.h"
#include "payments/receipt_totals.h"
#include "payments/service_types.h"
#include "payments/tender.h"
#include "people/names.h"
#include "toolkit/core/text.h"

#include <algorithm>

namespace kaldo {

namespace {

/// From this many characters on an address takes two lines.
constexpr int kLongAddress = 31;
constexpr int kPolicyWidth = 20;
/// Room for all rows of the totals.
constexpr int kFullTotalsHeight = 120;

void fillHeading(ReceiptContent *content, const ReceiptOptions &options) {
    const auto line = [&](const QString &text) {
        return options.capitals ? Mayusculas(text) : text;
    };
    content->QRL1 = line(options.nombreCliente);
    content->QRL2 = line(options.facultad);
    content->QRL3 = QStringLiteral("R.F.C. ") + line(options.rfc);
    content->QRL4 = line(options.direccion);
    content->QRL5 = (QStringLiteral("Tel. ") + options.tel).toUpper();
    content->longAddress = characterCount(options.direccion) >= kLongAddress;
}

void fillService(ReceiptContent *content, const NoteDraft &draft) {
    content->QRL8a = draft.centroLabel.toUpper();
    content->QRL9A = draft.service.cadenaServicio;
    content->QRL10a = draft.service.area.descr;
    content->lugarShown = draft.service.lugarShown;
    content->QRL11a = draft.service.lugarShown ? draft.service.lugarDescr : QString();
}

QString policyText(const NoteDraft &draft, const RegisteredNote &note,
                   const ReceiptOptions &options) {
    const QString reference = cutToWidth(
        QStringLiteral("%1-%2-%3").arg(note.campusId).arg(note.sistemaId).arg(note.polizaId),
        kPolicyWidth);
    if (note.polizaId == 0) {
        return {};
    }
    if (draft.mode == NoteMode::Registrar) {
        return QStringLiteral("POLIZA: ") + reference;
    }
    return options.generarPolizas ? QStringLiteral("POLIZA NO. ") + reference : QString();
}

QString admissionText(const std::optional<int> &folio) {
    return folio ? QStringLiteral("ADMISION: %1").arg(*folio) : QString();
}

/// The two identity lines. True when student or employee already stand in them.
bool fillIdentity(ReceiptContent *content, const NoteDraft &draft, const ReceiptExtras &extras) {
    if (draft.payer.hasDossier()) {
        content->QRL16 = QStringLiteral("EXPEDIENTE: ") + draft.payer.expediente;
        if (draft.payer.folioAdmision > 0) {
            content->QRL16a = admissionText(draft.payer.folioAdmision);
        }
        content->QRL17 = studentName(draft.payer.paterno, draft.payer.materno, draft.payer.nombre);
        return false;
    }
    if (draft.payer.hasStudent()) {
        content->QRL16 = QStringLiteral("MATRICULA: ") + draft.payer.matricula.trimmed();
        content->QRL17 = draft.payer.alumno.trimmed();
        return true;
    }
    if (!receiptNamesPayer(draft.service.tipoServ)) {
        content->identified = false;
        return false;
    }
    if (draft.payer.hasEmployeeNumber()) {
        content->QRL16 = QStringLiteral("EMPLEADO: ") + draft.payer.noEmpleado.trimmed();
        content->QRL17 = draft.payer.nombreEmpleado.trimmed();
        return true;
    }
    content->QRL16 = QStringLiteral("NOMBRE: ");
    content->QRL17 = studentName(draft.payer.paterno, draft.payer.materno, draft.payer.nombre);
    if (draft.service.tipoServ == QLatin1String("AD")) {
        content->QRL16a = admissionText(extras.folioAdmision);
    }
    return false;
}

void fillMemo(ReceiptContent *content, const NoteDraft &draft) {
    if (!draft.payer.empleadoPanelShown) {
        return;
    }
    content->memoHigh = !draft.payer.hasDossier() && !draft.payer.hasStudent();
    content->QRMemo1 = QStringList{
        QStringLiteral("Empleado:"), draft.payer.empleadoLabel, QStringLiteral("Dependencia:"),
        draft.payer.dependenciaLabel,
        QStringLiteral("***") + draft.payer.tipoPaciente.descripcion + QStringLiteral("***")};
}

QList<ReceiptLine> printedLines(const NoteDraft &draft, const ReceiptOptions &options) {
    QList<ReceiptLine> lines;
    for (const NoteLine &line : draft.lines) {
        lines.append({options.contabilidadGubernamental ? line.nomenclatura : QString(),
                      QString::number(line.cant), line.descripcion, formatMoney(line.total),
                      line.descAdic.trimmed().isEmpty() ? QString() : line.descAdic});
    }
    return lines;
}

void fillReceived(ReceiptContent *content, const NoteDraft &draft, const Payment &payment,
                  double rate) {
    Payment atRate = payment;
    atRate.tipoCam = rate;
    content->QRL27 = {QStringLiteral("RECIBIDO"), formatMoney(subtotalReceived(atRate))};
    content->QRL28 = {QStringLiteral("PESOS"), formatMoney(payment.pesos)};
    content->QRL29 = {QStringLiteral("DLLS."), formatMoney(payment.dolares)};
    content->QRL30 = {QStringLiteral("TARJETA"), formatMoney(payment.tarjetaCredito)};
    content->QRL31 = {QStringLiteral("CHEQUE"), formatMoney(payment.cheque)};
    content->QRL32 = {QStringLiteral("CAMBIO"), formatMoney(payment.cambio)};
    content->QRL33 = QStringLiteral("TIPO DE CAMBIO:  ") + formatMoney(rate);
    const double charged =
        draft.benefit.porcPrestacion == 0 ? payment.importeTotal : payment.importeAPagar;
    content->QRLetras1 = ImporteEnLetra(Money::rounded(charged).tenThousandths(), WordsOf::Pesos) +
                         QStringLiteral(" M.N. ***");
    if (!payment.banco.trimmed().isEmpty()) {
        content->QRL34 = QStringLiteral("BANCO:  ") + payment.banco;
        content->QRL35 = QStringLiteral("CUENTA: ") + payment.numCuenta;
        content->QRL36 = QStringLiteral("CHEQUE: ") + payment.numCheque;
    }
}

}  // namespace

ReceiptContent ReceiptWriter::Ticket(const NoteDraft &draft, const Payment &payment,
                                     const RegisteredNote &note, const ReceiptExtras &extras,
                                     const ReceiptOptions &options) {
    const bool registering = draft.mode == NoteMode::Registrar;
    ReceiptContent content;
    fillHeading(&content, options);
    heading_ =
        registering ? QStringLiteral("RECIBO DE PAGO") : heading_ + QStringLiteral(" DUPLICADO");
    content.QRL6 = heading_;
    fillService(&content, draft);

    content.QRL12 = QStringLiteral("RECIBO NO. %1-%2").arg(options.numCaja).arg(draft.notaActual);
    content.QRL13 = policyText(draft, note, options);
    content.QRL15 =
        QStringLiteral("FECHA: ") + note.fechaHora.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    const bool payerPrinted = fillIdentity(&content, draft, extras);
    fillMemo(&content, draft);
    content.lines = printedLines(draft, options);
    fillTotals(&content, receiptTotals(draft, payment, extras));
    fillReceived(&content, draft, payment, registering ? payment.tipoCam : note.tipoCambio);

    content.QRL37 = QStringLiteral("LE ATENDIO: ") + options.nombreCorto;
    if (options.educativo && draft.payer.hasStudent() && !payerPrinted &&
        draft.service.tipoServ != QLatin1String("AD")) {
        content.QRL39 = QStringLiteral("Matricula: ") + draft.payer.matricula.trimmed();
        content.QRL40 = QStringLiteral("Alumno: ") + draft.payer.alumno;
    }
    return content;
}

void ReceiptWriter::fillTotals(ReceiptContent *content,
                               const std::optional<ReceiptTotals> &totals) {
    if (totals) {
        content->totals = {ReceiptRow{captions_[0], formatMoney(totals->subtotal)}};
        std::copy(totals->rows.begin(), totals->rows.end(), content->totals.begin() + 1);
        content->totalsHeight = totals->height;
        for (std::size_t at = 0; at < captions_.size(); ++at) {
            captions_[at] = content->totals[at].caption;
        }
        return;
    }
    for (std::size_t at = 0; at < captions_.size(); ++at) {
        content->totals[at] = {captions_[at], formatMoney(0.0)};
    }
    content->totalsHeight = kFullTotalsHeight;
}

}  // namespace kaldo
