#pragma once

#include "app/catalogue_panel.h"
#include "app/screen.h"

namespace kaldo {

/// The clinics of a centre: the places where one of its sales areas is delivered.
class FRM101 : public Screen {
    Q_OBJECT

public:
    explicit FRM101(Context &context);

    void activated() override;
    bool previewReport() override;

protected:
    void formCreate() override;

private:
    CatalogueRules clinics();
    void chooseCentre();
    void chooseService();
    /// An emptied choice takes along what hangs on it.
    void forgetCentre();
    void forgetService();
    EnterResult enterArea();
    EnterResult enterResponsable();
    EnterResult enterRequired(const QString &field);

    CataloguePanel *panel_ = nullptr;
    LookupField *centro_ = nullptr;
    LookupField *servicio_ = nullptr;
};

}  // namespace kaldo
