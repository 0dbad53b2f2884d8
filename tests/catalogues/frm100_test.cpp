#include "catalogues/frm100_care_centres.h"

#include <gtest/gtest.h>

#include "tests/support/accessibility.h"
#include "tests/support/keys.h"
#include "tests/support/test_station.h"

namespace kaldo::test {
namespace {

const QString kSave = "¿La Información es Correcta?";

class FRM100Test : public ::testing::Test {
protected:
    FRM100Test() { station.logIn("admin"); }

    void open() {
        screen = std::make_unique<FRM100>(station.context);
        screen->open();
        showActive(screen.get());
        grid()->setFocus();
        settle();
    }
    DataGrid *grid() { return child<CataloguePanel>(screen.get(), "Centros")->grid(); }
    Button *button(const char *name) {
        return child<Button>(child<CataloguePanel>(screen.get(), "Centros"), name);
    }
    QVariant stored(const QString &centro, const QString &column) {
        return valueOf(station.clinic(), "select " + column + " from ctroatencion where centro=:c",
                       {{"c", centro}});
    }
    void enter(const QString &text) {
        typeText(text);
        press(Qt::Key_Return);
    }

    TestStation station;
    std::unique_ptr<FRM100> screen;
};

TEST_F(FRM100Test, CentreIsWrittenByKeysAlone) {
    open();
    press(Qt::Key_I, Qt::AltModifier);
    EXPECT_TRUE(button("SpeedButton4")->isEnabled());
    EXPECT_FALSE(button("SpeedButton1")->isEnabled());
    enter("z9");
    EXPECT_TRUE(button("SpeedButton3")->isEnabled());
    enter("clínica nueva");
    enter("calle 5");
    enter("centro");
    enter("6641234567");
    typeText("facultad de odontología");
    press(Qt::Key_Return);
    enter("22000");
    enter("la directora");
    picture(screen.get(), "frm100_insert");
    station.messages.expectConfirmation(kSave, Answer::Yes);
    enter("Centro@Escuela.MX");
    station.messages.verify();
    EXPECT_EQ(stored("Z9", "descr").toString(), "CLÍNICA NUEVA");
    EXPECT_EQ(stored("Z9", "descripcion").toString(), "FACULTAD DE ODONTOLOGÍA");
    EXPECT_EQ(stored("Z9", "cp").toInt(), 22000);
    EXPECT_EQ(stored("Z9", "correoto").toString(), "centro@escuela.mx");
    EXPECT_EQ(stored("Z9", "ciudad").toString(), station.session.Origen.text());
    EXPECT_EQ(station.odonto.CtroAtencion.text("centro"), "Z9");
    EXPECT_FALSE(grid()->rowEdit());
    picture(screen.get(), "frm100");
}

}  // namespace
}  // namespace kaldo::test
