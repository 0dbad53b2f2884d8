#pragma once

#include <memory>

#include "app/context.h"
#include "tests/support/test_doubles.h"
#include "tests/support/test_installation.h"

namespace kaldo::test {

/// A station without a main window: real modules over an installation of its own, and services
/// that the test holds in its hand. Options are read from the ini file; nobody has logged in.
class TestStation {
public:
    TestStation();
    /// A second station over the same databases needs a server: an embedded file belongs to one
    /// process, but several connections of this process may share it.
    explicit TestStation(std::shared_ptr<TestInstallation> installation);
    /// Over files that somebody else keeps, be it another process; `installation` is null.
    explicit TestStation(const QString &root);
    ~TestStation();

    /// Fills the session from the rows of the user, as the login does. Throws where there is no
    /// such user.
    void logIn(const QString &usuario);

    std::shared_ptr<TestInstallation> installation;
    Installation files;
    TestClock clock;
    IniFile ini;
    Session session;
    Options options;
    ScriptedMessages messages;
    ScriptedFileDialogs fileDialogs;
    RecordingPrinting printing;
    TestFrame frame;
    DMConexion conexion;
    DMLocal local;
    DMOdonto odonto;
    DMIngresosCaja caja;
    DMFinanzas finanzas;
    DMEscolares escolares;
    Context context;

    Connection &clinic() { return conexion.FBOdonto; }
};

}  // namespace kaldo::test
