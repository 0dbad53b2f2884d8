#include "tests/shell/shell_station.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPushButton>

namespace kaldo::test {

namespace {

const QString kWrong = QStringLiteral("La contraseña es incorrecta, vuelva a intentar.");
const QString kNoFinance = QStringLiteral(
    "La clave del usuario no se encuentra registrada para finanzas, presione "
    "cualquier tecla para continuar.");

}  // namespace

TEST(Login, CashierFillsTheSession) {
    ShellStation station;
    station.logIn("cajero1", "caja1");
    EXPECT_FALSE(station.stillOpen);
    const Session &session = station.session();
    EXPECT_EQ(session.NumCaja, 1);
    EXPECT_EQ(session.Usuario.text(), "cajero1");
    EXPECT_EQ(session.NombreUsuario.text(), "MARIA FERNANDA OCHOA LARA");
    EXPECT_EQ(session.Acceso.text(), "CA");
    EXPECT_EQ(session.TurnoDescr.text(), "Matutino");
    EXPECT_EQ(session.Mpo.text(), "1");
    EXPECT_EQ(session.Origen.text(), "VAN");
    EXPECT_EQ(session.Origen2.text(), "");
    EXPECT_EQ(session.Centro.text(), "01");
    EXPECT_EQ(session.Prog.text(), "12510");
    EXPECT_EQ(session.CentroDescr.text(), "CLINICA DE LICENCIATURA VALLE NORTE");
    EXPECT_EQ(session.TipoCambio, Money::fromTenThousandths(195000));
    EXPECT_EQ(station.panel(0), "   Usuario: FERNANDA OCHOA");
    EXPECT_EQ(station.panel(3), "   Tipo Cambio: $19.50");
    EXPECT_EQ(station.panel(5), "   Ciudad: Valle Norte");
    EXPECT_TRUE(station.window().isEnabled());
    EXPECT_TRUE(child<QWidget>(&station.window(), "deskGroup")->isVisible());
    EXPECT_EQ(child<QLabel>(&station.window(), "figure_pesos")->text(), "$0.00");
    EXPECT_TRUE(station.enabled("E1"));
    EXPECT_TRUE(station.enabled("J2a"));
    EXPECT_FALSE(station.enabled("B1"));
    EXPECT_FALSE(station.program->context().caja.DatosCaja1.isOpen())
        << "a label of the cash cut depends on it";
}

TEST(Login, TellsOfReceiptsThatWereNeverFinished) {
    ShellStation station;
    station.messages.expectWarning("Los recibos de la nota 1-1 no se terminaron de imprimir. *");
    station.atLogin([&] {
        Context &context = station.program->context();
        context.local.MarcaRecibo.execute({{"caja", 1}, {"nota", 1}});
        context.caja.UDatosCaja.execute({{"caja", 1}, {"nota", 2}});
        station.typeUser("cajero1", "caja1");
    });
}

TEST(Login, OtherProfilesKeepTheCashiersShift) {
    ShellStation station;
    station.logIn("cajero1", "caja1");
    station.inDialog(
        station.login(), [&] { station.window().openEntry("J1"); },
        [&] {
            EXPECT_FALSE(station.window().isEnabled());
            EXPECT_FALSE(child<QCheckBox>(&station.login(), "CheckBox1")->isVisible());
            EXPECT_EQ(child<QPushButton>(&station.login(), "BitBtn3")->text(),
                      "Salir de la Ventana");
            station.typeUser("admision", "adm");
        });
    EXPECT_FALSE(station.stillOpen);
    EXPECT_EQ(station.session().Acceso.text(), "MA");
    EXPECT_EQ(station.session().Usuario.text(), "admision");
    EXPECT_EQ(station.session().TurnoDescr.text(), "Matutino");
    EXPECT_EQ(station.panel(3), "");
    EXPECT_FALSE(child<QWidget>(&station.window(), "sideBar")->isVisible());
    EXPECT_FALSE(station.enabled("E1"));
    EXPECT_TRUE(station.enabled("F3"));
}

TEST(Login, AdministratorAndStudentsDesk) {
    ShellStation station;
    station.logIn("admin", "admin");
    EXPECT_EQ(station.session().Acceso.text(), "AM");
    EXPECT_TRUE(station.enabled("B11"));
    EXPECT_TRUE(child<QWidget>(&station.window(), "sitesGroup")->isVisible());
    station.clock.set(QDateTime(QDate(2024, 10, 3), QTime(9, 0)));
    station.inDialog(
        station.login(), [&] { station.window().openEntry("J1"); },
        [&] { station.typeUser("clinica", "cli"); });
    EXPECT_EQ(station.session().Acceso.text(), "AL");
    auto *notice = child<QPushButton>(&station.window(), "noticeButton");
    EXPECT_EQ(notice->text(), "TELEGRAM");
    const auto inFront = [&] {
        return station.window().childAt(notice->mapTo(&station.window(), notice->rect().center()));
    };
    settle();
    EXPECT_EQ(inFront(), notice);
    station.window().runEntry("E6");
    settle();
    station.window().childScreen()->parentWidget()->showMaximized();
    settle();
    EXPECT_NE(inFront(), notice) << "a screen stands over the notice";
    // Anybody else's login hides the notice again.
    station.inDialog(
        station.login(), [&] { station.window().openEntry("J1"); },
        [&] { station.typeUser("admision", "adm"); });
    EXPECT_FALSE(child<QWidget>(&station.window(), "Panel2")->isVisible());
}

TEST(Login, WrongPasswordClearsIt) {
    ShellStation station;
    station.messages.expectWarning(kWrong);
    station.messages.expectWarning(kWrong);
    station.atLogin([&] {
        station.typeUser("cajero1", "nada");
        EXPECT_EQ(child<QLineEdit>(&station.login(), "Edit2")->text(), "");
        EXPECT_TRUE(child<QLineEdit>(&station.login(), "Edit2")->hasFocus());
        EXPECT_FALSE(station.window().isEnabled());
        // Capitals matter.
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        child<QLineEdit>(&station.login(), "Edit1")->selectAll();
        station.typeUser("CAJERO1", "caja1");
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        child<QLineEdit>(&station.login(), "Edit1")->selectAll();
        station.typeUser("cajero1", "caja1");
    });
    EXPECT_FALSE(station.stillOpen);
    EXPECT_TRUE(station.window().sessionStarted());
}

TEST(Login, QuotesAndLongPastesAreOnlyWrong) {
    ShellStation station;
    station.messages.expectWarning(kWrong);
    station.atLogin([&] {
        auto *code = child<QLineEdit>(&station.login(), "Edit1");
        code->insert(QStringLiteral("' or 1=1 --\nx%") + QString(500, u'ñ'));
        EXPECT_LE(code->text().size(), 8);
        press(Qt::Key_Return);
        typeText("'\"%");
        press(Qt::Key_Return);
    });
    EXPECT_TRUE(station.stillOpen);
}

TEST(Login, HeldEnterPressesNothing) {
    ShellStation station;
    station.messages.expectWarning(kWrong);
    station.atLogin([&] {
        typeText("cajero1");
        hold(Qt::Key_Return, 20);
        typeText("x");
        hold(Qt::Key_Return, 20);
    });
    EXPECT_TRUE(station.stillOpen);
}

TEST(LoginDeathTest, ThirdFailureEndsTheApplication) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto body = [] {
        ShellStation station;
        for (int at = 0; at < 3; ++at) {
            station.messages.expectWarning(kWrong);
        }
        station.messages.expectError(
            QStringLiteral("Usted no esta autorizado para utilizar este sistema."));
        station.atLogin([&] {
            typeText("cajero1");
            press(Qt::Key_Return);
            for (int at = 0; at < 3; ++at) {
                EXPECT_FALSE(Application::current()->ending());
                typeText("mal");
                press(Qt::Key_Return);
            }
        });
        const bool ended = Application::current()->ending();
        station.messages.verify();
        std::exit(ended && !::testing::Test::HasFailure() ? 0 : 1);
    };
    EXPECT_EXIT(body(), ::testing::ExitedWithCode(0), "");
}

