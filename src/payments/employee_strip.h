#pragma once

#include <QObject>

#include "app/screen.h"
#include "toolkit/forms/form.h"

namespace kaldo {

/// The employee who pays, or whose benefit the payer has.
struct PayingEmployee {
    int numEmpleado = 0;  ///< 0 for none
    QString empleado;     ///< number, blank, name
    QString dependencia;
};

/// "No. Empleado" of a walk-in payer, and the strip that names the employee behind a note.
class EmployeeStrip final : public QObject, public ScreenBase {
    Q_OBJECT

public:
    explicit EmployeeStrip(Context &context) : ScreenBase(context) {}

    form::Item numberItem();
    form::Item benefitItem();
    /// To be called once the form is built.
    void attach();

    /// Nobody: number and names empty, the strips hidden.
    void clear();
    /// No number is asked.
    void close() { panelNoEmpleado_->setVisible(false); }
    /// Shows the number strip and goes to it.
    void ask();
    /// `LimpiaEmpleado`: forgets the employee, while a typed number stays.
    void forget();
    void show(const PayingEmployee &employee);

    const PayingEmployee &employee() const { return employee_; }
    QString noEmpleado() const { return noEmpleado_->text(); }
    QString nombre() const { return nombreEmpleado_->text(); }

signals:
    void edited();
    /// The number is a current employee's; `tipoEmpleado` is his kind.
    void found(int tipoEmpleado);
    void refused();

private:
    void buscarEmpleado();

    PayingEmployee employee_;
    QWidget *panelNoEmpleado_ = nullptr;
    TextField *noEmpleado_ = nullptr;
    TextField *nombreEmpleado_ = nullptr;
    QWidget *panelEmpleado_ = nullptr;
    QLabel *empleado_ = nullptr;
    QLabel *dependencia_ = nullptr;
};

}  // namespace kaldo
