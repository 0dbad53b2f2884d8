#pragma once

#include <QString>

#include <functional>
#include <optional>

#include "people/student.h"

namespace kaldo {

class DMEscolares;

/// Looks a student number up in the undergraduate roll. `MatriculaPadron` stays open on its rows,
/// for the dialog that lets the user choose among several. A text that is no number of a student
/// finds nobody.
StudentLookup findStudent(DMEscolares &escolares, const QString &matricula,
                          const std::function<bool(int)> &acceptsUnit);

/// The name of a postgraduate; unset when the number is not on that roll.
std::optional<QString> findPostgraduate(DMEscolares &escolares, const QString &matricula);

}  // namespace kaldo
