#include "tests/support/test_installation.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>

#include <stdexcept>

#include "data/firebird_connection.h"
#include "toolkit/core/ini_file.h"

namespace kaldo::test {

namespace {

[[noreturn]] void fail(const QString &text) {
    throw std::runtime_error(text.toStdString());
}

/// The originals, made at the first use and removed when the process ends.
const QString &original(TestInstallation::Content content) {
    const bool examples = content == TestInstallation::Content::ExampleSchool;
    static QTemporaryDir folders[2];
    static bool made[2] = {};
    static QString paths[2];
    const int at = examples ? 1 : 0;
    if (!made[at]) {
        QStringList arguments(folders[at].path());
        if (examples) {
            arguments += QStringLiteral("--examples");
        }
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(QStringLiteral(KALDO_SOURCE_DIR "/scripts/create-databases"), arguments);
        if (!process.waitForFinished(120000) || process.exitCode() != 0) {
            fail("create-databases failed: " + QString::fromUtf8(process.readAll()));
        }
        paths[at] = folders[at].path();
        made[at] = true;
    }
    return paths[at];
}

void copyFolder(const QString &from, const QString &to) {
    QDirIterator files(from, QDir::Files | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString source = files.next();
        const QString target = to + '/' + QDir(from).relativeFilePath(source);
        QDir().mkpath(QFileInfo(target).absolutePath());
        if (!QFile::copy(source, target)) {
            fail("cannot copy " + source);
        }
    }
}

}  // namespace

TestInstallation::TestInstallation(Content content) : installation_(folder_.path()) {
    copyFolder(original(content), folder_.path());
    FirebirdConnection local(QStringLiteral("FBLocal"), {});
    local.setDatabase(database("BD_LOCAL.GDB"));
    for (const auto &[base, file] : {std::pair{"Odontologia", "BD_ODONTOLOGIA.GDB"},
                                     std::pair{"Finanzas", "BD_FINANZAS.GDB"}}) {
        run(local, "update firebird set ruta=:ruta where base=:base",
            {{"ruta", database(file)}, {"base", QString::fromLatin1(base)}});
    }
}

void TestInstallation::setIni(const QString &section, const QString &key,
                              const QString &value) const {
    IniFile(iniPath()).setValue(section, key, value);
}

QList<QVariantList> rowsOf(Connection &connection, const QString &text, const Parameters &values) {
    const auto result = connection.select({"check", text}, values);
    QList<QVariantList> rows;
    Row row;
    while (result->fetch(row)) {
        rows += QVariantList(row.begin(), row.end());
    }
    return rows;
}

QVariant valueOf(Connection &connection, const QString &text, const Parameters &values) {
    const QList<QVariantList> rows = rowsOf(connection, text, values);
    return rows.isEmpty() ? QVariant() : rows.first().first();
}

void run(Connection &connection, const QString &text, const Parameters &values) {
    connection.execute({"check", text}, values);
}

}  // namespace kaldo::test
