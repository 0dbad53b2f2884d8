#pragma once

#include <QObject>

#include <optional>

#include "app/screen.h"
#include "people/new_admission.h"
#include "toolkit/forms/form.h"

namespace kaldo {

/// Date of birth, age and sex of a patient whose admission is written with the note.
class BirthStrip final : public QObject, public ScreenBase {
    Q_OBJECT

public:
    explicit BirthStrip(Context &context) : ScreenBase(context) {}

    form::Item item();

    /// Not asked, with today's date and no sex.
    void clear();
    void hide();
    /// Shows the strip and goes to the date.
    void ask();

    /// Unset while it isn't asked; its patient type is empty until the date passed its tests.
    const std::optional<Birth> &birth() const { return birth_; }
    Sex sexo() const { return sexo_; }

signals:
    /// The date was left: it passed its tests, or did not.
    void changed();
    /// The sex was chosen, which comes last.
    void answered();

private:
    void leaveNacimiento();

    std::optional<Birth> birth_;
    Sex sexo_ = Sex::Unset;
    QWidget *panel_ = nullptr;
    DateField *fecha_ = nullptr;
    TextField *edad_ = nullptr;
    RadioGroup *RadioGroup2_ = nullptr;
};

}  // namespace kaldo
