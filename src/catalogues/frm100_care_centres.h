#pragma once

#include "app/catalogue_panel.h"
#include "app/screen.h"
#include "toolkit/report/document.h"

namespace kaldo {

/// The care centres of the campus, and the counter of its dossiers.
class FRM100 : public Screen {
    Q_OBJECT

public:
    explicit FRM100(Context &context);

    void activated() override;
    bool previewReport() override;

protected:
    void formCreate() override;

private:
    void buildForm();
    CatalogueRules centres();
    CatalogueRules counters();
    QString institutionCaption() const;
    EnterResult enterCentro();
    EnterResult enterDescripcion();
    EnterResult enterCampus();
    bool hasCampus();
    void toggleCounters();

    CataloguePanel *panel_ = nullptr;
    CataloguePanel *counters_ = nullptr;
    QGroupBox *controlExpedientes_ = nullptr;
    QWidget *programa_ = nullptr;
    Button *consecutivo_ = nullptr;
    NumberField *cp_ = nullptr;
    TextField *responsable_ = nullptr;
    TextField *descripcion_ = nullptr;
    TextField *correoto_ = nullptr;
    LookupField *prog_ = nullptr;
};

}  // namespace kaldo
