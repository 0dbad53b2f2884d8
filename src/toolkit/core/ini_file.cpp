#include "toolkit/core/ini_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringDecoder>

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

bool isSection(QStringView line, QStringView section) {
    const QStringView trimmed = line.trimmed();
    return trimmed.startsWith(u'[') && trimmed.endsWith(u']') &&
           trimmed.mid(1, trimmed.size() - 2).trimmed().compare(section, Qt::CaseInsensitive) == 0;
}

bool isAnySection(QStringView line) {
    const QStringView trimmed = line.trimmed();
    return trimmed.startsWith(u'[') && trimmed.endsWith(u']');
}

}  // namespace

IniFile::IniFile(QString path) : path_(std::move(path)) {
    QFile file(path_);
    if (file.open(QIODevice::ReadOnly)) {
        QString text = decode(file.readAll());
        text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
        lines_ = text.split(u'\n');
        if (!lines_.isEmpty() && lines_.last().isEmpty()) {
            lines_.removeLast();
        }
    }
}

qsizetype IniFile::sectionLine(const QString &section) const {
    for (qsizetype at = 0; at < lines_.size(); ++at) {
        if (isSection(lines_.at(at), section)) {
            return at;
        }
    }
    return -1;
}

qsizetype IniFile::keyLine(qsizetype sectionLine, const QString &key) const {
    for (qsizetype at = sectionLine + 1; at < lines_.size() && !isAnySection(lines_.at(at)); ++at) {
        const QStringView line(lines_.at(at));
        const qsizetype equals = line.indexOf(u'=');
        if (equals > 0 && !line.trimmed().startsWith(u';') &&
            line.left(equals).trimmed().compare(key, Qt::CaseInsensitive) == 0) {
            return at;
        }
    }
    return -1;
}

QString IniFile::value(const QString &section, const QString &key,
                       const QString &defaultValue) const {
    const qsizetype start = sectionLine(section);
    const qsizetype at = start < 0 ? -1 : keyLine(start, key);
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
    QStringList lines = lines_;
    const qsizetype start = sectionLine(section);
    const qsizetype at = start < 0 ? -1 : keyLine(start, key);
    if (at >= 0) {
        const QString &line = lines.at(at);
        lines[at] = line.left(line.indexOf(u'=') + 1) + clean;
    } else if (start >= 0) {
        qsizetype end = start + 1;
        while (end < lines.size() && !isAnySection(lines.at(end))) {
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
    lines_ = lines;
}

void IniFile::writeTogether(const std::function<void()> &call) {
    const QStringList before = lines_;
    together_ = true;
    try {
        call();
        write(lines_);
    } catch (...) {
        lines_ = before;
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
