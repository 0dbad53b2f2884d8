#pragma once

#include <memory>
#include <vector>

#include "data/firebird_connection.h"
#include "data/odbc_connection.h"
#include "toolkit/core/ini_file.h"
#include "toolkit/core/installation.h"

namespace kaldo {

/// All connections of the station, by name. Created closed; open() connects those that the
/// start-up needs, the others come up with the first statement that needs them. They are closed
/// when this object is destroyed.
class DMConexion {
public:
    DMConexion(const Installation &installation, const IniFile &ini);
    ~DMConexion();
    DMConexion(const DMConexion &) = delete;
    DMConexion &operator=(const DMConexion &) = delete;

    /// Opens the local registry, and what it names, one after the other in the order of its rows:
    /// the client library isn't made for two attaches at a time. The first failure ends the opening
    /// and is thrown; what stands before it stays connected.
    void open();

    /// What the last open() found named in the registry outside of the installation's root, as
    /// "base: path": a copied installation that would work on the databases of the original.
    const QStringList &outside() const { return outside_; }

    /// The connection of the station's branch: `firebird` unless the ini file says "Informix".
    Connection &branch(FirebirdConnection &firebird, OdbcConnection &informix);

    std::vector<Connection *> all();
    /// The same seam for every connection; null to take it away.
    void setSeam(Seam *seam);

    /// Who is told while a server makes the program wait; null to take it away.
    void setWaitObserver(WaitObserver *observer) { calls_->setObserver(observer); }
    /// For work whose calls may take longer than others: see CallLimit.
    CallRunner &calls() { return *calls_; }

private:
    std::shared_ptr<CallRunner> calls_ = std::make_shared<CallRunner>();
    FirebirdLogin login_;
    const Installation &installation_;
    QString branch_;
    QString informixServer_;
    QStringList outside_;

public:
    FirebirdConnection FBLocal;
    FirebirdConnection FBOdonto;
    FirebirdConnection FBFinanzas;
    FirebirdConnection FBEscolares;
    FirebirdConnection FBPosgrado;
    FirebirdConnection FBCtrclinicas;
    OdbcConnection InfxOdonto;
    OdbcConnection InfxFinanzas;
    OdbcConnection InfxEscolar;
    OdbcConnection InfxPosgra;
    OdbcConnection InfxCtrClinicas;

private:
    /// The connection that a row of the registry names; null where it names none.
    FirebirdConnection *registered(const QString &base);
    void openInformix();
};

}  // namespace kaldo
