#pragma once

#include "app/catalogue_panel.h"
#include "app/screen.h"
#include "catalogues/account_levels.h"

namespace kaldo {

/// The bank accounts of the finance database, and the programme that uses each.
class FRM110 : public Screen {
    Q_OBJECT

public:
    explicit FRM110(Context &context);

    void activated() override;

protected:
    void formCreate() override;

private:
    CatalogueRules banks();
    CatalogueRules programmesOfBank();
    EnterResult enterBanco();
    EnterResult enterSubSubcta();
    EnterResult enterPrograma();
    bool hasDescription();
    void openLists();
    void openSubSubcta();
    void openProgrammes();
    void toggleProgrammes();
    /// In finance first, then in the clinic's copy.
    void write(NamedQuery &rows);
    void remove(NamedQuery &rows);

    AccountLevels levels_;
    CataloguePanel *panel_ = nullptr;
    CataloguePanel *programas_ = nullptr;
    QGroupBox *bancoProgramas_ = nullptr;
};

}  // namespace kaldo
