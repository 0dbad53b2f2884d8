#include <gtest/gtest.h>

#include <QElapsedTimer>

#include "data/ftp_file.h"
#include "tests/support/ftp_server.h"

namespace kaldo::test {
namespace {

using namespace std::chrono_literals;

const QString kFile = QStringLiteral("kaldoversion.ini");
const QByteArray kContent = "[KALDO]\r\nversion=1.2.3.4\r\n";

FtpServer loginOf(quint16 port, const QString &directory) {
    return {QStringLiteral("127.0.0.1"), FtpTestServer::user(), FtpTestServer::password(),
            directory, port};
}

/// The time that a failed fetch took, in milliseconds.
qint64 refusedAfter(quint16 port, std::chrono::milliseconds patience) {
    QElapsedTimer time;
    time.start();
    EXPECT_THROW(fetchFtpFile(loginOf(port, QStringLiteral("/kaldo")), kFile, patience), FtpError);
    return time.elapsed();
}

TEST(FtpFileTest, BringsTheBytesAsTheyAre) {
    const FtpTestServer server(QStringLiteral("pub/versión 1#?%"), kFile, kContent);
    for (const char *directory : {"/pub/versión 1#?%", "pub/versión 1#?%/"}) {
        EXPECT_EQ(fetchFtpFile(loginOf(server.port(), QString::fromUtf8(directory)), kFile, 3s),
                  kContent);
    }
    EXPECT_TRUE(server.commands().filter(QStringLiteral("PORT")).isEmpty());
    EXPECT_FALSE(server.commands().filter(QStringLiteral("EPSV")).isEmpty());
    EXPECT_EQ(server.commands().count(QStringLiteral("QUIT")), 2);

    const FtpTestServer old({}, kFile, kContent, FtpFault::OldPassive);
    for (const char *directory : {"", "/"}) {
        EXPECT_EQ(fetchFtpFile(loginOf(old.port(), QString::fromUtf8(directory)), kFile, 3s),
                  kContent);
    }
    EXPECT_TRUE(old.commands().contains(QStringLiteral("PASV")));
}

TEST(FtpFileTest, NothingButTheWholeFileCounts) {
    for (const FtpFault fault : {FtpFault::RefusesLogin, FtpFault::HalfFile, FtpFault::BreaksOff}) {
        const FtpTestServer server(QStringLiteral("kaldo"), kFile, kContent, fault);
        EXPECT_LT(refusedAfter(server.port(), 3s), 2500) << static_cast<int>(fault);
    }
    const FtpTestServer server(QStringLiteral("kaldo"), kFile, kContent);
    EXPECT_THROW(fetchFtpFile(loginOf(server.port(), QStringLiteral("/otra")), kFile, 3s),
                 FtpError);
    EXPECT_THROW(fetchFtpFile(loginOf(server.port(), QStringLiteral("/kaldo")),
                              QStringLiteral("otro.ini"), 3s),
                 FtpError);
    const FtpTestServer huge(QStringLiteral("kaldo"), kFile, QByteArray(2 * 1024 * 1024, 'x'));
    refusedAfter(huge.port(), 3s);
}

TEST(FtpFileTest, NeverWaitsLong) {
    const quint16 nobody = FtpTestServer(QStringLiteral("kaldo"), kFile, kContent).port();
    EXPECT_LT(refusedAfter(nobody, 3s), 1000);

    for (const FtpFault fault : {FtpFault::Silent, FtpFault::Stalls}) {
        const FtpTestServer server(QStringLiteral("kaldo"), kFile, kContent, fault);
        EXPECT_LT(refusedAfter(server.port(), 300ms), 1500) << static_cast<int>(fault);
    }
    const FtpTestServer rude(QStringLiteral("kaldo"), kFile, kContent, FtpFault::NoGoodBye);
    QElapsedTimer time;
    time.start();
    EXPECT_EQ(fetchFtpFile(loginOf(rude.port(), QStringLiteral("/kaldo")), kFile, 500ms), kContent);
    EXPECT_LT(time.elapsed(), 2500);
}

TEST(FtpFileTest, FailureNamesTheServerAndNoPassword) {
    const FtpTestServer server(QStringLiteral("kaldo"), kFile, kContent, FtpFault::RefusesLogin);
    try {
        fetchFtpFile(loginOf(server.port(), {}), kFile, 3s);
        FAIL() << "the server refuses";
    } catch (const FtpError &failure) {
        const QString text = QString::fromUtf8(failure.what());
        EXPECT_TRUE(text.contains(QStringLiteral("127.0.0.1")));
        EXPECT_FALSE(text.contains(FtpTestServer::password()));
    }
    FtpServer nameless = loginOf(server.port(), {});
    nameless.host = QStringLiteral("no hay/tal");
    EXPECT_THROW(fetchFtpFile(nameless, kFile, 3s), FtpError);
}

}  // namespace
}  // namespace kaldo::test
