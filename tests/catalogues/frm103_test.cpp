#include "catalogues/frm103_patient_classes.h"

#include "tests/catalogues/catalogue_test.h"

namespace kaldo::test {
namespace {

const QString kCorrect = "La información es correcta?";
const QString kRemoveRecord = "Desea borrar este registro?";

class FRM103Test : public CatalogueTest<FRM103> {
protected:
    QString panelName() const override { return "Prestaciones"; }
    QVariant stored(int prestacion, const QString &column) {
        return inClinic("select " + column + " from prestaciones where prestacion=:p",
                        {{"p", prestacion}});
    }
};

TEST_F(FRM103Test, ClassIsWrittenChangedAndDeletedByKeysAlone) {
    open();
    EXPECT_TRUE(grid()->isColumnHidden(2)) << "no government accounting";
    picture(screen.get(), "frm103");
    alt(Qt::Key_I);
    enter("20");
    EXPECT_TRUE(button("SpeedButton3")->isEnabled());
    answer(kCorrect);
    enter("jubilado 'd''honor' 50%");
    EXPECT_EQ(stored(20, "descripcion||'<'||beneficiario||'>'").toString(),
              "JUBILADO 'D''HONOR' 50%<>");
    EXPECT_EQ(query().integer("prestacion"), 20);

    press(Qt::Key_F2);
    EXPECT_EQ(grid()->currentField(), "DESCRIPCION");
    typeText(QString(130, 'x'));
    answer(kCorrect);
    refuseWrite();
    press(Qt::Key_Return);
    EXPECT_FALSE(panel()->editing());
    answer(kRemoveRecord);
    alt(Qt::Key_B);
    EXPECT_FALSE(stored(20, "prestacion").isValid());
}

TEST_F(FRM103Test, WhatIsEmptyOrStandsAlreadyIsRefused) {
    changeInClinic("insert into prestaciones (prestacion, descripcion) values (120, 'OTRA')");
    changeInClinic("delete from prestaciones where prestacion=12");
    const QString zero = "La Prestación debe ser mayor que cero.";
    const QString exists = "La Prestación ya existe vuelva a intentar";
    const QString described =
        "Esta descripción ya existe en la lista de prestaciones, vuelva a intentar";
    const struct {
        QString typed, box;
        bool description;
    } cases[] = {
        {"", zero, false},         {"0", zero, false},
        {"-3", zero, false},       {"a12", exists, false},
        {"5", exists, false},      {"empleado", described, true},
        {"otra", described, true}, {"paciente G", described, true},
    };
    open();
    for (const auto &each : cases) {
        SCOPED_TRACE(each.typed.toStdString());
        alt(Qt::Key_I);
        if (each.description) {
            enter("77");
        }
        station.messages.expectInformation(each.box);
        enter(each.typed);
        const QString column = each.description ? "DESCRIPCION" : "PRESTACION";
        EXPECT_TRUE(query().isNull(column));
        EXPECT_EQ(grid()->currentField(), column);
        press(Qt::Key_Down);
        EXPECT_FALSE(panel()->editing());
    }
    station.messages.expectWarning("Campo Obligatorio, vuelva a intentar");
    alt(Qt::Key_I);
    enter("77");
    enter("");
    press(Qt::Key_Escape);
    // The row that is open is no exception.
    station.messages.expectInformation(described);
    press(Qt::Key_F2);
    enter("");
    EXPECT_TRUE(query().isNull("descripcion"));
}

TEST_F(FRM103Test, RelativesAreNamedWithGovernmentAccounting) {
    station.options.ContabilidadGubernamental = true;
    open();
    alt(Qt::Key_I);
    enter("30");
    enter("nieto");
    EXPECT_EQ(grid()->currentField(), "BENEFICIARIO");
    press(Qt::Key_F4);
    picture(screen.get(), "frm103_accounts");
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    answer(kCorrect);
    press(Qt::Key_Return);
    EXPECT_EQ(stored(30, "beneficiario").toString(), "6");
    const QString page = report::pageText(preview("frm103"), 0);
    EXPECT_TRUE(page.contains("30\nNIETO\nCONYUGE DE EMPLEADO ACADEMICO\n"));
    EXPECT_TRUE(page.contains("Beneficiario"));

    // Emptied again it is a holder's class, which lists find by an empty text.
    press(Qt::Key_F2);
    enter("NIETO MAYOR");
    typeText("4");
    press(Qt::Key_Backspace);
    answer(kCorrect);
    press(Qt::Key_Return);
    EXPECT_EQ(stored(30, "descripcion||'<'||beneficiario||'>'").toString(), "NIETO MAYOR<>");
    station.options.ContabilidadGubernamental = false;
    open();
    EXPECT_FALSE(report::pageText(preview("frm103_plain"), 0).contains("Beneficiario"));
}

}  // namespace
}  // namespace kaldo::test
