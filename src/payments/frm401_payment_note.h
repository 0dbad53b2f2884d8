#pragma once

#include "app/screen.h"
#include "payments/lines_panel.h"
#include "payments/note_draft.h"
#include "payments/payer_panel.h"
#include "payments/registration.h"
#include "payments/service_choice.h"
#include "toolkit/forms/form.h"

namespace kaldo {

class FRM401_3;

/// "Registro Pagos": the screen on which a cashier writes one payment note. Its panels hold what
/// was chosen: the service, who pays, the lines. The screen puts them together, shows the totals,
/// and registers the note through the payment dialog.
class FRM401 final : public Screen {
    Q_OBJECT

public:
    FRM401(Context &context, FRM401_3 &formaPago, FRMAlumnos &alumnos);
    ~FRM401() override;

    void activated() override;

protected:
    void formCreate() override;
    bool holdsTypedWork() const override;
    void closeEvent(QCloseEvent *event) override;

private:
    // The form
    void buildForm();
    form::Item headingItems();
    form::Item totalsItems();
    void wirePanels();
    void addShortcuts();

    // Heading, mode
    void fillHeading();
    void readNumber();
    void RadioGroup1Click();
    void repetirModo();
    void Limpiar();

    // From the service to the lines
    void ClasServicios();
    void abrirExpediente();
    void dossierTaken(std::optional<int> edad);
    bool treatmentAllowed(int codigo);

    // Totals and buttons
    void showState();
    NoteAmounts amounts() const;

    // Registering
    bool holdsLines() const { return lines_.editing() || !lines_.lines().isEmpty(); }
    void registrarInformacion();
    bool takeNoteNumber();
    NoteDraft draft() const;

    FRM401_3 &formaPago_;
    Registration registration_;
    ServiceChoice service_;
    PayerPanel payer_;
    LinesPanel lines_;

    int NotaActual_ = 0;
    Benefit benefit_;

    QWidget *panelEncabezado_ = nullptr;
    QLabel *cajero_ = nullptr;
    QLabel *centro_ = nullptr;
    QLabel *turno_ = nullptr;
    QLabel *caja_ = nullptr;
    RadioGroup *RadioGroup1_ = nullptr;
    TextField *Edit1_ = nullptr;
    DateField *DateEdit1_ = nullptr;

    MoneyField *subtotal_ = nullptr;
    QWidget *panelAnticipo_ = nullptr;
    MoneyField *CEdit0_ = nullptr;
    MoneyField *CEdit1_ = nullptr;
    QLabel *prestacionLabel_ = nullptr;
    MoneyField *CEdit2_ = nullptr;
    MoneyField *CEdit3_ = nullptr;
    Button *registrar_ = nullptr;
    Button *formaPagoButton_ = nullptr;
    Button *cerrar_ = nullptr;
};

}  // namespace kaldo
