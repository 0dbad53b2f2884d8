#include "tests/payments/frm401_fixture.h"

namespace kaldo {
namespace {

using test::picture;
using test::press;
using test::typeText;

class PaymentNote : public test::PaymentNoteFixture {};

TEST_F(PaymentNote, AnAdmissionIsWrittenWithTheKeyboardAlone) {
    open();
    picture(screen.get(), "note-01-fresh");
    EXPECT_EQ(labelText("Cajero"), "FERNANDA OCHOA");
    EXPECT_EQ(labelText("Centro"), "Clinica de licenciatura valle norte");
    EXPECT_EQ(labelText("Turno"), "Matutino");
    EXPECT_EQ(labelText("Caja"), "1");
    EXPECT_EQ(text("Edit1"), "1");
    EXPECT_EQ(text("DateEdit1"), "20/11/2024");

    chooseService("AD");
    chooseArea("ADM");
    picture(screen.get(), "note-02-names");
    EXPECT_EQ(focused(), "Paterno");
    typeText("peralta");
    press(Qt::Key_Return);
    typeText("ruiz");
    press(Qt::Key_Return);
    typeText("marta");
    press(Qt::Key_Return);
    EXPECT_EQ(focused(), "AgregarRegistro");
    press(Qt::Key_Return);
    picture(screen.get(), "note-03-row-open");
    typeText("2");
    picture(screen.get(), "note-04-key-typed");
    press(Qt::Key_Return);
    picture(screen.get(), "note-05-key-taken");
    EXPECT_EQ(lines().text("DESCRIPCION"), "ADMISION DE URGENCIA");
    press(Qt::Key_Return);
    typeText("3");
    press(Qt::Key_Return);
    picture(screen.get(), "note-06-line-saved");
    EXPECT_EQ(focused(), "AgregarRegistro");
    EXPECT_EQ(text("CEdit3"), "$600.00");
    addLine("1");
    EXPECT_EQ(text("CEdit3"), "$750.00");
    EXPECT_TRUE(enabled("Registrar"));
    EXPECT_FALSE(enabled("ComboBox1"));
}

}  // namespace
}  // namespace kaldo
