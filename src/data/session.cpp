#include "data/session.h"

namespace kaldo {

void Session::CargarTurno() {
    if (Turno.text() == QLatin1String("CO")) {
        TurnoDescr = QStringLiteral("Completo");
    } else if (Turno.text() == QLatin1String("MA")) {
        TurnoDescr = QStringLiteral("Matutino");
    } else if (Turno.text() == QLatin1String("VE")) {
        TurnoDescr = QStringLiteral("Vespertino");
    }
}

}  // namespace kaldo
