#include "tests/payments/frm401_fixture.h"
#include "tests/support/seams.h"

#include "toolkit/forms/choice.h"
#include "toolkit/forms/data_grid.h"

namespace kaldo {
namespace {

using test::atWrite;
using test::child;
using test::hold;
using test::Moment;
using test::picture;
using test::press;
using test::refusing;
using test::TestSeam;
using test::typeText;

class PaymentNoteLines : public test::PaymentNoteFixture {
protected:
    PaymentNoteLines() {
        open();
        chooseService("PG");
        chooseArea("PUB");
        for (const char *name : {"lopez", "ruiz", "eva"}) {
            typeText(name);
            press(Qt::Key_Return);
        }
        EXPECT_EQ(focused(), "AgregarRegistro");
        prices = test::rowsOf(station.clinic(),
                              "select cve_prod, descr, menudeo, codigo from listaprecios where "
                              "tipo_prod=6 order by cve_prod");
    }
    /// The lines as they stand in the local database.
    QList<QVariantList> stored() {
        return test::rowsOf(station.conexion.FBLocal,
                            "select cve_prod, cant, precio, total, descripcion, num_caja, "
                            "nota_vta, tipo_prod, codigo, prog from detallevtas");
    }
    QString column() const { return child<DataGrid>(screen.get(), "Detalle")->currentField(); }

