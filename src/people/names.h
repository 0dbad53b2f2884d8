#pragma once

#include <QString>

namespace kaldo {

/// Width of the whole name of a person wherever it is stored or compared.
inline constexpr int kWholeNameWidth = 80;

/// The three names, each trimmed, joined by one blank, trimmed again and cut to kWholeNameWidth.
/// Notes are matched to patients by this very text, so every writer of a whole name uses it.
QString wholeName(const QString &paterno, const QString &materno, const QString &nombre);

/// Paterno, blank, materno, blank, nombre, each trimmed: how a student's name is shown.
QString studentName(const QString &paterno, const QString &materno, const QString &nombre);

}  // namespace kaldo
