#include "data/runtime_texts.h"

#include <QDate>

namespace kaldo {

RuntimeText expeText(const QString &expediente, const QString &campus) {
    return RuntimeText()
        .line(QStringLiteral(
            "SELECT DISTINCT e.expediente, e.folio, e.prestacion, e.centro, e.num_empl,  "
            "e.empleado, e.dependencia, e.status,"))
        .line(QStringLiteral(
            "d.paterno, d.materno, d.paciente, d.edad,  d.tipopaciente, d.fecha_nac, "
            "a.canalizadoa, a.nombre, c.descr"))
        .line(QStringLiteral(
            "FROM datosgenerales d, expedientes e, admision a, ctroatencion c WHERE (d.folio = "
            "e.folio) AND (d.folio = a.folio) AND (e.folio = a.folio) AND  (e.centro = c.centro)"))
        .line(QStringLiteral("AND (e.expediente starting with :Exp)"),
              QStringLiteral("AND (e.expediente like :ExpPrefijo)"))
        .line(QStringLiteral("AND (e.campus starting with :cd)"),
              QStringLiteral("AND (e.campus like :cdPrefijo)"))
        .bind(QStringLiteral("Exp"), expediente)
        .bind(QStringLiteral("cd"), campus)
        .bind(QStringLiteral("ExpPrefijo"), QString(expediente + u'%'))
        .bind(QStringLiteral("cdPrefijo"), QString(campus + u'%'));
}

RuntimeText consultaAdmisionText(const QString &paterno, const QString &materno,
                                 const QString &paciente) {
    const auto holding = [](const QString &name) { return u'%' + name.trimmed() + u'%'; };
    return RuntimeText()
        .line(QStringLiteral("Select a.folio,a.fecha,a.num_caja,a.nota_vta,a.status,d.paterno,"
                             "d.materno,d.paciente,d.edad,d.fecha_nac,d.nombre"))
        .line(QStringLiteral("from  admision a inner join datosgenerales d on (a.folio = d.folio)"))
        .line(QStringLiteral("Where d.paterno like :C1"))
        .line(QStringLiteral("And d.materno like :C2"))
        .line(QStringLiteral("And d.paciente like :C3"))
        .bind(QStringLiteral("C1"), holding(paterno))
        .bind(QStringLiteral("C2"), holding(materno))
        .bind(QStringLiteral("C3"), holding(paciente));
}

RuntimeText listaPreciosFaceText(int tipoProd, bool child) {
    // The closing percent sign of the second pattern only is meant so.
    return RuntimeText()
        .line(QStringLiteral("select * from listaprecios where tipo_prod=:tipo_prod"))
        .line(QStringLiteral("and descr not like :patron"))
        .line(QStringLiteral("order by descr"))
        .bind(QStringLiteral("tipo_prod"), tipoProd)
        .bind(QStringLiteral("patron"),
              child ? QStringLiteral("%FACE 2") : QStringLiteral("%FACE 1%"));
}

RuntimeText claveRepetidaText(const QVariant &cveProd) {
    return RuntimeText()
        .line(QStringLiteral("Select * from detallevtas"))
        .line(QStringLiteral("Where cve_prod=:cve_prod"))
        .bind(QStringLiteral("cve_prod"), cveProd);
}

RuntimeText firebirdDuplicadoText(const QVariant &noidx) {
    return RuntimeText()
        .line(QStringLiteral("Select * from firebid"))
        .line(QStringLiteral("Where noindx=:noidx"))
        .bind(QStringLiteral("noidx"), noidx);
}

RuntimeText informixDuplicadoText(const QVariant &noidx) {
    return RuntimeText()
        .line(QStringLiteral("Select * from Informix"))
        .line(QStringLiteral("Where noindx=:noidx"))
        .bind(QStringLiteral("noidx"), noidx);
}

RuntimeText recibosDuplicadoText(const QVariant &recibo) {
    return RuntimeText()
        .line(QStringLiteral("Select * from recibos"))
        .line(QStringLiteral("Where recibo=:recibo"))
        .bind(QStringLiteral("recibo"), recibo);
}

QList<RuntimeText> borrarCorteTexts(int caja, const QDate &fecha) {
    // With parameters the desk is tested by prefix: desk 1 also empties desks 10 to 19.
    const QString desk = QStringLiteral("where num_caja STARTING WITH :caja");
    const QString deskOdbc = QStringLiteral("where num_caja = :caja");
    return {RuntimeText()
                .line(QStringLiteral("Delete From cortebancario"))
                .line(desk, deskOdbc)
                .line(QStringLiteral("And fechacorte=:fecha"))
                .bind(QStringLiteral("caja"), caja)
                .bind(QStringLiteral("fecha"), fecha),
            RuntimeText()
                .line(QStringLiteral("Delete From cortedetallado"))
                .line(desk, deskOdbc)
                .bind(QStringLiteral("caja"), caja),
            RuntimeText()
                .line(QStringLiteral("Delete From totales"))
                .line(desk, deskOdbc)
                .bind(QStringLiteral("caja"), caja)};
}

}  // namespace kaldo
