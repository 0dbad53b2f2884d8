#pragma once

#include <QChar>

namespace kaldo {

/// Control characters and what ends a line: a field of one line takes a blank for them.
inline bool breaksLine(QChar character) {
    return character.category() == QChar::Other_Control || character == QChar::LineSeparator ||
           character == QChar::ParagraphSeparator;
}

}  // namespace kaldo
