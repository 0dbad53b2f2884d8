#pragma once

#include "app/catalogue_panel.h"
#include "app/screen.h"
#include "toolkit/report/document.h"

namespace kaldo {

/// The price list of a sales area, its copy into an area of another campus, and its end.
class FRM107 : public Screen {
    Q_OBJECT

public:
    explicit FRM107(Context &context);
    ~FRM107() override;

    void activated() override;
    bool previewReport() override;

protected:
    void formCreate() override;

private:
    CatalogueRules prices();
    QList<GridColumn> priceColumns();
    form::Item duplicates();

    void chooseArea();
    void forgetArea();
    void openSubsubcta();
    EnterResult enterClave();
    bool acceptRow();
    bool completeRow();
    void borrarLista();

    void toggleDuplicates();
    void chooseCampus();
    void chooseTarget();
    void choosePrograma();
    void enableGenerate();
    void generarLista();
    void copyItems(int target, const QString &programa);

    CataloguePanel *panel_ = nullptr;
    LookupField *area_ = nullptr;
    Button *borrarLista_ = nullptr;
    QWidget *duplicados_ = nullptr;
    LookupField *ciudad_ = nullptr;
    LookupField *areaDestino_ = nullptr;
    LookupField *programa_ = nullptr;
    Button *generar_ = nullptr;
};

}  // namespace kaldo
