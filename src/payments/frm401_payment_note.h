#pragma once

#include <QLabel>

#include <memory>

#include "app/screen.h"
#include "payments/frm401_4_additional_description.h"
#include "payments/note_draft.h"
#include "toolkit/forms/form.h"

namespace kaldo {

class FRM401_3;
class FRMAlumnos;
class Registration;

/// "Registro Pagos": the screen on which a cashier writes one payment note. It identifies who
/// pays, keeps the lines in the local working table, and registers the note through the payment
/// dialog.
///
/// The code is split by subject: frm401_layout.cpp (widgets), frm401_payment_note.cpp (opening,
/// mode, resets), frm401_service.cpp (service, area, place), frm401_dossier.cpp,
/// frm401_payer.cpp (names, birth, student, employee), frm401_lines.cpp and frm401_register.cpp.
class FRM401 final : public Screen {
    Q_OBJECT

public:
    FRM401(Context &context, FRM401_3 &formaPago, FRMAlumnos &alumnos);
    ~FRM401() override;

protected:
    void formCreate() override;

private:
    // Widgets
    void buildForm();
    form::Item headingItems();
    form::Item serviceItems();
    form::Item patientItems();
    form::Item linesItems();
    form::Item totalsItems();
    void keepRoomWhenHidden();
    void bindLists();
    void addShortcuts();
    void wireGrid();

    // Opening, mode and resets
    void Combo();
    void fillHeading();
    void RadioGroup1Click();
    void repetirModo();
    void Limpiar();
    void Limpiar1();
    void Habilitar();
    void clearCounters();
    void clearPayer();
    void LimpiarTabla();
    void setListsEnabled(bool enabled);
    bool empresarial() const;
    bool educativo() const;

    // Service type, sales area, place of care
    void elegirTipoServicio();
    void CadenaTS();
    void elegirArea();
    void elegirLugar();
    void identifyAnew();
    void ClasServicios();
    void abrirExpediente();
    void identifyByDossier();
    void identifyByNames();
    void identifyByStudent();
    void identifyEmployeeOrStudent();
    void openPatientType(int prestacion);
    void openPriceList();
    void openPriceListForAge(int edad);
    void showPriceList();
    int tipoProd() const;

    // The dossier
    void buscarExpediente();
    void LlenaExpediente();
    bool expedienteDeEsteCentro();
    bool edadCorresponde();
    void DatosExpediente();
    bool takeEmployeeOfDossier();
    void takeDossierData();
    bool useDossier();
    void CargarPrestacion();
    void LimpiaEmpleado();
    void consultarExpedientes();
    void tomarExpediente();
    void hideDossierList();
    void cancelarLista();
    void repetirExpediente();
    void forgetDossier();
    void refuseDossier();
    void alternarFiltro();

    // The payer
    void enterPaterno();
    void enterNombre();
    void enterNombreAdmision();
    void ValidaNombre();
    void leaveNacimiento();
    void elegirSexo();
    void buscarAlumno();
    void elegirAlumno(const QString &heading);
    void buscarPosgrado();
    void studentFound(const QString &nombre);
    void ValidaPrestamo();
    void buscarEmpleado();

    // The lines
    void agregarRegistro();
    void borrarRegistro();
    void grabarInformacion();
    void cancelarRegistro();
    void Editar();
    void NoEditar();
    void closeUpClave();
    bool treatmentAllowed();
    void enterColumn(const QString &field);
    void enterClave();
    void enterCantidad();
    void enterPrecio();
    bool conceptoRepetido();
    void takeConcept();
    bool claveVacia() const;
    bool conceptoPendiente() const;
    bool cantidadCabe();
    bool precioCabe();
    void showTotals();
    void stayInColumn(const QString &field);
    void clearClave();
    void readyForLines();
    bool payerMissing() const;
    void pagadorCambiado();
    void descripcionAdicional();

    // Registering
    NoteDraft draft();
    QList<NoteLine> lines();
    void registrarInformacion();
    bool takeNoteNumber();

