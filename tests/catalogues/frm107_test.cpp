#include "catalogues/frm107_price_list.h"

#include "catalogues/item_code.h"
#include "tests/catalogues/catalogue_test.h"

namespace kaldo::test {
namespace {

class FRM107Test : public CatalogueTest<FRM107> {
protected:
    QString panelName() const override { return "Precios"; }
    void choose(const QString &area) {
        auto *field = child<LookupField>(screen.get(), "AreaVentas");
        field->setFocus();
        settle();
        enter(area);
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
    enter("987");
    enter("resina de prueba");
    enter("");
    enter("pieza");
    picture(screen.get(), "frm107_insert");
    answer(kSave);
    enter("1,250.50");
    station.messages.verify();
    const int codigo = itemCode(area, 987);
    const auto stored = [&](const QString &column) {
        return inClinic("select " + column + " from listaprecios where codigo=:c", {{"c", codigo}});
    };
    EXPECT_EQ(stored("descr").toString(), "RESINA DE PRUEBA");
    EXPECT_EQ(stored("menudeo").toDouble(), 1250.5);
    EXPECT_EQ(stored("vigente").toString(), "S");
    EXPECT_EQ(stored("fecha_mov").toDate(), station.clock.today());
    EXPECT_EQ(query().integer("codigo"), codigo);
    screen->previewReport();
}

}  // namespace
}  // namespace kaldo::test
