#include <QDate>
#include <QDir>
#include <QFile>
#include <QMap>
#include <QScopeGuard>

#include <array>

#include <gtest/gtest.h>

#include "data/catalogue_texts.h"
#include "data/database_error.h"
#include "data/options.h"
#include "data/runtime_texts.h"
#include "data/statement_text.h"
#include "tests/support/test_installation.h"

namespace kaldo::test {
namespace {

TEST(StatementTextTest, NamesInsideQuotesAndCommentsAreNoParameters) {
    const PositionalText text = toPositional(
        "select ':a', \":b\", x -- :c\n, /* :d */ :uno from t where h='12:30' and y=:dos_2 or "
        ":uno");
    EXPECT_EQ(text.names, QStringList({"uno", "dos_2", "uno"}));
    EXPECT_EQ(text.text,
              "select ':a', \":b\", x -- :c\n, /* :d */ ? from t where h='12:30' and y=? or ?");
}

TEST(RuntimeTextTest, TheOdbcFormCarriesItsValuesBetweenDoubleQuotes) {
    const RuntimeText names = consultaAdmisionText(" O\"HARA? ", "50%", ":x");
    EXPECT_TRUE(names.odbc().contains("Where d.paterno like \"%O\"\"HARA?%\""));
    EXPECT_TRUE(names.odbc().contains("And d.materno like \"%50%%\""));
    EXPECT_TRUE(names.odbc().contains("And d.paciente like \"%:x%\""));
    EXPECT_TRUE(names.firebird().contains("Where d.paterno like :C1"));

    EXPECT_TRUE(expeText("00001/24", "VAN").firebird().contains("starting with :Exp"));
    EXPECT_TRUE(expeText("00001/24", "VAN").odbc().contains("like \"00001/24%\""));
    EXPECT_TRUE(listaPreciosFaceText(96, true).odbc().contains("not like \"%FACE 2\""));
    EXPECT_TRUE(listaPreciosFaceText(96, false).odbc().contains("not like \"%FACE 1%\""));
    EXPECT_TRUE(claveRepetidaText(QVariant()).odbc().contains("cve_prod=null"));
    EXPECT_TRUE(cajaText(QVariant()).odbc().contains("num_caja like null"));
    EXPECT_TRUE(cajaText(1).odbc().contains("num_caja like \"1%\""));

    const QList<RuntimeText> cut = borrarCorteTexts(1, QDate(2024, 9, 30));
    ASSERT_EQ(cut.size(), 3);
    EXPECT_EQ(cut[0].firebird(),
              "Delete From cortebancario\nwhere num_caja STARTING WITH :caja\n"
              "And fechacorte=:fecha");
    EXPECT_EQ(cut[0].odbc(),
              "Delete From cortebancario\nwhere num_caja = \"1\"\n"
              "And fechacorte=\"30/09/2024\"");
}

TEST(OptionsTest, ReadsEveryKeyAndStopsAtTheFirstThatIsNoNumber) {
    TestInstallation files;
    Options options;
    options.load(IniFile(files.iniPath()));
    EXPECT_EQ(options.sector, Sector::Educativo);
    EXPECT_EQ(options.DiasBusqueda, 30);
    EXPECT_EQ(options.fechaExpedientes(), QDate(2020, 1, 1));

    files.setIni("Cliente", "iniciales", "");
    files.setIni("Cliente", "sector", "");
    files.setIni("Usuario", "estado", "0");
    files.setIni("Expedientes", "prestamo", "S");
    files.setIni("Expedientes", "sysanterior", "N");
    files.setIni("Admisiones", "consentimiento", "");
    files.setIni("Expedientes", "saldo", "S");
    files.setIni("Expedientes", "guardar", "N");
    Options other;
    other.load(IniFile(files.iniPath()));
    EXPECT_EQ(other.Iniciales, "");
    EXPECT_EQ(other.encabezado(), other.NombreInstitucion);
    EXPECT_EQ(other.sector, Sector::None);
    EXPECT_EQ(other.Estado, -1);
    EXPECT_EQ(other.Consentimiento, -1);
    EXPECT_FALSE(other.CapturarSaldos) << "no balances where no dossiers are opened";
    EXPECT_FALSE(other.ActivarPrestamo) << "without the old system the loans come up off";
    EXPECT_EQ(other.ExpedientesPorAlumno, 0);

    files.setIni("Expedientes", "sysanterior", "S");
    files.setIni("Admisiones", "dias", "treinta");
    Options stopped;
    EXPECT_THROW(stopped.load(IniFile(files.iniPath())), std::invalid_argument);
    EXPECT_EQ(stopped.NombreInstitucion, other.NombreInstitucion) << "what stands before is read";
    EXPECT_TRUE(stopped.CortesBancarios) << "a page before";
    EXPECT_FALSE(stopped.ActivarPrestamo) << "what stands behind is not";
}

TEST(OptionsTest, BadNumbersAndDatesAreRefusedAndEmptyOnesAreNone) {
    TestInstallation files;
    IniFile ini(files.iniPath());
    const auto load = [&ini](const char *section, const char *key, const char *value) {
        const QString before = ini.value(section, key);
        ini.setValue(section, key, value);
        const auto restore = qScopeGuard([&] { ini.setValue(section, key, before); });
        Options options;
        options.load(ini);
        return options;
    };
    const QList<std::array<const char *, 3>> bad = {
        {"Usuario", "estado", "x"},
        {"Cliente", "sector", "dos"},
        {"Cliente", "estado", "BC"},
        {"Equipo", "hora", "25:00:00"},
        {"Admisiones", "fbusqueda", "31/02"},
        {"Admisiones", "dias", ""},
        {"Admisiones", "consentimiento", "A"},
        {"Expedientes", "fbusqueda", "31/09/2024"},
        {"Expedientes", "expedientes", ""},
        {"Expedientes", "h", "un"},
        {"Expedientes", "m", "75"},
        {"Impresiones", "duplicado", ""},
    };
    for (const auto &[section, key, value] : bad) {
        EXPECT_THROW(load(section, key, value), std::invalid_argument) << section << ' ' << key;
    }
    EXPECT_EQ(load("Cliente", "estado", "").EstadoFiscal, -1);
    EXPECT_EQ(load("Equipo", "hora", "8:05:00").HoraApagar, QTime(8, 5));
    EXPECT_EQ(load("Expedientes", "fbusqueda", "1/2/2024").FechaBusquedaExpedientes, "01/02/2024");
    EXPECT_EQ(load("Admisiones", "dias", "5000").DiasBusqueda, 100);
    EXPECT_EQ(load("Impresiones", "duplicado", "-3").SegundosDuplicado, 0);
    EXPECT_EQ(load("Usuario", "estado", "").Estado, -1);
    EXPECT_FALSE(load("Expedientes", "fbusqueda", "").fechaExpedientes().isValid());
    EXPECT_FALSE(load("Equipo", "hora", "").HoraApagar.isValid());
}

/// Every line that is a key, as "section/key" in small letters and its value.
QMap<QString, QString> keysOf(const QString &path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QMap<QString, QString> keys;
    QString section;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        if (line.startsWith(u'[')) {
            section = line.mid(1, line.indexOf(u']') - 1);
        } else if (const auto at = line.indexOf(u'='); at > 0) {
            keys[(section + u'/' + line.left(at)).toLower()] = line.mid(at + 1);
        }
    }
    return keys;
}

TEST(OptionsTest, SavingWhatWasReadChangesNoKeyButTheHours) {
    TestInstallation files;
    const QMap<QString, QString> before = keysOf(files.iniPath());
    Options options;
    IniFile ini(files.iniPath());
    options.load(ini);
    options.save(ini);
    QMap<QString, QString> after = keysOf(files.iniPath());
    for (auto key = before.begin(); key != before.end(); ++key) {
        EXPECT_EQ(after.take(key.key()), key.value()) << qPrintable(key.key());
    }
    EXPECT_EQ(after.keys(),
              QStringList({"ayuda/ayuda", "equipo/h", "equipo/hora", "equipo/m", "equipo/s"}))
        << "keys that the file lacked";
}

TEST(OptionsTest, SavedOptionsComeBackButForThoseThatAreReadElsewhere) {
    TestInstallation files;
    IniFile ini(files.iniPath());
    Options options;
    options.load(ini);
    options.HoraApagar = QTime(21, 5, 9);
    options.ApagarSistema = true;
    options.GenerarPolizas = true;
    options.ArchivoAyuda = "C:\\KALDO\\HelpFile\\otro.chm";
    options.TitulosMayusculas = true;
    options.Estado = 4;
    options.EstadoFiscal = 4;
    options.Consentimiento = -1;
    options.IntervaloLista = QTime(1, 2, 3);
    options.save(ini);
    EXPECT_EQ(ini.value("Equipo", "hora"), "21:05:09");
    EXPECT_EQ(ini.value("Equipo", "h") + ini.value("Equipo", "m") + ini.value("Equipo", "s"),
              "210509");
    EXPECT_EQ(ini.value("Usuario", "estado"), "5");
    EXPECT_EQ(ini.value("Cliente", "estado"), "4");
    EXPECT_EQ(ini.value("Cliente", "maysucula"), "S");
    EXPECT_EQ(ini.value("Ayuda", "Ayuda"), options.ArchivoAyuda);
    EXPECT_EQ(ini.value("Contabilidad", "polizas"), "S");

    Options other;
    other.load(IniFile(files.iniPath()));
    EXPECT_EQ(other.HoraApagar, options.HoraApagar);
    EXPECT_EQ(other.IntervaloLista, options.IntervaloLista);
    EXPECT_EQ(other.Consentimiento, -1);
    EXPECT_EQ(other.Estado, 4);
    EXPECT_FALSE(other.GenerarPolizas) << "lives until the next start";
    EXPECT_NE(other.ArchivoAyuda, options.ArchivoAyuda);

    options.ApagarSistema = false;
    options.CambiarPass = false;
    options.sector = Sector::None;
    options.save(ini);
    EXPECT_EQ(ini.value("Equipo", "apagar"), "S") << "never switched off from here";
    EXPECT_EQ(ini.value("Usuario", "cambiar_pass"), "S");
    EXPECT_EQ(ini.value("Cliente", "sector"), "2");
}

TEST(OptionsTest, FileThatCannotBeWrittenIsTold) {
    TestInstallation files;
    IniFile ini(files.iniPath());
    Options options;
    options.load(ini);
    const QString folder = files.root() + "/Ini";
    ASSERT_TRUE(QDir().rename(folder, folder + "_"));
    QFile blocker(folder);
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    EXPECT_THROW(options.save(ini), std::runtime_error);
}

}  // namespace
}  // namespace kaldo::test
