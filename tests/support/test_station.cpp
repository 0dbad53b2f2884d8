#include "tests/support/test_station.h"

#include "data/module_lookups.h"
#include "toolkit/forms/application.h"

namespace kaldo::test {

TestStation::TestStation() : TestStation(std::make_shared<TestInstallation>()) {}

TestStation::TestStation(std::shared_ptr<TestInstallation> kept) : TestStation(kept->root()) {
    installation = std::move(kept);
}

TestStation::TestStation(const QString &root)
    : files(root),
      ini(root + QStringLiteral("/Ini/kaldo.ini")),
      conexion(files, ini),
      local(conexion),
      odonto(conexion, session, options),
      caja(conexion),
      finanzas(conexion),
      escolares(conexion),
      context{files, clock,    ini,   session, options, messages, fileDialogs, printing,
              frame, conexion, local, odonto,  caja,    finanzas, escolares} {
    linkModules(odonto, caja, finanzas);
    session.ClienteSql = ini.value("Sql", "cliente");
    session.AnioActual = static_cast<qint16>(clock.today().year());
    options.load(ini);
    conexion.open();
    if (Application *application = Application::current()) {
        application->setFailureHandler([this](const std::exception &failure) {
            messages.error(QString::fromUtf8(failure.what()));
        });
    }
}

TestStation::~TestStation() {
    if (Application *application = Application::current()) {
        application->setFailureHandler({});
    }
}

void TestStation::logIn(const QString &usuario) {
    const QVariant pass =
        valueOf(clinic(), "select pass from controlusuarios where usuario=:u", {{"u", usuario}});
    NamedQuery &row = odonto.ControlUsuarios1;
    row.open({{"usr", usuario}, {"pas", pass}});
    if (row.isEmpty()) {
        throw std::runtime_error("no such user: " + usuario.toStdString());
    }
    session.Usuario = usuario;
    session.NumCaja = static_cast<qint16>(row.text("num_caja").toInt());
    session.NombreUsuario = row.text("nombre");
    session.NombreCorto = row.text("nombrecorto");
    session.Acceso = row.text("acceso");
    session.Turno = row.text("turno");
    session.CargarTurno();
    session.Mpo = row.text("mpo");
    session.Origen = row.text("origen");
    session.Centro = row.text("centro");
    odonto.CtroAtencion1.open({{"cd", session.Origen.text()}});
    odonto.CtroAtencion1.locate({{"centro", session.Centro.text()}});
    session.Prog = odonto.CtroAtencion1.text("prog").rightJustified(5, '0');
    session.CentroDescr = odonto.CtroAtencion1.text("descr");
    odonto.TipoCambio1.reopen();
    session.TipoCambio = Money::rounded(odonto.TipoCambio1.number("tipo_cam"));
}

}  // namespace kaldo::test