TEST(Login, CountStartsAgainWhenTheScreenIsReopened) {
    ShellStation station;
    station.logIn("cajero1", "caja1");
    for (int round = 0; round < 2; ++round) {
        station.messages.expectWarning(kWrong);
        station.messages.expectWarning(kWrong);
        station.inDialog(
            station.login(), [&] { station.window().openEntry("J1"); },
            [&] {
                station.typeUser("cajero1", "x");
                typeText("y");
                press(Qt::Key_Return);
            });
    }
    EXPECT_FALSE(Application::current()->ending());
    EXPECT_EQ(station.session().Usuario.text(), "cajero1");
    EXPECT_TRUE(station.window().isEnabled()) << "closed without a login: the session stays";
}

TEST(Login, SaysThatADatabaseIsOlderOrNewer) {
    const struct {
        const char *change;
        const char *complaint;
    } cases[] = {
        {"drop table esquema",
         "La base de datos BD_FINANZAS es de una versión anterior del sistema (versión 0; el "
         "programa necesita la 1). Cierre el programa en todas las estaciones y actualícela con "
         "scripts/upgrade-databases."},
        {"insert into esquema (version) values (99)",
         "La base de datos BD_FINANZAS es de una versión más reciente del sistema (versión 99; el "
         "programa necesita la 1). Actualice el programa de esta estación."},
    };
    for (const auto &each : cases) {
        ShellStation station;
        FirebirdConnection finance(QStringLiteral("FBFinanzas"), {});
        finance.setDatabase(station.installation.database("BD_FINANZAS.GDB"));
        run(finance, each.change);
        finance.close();
        station.messages.expectError(QString::fromUtf8(each.complaint));
        station.logIn("cajero1", "caja1");
        EXPECT_TRUE(station.stillOpen);
        EXPECT_EQ(station.session().Usuario.text(), "");
    }
}

