#include "catalogues/frm109_payment_methods.h"

#include "tests/catalogues/catalogue_test.h"

namespace kaldo::test {
namespace {

const QString kSaveMethod = QStringLiteral("La información es correcta?");
const QString kRemoveMethod = QStringLiteral("Desea borrar este registro?");

class FRM109Test : public CatalogueTest<FRM109> {
protected:
    QString panelName() const override { return "Metodos"; }
    QVariant stored(const QString &clave) {
        return inClinic("select descripcion from metodopagocfdi where clave=:c", {{"c", clave}});
    }
    NamedQuery &classes() { return station.odonto.Prestaciones; }
};

TEST_F(FRM109Test, MethodIsWrittenByKeysAloneAndARefusedOneDropped) {
    open();
    picture(screen.get(), "frm109");
    alt(Qt::Key_I);
    enter("5");
    EXPECT_EQ(query().text("clave"), "05");
    EXPECT_TRUE(button("SpeedButton3")->isEnabled());
    picture(screen.get(), "frm109_insert");
    answer(kSaveMethod);
    enter("vale \"50%\" de O'Neil");
    station.messages.verify();
    EXPECT_EQ(stored("05").toString(), "VALE \"50%\" DE O'NEIL");

    press(Qt::Key_F2);
    EXPECT_EQ(grid()->currentField(), "DESCRIPCION");
    answer(kSaveMethod);
    refuseWrite();
    enter(QString(120, 'x'));
    EXPECT_FALSE(grid()->rowEdit());
    EXPECT_EQ(query().text("clave"), "05");
    answer(kRemoveMethod);
    alt(Qt::Key_B);
    station.messages.verify();
    EXPECT_FALSE(stored("05").isValid());
}

TEST_F(FRM109Test, WhatIsEmptyOrStandsAlreadyIsRefused) {
    struct {
        const char *column, *typed, *box;
        bool cleared;
    } cases[] = {
        {"clave", "", "La clave debe ser mayor que cero.", true},
        {"clave", "  ", "La clave debe ser mayor que cero.", true},
        {"clave", "1", "La clave ya existe vuelva a intentar", true},
        {"descripcion", "", "Campo Obligatorio, vuelva a intentar", false},
        {"descripcion", "efec",
         "Esta descripción ya existe en la lista de prestaciones, vuelva a intentar", true},
    };
    for (const auto &each : cases) {
        open();
        alt(Qt::Key_I);
        if (QString(each.column) == "descripcion") {
            enter("77");
        }
        const QString box = each.box;
        station.messages.expect(each.cleared ? MessageKind::Information : MessageKind::Warning,
                                box);
        enter(each.typed);
        station.messages.verify();
        EXPECT_TRUE(query().text(each.column).isEmpty()) << each.typed;
        EXPECT_EQ(grid()->currentField().toLower(), each.column);
    }
}

TEST_F(FRM109Test, OpeningARowOpensTheClassesOfPatientsAndANoDropsTheirChange) {
    open();
    press(Qt::Key_F2);
    EXPECT_EQ(classes().state(), NamedQuery::State::Editing);
    EXPECT_EQ(query().state(), NamedQuery::State::Browsing);
    station.messages.expectInformation(
        "Esta descripción ya existe en la lista de prestaciones, vuelva a intentar");
    press(Qt::Key_Return);  // unchanged: it finds itself
    EXPECT_TRUE(query().isNull("descripcion"));
    EXPECT_EQ(query().state(), NamedQuery::State::Editing);
    press(Qt::Key_Down);
    EXPECT_EQ(query().text("descripcion"), "EFECTIVO");
    EXPECT_EQ(classes().state(), NamedQuery::State::Editing) << "only a No cancels it";

    press(Qt::Key_F2);
    answer(kSaveMethod, Answer::No);
    enter("otra cosa");
    station.messages.verify();
    EXPECT_EQ(classes().state(), NamedQuery::State::Browsing);
    EXPECT_EQ(query().text("descripcion"), "EFECTIVO");
}

TEST_F(FRM109Test, ReportListsKeyAndDescription) {
    for (int at = 10; at < 28; ++at) {
        changeInClinic("insert into metodopagocfdi values (:c, :d)",
                       {{"c", QString::number(at)},
                        {"d", QString(100, 'M').replace(40, 1, " ").replace(80, 1, " ")}});
    }
    open();
    const QString text = report::dump(preview("frm109_report"));
    EXPECT_TRUE(text.contains("Métodos de Pago") && text.contains("Clave")) << qPrintable(text);
    EXPECT_TRUE(text.contains("TARJETA DE DEBITO")) << qPrintable(text);
}

}  // namespace
}  // namespace kaldo::test
