#include "shell/frm_pass_password.h"

#include "data/database_error.h"
#include "toolkit/forms/form.h"

namespace kaldo {

namespace {

constexpr int kPasswordWidth = 8;

}  // namespace

FRMPass::FRMPass(Context &context)
    : Dialog(context, QStringLiteral("FRMPass"), QStringLiteral("Cambiar Contraseña")) {}

void FRMPass::build() {
    using namespace form;
    form::build(
        this,
        column({
            text(&Edit1_, QStringLiteral("Edit1"), QStringLiteral("Contraseña Actual"))
                .password()
                .width(kPasswordWidth)
                .shown(20)
                .enter([this] { checkCurrent(); }),
            text(&Edit2_, QStringLiteral("Edit2"), QStringLiteral("Contraseña Nueva"))
                .password()
                .width(kPasswordWidth)
                .shown(20),
            text(&Edit3_, QStringLiteral("Edit3"), QStringLiteral("Repita la Contraseña Nueva"))
                .password()
                .width(kPasswordWidth)
                .shown(20)
                .enter([this] {
                    if (checkRepeated()) {
                        BitBtn1_->setEnabled(true);
                        moveFocus(BitBtn1_);
                    }
                }),
            form::label(QStringLiteral("La contraseña debe tener un maximo de 8 caracteres y  solo "
                                       "minusculas."))
                .wrap(),
            row({stretch(),
                 button(&BitBtn1_, QStringLiteral("BitBtn1"), QStringLiteral("&Aplicar Cambios"))
                     .icon(QStringLiteral("save"))
                     .disabled()
                     .clicked([this] { BitBtn1Click(); }),
                 button(&BitBtn2_, QStringLiteral("BitBtn2"), QStringLiteral("&Cerrar Ventana"))
                     .icon(QStringLiteral("close"))
                     .escape()
                     .clicked([this] { reject(); })}),
        }));
}

void FRMPass::reset(std::optional<QString> current) {
    ensureBuilt();
    current_ = std::move(current);
    for (TextField *field : {Edit1_, Edit2_, Edit3_}) {
        field->clear();
    }
    BitBtn1_->setEnabled(false);
    Edit1_->setFocus();
    // The main window is disabled under the login, and with it the windows that belong to it.
    setEnabled(true);
}

bool FRMPass::checkCurrent() {
    if (!current_) {
        // A login that was refused meanwhile has left no row, or that of somebody else.
        NamedQuery &user = context().odonto.ControlUsuarios1;
        user.open({{QStringLiteral("usr"), session().Usuario.text()},
                   {QStringLiteral("pas"), Edit1_->text()}});
        if (!user.isEmpty()) {
            current_ = user.text(QStringLiteral("pass"));
        }
    }
    // No password is like none.
    if (current_ && Edit1_->text().trimmed() == current_->trimmed()) {
        return true;
    }
    messages().warning(QStringLiteral(
        "La contraseña actual es incorrecta, presione cualquier tecla para continuar."));
    BitBtn1_->setEnabled(false);
    Edit1_->clear();
    moveFocus(Edit1_);
    return false;
}

bool FRMPass::checkRepeated() {
    if (Edit3_->text() == Edit2_->text()) {
        return true;
    }
    messages().warning(QStringLiteral(
        "La nueva contraseña no coincide, presione cualquier tecla para continuar."));
    moveFocus(Edit3_);
    return false;
}

void FRMPass::BitBtn1Click() {
    // The fields may have changed since the button was enabled.
    if (!checkCurrent() || !checkRepeated()) {
        return;
    }
    if (messages().confirm(QStringLiteral(
            "¿Desea continuar con la actualización de la contraseña?")) != Answer::Yes) {
        return;
    }
    const Parameters values{{QStringLiteral("pass"), Edit2_->text()},
                            {QStringLiteral("usuario"), session().Usuario.text()}};
    Command &change = context().caja.CambiaPass;
    if (change.execute(values) == 0) {
        throw rowGone(change.connection().name(), change.name());
    }
    context().odonto.CambiaPass.execute(values);
    messages().information(
        QStringLiteral("La nueva contraseña ha sido registrada correctamente, presione cualquier "
                       "tecla para continuar."));
    accept();
}

}  // namespace kaldo