    QList<QVariantList> prices;
};

TEST_F(PaymentNoteLines, ALineIsStoredWithAllOfItsConcept) {
    addLine("2", "3");
    const QList<QVariantList> rows = stored();
    ASSERT_EQ(rows.size(), 1);
    const double price = prices[1][2].toDouble();
    EXPECT_EQ(rows[0][0].toInt(), 2);
    EXPECT_EQ(rows[0][1].toInt(), 3);
    EXPECT_EQ(rows[0][2].toDouble(), price);
    EXPECT_EQ(rows[0][3].toDouble(), 3 * price);
    EXPECT_EQ(rows[0][4].toString(), prices[1][1].toString());
    EXPECT_EQ(rows[0][5].toInt(), 1);
    EXPECT_EQ(rows[0][6].toInt(), 1);
    EXPECT_EQ(rows[0][7].toInt(), 6);
    EXPECT_EQ(rows[0][8].toInt(), prices[1][3].toInt());
    EXPECT_EQ(rows[0][9].toString(), "12510");
    EXPECT_EQ(text("SubTotal"), formatMoney(3 * price).toStdString());
    EXPECT_EQ(text("CEdit3"), formatMoney(3 * price).toStdString());
    EXPECT_TRUE(enabled("Registrar"));
    EXPECT_TRUE(enabled("BorrarRegistro"));
}

TEST_F(PaymentNoteLines, KeysThatCannotStandKeepTheCursor) {
    press(Qt::Key_Return);
    EXPECT_FALSE(enabled("AgregarRegistro"));
    EXPECT_FALSE(enabled("GrabarInformacion"));
    EXPECT_TRUE(enabled("CancelarRegistro"));
    EXPECT_EQ(column(), "CVE_PROD");
    for (const char *unknown : {"9999", "99999999999", "zzz", "'", "%", "-1"}) {
        station.messages.expectInformation(
            "La clave no se encuentra en la lista de precios, vuelva a intentar.");
        typeText(unknown);
        press(Qt::Key_Return);
        EXPECT_EQ(column(), "CVE_PROD") << unknown;
        EXPECT_TRUE(lines().isNull("CVE_PROD")) << unknown;
        EXPECT_TRUE(lines().isNull("DESCRIPCION")) << unknown;
    }
    typeText("1");
    press(Qt::Key_Return);
    EXPECT_EQ(column(), "DESCRIPCION");
    press(Qt::Key_Return);
    typeText("1");
    press(Qt::Key_Return);

    press(Qt::Key_Return);
    station.messages.expectInformation(
        "La clave ya se encuentra registrada, presione cualquier tecla para continuar.");
    typeText("1");
    press(Qt::Key_Return);
    EXPECT_EQ(column(), "CVE_PROD");
    EXPECT_TRUE(lines().isNull("CVE_PROD"));
    press(Qt::Key_Escape);
    EXPECT_EQ(stored().size(), 1);
}

TEST_F(PaymentNoteLines, AnEmptyKeyTakesTheCurrentConcept) {
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    EXPECT_EQ(column(), "DESCRIPCION");
    // The list is ordered by description; its first row is the current one.
    const QVariantList first = test::rowsOf(
        station.clinic(),
        "select first 1 cve_prod, descr from listaprecios where tipo_prod=6 order by descr")[0];
    EXPECT_EQ(lines().text("DESCRIPCION"), first[1].toString());
    press(Qt::Key_Return);
    typeText("2");
    press(Qt::Key_Return);
    ASSERT_EQ(stored().size(), 1);
    EXPECT_FALSE(stored()[0][0].isValid());
    // A second time the same concept could not be registered.
    press(Qt::Key_Return);
    station.messages.expectInformation(
        "La clave ya se encuentra registrada, presione cualquier tecla para continuar.");
    press(Qt::Key_Return);
    EXPECT_EQ(column(), "CVE_PROD");
    station.messages.expectInformation(
        "La clave ya se encuentra registrada, presione cualquier tecla para continuar.");
    typeText(first[0].toString());
    press(Qt::Key_Return);
    EXPECT_EQ(column(), "CVE_PROD");
    press(Qt::Key_Escape);
    EXPECT_EQ(stored().size(), 1);
    // And it can be taken away again.
    press(Qt::Key_Tab);
    station.messages.expectConfirmation("¿Desea borrar este concepto?", Answer::Yes);
    press(Qt::Key_Space);
    EXPECT_EQ(stored().size(), 0);
}

TEST_F(PaymentNoteLines, LinesWithoutAKeyAreTakenAwayOneByOne) {
    const auto takeCurrentConcept = [this] {
        for (int cell = 0; cell < 3; ++cell) {
            press(Qt::Key_Return);
        }
        typeText("1");
        press(Qt::Key_Return);
    };
    takeCurrentConcept();
    // Another concept becomes the current one by being picked for a line that is then given up.
    press(Qt::Key_Return);
    press(Qt::Key_F4);
    typeText(prices[2][1].toString().left(16));
    press(Qt::Key_Return);
    press(Qt::Key_Escape);
    takeCurrentConcept();
    ASSERT_EQ(stored().size(), 2);
    EXPECT_FALSE(stored()[0][0].isValid() || stored()[1][0].isValid());
    EXPECT_EQ(lines().text("DESCRIPCION"), prices[2][1].toString()) << "the line just saved";
    press(Qt::Key_Tab);
    station.messages.expectConfirmation("¿Desea borrar este concepto?", Answer::Yes);
    press(Qt::Key_Space);
    EXPECT_EQ(stored().size(), 1);
    EXPECT_NE(lines().text("DESCRIPCION"), prices[2][1].toString());
}

TEST_F(PaymentNoteLines, TheListOfConceptsIsSoughtByDescription) {
    press(Qt::Key_Return);
    press(Qt::Key_F4);
    picture(QApplication::activePopupWidget(), "lines-list");
    typeText(prices[2][1].toString().left(16));
    press(Qt::Key_Return);
    EXPECT_EQ(lines().integer("CVE_PROD"), 3);
    press(Qt::Key_Return);
    EXPECT_EQ(lines().text("DESCRIPCION").toStdString(), prices[2][1].toString().toStdString());
}

TEST_F(PaymentNoteLines, QuantitiesAreWholeAndFit) {
    press(Qt::Key_Return);
    typeText("1");
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    EXPECT_EQ(column(), "CANT");
    for (const char *nothing : {"", "0", "00"}) {
        station.messages.expectInformation("Campo obligatorio, vuelva a intentar.");
        typeText(nothing);
        press(Qt::Key_Return);
        EXPECT_EQ(column(), "CANT") << nothing;
    }
    station.messages.expectWarning("La cantidad no puede ser mayor que 32767, vuelva a intentar.");
    typeText("32768");
    press(Qt::Key_Return);
    EXPECT_EQ(column(), "CANT");
    // The same by the button.
    station.messages.expectWarning("La cantidad no puede ser mayor que 32767, vuelva a intentar.");
    pressLetter(Qt::Key_I);
    EXPECT_EQ(stored().size(), 0);
    EXPECT_EQ(column(), "CANT");
    // Neither is a line without a quantity saved by the button.
    press(Qt::Key_F2);
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Delete);
    station.messages.expectInformation(
        "Ocurrio un error, verifique que los datos esten completos.");
    pressLetter(Qt::Key_I);
    EXPECT_EQ(stored().size(), 0);
    EXPECT_EQ(column(), "CANT");
    station.messages.expectInformation("Campo obligatorio, vuelva a intentar.");
    typeText("-5");
    press(Qt::Key_Return);
    EXPECT_EQ(stored().size(), 0);
    // The price is the list's: neither arrows nor Tab lead to anything but the open row.
    press(Qt::Key_Right);
    typeText("7");
    EXPECT_EQ(lines().number("PRECIO"), prices[0][2].toDouble());
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), "Detalle");
    press(Qt::Key_Left);
    station.messages.expectConfirmation("La cantidad es de 1500, ¿es correcta?", Answer::No);
    typeText("1500");
    press(Qt::Key_Return);
    EXPECT_EQ(column(), "CANT");
    // Letters and points are not typed at all.
    typeText("x3.2e");
    press(Qt::Key_Return);
    ASSERT_EQ(stored().size(), 1);
    EXPECT_EQ(stored()[0][1].toInt(), 32);
    EXPECT_EQ(focused(), "AgregarRegistro");
}

