#include "data/firebird_connection.h"

#include <QElapsedTimer>
#include <QTcpServer>
#include <QTest>

#include <gtest/gtest.h>

#include "data/database_error.h"
#include "data/named_query.h"
#include "tests/support/private_server.h"
#include "tests/support/test_installation.h"

namespace kaldo::test {
namespace {

using namespace std::chrono_literals;

class Watcher final : public WaitObserver {
public:
    void waitingBegan(const QString &whom) override { told += whom; }
    bool stillWaiting(std::chrono::milliseconds) override { return onTurn && onTurn(); }
    void waitingEnded() override { ++ended; }

    std::function<bool()> onTurn;
    QStringList told;
    int ended = 0;
};

class LostConnectionTest : public ::testing::Test {
protected:
    LostConnectionTest() {
        connection = open(QStringLiteral("FBOdonto"));
        run(*connection, "create table cosas (id integer not null primary key)");
    }
    ~LostConnectionTest() override { server.thaw(); }

    std::unique_ptr<FirebirdConnection> open(const QString &name) {
        auto made = std::make_unique<FirebirdConnection>(name, FirebirdLogin{}, calls);
        made->setDatabase(server.host() + files.database("BD_LOCAL.GDB"));
        return made;
    }

    DatabaseError failureOf(const std::function<void()> &act) {
        try {
            act();
        } catch (const DatabaseError &failure) {
            return failure;
        }
        ADD_FAILURE() << "no failure";
        return DatabaseError({}, {});
    }
    DatabaseError failureOfInsert() {
        return failureOf([this] { insert(++last); });
    }
    void insert(int id) { run(*connection, "insert into cosas values (:id)", {{"id", id}}); }
    int count() { return valueOf(*connection, "select count(*) from cosas").toInt(); }

    TestInstallation files;
    PrivateServer server{files.root()};
    std::shared_ptr<CallRunner> calls = std::make_shared<CallRunner>();
    std::unique_ptr<FirebirdConnection> connection;
    int last = 0;
};

TEST_F(LostConnectionTest, ACallThatLosesItFailsOnceAndTheNextAttachesAnew) {
    QElapsedTimer timer;
    for (const bool cleanly : {false, true}) {
        insert(++last);
        cleanly ? server.stop() : server.kill();
        timer.start();
        const DatabaseError lost = failureOfInsert();
        EXPECT_EQ(lost.failure(), DatabaseFailure::ConnectionLost) << lost.what();
        EXPECT_TRUE(
            lost.message().startsWith("Se perdió la conexión con la base de datos de la clínica."));
        EXPECT_FALSE(connection->isOpen());
        EXPECT_EQ(failureOfInsert().failure(), DatabaseFailure::CannotAttach);
        const DatabaseError again = failureOfInsert();
        EXPECT_TRUE(again.details().repeated) << "it was told a moment ago";
        EXPECT_LT(timer.elapsed(), 1000);
        ASSERT_TRUE(server.start());
        // A server that refused a moment ago is asked again after a second.
        const auto attached = [&] {
            try {
                connection->open();
            } catch (const DatabaseError &) {
            }
            return connection->isOpen();
        };
        ASSERT_TRUE(QTest::qWaitFor(attached));
        EXPECT_EQ(count(), cleanly ? 2 : 1) << "nothing is repeated";
    }
}

TEST_F(LostConnectionTest, AnAttachmentThatAnotherStationDeletedEndsOneCallAndTheListsOfIt) {
    run(*connection,
        "insert into cosas select row_number() over () from rdb$fields a, rdb$fields b rows 2000");
    NamedQuery list{{"Lista", "select id from cosas order by id"}};
    list.bindTo(*connection);
    list.open();
    ASSERT_TRUE(list.canFetchMore({}));
    const auto other = open(QStringLiteral("FBFinanzas"));
    run(*other,
        "delete from mon$attachments where mon$attachment_id <> current_connection and "
        "mon$system_flag = 0");
    EXPECT_EQ(failureOf([&] { list.count(); }).failure(), DatabaseFailure::ConnectionLost);
    EXPECT_EQ(failureOf([&] { list.count(); }).failure(), DatabaseFailure::ConnectionLost)
        << "half a list is never taken for the whole";
    EXPECT_GT(list.rowCount(), 0) << "what was read stands";
    EXPECT_EQ(count(), 2000);
    list.reopen();
    EXPECT_EQ(list.count(), 2000);
}

TEST_F(LostConnectionTest, AServerThatStopsAnsweringIsWaitedForSoLongAndNoLonger) {
    Watcher watcher;
    calls->setObserver(&watcher);
    server.freeze();
    // It goes on in time: the call is made, once.
    watcher.onTurn = [&] {
        EXPECT_EQ(failureOf([&] { count(); }).failure(), DatabaseFailure::Busy);
        server.thaw();
        return false;
    };
    insert(++last);
    EXPECT_EQ(watcher.told, QStringList("la base de datos de la clínica"));
    EXPECT_EQ(count(), 1);

    server.freeze();
    watcher.onTurn = [] { return true; };
    const DatabaseError givenUp = failureOfInsert();
    EXPECT_EQ(givenUp.failure(), DatabaseFailure::ConnectionLost);
    EXPECT_EQ(givenUp.message(),
              "Se perdió la conexión con la base de datos de la clínica: se dejó de esperar su "
              "respuesta.");
    server.thaw();
    EXPECT_LE(count(), 2) << "nothing is repeated";

    calls->setObserver(nullptr);
    EXPECT_EQ(watcher.ended, 2);
    server.freeze();
    {
        const CallLimit limit(*calls, 1000ms);
        EXPECT_EQ(failureOfInsert().message(),
                  "Se perdió la conexión con la base de datos de la clínica: no respondió en 1 "
                  "segundos.");
    }
    server.thaw();
    EXPECT_LE(count(), 3);
    server.freeze();
    QElapsedTimer timer;
    timer.start();
    connection.reset();
    EXPECT_LT(timer.elapsed(), 3500) << "leaving doesn't hang";
}

TEST_F(LostConnectionTest, AConnectThatNobodyAnswersIsGivenUp) {
    // Its queue is full: what comes then is dropped without a word.
    QTcpServer deaf;
    deaf.setListenBacklogSize(0);
    ASSERT_TRUE(deaf.listen(QHostAddress::LocalHost));
    FirebirdLogin login;
    login.connectTimeoutSeconds = 1;
    QElapsedTimer timer;
    timer.start();
    for (int attempt = 1; attempt <= 4; ++attempt) {
        FirebirdConnection other(QStringLiteral("FBFinanzas"), login, calls);
        other.setDatabase(QStringLiteral("127.0.0.1/%1:/no/hay").arg(deaf.serverPort()));
        const DatabaseError failure = failureOf([&] { other.open(); });
        EXPECT_EQ(failure.failure(), DatabaseFailure::CannotAttach) << failure.what();
        EXPECT_LT(timer.elapsed(), 2500 * attempt);
    }
    EXPECT_EQ(count(), 0) << "other servers are reached meanwhile";
}

}  // namespace
}  // namespace kaldo::test
