#include "tests/shell/shell_station.h"

namespace kaldo::test {
namespace {

/// What "Tipo Cambio" leaves in the main window.
class ExchangeRateTest : public ::testing::Test {
protected:
    void addRate(const QString &rate) {
        station.window().openEntry("B12");
        settle();
        press(Qt::Key_I, Qt::AltModifier);
        station.messages.expectConfirmation("La información es correcta?", Answer::Yes);
        typeText(rate);
        press(Qt::Key_Return);
        station.messages.verify();
    }
    QString label(const char *name) { return child<QLabel>(&station.window(), name)->text(); }

    ShellStation station;
};

TEST_F(ExchangeRateTest, ANewRateStandsInTheWindowOfTheProfilesThatSell) {
    station.logIn("admin", "admin");
    EXPECT_EQ(station.panel(3), "   Tipo Cambio: $19.50");
    station.clock.set(QDateTime(QDate(2024, 6, 4), QTime(8, 0)));
    addRate("19.1234");
    EXPECT_EQ(station.session().TipoCambio.tenThousandths(), 191234);
    EXPECT_EQ(station.panel(3), "   Tipo Cambio: $19.12");
    EXPECT_EQ(label("rate"), "$19.12");
    EXPECT_EQ(label("rateDate"), "04/06/2024");

    station.session().Acceso = "MA";
    addRate("21");
    EXPECT_EQ(station.session().TipoCambio.tenThousandths(), 210000);
    EXPECT_EQ(station.panel(3), "   Tipo Cambio: $19.12") << "until the next login";
    EXPECT_EQ(label("rate"), "$19.12");
    picture(&station.window(), "main_with_frm111");
}

}  // namespace
}  // namespace kaldo::test
