#pragma once

#include "data/runtime_text.h"

namespace kaldo {

/// The tests that the catalogues make before they take a value, and the texts of their bulk work,
/// both spellings side by side. A test that delivers a row refuses the value.
///
/// Most tests are by prefix: a key or name is refused when an existing one begins with it. They
/// know nothing of the row that is being edited, and refuse its own value too.

/// The first two characters of a centre's code.
RuntimeText centroText(const QString &centro);
RuntimeText centroDescrText(const QString &descr);
RuntimeText campusExpedientesText(const QString &campus);

RuntimeText areaVentaText(const QVariant &tipoProd);
/// The centres that offer a sales area.
RuntimeText areaEnCentrosText(const QVariant &tipoProd);
/// Deletes the sales areas of a campus; the ODBC form deletes those of all.
RuntimeText borrarAreasText(const QString &ciudad);
/// A clinic by the first two characters of its centre.
RuntimeText areaAtencionText(const QString &centro, int tipoProd, const QString &area);

RuntimeText prestacionText(const QVariant &prestacion);
RuntimeText prestacionDescrText(const QString &descripcion);
RuntimeText prestacionxservText(const QString &centro, int tipoProd, const QVariant &prestacion);
RuntimeText labExternoText(const QVariant &subsubcta);

RuntimeText codigoText(int codigo);
/// Deletes the price list of a sales area; the ODBC form deletes those of all.
RuntimeText borrarPreciosText(int tipoProd);

RuntimeText tipoFormaText(const QVariant &idtipo);
RuntimeText metodoClaveText(const QString &clave);
RuntimeText metodoDescrText(const QString &descripcion);
RuntimeText bancoText(const QVariant &bancoid);
RuntimeText bancoProgramaText(const QVariant &bancoid, const QVariant &programaid);
RuntimeText tipoCambioText(double tipoCam);

RuntimeText usuarioText(const QString &usuario);
/// An administrator of the campus other than this user.
RuntimeText otroAdministradorText(const QString &origen, const QString &usuario);
RuntimeText cajaText(const QVariant &numCaja);
RuntimeText cajaNombreText(const QString &nombre);

}  // namespace kaldo
