#include "tests/shell/shell_station.h"

#include "shell/frm_control_panel.h"
#include "shell/main_skin.h"
#include "tests/support/accessibility.h"

#include <QFile>
#include <QMenu>
#include <QProcess>
#include <QScrollArea>
#include <QTabBar>

namespace kaldo::test {

namespace {

const QString kApplied = QStringLiteral("Algunos cambios pueden necesitar reiniciar el sistema.");

/// A station with the panel open, and what a person does there.
class PanelStation : public ShellStation {
public:
    using Steps = std::function<void()>;

    void logInAs(const QString &user) {
        logIn(user,
              user == QLatin1String("admin") ? QStringLiteral("admin") : QStringLiteral("caja1"));
        ASSERT_FALSE(stillOpen);
    }
    void inPanel(const Steps &steps) {
        inDialog(
            panel(), [] { press(Qt::Key_F9); }, steps);
    }
    FRMControlPanel &panel() { return *child<FRMControlPanel>(&window(), "FRMControlPanel"); }

    template <typename Widget>
    Widget *field(const char *name) {
        return child<Widget>(&panel(), QString::fromLatin1(name));
    }
    /// By the keys of the tabs, from wherever the focus is.
    void toPage(const QString &title) {
        auto *tabs = field<QTabWidget>("PageControl1");
        for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right}) {
            for (int turn = 0; turn < 5 && tabs->tabText(tabs->currentIndex()) != title; ++turn) {
                tabs->tabBar()->setFocus();
                press(key);
            }
        }
        ASSERT_EQ(tabs->tabText(tabs->currentIndex()), title);
    }
    void type(const char *name, const QString &text) {
        auto *line = field<QLineEdit>(name);
        line->setFocus();
        line->selectAll();
        press(Qt::Key_Delete);
        typeText(text);
        press(Qt::Key_Tab);
    }
    void toggle(const char *name) {
        field<QWidget>(name)->setFocus();
        press(Qt::Key_Space);
    }
    void choose(const char *group, int index) {
        field<QWidget>((QLatin1String(group) + QStringLiteral("_%1").arg(index)).toLatin1())
            ->setFocus();
        press(Qt::Key_Space);
    }
    void apply() { press(Qt::Key_A, Qt::AltModifier); }
    /// The grids' menu, by its key.
    QMenu *menu(const char *grid) {
        field<QWidget>(grid)->setFocus();
        press(Qt::Key_F10, Qt::ShiftModifier);
        return qobject_cast<QMenu *>(QApplication::activePopupWidget());
    }
    void pick(const char *grid, const QString &entry) {
        const QMenu *open = menu(grid);
        for (int turn = 0; turn < 12; ++turn) {
            press(Qt::Key_Down);
            if (open->activeAction() != nullptr && open->activeAction()->text() == entry) {
                press(Qt::Key_Return);
                return;
            }
        }
        press(Qt::Key_Escape);
        FAIL() << "disabled or missing: " << qPrintable(entry);
    }
    bool offers(const char *grid, const QString &entry) {
        bool enabled = false;
        for (const QAction *action : menu(grid)->actions()) {
            enabled = enabled || (action->text() == entry && action->isEnabled());
        }
        press(Qt::Key_Escape);
        return enabled;
    }
    Options &options() { return program->context().options; }
    QString saved(const char *section, const char *key) {
        return IniFile(installation.iniPath()).value(section, key);
    }
    QString rows(const char *text) {
        QStringList lines;
        for (const QVariantList &row : rowsOf(program->conexion().FBLocal, text)) {
            QStringList cells;
            for (const QVariant &cell : row) {
                cells += cell.toString();
            }
            lines += cells.join(u' ');
        }
        return lines.join(u'|');
    }
};

class ControlPanel : public testing::Test {
protected:
    PanelStation at;
};

}  // namespace

