#include "payments/frm401_3_payment_form.h"

namespace kaldo {

namespace {

/// Room for the largest amount, "$999,999,999.99", in bold.
constexpr int kAmountCharacters = 15;

std::function<void(MoneyField *)> enlarged(double scale, bool bold) {
    return [scale, bold](MoneyField *box) {
        QFont font = box->font();
        font.setPointSizeF(font.pointSizeF() * scale);
        font.setBold(bold);
        box->setFont(font);
        box->setShownCharacters(kAmountCharacters);
        box->setMinimumWidth(box->sizeHint().width());
    };
}

/// What the cashier types.
auto tender(MoneyField **where, const QString &name, const QString &caption) {
    auto item = form::money(where, name, caption);
    item.with(enlarged(1.3, false));
    return item;
}

/// What the dialog works out; the larger, the more it matters.
auto amount(MoneyField **where, const QString &name, const QString &caption, double scale = 1.3) {
    auto item = form::money(where, name, caption);
    item.with(enlarged(scale, scale > 1.3)).readOnly().fill();
    return item;
}

/// Panels keep columns of their own; their boxes shall stand under those of the group all the same.
void alignLabels(QWidget *group) {
    QList<QLabel *> captions;
    int width = 0;
    for (QLabel *label : group->findChildren<QLabel *>()) {
        if (label->objectName().endsWith(QLatin1String("_label")) ||
            label->objectName() == QLatin1String("LabelPrestacion")) {
            captions.append(label);
            width = std::max(width, label->sizeHint().width());
        }
    }
    for (QLabel *label : captions) {
        label->setMinimumWidth(width);
    }
}

}  // namespace

form::Item FRM401_3::tenderItems() {
    using namespace form;
    const auto arrive = [](MoneyField *const *box) { return [box] { llegarAImporte(*box); }; };
    const auto leave = [this] { salirDeImporte(); };
    return column({
        radio(&RadioGroup1_, "RadioGroup1", "Tipo de Pago")
            .options({"Efectivo", "Cheque M.N"})
            .clicked([this](int index) {
                RadioGroup1Click(index == 1 ? PaymentKind::ChequeMN : PaymentKind::Efectivo);
            }),
        row({tender(&CEdit2_, "CEdit2", "Tarjeta Credito")
                 .arrive([this] { llegarATarjeta(); })
                 .enter([this] { enterTarjeta(); })
                 .leave([this] { salirDeTarjeta(); }),
             radio(&RadioGroup2_, "RadioGroup2", "Tipo de Tarjeta")
                 .options({"Débito", "Crédito"})
                 .clicked([this](int index) {
                     elegirTarjeta(index == 0 ? CardKind::Debito : CardKind::Credito);
                 })
                 .enter([this] { enterTipoDeTarjeta(); })}),
        text(&Edit12_, "Edit12", "4 Ultimos digitos").hidden().enter([this] { enterEdit12(); }),
        row({tender(&CEdit3_, "CEdit3", "Dolares")
                 .arrive(arrive(&CEdit3_))
                 .enter([this] { enterDolares(); })
                 .leave(leave),
             label("Tipo de Cambio:"), label(&LabelTipoCambio_, "LabelTipoCambio").bold()}),
        tender(&CEdit4_, "CEdit4", "Pesos")
            .arrive(arrive(&CEdit4_))
            .enter([this] { enterUltimo(); })
            .leave(leave),
        tender(&CEdit5_, "CEdit5", "Cheque")
            .arrive(arrive(&CEdit5_))
            .enter([this] { enterUltimo(); })
            .leave(leave),
    });
}

form::Item FRM401_3::chequeItems() {
    using namespace form;
    return panel(&PanelCheque_, "PanelCheque",
                 column({
                     text(&Edit1_, "Edit1", "Banco").upper().width(30).shown(22),
                     text(&Edit2_, "Edit2", "No. Cuenta").upper().width(20).shown(22),
                     text(&Edit3_, "Edit3", "No. Cheque").upper().width(8).enter([this] {
                         moveFocus(CEdit5_);
                     }),
                 }));
}

form::Item FRM401_3::totalItems() {
    using namespace form;
    return column({
        amount(&CEdit1_, "CEdit1", "Importe Total"),
        panel(&PanelPrestacion_, "PanelPrestacion",
              row({label(&LabelPrestacion_, "LabelPrestacion", "Prestación 100 %"),
                   amount(&CEdit11_, "CEdit11", "").accessible("Prestación")})),
        panel(&PanelAnticipo_, "PanelAnticipo",
              column({
                  amount(&CEdit0_, "CEdit0", "Cantidad de Anticipo"),
                  amount(&CEdit6_, "CEdit6", "Saldo").enter([this] { Totales(); }),
              })),
        amount(&CEdit8_, "CEdit8", "Importe a Pagar", 1.7),
        line(),
        amount(&CEdit7_, "CEdit7", "Subtotal"),
        amount(&CEdit9_, "CEdit9", "Diferencia", 1.45),
        amount(&CEdit10_, "CEdit10", "Cambio", 1.7),
        stretch(),
    });
}

form::Item FRM401_3::buttonItems() {
    using namespace form;
    return row({
        stretch(),
        button(&ImprimirRecibo_, "ImprimirRecibo", "&Imprimir Recibo")
            .icon("print")
            .disabled()
            .clicked([this] { imprimirRecibo(); }),
        button(&CerrarVentana_, "CerrarVentana", "&Cerrar Ventana")
            .icon("close")
            .escape()
            .clicked([this] { reject(); }),
    });
}

void FRM401_3::build() {
    using namespace form;
    form::build(this, column({
                          row({
                              group(&GroupBox1_, "GroupBox1", "Pago",
                                    column({tenderItems(), chequeItems(), stretch()})),
                              group(&GroupBox2_, "GroupBox2", "Importes", totalItems()),
                          }),
                          buttonItems(),
                      }));
    connectGuarded(CEdit2_, &MoneyField::valueEdited, this,
                   [this](double importe) { teclearTarjeta(importe); });
    for (MoneyField *box : tenderBoxes()) {
        box->setKeyHandler(Qt::Key_Up, [this, box] { focusTender(box, -1); });
        box->setKeyHandler(Qt::Key_Down, [this, box] { focusTender(box, 1); });
    }
    CEdit7_->installEventFilter(this);
    for (const char *heading : {"CEdit8_label", "CEdit9_label", "CEdit10_label"}) {
        auto *caption = findChild<QLabel *>(QLatin1String(heading));
        QFont font = caption->font();
        font.setBold(true);
        caption->setFont(font);
    }
    alignLabels(GroupBox1_);
    alignLabels(GroupBox2_);
    // The boxes stay where they are when a panel comes or goes.
    for (QWidget *panel : {static_cast<QWidget *>(RadioGroup2_), PanelCheque_}) {
        QSizePolicy policy = panel->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        panel->setSizePolicy(policy);
    }
    showPayment();
    showLayout();
}

/// The next box that can be typed into; none beyond the ends.
void FRM401_3::focusTender(MoneyField *from, int step) {
    const QList<MoneyField *> boxes = tenderBoxes();
    for (qsizetype at = boxes.indexOf(from) + step; at >= 0 && at < boxes.size(); at += step) {
        if (boxes.at(at)->isEnabled()) {
            moveFocus(boxes.at(at));
            return;
        }
    }
}

}  // namespace kaldo
