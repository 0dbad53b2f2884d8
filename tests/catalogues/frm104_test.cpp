#include "catalogues/frm104_service_classes.h"

#include <QTest>
#include <QTimer>

#include "tests/catalogues/catalogue_test.h"

namespace kaldo::test {
namespace {

const QString kCorrect = "¿La información es correcta?";
const QString kDiscountCorrect = "La información es correcta?";
const QString kRemoveService = "Desea borrar este servicio?";
constexpr int kAdults = 4;

class FRM104Test : public CatalogueTest<FRM104> {
protected:
    QString panelName() const override { return "Servicios"; }
    QVariant stored(const QString &column) {
        return inClinic("select " + column +
                        " from clasifservicios where ciudad='VAN' and tipo_prod=4");
    }
    QVariant discount(int prestacion, const QString &column) {
        return inClinic("select " + column +
                            " from prestacionxserv where centro='01' and tipo_prod=4 and "
                            "prestacion=:p",
                        {{"p", prestacion}});
    }
    void openAdults() {
        open();
        child<LookupField>(screen.get(), "Centro")->setFocus();
        settle();
        enter("CLINICA DE LIC");
        enter("ADULTOS");
    }
    /// Presses the button and runs the strokes in the dialog, which Escape closes.
    void inDiscounts(const std::function<void(CataloguePanel *)> &strokes) {
        QTimer::singleShot(0, screen.get(), [strokes] {
            QWidget *dialog = QApplication::activeModalWidget();
            ASSERT_NE(dialog, nullptr);
            EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
            settle();
            strokes(child<CataloguePanel>(dialog, "Descuentos"));
            press(Qt::Key_Escape);
        });
        child<Button>(screen.get(), "ActualizarDescuento")->setFocus();
        press(Qt::Key_Space);
    }
};

TEST_F(FRM104Test, AServiceIsOpenedChangedDeletedAndCreatedAgain) {
    open();
    EXPECT_FALSE(button("SpeedButton1")->isEnabled());
    openAdults();
    auto *percent = child<Button>(screen.get(), "ActualizarDescuento");
    EXPECT_EQ(station.session.ClasifDescr.text(), "ADULTOS");
    EXPECT_EQ(query().integer("tipo_prod"), kAdults);
    EXPECT_EQ(query().text("CLDescr"), "ADULTOS");
    EXPECT_TRUE(button("SpeedButton1")->isEnabled() && percent->isEnabled());
    picture(screen.get(), "frm104");

    // Ages follow "Req. Edad": taken away they can't be reached, asked for again they can.
    press(Qt::Key_F2);
    EXPECT_EQ(grid()->currentField(), "APLICADESC");
    EXPECT_FALSE(percent->isEnabled());
    press(Qt::Key_Return);
    typeText("n");
    answer(kCorrect);
    press(Qt::Key_Return);
    EXPECT_EQ(stored("requiere_edad").toString(), "N");
    press(Qt::Key_F2);
    press(Qt::Key_Return);
    typeText("s");
    press(Qt::Key_Return);
    enter("1x899");
    picture(screen.get(), "frm104_edit");
    answer(kCorrect);
    enter("65");
    EXPECT_EQ(stored("requiere_edad||edadmin||'-'||edadmax").toString(), "S189-65");

    answer(kRemoveService);
    alt(Qt::Key_B);
    EXPECT_FALSE(stored("tipo_prod").isValid());

    alt(Qt::Key_I);
    EXPECT_EQ(grid()->currentField(), "APLICA_ANTICIPO");
    EXPECT_EQ(query().text("CLDescr"), "ADULTOS");
    typeText("s");
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    answer(kCorrect);
    press(Qt::Key_Return);
    EXPECT_EQ(stored("aplica_anticipo||aplicadesc||requiere_edad||edadmin||edadmax").toString(),
              "SNN00");
    // The row of the area stands: a second one is refused by its key, and dropped.
    alt(Qt::Key_I);
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    answer(kCorrect);
    station.messages.expect(MessageKind::Error, "*");
    press(Qt::Key_Return);
    EXPECT_FALSE(panel()->editing());

    // An area that is emptied, or written over, is none: nothing can be written for it.
    child<LookupField>(screen.get(), "AreaVentas")->setFocus();
    child<LookupField>(screen.get(), "AreaVentas")->selectAll();
    settle();
    press(Qt::Key_Delete);
    EXPECT_FALSE(query().isOpen() || button("SpeedButton1")->isEnabled() || percent->isEnabled());
    enter("ADULTOS");
    EXPECT_TRUE(button("SpeedButton1")->isEnabled() && percent->isEnabled());
    // Another centre begins anew.
    child<LookupField>(screen.get(), "Centro")->setFocus();
    child<LookupField>(screen.get(), "Centro")->selectAll();
    enter("CLINICA DE ESP");
    EXPECT_TRUE(child<LookupField>(screen.get(), "AreaVentas")->text().isEmpty());
    EXPECT_FALSE(button("SpeedButton1")->isEnabled() || percent->isEnabled());
}

TEST_F(FRM104Test, DiscountsDecideWhetherTheServiceHasAny) {
    openAdults();
    changeInClinic("update clasifservicios set aplicadesc='N' where tipo_prod=4");
    inDiscounts([&](CataloguePanel *discounts) {
        NamedQuery &row = discounts->query();
        picture(discounts->window(), "frm104a");
        EXPECT_EQ(child<TextField>(discounts->window(), "TipoServicio")->text(), "ADULTOS");
        EXPECT_EQ(row.text("CLDescr"), "EMPLEADO ADMINISTRATIVO");
        alt(Qt::Key_I);
        EXPECT_EQ(row.integer("prestacion"), 0);
        station.messages.expectInformation(
            "Esta prestación ya existe para este tipo de servicio, vuelva a intentar");
        enter("5");
        EXPECT_TRUE(row.isNull("prestacion"));
        // 1 begins 11 and 12, which stand: by prefix it is refused as well.
        station.messages.expectInformation(
            "Esta prestación ya existe para este tipo de servicio, vuelva a intentar");
        enter("paciente");
        press(Qt::Key_Up);
        EXPECT_FALSE(discounts->editing());

        for (const char *prestacion : {"11", "12"}) {
            ASSERT_TRUE(row.locate({{"prestacion", prestacion}}));
            answer(kRemoveService);
            alt(Qt::Key_B);
        }
        alt(Qt::Key_I);
        enter("paciente");
        EXPECT_EQ(row.text("CLDescr"), "PACIENTE GENERAL");
        EXPECT_EQ(discounts->grid()->currentField(), "EDAD");
        picture(discounts->window(), "frm104a_insert");
        enter("0");
        station.messages.expectWarning("El descuento no puede pasar de 100 %.");
        enter("101");
        EXPECT_TRUE(discounts->editing());
        answer(kDiscountCorrect);
        enter("15");
        EXPECT_EQ(discount(1, "porcent").toInt(), 15);
        EXPECT_EQ(row.integer("prestacion"), 1);

        press(Qt::Key_F2);
        press(Qt::Key_Return);
        answer(kDiscountCorrect);
        refuseWrite();
        enter("20");
        EXPECT_FALSE(discounts->editing());
    });
    station.messages.verify();
    EXPECT_EQ(discount(1, "porcent").toInt(), 15);
    EXPECT_EQ(stored("aplicadesc").toString(), "S");
    EXPECT_EQ(query().text("aplicadesc"), "S");

    inDiscounts([&](CataloguePanel *discounts) {
        while (!discounts->query().isEmpty()) {
            answer(kRemoveService);
            alt(Qt::Key_B);
        }
    });
    EXPECT_EQ(stored("aplicadesc").toString(), "N");
    EXPECT_EQ(query().text("aplicadesc"), "N");
}

TEST_F(FRM104Test, ReportGroupsByCentreAndArea) {
    openAdults();
    const report::Document document = preview("frm104");
    ASSERT_GT(document.pageCount(), 1);
    const QString page = report::pageText(document, 0);
    EXPECT_TRUE(page.contains("Centro de Atención\n01   CLINICA DE LICENCIATURA VALLE NORTE\n"));
    EXPECT_TRUE(page.contains("Area de Atención\n"));
    EXPECT_TRUE(page.contains("3\nCONYUGE DE EMPLEADO ADMINISTRATIVO\n40 %\n"));
    changeInClinic(
        "insert into prestacionxserv (centro, tipo_prod, prestacion) values ('01', 4, 0)");
    EXPECT_EQ(report::pageText(preview("frm104_zero"), 0), page) << "no class among others";
}

}  // namespace
}  // namespace kaldo::test
