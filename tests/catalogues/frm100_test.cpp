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
    enter("Z9");
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
    picture(screen.get(), "frm100");
    alt(Qt::Key_I);
    enter("a1");
    EXPECT_EQ(query().text("centro"), "a1") << "as it is typed";
}

TEST_F(FRM100Test, RefusesByPrefixAndKnowsNothingOfTheRowItself) {
    open();
    alt(Qt::Key_I);
    station.messages.expectInformation("El centro ya existe vuelva a intentar");
    enter("01XY");
    EXPECT_TRUE(query().isNull("centro"));
    EXPECT_EQ(grid()->currentField(), "CENTRO");
    EXPECT_FALSE(button("SpeedButton3")->isEnabled());
    enter("abcde'");  // no wider than the column
    EXPECT_EQ(query().text("centro"), "abcd");
    const QString taken = "La descripción del centro ya existe vuelva a intentar";
    station.messages.expectInformation(taken);
    enter("clinica de e");
    EXPECT_TRUE(query().isNull("descr"));
    EXPECT_EQ(grid()->currentField(), "CENTRO");
    press(Qt::Key_Up);

    press(Qt::Key_F2);
    EXPECT_EQ(grid()->currentField(), "DOMICILIO");
    press(Qt::Key_Left);
    station.messages.expectInformation(taken);
    press(Qt::Key_Return);
    EXPECT_TRUE(query().isNull("descr"));
    typeText("Z");  // the key of a row that stands takes nothing, is found by its test, and stays
    station.messages.expectInformation("El centro ya existe vuelva a intentar");
    press(Qt::Key_Return);
    EXPECT_EQ(query().text("centro"), "01");
    EXPECT_EQ(grid()->currentField(), "CENTRO");
}

TEST_F(FRM100Test, PostcodeOpensTheRowAndNoCentreIsWithoutItsCampus) {
    open();
    child<NumberField>(screen.get(), "cp")->setFocus();  // takes input in consult mode too
    child<NumberField>(screen.get(), "cp")->selectAll();
    typeText("987654x");
    EXPECT_TRUE(panel()->editing() && button("SpeedButton3")->isEnabled());
    answer(kSave);
    alt(Qt::Key_G);
    EXPECT_EQ(stored("01", "cp").toInt(), 98765);

    station.session.Origen = "";
    alt(Qt::Key_I);
    enter("Y7");
    station.messages.expectWarning("El Campo Ciudad se encuentra vacío, favor de llenarlo");
    alt(Qt::Key_G);
    EXPECT_TRUE(panel()->editing());
}

TEST_F(FRM100Test, WhatShowsHangsOnSectorAndAccounting) {
    struct Shown {
        Sector sector;
        QString caption;
        bool accounts, counters;
    };
    for (const Shown &shown : {Shown{Sector::Empresarial, "Clinica", true, false},
                               Shown{Sector::Educativo, "Escuela o Facultad", false, true},
                               Shown{Sector::Institucional, "Hospital", false, false}}) {
        station.options.sector = shown.sector;
        station.options.ContabilidadGubernamental = shown.accounts;
        station.options.ExpedienteUniversal = shown.counters;
        open();
        EXPECT_EQ(child<TextField>(screen.get(), "descripcion")->accessibleName(), shown.caption);
        EXPECT_EQ(child<QWidget>(screen.get(), "PanelPrograma")->isVisible(), shown.accounts);
        EXPECT_EQ(child<Button>(screen.get(), "Consecutivo")->isVisible(), shown.counters);
        const QString page = report::pageText(preview("frm100"), 0);
        EXPECT_EQ(page.contains("Programa"), shown.accounts);
        EXPECT_TRUE(page.contains("CLINICA DE ESPECIALIDADES VALLE NORTE"));
        press(Qt::Key_F2);
        child<TextField>(screen.get(), "correoto")->setFocus();
        settle();
        if (!shown.accounts) {
            answer(kSave, Answer::No);
        }
        press(Qt::Key_Return);
        EXPECT_EQ(keyTarget()->objectName() == "prog", shown.accounts);
    }
}

TEST_F(FRM100Test, ACampusHasOneCounterOfDossiers) {
    station.options.ExpedienteUniversal = true;
    open();
    child<Button>(screen.get(), "Consecutivo")->setFocus();
    press(Qt::Key_Space);
    picture(screen.get(), "frm100_counters");
    auto *counters = child<CataloguePanel>(screen.get(), "Consecutivos");
    EXPECT_TRUE(counters->grid()->hasFocus());
    EXPECT_FALSE(child<Button>(counters, "SpeedButton1")->isEnabled());
    const auto number = [this] {
        return inClinic("select num_expediente from controlexpedientes where campus='VAN'");
    };
    press(Qt::Key_F2);
    answer(kSave);
    enter("4711");
    EXPECT_EQ(number().toInt(), 4711);
    answer(kRemove);
    alt(Qt::Key_B);
    EXPECT_FALSE(number().isValid());
    EXPECT_EQ(inClinic("select count(*) from ctroatencion").toInt(), 3);

    changeInClinic("insert into controlexpedientes (campus, num_expediente) values ('VAX', 1)");
    alt(Qt::Key_I);
    station.messages.expectInformation(
        "Ya existe un registro para esta Ciudad, revise la información.");
    press(Qt::Key_Return);
    EXPECT_TRUE(counters->query().isNull("campus"));
    changeInClinic("delete from controlexpedientes where campus='VAX'");
    enter("VAN");
    answer(kSave);
    enter("12");
    EXPECT_EQ(number().toInt(), 12);
    EXPECT_FALSE(child<Button>(counters, "SpeedButton1")->isEnabled());
    EXPECT_FALSE(panel()->editing());
    child<Button>(screen.get(), "Consecutivo")->setFocus();
    press(Qt::Key_Space);
    EXPECT_FALSE(counters->isVisible());
}

}  // namespace
}  // namespace kaldo::test
