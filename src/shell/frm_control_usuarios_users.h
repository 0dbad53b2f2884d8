#pragma once

#include "app/catalogue_panel.h"
#include "app/screen.h"
#include "shell/rights_grids.h"

namespace kaldo {

/// The users of the campus and their rights: two tables side by side, written one after the other.
class FRMControlUsuarios : public Screen {
    Q_OBJECT

public:
    explicit FRMControlUsuarios(Context &context);
    ~FRMControlUsuarios() override;

    void activated() override;
    bool previewReport() override;

protected:
    void formCreate() override;

private:
    CatalogueRules users();
    QList<GridColumn> userColumns();
    NamedQuery &rights() const { return context().odonto.Usuarios_Mant; }

    EnterResult enterUsuario();
    void openUser();
    void openRights();
    void beginRights();
    bool completeRights();
    void write();
    /// Nobody deletes himself or the last administrator of the campus.
    bool mayRemove();
    void remove();

    CataloguePanel *panel_ = nullptr;
    RightsGrids *rights_ = nullptr;
};

}  // namespace kaldo
