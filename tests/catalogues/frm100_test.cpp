#include "catalogues/frm100_care_centres.h"

#include "tests/catalogues/catalogue_test.h"

namespace kaldo::test {
namespace {

class FRM100Test : public CatalogueTest<FRM100> {
protected:
    QString panelName() const override { return "Centros"; }
    QVariant stored(const QString &centro, const QString &column) {
        return inClinic("select " + column + " from ctroatencion where centro=:c", {{"c", centro}});
    }
};

TEST_F(FRM100Test, CentreIsWrittenByKeysAlone) {
    open();
    alt(Qt::Key_I);
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
    answer(kSave);
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