TEST_F(ControlPanel, PagesAndWhatAProfileMayChange) {
    for (const char *user : {"admin", "cajero1"}) {
        const bool administrator = QLatin1String(user) == QLatin1String("admin");
        at.program.reset();
        at.logInAs(QString::fromLatin1(user));
        at.inPanel([&] {
            auto *tabs = at.field<QTabWidget>("PageControl1");
            EXPECT_EQ(tabs->currentIndex(), 0);
            for (const char *name :
                 {"RFCCliente", "Sector", "ActivarPrestamo", "ExpedientesPorAlumno"}) {
                EXPECT_EQ(at.field<QWidget>(name)->isEnabled(), administrator) << name;
            }
            EXPECT_EQ(tabs->isTabEnabled(4), administrator);
            at.panel().resize(1000, 700);
            for (int page = 0; page < tabs->count() - (administrator ? 0 : 1); ++page) {
                tabs->setCurrentIndex(page);
                settle();
                checkAccessibility(at.panel());
                picture(&at.panel(), QStringLiteral("%1_%2").arg(QLatin1String(user)).arg(page));
            }
        });
    }
    at.program.reset();
    at.logIn("clinica", "cli");
    at.window().runEntry("A3");
    EXPECT_FALSE(at.panel().isVisible()) << "not for this profile";
}

TEST_F(ControlPanel, AppliedOptionsLiveAndAreSaved) {
    at.logInAs("admin");
    at.inPanel([&] {
        at.type("NombreInstitucion", QString::fromUtf8("Ñandú «Ø» 東京 \\ = [x] ; , \"y\""));
        at.type("Iniciales", "");
        at.toPage("Sistema");
        at.toggle("ApagarSistema");
        at.type("HoraApagar", "210509");
        at.toggle("GenerarPolizas");
        at.toPage("Opciones");
        at.type("DiasBusqueda", "45");
        at.type("FechaBusquedaAdmisiones", "1/2/23");
        at.toggle("SistemaAnterior");
        IniFile(at.installation.iniPath()).setValue("Usuario", "user1", "otro");
        at.messages.expectInformation(kApplied);
        at.apply();
    });
    EXPECT_FALSE(at.stillOpen);
    const QString name = QString::fromUtf8("Ñandú «Ø» 東京 \\ = [x] ; , \"y\"");
    EXPECT_EQ(at.saved("Cliente", "nombre"), name);
    EXPECT_EQ(at.session().ClienteNombre, name);
    EXPECT_EQ(at.saved("Equipo", "hora"), "21:05:09");
    EXPECT_EQ(at.saved("Admisiones", "fbusqueda"), "01/02/2023");
    EXPECT_EQ(at.saved("Usuario", "user1"), "otro") << "written by hand meanwhile";
    EXPECT_EQ(at.saved("Sistema", "skinname"), "Windows") << "none of the list was chosen";
    EXPECT_EQ(at.options().DiasBusqueda, 45);
    EXPECT_TRUE(at.options().GenerarPolizas);
    EXPECT_TRUE(at.options().ActivarPrestamo) << "the old system's switch acts at the start only";
    at.inPanel([&] {
        EXPECT_TRUE(at.field<QCheckBox>("GenerarPolizas")->isChecked());
        EXPECT_EQ(at.field<QLabel>("Encabezado")->text(), name);
        at.choose("Ambiente", 2);
        at.toggle("ApagarSistema");
        at.messages.expectInformation(kApplied);
        at.apply();
    });
    EXPECT_EQ(at.saved("Ambiente", "skin"), "C:\\KALDO\\Ini\\skingreen.dll");
    const auto selected = [] {
        return QApplication::palette("QAbstractItemView").color(QPalette::Highlight);
    };
    EXPECT_EQ(selected(), schemeNamed("KaldoGreen")->kaldoSelect) << "at once";
    for (const int look : {3, 2}) {
        at.inPanel([&] {
            EXPECT_EQ(at.field<RadioGroup>("Ambiente")->index(), look == 3 ? 2 : 3);
            at.choose("Ambiente", look);
            at.messages.expectInformation(kApplied);
            at.apply();
        });
        EXPECT_EQ(at.saved("Sistema", "skinname"), look == 3 ? "Windows" : "KaldoGreen");
        EXPECT_EQ(selected() == baseAccent(), look == 3) << "and taken back at once";
    }
    EXPECT_FALSE(at.options().ApagarSistema);
    EXPECT_EQ(at.saved("Equipo", "apagar"), "S") << "never switched off from here";

    at.program.reset();
    at.logInAs("admin");
    EXPECT_FALSE(at.options().GenerarPolizas) << "read from another key";
    EXPECT_FALSE(at.options().ActivarPrestamo);
    EXPECT_FALSE(at.options().SistemaAnterior);
    EXPECT_TRUE(at.options().ApagarSistema);
    EXPECT_EQ(at.session().SkinName.text(), "KaldoGreen");
}

