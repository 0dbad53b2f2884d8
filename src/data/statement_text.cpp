#include "data/statement_text.h"

namespace kaldo {

namespace {

bool isNameCharacter(QChar character) {
    return character.isLetterOrNumber() || character == u'_' || character == u'$';
}

/// Position just behind the quoted text or the comment that starts at `at`; `at` where none does.
qsizetype skipOpaque(const QString &text, qsizetype at) {
    const QChar first = text.at(at);
    if (first == u'\'' || first == u'"') {
        const qsizetype end = text.indexOf(first, at + 1);
        return end < 0 ? text.size() : end + 1;
    }
    const QStringView rest = QStringView(text).mid(at);
    if (rest.startsWith(u"--")) {
        const qsizetype end = text.indexOf(u'\n', at);
        return end < 0 ? text.size() : end;
    }
    if (rest.startsWith(u"/*")) {
        const qsizetype end = text.indexOf(QLatin1String("*/"), at + 2);
        return end < 0 ? text.size() : end + 2;
    }
    return at;
}

}  // namespace

PositionalText toPositional(const QString &text) {
    PositionalText result;
    result.text.reserve(text.size());
    qsizetype at = 0;
    while (at < text.size()) {
        const qsizetype behind = skipOpaque(text, at);
        if (behind > at) {
            result.text += QStringView(text).mid(at, behind - at);
            at = behind;
            continue;
        }
        if (text.at(at) == u':' && at + 1 < text.size() && isNameCharacter(text.at(at + 1))) {
            qsizetype end = at + 1;
            while (end < text.size() && isNameCharacter(text.at(end))) {
                ++end;
            }
            result.names += text.mid(at + 1, end - at - 1);
            result.text += u'?';
            at = end;
            continue;
        }
        result.text += text.at(at++);
    }
    return result;
}

}  // namespace kaldo