TEST(Login, CashierWhoIsMissingInFinance) {
    ShellStation station;
    FirebirdConnection finance(QStringLiteral("FBFinanzas"), {});
    finance.setDatabase(station.installation.database("BD_FINANZAS.GDB"));
    run(finance, "delete from cg_usuario where app_login='CAJERO1'");
    finance.close();
    station.messages.expectError(kNoFinance);
    station.atLogin([&] {
        station.typeUser("cajero1", "caja1");
        EXPECT_EQ(child<QLineEdit>(&station.login(), "Edit1")->text(), "");
        EXPECT_TRUE(child<QLineEdit>(&station.login(), "Edit1")->hasFocus());
        EXPECT_FALSE(station.window().isEnabled());
        EXPECT_TRUE(station.enabled("E1")) << "rights stay as they were set";
        EXPECT_EQ(station.session().Usuario.text(), "cajero1");
    });
    EXPECT_TRUE(station.stillOpen);
    EXPECT_FALSE(station.window().sessionStarted());
    EXPECT_FALSE(station.enabled("E1")) << "nobody is at the window";
    EXPECT_EQ(station.panel(0), "");
}

TEST(Login, RefusedOverASessionLeavesItUntouched) {
    ShellStation station;
    station.installation.setIni("Usuario", "cambiar_pass", "S");
    station.logIn("admin", "admin");
    Connection &clinic = station.program->conexion().FBOdonto;
    run(station.program->conexion().FBFinanzas, "delete from cg_usuario where app_login='CAJERO1'");
    run(clinic, "update controlusuarios set num_caja='abc' where usuario='cajero3'");
    const auto seen = [&] {
        QStringList state{station.session().Usuario, station.session().Origen,
                          station.session().Prog, station.panel(0), station.panel(3)};
        for (const char *entry : {"B1", "E1", "I1", "J2a"}) {
            state += station.enabled(entry) ? "1" : "0";
        }
        for (const char *name : {"sitesGroup", "deskGroup"}) {
            state += child<QWidget>(&station.window(), name)->isVisible() ? "1" : "0";
        }
        return state;
    };
    const QStringList before = seen();
    station.messages.expectError(kNoFinance);
    station.messages.expectError(QStringLiteral("'abc' no es un número de caja válido."));
    station.messages.expectWarning(QStringLiteral(
        "La contraseña actual es incorrecta, presione cualquier tecla para continuar."));
    for (const auto &[user, password] : {std::pair("cajero1", "caja1"), {"cajero3", "caja3"}}) {
        station.inDialog(
            station.login(), [&] { station.window().openEntry("J1"); },
            [&] {
                station.typeUser(user, password);
                EXPECT_TRUE(station.login().isVisible());
                press(Qt::Key_Escape);
            });
        EXPECT_FALSE(station.stillOpen);
        EXPECT_EQ(seen(), before) << user;
        EXPECT_TRUE(station.window().isEnabled());
    }
    // What the refused cashier knows is not the administrator's password.
    station.inDialog(
        station.login(), [&] { station.window().openEntry("J1"); },
        [&] {
            typeText("admin");
            auto *dialog = child<QDialog>(&station.window(), "FRMPass");
            station.inDialog(
                *dialog, [&] { child<QPushButton>(&station.login(), "BitBtn4")->click(); },
                [&] {
                    typeText("caja3");
                    press(Qt::Key_Return);
                    typeText("admin");
                    press(Qt::Key_Return);
                    EXPECT_TRUE(child<QLineEdit>(dialog, "Edit2")->hasFocus());
                });
        });
}

