#include "tests/payments/frm401_fixture.h"

#include "toolkit/forms/data_grid.h"

#include <QKeyEvent>

#include <limits>

namespace kaldo {
namespace {

using test::child;
using test::kRegistered;
using test::press;
using test::typeText;

/// A cashier with a queue: goes back, changes his mind, types ahead of the screen.
class PaymentNoteHaste : public test::PaymentNoteFixture {
protected:
    void write(const QStringList &texts) {
        for (const QString &one : texts) {
            typeText(one);
            press(Qt::Key_Return);
        }
    }
    /// Strokes that come faster than the event loop turns: none waits for the one before. "\n" is
    /// Enter.
    static void rush(const QString &strokes) {
        for (const QChar character : strokes) {
            const bool enter = character == u'\n';
            const int key = enter ? int(Qt::Key_Return) : int(character.toUpper().unicode());
            for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
                QKeyEvent event(type, key, Qt::NoModifier, enter ? QString() : QString(character));
                QApplication::sendEvent(test::keyTarget(), &event);
            }
        }
    }
    int notes() {
        return test::valueOf(station.clinic(), "select count(*) from registrovtas where num_caja=1")
            .toInt();
    }
    QString column() const { return child<DataGrid>(screen.get(), "Detalle")->currentField(); }
};

TEST_F(PaymentNoteHaste, StrokesTypedAheadReachTheFieldsTheyWereMeantFor) {
    open();
    rush("ad\nadm\n");
    rush("peralta\nruiz\nmarta\n");
    rush("\n2\n\n3\n");
    test::settle();
    EXPECT_EQ(text("Paterno"), "PERALTA");
    EXPECT_EQ(text("Materno"), "RUIZ");
    EXPECT_EQ(text("Nombre"), "MARTA");
    ASSERT_EQ(lines().count(), 1);
    EXPECT_EQ(lines().text("DESCRIPCION"), "ADMISION DE URGENCIA");
    EXPECT_EQ(lines().integer("CANT"), 3);
    EXPECT_EQ(text("CEdit3"), "$600.00");
    EXPECT_EQ(focused(), "AgregarRegistro");
    EXPECT_EQ(notes(), 0);
}

TEST_F(PaymentNoteHaste, AServiceLeftByTabForgetsTheAreaOfTheOneBefore) {
    open();
    startAdmission();
    tabTo("ComboBox1", false);
    QTest::qWait(QApplication::keyboardInputInterval() + 50);
    typeText("OT");
    press(Qt::Key_Tab);
    EXPECT_EQ(text("ComboBox2"), "");
    EXPECT_EQ(focused(), "ComboBox2");
    EXPECT_FALSE(enabled("PanelPaciente"));
    chooseArea("OTR");
    EXPECT_EQ(focused(), "Paterno");
}

TEST_F(PaymentNoteHaste, AServiceChangedByArrowsCountsBeforeALineIsAdded) {
    open();
    startAdmission();
    write({"peralta", "ruiz", "marta"});
    tabTo("ComboBox1", false);
    press(Qt::Key_Down);
    press(Qt::Key_Insert);
    // Another service: nobody is identified for it.
    EXPECT_EQ(lines().count(), 0);
    EXPECT_FALSE(enabled("AgregarRegistro"));
    EXPECT_EQ(text("Paterno"), "");
    EXPECT_EQ(focused(), "ComboBox2");
}

TEST_F(PaymentNoteHaste, AnotherAreaAsksForThePayerAgain) {
    open();
    chooseService("AP");
    chooseArea("RADIO");
    station.messages.expectConfirmation(
        "Desea usar la información seleccionada de RICARDO NUÑEZ ARAGON ?", Answer::Yes);
    write({"2/24", "1100002"});
    EXPECT_TRUE(enabled("AgregarRegistro"));
    // An area that is taken back is none.
    tabTo("ComboBox2", false);
    press(Qt::Key_Backspace);
    press(Qt::Key_Tab);
    EXPECT_EQ(text("ComboBox2"), "");
    EXPECT_FALSE(enabled("AgregarRegistro"));
    tabTo("ComboBox2", false);
    typeText("ADUL");
    press(Qt::Key_Return);
    EXPECT_EQ(focused(), "ComboBox3");
    press(Qt::Key_Insert);
    EXPECT_EQ(lines().count(), 0);
    choosePlace("CLINICA INT");
    EXPECT_EQ(focused(), "Edit2");
    // Neither the area nor the student of before lead to the lines.
    EXPECT_FALSE(enabled("AgregarRegistro"));
    EXPECT_FALSE(enabled("Matricula"));
}

TEST_F(PaymentNoteHaste, OnlyTheDossierThatWasTakenIsCharged) {
    open();
    chooseService("AP");
    chooseArea("RADIO");
    station.messages.expectConfirmation(
        "Desea usar la información seleccionada de RICARDO NUÑEZ ARAGON ?", Answer::Yes);
    write({"2/24", "1100002"});
    addLine("1");
    tabTo("Edit2", false);
    typeText("1/24");
    EXPECT_FALSE(enabled("AgregarRegistro"));
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_FALSE(formaPago.isVisible());
    // The number typed back brings the note back.
    tabTo("Edit2", false);
    press(Qt::Key_A, Qt::ControlModifier);
    typeText("00002/24");
    EXPECT_TRUE(enabled("Registrar"));
    EXPECT_EQ(lines().count(), 1);
    // Nor is a student charged who was never looked up, or who was refused.
    tabTo("Matricula");
    press(Qt::Key_A, Qt::ControlModifier);
    typeText("1100003");
    EXPECT_FALSE(enabled("Registrar"));
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_FALSE(formaPago.isVisible());
    station.messages.expectInformation(
        "El Alumno pertenece a la Facultad: FACULTAD DE IDIOMAS. Verifique la información con "
        "Servicios Escolares.");
    press(Qt::Key_A, Qt::ControlModifier);
    typeText("1100010");
    press(Qt::Key_Return);
    EXPECT_FALSE(enabled("Registrar"));
    EXPECT_FALSE(enabled("AgregarRegistro"));
    typeText("1100003");  // the number that was refused stands selected
    press(Qt::Key_Return);
    EXPECT_EQ(text("Matricula"), "1100003");
    EXPECT_TRUE(enabled("Registrar"));
    // The student doesn't bring a dossier along that was typed over.
    tabTo("Edit2", false);
    press(Qt::Key_A, Qt::ControlModifier);
    typeText("00001/24");
    tabTo("Matricula");
    press(Qt::Key_Return);
    EXPECT_EQ(focused(), "Edit2");
    EXPECT_FALSE(enabled("Registrar"));
    press(Qt::Key_A, Qt::ControlModifier);
    typeText("00002/24");
    tabTo("Matricula");
    press(Qt::Key_Return);
    EXPECT_TRUE(enabled("Registrar"));
    // A programme that is no number is told before anything is paid.
    test::run(station.conexion.FBLocal, "update detallevtas set prog='12-'");
    lines().reopen();
    station.messages.expectConfirmation("¿Desea borrar este concepto?", Answer::No);
    press(Qt::Key_Delete, Qt::ControlModifier);
    station.messages.expectError("El programa del concepto «12-» no es un número.");
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_FALSE(formaPago.isVisible());
    EXPECT_EQ(lines().count(), 1);
    EXPECT_TRUE(enabled("Registrar"));
    // The list that is left takes the number off, and the note with it.
    tabTo("Edit2", false);
    press(Qt::Key_F5);
    press(Qt::Key_Escape);
    EXPECT_EQ(text("Edit2"), "");
    EXPECT_FALSE(enabled("Registrar"));
    EXPECT_EQ(lines().count(), 1);
}

TEST_F(PaymentNoteHaste, AnEmployeeWhoIsNoneAfterAllPaysUnderHisNames) {
    open();
    station.messages.expectConfirmation("Es empleado?", Answer::Yes);
    chooseService("VA");
    chooseArea("VAR");
    write({"2001"});
    EXPECT_EQ(focused(), "AgregarRegistro");
    tabTo("ComboBox2", false);
    station.messages.expectConfirmation("Es empleado?", Answer::No);
    station.messages.expectConfirmation("Es alumno regular?", Answer::No);
    press(Qt::Key_F4);
    press(Qt::Key_Return);
    EXPECT_EQ(focused(), "Paterno");
    EXPECT_FALSE(shown("PanelEmpleado"));
    write({"lopez", "ruiz", "eva"});
    // An employee once more, and no one again: neither keeps the other's names.
    tabTo("ComboBox2", false);
    station.messages.expectConfirmation("Es empleado?", Answer::Yes);
    press(Qt::Key_F4);
    press(Qt::Key_Return);
    EXPECT_EQ(text("Paterno") + text("Materno") + text("Nombre"), "");
    tabTo("ComboBox2", false);
    station.messages.expectConfirmation("Es empleado?", Answer::No);
    station.messages.expectConfirmation("Es alumno regular?", Answer::No);
    press(Qt::Key_F4);
    press(Qt::Key_Return);
    write({"lopez", "ruiz", "eva"});
    addLine("1");
    inDialog(&formaPago, [] {
        typeText("5000");
        press(Qt::Key_Return);
        press(Qt::Key_Return);
    });
    station.messages.expectInformation(kRegistered);
    press(Qt::Key_Return, Qt::ControlModifier);
    const QList<QVariantList> stored = test::rowsOf(
        station.clinic(),
        "select paciente, nombre, num_empl from pagos_odontologia where num_caja=1 and nota_vta=1");
    ASSERT_EQ(stored.size(), 1);
    EXPECT_EQ(stored[0][0].toString(), "LOPEZ RUIZ EVA");
    EXPECT_EQ(stored[0][1].toString(), "EVA");
    EXPECT_EQ(stored[0][2].toInt(), 0);
}

TEST_F(PaymentNoteHaste, AnOpenRowIsGoneOnWithAfterTheNamesWereMended) {
    open();
    chooseService("PG");
    chooseArea("PUB");
    write({"lopez", "ruiz", "eva"});
    press(Qt::Key_Return);
    child<QWidget>(screen.get(), "Nombre")->setFocus();  // by the mouse: Tab stays in the row
    press(Qt::Key_A, Qt::ControlModifier);
    write({"eva maria"});
    EXPECT_EQ(focused(), "Detalle");
    EXPECT_FALSE(enabled("AgregarRegistro"));
    EXPECT_EQ(lines().count(), 1);
    write({"1", "", "2"});
    EXPECT_EQ(lines().count(), 1);
    EXPECT_EQ(focused(), "AgregarRegistro");
}

TEST_F(PaymentNoteHaste, NamesThatAreEmptiedAfterTheFirstLineStopTheNote) {
    open();
    startAdmission();
    write({"peralta", "ruiz", "marta"});
    addLine("1");
    for (const char *name : {"Paterno", "Nombre"}) {
        tabTo(name, false);
        press(Qt::Key_A, Qt::ControlModifier);
        press(Qt::Key_Delete);
        EXPECT_FALSE(enabled("Registrar")) << name;
    }
    tabTo("Nombre", false);
    station.messages.expectInformation("Campo Apellido Paterno es Obligatorio.");
    press(Qt::Key_Return);
    EXPECT_EQ(focused(), "Paterno");
    // Another patient passes the question for those who were admitted before.
    write({"perez", "lopez"});
    station.messages.expectConfirmation(
        "Este paciente ya se encuentra registrado con fecha de nacimiento: 20/04/1985, Nota de "
        "Admisión: 0-0. ¿Desea continuar con la admisión?",
        Answer::Yes);
    write({"ana luisa"});
    EXPECT_TRUE(enabled("Registrar"));
}

TEST_F(PaymentNoteHaste, ANoteOfAStudentTakesNoPatientTypeOfTheNoteBefore) {
    open();
    station.messages.expectConfirmation("Es empleado?", Answer::Yes);
    chooseService("VA");
    chooseArea("VAR");
    write({"2001"});
    tabTo("ComboBox1", false);
    chooseService("AL");
    chooseArea("ALU");
    write({"2200001"});
    addLine("1");
    inDialog(&formaPago, [] {
        typeText("5000");
        press(Qt::Key_Return);
        press(Qt::Key_Return);
    });
    station.messages.expectInformation(kRegistered);
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(
        test::valueOf(station.clinic(), "select prestacion from pagos_odontologia where num_caja=1")
            .toInt(),
        1);
    EXPECT_TRUE(station.frame.notices.last().startsWith("Cambio de la nota 1-1: $"));
}

TEST_F(PaymentNoteHaste, ANoteThatNobodyRegisteredIsNotDroppedUnasked) {
    open();
    startAdmission();
    write({"peralta", "ruiz", "marta"});
    addLine("1");
    const QString question =
        "La nota tiene conceptos que no se han registrado y se perderán. ¿Desea cerrarla?";
    station.messages.expectConfirmation(question, Answer::No);
    EXPECT_FALSE(screen->close());
    EXPECT_EQ(lines().count(), 1);
    // After the repair, which moves the counter, the open note has the number that is free.
    test::run(station.clinic(), "update datoscaja set nota_vta=7 where num_caja=1");
    screen->activated();
    EXPECT_EQ(text("Edit1"), "7");
    station.messages.expectConfirmation(question, Answer::Yes);
    EXPECT_TRUE(screen->close());
}

TEST_F(PaymentNoteHaste, ALineIsNeverSavedWithoutTheConceptItShows) {
    open();
    chooseService("PG");
    chooseArea("PUB");
    write({"lopez", "ruiz", "eva"});
    // Past the key by the arrow: the price alone saves nothing.
    press(Qt::Key_Return);
    for (int column = 0; column < 3; ++column) {
        press(Qt::Key_Right);
    }
    write({"75"});
    EXPECT_FALSE(lines().isNull("CODIGO"));
    EXPECT_EQ(lines().state(), NamedQuery::State::Inserting);
    pressLetter(Qt::Key_N);

    // Another key typed over the first, and saved by the button.
    press(Qt::Key_Return);
    write({"1"});
    press(Qt::Key_Left);
    typeText("2");
    pressLetter(Qt::Key_I);
    const QVariant second = test::valueOf(
        station.clinic(), "select codigo from listaprecios where tipo_prod=6 and cve_prod=2");
    EXPECT_EQ(lines().integer("CODIGO"), second.toInt());
    EXPECT_EQ(column(), "DESCRIPCION");
    write({"", "1"});
    EXPECT_EQ(
        test::valueOf(station.conexion.FBLocal, "select codigo from detallevtas where cve_prod=2"),
        second);
}

TEST_F(PaymentNoteHaste, WithoutItsDossierANoteOfTheClinicIsNotReady) {
    station.options.sector = Sector::Institucional;
    open();
    chooseService("AP");
    chooseArea("RADIO");
    const QString question = "Desea usar la información seleccionada de ANA LUISA PEREZ LOPEZ ?";
    station.messages.expectConfirmation(question, Answer::Yes);
    write({"1/24"});
    addLine("1");
    addLine("2");
    tabTo("Edit2", false);
    station.messages.expectConfirmation(question, Answer::No);
    press(Qt::Key_Return);
    EXPECT_FALSE(enabled("Registrar"));
    station.messages.expectConfirmation("¿Desea borrar este concepto?", Answer::Yes);
    tabTo("BorrarRegistro");
    press(Qt::Key_Return);
    EXPECT_FALSE(enabled("Registrar"));
    EXPECT_FALSE(enabled("AgregarRegistro"));
    tabTo("Edit2", false);
    station.messages.expectConfirmation(question, Answer::Yes);
    write({"1/24"});
    EXPECT_FALSE(enabled("BorrarRegistro"));
    EXPECT_TRUE(enabled("AgregarRegistro"));
}

TEST_F(PaymentNoteHaste, TheModeInForceChosenAgainKeepsTheNote) {
    open();
    startAdmission();
    write({"peralta", "ruiz", "marta"});
    addLine("1");
    tabTo("RadioGroup1_0", false);
    press(Qt::Key_Space);
    EXPECT_EQ(lines().count(), 1);
    EXPECT_EQ(text("Paterno"), "PERALTA");
    EXPECT_TRUE(enabled("Registrar"));
}

TEST_F(PaymentNoteHaste, TheLastNumberThatCanBeCountedIsRefusedBeforeAnythingIsWritten) {
    test::run(station.clinic(), "update datoscaja set nota_vta=2147483647 where num_caja=1");
    open();
    EXPECT_EQ(text("Edit1"), "2147483647");
    startAdmission();
    write({"peralta", "ruiz", "marta"});
    addLine("1");
    station.messages.expectWarning(
        "La caja llegó a la última nota posible, 2147483647. Corrija la numeración en Datos Caja "
        "antes de registrar.");
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(notes(), 0);
    EXPECT_EQ(lines().count(), 1);
    EXPECT_TRUE(enabled("Registrar"));
}

TEST_F(PaymentNoteHaste, ADeskWithoutANumberRegistersNothing) {
    test::run(station.clinic(), "delete from datoscaja where num_caja=1");
    open();
    EXPECT_EQ(text("Edit1"), "");
    startAdmission();
    write({"peralta", "ruiz", "marta"});
    addLine("1");
    station.messages.expectError("La caja no tiene un número de nota válido.");
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(notes(), 0);
    EXPECT_EQ(lines().count(), 1);
}

TEST_F(PaymentNoteHaste, ADateOfBirthIsLookedAtBeforeTheNoteIsPaid) {
    station.options.SaltarAdmision = true;
    station.options.sector = Sector::Empresarial;
    open();
    startAdmission();
    write({"peralta", "ruiz", "marta", "15/03/2010"});
    press(Qt::Key_Space);
    addLine("1");
    tabTo("DateEdit2", false);
    press(Qt::Key_A, Qt::ControlModifier);
    typeText("15/03/1980");
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(text("Edad"), "44");
    EXPECT_FALSE(formaPago.isVisible());
    station.messages.expectInformation(
        "La edad del paciente esta fuera de rango, vuelva a intentar.");
    tabTo("DateEdit2", false);
    press(Qt::Key_A, Qt::ControlModifier);
    typeText("21/11/2024");
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(focused(), "DateEdit2");
    EXPECT_FALSE(formaPago.isVisible());
}

TEST_F(PaymentNoteHaste, NamesOfAnySpellingArriveAsTyped) {
    open();
    int nota = 0;
    for (const QStringList &name :
         {QStringList{"O\"HARA", "50%", "D'ARTAGNAN"},
          QStringList{"_", QString::fromUtf8("ИВАНОВА"), QString::fromUtf8("漢字")}}) {
        startAdmission();
        write(name);
        EXPECT_EQ(focused(), "AgregarRegistro");
        addLine("1");
        inDialog(&formaPago, [] {
            typeText("150");
            press(Qt::Key_Return);
            press(Qt::Key_Return);
        });
        station.messages.expectInformation(kRegistered);
        press(Qt::Key_Return, Qt::ControlModifier);
        const QList<QVariantList> stored = test::rowsOf(
            station.clinic(),
            "select paterno, materno, nombre from pagos_odontologia where num_caja=1 and "
            "nota_vta=:n",
            {{"n", ++nota}});
        ASSERT_EQ(stored.size(), 1);
        EXPECT_EQ((QStringList{stored[0][0].toString(), stored[0][1].toString(),
                               stored[0][2].toString()}),
                  name);
    }
}

TEST_F(PaymentNoteHaste, AHalfWrittenNoteIsGoneWithItsScreen) {
    open();
    startAdmission();
    write({"peralta", "ruiz", "marta"});
    addLine("1");
    press(Qt::Key_Return);
    typeText("2");
    station.messages.expectConfirmation(
        "La nota tiene conceptos que no se han registrado y se perderán. ¿Desea cerrarla?",
        Answer::Yes);
    screen->close();
    screen.reset();
    serviceChosen = false;
    open("cajero3");
    EXPECT_EQ(lines().count(), 0);
    EXPECT_EQ(labelText("Caja"), std::to_string(int(station.session.NumCaja)));
    EXPECT_NE(station.session.NumCaja, 1);
    EXPECT_EQ(text("CEdit3"), "$0.00");
    EXPECT_TRUE(enabled("ComboBox1"));
    EXPECT_EQ(notes(), 0);
}

}  // namespace
}  // namespace kaldo
