#pragma once

#include "app/screen.h"
#include "payments/note_draft.h"
#include "payments/payment.h"
#include "payments/receipt_printer.h"
#include "payments/tender.h"
#include "toolkit/forms/form.h"

#include <optional>

namespace kaldo {

/// A note as the cashier agreed it with the payer. An advance changes the amounts of the note and
/// the shares of its lines.
struct AcceptedPayment {
    NoteDraft note;
    Payment payment;
};

/// "Forma de Pago": the cashier says how a note is paid. It writes nothing to any database and
/// touches no other screen: what was agreed is its answer.
///
/// The amounts live in a Payment; the boxes show it and are read back into it by Totales(), the
/// only place that decides whether the payment is enough.
class FRM401_3 : public Dialog {
    Q_OBJECT

public:
    explicit FRM401_3(Context &context);

    /// Asks how a new note is paid; unset when the cashier left without accepting. A note that the
    /// benefit covers whole on AE, AP or LE is accepted without showing the dialog.
    std::optional<AcceptedPayment> pay(const NoteDraft &draft, ScreenBase *opener);

    /// The receipt belongs to the dialog, and remembers what the last print left in it.
    ReceiptPrinter &receipt() { return receipt_; }

protected:
    void build() override;
    void activated() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // Widgets
    form::Item tenderItems();
    form::Item chequeItems();
    form::Item totalItems();
    form::Item buttonItems();
    QList<MoneyField *> tenderBoxes() const { return {CEdit2_, CEdit3_, CEdit4_, CEdit5_}; }
    void focusTender(MoneyField *from, int step);

    // What is shown
    void showPayment();
    void showTotals();
    void showLayout();
    void enableTenders();
    void acceptable(bool enabled);

    // What the cashier does
    void Totales();
    void readBoxes();
    void RadioGroup1Click(PaymentKind kind);
    void preguntarAnticipo();
    void ValidaTarjeta();
    static void llegarAImporte(MoneyField *box);
    void llegarATarjeta();
    void teclearTarjeta(double importe);
    void enterTarjeta();
    void salirDeTarjeta();
    void salirDeImporte();
    void elegirTarjeta(CardKind kind);
    void enterTipoDeTarjeta();
    void olvidarTarjeta();
    void enterDolares();
    void enterUltimo();
    void enterEdit12();
    bool meantSo();
    void imprimirRecibo();
    bool commitFocused();

    ReceiptPrinter receipt_;
    NoteDraft draft_;
    Payment payment_;
    bool ready_ = false;      ///< the rate is known and the amounts are this note's
    bool typeTaken_ = false;  ///< the type of the card was chosen, and nothing typed since
    double seen_ = 0;         ///< "Subtotal" as the eye had it when the button was pressed

    QGroupBox *GroupBox1_ = nullptr;
    QGroupBox *GroupBox2_ = nullptr;
    RadioGroup *RadioGroup1_ = nullptr;
    RadioGroup *RadioGroup2_ = nullptr;
    QWidget *PanelCheque_ = nullptr;
    QWidget *PanelAnticipo_ = nullptr;
    QWidget *PanelPrestacion_ = nullptr;
    QLabel *LabelTipoCambio_ = nullptr;
    QLabel *LabelPrestacion_ = nullptr;
    TextField *Edit1_ = nullptr;
    TextField *Edit2_ = nullptr;
    TextField *Edit3_ = nullptr;
    TextField *Edit12_ = nullptr;
    MoneyField *CEdit0_ = nullptr;
    MoneyField *CEdit1_ = nullptr;
    MoneyField *CEdit2_ = nullptr;
    MoneyField *CEdit3_ = nullptr;
    MoneyField *CEdit4_ = nullptr;
    MoneyField *CEdit5_ = nullptr;
    MoneyField *CEdit6_ = nullptr;
    MoneyField *CEdit7_ = nullptr;
    MoneyField *CEdit8_ = nullptr;
    MoneyField *CEdit9_ = nullptr;
    MoneyField *CEdit10_ = nullptr;
    MoneyField *CEdit11_ = nullptr;
    Button *ImprimirRecibo_ = nullptr;
    Button *CerrarVentana_ = nullptr;
};

}  // namespace kaldo
