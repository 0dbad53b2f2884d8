#pragma once

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

#include "app/screen.h"
#include "payments/birth_strip.h"
#include "payments/employee_strip.h"
#include "payments/note_draft.h"
#include "payments/student_strip.h"
#include "people/dossier_picker.h"
#include "people/dossier_register.h"
#include "toolkit/forms/form.h"

namespace kaldo {

/// Who pays: dossier, names, birth, student or employee, by the path of the service. What was
/// accepted is kept as a value; a name or number that is typed over it takes the payer back until
/// it is accepted again.
class PayerPanel final : public QObject, public ScreenBase {
    Q_OBJECT

public:
    PayerPanel(Context &context, FRMAlumnos &alumnos);

    form::Item items();
    /// To be called once the form is built.
    void attach();

    /// Nobody is identified: all is empty and closed.
    void clear();
    /// What was typed stays, but it has to be accepted for the service that comes.
    void close();
    /// Opens the way in which the payer of this service is identified.
    void identify(const Service &service);

    /// Who was accepted; nobody before identified().
    Payer payer() const { return accepted_.value_or(Payer{}); }
    bool complete() const;
    /// Nobody studies: the blank student number reads "0" from here on.
    void markNoStudent();

    /// Runs when the cashier takes a dossier, before its data are taken over; `edad` where the area
    /// asks an age. A handler and no signal: what fails in it leaves the dossier untaken.
    void setDossierHandler(std::function<void(std::optional<int> edad)> handler) {
        takeDossier_ = std::move(handler);
    }

signals:
    /// Who pays is known: on to the lines.
    void identified();
    /// complete() may have changed.
    void changed();
    /// The cashier doesn't go on with a patient who was admitted before.
    void givenUp();

private:
    form::Item dossierItems();
    form::Item nameItems();

    // The path of a service
    void identifyByDossier();
    void identifyByNames();
    void identifyEmployeeOrStudent();

    // The dossier
    void repetirExpediente();
    void buscarExpediente();
    bool deEsteCentro(const Dossier &dossier);
    void DatosExpediente(const Dossier &dossier, std::optional<int> edad);
    void showDossier(const Dossier &dossier);
    bool takeEmployeeOf(const Dossier &dossier);
    void forgetDossier();
    void refuseDossier();
    std::optional<Parameters> listaDeExpedientes();

    // Names and birth
    void enterNombre();
    void enterNombreAdmision();
    bool ValidaNombre();
    void birthChanged();
    void birthAnswered();

    void employeeFound(int tipoEmpleado);

    PatientType patientType(int prestacion);
    Payer shown() const;
    void accept();
    void acceptAndGoOn();
    void takeBack();
    void setNamesReadOnly(bool readOnly);
    void clearNames();

    StudentStrip student_;
    EmployeeStrip employee_;
    BirthStrip birth_;
    DossierPicker picker_;
    std::function<void(std::optional<int>)> takeDossier_;

    // Queries whose text this panel rebuilds.
    std::unique_ptr<NamedQuery> Expe_;
    std::unique_ptr<NamedQuery> ConsultaAdmision_;

    Service service_;
    Payer found_;  ///< what the look-ups told of the payer so far, beside what the fields show
    std::optional<Payer> accepted_;

    QWidget *panelPaciente_ = nullptr;
    TextField *Edit2_ = nullptr;
    TextField *tipoPaciente_ = nullptr;
    TextField *paterno_ = nullptr;
    TextField *materno_ = nullptr;
    TextField *nombre_ = nullptr;
    QWidget *panelOtros_ = nullptr;  ///< the row of student and employee number
    QWidget *panelDatos_ = nullptr;  ///< the row of birth date and of the employee's data
    QWidget *panelOrigen_ = nullptr;
    QLabel *origen_ = nullptr;
};

}  // namespace kaldo
