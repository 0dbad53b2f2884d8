#pragma once

#include <QObject>

#include "app/screen.h"
#include "toolkit/forms/form.h"

namespace kaldo {

class FRMAlumnos;

/// "Matricula" and "Alumno": the student who is looked up in the rolls.
class StudentStrip final : public QObject, public ScreenBase {
    Q_OBJECT

public:
    StudentStrip(Context &context, FRMAlumnos &alumnos) : ScreenBase(context), alumnos_(alumnos) {}

    form::Item item();

    /// Empty and closed; where students come with the patients it stays visible.
    void clear();
    void setOpen(bool open) { panel_->setEnabled(open); }
    /// Shows the strip, open, and goes to the number.
    void ask();
    void show(const QString &matricula, const QString &alumno);

    QString matricula() const { return matricula_->text(); }
    QString alumno() const { return alumno_->text(); }

signals:
    /// The number is typed over: whoever was accepted isn't any more.
    void edited();
    void found();
    /// The number is nobody's who may be charged here.
    void refused();

private:
    void buscarAlumno();
    void buscarPosgrado();
    void elegirAlumno(const QString &heading);
    void take(const QString &alumno);

    FRMAlumnos &alumnos_;
    QWidget *panel_ = nullptr;
    TextField *matricula_ = nullptr;
    TextField *alumno_ = nullptr;
};

}  // namespace kaldo
