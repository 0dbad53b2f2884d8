#include <QDir>
#include <QFile>
#include <QStringConverter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <stdexcept>

#include "toolkit/core/ini_file.h"
#include "toolkit/core/installation.h"
#include "toolkit/core/log.h"
#include "toolkit/core/money.h"
#include "toolkit/core/text.h"

namespace kaldo {
namespace {

TEST(MoneyTest, RoundsToTheNearestTenThousandthAndRefusesWhatItCannotHold) {
    EXPECT_EQ(Money::rounded(0.1 + 0.2).tenThousandths(), 3000);
    EXPECT_EQ(Money::rounded(10 * 18.1234).tenThousandths(), 1812340);
    EXPECT_EQ(Money::rounded(0.00005).tenThousandths(), 1);
    EXPECT_EQ(Money::rounded(-0.00005).tenThousandths(), -1);
    EXPECT_EQ(Money::rounded(999999999.99).tenThousandths(), 9999999999900);
    EXPECT_THROW(Money::rounded(1e15), std::range_error);
    EXPECT_THROW(Money::rounded(std::nan("")), std::range_error);
}

TEST(MoneyTest, TheMasksAreThoseOfMexicoOnEveryMachine) {
    EXPECT_EQ(formatMoney(1234567.895), "$1,234,567.90");
    EXPECT_EQ(formatMoney(0.0), "$0.00");
    EXPECT_EQ(formatMoney(-1234.5), "-$1,234.50");
    EXPECT_EQ(formatMoney(-0.001), "$0.00") << "no minus before a zero";
    EXPECT_EQ(formatMoney(999.0, MoneyMask::Spaced), "$ 999.00");
    EXPECT_EQ(formatMoneyFourDecimals(Money::fromTenThousandths(49)), "$0.0049");
    EXPECT_EQ(formatPlainNumber(18.5), "18.5");
    EXPECT_EQ(formatPlainNumber(1000000), "1000000");
    EXPECT_EQ(formatPlainNumber(0.0001), "0.0001");
}

TEST(MoneyTest, WhatAPersonTypesIsReadOrRefused) {
    const auto read = [](const char *text) {
        double value = -1;
        return parseMoney(QString::fromUtf8(text), &value) ? value : -999;
    };
    EXPECT_EQ(read(""), 0);
    EXPECT_EQ(read(" 1,234.50 "), 1234.5);
    EXPECT_EQ(read("$ 12"), 12);
    EXPECT_EQ(read(".5"), 0.5);
    EXPECT_EQ(read("5."), 5);
    EXPECT_EQ(read("-3"), -3);
    for (const char *bad : {"abc", "1,5", "12,34.5", "1.2.3", "--1", "$", ".", "1e5", "٣"}) {
        EXPECT_EQ(read(bad), -999) << bad;
    }
}

TEST(MoneyTest, FormattedAmountsReadBackAsThemselves) {
    std::mt19937 random(7);
    std::uniform_int_distribution<qint64> cents(-99999999999, 99999999999);
    for (int at = 0; at < 2000; ++at) {
        const double amount = static_cast<double>(cents(random)) / 100.0;
        double back = 0;
        ASSERT_TRUE(parseMoney(formatMoney(amount), &back));
        EXPECT_EQ(Money::rounded(back), Money::rounded(amount));
    }
}

TEST(TextTest, WidthsCountCharactersAndNeverSplitOne) {
    EXPECT_EQ(cutToWidth("abcdef", 3), "abc");
    EXPECT_EQ(cutToWidth(QStringLiteral("😀😀x"), 2), QStringLiteral("😀😀"));
    EXPECT_EQ(characterCount(QStringLiteral("ñ😀")), 2);
    FixedText<8> code = QString("demasiado largo");
    EXPECT_EQ(code.text(), "demasiad");
}

TEST(TextTest, CapitalsOfHeadings) {
    EXPECT_EQ(Mayusculas(QStringLiteral("Clínica Ñandú")), QStringLiteral("CLINICA ÑANDU"));
    EXPECT_EQ(Mayusculas(QStringLiteral("Área")), QStringLiteral("ÁREA"))
        << "capital accents stay as they are";
    EXPECT_EQ(asciiUpper(QStringLiteral("cajeró1ñ")), QStringLiteral("CAJERó1ñ"));
}

class IniFileTest : public ::testing::Test {
protected:
    QString write(const QByteArray &content) {
        QFile file(folder.filePath("kaldo.ini"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }
    QByteArray read() {
        QFile file(folder.filePath("kaldo.ini"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    QTemporaryDir folder;
};

TEST_F(IniFileTest, SectionsAndKeysHaveNoCaseAndValuesStandAsTheyAre) {
    const IniFile ini(
        write("; comentario\r\n[Sql]\r\nCliente = Firebird\r\n[Ambiente]\r\n"
              "skin=C:\\KALDO\\Ini\\a,b=\"c\".dll\r\n[Vacia]\r\n"));
    EXPECT_EQ(ini.value("SQL", "cliente"), "Firebird");
    EXPECT_EQ(ini.value("ambiente", "SKIN"), "C:\\KALDO\\Ini\\a,b=\"c\".dll");
    EXPECT_EQ(ini.value("Vacia", "x", "defecto"), "defecto");
    EXPECT_EQ(ini.value("NoHay", "x"), "");
}

TEST_F(IniFileTest, AWriteChangesItsLineAndNoOther) {
    const QString path = write("; arriba\n[A]\nuno=1\n\n# raro\n[B]\nuno=2\n");
    IniFile ini(path);
    ini.setValue("b", "UNO", "20");
    ini.setValue("A", "dos", "con\nsalto");
    ini.setValue("C", "tres", "3");
    EXPECT_EQ(read(),
              "; arriba\n[A]\nuno=1\n\n# raro\ndos=con salto\n[B]\nuno=20\n\n[C]\ntres=3\n");
    EXPECT_EQ(IniFile(path).value("c", "tres"), "3");
}

TEST_F(IniFileTest, AWriteKeepsWhatWasEditedMeanwhileAndAGoneFileComesBackWhole) {
    const QString path = write("[A]\nuno=1\ndos=2\n");
    IniFile ini(path);
    write("[A]\nuno=1\ndos=otro\n[B]\ntres=3\n");
    ini.setValue("A", "uno", "10");
    EXPECT_EQ(read(), "[A]\nuno=10\ndos=otro\n[B]\ntres=3\n");
    EXPECT_EQ(ini.value("A", "dos"), "otro");
    write("[A]\nuno=11\n");
    ini.writeTogether([&] { ini.setValue("A", "dos", "20"); });
    EXPECT_EQ(read(), "[A]\nuno=11\ndos=20\n");
    for (const bool emptied : {true, false}) {
        if (emptied) {
            write("");
        } else {
            QFile::remove(path);
        }
        ini.setValue("A", "dos", emptied ? "21" : "22");
        EXPECT_EQ(read(), emptied ? "[A]\nuno=11\ndos=21\n" : "[A]\nuno=11\ndos=22\n");
    }
}

TEST_F(IniFileTest, MissingLatinAndBinaryFilesAreReadAsFarAsTheyMakeSense) {
    EXPECT_EQ(IniFile(folder.filePath("no.ini")).value("Sql", "cliente"), "");
    EXPECT_EQ(IniFile(write("[Cliente]\nnombre=Cl\xEDnica\n")).value("Cliente", "nombre"),
              QStringLiteral("Clínica"));
    EXPECT_EQ(IniFile(write("\xEF\xBB\xBF[Sql]\ncliente=Firebird\n")).value("Sql", "cliente"),
              "Firebird");
    QByteArray binary;
    for (int at = 0; at < 4096; ++at) {
        binary += static_cast<char>(at * 37);
    }
    EXPECT_EQ(IniFile(write(binary)).value("Sql", "cliente"), "");
}

TEST_F(IniFileTest, WhatEditorsOfAllKindsLeaveIsReadAndKept) {
    // One line of another code page beside those of this one; Windows' line ends; no last one.
    const QString path = write(
        "[Cliente] ; la escuela\r\nnombre=Cl\xC3\xADnica\r\n"
        "facultad=Odontolog\xED"
        "a\r\niniciales=\"U L\"\r\nclinica='x' y 'z");
    IniFile ini(path);
    EXPECT_EQ(ini.value("Cliente", "nombre"), QStringLiteral("Clínica"));
    EXPECT_EQ(ini.value("Cliente", "facultad"), QStringLiteral("Odontología"));
    EXPECT_EQ(ini.value("Cliente", "iniciales"), "U L");
    EXPECT_EQ(ini.value("Cliente", "clinica"), "'x' y 'z");
    ini.setValue("Cliente", "iniciales", "\"El Litoral\"");
    ini.setValue("Otra", "uno", "1");
    EXPECT_EQ(ini.value("Cliente", "iniciales"), "\"El Litoral\"");
    EXPECT_EQ(QString::fromUtf8(read()),
              QStringLiteral("[Cliente] ; la escuela\r\nnombre=Clínica\r\nfacultad=Odontología\r\n"
                             "iniciales=\"\"El Litoral\"\"\r\nclinica='x' y 'z\r\n\r\n"
                             "[Otra]\r\nuno=1\r\n"));
    const QString text = QStringLiteral("[Sql]\r\ncliente=Peña\r\n");
    for (const auto encoding : {QStringConverter::Utf16LE, QStringConverter::Utf16BE}) {
        for (const auto flag :
             {QStringConverter::Flag::Default, QStringConverter::Flag::WriteBom}) {
            const QByteArray bytes = QStringEncoder(encoding, flag)(text);
            EXPECT_EQ(IniFile(write(bytes)).value("Sql", "cliente"), QStringLiteral("Peña"));
        }
    }
}

TEST_F(IniFileTest, ANumberThatIsNoneFailsInSpanish) {
    const IniFile ini(write("[Admisiones]\ndias=\n[Impresiones]\nduplicado=5\n"));
    EXPECT_EQ(ini.integer("Impresiones", "duplicado"), 5);
    for (const char *section : {"Admisiones", "Nada"}) {
        try {
            ini.integer(section, "dias");
            ADD_FAILURE();
        } catch (const std::invalid_argument &failure) {
            EXPECT_NE(std::string(failure.what()).find("no es un valor entero"), std::string::npos);
        }
    }
}

TEST_F(IniFileTest, AFileThatCannotBeWrittenKeepsItsValue) {
    IniFile ini("/proc/kaldo.ini");
    EXPECT_THROW(ini.setValue("A", "b", "c"), std::runtime_error);
    EXPECT_EQ(ini.value("A", "b"), "");
}

class FileLogTest : public ::testing::Test {
protected:
    QStringList lines(const QString &name) {
        QFile file(folder.filePath("Log/" + name));
        return file.open(QIODevice::ReadOnly)
                   ? QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts)
                   : QStringList();
    }

    QTemporaryDir folder;
};

TEST_F(FileLogTest, FailuresGoToAFileThatIsCountedAndRotated) {
    {
        const FileLog log(folder.filePath("Log/kaldo.log"));
        logSwallowed("nota 1-4711", std::runtime_error("El valor «ANA» no cabe\nen \"nombre\""));
        for (int at = 0; at < 3; ++at) {
            qWarning("otra vez");
        }
        qInfo("no es una falla");
    }
    const QStringList first = lines("kaldo.log");
    ASSERT_EQ(first.size(), 3);
    EXPECT_TRUE(first[0].endsWith(
        QStringLiteral("] warning kaldo.told: nota 1-4711: El valor … no cabe | en \"nombre\"")))
        << qPrintable(first[0]);
    EXPECT_TRUE(first[1].endsWith("warning default: otra vez"));
    EXPECT_TRUE(first[2].endsWith(QStringLiteral("se repitió 2 veces."))) << qPrintable(first[2]);
    for (int at = 0; at < 8; ++at) {
        const FileLog log(folder.filePath("Log/kaldo.log"));
        EXPECT_TRUE(QFile::resize(folder.filePath("Log/kaldo.log"), 2000000));
        qWarning("vez %d", at);
    }
    EXPECT_EQ(lines("kaldo.log").size(), 1);
    EXPECT_TRUE(lines("kaldo.1.log").first().endsWith("vez 6"));
    EXPECT_EQ(QDir(folder.filePath("Log")).entryList(QDir::Files).size(), 6);
    // A folder of the installation that isn't there is not made for it.
    const FileLog nowhere(folder.filePath("no/Log/kaldo.log"));
    qWarning("se pierde");
    EXPECT_FALSE(QDir(folder.filePath("no")).exists());
}

TEST(LogTest, ValuesOfPeopleStayOut) {
    EXPECT_EQ(withoutValues("conversion error from string \"PEREZ\" in \"PK_PAGOS\""),
              QStringLiteral("conversion error from string … in \"PK_PAGOS\""));
    EXPECT_EQ(withoutValues("key value is (\"NOTA\" = 4711, \"NOMBRE\" = 'O''HARA')"),
              QStringLiteral("key value is (\"NOTA\" = 4711, \"NOMBRE\" = …)"));
}

TEST(InstallationTest, PathsOfTheInstallationAreFoundWithoutRegardToCase) {
    QTemporaryDir folder;
    QDir(folder.path()).mkpath("database");
    QFile file(folder.filePath("database/Bd_Local.gdb"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const Installation installation(folder.path());
    EXPECT_EQ(installation.map("C:\\KALDO\\DataBase\\BD_LOCAL.GDB"), file.fileName());
    EXPECT_EQ(installation.map("c:/kaldo/DATABASE/nueva.gdb"),
              folder.filePath("database/nueva.gdb"));
    EXPECT_EQ(installation.map("\\KALDO\\Ini\\kaldo.ini"), folder.filePath("Ini/kaldo.ini"));
    for (const char *elsewhere : {"servidor:/datos/KALDO/x.gdb", "/otra/KALDO/DataBase/x.gdb"}) {
        EXPECT_EQ(installation.map(elsewhere), elsewhere);
        EXPECT_EQ(installation.portable(elsewhere), elsewhere);
    }
    EXPECT_EQ(installation.portable(folder.filePath("database/nueva.gdb")),
              "C:\\KALDO\\database\\nueva.gdb");
}

}  // namespace
}  // namespace kaldo
