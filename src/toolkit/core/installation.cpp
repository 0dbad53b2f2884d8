#include "toolkit/core/installation.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStringList>

namespace kaldo {

namespace {

/// The entry of `folder` that is called `name` but for letter case; `name` where there is none.
QString existingName(const QDir &folder, const QString &name) {
    if (QFileInfo::exists(folder.filePath(name))) {
        return name;
    }
    const QStringList entries = folder.entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    for (const QString &entry : entries) {
        if (entry.compare(name, Qt::CaseInsensitive) == 0) {
            return entry;
        }
    }
    return name;
}

}  // namespace

Installation::Installation(QString root) : root_(QDir(root).absolutePath()) {}

QString Installation::rootFromEnvironment() {
    const QString variable = qEnvironmentVariable("KALDO_ROOT");
    if (!variable.isEmpty()) {
        return variable;
    }
#ifdef Q_OS_WIN
    return QStringLiteral("C:/KALDO");
#else
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QLatin1String("/kaldo");
#endif
}

QString Installation::map(const QString &path) const {
    QString slashes = path;
    slashes.replace(u'\\', u'/');
    QString below;
    for (const QLatin1String prefix : {QLatin1String("C:/KALDO/"), QLatin1String("/KALDO/")}) {
        if (slashes.startsWith(prefix, Qt::CaseInsensitive)) {
            below = slashes.mid(prefix.size());
            break;
        }
    }
    if (below.isEmpty()) {
        return path;
    }
    const QStringList parts = below.split(u'/', Qt::SkipEmptyParts);
    QString mapped = root_;
    for (const QString &part : parts) {
        mapped += u'/' + existingName(QDir(mapped), part);
    }
    return mapped;
}

QString Installation::portable(const QString &path) const {
    const QString below = QDir::cleanPath(path);
    if (!below.startsWith(root_ + u'/')) {
        return path;
    }
    return QLatin1String("C:\\KALDO") + below.mid(root_.size()).replace(u'/', u'\\');
}

}  // namespace kaldo
