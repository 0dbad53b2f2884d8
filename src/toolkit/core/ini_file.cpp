#include "toolkit/core/ini_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QSet>
#include <QStringDecoder>

#include <optional>
#include <stdexcept>

namespace kaldo {

namespace {

/// An editor of another code page leaves single lines that are no UTF-8.
QString decodeLine(const QByteArray &bytes) {
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = utf8(bytes);
    return utf8.hasError() ? QString::fromLatin1(bytes) : text;
}

/// The lines of a file, each with its carriage return where it has one.
QStringList decode(const QByteArray &bytes) {
    const auto wide = QStringConverter::encodingForData(bytes, u'[');
    if (wide && *wide != QStringConverter::Utf8) {
        const QString text = QStringDecoder(*wide)(bytes);
        return text.split(u'\n');
    }
    QStringList lines;
    for (const QByteArray &line : bytes.split('\n')) {
        lines += decodeLine(line);
    }
    if (lines.first().startsWith(QChar::ByteOrderMark)) {
        lines.first().remove(0, 1);
    }
    return lines;
}

/// What stands between the brackets of a section's line, in lower case; none for any other line.
/// What follows the bracket is a comment.
std::optional<QString> sectionName(QStringView line) {
    const QStringView trimmed = line.trimmed();
    const qsizetype end = trimmed.indexOf(u']');
    if (!trimmed.startsWith(u'[') || end < 0) {
        return std::nullopt;
    }
    return trimmed.mid(1, end - 1).trimmed().toString().toLower();
}

bool isQuoted(QStringView value) {
    return value.size() >= 2 && value.front() == value.back() &&
           (value.front() == u'"' || value.front() == u'\'');
}

/// A value as its line holds it: one that begins and ends with quotes of its own needs a pair more.
QString written(const QString &value) {
    QString line = value;
    line.replace(u'\n', u' ').replace(u'\r', u' ');
    return isQuoted(line.trimmed()) ? u'"' + line + u'"' : line;
}

bool endsWithReturn(const QStringList &lines) {
    return !lines.isEmpty() && lines.first().endsWith(u'\r');
}

QString placeOf(const QString &section, const QString &key) {
    return section.toLower() + u'\n' + key.toLower();
}

}  // namespace

IniFile::IniFile(QString path) : path_(std::move(path)) {
    reread();
}

void IniFile::reread() {
    QFile file(path_);
    if (!file.open(QIODevice::ReadOnly)) {
        return;
    }
    QStringList lines = decode(file.readAll());
    if (lines.last().isEmpty()) {
        lines.removeLast();
    } else if (endsWithReturn(lines)) {
        lines.last() += u'\r';
    }
    if (!lines.isEmpty()) {
        setLines(lines);
    }
}

void IniFile::setLines(const QStringList &lines) {
    if (lines == lines_) {
        return;
    }
    lines_ = lines;
    places_.clear();
    QSet<QString> sections;
    QString section;
    bool counts = false;  // only the first section of a name does
    for (qsizetype at = 0; at < lines_.size(); ++at) {
        const QStringView line(lines_.at(at));
        if (const std::optional<QString> name = sectionName(line)) {
            section = *name;
            counts = !sections.contains(section);
            sections.insert(section);
            continue;
        }
        const qsizetype equals = line.indexOf(u'=');
        if (!counts || equals <= 0 || line.trimmed().startsWith(u';')) {
            continue;
        }
        const QString place = placeOf(section, line.left(equals).trimmed().toString());
        if (!places_.contains(place)) {
            places_.insert(place, at);
        }
    }
}

qsizetype IniFile::sectionLine(const QString &section) const {
    const QString wanted = section.toLower();
    for (qsizetype at = 0; at < lines_.size(); ++at) {
        if (sectionName(lines_.at(at)) == wanted) {
            return at;
        }
    }
    return -1;
}

QString IniFile::value(const QString &section, const QString &key,
                       const QString &defaultValue) const {
    const qsizetype at = places_.value(placeOf(section, key), -1);
    if (at < 0) {
        return defaultValue;
    }
    const QString &line = lines_.at(at);
    const QString text = line.mid(line.indexOf(u'=') + 1).trimmed();
    return isQuoted(text) ? text.mid(1, text.size() - 2) : text;
}

bool IniFile::isYes(const QString &section, const QString &key) const {
    return value(section, key) == QLatin1String("S");
}

int IniFile::integer(const QString &section, const QString &key) const {
    const QString text = value(section, key);
    bool ok = false;
    const int number = text.toInt(&ok);
    if (!ok) {
        throw std::invalid_argument(
            QStringLiteral("'%1' no es un valor entero válido para la clave %2 de la sección [%3] "
                           "del archivo de configuración.")
                .arg(text, key, section)
                .toStdString());
    }
    return number;
}

void IniFile::setValue(const QString &section, const QString &key, const QString &value) {
    if (!together_) {
        reread();
    }
    QStringList lines = lines_;
    const QString end = endsWithReturn(lines) ? QStringLiteral("\r") : QString();
    const QString clean = written(value) + end;
    const qsizetype start = sectionLine(section);
    const qsizetype at = places_.value(placeOf(section, key), -1);
    if (at >= 0) {
        const QString &line = lines.at(at);
        lines[at] = line.left(line.indexOf(u'=') + 1) + clean;
    } else if (start >= 0) {
        qsizetype behind = start + 1;
        while (behind < lines.size() && !sectionName(lines.at(behind))) {
            ++behind;
        }
        while (behind > start + 1 && lines.at(behind - 1).trimmed().isEmpty()) {
            --behind;
        }
        lines.insert(behind, key + u'=' + clean);
    } else {
        if (!lines.isEmpty() && !lines.last().trimmed().isEmpty()) {
            lines += end;
        }
        lines += u'[' + section + u']' + end;
        lines += key + u'=' + clean;
    }
    if (!together_ && lines != lines_) {
        write(lines);
    }
    setLines(lines);
}

void IniFile::writeTogether(const std::function<void()> &call) {
    reread();
    const QStringList before = lines_;
    together_ = true;
    try {
        call();
        write(lines_);
    } catch (...) {
        setLines(before);
        together_ = false;
        throw;
    }
    together_ = false;
}

void IniFile::write(const QStringList &lines) const {
    QDir().mkpath(QFileInfo(path_).absolutePath());
    QSaveFile file(path_);
    const QByteArray bytes = (lines.join(u'\n') + u'\n').toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        throw std::runtime_error(
            QStringLiteral("No se pudo escribir el archivo de configuración %1.")
                .arg(QDir::toNativeSeparators(path_))
                .toStdString());
    }
}

}  // namespace kaldo
