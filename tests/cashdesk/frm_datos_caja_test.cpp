#include "cashdesk/frm_datos_caja_cash_desks.h"

#include "tests/catalogues/catalogue_test.h"
#include "tests/support/accessibility.h"

namespace kaldo::test {
namespace {

const QString kNumberTaken = "El número de caja ya existe vuelva a intentar";
const QString kNameTaken = "El nombre de la caja ya existe vuelva a intentar";
const QString kRequired = "Campo Obligatorio, vuelva a intentar";

class FRMDatosCajaTest : public CatalogueTest<FRMDatosCaja> {
protected:
    QString panelName() const override { return "Cajas"; }
    QVariant stored(int caja, const QString &column) {
        return inClinic("select " + column + " from datoscaja where num_caja=:c", {{"c", caja}});
    }
    bool saveEnabled() { return button("SpeedButton3")->isEnabled(); }
    QString focus() { return QApplication::focusWidget()->objectName(); }
    /// The cells of a new desk after its number, up to the details.
    void typeCells(const QStringList &cells) {
        for (const QString &cell : cells) {
            enter(cell);
        }
    }
};

TEST_F(FRMDatosCajaTest, DeskIsOpenedByKeysAlone) {
    open();
    EXPECT_EQ(query().count(), 2) << "the desk of the other campus isn't listed";
    EXPECT_FALSE(saveEnabled());
    picture(screen.get(), "frm_datos_caja");
    checkAccessibility(*screen);
    alt(Qt::Key_I);
    enter("7");
    EXPECT_TRUE(saveEnabled());
    typeCells({"2024000001", "caja norte", "ingresos \"norte\" 100%"});
    station.messages.expectWarning(kRequired);
    enter("");
    typeCells({"2", "12510", "3", "banco del litoral 4411", "d", "nd", "Caja7@Escuela.example"});
    EXPECT_EQ(focus(), "autoriza");
    typeCells({"ADMIN", "1", "ING-9"});
    typeText("31/02/2024");
    press(Qt::Key_Return);
    EXPECT_EQ(focus(), "fechapaquete") << "no such day";
    press(Qt::Key_G, Qt::AltModifier);
    EXPECT_TRUE(panel()->editing());
    child<QLineEdit>(screen.get(), "fechapaquete")->selectAll();
    typeCells({"15/03/2024", "5", "1"});
    picture(screen.get(), "frm_datos_caja_insert");
    answer(kSave);
    enter("3");
    station.messages.verify();
    QStringList cells;
    for (const QVariant &cell :
         rowsOf(station.clinic(),
                "select nota_vta, nombre, origen, campus, prog_pol, bancomn, bancodll, serie, "
                "serien, correoto, autoriza, tipopaquete, paqueteid, fechapaquete, sistemaid, "
                "pk_tipo_caja, tipoliza from datoscaja where num_caja=7")
             .value(0)) {
        cells += cell.toString();
    }
    EXPECT_EQ(cells.join('|'),
              "2024000001|CAJA NORTE|INGRESOS \"NORTE\" 100%|2|12510|3|2|D|ND|"
              "Caja7@Escuela.example|admin|1|ING-9|2024-03-15|5|1|3");
    EXPECT_EQ(query().integer("num_caja"), 7);
    EXPECT_EQ(query().text("LKBancoMN"), "BANCO DE LA BAHIA 7720 INGRESOS COSTA SUR");
    EXPECT_EQ(child<QLineEdit>(screen.get(), "fechapaquete")->text(), "15/03/2024");
}

TEST_F(FRMDatosCajaTest, NumbersAndNamesAreRefusedByTheirBeginningInAllCampuses) {
    open();
    alt(Qt::Key_I);
    // Desk 12 stands in the way of 1, desk 2 of the other campus in that of 2, any of none.
    for (const char *taken : {"1", "12", "2", ""}) {
        station.messages.expectInformation(kNumberTaken);
        enter(taken);
        EXPECT_TRUE(query().isNull("num_caja")) << taken;
        EXPECT_EQ(grid()->currentField(), "NUM_CAJA");
        EXPECT_FALSE(saveEnabled());
    }
    station.messages.expectWarning("El número de caja debe estar entre 1 y 32767.");
    enter("32768");
    station.messages.expectWarning("El número de caja debe estar entre 1 y 32767.");
    enter("0");
    enter("120");
    enter("1");
    for (const char *taken : {"caja", "caja costa sur"}) {
        station.messages.expectInformation(kNameTaken);
        enter(taken);
        EXPECT_TRUE(query().isNull("nombre")) << taken;
    }
    station.messages.expectWarning(kRequired);
    enter("");
    EXPECT_EQ(grid()->currentField(), "NOMBRE");
    station.messages.expectWarning(kRequired);
    alt(Qt::Key_G);
    EXPECT_TRUE(panel()->editing()) << "a desk without name and campus isn't kept";
    press(Qt::Key_Up);

    press(Qt::Key_F2);
    EXPECT_TRUE(saveEnabled());
    EXPECT_EQ(grid()->currentField(), "NOTA_VTA");
    enter("");
    station.messages.expectInformation(kNameTaken);
    enter("");
    press(Qt::Key_Escape);
    EXPECT_EQ(query().text("nombre"), "CAJA LICENCIATURA") << "its own name, back again";
}

TEST_F(FRMDatosCajaTest, TheDesksAreThoseOfTheUsersRowAsItStands) {
    changeInClinic("update controlusuarios set campus='3' where usuario='admin'");
    open();
    EXPECT_EQ(query().count(), 1);
    press(Qt::Key_F2);
    enter("9999999999");
    answer(kSave);
    station.messages.expectError("El valor «9999999999»*");
    alt(Qt::Key_G);
    EXPECT_TRUE(panel()->editing());
    press(Qt::Key_Escape);
}

TEST_F(FRMDatosCajaTest, DesksAreDeletedUntilNoneIsLeft) {
    open();
    station.session.Ciudad = "Valle Norte";
    station.options.TitulosMayusculas = true;
    station.options.Clinica = "Clínica";
    station.options.Facultad = "Facultad";
    const QString list = report::pageText(preview("frm_datos_caja_report"), 0);
    for (const char *text : {"Datos Caja", "Caja", "Tipo Poliza", "CAJA ESPECIALIDADES", "12520"}) {
        EXPECT_TRUE(list.contains(text)) << text;
    }
    EXPECT_TRUE(list.contains("Campus Valle Norte"));
    EXPECT_TRUE(list.contains("CLINICA\nFACULTAD\n")) << "the pair of the cut";
    station.frame.disabledEntries.clear();
    for (int left = 1; left >= 0; --left) {
        answer(kRemove);
        alt(Qt::Key_B);
        EXPECT_EQ(query().count(), left);
    }
    EXPECT_FALSE(button("SpeedButton2")->isEnabled());
    EXPECT_TRUE(station.frame.disabledEntries.contains("A1"));
    EXPECT_EQ(child<QLineEdit>(screen.get(), "autoriza")->text(), "");
}

}  // namespace
}  // namespace kaldo::test