TEST_F(ControlPanel, ClosingWithoutApplyingBringsTheLiveOptionsBack) {
    at.logInAs("admin");
    const QString before = at.saved("Cliente", "nombre");
    at.inPanel([&] {
        at.type("NombreInstitucion", "otra");
        at.choose("Sector", 0);
        const QString question = "¿Desea cerrar el panel sin aplicar los cambios?";
        at.messages.expectConfirmation(question, Answer::No);
        press(Qt::Key_Escape);
        EXPECT_TRUE(at.panel().isVisible());
        at.messages.expectConfirmation(question, Answer::Yes);
        press(Qt::Key_Escape);
        EXPECT_EQ(at.messages.boxes().last().preset, Answer::No);
    });
    EXPECT_FALSE(at.stillOpen);
    at.inPanel([&] {
        EXPECT_EQ(at.field<QLineEdit>("NombreInstitucion")->text(), before);
        EXPECT_EQ(at.field<RadioGroup>("Sector")->index(), 1);
        EXPECT_EQ(at.field<QLabel>("Facultad_label")->text(), "Nombre Facultad");
    });
    EXPECT_EQ(at.saved("Cliente", "nombre"), before);
}

TEST_F(ControlPanel, SectorNamesAndHides) {
    struct Case {
        const char *institution;
        const char *client;
        const char *logo;
        const char *loans;
    };
    const Case cases[] = {
        {"Nombre Empresa", "Nombre Cliente", "Logo Empresa", nullptr},
        {"Nombre Institución", "Nombre Facultad", "Logo Facultad", "Alumno"},
        {"Nombre Institución", "Nombre Hospital", "Logo Hospital", "Asistente"},
    };
    at.logInAs("admin");
    at.inPanel([&] {
        for (int sector = 0; sector < 3; ++sector) {
            SCOPED_TRACE(sector);
            const Case &one = cases[sector];
            at.toPage("General");
            at.choose("Sector", sector);
            EXPECT_EQ(at.field<QLabel>("NombreInstitucion_label")->text(), one.institution);
            EXPECT_EQ(at.field<QLabel>("Facultad_label")->text(), one.client);
            EXPECT_EQ(at.field<QTabWidget>("PageControl2")->tabText(1), one.logo);
            at.toPage("Opciones");
            for (const char *name :
                 {"AlumnoCanalizado", "AdmisionesOtrosCentros", "CapturarSaldos",
                  "ExpedientesOtrosCentros", "PanelPrestamo", "ConsultaExpedientes"}) {
                EXPECT_EQ(at.field<QWidget>(name)->isVisible(), sector > 0) << name;
            }
            if (one.loans != nullptr) {
                const QString person = one.loans;
                EXPECT_EQ(at.field<QLabel>("ExpedientesPorAlumno_label")->text(),
                          "Expedientes por " + person);
                EXPECT_EQ(at.field<QCheckBox>("AlumnoCanalizado")->text(),
                          "Registrar " + person + " Canalizado");
            }
        }
    });
}

TEST_F(ControlPanel, SwitchesGovernTheirFields) {
    at.logInAs("admin");
    at.inPanel([&] {
        at.toPage("Opciones");
        EXPECT_FALSE(at.field<QWidget>("CapturarSaldos")->isEnabled());
        at.toggle("GenerarExpediente");
        at.toggle("CapturarSaldos");
        EXPECT_TRUE(at.field<QCheckBox>("CapturarSaldos")->isChecked());
        at.toggle("GenerarExpediente");
        EXPECT_FALSE(at.field<QCheckBox>("CapturarSaldos")->isChecked());
        at.toggle("ActivarPrestamo");
        EXPECT_EQ(at.field<QLineEdit>("ExpedientesPorAlumno")->text(), "0");
        EXPECT_FALSE(at.field<QWidget>("ExpedientesPorAlumno")->isEnabled());
        at.toggle("ControlExpedientes");
        EXPECT_EQ(at.field<QLabel>("Contador")->text(),
                  at.clinicValue("select num_expediente from controlexpedientes "
                                 "where campus='000'")
                      .toString());
        at.toPage("Impresiones");
        at.toggle("DesactivarDuplicados");
        EXPECT_FALSE(at.field<QWidget>("SegundosDuplicado")->isEnabled());
    });
}