    FRM401_3 &formaPago_;
    FRMAlumnos &alumnos_;
    FRM401_4 descripcionAdicional_;
    std::unique_ptr<Registration> registration_;

    // Queries whose text this screen rebuilds.
    std::unique_ptr<NamedQuery> Expe_;
    std::unique_ptr<NamedQuery> ConsultaAdmision_;
    std::unique_ptr<NamedQuery> ClaveRepetida_;
    std::unique_ptr<NamedQuery> ListaPreciosFace_;
    NamedQuery *precios_;  ///< the price list in force: all concepts, or those of the age

    int NotaActual_ = 0;
    QString TipoServ_;
    QString CadenaServicio_;
    int PrestacionExpediente_ = 0;
    int PorcPrestacion_ = 0;
    int NumEmpleado_ = 0;
    int FolioAdmision_ = 0;
    QVariant ClaveActual_;
    QString TipoPaciente_;
    bool Editando_ = false;
    bool NombreRepetido_ = false;
    bool PrestamoValido_ = false;
    bool PrestamoPendiente_ = false;
    QString expedienteTomado_;  ///< the dossier that was accepted; empty without one
    bool claveRechazada_ =
        false;  ///< the key typed last was cleared: the same Enter goes no further

    // Heading
    QWidget *panelEncabezado_ = nullptr;
    QLabel *cajero_ = nullptr;
    QLabel *centro_ = nullptr;
    QLabel *turno_ = nullptr;
    QLabel *caja_ = nullptr;
    RadioGroup *RadioGroup1_ = nullptr;
    TextField *Edit1_ = nullptr;
    DateField *DateEdit1_ = nullptr;

    // Service
    Choice *ComboBox1_ = nullptr;
    LookupField *ComboBox2_ = nullptr;
    QWidget *panelLugar_ = nullptr;
    LookupField *ComboBox3_ = nullptr;

    // Patient
    QWidget *panelPaciente_ = nullptr;
    TextField *Edit2_ = nullptr;
    IconButton *consultarExpedientes_ = nullptr;
    IconButton *filtro_ = nullptr;
    LookupField *listaExpedientes_ = nullptr;
    TextField *tipoPaciente_ = nullptr;
    QWidget *panelOrigen_ = nullptr;
    QLabel *origen_ = nullptr;
    TextField *paterno_ = nullptr;
    TextField *materno_ = nullptr;
    TextField *nombre_ = nullptr;

    QWidget *panelNacimiento_ = nullptr;
    DateField *DateEdit2_ = nullptr;
    TextField *edad_ = nullptr;
    RadioGroup *sexo_ = nullptr;

    QWidget *panelOtros_ = nullptr;  ///< the row of student and employee number
    QWidget *panelDatos_ = nullptr;  ///< the row of birth date and of the employee's data
    QWidget *panelAlumno_ = nullptr;
    TextField *matricula_ = nullptr;
    TextField *alumno_ = nullptr;

    QWidget *panelNoEmpleado_ = nullptr;
    TextField *noEmpleado_ = nullptr;
    TextField *nombreEmpleado_ = nullptr;
    QWidget *panelEmpleado_ = nullptr;
    QLabel *empleado_ = nullptr;
    QLabel *dependencia_ = nullptr;

    // Lines and totals
    Button *agregar_ = nullptr;
    Button *borrar_ = nullptr;
    Button *grabar_ = nullptr;
    Button *cancelar_ = nullptr;
    DataGrid *grid_ = nullptr;
    MoneyField *subtotal_ = nullptr;
    QWidget *panelAnticipo_ = nullptr;
    MoneyField *CEdit0_ = nullptr;
    QLabel *prestacionLabel_ = nullptr;
    MoneyField *CEdit1_ = nullptr;
    MoneyField *CEdit2_ = nullptr;
    MoneyField *CEdit3_ = nullptr;
    Button *registrar_ = nullptr;
    Button *formaPagoButton_ = nullptr;
    Button *cerrar_ = nullptr;
};

}  // namespace kaldo
