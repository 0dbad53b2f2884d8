#pragma once

#include "app/catalogue_panel.h"
#include "app/screen.h"
#include "catalogues/account_levels.h"

namespace kaldo {

/// The sales areas of the campus, their copy into another campus, and their end.
class FRM105 : public Screen {
    Q_OBJECT

public:
    explicit FRM105(Context &context);
    ~FRM105() override;

    void activated() override;
    bool previewReport() override;

protected:
    void formCreate() override;

private:
    CatalogueRules areas();
    QList<GridColumn> areaColumns();
    form::Item duplicates();

    bool prepareInsert();
    EnterResult enterArea();
    EnterResult enterSubcta();
    bool mayRemove();
    void borrarTodas();

    void toggleDuplicates();
    void chooseCampus();
    /// "ID Inicial" counts with the arrow keys.
    void stepFirstId(int step);
    bool copyIsTold() const;
    void generarAreas();
    void copyAreas(const QString &campus, int firstId, const QString &origen);

    AccountLevels levels_;
    CataloguePanel *panel_ = nullptr;
    Button *borrarTodas_ = nullptr;
    IconButton *duplicadosBoton_ = nullptr;
    QWidget *duplicados_ = nullptr;
    LookupField *ciudad_ = nullptr;
    NumberField *idInicial_ = nullptr;
    TextField *origen_ = nullptr;
    Button *generar_ = nullptr;
};

}  // namespace kaldo
