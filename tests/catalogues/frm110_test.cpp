#include "catalogues/frm110_banks.h"

#include "tests/catalogues/catalogue_test.h"

namespace kaldo::test {
namespace {

class FRM110Test : public CatalogueTest<FRM110> {
protected:
    QString panelName() const override { return "Bancos"; }
    CataloguePanel *programmes() { return child<CataloguePanel>(screen.get(), "Programas"); }
    QVariant inFinance(const QString &text, const Parameters &values = {}) {
        return valueOf(station.conexion.FBFinanzas, text, values);
    }
    QVariantList bankIn(Connection &connection, int bancoid) {
        return rowsOf(connection,
                      "select nomenclatura, subsubctaid, descripcion, tipomoneda from cg_banco "
                      "where bancoid=:b",
                      {{"b", bancoid}})
            .value(0);
    }
    void unfold() {
        child<Button>(screen.get(), "ControlExpedientes")->setFocus();
        press(Qt::Key_Space);
    }
};

TEST_F(FRM110Test, BankIsAddedWithItsAccountInBothDatabases) {
    open();
    picture(screen.get(), "frm110");
    alt(Qt::Key_I);
    enter("77");
    // Each level offers what the matrix allows under those before it.
    const struct {
        const char *typed;
        NamedQuery *next;
        int offered;
    } levels[] = {{"4", &station.finanzas.cgrupo, 1},
                  {"1", &station.finanzas.crubro, 1},
                  {"7", &station.finanzas.ccuenta, 5},
                  {"2", &station.finanzas.csubcta, 1},
                  {"1", &station.finanzas.csubsubcta, 1}};
    for (const auto &level : levels) {
        enter(level.typed);
        EXPECT_EQ(level.next->count(), level.offered) << level.next->name().toStdString();
    }
    typeText("999");
    press(Qt::Key_Return);
    EXPECT_TRUE(grid()->editorOpen()) << "not on the list";
    press(Qt::Key_Escape);
    enter("201");
    EXPECT_EQ(query().text("nomenclatura"), "4.1.7.2.1.201");
    picture(screen.get(), "frm110_insert");
    enter("banco \"del\" 100% O'Higgins");
    answer(kSave);
    enter("2");
    station.messages.verify();
    const QVariantList row{"4.1.7.2.1.201", 201, "BANCO \"DEL\" 100% O'HIGGINS", 2};
    EXPECT_EQ(bankIn(station.conexion.FBFinanzas, 77), row);
    EXPECT_EQ(bankIn(station.clinic(), 77), row) << "for the bank cut";
    EXPECT_EQ(query().integer("bancoid"), 77);

    press(Qt::Key_F2);
    EXPECT_EQ(grid()->currentField(), "GENEROID");
    answer(kRemove);
    press(Qt::Key_Up);
    alt(Qt::Key_B);
    station.messages.verify();
    EXPECT_TRUE(bankIn(station.conexion.FBFinanzas, 77).isEmpty());
    EXPECT_TRUE(bankIn(station.clinic(), 77).isEmpty());
}

TEST_F(FRM110Test, ANumberThatStandsAndAnEmptyDescriptionAreRefused) {
    open();
    alt(Qt::Key_I);
    station.messages.expectInformation("El No. de Banco ya existe vuelva a intentar");
    enter("3x");  // a letter can't be typed
    station.messages.verify();
    EXPECT_TRUE(query().isNull("bancoid"));
    EXPECT_EQ(grid()->currentField(), "BANCOID");
    enter("8");
    station.messages.expectWarning("El Campo Descripción se encuentra vacío, favor de llenarlo");
    alt(Qt::Key_G);
    station.messages.verify();
    EXPECT_TRUE(grid()->rowEdit());
    EXPECT_EQ(grid()->currentField(), "DESCRIPCION");
}

TEST_F(FRM110Test, ACopyThatFailsIsHealed) {
    open();
    for (const int write : {1, 2}) {  // finance, and the copy
        press(Qt::Key_F2);
        grid()->setCurrentField("DESCRIPCION");
        enter(QString("banco %1").arg(write));
        answer(kSave);
        refuseWrite(write);
        alt(Qt::Key_G);
        station.messages.verify();
        EXPECT_TRUE(grid()->rowEdit() && grid()->hasFocus());
        answer(kSave);
        press(Qt::Key_Return);
        station.messages.verify();
        EXPECT_FALSE(grid()->rowEdit());
        EXPECT_EQ(bankIn(station.conexion.FBFinanzas, 1).value(2), QString("BANCO %1").arg(write));
        EXPECT_EQ(bankIn(station.clinic(), 1), bankIn(station.conexion.FBFinanzas, 1));
    }
    // A copy that is missing, older or left over is mended when the screen opens.
    changeInClinic("delete from cg_banco where bancoid=1");
    changeInClinic("update cg_banco set tipomoneda=9 where bancoid=2");
    changeInClinic("insert into cg_banco (bancoid) values (99)");
    changeInClinic("update cg_bancoporprograma set programaid=7 where bancoid=1");
    run(station.conexion.FBFinanzas, "insert into cg_bancoporprograma values (1, 980)");
    open();
    for (const int bank : {1, 2, 99}) {
        EXPECT_EQ(bankIn(station.clinic(), bank), bankIn(station.conexion.FBFinanzas, bank));
    }
    const QString all = "select * from cg_bancoporprograma order by bancoid, programaid";
    EXPECT_EQ(rowsOf(station.clinic(), all), rowsOf(station.conexion.FBFinanzas, all));
    // Nothing is written where nothing differs.
    answer(kRemove);
    refuseWrite();
    open();
    alt(Qt::Key_B);
    station.messages.verify();
}

TEST_F(FRM110Test, ABankGetsOneProgramme) {
    open();
    EXPECT_FALSE(child<QWidget>(screen.get(), "BancoProgramas")->isVisible());
    unfold();
    EXPECT_GT(grid()->viewport()->height(), 4 * grid()->rowHeight(0)) << "the window grew";
    NamedQuery &rows = programmes()->query();
    EXPECT_EQ(rows.integer("programaid"), 12510);
    alt(Qt::Key_I);
    EXPECT_FALSE(programmes()->editing()) << "it has one";
    EXPECT_TRUE(programmes()->grid()->hasFocus());
    picture(screen.get(), "frm110_programmes");

    press(Qt::Key_F2);
    station.messages.expectInformation(
        "Ya existe un registro para esta Banco/Programa, revise la información.");
    press(Qt::Key_Return);
    station.messages.verify();
    EXPECT_TRUE(rows.isNull("programaid")) << "it finds itself";
    answer(kSave);
    enter("980");
    station.messages.verify();
    answer(kRemove);
    alt(Qt::Key_B);
    station.messages.verify();
    const QString count = "select count(*) from cg_bancoporprograma where bancoid=1";
    EXPECT_EQ(inFinance(count).toInt(), 0);
    EXPECT_EQ(inClinic(count).toInt(), 0);

    alt(Qt::Key_I);
    ASSERT_TRUE(programmes()->editing());
    EXPECT_FALSE(panel()->editing()) << "the letter is that of the list with the focus";
    answer(kSave);
    enter("980");
    station.messages.verify();
    const QString programme = "select programaid from cg_bancoporprograma where bancoid=1";
    EXPECT_EQ(inFinance(programme).toInt(), 980);
    EXPECT_EQ(inClinic(programme).toInt(), 980);

    grid()->setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(rows.integer("programaid"), 12510) << "it follows the bank";

    // A row that is open stays that of its bank while the list of banks moves on.
    programmes()->grid()->setFocus();
    press(Qt::Key_F2);
    grid()->setFocus();
    press(Qt::Key_Up);
    programmes()->grid()->setFocus();
    answer(kSave);
    enter("980");
    const QString both =
        "select max(iif(bancoid=1, programaid, 0))||' '||max(iif(bancoid=2, programaid, 0)) from "
        "cg_bancoporprograma";
    EXPECT_EQ(inFinance(both).toString(), "980 980");
    EXPECT_EQ(inClinic(both).toString(), "980 980");

    grid()->setFocus();
    alt(Qt::Key_I);
    enter("88");
    programmes()->grid()->setFocus();
    alt(Qt::Key_I);
    EXPECT_FALSE(programmes()->editing()) << "the bank isn't written yet";
    grid()->setFocus();
    press(Qt::Key_Up);
    unfold();
    EXPECT_FALSE(child<QWidget>(screen.get(), "BancoProgramas")->isVisible());
}

}  // namespace
}  // namespace kaldo::test
