#include "shell/frm_control_usuarios_users.h"

#include "cashdesk/frm_datos_caja_cash_desks.h"
#include "tests/catalogues/catalogue_test.h"
#include "tests/shell/shell_station.h"
#include "tests/support/accessibility.h"

namespace kaldo::test {
namespace {

const QString kTaken = "El usuario ya existe vuelva a intentar";

class ControlUsuarios : public CatalogueTest<FRMControlUsuarios> {
protected:
    QString panelName() const override { return "Usuarios"; }
    QString user(const QString &usuario, const QString &column) {
        return inClinic("select " + column + " from controlusuarios where usuario=:u",
                        {{"u", usuario}})
            .toString();
    }
    /// "S", "N", "-" for an empty right, and nothing where the user has no row.
    QString right(const QString &usuario, const QString &column) {
        return inClinic("select coalesce(" + column + ", '-') from usuarios_m where usuario=:u",
                        {{"u", usuario}})
            .toString();
    }
    RightsGrid *focused() { return dynamic_cast<RightsGrid *>(QApplication::focusWidget()); }
    QString group() { return focused() ? focused()->accessibleName() : QString(); }
    QString line() {
        return focused()->currentIndex().siblingAtColumn(0).data().toString().trimmed();
    }
    void goToUser(const QString &usuario) {
        grid()->setFocus();
        press(Qt::Key_Home);
        for (int turn = 0; turn < query().count() && query().text("usuario") != usuario; ++turn) {
            press(Qt::Key_Down);
        }
        ASSERT_EQ(query().text("usuario"), usuario);
    }
    /// From the code of a new user to the rights.
    void typeUser(const QString &usuario) {
        alt(Qt::Key_I);
        for (const QString &cell :
             {usuario, QString("clave"), QString("ANA \"LA\" 100% SOTO"), QString("ANA SOTO"),
              QString("12"), QString("01"), QString("CO"), QString("MA"), QString("admin"),
              QString(""), QString("1")}) {
            enter(cell);
        }
    }
};

TEST_F(ControlUsuarios, UserIsAddedWithRightsByKeysAlone) {
    open();
    picture(screen.get(), "control_usuarios");
    checkAccessibility(*screen);
    typeUser("mesa1");
    EXPECT_EQ(group(), "Mantenimientos");
    EXPECT_EQ(line(), "Centro de Atención");
    press(Qt::Key_Space);
    press(Qt::Key_Down);
    press(Qt::Key_S);
    press(Qt::Key_Return);
    press(Qt::Key_Space);
    press(Qt::Key_Space);
    press(Qt::Key_Up);
    press(Qt::Key_N);
    press(Qt::Key_End);
    EXPECT_EQ(line(), "Laboratorios Externos");
    press(Qt::Key_Return);
    EXPECT_EQ(group(), "Recepción");
    QStringList groups;
    for (int turn = 0; turn < 6; ++turn) {
        press(Qt::Key_Tab);
        groups += group();
    }
    EXPECT_EQ(groups.join(','),
              "Admisión,Administración,Caja,Control de Expedientes,Reportes,Funciones Especiales");
    press(Qt::Key_Backtab);
    EXPECT_EQ(line(), "Estadisticas") << "headings are passed over";
    press(Qt::Key_S);
    picture(screen.get(), "control_usuarios_insert");
    press(Qt::Key_Tab);
    answer(kSave);
    press(Qt::Key_Return);
    station.messages.verify();
    EXPECT_EQ(user("mesa1",
                   "pass||'|'||nombre||'|'||num_caja||'|'||centro||'|'||turno||'|'||"
                   "acceso||'|'||origen||'|'||mpo||'|'||campus"),
              "clave|ANA \"LA\" 100% SOTO|12|01|CO|MA|VAN|1|2");
    const QStringList given = QString("b1 b2 b3 h1a h2f a3 e5d f3 e2 i2 e3 b12a j3 f61").split(' ');
    QString rights;
    for (const QString &column : given) {
        rights += right("mesa1", column);
    }
    EXPECT_EQ(rights, "SNNSNNNNNN----");
    EXPECT_EQ(right("mesa1", "origen||centro||acceso"), "VAN01MA");
    EXPECT_EQ(query().text("usuario"), "mesa1");
    EXPECT_EQ(query().text("LKCaja"), "CAJA ESPECIALIDADES");
    EXPECT_FALSE(panel()->editing());
    child<RightsGrid>(screen.get(), "Derechos Caja")->setFocus();
    press(Qt::Key_Space);
    EXPECT_FALSE(station.odonto.Usuarios_Mant.isPending()) << "boxes of a row that isn't open";
}

TEST_F(ControlUsuarios, CodesThatBeginAnotherAreRefused) {
    open();
    alt(Qt::Key_I);
    for (const char *taken : {"caj", "cajero1", "c", "", "cajero2"}) {
        station.messages.expectInformation(kTaken);
        enter(taken);
        EXPECT_TRUE(query().isNull("usuario")) << taken;
        EXPECT_FALSE(button("SpeedButton3")->isEnabled());
    }
    enter("cajero1%xyz");
    EXPECT_EQ(query().text("usuario"), "cajero1%") << "cut to its width; no other begins so";
    EXPECT_TRUE(button("SpeedButton3")->isEnabled());
    press(Qt::Key_Home);
    enter("cajero1'");
    press(Qt::Key_Up);
    EXPECT_FALSE(panel()->editing());
    EXPECT_EQ(inClinic("select count(*) from usuarios_m").toInt(), 7);
    EXPECT_EQ(inClinic("select count(*) from controlusuarios").toInt(), 7);
    EXPECT_FALSE(station.odonto.Usuarios_Mant.isPending());
}

TEST_F(ControlUsuarios, RightsFollowTheLineAndChangeWithIt) {
    open();
    changeInClinic("delete from usuarios_m where usuario='clinica'");
    goToUser("admision");
    auto *admision = child<RightsGrid>(screen.get(), "Derechos Admisión");
    EXPECT_EQ(admision->model()->index(0, 1).data(Qt::CheckStateRole).toInt(), Qt::Checked);
    press(Qt::Key_F2);
    EXPECT_EQ(grid()->currentField(), "PASS");
    enter("nueva");
    admision->setFocus();
    press(Qt::Key_N);
    // Another station gives a right of the same user meanwhile: both stay.
    changeInClinic("update usuarios_m set h2f='S', d1='S' where usuario='admision'");
    answer(kSave);
    alt(Qt::Key_G);
    EXPECT_EQ(user("admision", "pass"), "nueva");
    EXPECT_EQ(right("admision", "d1") + right("admision", "h2f"), "NS");

    press(Qt::Key_F2);
    admision->setFocus();
    press(Qt::Key_S);
    answer(kSave, Answer::No);
    alt(Qt::Key_G);
    EXPECT_EQ(right("admision", "d1"), "N");
    EXPECT_EQ(admision->model()->index(0, 1).data(Qt::CheckStateRole).toInt(), Qt::Unchecked);

    goToUser("clinica");
    EXPECT_EQ(admision->model()->index(0, 1).data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
    press(Qt::Key_F2);
    QTest::mouseClick(admision->viewport(), Qt::LeftButton, {},
                      admision->visualRect(admision->model()->index(0, 1)).center());
    grid()->setFocus();
    grid()->setCurrentField("ORIGEN");
    enter("COS");
    answer(kSave);
    alt(Qt::Key_G);
    EXPECT_EQ(right("clinica", "d1") + right("clinica", "origen"), "SCOS");
    for (int row = 0; row < query().count(); ++row) {
        EXPECT_NE(query().valueAt(row, "usuario").toString(), "clinica") << "of another campus now";
    }
}

TEST_F(ControlUsuarios, NobodyDeletesHimselfOrTheLastAdministrator) {
    open();
    goToUser("admin");
    answer(kRemove);
    station.messages.expectWarning("No se puede borrar al usuario con el que se entró al sistema.");
    alt(Qt::Key_B);
    EXPECT_EQ(station.messages.boxes().first().detail.section('\n', 0, 0), "Usuario: admin");
    changeInClinic("update controlusuarios set acceso='AM' where usuario='cajero1'");
    panel()->refresh();
    goToUser("cajero1");
    // The other one has just been deleted by another station.
    changeInClinic("delete from controlusuarios where usuario='admin'");
    answer(kRemove);
    station.messages.expectWarning("No se puede borrar al último administrador.");
    alt(Qt::Key_B);
    changeInClinic("update controlusuarios set acceso='AM' where usuario='admision'");
    answer(kRemove);
    alt(Qt::Key_B);
    EXPECT_EQ(user("cajero1", "count(*)"), "0");
}

TEST_F(ControlUsuarios, SecondWriteThatFailsLeavesTheRightsAlone) {
    open();
    typeUser("mesa1");
    press(Qt::Key_S);
    answer(kSave);
    refuseWrite(2);
    alt(Qt::Key_G);
    EXPECT_TRUE(panel()->editing());
    EXPECT_EQ(right("mesa1", "b1"), "S");
    EXPECT_EQ(user("mesa1", "count(*)"), "0");
    press(Qt::Key_Escape);
    ASSERT_FALSE(panel()->editing());

    typeUser("mesa1");
    answer(kSave);
    refuseWrite(1);
    alt(Qt::Key_G);
    EXPECT_EQ(right("mesa1", "b1"), "S") << "nothing was written";
    answer(kSave);
    alt(Qt::Key_G);
    EXPECT_EQ(right("mesa1", "b1"), "N") << "the rights that were left over begin anew";
    EXPECT_EQ(user("mesa1", "count(*)"), "1");

    goToUser("mesa1");
    answer(kRemove, Answer::No);
    alt(Qt::Key_B);
    EXPECT_EQ(user("mesa1", "count(*)"), "1");
    answer(kRemove);
    refuseWrite(2);
    alt(Qt::Key_B);
    EXPECT_EQ(right("mesa1", "b1"), "");
    EXPECT_EQ(user("mesa1", "count(*)"), "1");
    goToUser("mesa1");
    answer(kRemove);
    alt(Qt::Key_B);
    EXPECT_EQ(user("mesa1", "count(*)"), "0");
}

TEST_F(ControlUsuarios, GovernmentAccountingShowsTheCampusAndAsksForIt) {
    const auto shown = [this](const QString &field) {
        return !grid()->isColumnHidden(fieldSection(query(), field));
    };
    for (const bool accounts : {false, true}) {
        station.options.ContabilidadGubernamental = accounts;
        open();
        EXPECT_EQ(shown("CAMPUS"), accounts);
        EXPECT_EQ(shown("USUARIOID"), accounts);
    }
    press(Qt::Key_F2);
    grid()->setCurrentField("CAMPUS");
    press(Qt::Key_F2);
    press(Qt::Key_Delete);
    answer(kSave);
    station.messages.expectWarning("El Campo Campus se encuentra vacío, favor de llenarlo");
    press(Qt::Key_G, Qt::AltModifier);
    EXPECT_TRUE(panel()->editing());
    EXPECT_EQ(grid()->currentField(), "CAMPUS");
    press(Qt::Key_Escape);

    station.options.Facultad = "Facultad de Prueba";
    const QString page = report::pageText(preview("control_usuarios_report"), 0);
    for (const char *text : {"Control de Usuarios", "Facultad de Prueba", "Usuario Id", "Mpo",
                             "ROSA ICELA DUARTE VEGA", "KALDO 20"}) {
        EXPECT_TRUE(page.contains(text)) << text;
    }
    EXPECT_FALSE(page.contains("cajero2")) << "of another campus";
}

TEST(ControlUsuariosInTheProgram, RightsAreSeenAtTheNextLogin) {
    ShellStation station;
    station.logIn("admin", "admin");
    ASSERT_FALSE(station.stillOpen);
    station.window().resize(1024, 768);
    station.window().openEntry("I2");
    settle();
    picture(&station.window(), "main_datos_caja");
    EXPECT_TRUE(station.window().findChild<FRMDatosCaja *>());
    station.window().openEntry("I1");
    settle();
    auto *users = child<FRMControlUsuarios>(&station.window(), "FRMControlUsuarios");
    picture(&station.window(), "main_control_usuarios");
    auto *grid = child<DataGrid>(users, "DBGrid1");
    const bool before = station.enabled("E4");
    grid->setFocus();
    NamedQuery &query = station.program->context().odonto.ControlUsuarios;
    query.locate({{"usuario", "admin"}});
    press(Qt::Key_F2);
    auto *caja = child<RightsGrid>(users, "Derechos Caja");
    caja->setFocus();
    for (int turn = 0; turn < 3; ++turn) {
        press(Qt::Key_Down);
    }
    press(Qt::Key_Space);
    station.messages.expectConfirmation(kSave, Answer::Yes);
    press(Qt::Key_G, Qt::AltModifier);
    EXPECT_EQ(station.enabled("E4"), before) << "the session goes on as it began";
    station.inDialog(
        station.login(), [] { press(Qt::Key_F11); }, [&] { station.typeUser("admin", "admin"); });
    EXPECT_NE(station.enabled("E4"), before);
    EXPECT_EQ(station.session().Origen2.text(), "VA") << "from the users that were listed";
}

}  // namespace
}  // namespace kaldo::test