TEST_F(ControlPanel, ValueThatIsNoneKeepsThePanelAndTheFile) {
    struct Case {
        const char *page;
        const char *field;
        const char *text;
    };
    const Case cases[] = {
        {"Opciones", "DiasBusqueda", "101"},
        {"Opciones", "ExpedientesPorAlumno", "11"},
        {"Opciones", "FechaBusquedaExpedientes", "31/02/2024"},
        {"Sistema", "HoraApagar", "256199"},
        {"Impresiones", "SegundosDuplicado", "61"},
    };
    at.logInAs("admin");
    at.inPanel([&] {
        for (const Case &one : cases) {
            SCOPED_TRACE(one.field);
            at.toPage(QString::fromLatin1(one.page));
            auto *line = at.field<QLineEdit>(one.field);
            const QString before = line->text();
            at.type(one.field, QString::fromLatin1(one.text));
            EXPECT_TRUE(line->hasFocus()) << "it can't be left";
            at.apply();
            EXPECT_TRUE(at.panel().isVisible());
            EXPECT_TRUE(line->hasFocus());
            EXPECT_FALSE(line->property("complaint").toString().isEmpty());
            line->setText(before);
            at.toPage("General");
            line->setText(QString::fromLatin1(one.text));  // as an older file may have it
            at.apply();
            EXPECT_TRUE(line->isVisible() && line->hasFocus());
            line->setText(before);
        }
    });
    EXPECT_EQ(at.saved("Admisiones", "dias"), "30");
}

TEST_F(ControlPanel, FileThatCannotBeWrittenChangesNothing) {
    at.logInAs("admin");
    const QString folder = at.installation.root() + "/Ini";
    const int before = at.options().DiasBusqueda;
    at.inPanel([&] {
        at.toPage("Opciones");
        at.type("DiasBusqueda", "45");
        QDir(folder).removeRecursively();
        QFile blocker(folder);
        ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
        at.messages.expectError("No se pudo escribir el archivo de configuración*");
        at.apply();
        EXPECT_TRUE(at.panel().isVisible());
        EXPECT_EQ(at.options().DiasBusqueda, before);
        EXPECT_EQ(at.program->context().ini.value("Admisiones", "dias"), "30");
        ASSERT_TRUE(blocker.remove());  // gone: it is written anew, with what was read
        at.messages.expectInformation(kApplied);
        at.apply();
    });
    EXPECT_EQ(at.saved("Admisiones", "dias"), "45");
    EXPECT_EQ(at.saved("Sql", "cliente"), "Firebird");
}

