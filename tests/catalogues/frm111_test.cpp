#include "catalogues/frm111_exchange_rate.h"

#include "tests/catalogues/catalogue_test.h"

namespace kaldo::test {
namespace {

const QString kSaveRate = QStringLiteral("La información es correcta?");

class FRM111Test : public CatalogueTest<FRM111> {
protected:
    QString panelName() const override { return "TiposCambio"; }
    double inForce() { return inClinic("select tipo_cam from control").toDouble(); }
    qint64 session() { return station.session.TipoCambio.tenThousandths(); }
    void addRate(const QString &rate) {
        alt(Qt::Key_I);
        answer(kSaveRate);
        enter(rate);
        station.messages.verify();
    }
};

TEST_F(FRM111Test, ANewRateIsInForceAtOnce) {
    open();
    alt(Qt::Key_I);
    EXPECT_EQ(query().position(), 0) << "above the others";
    EXPECT_EQ(query().date("fecha"), station.clock.today());
    EXPECT_EQ(grid()->currentField(), "TIPO_CAM");
    picture(screen.get(), "frm111_insert");
    answer(kSaveRate);
    enter("20.12346");
    station.messages.verify();
    EXPECT_EQ(inClinic("select first 1 tipo_cam from tipocambio order by consec desc").toDouble(),
              20.12346);
    EXPECT_EQ(inForce(), 20.12346);
    EXPECT_EQ(session(), 201235);
    EXPECT_EQ(query().position(), 0);
    EXPECT_EQ(query().number("tipo_cam"), 20.12346);
    EXPECT_GT(query().integer("consec"), 3);
    EXPECT_EQ(station.frame.ratesShown, 1);
    picture(screen.get(), "frm111");

    station.session.Acceso = "MA";
    addRate("20.5");
    EXPECT_EQ(session(), 205000);
    EXPECT_EQ(station.frame.ratesShown, 1) << "not this profile's";
    station.session.Acceso = "CA";
    addRate("$1,020.75");
    EXPECT_EQ(session(), 10207500);
    EXPECT_EQ(station.frame.ratesShown, 2);
}

TEST_F(FRM111Test, AnOldRateThatIsChangedIsWrittenToTheControlRowButNotInForce) {
    open();
    press(Qt::Key_Down);
    press(Qt::Key_F2);
    EXPECT_EQ(station.odonto.Prestaciones.state(), NamedQuery::State::Editing);
    EXPECT_EQ(query().state(), NamedQuery::State::Browsing);
    answer(kSaveRate);
    enter("17.5");
    station.messages.verify();
    EXPECT_EQ(query().number("tipo_cam"), 17.5) << "the cursor goes back to it";
    EXPECT_EQ(query().position(), 1);
    EXPECT_EQ(inForce(), 17.5);
    EXPECT_EQ(session(), 195000);

    answer("Desea borrar este registro?");
    alt(Qt::Key_B);
    station.messages.verify();
    EXPECT_EQ(inClinic("select count(*) from tipocambio").toInt(), 2);
}

TEST_F(FRM111Test, ARateThatStandsOrIsNoneIsRefused) {
    struct {
        const char *typed, *box;
        bool warning;
    } cases[] = {
        {"", "Campo Obligatorio, vuelva a intentar", true},
        {"0.00", "Campo Obligatorio, vuelva a intentar", true},
        {"18.1234", "Este Tipo de cambio ya existe para esta fecha, vuelva a intentar", false},
        {"19.50abc", "Este Tipo de cambio ya existe para esta fecha, vuelva a intentar", false},
    };
    open();
    for (const auto &each : cases) {
        alt(Qt::Key_I);
        const QString box = each.box;
        station.messages.expect(each.warning ? MessageKind::Warning : MessageKind::Information,
                                box);
        enter(each.typed);
        station.messages.verify();
        EXPECT_EQ(query().isNull("tipo_cam"), QString(each.typed) != "0.00") << each.typed;
        press(Qt::Key_Up);
    }
    for (const char *typed : {"0", "1000000"}) {
        press(Qt::Key_F2);
        typeText(typed);
        station.messages.expect(MessageKind::Warning, "*");
        alt(Qt::Key_G);
        EXPECT_TRUE(panel()->editing()) << "not past Enter either";
        press(Qt::Key_Up);
    }
    EXPECT_EQ(inForce(), 19.5);
    alt(Qt::Key_I);
    for (const char *typed : {"1.2.3", "-20.50"}) {
        enter(typed);
        EXPECT_TRUE(grid()->editorOpen()) << typed << " is told beside the cell, and kept";
    }
    press(Qt::Key_Escape);
    press(Qt::Key_Escape);
    EXPECT_EQ(query().count(), 3);
}

TEST_F(FRM111Test, AWriteThatFailsCancelsTheRowWhereverItFails) {
    open();
    for (const int write : {1, 2}) {
        alt(Qt::Key_I);
        answer(kSaveRate);
        refuseWrite(write);
        enter(QString("2%1.5").arg(write));
        station.messages.verify();
        EXPECT_FALSE(grid()->rowEdit());
        EXPECT_EQ(query().count(), 2 + write) << "what was written before the failure stands";
        EXPECT_EQ(inForce(), 19.5);
        EXPECT_EQ(session(), 195000);
        EXPECT_EQ(station.frame.ratesShown, 0);
    }
}

}  // namespace
}  // namespace kaldo::test
