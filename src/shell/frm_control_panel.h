#pragma once

#include "app/screen.h"
#include "shell/option_sheet.h"
#include "shell/record_grid.h"

#include <array>

class QTabWidget;

namespace kaldo {

class FRM000;

/// The screen of the options: the ini file, the receipts that a note prints, the registry of the
/// databases.
///
/// The options that live are those of the context; the widgets are an edit buffer, filled from them
/// when the panel opens and written back by "&Aplicar Cambios".
class FRMControlPanel final : public Dialog {
    Q_OBJECT

public:
    FRMControlPanel(Context &context, FRM000 &main);

    /// The work of its creation, with the clinic's database connected: opens the tables and reads
    /// the options. A value that can't be read throws and leaves the rest undone.
    void formCreate();
    /// The menu entry. A creation that failed is tried again first; while it fails, the panel would
    /// write options over a file that it could not read, and stays shut.
    void openFromMenu(ScreenBase *opener);

    void activated() override;
    /// Asks first where something was changed.
    void reject() override;

protected:
    void build() override;
    void done(int result) override;

private:
    form::Item general();
    form::Item clientGroup();
    form::Item workstationGroup();
    form::Item lookColumn();
    form::Item fiscalGroup();
    form::Item sistema();
    form::Item opciones();
    form::Item admissionsGroup();
    form::Item dossiersGroup();
    form::Item impresiones();
    form::Item logoPage(int logo);
    form::Item configuraciones();
    form::WidgetItem<Button> fold(Button **where, const QString &name, const QString &caption,
                                  QWidget **panel);
    void bindRecords();

    void AplicarCambios();
    /// The options as the widgets have them.
    Options typed() const;
    bool changed() const;
    bool valuesFit();
    bool recordsSaved();
    void showOptions();
    void showLogos();
    void showCounters();
    void Sector();
    void setCaption(QWidget *field, const QString &caption);
    void followSwitches();
    void applyProfile();
    void foldPanels();
    QWidget *pageOf(const QWidget *widget) const;
    void chooseHelpFile();
    void chooseLogo(int logo);
    void removeLogo(int logo);

    FRM000 &main_;
    OptionSheet sheet_;
    bool created_ = false;

    struct Logo {
        QString path;  ///< as the ini file has it
        QLabel *picture = nullptr;
        QLabel *caption = nullptr;
    };
    std::array<Logo, 2> logos_;

    QTabWidget *PageControl1_ = nullptr;
    QTabWidget *PageControl2_ = nullptr;
    QLabel *Encabezado_ = nullptr;
    TextField *NombreInstitucion_ = nullptr;
    TextField *Facultad_ = nullptr;
    TextField *ArchivoAyuda_ = nullptr;
    RadioGroup *Ambiente_ = nullptr;
    RadioGroup *Sector_ = nullptr;
    Button *RfcCliente_ = nullptr;
    QWidget *DatosFiscales_ = nullptr;
    Button *Contables_ = nullptr;
    QWidget *DatosContables_ = nullptr;
    CheckField *AlumnoCanalizado_ = nullptr;
    CheckField *AdmisionesOtrosCentros_ = nullptr;
    CheckField *GenerarExpediente_ = nullptr;
    CheckField *CapturarSaldos_ = nullptr;
    CheckField *ExpedientesOtrosCentros_ = nullptr;
    QWidget *PanelPrestamo_ = nullptr;
    CheckField *ActivarPrestamo_ = nullptr;
    NumberField *ExpedientesPorAlumno_ = nullptr;
    QGroupBox *ConsultaExpedientes_ = nullptr;
    Button *ControlExpedientes_ = nullptr;
    QWidget *PanelControl_ = nullptr;
    QLabel *Contador_ = nullptr;
    NumberField *TotalRecibos_ = nullptr;
    NumberField *SegundosDuplicado_ = nullptr;
    CheckField *DesactivarDuplicados_ = nullptr;
    RadioGroup *SqlCliente_ = nullptr;
    DataGrid *GridRecibos_ = nullptr;
    DataGrid *GridFirebird_ = nullptr;
    DataGrid *GridInformix_ = nullptr;
    Options shown_;  ///< as the panel was filled
    std::vector<RecordGrid *> records_;
};

}  // namespace kaldo
