#pragma once

#include "app/catalogue_panel.h"
#include "app/screen.h"
#include "catalogues/frm104a_discounts.h"

namespace kaldo {

/// Per sales area of the campus: whether advances and discounts apply, and for which ages it is.
class FRM104 : public Screen {
    Q_OBJECT

public:
    explicit FRM104(Context &context);

    void activated() override;
    bool previewReport() override;

protected:
    void formCreate() override;

private:
    CatalogueRules services();
    void chooseCentre();
    void chooseArea();
    /// What is typed over a choice is none; what hangs on it goes along.
    void forgetCentre();
    void forgetArea();
    void changeMode(CatalogueMode mode);
    /// Ages can only be written where the area asks for them.
    void allowAges();
    EnterResult areaThen(EnterResult result);
    EnterResult enterRequiereEdad();
    void updateDiscounts();

    FRM104a discounts_;
    bool areaChosen_ = false;
    LookupField *centro_ = nullptr;
    LookupField *area_ = nullptr;
    Button *descuentos_ = nullptr;
    CataloguePanel *panel_ = nullptr;
};

}  // namespace kaldo
