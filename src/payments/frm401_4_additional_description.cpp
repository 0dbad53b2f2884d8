#include "payments/frm401_4_additional_description.h"

#include "toolkit/forms/form.h"

namespace kaldo {

namespace {

constexpr int kDescriptionWidth = 255;

}  // namespace

FRM401_4::FRM401_4(Context &context)
    : Dialog(context, QStringLiteral("FRM401_4"), QStringLiteral("Descripción Adicional")) {}

void FRM401_4::build() {
    using namespace form;
    form::build(
        this,
        column({memo(&memo_, QStringLiteral("Memo1"))
                    .accessible(QStringLiteral("Descripción Adicional"))
                    .upper()
                    .width(kDescriptionWidth)
                    .lines(6)
                    .enter([this] {
                        memo_->insertPlainText(QStringLiteral("\n"));
                        stayHere();
                    })
                    .changed([this] { aplicar_->setEnabled(!memo_->text().trimmed().isEmpty()); })
                    .fill()
                    .grow(),
                row({stretch(),
                     button(&aplicar_, QStringLiteral("AplicarCambios"),
                            QStringLiteral("&Aplicar cambios"))
                         .icon(QStringLiteral("accept"))
                         .clicked([this] { aplicarCambios(); }),
                     button(&cerrar_, QStringLiteral("CerrarVentana"),
                            QStringLiteral("&Cerrar Ventana"))
                         .icon(QStringLiteral("close"))
                         .clicked([this] { reject(); })
                         .escape()})}));
    resize(fontMetrics().averageCharWidth() * 70, sizeHint().height());
}

void FRM401_4::activated() {
    memo_->setText(context().local.FBDetalleVtas.text(QStringLiteral("DESC_ADIC")));
    aplicar_->setEnabled(!memo_->text().trimmed().isEmpty());
    moveFocus(memo_);
}

void FRM401_4::aplicarCambios() {
    NamedQuery &lines = context().local.FBDetalleVtas;
    lines.set(QStringLiteral("DESC_ADIC"),
              memo_->text().trimmed().replace(QLatin1Char('\n'), QLatin1Char(' ')));
    lines.post();
    lines.apply();
    accept();
}

void FRM401_4::reject() {
    context().local.FBDetalleVtas.cancelUpdates();
    Dialog::reject();
}

}  // namespace kaldo
