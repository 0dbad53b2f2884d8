#include "shell/update_check.h"

#include "shell/version.h"
#include "toolkit/core/log.h"
#include "toolkit/core/text.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>
#include <QSaveFile>
#include <QScopeGuard>

namespace kaldo {

namespace {

constexpr int kVersionWidth = 15;

const QString kColumn = QStringLiteral("sistema_ver");
const QString kVersionFile = QStringLiteral("C:\\KALDO\\Ini\\kaldoversion.ini");
const QString kServerFile = QStringLiteral("C:\\KALDO\\Ini\\actualizacion.txt");
const QString kUpdater = QStringLiteral("C:\\KALDO\\Update\\Update.exe");

bool launchDetached(const QString &program) {
    return QProcess::startDetached(program, {}, QFileInfo(program).absolutePath());
}

void replaceFile(const QString &path, const QByteArray &bytes) {
    QDir().mkpath(QFileInfo(path).absolutePath());
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        throw std::runtime_error(
            QStringLiteral("No se pudo escribir el archivo %1.").arg(path).toStdString());
    }
}

/// Lets the windows repaint; what the user types meanwhile waits.
void processMessages() {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace

UpdateCheck::UpdateCheck(Context &context, UpdateSettings settings)
    : context_(context), settings_(std::move(settings)) {
    if (!settings_.launch) {
        settings_.launch = &launchDetached;
    }
}

bool UpdateCheck::ConectarFTP() {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    processMessages();
    const auto after = qScopeGuard([] {
        processMessages();
        QGuiApplication::restoreOverrideCursor();
    });
    try {
        fetchPublishedVersion();
        return true;
    } catch (const std::exception &failure) {
        // A station without a way to the server works on with the version that is stored.
        logSwallowed(QStringLiteral("búsqueda de una versión nueva"), failure);
        return false;
    }
}

void UpdateCheck::fetchPublishedVersion() {
    const QString local = context_.installation.map(kVersionFile);
    replaceFile(local, fetchFtpFile(serverOfInstallation(), QStringLiteral("kaldoversion.ini"),
                                    settings_.patience));
    const QString version = cutToWidth(
        IniFile(local).value(QStringLiteral("KALDO"), QStringLiteral("version")), kVersionWidth);
    if (version.isEmpty()) {
        throw std::runtime_error("El archivo del servidor no tiene versión.");
    }
    NamedQuery &control = context_.odonto.Control;
    control.reopen();
    const auto undo = qScopeGuard([&control] { control.cancelUpdates(); });
    control.set(kColumn, version);
    control.post();
    control.apply();
}

FtpServer UpdateCheck::serverOfInstallation() const {
    QFile file(context_.installation.map(kServerFile));
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("La estación no tiene servidor de actualización.");
    }
    QString text = QString::fromUtf8(file.readAll());
    if (text.startsWith(QChar::ByteOrderMark)) {
        text.remove(0, 1);
    }
    QStringList lines = text.remove(u'\r').split(u'\n');
    lines.resize(4);
    return {lines[0].trimmed(), lines[1].trimmed(), lines[2], lines[3].trimmed(), settings_.port};
}

bool UpdateCheck::run(Asked asked) {
    ConectarFTP();
    NamedQuery &control = context_.odonto.Control;
    control.reopen();
    const QString published = control.text(kColumn).trimmed();
    const QString own = QString::fromLatin1(kVersion);
    if (published != own) {
        context_.messages.information(
            QStringLiteral("Se encuentra una versión actualizada de KALDO, iniciará la descarga ") +
            published);
        return startUpdater();
    }
    return asked == Asked::FromMenu &&
           context_.messages.confirm(
               QStringLiteral("KALDO se encuentra actualizado con la última versión") + own +
               QStringLiteral(" ¿Desea descargarla nuevamente? ")) == Answer::Yes &&
           startUpdater();
}

bool UpdateCheck::startUpdater() {
    const QString program = context_.installation.map(kUpdater);
    const QString told = QDir::toNativeSeparators(program);
    const QFileInfo file(program);
    if (!file.isFile() || !file.isExecutable()) {
        context_.messages.error(
            QStringLiteral("El programa de actualización %1 no está instalado en esta estación.")
                .arg(told));
        return false;
    }
    if (!settings_.launch(program)) {
        context_.messages.error(
            QStringLiteral("No se pudo iniciar el programa de actualización %1.").arg(told));
        return false;
    }
    return true;
}

}  // namespace kaldo
