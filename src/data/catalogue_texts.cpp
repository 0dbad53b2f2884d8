#include "data/catalogue_texts.h"

namespace kaldo {

namespace {

/// A test by prefix: the ODBC form knows no "starting with". NULL finds nothing in either form.
RuntimeText &prefix(RuntimeText &text, const char *firebird, const char *odbc, const char *name,
                    const QVariant &value) {
    const QString parameter = QString::fromLatin1(name);
    return text.line(QString::fromLatin1(firebird), QString::fromLatin1(odbc))
        .bind(parameter, value)
        .bind(parameter + QStringLiteral("Prefijo"),
              value.isValid() ? QVariant(value.toString() + u'%') : QVariant());
}

RuntimeText prefixTest(const char *select, const char *firebird, const char *odbc, const char *name,
                       const QVariant &value) {
    RuntimeText text;
    text.line(QString::fromLatin1(select));
    return prefix(text, firebird, odbc, name, value);
}

}  // namespace

RuntimeText centroText(const QString &centro) {
    return prefixTest("select descr from ctroatencion", "where centro starting with :CE",
                      "where centro like :CEPrefijo", "CE", centro.left(2));
}

RuntimeText centroDescrText(const QString &descr) {
    return prefixTest("Select descr From CtroAtencion", "where descr starting with :descr",
                      "where descr like :descrPrefijo", "descr", descr);
}

RuntimeText campusExpedientesText(const QString &campus) {
    return prefixTest("Select campus From ControlExpedientes", "where campus starting with :campus",
                      "where campus like :campusPrefijo", "campus", campus.left(2));
}

RuntimeText areaVentaText(const QVariant &tipoProd) {
    return RuntimeText()
        .line(QStringLiteral("Select * from areaventa"))
        .line(QStringLiteral("Where tipo_prod=:tipo"))
        .bind(QStringLiteral("tipo"), tipoProd);
}

RuntimeText areaEnCentrosText(const QVariant &tipoProd) {
    return RuntimeText()
        .line(QStringLiteral("Select * from serviciosxctro"))
        .line(QStringLiteral("Where tipo_prod=:tipo"))
        .bind(QStringLiteral("tipo"), tipoProd);
}

RuntimeText borrarAreasText(const QString &ciudad) {
    return RuntimeText()
        .line(QStringLiteral("Delete from areaventa"))
        .line(QStringLiteral("Where ciudad =:ciudad"), QString())
        .bind(QStringLiteral("ciudad"), ciudad);
}

RuntimeText areaAtencionText(const QString &centro, int tipoProd, const QString &area) {
    RuntimeText text;
    text.line(QStringLiteral("select area from areatencion"));
    prefix(text, "where centro starting with :cent", "where centro like :centPrefijo", "cent",
           centro.left(2));
    prefix(text, "and tipo_prod starting with :tipo", "and tipo_prod like :tipoPrefijo", "tipo",
           tipoProd);
    return prefix(text, "and area starting with :area", "and area like :areaPrefijo", "area", area);
}

RuntimeText prestacionText(const QVariant &prestacion) {
    return prefixTest("select prestacion from prestaciones",
                      "where prestacion starting with :presta",
                      "where prestacion like :prestaPrefijo", "presta", prestacion);
}

RuntimeText prestacionDescrText(const QString &descripcion) {
    return prefixTest("select descripcion from prestaciones",
                      "where descripcion starting with :descr",
                      "where descripcion like :descrPrefijo", "descr", descripcion.left(80));
}

RuntimeText prestacionxservText(const QString &centro, int tipoProd, const QVariant &prestacion) {
    RuntimeText text;
    text.line(QStringLiteral("select * from prestacionxserv"));
    prefix(text, "where centro starting with :Centro", "where centro like :CentroPrefijo", "Centro",
           centro);
    prefix(text, "and tipo_prod starting with :TipoProd", "and tipo_prod like :TipoProdPrefijo",
           "TipoProd", tipoProd);
    return prefix(text, "and prestacion starting with :prestacion",
                  "and prestacion like :prestacionPrefijo", "prestacion", prestacion);
}

RuntimeText labExternoText(const QVariant &subsubcta) {
    return prefixTest("Select subsubcta from labexternos", "where subsubcta starting with :SB",
                      "where subsubcta like :SBPrefijo", "SB", subsubcta);
}

RuntimeText codigoText(int codigo) {
    return RuntimeText()
        .line(QStringLiteral("Select * from listaprecios"))
        .line(QStringLiteral("Where codigo=:codigo"))
        .bind(QStringLiteral("codigo"), codigo);
}

RuntimeText borrarPreciosText(int tipoProd) {
    return RuntimeText()
        .line(QStringLiteral("Delete from ListaPrecios"))
        .line(QStringLiteral("Where tipo_prod =:tipo"), QString())
        .bind(QStringLiteral("tipo"), tipoProd);
}

RuntimeText tipoFormaText(const QVariant &idtipo) {
    return RuntimeText()
        .line(QStringLiteral("select * from tipo_formapago"))
        .line(QStringLiteral("where idtipo=:tipo"))
        .bind(QStringLiteral("tipo"), idtipo);
}

RuntimeText metodoClaveText(const QString &clave) {
    return prefixTest("select clave from metodopagocfdi", "where clave starting with :clave",
                      "where clave like :clavePrefijo", "clave", clave);
}

RuntimeText metodoDescrText(const QString &descripcion) {
    return prefixTest("select descripcion from metodopagocfdi",
                      "where descripcion starting with :descr",
                      "where descripcion like :descrPrefijo", "descr", descripcion.left(80));
}

RuntimeText bancoText(const QVariant &bancoid) {
    return RuntimeText()
        .line(QStringLiteral("select bancoid from cg_banco"))
        .line(QStringLiteral("where bancoid =:Bak"))
        .bind(QStringLiteral("Bak"), bancoid);
}

RuntimeText bancoProgramaText(const QVariant &bancoid, const QVariant &programaid) {
    return RuntimeText()
        .line(QStringLiteral("Select bancoid From cg_bancoporprograma"))
        .line(QStringLiteral("where bancoid=:Bak"))
        .line(QStringLiteral("and programaid=:prog"))
        .bind(QStringLiteral("Bak"), bancoid)
        .bind(QStringLiteral("prog"), programaid);
}

RuntimeText tipoCambioText(double tipoCam) {
    return RuntimeText()
        .line(QStringLiteral("select tipo_cam from TipoCambio"))
        .line(QStringLiteral("where tipo_cam=:tipo_cam"))
        .bind(QStringLiteral("tipo_cam"), tipoCam);
}

RuntimeText usuarioText(const QString &usuario) {
    return prefixTest("select usuario from controlusuarios", "where usuario starting with :usuario",
                      "where usuario like :usuarioPrefijo", "usuario", usuario);
}

RuntimeText otroAdministradorText(const QString &origen, const QString &usuario) {
    return RuntimeText()
        .line(QStringLiteral("select usuario from controlusuarios"))
        .line(QStringLiteral("where origen=:origen and acceso='AM'"))
        .line(QStringLiteral("and usuario<>:usuario"))
        .bind(QStringLiteral("origen"), origen)
        .bind(QStringLiteral("usuario"), usuario);
}

RuntimeText cajaText(const QVariant &numCaja) {
    return prefixTest("select num_caja from datoscaja", "where num_caja starting with :caja",
                      "where num_caja like :cajaPrefijo", "caja", numCaja);
}

RuntimeText cajaNombreText(const QString &nombre) {
    return prefixTest("select nombre from datoscaja", "where nombre starting with :nombre",
                      "where nombre like :nombrePrefijo", "nombre", nombre);
}

}  // namespace kaldo
