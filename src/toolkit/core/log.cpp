#include "toolkit/core/log.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMutex>
#include <QRegularExpression>

#include <cstdio>

namespace kaldo {

Q_LOGGING_CATEGORY(logStart, "kaldo.start")
Q_LOGGING_CATEGORY(logFailure, "kaldo.failure")
Q_LOGGING_CATEGORY(logTold, "kaldo.told")

namespace {

constexpr qint64 kLargest = 1024 * 1024;
constexpr int kKept = 5;

/// What the one open FileLog knows. The handler of Qt is one for the process, and threads of Qt's
/// own may call it.
struct Target {
    QMutex mutex;
    QString path;
    QString last;  ///< category and text of the last line
    int repeats = 0;
    QtMessageHandler before = nullptr;
};

Target &target() {
    static Target only;
    return only;
}

QString nameOf(const QString &path, int number) {
    const QFileInfo file(path);
    return number == 0 ? path
                       : file.dir().filePath(QStringLiteral("%1.%2.%3")
                                                 .arg(file.completeBaseName())
                                                 .arg(number)
                                                 .arg(file.suffix()));
}

void rotate(const QString &path) {
    if (QFileInfo(path).size() < kLargest) {
        return;
    }
    QFile::remove(nameOf(path, kKept));
    for (int number = kKept; number > 0; --number) {
        QFile::rename(nameOf(path, number - 1), nameOf(path, number));
    }
}

/// Opened for each line: another program may write to the same file, or take it away.
void writeLine(const QString &path, const QString &severity, const QString &text) {
    const QFileInfo folder(QFileInfo(path).path());
    folder.dir().mkdir(folder.fileName());
    rotate(path);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append)) {
        return;
    }
    const QString moment =
        QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz"));
    file.write(QStringLiteral("%1 [%2] %3 %4\n")
                   .arg(moment)
                   .arg(QCoreApplication::applicationPid())
                   .arg(severity, text)
                   .toUtf8());
}

void writeRepeats(Target &to) {
    if (to.repeats > 0) {
        writeLine(to.path, QStringLiteral("info"),
                  QStringLiteral("kaldo.log: lo anterior se repitió %1 veces.").arg(to.repeats));
    }
    to.repeats = 0;
}

QString severityOf(QtMsgType type) {
    switch (type) {
        case QtWarningMsg:
            return QStringLiteral("warning");
        case QtCriticalMsg:
            return QStringLiteral("critical");
        case QtFatalMsg:
            return QStringLiteral("fatal");
        case QtDebugMsg:
        case QtInfoMsg:
            break;
    }
    return {};
}

void handle(QtMsgType type, const QMessageLogContext &context, const QString &message) {
    Target &to = target();
    const QString severity = severityOf(type);
    if (severity.isEmpty()) {
        to.before(type, context, message);
        return;
    }
    const QString category = QString::fromLatin1(context.category);
    QStringList lines = message.trimmed().split(u'\n', Qt::SkipEmptyParts);
    const QString text = category + QLatin1String(": ") + lines.join(QLatin1String(" | "));
    const QMutexLocker locker(&to.mutex);
    std::fprintf(stderr, "%s\n", qUtf8Printable(text));
    if (text == to.last) {
        ++to.repeats;
        return;
    }
    writeRepeats(to);
    to.last = text;
    writeLine(to.path, severity, text);
}

}  // namespace

QString withoutValues(const QString &text) {
    static const QRegularExpression values(
        QStringLiteral("(?<before>string )\"(?:[^\"]|\"\")*\"|'(?:[^']|'')*'|«[^»]*»"));
    QString clean;
    qsizetype at = 0;
    for (auto found = values.globalMatch(text); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        clean += text.mid(at, match.capturedStart() - at) +
                 match.captured(QStringLiteral("before")) + u'…';
        at = match.capturedEnd();
    }
    return clean + text.mid(at);
}

void logTo(const QLoggingCategory &category, const std::exception &failure, const QString &when) {
    const auto *detailed = dynamic_cast<const LoggedFailure *>(&failure);
    const QString text = detailed != nullptr ? detailed->logText()
                                             : withoutValues(QString::fromUtf8(failure.what()));
    QMessageLogger().warning(category).noquote().nospace()
        << when << (when.isEmpty() ? "" : ": ") << text;
}

FileLog::FileLog(const QString &path) {
    Target &to = target();
    const QMutexLocker locker(&to.mutex);
    to.path = path;
    to.last.clear();
    to.repeats = 0;
    to.before = qInstallMessageHandler(&handle);
}

FileLog::~FileLog() {
    Target &to = target();
    const QMutexLocker locker(&to.mutex);
    writeRepeats(to);
    qInstallMessageHandler(to.before);
}

}  // namespace kaldo
