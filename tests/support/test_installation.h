#pragma once

#include <QTemporaryDir>

#include "data/connection.h"
#include "toolkit/core/installation.h"

namespace kaldo::test {

/// An installation of its own for one test: a folder with a copy of the example school's five
/// databases and its ini file. The originals are made once per process by scripts/create-databases.
class TestInstallation {
public:
    enum class Content { ExampleSchool, Empty };

    explicit TestInstallation(Content content = Content::ExampleSchool);

    const QString root() const { return folder_.path(); }
    const Installation &installation() const { return installation_; }
    QString database(const QString &file) const { return root() + "/DataBase/" + file; }
    QString iniPath() const { return root() + "/Ini/kaldo.ini"; }
    /// Writes one key of the ini file.
    void setIni(const QString &section, const QString &key, const QString &value) const;

private:
    QTemporaryDir folder_;
    Installation installation_;
};

/// Every row of a select, through the connection given: for checks behind the program's back.
QList<QVariantList> rowsOf(Connection &connection, const QString &text,
                           const Parameters &values = {});
/// The first column of the first row; invalid where there is none.
QVariant valueOf(Connection &connection, const QString &text, const Parameters &values = {});
/// Executes and commits.
void run(Connection &connection, const QString &text, const Parameters &values = {});

}  // namespace kaldo::test