TEST_F(ControlPanel, ReceiptsAreKeptByTheMenu) {
    at.logInAs("cajero1");
    run(at.program->conexion().FBLocal, "delete from recibos");
    const char *all = "select recibo, descripcion from recibos order by recibo";
    at.inPanel([&] {
        at.toPage("Impresiones");
        EXPECT_FALSE(at.offers("GridRecibos", "Borrar Registro"));
        for (const char *name : {"1", "2", "3"}) {
            at.pick("GridRecibos", "Agregar Registro");
            EXPECT_FALSE(at.offers("GridRecibos", "Agregar Registro"));
            typeText(name);
            press(Qt::Key_Return);
            typeText(QStringLiteral("copia ") + name);
            press(Qt::Key_Return);
            at.messages.expectConfirmation("¿La Información es Correcta?", Answer::Yes);
            press(Qt::Key_Return);
        }
        EXPECT_EQ(at.rows(all), "1 copia 1|2 copia 2|3 copia 3");
        EXPECT_EQ(at.field<QLineEdit>("TotalRecibos")->text(), "3");

        at.pick("GridRecibos", "Subir Registro");
        EXPECT_EQ(at.rows(all), "1 copia 1|2 copia 3|3 copia 2");
        at.pick("GridRecibos", "Subir Registro");
        at.pick("GridRecibos", "Subir Registro");  // there is nothing above
        EXPECT_EQ(at.rows(all), "1 copia 3|2 copia 1|3 copia 2") << "the row moved stays marked";
        at.pick("GridRecibos", "Bajar Registro");
        EXPECT_EQ(at.rows(all), "1 copia 1|2 copia 3|3 copia 2");

        // A number that stands already is cleared; one that is typed all the same is refused.
        at.pick("GridRecibos", "Agregar Registro");
        at.messages.expectWarning(
            "El número de recibo ya se encuentra registrado, presione "
            "cualquier tecla para continuar.");
        typeText("2");
        press(Qt::Key_Return);
        EXPECT_TRUE(at.program->context().local.Recibos.isNull("recibo"));
        typeText("99999");
        at.messages.expectError("El valor «99999» no cabe*");
        press(Qt::Key_Return);
        press(Qt::Key_Return);
        at.messages.expectConfirmation("¿La Información es Correcta?", Answer::Yes);
        at.messages.expectError("El valor «99999» no cabe*");
        press(Qt::Key_Return);
        EXPECT_TRUE(at.offers("GridRecibos", "Cancelar Información")) << "the row stays open";
        press(Qt::Key_Escape);
        EXPECT_TRUE(at.panel().isVisible());
        EXPECT_EQ(at.rows(all), "1 copia 1|2 copia 3|3 copia 2");

        at.pick("GridRecibos", "Agregar Registro");
        at.messages.expectConfirmation("¿La Información es Correcta?", Answer::Yes);
        at.messages.expectError("Falta un dato obligatorio*");
        at.pick("GridRecibos", "Grabar Registro");
        press(Qt::Key_Escape);

        at.pick("GridRecibos", "Primer Registro");
        at.pick("GridRecibos", "Editar Registro");
        press(Qt::Key_Right);
        typeText("otra");
        at.messages.expectConfirmation("¿La Información es Correcta?", Answer::No);
        at.apply();
        EXPECT_TRUE(at.panel().isVisible()) << "an open row isn't left behind";
        at.messages.expectConfirmation("¿La Información es Correcta?", Answer::Yes);
        at.pick("GridRecibos", "Grabar Registro");
        EXPECT_EQ(at.rows(all), "1 otra|2 copia 3|3 copia 2");

        at.pick("GridRecibos", "Ultimo Registro");
        at.messages.expectConfirmation("¿Desea borrar esta Información?", Answer::No);
        at.pick("GridRecibos", "Borrar Registro");
        EXPECT_EQ(at.messages.boxes().last().detail, "Recibo: 3\nDescripción: copia 2");
        at.messages.expectConfirmation("¿Desea borrar esta Información?", Answer::Yes);
        at.pick("GridRecibos", "Borrar Registro");
        EXPECT_EQ(at.rows(all), "1 otra|2 copia 3");
        EXPECT_EQ(at.field<QLineEdit>("TotalRecibos")->text(), "2");

        at.pick("GridRecibos", "Registro Anterior");
        at.pick("GridRecibos", "Editar Registro");
        press(Qt::Key_Right);
        typeText("se pierde");
        press(Qt::Key_Escape);
        press(Qt::Key_Escape);
        press(Qt::Key_Escape);
    });
    EXPECT_FALSE(at.stillOpen);
    EXPECT_EQ(at.rows(all), "1 otra|2 copia 3");
}

TEST_F(ControlPanel, RegistryHasNoDuplicateCheckThatWorks) {
    at.logInAs("admin");
    at.inPanel([&] {
        at.toPage("Configuraciones");
        at.pick("GridFirebird", "Agregar Registro");
        typeText("3");
        at.messages.expectError("*");
        press(Qt::Key_Return);
        EXPECT_TRUE(at.messages.shown().last().contains("FIREBID"));
        typeText("Escolares");
        press(Qt::Key_Return);
        typeText("servidor:C:\\datos\\escolares.gdb");
        at.messages.expectConfirmation("¿La Información es Correcta?", Answer::Yes);
        press(Qt::Key_Return);
        EXPECT_EQ(at.rows("select ruta from firebird where noidx=3"),
                  "servidor:C:\\datos\\escolares.gdb");
        at.pick("GridFirebird", "Editar Registro");
        at.field<DataGrid>("GridFirebird")->setCurrentField("RUTA");
        typeText(at.installation.root() + "/DataBase/BD_ESCOLARES.GDB");
        at.messages.expectConfirmation("¿La Información es Correcta?", Answer::Yes);
        press(Qt::Key_Return);
        EXPECT_EQ(at.rows("select ruta from firebird where noidx=3"),
                  "C:\\KALDO\\DataBase\\BD_ESCOLARES.GDB")
            << "a copy of the installation finds its own";

        at.pick("GridInformix", "Agregar Registro");
        typeText("1");
        at.messages.expectError("*");
        press(Qt::Key_Return);
        EXPECT_TRUE(at.messages.shown().last().contains("NOINDX"));
        for (const char *cell : {"Odontologia", "dsn", "srv", "bd", "usuario"}) {
            typeText(cell);
            press(Qt::Key_Return);
        }
        typeText("clave");
        at.messages.expectConfirmation("¿La Información es Correcta?", Answer::Yes);
        press(Qt::Key_Return);
        EXPECT_EQ(at.rows("select i.\"USER\", i.pass from informix i"), "usuario clave");
        at.pick("GridInformix", "Editar Registro");
        at.field<DataGrid>("GridInformix")->setCurrentField("USER");
        typeText("otro");
        at.messages.expectConfirmation("¿La Información es Correcta?", Answer::Yes);
        at.pick("GridInformix", "Grabar Registro");
        EXPECT_EQ(at.rows("select i.\"USER\", i.pass from informix i"), "otro clave");
    });
}

