#include "toolkit/core/text.h"

namespace kaldo {

QString cutToWidth(const QString &text, int width) {
    qsizetype at = 0;
    for (int taken = 0; at < text.size() && taken < width; ++taken) {
        at += text.at(at).isHighSurrogate() && at + 1 < text.size() ? 2 : 1;
    }
    return text.left(at);
}

int characterCount(const QString &text) {
    int count = 0;
    for (qsizetype at = 0; at < text.size(); ++count) {
        at += text.at(at).isHighSurrogate() && at + 1 < text.size() ? 2 : 1;
    }
    return count;
}

QString Mayusculas(const QString &text) {
    QString plain = text;
    plain.replace(QChar(u'á'), QLatin1Char('A'));
    plain.replace(QChar(u'é'), QLatin1Char('E'));
    plain.replace(QChar(u'í'), QLatin1Char('I'));
    plain.replace(QChar(u'ó'), QLatin1Char('O'));
    plain.replace(QChar(u'ú'), QLatin1Char('U'));
    return plain.toUpper();
}

QString asciiUpper(const QString &text) {
    QString upper = text;
    for (QChar &character : upper) {
        if (character >= QLatin1Char('a') && character <= QLatin1Char('z')) {
            character = character.toUpper();
        }
    }
    return upper;
}

}  // namespace kaldo