TEST_F(PaymentNoteLines, ASavedQuantityIsCorrectedInItsRow) {
    addLine("1", "2");
    addLine("2");
    addLine("3");
    // The order of typing stays, also where a row went in between.
    tabTo("Detalle");
    press(Qt::Key_Up);
    station.messages.expectConfirmation("¿Desea borrar este concepto?", Answer::Yes);
    press(Qt::Key_Delete, Qt::ControlModifier);
    addLine("4");
    EXPECT_EQ(lines().position(), 2);
    tabTo("Detalle");
    press(Qt::Key_Home, Qt::ControlModifier);
    typeText("30");
    EXPECT_EQ(lines().position(), 0);
    EXPECT_EQ(column(), "CANT");
    press(Qt::Key_Return);
    EXPECT_EQ(focused(), "AgregarRegistro");
    EXPECT_EQ(lines().integer("CANT"), 30);
    tabTo("Detalle");
    press(Qt::Key_F2);
    press(Qt::Key_Escape);
    press(Qt::Key_Escape);
    EXPECT_EQ(stored().size(), 3);
    EXPECT_EQ(
        test::valueOf(station.conexion.FBLocal, "select cant from detallevtas where cve_prod=1")
            .toInt(),
        30);
    EXPECT_TRUE(enabled("Registrar"));
}

TEST_F(PaymentNoteLines, AConceptWithoutAPriceAsksForOne) {
    test::run(station.clinic(), "update listaprecios set menudeo=0 where tipo_prod=6");
    screen.reset();
    open();
    chooseService("PG");
    chooseArea("PUB");
    for (const char *name : {"lopez", "ruiz", "eva"}) {
        typeText(name);
        press(Qt::Key_Return);
    }
    press(Qt::Key_Return);
    typeText("1");
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    typeText("2");
    press(Qt::Key_Return);
    EXPECT_EQ(column(), "PRECIO");
    station.messages.expectInformation(
        "El precio debe ser mayor que cero, presione cualquier tecla para continuar.");
    press(Qt::Key_Return);
    EXPECT_EQ(column(), "CANT");
    press(Qt::Key_Return);
    EXPECT_EQ(column(), "PRECIO");
    typeText("-5");
    press(Qt::Key_Return);
    EXPECT_EQ(column(), "PRECIO") << "refused, and not turned into 5";
    // What is no amount stays in the cell.
    typeText("1.2.3");
    press(Qt::Key_Return);
    EXPECT_EQ(column(), "PRECIO");
    EXPECT_EQ(stored().size(), 0);
    press(Qt::Key_A, Qt::ControlModifier);
    typeText("1,250.50");
    picture(screen.get(), "lines-price");
    press(Qt::Key_Return);
    ASSERT_EQ(stored().size(), 1);
    EXPECT_EQ(stored()[0][2].toDouble(), 1250.50);
    EXPECT_EQ(text("CEdit3"), "$2,501.00");
}

