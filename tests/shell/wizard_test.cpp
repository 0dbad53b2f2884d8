#include "shell/frm_inicio_firebird_wizard.h"

#include "tests/shell/shell_station.h"

#include "data/database_error.h"
#include "shell/clinic_setup.h"
#include "tests/support/accessibility.h"
#include "tests/support/seams.h"
#include "toolkit/forms/form.h"

namespace kaldo::test {

namespace {

const QString kPrices = QStringLiteral(
    "¿El Catálogo de conceptos no tiene registrado ningún precio, desea analizar la lista de "
    "precios? ");

/// A clinic without a single row of its own, at the wizard that its first login brings up.
class Wizard : public ::testing::Test {
protected:
    Wizard() { station.seam = &writes; }

    /// The tables that were written, and the routines.
    QString written() const {
        QStringList names;
        for (const QString &name : writes.written) {
            names += name.section(u' ', 0, 0);
        }
        return names.join(u' ');
    }

    FRMInicioFirebird &wizard() {
        return *child<FRMInicioFirebird>(&station.window(), "FRMInicioFirebird");
    }
    /// Logs in as the first user and runs `steps` in the wizard.
    void atWizard(const std::function<void()> &steps) {
        station.atLogin([&] {
            typeText("admin");
            press(Qt::Key_Return);
            typeText("admin");
            writes.written.clear();
            station.inDialog(
                wizard(), [] { press(Qt::Key_Return); }, steps);
        });
    }
    template <typename W>
    W *find(const char *name) {
        return child<W>(&wizard(), name);
    }
    bool on(const char *name) { return find<QWidget>(name)->isEnabled(); }
    bool ticked(const char *name) {
        return !find<QLabel>((QByteArray(name) + "Marca").constData())->pixmap().isNull();
    }
    static void enter(const QString &text) {
        typeText(text);
        press(Qt::Key_Return);
    }
    /// The first page, from the name of the city on.
    void fillData(const QString &campus = "2") {
        enter("Valle Norte");
        enter("BCN");
        if (!campus.isEmpty()) {
            enter(campus);
        }
        enter("a1");
        enter("Clínica Central");
        enter("Av. del Puerto 1");
        enter("Centro");
        enter("6865550142");
        enter("7");
        enter("caja uno");
        enter("ana");
        enter("ana1");
        enter("ana lópez ruiz");
    }
    /// From the list of areas: those of these names are added.
    void addAreas(const QList<int> &areas) {
        for (int area : areas) {
            auto *list = find<DataGrid>("AreasDisponibles");
            press(Qt::Key_Home);
            while (list->currentValue("TIPO_PROD").toInt() != area) {
                press(Qt::Key_Down);
            }
            press(Qt::Key_Return);
        }
    }
    void alt(Qt::Key key) { press(key, Qt::AltModifier); }
    QString row(const QString &text) {
        QStringList cells;
        for (const QVariantList &cellsOfRow : rowsOf(station.program->conexion().FBOdonto, text)) {
            for (const QVariant &cell : cellsOfRow) {
                cells += cell.toString();
            }
        }
        return cells.join(u'|');
    }

