#include "payments/birth_strip.h"

#include "people/age.h"

namespace kaldo {

namespace {

constexpr int kOldestPatient = 100;
constexpr int kOldestChild = 13;

}  // namespace

form::Item BirthStrip::item() {
    using namespace form;
    return strip(&panel_, QStringLiteral("PanelNacimiento"),
                 {date(&fecha_, QStringLiteral("DateEdit2"), QStringLiteral("Fec. de Nacimiento"))
                      .leave([this] { leaveNacimiento(); }),
                  text(&edad_, QStringLiteral("Edad"), QStringLiteral("Edad")).width(3).readOnly(),
                  label(QStringLiteral("Sexo")),
                  radio(&RadioGroup2_, QStringLiteral("RadioGroup2"), QString())
                      .accessible(QStringLiteral("Sexo"))
                      .options({QStringLiteral("Femenino"), QStringLiteral("Masculino")})
                      .clicked([this](int index) {
                          sexo_ = index == 0 ? Sex::Femenino : Sex::Masculino;
                          emit answered();
                      }),
                  stretch()})
        .grow();
}

void BirthStrip::clear() {
    hide();
    fecha_->setDate(context().clock.today());
    // The age of nobody yet: a date left at today is asked for.
    edad_->setText(QStringLiteral("0"));
    RadioGroup2_->setIndex(-1);
    sexo_ = Sex::Unset;
}

void BirthStrip::hide() {
    birth_.reset();
    panel_->setVisible(false);
}

void BirthStrip::ask() {
    if (!birth_) {
        birth_ = Birth{};
    }
    panel_->setVisible(true);
    moveFocus(fecha_);
}

void BirthStrip::leaveNacimiento() {
    const QDate today = context().clock.today();
    const QDate date = fecha_->date();
    birth_ = Birth{};
    if (edad_->text() == QLatin1String("0") && date == today) {
        messages().information(QStringLiteral("Fecha de nacimiento es campo obligatorio."));
        moveFocus(fecha_);
    } else if (!date.isValid() || !birthDatePlausible(date, today, kOldestPatient)) {
        messages().information(
            QStringLiteral("La edad del paciente esta fuera de rango, vuelva a intentar."));
        edad_->clear();
        fecha_->setDate(today);
        moveFocus(fecha_);
    } else {
        const int age = ageInYears(date, today);
        edad_->setText(QString::number(age));
        birth_ = Birth{date, age, tipoPacienteOf(age, kOldestChild)};
        moveFocus(RadioGroup2_);
    }
    emit changed();
}

}  // namespace kaldo
