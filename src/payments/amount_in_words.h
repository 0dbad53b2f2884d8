#pragma once

#include <QString>

namespace kaldo {

enum class WordsOf { Centavos, Pesos, Dollars };

/// An amount in Spanish words as receipts have always shown it, old spellings and double blanks
/// included: "***  CIENTO VEINTITRES PESOS CON  CUARENTA Y CINCO CENTAVOS ***". Third and fourth
/// decimals are cut, and so is what lies above 999,999,999.
///
/// `importe` is in ten-thousandths and not negative.
QString ImporteEnLetra(qint64 importe, WordsOf words);

}  // namespace kaldo
