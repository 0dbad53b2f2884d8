#include "data/firebird_connection.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>

#include <gtest/gtest.h>

#include "data/database_error.h"
#include "tests/support/test_installation.h"

namespace kaldo::test {
namespace {

class FirebirdConnectionTest : public ::testing::Test {
protected:
    FirebirdConnectionTest() {
        connection.setDatabase(files.database("BD_LOCAL.GDB"));
        run(connection,
            "create table cosas (id integer not null primary key, texto varchar(5), chico "
            "smallint, numero double precision, fecha date, momento timestamp, fijo char(4), "
            "dinero numeric(9,2))");
    }

    DatabaseError failureOf(const QString &text, const Parameters &values) {
        try {
            run(connection, text, values);
        } catch (const DatabaseError &failure) {
            return failure;
        }
        ADD_FAILURE() << "no failure: " << text.toStdString();
        return DatabaseError({}, {});
    }

    TestInstallation files;
    FirebirdConnection connection{QStringLiteral("FBLocal"), {}};
};

TEST_F(FirebirdConnectionTest, ValuesComeBackAsTheyWentIn) {
    const QDateTime moment(QDate(2024, 2, 29), QTime(23, 59, 58));
    run(connection, "insert into cosas values (:id, :t, :c, :n, :f, :m, :x, :d)",
        {{"ID", 2147483647},
         {"t", QStringLiteral("ñ\"%'😀")},
         {"c", -32768},
         {"n", 19.5},
         {"f", QDate(1899, 12, 30)},
         {"m", moment},
         {"x", "ab"},
         {"d", 1234.56}});
    const auto rows = rowsOf(connection, "select * from cosas");
    ASSERT_EQ(rows.size(), 1);
    EXPECT_EQ(rows[0][0].toInt(), 2147483647);
    EXPECT_EQ(rows[0][1].toString(), QStringLiteral("ñ\"%'😀"));
    EXPECT_EQ(rows[0][2].toInt(), -32768);
    EXPECT_EQ(rows[0][3].toDouble(), 19.5);
    EXPECT_EQ(rows[0][4].toDate(), QDate(1899, 12, 30));
    EXPECT_EQ(rows[0][5].toDateTime(), moment);
    EXPECT_EQ(rows[0][6].toString(), "ab") << "no padding";
    EXPECT_EQ(rows[0][7].toDouble(), 1234.56);
}

TEST_F(FirebirdConnectionTest, NullIsNotEmptyAndParametersMayRepeat) {
    run(connection, "insert into cosas (id, texto) values (1, :t)", {{"t", QString("")}});
    run(connection, "insert into cosas (id, texto) values (2, :t)", {{"t", QVariant()}});
    const auto rows = rowsOf(connection,
                             "select texto from cosas where id in (:a, :b, :a) -- :no\n"
                             "and ':no' <> :b order by id",
                             {{"a", 1}, {"b", 2}});
    ASSERT_EQ(rows.size(), 2);
    EXPECT_TRUE(rows[0][0].isValid());
    EXPECT_EQ(rows[0][0].toString(), "");
    EXPECT_FALSE(rows[1][0].isValid());
}

TEST_F(FirebirdConnectionTest, AValueThatDoesNotFitIsRefusedAndNothingIsWritten) {
    const QString insert =
        "insert into cosas (id, texto, chico, numero, fecha) values "
        "(:id, :t, :c, :n, :f)";
    const Parameters good = {{"id", 1}, {"t", "abc"}, {"c", 1}, {"n", 1.0}, {"f", QDate()}};
    const QList<std::pair<QString, QVariant>> bad = {
        {"id", 2147483648LL}, {"id", 1.5}, {"id", "uno"},  {"id", ""}, {"t", "seis66"},
        {"c", 32768},         {"c", ""},   {"n", "mucho"}, {"n", NAN}, {"f", "31/02/2024"}};
    for (const auto &[name, value] : bad) {
        Parameters values = good;
        for (auto &[candidate, current] : values) {
            current = candidate == name ? value : current;
            if (!current.toDate().isValid() && candidate == "f" && name != "f") {
                current = QVariant();
            }
        }
        const DatabaseError failure = failureOf(insert, values);
        EXPECT_EQ(failure.failure(), DatabaseFailure::BadValue) << name.toStdString();
        EXPECT_EQ(failure.details().sqlCode, -303);
    }
    EXPECT_EQ(failureOf("delete from cosas where id = :id", {}).failure(),
              DatabaseFailure::BadValue)
        << "a missing parameter";
    EXPECT_EQ(valueOf(connection, "select count(*) from cosas").toInt(), 0);
}

TEST_F(FirebirdConnectionTest, FailuresAreToldApartAndInSpanish) {
    run(connection, "insert into cosas (id) values (1)");
    run(connection,
        "create table partes (id integer not null references cosas (id), "
        "cuantas smallint check (cuantas < 100))");
    run(connection, "insert into partes (id) values (1)");
    run(connection, "create exception negado 'No se puede.'");
    struct Case {
        QString text;
        DatabaseFailure failure;
        QString sentence;
    };
    using enum DatabaseFailure;
    const QList<Case> cases = {
        {"insert into cosas (id) values (1)", DuplicateKey, "El registro ya existe."},
        {"insert into partes (id) values (9)", BadValue,
         "El registro se refiere a otro que no existe."},
        {"delete from cosas", InUse,
         "Otros registros dependen de éste, no se puede borrar ni cambiar su clave."},
        {"insert into cosas (id) values (null)", BadValue,
         "Falta un dato obligatorio, o no corresponde a su campo."},
        {"insert into cosas (id, texto) values (2, 'seis66')", BadValue,
         "Un texto es demasiado largo para su campo."},
        {"insert into cosas (id, chico) values (2, 40000)", BadValue,
         "Un número es demasiado grande para su campo."},
        {"insert into partes (id, cuantas) values (1, 100)", BadValue,
         "Los datos no cumplen una regla de la base de datos de la estación."},
        {"select nada from cosas", Other,
         "La base de datos de la estación no corresponde a esta versión del programa."},
        {"no es una orden", Other, "La base de datos de la estación rechazó la operación."},
    };
    for (const Case &each : cases) {
        const DatabaseError failure = failureOf(each.text, {});
        EXPECT_EQ(failure.failure(), each.failure) << each.text.toStdString();
        EXPECT_EQ(failure.message(), each.sentence + '\n' + failure.details().engineMessage);
        EXPECT_FALSE(failure.details().engineMessage.isEmpty());
        EXPECT_EQ(failure.details().connection, "FBLocal");
    }
    const DatabaseError raised = failureOf("execute block as begin exception negado; end", {});
    EXPECT_EQ(raised.failure(), Raised);
    EXPECT_EQ(raised.message(), "No se puede.") << "without the engine's number, name and place";
}

TEST_F(FirebirdConnectionTest, AnAttachThatFailsTellsWhich) {
    const auto failureOfAttach = [](const QString &path) {
        FirebirdConnection other("FBOdonto", {});
        other.setDatabase(path);
        try {
            other.open();
        } catch (const DatabaseError &failure) {
            EXPECT_TRUE(failure.message().contains("la base de datos de la clínica"));
            EXPECT_FALSE(other.isOpen());
            return failure.failure();
        }
        return DatabaseFailure::Other;
    };
    EXPECT_EQ(failureOfAttach(files.database("NO_EXISTE.GDB")), DatabaseFailure::CannotAttach);
    QFile damaged(files.database("BD_FINANZAS.GDB"));
    ASSERT_TRUE(damaged.open(QIODevice::ReadWrite));
    damaged.write(QByteArray(8192, 'x'));
    damaged.close();
    EXPECT_EQ(failureOfAttach(damaged.fileName()), DatabaseFailure::CannotAttach);
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(failureOfAttach("127.0.0.1/39999:/no/hay/nadie"), DatabaseFailure::CannotAttach);
    EXPECT_LT(timer.elapsed(), 2000) << "a server that isn't there is told at once";
}

TEST_F(FirebirdConnectionTest, TriggersOfADatabaseRunUnlessTheyAreSwitchedOff) {
    run(connection, "create table llegadas (quien varchar(20))");
    run(connection,
        "create trigger al_conectar active on connect as begin "
        "insert into llegadas values ('alguien'); end");
    const auto arrivals = [this] { return rowsOf(connection, "select * from llegadas").size(); };
    FirebirdLogin quiet;
    quiet.databaseTriggers = false;
    FirebirdConnection silent(QStringLiteral("FBLocal"), quiet);
    silent.setDatabase(connection.database());
    silent.open();
    EXPECT_EQ(arrivals(), 0);
    FirebirdConnection heard(QStringLiteral("FBLocal"), {});
    heard.setDatabase(connection.database());
    heard.open();
    EXPECT_EQ(arrivals(), 1);
}

TEST_F(FirebirdConnectionTest, AFileThatAnotherProcessHoldsIsToldAsInUse) {
    const QString file = files.database("BD_FINANZAS.GDB");
    QProcess other;
    other.start("isql-fb", {"-q", "-user", "SYSDBA", file});
    ASSERT_TRUE(other.waitForStarted());
    other.write("select 'abierta' from rdb$database;\n");
    ASSERT_TRUE(other.waitForReadyRead(10000));

    FirebirdConnection finance("FBFinanzas", {});
    finance.setDatabase(file);
    try {
        finance.open();
        ADD_FAILURE() << "two processes hold one embedded file";
    } catch (const DatabaseError &failure) {
        EXPECT_EQ(failure.failure(), DatabaseFailure::FileInUse) << failure.what();
        EXPECT_TRUE(failure.message().startsWith(
            "La base de datos de finanzas está en uso por otro programa."));
    }
    other.write("quit;\n");
    ASSERT_TRUE(other.waitForFinished(10000));
    finance.open();
    EXPECT_TRUE(finance.isOpen());
}

TEST_F(FirebirdConnectionTest, ARowHeldByAnotherStationFailsAfterSeconds) {
    run(connection, "insert into cosas (id) values (1)");
    FirebirdConnection other("FBOtra", {});
    other.setDatabase(files.database("BD_LOCAL.GDB"));

    // The other station's transaction stays open between its execution and its commit.
    struct Holding final : Seam {
        std::function<void()> whileHeld;
        void beforeCommit(const Execution &) override { whileHeld(); }
    } holding;
    QElapsedTimer timer;
    timer.start();
    holding.whileHeld = [this] {
        EXPECT_EQ(failureOf("update cosas set chico=1 where id=1", {}).failure(),
                  DatabaseFailure::LockTimeout);
    };
    other.setSeam(&holding);
    run(other, "update cosas set chico=2 where id=1");
    EXPECT_LT(timer.elapsed(), 8000);
    EXPECT_EQ(valueOf(connection, "select chico from cosas").toInt(), 2);
}

TEST_F(FirebirdConnectionTest, TheSeamSeesAndStopsEachStep) {
    struct Stopping final : Seam {
        int executionToStop = 0;
        int commitToStop = 0;
        QStringList seen;
        void beforeExecution(const Execution &execution) override {
            seen += execution.name + (execution.writes ? " w" : " r");
            if (execution.ordinal == executionToStop) {
                throw std::runtime_error("stopped");
            }
        }
        void beforeCommit(const Execution &execution) override {
            if (execution.ordinal == commitToStop) {
                throw std::runtime_error("stopped");
            }
        }
    } seam;
    seam.executionToStop = 2;
    seam.commitToStop = 3;
    connection.setSeam(&seam);
    run(connection, "insert into cosas (id) values (1)");
    EXPECT_THROW(run(connection, "insert into cosas (id) values (2)"), std::runtime_error);
    EXPECT_THROW(run(connection, "insert into cosas (id) values (3)"), std::runtime_error);
    EXPECT_EQ(valueOf(connection, "select count(*) from cosas").toInt(), 1);
    EXPECT_EQ(seam.seen, QStringList({"check w", "check w", "check w", "check r"}));
    connection.setSeam(nullptr);
    run(connection, "insert into cosas (id) values (2)");
    EXPECT_EQ(valueOf(connection, "select count(*) from cosas").toInt(), 2)
        << "nothing of the stopped writes holds the row back";
}

TEST_F(FirebirdConnectionTest, AnOpenListNeitherBlocksNorOutlivesItsConnection) {
    run(connection,
        "insert into cosas (id) select row_number() over () - 1 from rdb$fields a, rdb$fields b "
        "rows 3000");
    auto list = connection.select({"lista", "select id from cosas order by id"}, {});
    auto again = connection.select({"lista", "select id from cosas order by id"}, {});
    Row row;
    ASSERT_TRUE(list->fetch(row));
    ASSERT_TRUE(again->fetch(row));
    run(connection, "delete from cosas where id = 2999");
    int count = 1;
    while (list->fetch(row)) {
        ++count;
    }
    EXPECT_GE(count, 2999);
    EXPECT_FALSE(list->fetch(row));
    connection.close();
    EXPECT_THROW(again->fetch(row), DatabaseError);
    EXPECT_EQ(valueOf(connection, "select count(*) from cosas").toInt(), 2999)
        << "the connection opens again by itself";
}

TEST_F(FirebirdConnectionTest, ReadsSeeWhatAnotherConnectionHasCommitted) {
    FirebirdConnection other("FBOtra", {});
    other.setDatabase(files.database("BD_LOCAL.GDB"));
    EXPECT_EQ(valueOf(connection, "select count(*) from cosas").toInt(), 0);
    run(other, "insert into cosas (id) values (1)");
    EXPECT_EQ(valueOf(connection, "select count(*) from cosas").toInt(), 1);
}

TEST_F(FirebirdConnectionTest, NumbersBecomeTextsWhereTheColumnIsText) {
    run(connection, "insert into cosas (id, texto) values (1, :t)", {{"t", 17.0}});
    run(connection, "insert into cosas (id, texto) values (12, :t)", {{"t", 4}});
    EXPECT_EQ(valueOf(connection, "select texto from cosas where id=1").toString(), "17");
    EXPECT_EQ(
        rowsOf(connection, "select id from cosas where id starting with :c", {{"c", 1}}).size(), 2)
        << "a prefix test on a number takes its text";
}

}  // namespace
}  // namespace kaldo::test
