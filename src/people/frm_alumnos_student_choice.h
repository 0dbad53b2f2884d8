#pragma once

#include <optional>

#include "app/screen.h"

class QLabel;

namespace kaldo {

class Button;
class DataGrid;
class TextField;

/// "Datos Alumno": one student stands several times, or without currency, in the student register,
/// and the user says which row counts. Works over the rows on which `MatriculaPadron` stands open.
class FRMAlumnos final : public Dialog {
    Q_OBJECT

public:
    explicit FRMAlumnos(Context &context);

    /// Shows `heading` over the rows. The whole name of the student in capitals, unset when the
    /// dialog was closed without an assignment.
    std::optional<QString> choose(const QString &heading, ScreenBase *opener);

    void activated() override;

protected:
    void build() override;

private:
    void rowChosen();
    void asignarMatricula();

    QString heading_;
    std::optional<QString> alumno_;

    QLabel *headingLabel_ = nullptr;
    DataGrid *grid_ = nullptr;
    TextField *total_ = nullptr;
    Button *asignar_ = nullptr;
    Button *cerrar_ = nullptr;
};

}  // namespace kaldo
