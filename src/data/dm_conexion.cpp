#include "data/dm_conexion.h"

#include <QDir>

namespace kaldo {

namespace {

FirebirdLogin loginFrom(const IniFile &ini) {
    FirebirdLogin login;
    login.password = ini.value(QStringLiteral("Sql"), QStringLiteral("pass"), login.password);
    return login;
}

/// The local database is the program's own: it has no triggers to look for.
FirebirdLogin localLogin(FirebirdLogin login) {
    login.databaseTriggers = false;
    return login;
}

}  // namespace

DMConexion::DMConexion(const Installation &installation, const IniFile &ini)
    : login_(loginFrom(ini)),
      installation_(installation),
      branch_(ini.value(QStringLiteral("Sql"), QStringLiteral("cliente"))),
      informixServer_(ini.value(QStringLiteral("Sql"), QStringLiteral("servidor"))),
      FBLocal(QStringLiteral("FBLocal"), localLogin(login_), calls_),
      FBOdonto(QStringLiteral("FBOdonto"), login_, calls_),
      FBFinanzas(QStringLiteral("FBFinanzas"), login_, calls_),
      FBEscolares(QStringLiteral("FBEscolares"), login_, calls_),
      FBPosgrado(QStringLiteral("FBPosgrado"), login_, calls_),
      FBCtrclinicas(QStringLiteral("FBCtrclinicas"), login_, calls_),
      InfxOdonto(QStringLiteral("InfxOdonto")),
      InfxFinanzas(QStringLiteral("InfxFinanzas")),
      InfxEscolar(QStringLiteral("InfxEscolar")),
      InfxPosgra(QStringLiteral("InfxPosgra")),
      InfxCtrClinicas(QStringLiteral("InfxCtrClinicas")) {
    const auto place = [&installation](const char *file) {
        return installation.map(QStringLiteral("C:\\KALDO\\DataBase\\") +
                                QString::fromLatin1(file));
    };
    FBLocal.setDatabase(place("BD_LOCAL.GDB"));
    FBOdonto.setDatabase(place("BD_ODONTOLOGIA.GDB"));
    FBFinanzas.setDatabase(place("BD_FINANZAS.GDB"));
    FBEscolares.setDatabase(place("BD_ESCOLARES.GDB"));
    FBPosgrado.setDatabase(place("BD_POSGRADO.GDB"));
    FBCtrclinicas.setDatabase(place("BD_ANTERIOR.GDB"));
}

DMConexion::~DMConexion() {
    if (branch_ == QLatin1String("Informix")) {
        InfxOdonto.close();
        InfxFinanzas.close();
        InfxEscolar.close();
        return;
    }
    FBOdonto.close();
    FBFinanzas.close();
    FBEscolares.close();
    FBPosgrado.close();
    FBCtrclinicas.close();
    FBLocal.close();
}

void DMConexion::open() {
    outside_.clear();
    FBLocal.open();
    if (branch_ == QLatin1String("Firebird")) {
        const auto registry = FBLocal.select(
            {QStringLiteral("Firebird1"), QStringLiteral("Select * from Firebird")}, {});
        const auto &columns = registry->columns();
        Row row;
        while (registry->fetch(row)) {
            QString base;
            QString ruta;
            for (std::size_t at = 0; at < columns.size(); ++at) {
                if (columns[at].name == QLatin1String("BASE")) {
                    base = row[at].toString();
                } else if (columns[at].name == QLatin1String("RUTA")) {
                    ruta = row[at].toString();
                }
            }
            if (FirebirdConnection *connection = registered(base)) {
                const QString path = installation_.map(ruta);
                if (installation_.portable(path) == path) {
                    outside_ += base + QLatin1String(": ") + path;
                }
                connection->close();
                connection->setDatabase(path);
                connection->open();
            }
        }
    } else if (branch_ == QLatin1String("Informix")) {
        openInformix();
    }
}

FirebirdConnection *DMConexion::registered(const QString &base) {
    if (base == QLatin1String("Odontologia")) {
        return &FBOdonto;
    }
    return base == QLatin1String("Finanzas") ? &FBFinanzas : nullptr;
}

void DMConexion::openInformix() {
    const QString server = QLatin1String("Server=") + informixServer_;
    const QString service = QStringLiteral("ODBCAdvanced=Odontologia");
    InfxOdonto.addParameter(server);
    InfxOdonto.addParameter(service);
    InfxOdonto.open();
    InfxFinanzas.addParameter(server);
    InfxFinanzas.addParameter(service);
    InfxFinanzas.open();
    InfxEscolar.addParameter(server);
    InfxFinanzas.addParameter(service);
    InfxEscolar.open();
}

Connection &DMConexion::branch(FirebirdConnection &firebird, OdbcConnection &informix) {
    if (branch_ == QLatin1String("Informix")) {
        return informix;
    }
    return firebird;
}

std::vector<Connection *> DMConexion::all() {
    return {&FBLocal,    &FBOdonto,     &FBFinanzas,  &FBEscolares, &FBPosgrado,     &FBCtrclinicas,
            &InfxOdonto, &InfxFinanzas, &InfxEscolar, &InfxPosgra,  &InfxCtrClinicas};
}

void DMConexion::setSeam(Seam *seam) {
    for (Connection *connection : all()) {
        connection->setSeam(seam);
    }
}

}  // namespace kaldo
