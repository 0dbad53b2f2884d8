#pragma once

#include "app/catalogue_panel.h"
#include "app/screen.h"
#include "catalogues/account_levels.h"

namespace kaldo {

/// The forms of payment and the account that each is booked on.
class FRM108 : public Screen {
    Q_OBJECT

public:
    explicit FRM108(Context &context);

    void activated() override;
    bool previewReport() override;

protected:
    void formCreate() override;

private:
    CatalogueRules paymentForms();
    EnterResult enterTipo();
    EnterResult enterSubcta();

    AccountLevels levels_;
    CataloguePanel *panel_ = nullptr;
};

}  // namespace kaldo
