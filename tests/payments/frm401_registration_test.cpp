#include "tests/payments/frm401_fixture.h"

#include "toolkit/forms/data_grid.h"

#include <QClipboard>
#include <QScreen>

namespace kaldo {
namespace {

using test::child;
using test::hold;
using test::kRegistered;
using test::picture;
using test::press;
using test::typeText;

class PaymentNoteRegistration : public test::PaymentNoteFixture {
protected:
    void writeAdmission(const QString &paterno = "peralta") {
        startAdmission();
        for (const QString &name : {paterno, QString("ruiz"), QString("marta")}) {
            typeText(name);
            press(Qt::Key_Return);
        }
        addLine("1");
    }
    /// Pays in the dialog with this much in pesos and accepts.
    void pay(const QString &pesos) {
        inDialog(&formaPago, [pesos] {
            typeText(pesos);
            press(Qt::Key_Return);
            press(Qt::Key_Return);
        });
        pressLetter(Qt::Key_R);
    }
};

TEST_F(PaymentNoteRegistration, APaidNoteIsRecordedAndTheScreenStartsAnew) {
    open();
    writeAdmission();
    station.session.UltimoExpediente = QString("00001/24");
    station.messages.expectInformation(kRegistered);
    pay("200");
    EXPECT_EQ(test::valueOf(station.clinic(),
                            "select paciente from pagos_odontologia where num_caja=1 and "
                            "nota_vta=1")
                  .toString()
                  .toStdString(),
              "PERALTA RUIZ MARTA");
    EXPECT_EQ(test::valueOf(station.clinic(),
                            "select cambio from formapago where num_caja=1 and "
                            "nota_vta=1")
                  .toDouble(),
              50.0);
    EXPECT_EQ(text("Edit1"), "2");
    EXPECT_EQ(focused(), "ComboBox1");
    EXPECT_EQ(text("Paterno"), "");
    EXPECT_EQ(text("CEdit3"), "$0.00");
    EXPECT_EQ(lines().count(), 0);
    EXPECT_TRUE(enabled("ComboBox1"));
    EXPECT_FALSE(enabled("Registrar"));
    EXPECT_FALSE(enabled("PanelPaciente"));
    EXPECT_TRUE(station.session.UltimoExpediente.text().isEmpty());

    // And the next one at once.
    writeAdmission("osuna");
    station.messages.expectInformation(kRegistered);
    pay("150");
    EXPECT_EQ(text("Edit1"), "3");
}

TEST_F(PaymentNoteRegistration, ADialogThatIsLeftKeepsTheNote) {
    open();
    writeAdmission();
    inDialog(&formaPago, [] { press(Qt::Key_Escape); });
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(lines().count(), 1);
    EXPECT_EQ(text("Paterno"), "PERALTA");
    EXPECT_EQ(text("Matricula"), "0");
    EXPECT_EQ(text("CEdit3"), "$150.00");
    EXPECT_TRUE(enabled("Registrar"));
    EXPECT_TRUE(enabled("AgregarRegistro"));
    EXPECT_EQ(focused(), "Registrar");
    EXPECT_EQ(test::valueOf(station.clinic(), "select count(*) from registrovtas where num_caja=1")
                  .toInt(),
              0);
    station.messages.expectInformation(kRegistered);
    pay("150");
    EXPECT_EQ(test::valueOf(station.clinic(), "select count(*) from registrovtas where num_caja=1")
                  .toInt(),
              1);
}

TEST_F(PaymentNoteRegistration, AHeldEnterRegistersNothing) {
    open();
    writeAdmission();
    tabTo("Registrar");
    inDialog(&formaPago, [this] {
        hold(Qt::Key_Return, 20);
        EXPECT_TRUE(formaPago.isVisible());
        formaPago.reject();
    });
    press(Qt::Key_Return);
    EXPECT_EQ(test::valueOf(station.clinic(), "select count(*) from registrovtas where num_caja=1")
                  .toInt(),
              0);
}

TEST_F(PaymentNoteRegistration, ADossierCannotBeOpenedHereYet) {
    open();
    station.messages.expectInformation(
        "La apertura de expedientes aún no está disponible en esta caja.");
    chooseService("AE");
    chooseArea("APE");
    EXPECT_EQ(focused(), "ComboBox1");
    EXPECT_EQ(child<QComboBox>(screen.get(), "ComboBox1")->currentIndex(), -1);
    EXPECT_EQ(text("ComboBox2"), "");
    EXPECT_FALSE(enabled("AgregarRegistro"));
}

TEST_F(PaymentNoteRegistration, ServicesWithoutAPathOrAPriceListLeadNowhere) {
    test::run(station.clinic(), "delete from listaprecios where tipo_prod in (21, 22)");
    open();
    for (const char *letters : {"PR", "AB"}) {
        SCOPED_TRACE(letters);
        station.messages.expectInformation(
            QString(letters == QLatin1String("PR") ? "PROG. LABIO PALADAR Y HENDIDO"
                                                   : "ABONO A CUENTA") +
            " no se cobra en esta pantalla: para este servicio no se pide a nadie, y sin saber "
            "quién paga no se agregan conceptos.");
        station.messages.expectInformation(
            "No existe lista de precios para est tipo de servicios, presione cualquier tecla para "
            "continuar.");
        tabTo("ComboBox1", false);
        chooseService(letters);
        chooseArea(letters == QLatin1String("PR") ? "PROG" : "ABO");
        EXPECT_FALSE(enabled("PanelPaciente"));
        EXPECT_FALSE(enabled("PanelAlumno"));
        EXPECT_FALSE(shown("PanelNoEmpleado"));
        EXPECT_FALSE(enabled("AgregarRegistro"));
    }
}

TEST_F(PaymentNoteRegistration, PastedTextIsCutToItsColumnAndNothingBreaks) {
    open();
    startAdmission();
    QString foul = QString("O'B\"R%I\n") + QChar(0x2028) + QString::fromUtf8("Ñandú €𝄞漢字");
    foul = foul.repeated(80);
    QApplication::clipboard()->setText(foul);
    for (const char *field : {"Paterno", "Materno", "Nombre"}) {
        EXPECT_EQ(focused(), field);
        press(Qt::Key_V, Qt::ControlModifier);
        press(Qt::Key_Return);
    }
    EXPECT_EQ(characterCount(child<QLineEdit>(screen.get(), "Paterno")->text()), 40);
    EXPECT_EQ(characterCount(child<QLineEdit>(screen.get(), "Nombre")->text()), 70);
    EXPECT_EQ(focused(), "AgregarRegistro");
    press(Qt::Key_Return);
    typeText("1");
    press(Qt::Key_Return);
    press(Qt::Key_A, Qt::ControlModifier);
    typeText("x");
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_V, Qt::ControlModifier);
    press(Qt::Key_Return);
    press(Qt::Key_V, Qt::ControlModifier);
    typeText("2");
    press(Qt::Key_Return);
    EXPECT_EQ(focused(), "AgregarRegistro");
    EXPECT_LE(characterCount(lines().text("DESCRIPCION")), 200);
    station.messages.expectInformation(kRegistered);
    pay("300");
    EXPECT_EQ(test::valueOf(station.clinic(),
                            "select char_length(paciente) from pagos_odontologia where "
                            "num_caja=1 and nota_vta=1")
                  .toInt(),
              80);
}

TEST_F(PaymentNoteRegistration, EveryFieldHasANameAndAllFitsTheSmallestDesktop) {
    for (const Sector sector : {Sector::Educativo, Sector::Institucional, Sector::Empresarial}) {
        station.options.sector = sector;
        open();
        // However long the names are.
        for (const char *panel : {"PanelEmpleado", "PanelOrigen"}) {
            child<QWidget>(screen.get(), panel)->show();
        }
        for (const char *name : {"Cajero", "Centro", "Origen", "Empleado", "Dependencia"}) {
            child<QLabel>(screen.get(), name)->setText(QString(100, 'W'));
        }
        EXPECT_LE(screen->minimumSizeHint().width(), 1000);
        EXPECT_LE(screen->minimumSizeHint().height(), 620);
        const QList<QWidget *> all = screen->findChildren<QWidget *>();
        for (const QWidget *widget : all) {
            if (dynamic_cast<const Field *>(widget) != nullptr) {
                EXPECT_FALSE(widget->accessibleName().isEmpty())
                    << widget->objectName().toStdString();
            }
        }
        screen.reset();
    }
}

}  // namespace
}  // namespace kaldo
