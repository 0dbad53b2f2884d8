#include "catalogues/frm108_payment_forms.h"

#include "tests/catalogues/catalogue_test.h"

namespace kaldo::test {
namespace {

class FRM108Test : public CatalogueTest<FRM108> {
protected:
    QString panelName() const override { return "Formas"; }
    QVariant stored(int tipo, const QString &column) {
        return inClinic("select " + column + " from tipo_formapago where idtipo=:t", {{"t", tipo}});
    }
};

TEST_F(FRM108Test, FormIsAddedByKeysAlone) {
    open();
    alt(Qt::Key_I);
    station.messages.expectWarning(
        "El tipo de pago ya se encuentra registrada, presione cualquier tecla para continuar.");
    enter("3");
    EXPECT_TRUE(query().isNull("idtipo"));
    EXPECT_EQ(grid()->currentField(), "IDTIPO");
    EXPECT_FALSE(button("SpeedButton3")->isEnabled());
    enter("");
    station.messages.expectWarning("Campo Obligatorio, vuelva a intentar");
    alt(Qt::Key_G);
    EXPECT_EQ(grid()->currentField(), "IDTIPO") << "no row without its key";
    enter("a7");  // the letter can't be typed
    EXPECT_TRUE(button("SpeedButton3")->isEnabled());
    answer(kSave);
    enter("vale de 'despensa' " + QString(80, 'x'));
    EXPECT_EQ(stored(7, "tipopago").toString(),
              QString("VALE DE 'DESPENSA' " + QString(80, 'X')).left(80));

    press(Qt::Key_F2);
    EXPECT_EQ(grid()->currentField(), "TIPOPAGO");
    press(Qt::Key_Up);
    picture(screen.get(), "frm108");
    EXPECT_TRUE(report::pageText(preview("frm108"), 0).contains("VALE"));
}

TEST_F(FRM108Test, AccountsAreAskedForWhereGovernmentAccountingApplies) {
    station.options.ContabilidadGubernamental = true;
    open();
    press(Qt::Key_F2);
    press(Qt::Key_Return);
    for (const char *level : {"4", "1", "7", "5"}) {
        enter(level);
    }
    EXPECT_EQ(grid()->currentField(), "SUBCTAID");
    answer(kSave);
    enter("1");
    EXPECT_EQ(stored(1, "nomenclatura").toString(), "4.1.7.5.1");
    picture(screen.get(), "frm108_accounts");
    EXPECT_TRUE(report::pageText(preview("frm108_accounts"), 0).contains("4.1.7.5.1"));
}

}  // namespace
}  // namespace kaldo::test
