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

QString decode(QByteArray bytes) {
    if (bytes.startsWith("\xEF\xBB\xBF")) {
        bytes.remove(0, 3);
    }
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = utf8(bytes);
    return utf8.hasError() ? QString::fromLatin1(bytes) : text;
}

/// What stands between the brackets of a section's line, in lower case; none for any other line.
std::optional<QString> sectionName(QStringView line) {
    const QStringView trimmed = line.trimmed();
    if (!trimmed.startsWith(u'[') || !trimmed.endsWith(u']')) {
        return std::nullopt;
    }
    return trimmed.mid(1, trimmed.size() - 2).trimmed().toString().toLower();
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
    QString text = decode(file.readAll());
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    QStringList lines = text.split(u'\n');
    if (lines.last().isEmpty()) {
        lines.removeLast();
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
    return line.mid(line.indexOf(u'=') + 1).trimmed();
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
    QString clean = value;
    clean.replace(u'\n', u' ').replace(u'\r', u' ');
    if (!together_) {
        reread();
    }
    QStringList lines = lines_;
    const qsizetype start = sectionLine(section);
    const qsizetype at = places_.value(placeOf(section, key), -1);
    if (at >= 0) {
        const QString &line = lines.at(at);
        lines[at] = line.left(line.indexOf(u'=') + 1) + clean;
    } else if (start >= 0) {
        qsizetype end = start + 1;
        while (end < lines.size() && !sectionName(lines.at(end))) {
            ++end;
        }
        while (end > start + 1 && lines.at(end - 1).trimmed().isEmpty()) {
            --end;
        }
        lines.insert(end, key + u'=' + clean);
    } else {
        if (!lines.isEmpty() && !lines.last().trimmed().isEmpty()) {
            lines += QString();
        }
        lines += u'[' + section + u']';
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
