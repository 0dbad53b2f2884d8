#include "catalogues/frm105_sales_areas.h"

#include "data/catalogue_texts.h"
#include "tests/catalogues/catalogue_test.h"

namespace kaldo::test {
namespace {

const QString kCopied =
    "La información ha sido registrada correctamente, presione cualquier tecla "
    "para continuar.";

const QString kGenerate = "¿Los datos proporcionados son correctos para generar este proceso? ";

class FRM105Test : public CatalogueTest<FRM105> {
protected:
    QString panelName() const override { return "Areas"; }
    QVariant stored(int area, const QString &column) {
        return inClinic("select " + column + " from areaventa where tipo_prod=:t", {{"t", area}});
    }
    int areas(const QString &condition) {
        return inClinic("select count(*) from areaventa where " + condition).toInt();
    }
    void openCopy() {
        child<IconButton>(screen.get(), "Duplicados")->setFocus();
        press(Qt::Key_Space);
    }
    Button *generate() { return child<Button>(screen.get(), "Generar"); }
};

TEST_F(FRM105Test, AreaIsAddedChangedAndDeletedByKeysAlone) {
    open();
    const int next = inClinic("select max(tipo_prod) from areaventa").toInt() + 1;
    alt(Qt::Key_I);
    EXPECT_EQ(grid()->currentField(), "DESCR");
    enter("radiología \"digital\" 100%");
    enter("ap");
    enter("VN");
    picture(screen.get(), "frm105_insert");
    answer(kSave);
    press(Qt::Key_Return);
    EXPECT_EQ(stored(next, "descr").toString(), "RADIOLOGÍA \"DIGITAL\" 100%");
    EXPECT_EQ(stored(next, "dirigidoa||origen||vigente||ciudad").toString(), "APVNSVAN");
    press(Qt::Key_F2);
    EXPECT_EQ(grid()->currentField(), "DESCR");
    enter("radiologia");
    enter("OT");
    enter("XX");  // none of the list: the cell keeps it, and Enter goes nowhere
    EXPECT_EQ(grid()->currentField(), "ORIGEN");
    press(Qt::Key_Escape);
    press(Qt::Key_Return);
    typeText("N");
    answer(kSave);
    press(Qt::Key_Return);
    EXPECT_EQ(stored(next, "descr||dirigidoa||origen||vigente").toString(), "RADIOLOGIAOTVNN");

    answer(kRemove);
    alt(Qt::Key_B);
    EXPECT_FALSE(stored(next, "descr").isValid());
    picture(screen.get(), "frm105");
}

TEST_F(FRM105Test, RefusesATakenNumberAndAnAreaThatACentreOffers) {
    open();
    query().locate({{"tipo_prod", 4}});
    answer(kRemove);
    station.messages.expectWarning(
        "La clave de área no se puede borrar, contiene relación con Centro de Atención, presione "
        "cualquier tecla para continuar.");
    alt(Qt::Key_B);
    EXPECT_EQ(stored(4, "descr").toString(), "ADULTOS");
    EXPECT_EQ(query().integer("tipo_prod"), 4);

    alt(Qt::Key_I);
    press(Qt::Key_Left);
    EXPECT_EQ(grid()->currentField(), "TIPO_PROD");
    station.messages.expectWarning(
        "La clave de área ya se encuentra registrada, presione cualquier tecla para continuar.");
    enter("51");  // of the other campus
    EXPECT_TRUE(query().isNull("tipo_prod"));
    EXPECT_FALSE(button("SpeedButton3")->isEnabled());
    enter("60");
    EXPECT_TRUE(button("SpeedButton3")->isEnabled());
    EXPECT_EQ(grid()->currentField(), "DESCR");
}

TEST_F(FRM105Test, ABusinessWorksWithTheFirstTenAreas) {
    station.options.sector = Sector::Empresarial;
    open();
    EXPECT_EQ(query().count(), 10);
    EXPECT_FALSE(query().locate({{"tipo_prod", 11}}));
    alt(Qt::Key_I);
    EXPECT_EQ(query().integer("tipo_prod"), 97);
    screen.reset();
    station.odonto.AreaVenta.open();
    EXPECT_GT(station.odonto.AreaVenta.count(), 10);
}

TEST_F(FRM105Test, AccountsShowAndAreChosenLevelByLevel) {
    open();
    const auto shown = [this](const QString &field) {
        return !grid()->isColumnHidden(fieldSection(query(), field));
    };
    EXPECT_FALSE(shown("generoid") || shown("subctaid") || shown("nomenclatura"));
    EXPECT_TRUE(report::pageText(preview("frm105"), 0).contains("AP - SERVICIOS DE CLINICA"));

    station.options.ContabilidadGubernamental = true;
    station.session.Ciudad = "Valle Norte";
    open();
    EXPECT_TRUE(shown("generoid") && shown("subctaid") && shown("nomenclatura"));
    query().locate({{"tipo_prod", 5}});
    press(Qt::Key_F2);
    for (int column = 0; column < 4; ++column) {
        press(Qt::Key_Return);
    }
    EXPECT_EQ(grid()->currentField(), "GENEROID");
    enter("4");
    enter("1");
    enter("9");  // no such account below 4.1
    EXPECT_EQ(grid()->currentField(), "CGRUBROID");
    press(Qt::Key_Escape);
    enter("7");
    enter("2");
    picture(screen.get(), "frm105_accounts");
    answer(kSave);
    enter("1");
    EXPECT_EQ(stored(5, "nomenclatura").toString(), "4.1.7.2.1");
    const QString page = report::pageText(preview("frm105_accounts"), 0);
    EXPECT_TRUE(page.contains("Áreas de Servicio Valle Norte"));
    EXPECT_TRUE(page.contains("Nomenclatura") && page.contains("4.1.7.2.1"));
    EXPECT_FALSE(page.contains("Dirigido a"));
}

TEST_F(FRM105Test, CopiesTheAreasIntoAnotherCampus) {
    open();
    station.messages.expectWarning(
        "¡Solo se pueden duplicar áreas a otras ciudades, verifique su información!");
    openCopy();
    enter("VAN");
    enter("COS");
    enter("0");
    enter("CS");
    EXPECT_FALSE(generate()->isEnabled());
    child<NumberField>(screen.get(), "IdInicial")->setFocus();
    child<NumberField>(screen.get(), "IdInicial")->selectAll();
    settle();
    enter("500");  // more than there can be
    EXPECT_TRUE(child<NumberField>(screen.get(), "IdInicial")->hasFocus());
    child<NumberField>(screen.get(), "IdInicial")->selectAll();
    typeText("49");
    press(Qt::Key_Up);
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    ASSERT_TRUE(generate()->isEnabled());
    picture(screen.get(), "frm105_copy");
    // 50 is free, 51 is an area of Costa Sur: the copy ends there, what was written stays.
    const int before = areas("ciudad='COS'");
    const int source = areas("ciudad='VAN'");
    answer(kGenerate);
    station.messages.expect(MessageKind::Error, "*");
    press(Qt::Key_Return);
    EXPECT_EQ(areas("ciudad='COS'"), before + 1);
    EXPECT_EQ(stored(50, "descr||origen").toString(), "ADMISIONCS");
    EXPECT_EQ(station.frame.progressEnded, 1);

    child<NumberField>(screen.get(), "IdInicial")->setValue(100);
    answer(kGenerate);
    station.messages.expectInformation(kCopied);
    generate()->setFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(areas("ciudad='COS'"), before + 1 + source);
    EXPECT_EQ(stored(99 + source, "descr||vigente||nomenclatura").toString(),
              "ORTODONCIAS4.1.7.3.1");
    EXPECT_EQ(station.frame.progressSteps, 1 + source);
    EXPECT_FALSE(generate()->isEnabled());
    EXPECT_EQ(query().count(), source);
}

TEST_F(FRM105Test, TheCampusIsEmptiedAloneAndTheCopyNeedsTheFirebirdBranch) {
    open();
    auto *emptying = child<Button>(screen.get(), "BorrarTodas");
    const QString question = "¿¿Desea borrar todas las áreas para esta ciudad?";
    emptying->setFocus();
    answer(question, Answer::No);
    press(Qt::Key_Space);
    EXPECT_GT(areas("ciudad='VAN'"), 0);
    EXPECT_EQ(station.messages.boxes().last().preset, Answer::No);
    EXPECT_TRUE(station.messages.boxes().last().detail.startsWith("Ciudad: VAN\nÁreas: "));
    answer(question);
    station.messages.expectInformation(
        "La información ha sido eliminado correctamente, presione "
        "cualquier tecla para continuar.");
    press(Qt::Key_Space);
    EXPECT_EQ(areas("ciudad='VAN'"), 0);
    EXPECT_GT(areas("ciudad='COS'"), 0);
    EXPECT_FALSE(emptying->isEnabled());
    EXPECT_FALSE(button("SpeedButton2")->isEnabled());
    EXPECT_EQ(borrarAreasText("VAN").odbc().trimmed(), "Delete from areaventa");
    EXPECT_EQ(station.messages.boxes().last().title, "Información");

    station.session.ClienteSql = "Informix";
    open();
    EXPECT_FALSE(child<IconButton>(screen.get(), "Duplicados")->isVisible());
}

}  // namespace
}  // namespace kaldo::test
