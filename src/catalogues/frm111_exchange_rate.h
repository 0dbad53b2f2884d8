#pragma once

#include "app/catalogue_panel.h"
#include "app/screen.h"

namespace kaldo {

/// The exchange rates, the newest on top: it is the rate in force, whatever its day.
class FRM111 : public Screen {
    Q_OBJECT

public:
    explicit FRM111(Context &context);

    void activated() override;

protected:
    void formCreate() override;

private:
    CatalogueRules rates();
    EnterResult enterTipoCambio();
    bool isRate();
    void write();

    CataloguePanel *panel_ = nullptr;
};

}  // namespace kaldo
