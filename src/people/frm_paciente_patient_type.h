#pragma once

#include <optional>

#include "app/screen.h"

class QLabel;

namespace kaldo {

class Button;
class LookupField;
class TextField;

/// The class that a patient pays as, and the employee whose benefit it is.
struct PatientClass {
    int prestacion = 0;
    QString descripcion;
    QString numEmpleado;  ///< text of "No.Empleado", empty for the plain patient
    QString nombre;
};

/// "Tipo de Paciente": asks for the patient's class when a dossier is imported or opened, and
/// checks the employee against the personnel data.
class FRMPaciente final : public Dialog {
    Q_OBJECT

public:
    explicit FRMPaciente(Context &context);

    /// Unset when the dialog was closed without "Continuar >>".
    std::optional<PatientClass> choose(ScreenBase *opener);

    void activated() override;

protected:
    void build() override;

private:
    void elegirTipo();
    void consultarEmpleado();
    void continuar();
    void showEmployeePanel(bool show);

    bool continuar_ = false;

    LookupField *paciente_ = nullptr;
    QWidget *panelEmpleado_ = nullptr;
    TextField *noEmpleado_ = nullptr;
    TextField *nombre_ = nullptr;
    QWidget *panelDependencia_ = nullptr;
    QLabel *dependencia_ = nullptr;
    Button *boton_ = nullptr;
};

}  // namespace kaldo