    TestSeam writes;
    ShellStation station{TestInstallation::Content::Empty};
};

TEST_F(Wizard, EmptyClinicIsReadyForItsCashier) {
    atWizard([&] {
        EXPECT_TRUE(find<QWidget>("Edit1")->hasFocus());
        EXPECT_FALSE(on("Siguiente") || on("Anterior") || on("Terminar"));
        EXPECT_EQ(find<Choice>("ComboBox0")->currentText(), "VAN");
        EXPECT_EQ(find<Choice>("ComboBox0")->count(), 1);
        EXPECT_EQ(find<Choice>("ComboBox1")->count(), 32);
        QString steps;
        for (const char *field : {"Edit1", "Edit2", "Edit4", "Edit6"}) {
            find<QWidget>(field)->setFocus();
            settle();
            steps += find<QLabel>("Paso")->text() + u';';
        }
        EXPECT_EQ(steps, "Paso 1 de 4;Paso 2 de 4;Paso 3 de 4;Paso 4 de 4;");
        find<QWidget>("Edit1")->setFocus();
        fillData();
        EXPECT_TRUE(find<QWidget>("Siguiente")->hasFocus()) << "Enter leads on";
        picture(&wizard(), "wizard1");
        checkAccessibility(wizard());

        press(Qt::Key_Return);
        EXPECT_EQ(find<QLabel>("LabelAgregadas")->text(), "Areas agregadas (0)");
        EXPECT_FALSE(on("Siguiente"));
        addAreas({1, 2, 3, 4});
        EXPECT_EQ(find<QLabel>("LabelAgregadas")->text(), "Areas agregadas (4)");
        EXPECT_EQ(row("select * from serviciosxctro order by 2"), "A1|1|A1|2|A1|3|A1|4");
        picture(&wizard(), "wizard2");
        checkAccessibility(wizard());

        alt(Qt::Key_S);
        EXPECT_TRUE(find<QWidget>("EdadesInfantil")->isVisible());
        EXPECT_EQ(find<QLabel>("TickClasificacion")->text(), "Clasificación de Servicios (2)");
        EXPECT_FALSE(on("Terminar"));
        enter("14");
        station.messages.expectWarning("La edad mínima no puede ser mayor que la edad máxima.");
        enter("1");
        station.messages.verify();
        enter("1");
        enter("14");
        enter("15");
        EXPECT_FALSE(ticked("TickClasificacion"));
        enter("100");
        EXPECT_TRUE(ticked("TickClasificacion"));
        picture(&wizard(), "wizard3");
        checkAccessibility(wizard());
        writes.written.clear();
        station.messages.expectConfirmation(kPrices, Answer::Yes);
        alt(Qt::Key_T);
    });
    EXPECT_EQ(written(),
              "CtroAtencion DatosCaja ControlExpediente ControlExpediente ControlUsuarios "
              "ControlUsuarios ClasifServicios ClasifServicios Usuarios_Mant Usuarios_Mant "
              "cg_usuario");
    EXPECT_FALSE(wizard().isVisible());
    EXPECT_FALSE(station.login().isVisible());
    ASSERT_NE(station.window().childScreen(), nullptr);
    EXPECT_EQ(station.window().childScreen()->objectName(), "FRM107");

    EXPECT_EQ(row("select centro, descr, domicilio, colonia, telefono1, ciudad from ctroatencion"),
              "A1|Clínica Central|Av. del Puerto 1|Centro|6865550142|VAN");
    EXPECT_EQ(row("select num_caja, nota_vta, nombre, origen, campus from datoscaja"),
              "7|2024000001|CAJA UNO|INGRESOS CAJA UNO|2");
    EXPECT_EQ(row("select campus, num_expediente from controlexpedientes order by 1"),
              "000|1|VAN|1");
    EXPECT_EQ(row("select usuario, pass, nombre, nombrecorto, acceso, turno, num_caja, centro, "
                  "origen, campus from controlusuarios order by 1"),
              "admin|admin|ADMINISTRADOR DEL SISTEMA|ADMINISTRADOR|AM|CO|7|A1|VAN|2|"
              "ana|ana1|ANA LÓPEZ RUIZ|ANA LÓPEZ RUIZ|CA|CO|7|A1|VAN|2");
    EXPECT_EQ(row("select tipo_prod, edadmin, edadmax, requiere_edad, aplicadesc, "
                  "aplica_anticipo, ciudad from clasifservicios order by 1"),
              "3|1|14|S|N|N|VAN|4|15|100|S|N|N|VAN");
    EXPECT_EQ(row("select centro from usuarios_m where usuario='admin'"), "A1");
    EXPECT_EQ(row("select origen, centro, acceso, a3||e1||e2||e3||e4||e6||e7||e9, "
                  "b1||b12a||c1||d1||e5a||e8||f1||f11||f68||h2f||i2||i33||j3 "
                  "from usuarios_m where usuario='ana'"),
              "VAN|A1|CA|SSSSSSSS|NNNNNNNNNNNNN");
    EXPECT_EQ(valueOf(station.program->conexion().FBFinanzas,
                      "select app_login||mpo from cg_usuario where usuarioid>0"),
              "ANA1");
    const IniFile ini(station.installation.iniPath());
    EXPECT_EQ(ini.value("Usuario", "ciudad") + ini.value("Usuario", "estado"), "Valle Norte2");
    EXPECT_EQ(station.session().Ciudad.text(), "Valle Norte");

    // The cashier's login finds all that it needs, and no wizard.
    station.inDialog(
        station.login(), [&] { station.window().openEntry("J1"); },
        [&] { station.typeUser("ana", "ana1"); });
    EXPECT_FALSE(station.stillOpen);
    EXPECT_EQ(station.session().NumCaja, 7);
    EXPECT_EQ(station.session().CentroDescr.text(), "Clínica Central");
    EXPECT_TRUE(station.enabled("E1") && station.enabled("E6"));
}

TEST_F(Wizard, BusinessHasNoCampusAndNoAgesNeedNoRange) {
    station.installation.setIni("Cliente", "sector", "1");
    atWizard([&] {
        EXPECT_FALSE(find<QWidget>("ComboBox2")->isVisible());
        fillData("");
        press(Qt::Key_Return);
        EXPECT_EQ(find<DataGrid>("AreasDisponibles")->model()->rowCount(), 10);
        addAreas({5});
        // Another code for the centre: what was chosen for the first is nobody's.
        alt(Qt::Key_A);
        find<TextField>("Edit2")->setFocus();
        find<TextField>("Edit2")->selectAll();
        enter("b2");
        alt(Qt::Key_S);
        EXPECT_EQ(row("select * from serviciosxctro"), "");
        addAreas({5, 6});
        alt(Qt::Key_S);
        EXPECT_FALSE(find<QWidget>("EdadesInfantil")->isVisible());
        EXPECT_FALSE(find<QWidget>("EdadesAdultos")->isVisible());
        EXPECT_TRUE(ticked("TickClasificacion"));
        EXPECT_EQ(find<QLabel>("TickClasificacion")->text(), "Clasificación de Servicios (0)");
        press(Qt::Key_Space);  // one counter for all campuses
        station.messages.expectConfirmation(kPrices, Answer::No);
        alt(Qt::Key_T);
    });
    EXPECT_EQ(station.window().childScreen(), nullptr);
    EXPECT_EQ(row("select campus from datoscaja"), "1");
    EXPECT_EQ(row("select campus from controlusuarios"), "1|1");
    EXPECT_EQ(row("select campus from controlexpedientes"), "000");
    EXPECT_EQ(row("select count(*) from clasifservicios"), "0");
    EXPECT_EQ(row("select * from serviciosxctro order by 2"), "B2|5|B2|6");
}

TEST_F(Wizard, FailureLeavesTheEarlierRowsAndGoesOnFromThere) {
    atWizard([&] {
        fillData("3");
        // A code that the table of users already has.
        find<TextField>("Edit6")->setText("admin");
        alt(Qt::Key_S);
        addAreas({1});
        alt(Qt::Key_S);
        station.messages.expect(MessageKind::Error, "*");
        alt(Qt::Key_T);
        station.messages.verify();
        EXPECT_EQ(row("select num_caja from datoscaja"), "7");
        EXPECT_EQ(row("select count(*) from usuarios_m"), "1");
        // What is written can't be changed any more; the rest can.
        alt(Qt::Key_A);
        alt(Qt::Key_A);
        EXPECT_FALSE(on("Edit1") || on("Edit2") || on("Edit4"));
        EXPECT_TRUE(find<QWidget>("Edit6")->hasFocus());
        find<TextField>("Edit6")->selectAll();
        enter("ana");
        alt(Qt::Key_S);
        alt(Qt::Key_S);
        writes.strike(Moment::BeforeCommit, atName("cg_usuario (insert)", 1),
                      refusing("El servidor no contesta."));
        station.messages.expectError("El servidor no contesta.");
        alt(Qt::Key_T);
        station.messages.verify();
        EXPECT_EQ(row("select count(*) from usuarios_m"), "2");
        writes.written.clear();
        station.messages.expectConfirmation(kPrices, Answer::No);
        alt(Qt::Key_T);
    });
    EXPECT_EQ(written(), "cg_usuario");
    EXPECT_EQ(row("select usuario, campus from controlusuarios order by 1"), "admin|3|ana|3");
}

TEST_F(Wizard, ClosedUnfinishedLeavesNothingAndComesBack) {
    atWizard([&] {
        fillData();
        press(Qt::Key_Return);
        addAreas({1, 2});
        const QString question = "¿Desea cerrar el asistente sin terminar el proceso?";
        station.messages.expectConfirmation(question, Answer::No);
        press(Qt::Key_Escape);
        EXPECT_TRUE(wizard().isVisible());
        station.messages.expectConfirmation(question, Answer::Yes);
        press(Qt::Key_Escape);
    });
    EXPECT_TRUE(station.window().isEnabled());
    EXPECT_EQ(station.session().Prog.text(), "00000") << "there is no centre";
    EXPECT_EQ(row("select * from serviciosxctro"), "");
    bool back = false;
    station.inDialog(
        station.login(), [&] { station.window().openEntry("J1"); },
        [&] {
            typeText("admin");
            press(Qt::Key_Return);
            typeText("admin");
            station.inDialog(
                wizard(), [] { press(Qt::Key_Return); },
                [&] {
                    back = find<TextField>("Edit1")->text().isEmpty();
                    station.messages.expect(MessageKind::Confirmation, "*", Answer::Yes);
                    press(Qt::Key_Escape);
                });
        });
    EXPECT_TRUE(back);
}

}  // namespace

}  // namespace kaldo::test
