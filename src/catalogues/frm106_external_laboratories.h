#pragma once

#include "app/catalogue_panel.h"
#include "app/screen.h"

namespace kaldo {

/// The outside laboratories of the campus, each an account of the accounting catalogue.
class FRM106 : public Screen {
    Q_OBJECT

public:
    explicit FRM106(Context &context);

    void activated() override;
    bool previewReport() override;

protected:
    void formCreate() override;

private:
    CatalogueRules laboratories();
    form::Item detail();
    void bindDetail();
    void takeAccount(const QString &field, int row);
    bool accountTaken() const;
    EnterResult enterDescripcion();
    EnterResult enterDomicilio();
    bool takesChosenAccount();
    bool hasAccount();
    bool completeRow();
    void saveIfOpen();

    CataloguePanel *panel_ = nullptr;
    TextField *colonia_ = nullptr;
    TextField *ciudad_ = nullptr;
    MaskedField *telefono_ = nullptr;
    LookupField *programa_ = nullptr;
    TextField *nomenclatura_ = nullptr;
    TextField *responsable_ = nullptr;
    TextField *correo_ = nullptr;
    NumberField *cp_ = nullptr;
};

}  // namespace kaldo
