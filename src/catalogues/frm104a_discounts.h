#pragma once

#include "app/catalogue_panel.h"
#include "app/screen.h"

namespace kaldo {

/// "Porcentaje de descuento": what each class of patient is let off on one sales area of a centre.
class FRM104a final : public Dialog {
    Q_OBJECT

public:
    explicit FRM104a(Context &context);

    /// Shows the discounts until the dialog closes. Then the open row of `ClasifServicios` tells
    /// whether there are any.
    void update(const QString &centro, int tipoProd, ScreenBase *opener);

    void activated() override;
    void reject() override;

protected:
    void build() override;

private:
    CatalogueRules discounts();
    EnterResult enterPrestacion();
    bool isPercentage();
    void writeAplicaDescuento();

    QString centro_;
    int tipoProd_ = 0;
    TextField *tipoServicio_ = nullptr;
    CataloguePanel *panel_ = nullptr;
};

}  // namespace kaldo
