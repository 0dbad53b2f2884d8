#include "catalogues/frm100_care_centres.h"

#include <QApplication>
#include <QClipboard>

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
    answer(kRemove);
    alt(Qt::Key_B);
    EXPECT_FALSE(stored("Z9", "descr").isValid());
    EXPECT_EQ(query().count(), 2);
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
    EXPECT_EQ(query().text("centro"), "ABCD");
    const QString taken = "La descripción del centro ya existe vuelva a intentar";
    station.messages.expectInformation(taken);
    enter("clinica de e");
    EXPECT_TRUE(query().isNull("descr"));
    EXPECT_EQ(grid()->currentField(), "CENTRO");
    press(Qt::Key_Up);
    EXPECT_FALSE(panel()->editing());
    EXPECT_EQ(query().count(), 2);

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
    press(Qt::Key_Down);
    EXPECT_EQ(query().text("descr"), "CLINICA DE LICENCIATURA VALLE NORTE");
}

TEST_F(FRM100Test, LastWriteWinsAndAFailedOneKeepsTheRowOpen) {
    open();
    press(Qt::Key_F2);
    QApplication::clipboard()->setText("calle del\n\"mar\"\u20285%" + QString(80, 'x'));
    press(Qt::Key_F2);
    press(Qt::Key_V, Qt::ControlModifier);
    press(Qt::Key_Return);
    child<TextField>(screen.get(), "responsable")->setFocus();
    typeText("o'hara");
    changeInClinic("update ctroatencion set domicilio='LO SUYO', colonia='OTRA' where centro='01'");
    answer(kSave);
    refuseWrite();
    alt(Qt::Key_G);
    EXPECT_TRUE(panel()->editing());
    EXPECT_EQ(stored("01", "domicilio").toString(), "LO SUYO");
    answer(kSave);
    alt(Qt::Key_G);
    EXPECT_EQ(stored("01", "domicilio").toString(), "CALLE DEL \"MAR\" 5%" + QString(42, 'X'));
    EXPECT_TRUE(stored("01", "responsable").toString().contains("O'HARA"));

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
    press(Qt::Key_Escape);

    station.session.Origen = "VAN";
    panel()->reload();
    changeInClinic("delete from ctroatencion where centro='01'");
    answer(kRemove);
    station.messages.expectError("Otra estación borró el registro, la información no se guardó.");
    alt(Qt::Key_B);
    EXPECT_EQ(query().text("centro"), "02");
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
    enter("van");
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
