#pragma once

#include "app/catalogue_panel.h"
#include "app/screen.h"

namespace kaldo {

/// The cash desks of the campus: next note, banks, series, and the settings of their packages.
class FRMDatosCaja : public Screen {
    Q_OBJECT

public:
    explicit FRMDatosCaja(Context &context);

    void activated() override;
    bool previewReport() override;

protected:
    void formCreate() override;

private:
    CatalogueRules desks();
    QList<GridColumn> deskColumns();
    form::Item details();
    void addDetails();

    EnterResult enterCaja();
    EnterResult enterNombre();
    EnterResult enterCampus();
    bool isComplete();

    CataloguePanel *panel_ = nullptr;
    TextField *autoriza_ = nullptr;
    NumberField *tipopaquete_ = nullptr;
    TextField *paqueteid_ = nullptr;
    DateField *fechapaquete_ = nullptr;
    NumberField *sistemaid_ = nullptr;
    NumberField *tipoCaja_ = nullptr;
    NumberField *tipoliza_ = nullptr;
};

}  // namespace kaldo
