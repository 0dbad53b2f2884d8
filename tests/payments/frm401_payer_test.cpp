#include "tests/payments/frm401_fixture.h"

#include "toolkit/forms/data_grid.h"

namespace kaldo {
namespace {

using test::child;
using test::picture;
using test::press;
using test::typeText;

class PaymentNotePayer : public test::PaymentNoteFixture {
protected:
    void typeName(const QString &paterno, const QString &materno, const QString &nombre) {
        for (const QString &name : {paterno, materno, nombre}) {
            typeText(name);
            press(Qt::Key_Return);
        }
    }
};

TEST_F(PaymentNotePayer, EveryWalkInServiceTakesTheNames) {
    open();
    struct Service {
        const char *letters;
        const char *area;
    };
    for (const Service &service : {Service{"OT", "OTR"}, Service{"PG", "PUB"}, Service{"CD", "CUR"},
                                   Service{"MD", "MAE"}, Service{"EX", "EXA"}}) {
        SCOPED_TRACE(service.letters);
        tabTo("ComboBox1", false);
        chooseService(service.letters);
        chooseArea(service.area);
        EXPECT_EQ(focused(), "Paterno");
        EXPECT_EQ(text("Paterno"), "");
        EXPECT_TRUE(child<QLineEdit>(screen.get(), "Edit2")->isReadOnly());
        EXPECT_FALSE(enabled("ConsultarExpedientes"));
        EXPECT_FALSE(enabled("PanelAlumno"));
        typeName("lopez", "", "eva");
        EXPECT_EQ(focused(), "AgregarRegistro");
    }
}

TEST_F(PaymentNotePayer, TheNamesAreRequired) {
    open();
    startAdmission();
    station.messages.expectInformation("Campo Apellido Paterno es Obligatorio.");
    press(Qt::Key_Return);
    EXPECT_EQ(focused(), "Paterno");
    typeText("lopez");
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    EXPECT_EQ(focused(), "Nombre");
    station.messages.expectInformation("Campo Nombre es Obligatorio.");
    press(Qt::Key_Return);
    EXPECT_EQ(focused(), "Nombre");
    EXPECT_FALSE(enabled("AgregarRegistro"));
}

TEST_F(PaymentNotePayer, ARepeatedPatientIsAskedAbout) {
    open();
    startAdmission();
    const QString question =
        "Este paciente ya se encuentra registrado con fecha de nacimiento: 20/04/1985, Nota de "
        "Admisión: 0-0. ¿Desea continuar con la admisión?";
    station.messages.expectConfirmation(question, Answer::No);
    typeName("perez", "lopez", "ana luisa");
    EXPECT_EQ(text("Paterno"), "");
    EXPECT_EQ(focused(), "ComboBox1");
    EXPECT_FALSE(enabled("AgregarRegistro"));

    startAdmission();
    station.messages.expectConfirmation(question, Answer::Yes);
    typeName("perez", "lopez", "ana luisa");
    EXPECT_EQ(focused(), "AgregarRegistro");
}

TEST_F(PaymentNotePayer, ADateOfBirthIsAskedWhereTheAdmissionIsSkipped) {
    station.options.SaltarAdmision = true;
    open();
    startAdmission();
    station.messages.expectConfirmation("¿El alumno viene con el paciente?", Answer::Yes);
    typeName("lopez", "ruiz", "eva");
    EXPECT_TRUE(shown("PanelNacimiento"));
    EXPECT_EQ(focused(), "DateEdit2");
    picture(screen.get(), "payer-birth");

    station.messages.expectInformation("Fecha de nacimiento es campo obligatorio.");
    press(Qt::Key_Return);
    EXPECT_EQ(focused(), "DateEdit2");

    station.messages.expectInformation(
        "La edad del paciente esta fuera de rango, vuelva a intentar.");
    typeText("01/01/1900");
    press(Qt::Key_Return);
    EXPECT_EQ(focused(), "DateEdit2");
    EXPECT_EQ(text("DateEdit2"), "20/11/2024");
    EXPECT_EQ(text("Edad"), "");

    station.messages.expectInformation(
        "La edad del paciente esta fuera de rango, vuelva a intentar.");
    typeText("21/11/2024");
    press(Qt::Key_Return);

    // A date that doesn't exist stays in the field.
    typeText("31/02/2000");
    press(Qt::Key_Return);
    EXPECT_EQ(focused(), "DateEdit2");
    EXPECT_EQ(text("DateEdit2"), "31/02/2000");
    press(Qt::Key_A, Qt::ControlModifier);
    typeText("15/03/2010");
    press(Qt::Key_Return);
    EXPECT_EQ(text("Edad"), "14");
    EXPECT_EQ(focused(), "RadioGroup2_0");
    EXPECT_FALSE(enabled("AgregarRegistro"));
    press(Qt::Key_Space);
    EXPECT_EQ(focused(), "AgregarRegistro");
}

TEST_F(PaymentNotePayer, WithoutTheStudentNoDateIsAsked) {
    station.options.SaltarAdmision = true;
    open();
    startAdmission();
    station.messages.expectConfirmation("¿El alumno viene con el paciente?", Answer::No);
    typeName("lopez", "ruiz", "eva");
    EXPECT_FALSE(shown("PanelNacimiento"));
    EXPECT_EQ(focused(), "AgregarRegistro");
}

TEST_F(PaymentNotePayer, ABusinessHasSevenServicesAndAsksTheDateAtOnce) {
    station.options.SaltarAdmision = true;
    station.options.sector = Sector::Empresarial;
    open();
    EXPECT_EQ(child<QComboBox>(screen.get(), "ComboBox1")->count(), 7);
    startAdmission();
    typeName("lopez", "ruiz", "eva");
    EXPECT_EQ(focused(), "DateEdit2");
    picture(screen.get(), "payer-business");
}

TEST_F(PaymentNotePayer, AStudentIsLookedUpInBothRolls) {
    open();
    chooseService("AL");
    chooseArea("ALU");
    EXPECT_EQ(focused(), "Matricula");
    EXPECT_FALSE(enabled("PanelPaciente"));
    picture(screen.get(), "payer-student");

    station.messages.expectInformation("Campo Matricula es Obligatorio.");
    press(Qt::Key_Return);
    for (const char *nobody : {"99", "5-5", "99999999999", " "}) {
        station.messages.expectInformation(
            "La matrícula no se encuentra registrada o esta capturada incorrectamente, verifique "
            "su información.");
        typeText(nobody);
        press(Qt::Key_Return);
        EXPECT_EQ(text("Matricula"), "") << nobody;
        EXPECT_EQ(focused(), "Matricula");
    }
    station.messages.expectInformation(
        "El Alumno pertenece a la Facultad: FACULTAD DE IDIOMAS. Verifique la información con "
        "Servicios Escolares.");
    typeText("1100010");
    press(Qt::Key_Return);
    EXPECT_EQ(focused(), "Matricula");
    EXPECT_FALSE(enabled("AgregarRegistro"));

    press(Qt::Key_A, Qt::ControlModifier);
    typeText("2200001");
    press(Qt::Key_Return);
    EXPECT_EQ(text("Alumno"), "KURI LOZANO ANDREA");
    EXPECT_EQ(focused(), "AgregarRegistro");

    // Another number must be looked up before lines are added.
    tabTo("Matricula", false);
    press(Qt::Key_A, Qt::ControlModifier);
    typeText("1100002");
    EXPECT_FALSE(enabled("AgregarRegistro"));
    press(Qt::Key_Return);
    EXPECT_EQ(text("Alumno"), "BARRERA LIMON DIEGO");
    EXPECT_EQ(focused(), "AgregarRegistro");

    // A number that is refused doesn't keep the name of the one before.
    tabTo("Matricula", false);
    press(Qt::Key_A, Qt::ControlModifier);
    station.messages.expectInformation(
        "El Alumno pertenece a la Facultad: FACULTAD DE IDIOMAS. Verifique la información con "
        "Servicios Escolares.");
    typeText("1100010");
    press(Qt::Key_Return);
    EXPECT_EQ(text("Alumno"), "");
}

TEST_F(PaymentNotePayer, SeveralRowsOfAStudentAreChosenFrom) {
    open();
    chooseService("AL");
    chooseArea("ALU");
    inDialog(&alumnos, [this] {
        EXPECT_EQ(child<QLabel>(&alumnos, "Label1")->text(),
                  "Se encontraron varios registros de: HINOJOSA PEÑA LUCERO");
        EXPECT_EQ(child<QLineEdit>(&alumnos, "TotalRecibos")->text(), "2");
        EXPECT_EQ(focused(), "Encontrados");
        picture(&alumnos, "students-several");
        press(Qt::Key_Down);
        station.messages.expectWarning(
            "El Alumno pertenece a la Facultad: FACULTAD DE IDIOMAS. Verifique la información con "
            "Servicios Escolares.");
        pressLetter(Qt::Key_M);
        EXPECT_TRUE(alumnos.isVisible());
        press(Qt::Key_Up);
        press(Qt::Key_Return);
    });
    typeText("1100008");
    press(Qt::Key_Return);
    EXPECT_EQ(text("Alumno"), "HINOJOSA PEÑA LUCERO");
    EXPECT_EQ(focused(), "AgregarRegistro");
}

TEST_F(PaymentNotePayer, AStudentWhoLeftCannotBeAssigned) {
    open();
    chooseService("AL");
    chooseArea("ALU");
    inDialog(&alumnos, [this] {
        EXPECT_EQ(child<QLabel>(&alumnos, "Label1")->text(),
                  "Se encontró un registro sin vigencia: INFANTE RUELAS GERARDO");
        EXPECT_FALSE(child<QWidget>(&alumnos, "AsignarMatricula")->isEnabled());
        press(Qt::Key_Return);
        EXPECT_TRUE(alumnos.isVisible());
        press(Qt::Key_Escape);
    });
    typeText("1100009");
    press(Qt::Key_Return);
    EXPECT_EQ(text("Alumno"), "");
    EXPECT_EQ(focused(), "Matricula");
    EXPECT_FALSE(enabled("AgregarRegistro"));
}

TEST_F(PaymentNotePayer, VariousServicesAskForAnEmployeeFirst) {
    for (const char *letters : {"VA", "UE"}) {
        SCOPED_TRACE(letters);
        open();
        station.messages.expectConfirmation("Es empleado?", Answer::Yes);
        chooseService(letters);
        chooseArea(letters == QLatin1String("VA") ? "VAR" : "BIB");
        EXPECT_EQ(focused(), "NoEmpleado");
        for (const char *nobody : {"1003", "7", "", "99999999999"}) {
            station.messages.expectInformation(
                "El empleado no se encuentra vigente. Verifique su información.");
            typeText(nobody);
            press(Qt::Key_Return);
            EXPECT_EQ(text("NoEmpleado"), "");
            EXPECT_EQ(focused(), "NoEmpleado");
        }
        typeText("2001");
        press(Qt::Key_Return);
        EXPECT_EQ(text("NombreEmpleado"), "DOLORES AVILA CAMPOS");
        EXPECT_EQ(labelText("Empleado"), "2001 DOLORES AVILA CAMPOS");
        EXPECT_EQ(labelText("Dependencia"), "3310 FACULTAD DE ODONTOLOGIA");
        EXPECT_EQ(station.caja.Prestaciones1.integer("prestacion"), 5);
        EXPECT_EQ(focused(), "AgregarRegistro");
        picture(screen.get(), "payer-employee");
        // Only the employee who was found pays.
        addLine("1");
        tabTo("NoEmpleado", false);
        typeText("1001");
        EXPECT_FALSE(enabled("Registrar"));
        station.messages.expectInformation(
            "El empleado no se encuentra vigente. Verifique su información.");
        press(Qt::Key_A, Qt::ControlModifier);
        typeText("7");
        press(Qt::Key_Return);
        EXPECT_FALSE(enabled("Registrar"));
        typeText("2001");
        press(Qt::Key_Return);
        EXPECT_TRUE(enabled("Registrar"));
        EXPECT_EQ(focused(), "AgregarRegistro");
        EXPECT_EQ(lines().count(), 1);
        screen.reset();
    }
}

TEST_F(PaymentNotePayer, WhoIsNoEmployeeIsAStudentOrAnyone) {
    open();
    station.messages.expectConfirmation("Es empleado?", Answer::No);
    station.messages.expectConfirmation("Es alumno regular?", Answer::Yes);
    chooseService("VA");
    chooseArea("VAR");
    EXPECT_EQ(focused(), "Matricula");
    screen.reset();
    open();
    station.messages.expectConfirmation("Es empleado?", Answer::No);
    station.messages.expectConfirmation("Es alumno regular?", Answer::No);
    chooseService("VA");
    chooseArea("VAR");
    EXPECT_EQ(focused(), "Paterno");
    typeName("lopez", "ruiz", "eva");
    EXPECT_EQ(focused(), "AgregarRegistro");
}

}  // namespace
}  // namespace kaldo
