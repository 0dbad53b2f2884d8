#include "people/frm_message_new_dossier.h"

#include "toolkit/forms/form.h"

namespace kaldo {

FRMMessage::FRMMessage(Context &context)
    : Dialog(context, QStringLiteral("FRMMessage"), QStringLiteral("Información")) {}

void FRMMessage::build() {
    using namespace form;
    form::build(
        this, column({
                  label(QStringLiteral("La información ha sido registrada correctamente,")),
                  row({label(QStringLiteral("Expediente:")),
                       label(&Expediente_, QStringLiteral("Expediente"), QStringLiteral("00000/00"))
                           .heading(),
                       stretch()}),
                  row({stretch(),
                       button(nullptr, QStringLiteral("Continuar"), QStringLiteral("Continuar >>"))
                           .icon(QStringLiteral("accept"))
                           .clicked([this] { accept(); })}),
              }));
}

void FRMMessage::tell(const QString &expediente) {
    ensureBuilt();
    Expediente_->setText(expediente);
    setModal(false);
    show();
    raise();
    activateWindow();
}

void FRMMessage::done(int result) {
    Dialog::done(result);
    if (parentWidget() != nullptr) {
        parentWidget()->activateWindow();
    }
}

}  // namespace kaldo
