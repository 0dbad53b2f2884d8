#pragma once

#include "payments/note_draft.h"
#include "payments/payment.h"

#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>

namespace kaldo {

/// What the receipt reads of `registrovtas` once the note is written.
struct RegisteredNote {
    QDateTime fechaHora;
    int campusId = 0;
    int sistemaId = 0;
    int polizaId = 0;
    double tipoCambio = 0;
};

/// A movement of the dossier's account.
struct AccountMovement {
    double importe = 0;
    double saldo = 0;
};

/// What only some notes have; unset where the query behind it is closed or found nothing.
struct ReceiptExtras {
    std::optional<int> folioAdmision{};  ///< of the admission that an 'AD' note created
    std::optional<AccountMovement> edoctaSaldoAnt{};
    std::optional<AccountMovement> edoctaSaldoAnt1{};
};

/// The station's share in a receipt.
struct ReceiptOptions {
    QString nombreCliente;
    QString facultad;
    QString rfc;
    QString direccion;
    QString tel;
    bool capitals = false;  ///< heading lines in capitals, the telephone line apart
    bool generarPolizas = false;
    bool contabilidadGubernamental = false;
    bool educativo = false;
    int numCaja = 0;
    QString nombreCorto;  ///< who took the payment
};

/// A caption and its amount, both as printed.
struct ReceiptRow {
    QString caption;
    QString amount;

    bool operator==(const ReceiptRow &) const = default;
};

/// One line of the note as printed; empty texts print nothing.
struct ReceiptLine {
    QString nomenclatura;
    QString cant;
    QString descripcion;
    QString total;
    QString descAdic;
};

/// Every text of a receipt, by the name of its label, and what its layout depends on. A label that
/// always reads the same is the layout's own.
struct ReceiptContent {
    QString QRL1, QRL2, QRL3, QRL4, QRL5, QRL6;
    bool longAddress = false;  ///< the address starts higher and has room for two lines
    QString QRL8a, QRL9A, QRL10a;
    bool lugarShown = false;
    QString QRL11a;

    QString QRL12, QRL16a, QRL13, QRL15, QRL16, QRL17;
    bool identified = true;  ///< without identity lines the band is shorter
    bool memoHigh = false;   ///< nobody's dossier or student number stands above the memo
    QStringList QRMemo1;

    QList<ReceiptLine> lines;

    std::array<ReceiptRow, 7> totals;  ///< QRL18 to QRL24
    int totalsHeight = 80;             ///< report units

    QString QRLetras1;
    ReceiptRow QRL27, QRL28, QRL29, QRL30, QRL31, QRL32;
    QString QRL33, QRL34, QRL35, QRL36, QRL37, QRL39, QRL40;
};

struct ReceiptTotals;

/// Fills receipts. One object serves all receipts of a screen's life, because some captions are
/// meant to stay as the last print left them: each reprint adds " DUPLICADO" to the heading as it
/// stands, and a note that no case of the totals covers prints zeros under the last captions.
class ReceiptWriter {
public:
    ReceiptContent Ticket(const NoteDraft &draft, const Payment &payment,
                          const RegisteredNote &note, const ReceiptExtras &extras,
                          const ReceiptOptions &options);

private:
    void fillTotals(ReceiptContent *content, const std::optional<ReceiptTotals> &totals);

    QString heading_ = QStringLiteral("RECIBO DE PAGO");
    std::array<QString, 7> captions_{QStringLiteral("SUBTOTAL")};
};

}  // namespace kaldo
