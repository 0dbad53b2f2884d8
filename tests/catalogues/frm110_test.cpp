#include "catalogues/frm110_banks.h"

#include "tests/catalogues/catalogue_test.h"

namespace kaldo::test {
namespace {

class FRM110Test : public CatalogueTest<FRM110> {
protected:
    QString panelName() const override { return "Bancos"; }
    QVariant inFinance(const QString &text, const Parameters &values = {}) {
        return valueOf(station.conexion.FBFinanzas, text, values);
    }
};

TEST_F(FRM110Test, BankIsAddedWithItsAccountAndItsProgramme) {
    open();
    alt(Qt::Key_I);
    enter("77");
    picture(screen.get(), "frm110_insert");
    enter("1");
    enter("1");
    enter("1");
    enter("");
    enter("");
    enter("");
    enter("banco nuevo");
    answer(kSave);
    enter("2");
    station.messages.verify();
    EXPECT_EQ(inFinance("select descripcion from cg_banco where bancoid=77").toString(),
              "BANCO NUEVO");
    EXPECT_EQ(inFinance("select tipomoneda from cg_banco where bancoid=77").toInt(), 2);
    picture(screen.get(), "frm110");
}

}  // namespace
}  // namespace kaldo::test
