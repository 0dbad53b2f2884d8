#include "catalogues/frm107_price_list.h"

#include "catalogues/item_code.h"
#include "data/catalogue_texts.h"
#include "tests/catalogues/catalogue_test.h"

namespace kaldo::test {
namespace {

class FRM107Test : public CatalogueTest<FRM107> {
protected:
    QString panelName() const override { return "Precios"; }
    void choose(const QString &area) {
        auto *field = child<LookupField>(screen.get(), "AreaVentas");
        field->setFocus();
        field->selectAll();
        settle();
        enter(area);
    }
    QVariant stored(int codigo, const QString &column) {
        return inClinic("select " + column + " from listaprecios where codigo=:c", {{"c", codigo}});
    }
    int items(int area) {
        return inClinic("select count(*) from listaprecios where tipo_prod=:t", {{"t", area}})
            .toInt();
    }
    /// Chooses campus, area and programme of the copy; the focus is on its button.
    void tellCopy(const QString &campus, const QString &area) {
        auto *strip = child<QWidget>(screen.get(), "PanelDuplicados");
        if (!strip->isVisible()) {
            child<IconButton>(screen.get(), "Duplicados")->setFocus();
            press(Qt::Key_Space);
        }
        auto *ciudad = child<LookupField>(strip, "Ciudad");
        ciudad->setFocus();
        ciudad->selectAll();
        settle();
        enter(campus);
        enter(area);
        enter("980");
    }
};

TEST(ItemCodeTest, JoinsAreaAndItemInSixDigits) {
    EXPECT_EQ(itemCode(12, 7), 12007);
    EXPECT_EQ(itemCode(3, 45), 3045);
    EXPECT_EQ(itemCode(300, 45), 300045);
    EXPECT_EQ(itemCode(12, 1234), 12123);
    EXPECT_EQ(itemCode(1234, 45), 123404);
    EXPECT_EQ(itemCode(1234567, 1), 123456);
}

TEST_F(FRM107Test, PriceIsAddedAndChangedByKeysAlone) {
    open();
    EXPECT_FALSE(button("SpeedButton1")->isEnabled());
    choose("ADMIS");
    const int area = station.odonto.AreaVenta.integer("tipo_prod");
    ASSERT_GT(query().count(), 0);
    picture(screen.get(), "frm107");
    alt(Qt::Key_I);
    enter("-987");
    EXPECT_TRUE(grid()->editorOpen()) << "an item has no sign: told beside the cell, and kept";
    enter("987");
    enter("resina de prueba");
    enter("");
    enter("pieza");
    picture(screen.get(), "frm107_insert");
    station.messages.expectWarning(
        "El precio debe estar entre $0.00 y $999,999,999.99, vuelva a intentar.");
    enter("-0.01");
    EXPECT_EQ(grid()->currentField(), "MENUDEO");
    enter("1000000000");
    EXPECT_TRUE(grid()->editorOpen()) << "more than an amount holds: told beside the cell";
    answer(kSave);
    enter("1,250.50");
    station.messages.verify();
    const int codigo = itemCode(area, 987);
    EXPECT_EQ(stored(codigo, "descr||vigente").toString(), "RESINA DE PRUEBAS");
    EXPECT_EQ(stored(codigo, "menudeo").toDouble(), 1250.5);
    EXPECT_EQ(stored(codigo, "fecha_mov").toDate(), station.clock.today());
    EXPECT_EQ(query().integer("codigo"), codigo);

    station.clock.set(station.clock.now().addDays(3));
    press(Qt::Key_F2);
    EXPECT_EQ(grid()->currentField(), "DESCR");
    EXPECT_FALSE(child<LookupField>(screen.get(), "AreaVentas")->isEnabled());
    grid()->setCurrentField("MENUDEO");
    enter("x1.2.3$");  // letters can't be typed, and this is no number
    EXPECT_TRUE(grid()->editorOpen());
    press(Qt::Key_Escape);
    answer(kSave);
    enter("1,300.105");
    EXPECT_EQ(stored(codigo, "menudeo").toDouble(), 1300.11) << "two decimals, as it is shown";
    EXPECT_EQ(stored(codigo, "fecha_mov").toDate(), station.clock.today());
}

TEST_F(FRM107Test, RefusesATakenCodeBeyondThreeDigitsToo) {
    open();
    choose("ADMISION");
    alt(Qt::Key_I);
    const QString taken =
        "La clave ya se encuentra registrada para esta área y tipo de servicio, presione cualquier "
        "tecla para continuar.";
    press(Qt::Key_Right);
    station.messages.expectWarning("Campo Obligatorio, vuelva a intentar");
    panel()->save();
    for (const char *clave : {"1", "2999", "002"}) {
        EXPECT_EQ(grid()->currentField(), "CVE_PROD");
        if (QString(clave) == "2999") {
            changeInClinic("update listaprecios set codigo=1299 where codigo=1003");
        }
        station.messages.expectWarning(taken);
        enter(clave);
        EXPECT_TRUE(query().isNull("cve_prod"));
        EXPECT_FALSE(button("SpeedButton3")->isEnabled());
    }
}

TEST_F(FRM107Test, TheTaxFollowsTheRowWhereAccountsAreAskedFor) {
    const QStringList accounts = {"PROG", "SUBSUBCTA", "TIPODEIVA", "CLASIFICACIONIVA",
                                  "CLAVEPRODSERV"};
    open();
    choose("ADMISION");
    const auto hidden = [this](const QString &field) {
        return grid()->isColumnHidden(fieldSection(query(), field));
    };
    EXPECT_TRUE(std::all_of(accounts.begin(), accounts.end(), hidden));
    const auto width = [this] { return grid()->columnWidth(fieldSection(query(), "CVE_PROD")); };
    const int before = width();
    press(Qt::Key_F2);
    answer(kSave);
    alt(Qt::Key_G);
    EXPECT_EQ(stored(1001, "tipodeiva||'/'||nomenclatura").toString(), "3/4.1.7.1.1.101");
    EXPECT_EQ(stored(1001, "porcentajeiva").toDouble(), 0) << "the list of taxes was never opened";

    station.options.ContabilidadGubernamental = true;
    open();
    choose("ADMISION");
    EXPECT_TRUE(std::none_of(accounts.begin(), accounts.end(), hidden));
    EXPECT_EQ(width(), before);
    screen->resize(820, 500);
    settle();
    EXPECT_GT(grid()->columnWidth(fieldSection(query(), "DESCR")), 200) << "the list scrolls";
    const auto change = [this](const QString &tipodeiva) {
        press(Qt::Key_F2);
        grid()->setCurrentField("MENUDEO");
        enter("160");
        enter("12520");
        enter("101");
        enter(tipodeiva);
        enter("1");
        EXPECT_EQ(grid()->currentField(), "CLAVEPRODSERV");
        answer(kSave);
        enter("85122001");
    };
    for (const auto &[tipo, percent] : {std::pair{"1", 16.0}, {"", 16.0}, {"3", 0.0}}) {
        change(tipo);
        EXPECT_EQ(stored(1001, "porcentajeiva").toDouble(), percent) << tipo;
    }
    picture(screen.get(), "frm107_accounts");
    EXPECT_EQ(stored(1001, "prog").toString(), "12520");
    EXPECT_TRUE(report::pageText(preview("frm107_accounts"), 0).contains("T. Iva"));
}

TEST_F(FRM107Test, CopiesTheListIntoAnotherCampus) {
    changeInClinic("delete from listaprecios where tipo_prod in (51, 52)");
    open();
    choose("APERTURA");
    const int count = items(2);
    station.messages.expectWarning(
        "¡Solo se pueden duplicar áreas a otras ciudades, verifique su información!");
    child<IconButton>(screen.get(), "Duplicados")->setFocus();
    press(Qt::Key_Space);
    enter("VAN");
    auto *generate = child<Button>(screen.get(), "Generar");
    EXPECT_FALSE(generate->isEnabled());
    auto *programme = child<LookupField>(screen.get(), "Programa");
    enter("COS");
    programme->setFocus();
    settle();
    enter("980");
    EXPECT_TRUE(generate->hasFocus());  // though no area is chosen
    station.messages.expectWarning("Campo Obligatorio, vuelva a intentar");
    press(Qt::Key_Return);
    EXPECT_TRUE(child<LookupField>(screen.get(), "AreaDestino")->hasFocus());
    tellCopy("COS", "APERTURA DE");
    EXPECT_TRUE(generate->hasFocus());
    picture(screen.get(), "frm107_copy");
    // The third is there already: the copy ends at it, those before it stay.
    changeInClinic("insert into listaprecios (codigo, cve_prod, tipo_prod) values (52003, 3, 52)");
    const QString question = "¿Los datos proporcionados son correctos para generar este proceso? ";
    answer(question);
    station.messages.expect(MessageKind::Error, "*");
    press(Qt::Key_Return);
    EXPECT_EQ(items(52), 3);
    EXPECT_EQ(station.frame.progressEnded, 1);
    EXPECT_EQ(station.frame.progressSteps, 2);

    changeInClinic("delete from listaprecios where tipo_prod=52");
    answer(question);
    station.messages.expectInformation(
        "La información ha sido registrada correctamente, presione "
        "cualquier tecla para continuar.");
    generate->setFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(items(52), count);
    EXPECT_EQ(stored(52004, "prog||'/'||descr").toString(),
              "980/REPOSICION DE EXPEDIENTE INFANTIL");
    for (const char *column : {"menudeo", "fecha_mov", "subsubcta", "nomenclatura", "tipodeiva",
                               "porcentajeiva", "clasificacioniva", "claveprodserv", "vigente"}) {
        EXPECT_EQ(stored(52004, column), stored(2004, column)) << column;
    }
    EXPECT_EQ(station.frame.progressSteps, 2 + count);
    EXPECT_FALSE(generate->isEnabled());
    EXPECT_TRUE(child<LookupField>(screen.get(), "AreaDestino")->text().isEmpty());
}

TEST_F(FRM107Test, ABusinessHasTheFirstTenAreas) {
    station.options.sector = Sector::Empresarial;
    open();
    EXPECT_EQ(station.odonto.AreaVenta.count(), 10);
    screen.reset();
    station.odonto.AreaVenta.open();
    EXPECT_GT(station.odonto.AreaVenta.count(), 10);
}

TEST_F(FRM107Test, EndsTheListOfOneAreaAlone) {
    open();
    auto *ending = child<Button>(screen.get(), "BorrarLista");
    EXPECT_FALSE(ending->isEnabled());
    choose("APERTURA");
    const int others = inClinic("select count(*) from listaprecios where tipo_prod<>2").toInt();
    ending->setFocus();
    const QString question = "¿Se borrarán todos los productos de esta área, desea proceder?";
    answer(question, Answer::No);
    press(Qt::Key_Space);
    EXPECT_GT(items(2), 0);
    EXPECT_TRUE(station.messages.boxes().last().detail.startsWith(
        "Área de Ventas: APERTURA DE EXPEDIENTE\nProductos: "));
    answer(question);
    station.messages.expectInformation(
        "La información ha sido eliminado correctamente, presione cualquier tecla para continuar.");
    press(Qt::Key_Space);
    EXPECT_EQ(items(2), 0);
    EXPECT_EQ(inClinic("select count(*) from listaprecios").toInt(), others);
    EXPECT_FALSE(ending->isEnabled() || button("SpeedButton2")->isEnabled());
    EXPECT_EQ(borrarPreciosText(2).odbc().trimmed(), "Delete from ListaPrecios");
}

TEST_F(FRM107Test, LongListsBreakWellAndAnEmptyOnePreviewsNothing) {
    station.session.Ciudad = "Valle Norte";
    open();
    const report::Document document = preview("frm107");
    ASSERT_GT(document.pageCount(), 10);
    for (int number = 0; number < document.pageCount(); ++number) {
        const QString page = report::pageText(document, number);
        EXPECT_TRUE(page.contains(QString("No. página: %1\n").arg(number + 1)));
        EXPECT_TRUE(page.contains("Lista de Precios Valle Norte\n"));
        const auto titles = page.indexOf("Clave\n");
        const auto line = page.indexOf("$");
        EXPECT_TRUE(titles >= 0 && titles < line) << number;
        EXPECT_LT(page.indexOf("Área Venta\n"), titles) << number;
    }
    changeInClinic("delete from listaprecios");
    EXPECT_EQ(preview("frm107").pageCount(), 0);
}

}  // namespace
}  // namespace kaldo::test