TEST(Login, FinanceIsDownForCashiersOnly) {
    ShellStation station;
    QFile::remove(station.installation.database("BD_FINANZAS.GDB"));
    station.messages.expectError(QStringLiteral(
        "Error en conexión, algún servicio no está disponible, inténtelo más tarde.*"));
    station.messages.expectError("*");
    station.atLogin([&] {
        station.typeUser("cajero1", "caja1");
        EXPECT_TRUE(station.login().isVisible());
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        child<QLineEdit>(&station.login(), "Edit1")->selectAll();
        child<QLineEdit>(&station.login(), "Edit2")->clear();
        station.typeUser("admin", "admin");
    });
    EXPECT_FALSE(station.stillOpen);
    EXPECT_EQ(station.session().Acceso.text(), "AM");
}

TEST(Login, DeskThatIsNoNumber) {
    ShellStation station;
    ASSERT_TRUE(station.start());
    run(station.program->conexion().FBOdonto,
        "update controlusuarios set num_caja='abc' where usuario='cajero1'");
    station.messages.expectError(QStringLiteral("'abc' no es un número de caja válido."));
    station.inDialog(
        station.login(), [] {}, [&] { station.typeUser("cajero1", "caja1"); });
    EXPECT_TRUE(station.stillOpen);
}

TEST(Login, CentreThatIsNotOfTheCampusTakesTheFirstRow) {
    ShellStation station;
    ASSERT_TRUE(station.start());
    run(station.program->conexion().FBOdonto,
        "update controlusuarios set centro='99', origen='COS' where usuario='admin'");
    run(station.program->conexion().FBOdonto, "delete from usuarios_m where usuario='admin'");
    station.inDialog(
        station.login(), [] {}, [&] { station.typeUser("admin", "admin"); });
    EXPECT_FALSE(station.stillOpen);
    EXPECT_EQ(station.session().Prog.text(), "00980");
    EXPECT_EQ(station.session().CentroDescr.text(), "CLINICA ODONTOLOGICA COSTA SUR");
    EXPECT_FALSE(station.enabled("E1")) << "no row of rights reads as no right";
    EXPECT_TRUE(station.enabled("I1"));
}