TEST_F(ControlPanel, LogosAreShownWithTheirPaths) {
    const QString picture = at.installation.root() + "/Images/KALDO/kaldoblu.png";
    const QString none = at.installation.iniPath();
    at.logInAs("admin");
    at.inPanel([&] {
        at.toPage("Impresiones");
        EXPECT_FALSE(at.field<QLabel>("ImagenLogo1")->pixmap().isNull());
        at.fileDialogs.next = none;
        at.messages.expectWarning("El archivo " + none + " no es una imagen que se pueda mostrar.");
        at.toggle("CambiarLogo1");
        at.fileDialogs.next = picture;
        at.toggle("CambiarLogo1");
        at.toggle("CambiarLogo1");  // the chooser is closed without a choice
        EXPECT_EQ(at.field<QLabel>("RutaLogo1")->text().remove(QChar(0x200B)), picture);
        at.messages.expectInformation(kApplied);
        at.apply();
    });
    EXPECT_EQ(at.saved("Cliente", "img_empresa"), picture);
    at.inPanel([&] {
        at.toPage("Impresiones");
        at.toggle("QuitarLogo1");
        EXPECT_FALSE(at.field<QLabel>("RutaLogo1")->isVisible());
        at.field<QTabWidget>("PageControl2")->setCurrentIndex(1);
        EXPECT_FALSE(at.field<QLabel>("RutaLogo2")->isVisible()) << "both, without the first";
        at.toPage("General");
        at.fileDialogs.next = none;
        at.toggle("ArchivoCHM");
        EXPECT_EQ(at.field<QLineEdit>("ArchivoAyuda")->text(), none);
    });
}

TEST_F(ControlPanel, ValueThatCannotBeReadNamesItsKeyAndShutsThePanel) {
    struct Case {
        const char *section;
        const char *key;
        const char *value;
    };
    for (const Case &one : {Case{"Admisiones", "dias", ""}, Case{"Impresiones", "duplicado", "x"},
                            Case{"Expedientes", "fbusqueda", "31/02/2024"}}) {
        SCOPED_TRACE(one.key);
        at.program.reset();
        const QString before = at.saved(one.section, one.key);
        const QString nombre = at.saved("Cliente", "rfc");
        at.installation.setIni(one.section, one.key, one.value);
        at.messages.expectError("*");
        at.logInAs("admin");
        at.messages.expectError("*");
        press(Qt::Key_F9);
        EXPECT_FALSE(at.panel().isVisible());
        for (const QString &text : at.messages.shown().mid(at.messages.shown().size() - 2)) {
            EXPECT_TRUE(text.contains(one.key) && text.contains(one.section)) << qPrintable(text);
        }
        at.installation.setIni(one.section, one.key, before);
        at.inPanel([&] {
            EXPECT_EQ(at.field<QLineEdit>("DiasBusqueda")->text(), "30");
            EXPECT_EQ(at.field<QLineEdit>("SegundosDuplicado")->text(), "5");
        });
        EXPECT_EQ(at.saved("Cliente", "rfc"), nombre);
    }
}

TEST(ControlPanelStart, WithoutTheClinicAScriptSeesIt) {
    TestInstallation installation;
    installation.setIni("Sql", "cliente", "");
    QProcess program;
    program.start(KALDO_PROGRAM, {"--root", installation.root(), "-platform", "offscreen"});
    ASSERT_TRUE(program.waitForFinished(60000));
    EXPECT_EQ(program.exitCode(), Program::kNotConnected);
}

}  // namespace kaldo::test
