#include "catalogues/frm106_external_laboratories.h"

#include "tests/catalogues/catalogue_test.h"

namespace kaldo::test {
namespace {

const QString kRegistered = "Este laboratorio ya se encuentra registrado, verifique la información";
const QString kRequired = "Campo Obligatorio, vuelva a intentar";

class FRM106Test : public CatalogueTest<FRM106> {
protected:
    QString panelName() const override { return "Laboratorios"; }
    QVariant stored(int subsubcta, const QString &column) {
        return inClinic("select " + column + " from labexternos where subsubcta=:s",
                        {{"s", subsubcta}});
    }
    void addAccount(int id, const QString &name) {
        run(station.conexion.FBFinanzas,
            "insert into cg_subsubcta values (2, 1, 1, 9, 1, :id, :nomenclatura, :name)",
            {{"id", id}, {"nomenclatura", QString("2.1.1.9.1.%1").arg(id)}, {"name", name}});
    }
};

TEST_F(FRM106Test, LaboratoryIsWrittenChangedAndDeletedByKeysAlone) {
    open();
    picture(screen.get(), "frm106");
    alt(Qt::Key_I);
    EXPECT_EQ(grid()->currentField(), "DESCR");
    enter("protesis");
    EXPECT_EQ(query().integer("subsubcta"), 303);
    EXPECT_EQ(child<TextField>(screen.get(), "nomenclatura")->text(), "2.1.1.9.1.303");
    EXPECT_TRUE(button("SpeedButton3")->isEnabled());
    station.messages.expectWarning(kRequired);
    press(Qt::Key_Return);
    enter("Calle \"5 de Mayo\" 12 'B', 50%");
    typeText("n");
    press(Qt::Key_Return);
    enter("PBA010101XX1");
    EXPECT_EQ(keyTarget()->objectName(), "colonia");
    enter("Centro");
    enter("Bahía");
    enter("6465550199");
    enter("980");
    EXPECT_TRUE(child<TextField>(screen.get(), "nomenclatura")->isReadOnly());
    enter("T.D. Núñez");
    picture(screen.get(), "frm106_insert");
    answer(kSave);
    enter("Bahia@Laboratorio.EXAMPLE");
    EXPECT_EQ(stored(303, "descr||activo||telefono||correo||campus||prog").toString(),
              "PROTESIS DE LA BAHIAN(646)555-0199bahia@laboratorio.exampleVAN980");
    EXPECT_EQ(stored(303, "domicilio").toString(), "Calle \"5 de Mayo\" 12 'B', 50%");

    // "C.P." saves as well.
    press(Qt::Key_F2);
    child<NumberField>(screen.get(), "cp")->setFocus();
    answer(kSave);
    enter("2a2880");
    EXPECT_EQ(stored(303, "cp").toInt(), 22880);
}

TEST_F(FRM106Test, AnAccountIsOneLaboratoryInAnyCampus) {
    changeInClinic("insert into labexternos (subsubcta, campus) values (303, 'COS')");
    addAccount(30, "POR EL PRINCIPIO");
    open();
    const int listed = query().count();
    for (const char *name : {"LABORATORIO D", "PROTESIS", "POR EL"}) {
        SCOPED_TRACE(name);
        alt(Qt::Key_I);
        station.messages.expectInformation(kRegistered);
        enter(name);
        EXPECT_TRUE(query().isNull("subsubcta"));
        EXPECT_EQ(grid()->currentField(), "DESCR");
        EXPECT_FALSE(button("SpeedButton3")->isEnabled());
        press(Qt::Key_Down);
    }
    // A row that is open is no exception, nor one that is saved before Enter, and none can be saved
    // without its account.
    for (const bool before : {false, true}) {
        press(Qt::Key_F2);
        station.messages.expectInformation(kRegistered);
        if (before) {
            typeText("CERAMICA");
            alt(Qt::Key_G);
            EXPECT_TRUE(query().isNull("subsubcta"));
        } else {
            press(Qt::Key_Return);
            station.messages.expectWarning(kRequired);
            alt(Qt::Key_G);
        }
        EXPECT_TRUE(panel()->editing());
        press(Qt::Key_Escape);
    }
    EXPECT_EQ(query().count(), listed);
    EXPECT_EQ(query().integer("subsubcta"), 301);

    alt(Qt::Key_I);
    station.messages.expectWarning(kRequired);
    press(Qt::Key_Return);
    enter("NO HAY TAL");
    EXPECT_TRUE(grid()->editorOpen()) << "not on the list";
}

TEST_F(FRM106Test, OfTwoAccountsAlikeTheChosenOneIsTakenAndItsNameCut) {
    addAccount(401, "IGUAL " + QString(120, 'L'));
    addAccount(402, "IGUAL " + QString(120, 'L') + " DOS");
    open();
    alt(Qt::Key_I);
    press(Qt::Key_F4);
    typeText("igual");
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    EXPECT_EQ(query().integer("subsubcta"), 402) << "the one that was chosen of two alike";
    enter("AV. 1");
    answer(kSave);
    alt(Qt::Key_G);
    EXPECT_EQ(stored(402, "char_length(descr)||domicilio").toString(), "70AV. 1");
}

TEST_F(FRM106Test, ReportListsTheCampusAndNothingOfNone) {
    changeInClinic("update labexternos set domicilio=:d where subsubcta=302",
                   {{"d", QString("CALLE MUY LARGA ").repeated(15)}});
    open();
    const QString page = report::pageText(preview("frm106"), 0);
    EXPECT_TRUE(page.contains("Laboratorios Externos " + station.session.Ciudad.text()));
    EXPECT_TRUE(page.contains("301\nNombre\nLABORATORIO DENTAL DEL VALLE\nDomicilio\n"));
    changeInClinic("delete from labexternos");
    EXPECT_EQ(preview("none").pageCount(), 0);
}

}  // namespace
}  // namespace kaldo::test