TEST(Login, RememberedUserIsWrittenAndForgotten) {
    ShellStation station;
    station.atLogin([&] {
        auto *box = child<QCheckBox>(&station.login(), "CheckBox1");
        box->setFocus();
        press(Qt::Key_Space);
        EXPECT_FALSE(box->isChecked()) << "there is no code to remember";
        child<QLineEdit>(&station.login(), "Edit1")->setFocus();
        typeText("cajero1");
        box->setFocus();
        station.installation.setIni("Etiquetas", "margen", "0.75");
        press(Qt::Key_Space);
        EXPECT_TRUE(box->isChecked());
        const IniFile written(station.installation.iniPath());
        EXPECT_EQ(written.value("Usuario", "user"), "cajero1");
        EXPECT_EQ(written.value("Etiquetas", "margen"), "0.75") << "written by hand meanwhile";
        EXPECT_EQ(station.program->context().options.Usuario, "cajero1")
            << "or the control panel would write the old one back";
        child<QLineEdit>(&station.login(), "Edit2")->setFocus();
        typeText("caja1");
        press(Qt::Key_Return);
    });
    EXPECT_FALSE(station.stillOpen);
    station.inDialog(
        station.login(), [&] { station.window().openEntry("J1"); },
        [&] {
            EXPECT_EQ(child<QLineEdit>(&station.login(), "Edit1")->text(), "cajero1");
            EXPECT_TRUE(child<QLineEdit>(&station.login(), "Edit2")->hasFocus());
            press(Qt::Key_Escape);
        });
    EXPECT_FALSE(station.stillOpen) << "Escape closes a login from the menu";
    EXPECT_TRUE(station.window().isEnabled());
}

TEST(Login, ExitButtonAsksAndNoGoesToThePassword) {
    ShellStation station;
    station.messages.expectConfirmation(QStringLiteral("Desea Salir del Sistema?"), Answer::No);
    station.messages.expectConfirmation(QStringLiteral("Desea Salir del Sistema?"), Answer::No);
    station.atLogin([&] {
        child<QPushButton>(&station.login(), "BitBtn3")->setFocus();
        press(Qt::Key_Space);
        EXPECT_TRUE(child<QLineEdit>(&station.login(), "Edit2")->hasFocus());
        press(Qt::Key_Escape);
    });
    EXPECT_TRUE(station.stillOpen);
}

TEST(Login, ReloginClosesTheOpenScreen) {
    ShellStation station;
    station.logIn("cajero1", "caja1");
    station.window().openEntry("E6");
    settle();
    ASSERT_NE(station.window().childScreen(), nullptr);
    station.inDialog(
        station.login(), [&] { station.window().openEntry("J1"); },
        [&] { EXPECT_EQ(station.window().childScreen(), nullptr); });
}

