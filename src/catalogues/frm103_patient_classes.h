#pragma once

#include "app/catalogue_panel.h"
#include "app/screen.h"

namespace kaldo {

/// The kinds of patient, and of which relatives each one speaks.
class FRM103 : public Screen {
    Q_OBJECT

public:
    explicit FRM103(Context &context);

    void activated() override;
    bool previewReport() override;

protected:
    void formCreate() override;

private:
    CatalogueRules classes();
    EnterResult enterClave();
    EnterResult enterDescripcion();
    bool completeRow();

    CataloguePanel *panel_ = nullptr;
};

/// What opening a row leads to in two other catalogues: of the two data sets it is the
/// classification of patients that is opened for editing; the row of the screen itself follows
/// with the first key that writes into it.
void editPatientClasses(NamedQuery &prestaciones);

}  // namespace kaldo
