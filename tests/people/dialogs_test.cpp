#include <gtest/gtest.h>

#include "people/frm_alumnos_student_choice.h"
#include "people/frm_paciente_patient_type.h"
#include "tests/support/keys.h"
#include "tests/support/test_station.h"

#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

namespace kaldo {
namespace {

using test::child;
using test::keyTarget;
using test::picture;
using test::press;
using test::typeText;

class PeopleDialogs : public ::testing::Test {
protected:
    void inDialog(QDialog *dialog, std::function<void()> strokes) {
        QTimer::singleShot(0, dialog, [dialog, strokes] {
            EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
            test::settle();
            strokes();
            if (dialog->isVisible()) {
                dialog->reject();
            }
        });
    }
    static std::string focused() { return keyTarget()->objectName().toStdString(); }

    test::TestStation station;
};

TEST_F(PeopleDialogs, ThePlainPatientGoesOnAtOnce) {
    FRMPaciente dialog(station.context);
    inDialog(&dialog, [&] {
        EXPECT_EQ(focused(), "Paciente");
        EXPECT_FALSE(child<QWidget>(&dialog, "Continuar")->isEnabled());
        typeText("PACIENTE G");
        press(Qt::Key_Return);
        EXPECT_EQ(focused(), "Continuar");
        EXPECT_FALSE(child<QWidget>(&dialog, "PanelEmpleado")->isVisible());
        // A class that is taken back is none.
        press(Qt::Key_Tab);
        press(Qt::Key_Backspace);
        EXPECT_FALSE(child<QWidget>(&dialog, "Continuar")->isEnabled());
        typeText("PACIENTE G");
        press(Qt::Key_Return);
        press(Qt::Key_Return);
    });
    const auto chosen = dialog.choose(nullptr);
    ASSERT_TRUE(chosen);
    EXPECT_EQ(chosen->prestacion, 1);
    EXPECT_EQ(chosen->descripcion.toStdString(), "PACIENTE GENERAL");
}

TEST_F(PeopleDialogs, RegresarAndEscapeLeaveWithoutAClass) {
    for (const bool escape : {false, true}) {
        FRMPaciente dialog(station.context);
        inDialog(&dialog, [&] {
            typeText("PACIENTE G");
            press(Qt::Key_Return);
            if (!escape) {
                child<QWidget>(&dialog, "Regresar")->setFocus();
            }
            press(escape ? Qt::Key_Escape : Qt::Key_Space);
            EXPECT_FALSE(dialog.isVisible());
        });
        EXPECT_FALSE(dialog.choose(nullptr));
    }
}

TEST_F(PeopleDialogs, ABenefitNeedsACurrentEmployee) {
    FRMPaciente dialog(station.context);
    inDialog(&dialog, [&] {
        typeText("EMPLEADO AC");
        press(Qt::Key_Return);
        EXPECT_EQ(focused(), "NoEmpleado");
        station.messages.expectInformation("EMPLEADO NO VIGENTE. ");
        typeText("2003");
        press(Qt::Key_Return);
        EXPECT_EQ(focused(), "NoEmpleado");
        EXPECT_FALSE(child<QWidget>(&dialog, "Continuar")->isEnabled());
        station.messages.expectInformation(". ");
        typeText("9");
        press(Qt::Key_Return);
        typeText("2001");
        press(Qt::Key_Return);
        EXPECT_EQ(child<QLabel>(&dialog, "Dependencia")->text().toStdString(),
                  "3310 FACULTAD DE ODONTOLOGIA");
        picture(&dialog, "patient-type");
        EXPECT_EQ(focused(), "Continuar");
        press(Qt::Key_Return);
    });
    const auto chosen = dialog.choose(nullptr);
    ASSERT_TRUE(chosen);
    EXPECT_EQ(chosen->prestacion, 5);
    EXPECT_EQ(chosen->numEmpleado.toStdString(), "2001");
    EXPECT_EQ(chosen->nombre.toStdString(), "DOLORES AVILA CAMPOS");

    // The next one finds it empty again, and leaving it chooses nobody.
    inDialog(&dialog, [&] {
        EXPECT_EQ(child<QLineEdit>(&dialog, "Paciente")->text().toStdString(), "");
        EXPECT_FALSE(child<QWidget>(&dialog, "Continuar")->isEnabled());
        press(Qt::Key_Escape);
    });
    EXPECT_FALSE(dialog.choose(nullptr));
}

TEST_F(PeopleDialogs, OnlyTheActiveRowOfTheSchoolIsAssigned) {
    test::run(station.conexion.FBEscolares,
              "update padron set vigencia_clave=2, vigencia_desc='BAJA TEMPORAL', unidad_clave=100 "
              "where matricula=1100008 and programa_clave=9");
    FRMAlumnos dialog(station.context);
    station.escolares.MatriculaPadron.open({{"P_MATRICULA", 1100008}});
    inDialog(&dialog, [&] {
        QWidget *assign = child<QWidget>(&dialog, "AsignarMatricula");
        EXPECT_TRUE(assign->isEnabled());
        press(Qt::Key_Down);
        EXPECT_FALSE(assign->isEnabled());
        press(Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible());
        press(Qt::Key_Up);
        EXPECT_TRUE(assign->isEnabled());
        picture(&dialog, "students");
        press(Qt::Key_Return);
    });
    const auto chosen = dialog.choose("Se encontraron varios registros de: X", nullptr);
    ASSERT_TRUE(chosen);
    EXPECT_EQ(chosen->toStdString(), "HINOJOSA PEÑA LUCERO");
}

}  // namespace
}  // namespace kaldo
