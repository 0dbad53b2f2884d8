#pragma once

#include <QString>
#include <QStringList>

namespace kaldo {

/// An SQL text whose named parameters (":caja") stand as question marks, in the order of the text.
/// A name may come more than once. Quoted texts and comments are left alone.
struct PositionalText {
    QString text;
    QStringList names;  ///< one per question mark, without the colon, as written
};

PositionalText toPositional(const QString &text);

/// The text with every named parameter replaced by what `literal` gives for its name.
template <typename Literal>
QString replaceNamed(const QString &text, Literal literal) {
    const PositionalText positional = toPositional(text);
    QString result;
    qsizetype name = 0;
    bool quoted = false;
    QChar quote;
    for (const QChar character : positional.text) {
        if (quoted) {
            quoted = character != quote;
        } else if (character == u'\'' || character == u'"') {
            quoted = true;
            quote = character;
        } else if (character == u'?') {
            result += literal(positional.names.at(name++));
            continue;
        }
        result += character;
    }
    return result;
}

}  // namespace kaldo
