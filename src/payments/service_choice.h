#pragma once

#include <QObject>

#include "app/screen.h"
#include "payments/note_draft.h"
#include "toolkit/forms/form.h"

namespace kaldo {

/// What is sold: "Tipo de Servicio", "Clasif. del Servicio" and, where the area has some, "Lugar de
/// Atención".
class ServiceChoice final : public QObject, public ScreenBase {
    Q_OBJECT

public:
    explicit ServiceChoice(Context &context) : ScreenBase(context) {}

    form::Item items();
    /// To be called once the form is built.
    void attach();

    /// Fills the list of service types and chooses none.
    void reset();
    /// What was chosen last; whole after chosen().
    const Service &service() const { return service_; }
    void setEnabled(bool enabled);
    void focus() { moveFocus(tipo_); }

signals:
    /// Another service type: nothing of the note before holds.
    void typeChosen();
    /// The area or the place is being chosen anew: nobody is identified for it yet.
    void reopened();
    /// Type, area and place stand.
    void chosen();

private:
    void elegirTipoServicio();
    void elegirArea();
    void elegirLugar();
    void forgetArea();

    Service service_;
    Choice *tipo_ = nullptr;
    LookupField *area_ = nullptr;
    QWidget *panelLugar_ = nullptr;
    LookupField *lugar_ = nullptr;
};

}  // namespace kaldo
