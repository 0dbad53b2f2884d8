#include "catalogues/frm101_clinics.h"

#include "tests/catalogues/catalogue_test.h"

namespace kaldo::test {
namespace {

const QString kCorrect = "La información es correcta?";
const QString kRemoveRecord = "Desea borrar este registro?";

class FRM101Test : public CatalogueTest<FRM101> {
protected:
    QString panelName() const override { return "Clinicas"; }
    QVariant stored(const QString &area, const QString &column) {
        return inClinic(
            "select " + column + " from areatencion where centro='01' and tipo_prod=4 and area=:a",
            {{"a", area}});
    }
    void choose(const char *field, const QString &text) {
        child<LookupField>(screen.get(), field)->setFocus();
        child<LookupField>(screen.get(), field)->selectAll();
        settle();
        enter(text);
    }
    void openAdults() {
        open();
        choose("CentroAtencion", "CLINICA DE LIC");
        enter("ADULTOS");
    }
};

TEST_F(FRM101Test, ClinicsBelongToACentreAndAService) {
    open();
    EXPECT_FALSE(button("SpeedButton1")->isEnabled());
    EXPECT_TRUE(station.frame.disabledEntries.contains("A1"));
    choose("CentroAtencion", "CLINICA DE LIC");
    EXPECT_FALSE(button("SpeedButton1")->isEnabled());
    enter("ADULTOS");
    EXPECT_EQ(query().count(), 3);
    EXPECT_TRUE(button("SpeedButton1")->isEnabled());
    EXPECT_TRUE(grid()->hasFocus());
    picture(screen.get(), "frm101");
    choose("CentroAtencion", "CLINICA DE ESP");
    EXPECT_TRUE(child<LookupField>(screen.get(), "TipoServicio")->text().isEmpty());
    EXPECT_EQ(grid()->model()->rowCount(), 0);
    EXPECT_FALSE(button("SpeedButton1")->isEnabled());

    choose("CentroAtencion", "CLINICA DE LIC");
    enter("ADULTOS");
    auto *centre = child<LookupField>(screen.get(), "CentroAtencion");
    centre->setFocus();
    centre->selectAll();
    settle();
    press(Qt::Key_Delete);
    EXPECT_TRUE(child<LookupField>(screen.get(), "TipoServicio")->text().isEmpty());
    EXPECT_FALSE(query().isOpen() || button("SpeedButton1")->isEnabled());
}

TEST_F(FRM101Test, ClinicIsAddedChangedAndDeletedByKeysAlone) {
    openAdults();
    alt(Qt::Key_I);
    EXPECT_FALSE(child<LookupField>(screen.get(), "TipoServicio")->isEnabled());
    const QString taken = "Area existente para este Tipo de Servicio, vuelva a intentar";
    station.messages.expectInformation(taken);
    enter("A2");
    EXPECT_TRUE(query().isNull("area"));
    EXPECT_FALSE(button("SpeedButton2")->isEnabled());
    enter("7");
    EXPECT_EQ(query().text("area"), "07");
    EXPECT_TRUE(button("SpeedButton2")->isEnabled() && button("SpeedButton3")->isEnabled());
    const QString empty = "Campo Obligatorio, vuelva a intentar";
    station.messages.expectWarning(empty);
    press(Qt::Key_Return);
    EXPECT_EQ(grid()->currentField(), "DESCR");
    enter("Quirófano 'B' 50%");
    enter("");
    station.messages.expectWarning(empty);
    press(Qt::Key_Return);
    enter("AD");
    station.messages.expectWarning(empty);
    press(Qt::Key_Return);
    EXPECT_EQ(grid()->currentField(), "RESPONSABLE");
    picture(screen.get(), "frm101_insert");
    answer(kCorrect);
    enter("Dra. Núñez");
    EXPECT_EQ(stored("07", "descr||tipo_serv||responsable").toString(),
              "Quirófano 'B' 50%ADDra. Núñez");
    EXPECT_FALSE(stored("07", "prog").isValid());
    EXPECT_EQ(query().text("area"), "07");

    press(Qt::Key_F2);
    EXPECT_EQ(grid()->currentField(), "DESCR");
    press(Qt::Key_Up);
    answer(kRemoveRecord, Answer::No);
    station.messages.expectInformation(
        "Imposible borrar existe registros relacionados con este servicio, vuelva a intentar");
    alt(Qt::Key_B);
    EXPECT_EQ(query().text("area"), "07");
}

TEST_F(FRM101Test, AFailedWriteCancelsAndANewRowCanBeDropped) {
    openAdults();
    alt(Qt::Key_I);
    for (const char *cell : {"8", "Rayos X", "", "AP"}) {
        enter(cell);
    }
    answer(kCorrect);
    refuseWrite();
    enter("Dr. Cota");
    EXPECT_FALSE(panel()->editing());

    alt(Qt::Key_I);
    enter("9");
    answer(kRemoveRecord);
    alt(Qt::Key_B);
    EXPECT_FALSE(panel()->editing());
    EXPECT_EQ(inClinic("select count(*) from areatencion").toInt(), 8);

    alt(Qt::Key_I);
    press(Qt::Key_Right);
    for (const char *cell : {"Sin clave", "", "AP", "Dr. Cota"}) {
        enter(cell);
    }
    EXPECT_EQ(grid()->currentField(), "AREA");  // there is no row without its key
    press(Qt::Key_Up);
    EXPECT_FALSE(panel()->editing());
}

TEST_F(FRM101Test, ReportGroupsByCentreAndArea) {
    changeInClinic("update areaventa set ciudad='COS' where descr='ENDODONCIA'");
    openAdults();
    const report::Document document = preview("frm101");
    ASSERT_EQ(document.pageCount(), 1);
    const QString page = report::pageText(document, 0);
    EXPECT_EQ(page.count("Centro de Atención\n"), 2);
    EXPECT_EQ(page.count("Área Servicio\n"), 4);
    EXPECT_TRUE(page.contains("ENDODONCIA") && page.contains("DRA. LUCIA FELIX"));
    EXPECT_FALSE(page.contains("COSTA SUR"));
    EXPECT_TRUE(page.contains("AP = Atención Pacientes") && page.contains("UM = Unidad Móvil"));
}

}  // namespace
}  // namespace kaldo::test
