#include "people/student_register.h"

#include "data/dm_escolares.h"

namespace kaldo {

namespace {

/// The number that was typed; unset for what no roll could hold.
std::optional<int> studentNumber(const QString &text) {
    bool isNumber = false;
    const int number = text.trimmed().toInt(&isNumber);
    return isNumber ? std::optional<int>(number) : std::nullopt;
}

RollRow rollRow(const NamedQuery &roll, int row) {
    const auto text = [&](const char *field) {
        return roll.valueAt(row, QString::fromLatin1(field)).toString();
    };
    return {text("NOMBRE_PATERNO"), text("NOMBRE_MATERNO"),
            text("NOMBRE_NOM"),     roll.valueAt(row, QStringLiteral("UNIDAD_CLAVE")).toInt(),
            text("UNIDAD_DESC"),    roll.valueAt(row, QStringLiteral("VIGENCIA_CLAVE")).toInt()};
}

}  // namespace

StudentLookup findStudent(DMEscolares &escolares, const QString &matricula,
                          const std::function<bool(int)> &acceptsUnit) {
    const std::optional<int> number = studentNumber(matricula);
    if (!number) {
        return {};
    }
    NamedQuery &roll = escolares.MatriculaPadron;
    roll.open({{QStringLiteral("P_MATRICULA"), *number}});
    QList<RollRow> rows;
    for (int row = 0; row < roll.count(); ++row) {
        rows += rollRow(roll, row);
    }
    return lookUpStudent(rows, acceptsUnit);
}

std::optional<QString> findPostgraduate(DMEscolares &escolares, const QString &matricula) {
    const std::optional<int> number = studentNumber(matricula);
    if (!number) {
        return std::nullopt;
    }
    NamedQuery &roll = escolares.Bposgrado;
    roll.open({{QStringLiteral("matricula"), *number}});
    if (roll.isEmpty()) {
        return std::nullopt;
    }
    return roll.text(QStringLiteral("Nombres"));
}

}  // namespace kaldo
