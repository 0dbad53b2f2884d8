#pragma once

#include "app/catalogue_panel.h"
#include "app/screen.h"

namespace kaldo {

/// The payment methods of the electronic invoice.
class FRM109 : public Screen {
    Q_OBJECT

public:
    explicit FRM109(Context &context);

    void activated() override;
    bool previewReport() override;

protected:
    void formCreate() override;

private:
    CatalogueRules methods();
    EnterResult enterClave();
    EnterResult enterDescripcion();

    CataloguePanel *panel_ = nullptr;
};

}  // namespace kaldo