TEST(Password, IsChangedByItsOwner) {
    ShellStation station;
    station.logIn("cajero1", "caja1");
    station.messages.expectWarning(QStringLiteral(
        "La contraseña actual es incorrecta, presione cualquier tecla para continuar."));
    station.messages.expectWarning(QStringLiteral(
        "La nueva contraseña no coincide, presione cualquier tecla para continuar."));
    const QString sure = QStringLiteral("¿Desea continuar con la actualización de la contraseña?");
    station.messages.expectConfirmation(sure, Answer::Yes);
    station.messages.expectError(
        QStringLiteral("Otra estación borró el registro, la información no se guardó."));
    station.messages.expectConfirmation(sure, Answer::Yes);
    station.messages.expectInformation(
        QStringLiteral("La nueva contraseña ha sido registrada correctamente, presione cualquier "
                       "tecla para continuar."));
    station.inDialog(
        station.login(), [&] { station.window().openEntry("J1"); },
        [&] {
            auto *change = child<QPushButton>(&station.login(), "BitBtn4");
            typeText("cajero");
            EXPECT_FALSE(change->isVisible());
            typeText("1");
            EXPECT_TRUE(change->isVisible());
            press(Qt::Key_B, Qt::AltModifier);
            EXPECT_FALSE(change->isVisible()) << "the code is gone";
            typeText("cajero1");
            EXPECT_TRUE(change->isVisible());
            auto *dialog = child<QDialog>(&station.window(), "FRMPass");
            station.inDialog(
                *dialog,
                [&] {
                    change->setFocus();
                    QTest::keyClick(change, Qt::Key_Space);
                },
                [&] {
                    auto *apply = child<QPushButton>(dialog, "BitBtn1");
                    typeText("otra");
                    press(Qt::Key_Return);
                    EXPECT_TRUE(child<QLineEdit>(dialog, "Edit1")->hasFocus());
                    typeText("caja1");
                    press(Qt::Key_Return);
                    typeText("nueva");
                    press(Qt::Key_Return);
                    typeText("nuevo");
                    press(Qt::Key_Return);
                    EXPECT_FALSE(apply->isEnabled());
                    auto *repeated = child<QLineEdit>(dialog, "Edit3");
                    repeated->setFocus();
                    repeated->selectAll();
                    typeText("nueva");
                    press(Qt::Key_Return);
                    EXPECT_TRUE(apply->hasFocus());
                    picture(dialog, "password");
                    Connection &clinic = station.program->conexion().FBOdonto;
                    run(clinic, "update controlusuarios set usuario='x' where usuario='cajero1'");
                    press(Qt::Key_Return);
                    EXPECT_TRUE(dialog->isVisible());
                    run(clinic, "update controlusuarios set usuario='cajero1' where usuario='x'");
                    press(Qt::Key_Return);
                });
            EXPECT_FALSE(station.stillOpen);
            EXPECT_TRUE(child<QLineEdit>(&station.login(), "Edit2")->hasFocus());
            EXPECT_FALSE(change->isVisible()) << "the code in its field was not typed";
        });
    EXPECT_EQ(
        station.clinicValue("select pass from controlusuarios where usuario='cajero1'").toString(),
        "nueva");
}

TEST(Password, FailedLoginLeavesNoPasswordToMatch) {
    ShellStation station;
    station.logIn("cajero1", "caja1");
    station.messages.expectWarning(kWrong);
    station.messages.expectWarning(QStringLiteral(
        "La contraseña actual es incorrecta, presione cualquier tecla para continuar."));
    station.inDialog(
        station.login(), [&] { station.window().openEntry("J1"); },
        [&] {
            station.typeUser("cajero1", "adivino");
            auto *dialog = child<QDialog>(&station.window(), "FRMPass");
            auto *change = child<QPushButton>(&station.login(), "BitBtn4");
            ASSERT_TRUE(change->isVisible());
            station.inDialog(
                *dialog,
                [&] {
                    change->setFocus();
                    QTest::keyClick(change, Qt::Key_Space);
                },
                [&] {
                    press(Qt::Key_Return);  // nothing typed, and no row to compare with
                    EXPECT_TRUE(child<QLineEdit>(dialog, "Edit1")->hasFocus());
                });
        });
}

TEST(Login, KeyboardServesTheWindowAtOnce) {
    ShellStation station;
    station.logIn("cajero1", "caja1");
    EXPECT_EQ(QApplication::activeWindow(), &station.window());
    press(Qt::Key_G, Qt::ControlModifier);
    ASSERT_NE(station.window().childScreen(), nullptr);
    EXPECT_EQ(station.window().childScreen()->objectName(), "FRM401");
    EXPECT_TRUE(station.window().childScreen()->isAncestorOf(QApplication::focusWidget()));
    station.window().CerrarVentana();
    settle();
    press(Qt::Key_G, Qt::ControlModifier);
    EXPECT_NE(station.window().childScreen(), nullptr) << "also after a screen has closed";
}

}  // namespace kaldo::test