TEST_F(PaymentNoteLines, CancellingAndDeletingGiveTheListsBack) {
    press(Qt::Key_Return);
    EXPECT_FALSE(enabled("ComboBox1"));
    typeText("1");
    press(Qt::Key_Escape);
    press(Qt::Key_Escape);
    EXPECT_EQ(focused(), "AgregarRegistro");
    EXPECT_TRUE(enabled("ComboBox1"));
    EXPECT_EQ(lines().count(), 0);
    EXPECT_FALSE(enabled("Registrar"));

    addLine("1");
    addLine("2");
    press(Qt::Key_Insert);
    EXPECT_EQ(column(), "CVE_PROD");
    pressLetter(Qt::Key_N);
    EXPECT_EQ(stored().size(), 2);
    EXPECT_FALSE(enabled("ComboBox1"));
    EXPECT_TRUE(enabled("Registrar"));

    station.messages.expectConfirmation("¿Desea borrar este concepto?", Answer::No);
    press(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(stored().size(), 2);
    // A line that stays in the table stays on the screen.
    TestSeam full(Moment::BeforeCommit, atWrite(), refusing("No hay espacio en el disco."));
    station.conexion.FBLocal.setSeam(&full);
    station.messages.expectConfirmation("¿Desea borrar este concepto?", Answer::Yes);
    station.messages.expectError("No hay espacio en el disco.");
    press(Qt::Key_Delete, Qt::ControlModifier);
    station.conexion.FBLocal.setSeam(nullptr);
    EXPECT_EQ(lines().count(), 2);
    for (int left = 1; left >= 0; --left) {
        station.messages.expectConfirmation("¿Desea borrar este concepto?", Answer::Yes);
        press(Qt::Key_Delete, Qt::ControlModifier);
        EXPECT_EQ(stored().size(), left);
    }
    EXPECT_EQ(text("CEdit3"), "$0.00");
    EXPECT_FALSE(enabled("Registrar"));
    EXPECT_FALSE(enabled("BorrarRegistro"));
}

TEST_F(PaymentNoteLines, AHeldEnterPressesAndTakesNothing) {
    hold(Qt::Key_Return, 20);
    // The first stroke opened a row; the repeats did nothing with it.
    EXPECT_EQ(column(), "CVE_PROD");
    EXPECT_TRUE(lines().isNull("DESCRIPCION"));
    typeText("1");
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    typeText("1");
    hold(Qt::Key_Return, 20);
    EXPECT_EQ(stored().size(), 1);
    EXPECT_EQ(focused(), "AgregarRegistro");
    EXPECT_TRUE(enabled("Registrar"));
}

TEST_F(PaymentNoteLines, ALineTakesAnAdditionalDescription) {
    addLine("1");
    tabTo("Detalle");
    auto *dialog = screen->findChild<QDialog *>();
    EXPECT_EQ(dialog, nullptr);
    const auto inDescription = [this](std::function<void(QDialog *)> strokes) {
        QTimer::singleShot(0, screen.get(), [strokes] {
            auto *open = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            ASSERT_NE(open, nullptr);
            ASSERT_TRUE(QTest::qWaitForWindowActive(open));
            test::settle();
            strokes(open);
        });
        press(Qt::Key_F6);
    };
    inDescription([this](QDialog *open) {
        EXPECT_EQ(focused(), "Memo1");
        EXPECT_FALSE(child<QWidget>(open, "AplicarCambios")->isEnabled());
        typeText("pieza ");
        press(Qt::Key_Return);
        typeText("26 ");
        picture(open, "lines-description");
        pressLetter(Qt::Key_A);
    });
    EXPECT_EQ(test::valueOf(station.conexion.FBLocal, "select desc_adic from detallevtas"),
              "PIEZA  26");
    inDescription([](QDialog *open) {
        EXPECT_EQ(child<Memo>(open, "Memo1")->text(), "PIEZA  26");
        typeText("perdido");
        press(Qt::Key_Escape);
    });
    EXPECT_EQ(test::valueOf(station.conexion.FBLocal, "select desc_adic from detallevtas"),
              "PIEZA  26");
    EXPECT_EQ(lines().state(), NamedQuery::State::Browsing);
    EXPECT_EQ(focused(), "Detalle");
}

}  // namespace
}  // namespace kaldo
