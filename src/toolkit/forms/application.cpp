#include "toolkit/forms/application.h"

#include "toolkit/core/log.h"

#include <QLibraryInfo>
#include <QScopeGuard>
#include <QTranslator>

#include <stdexcept>

namespace kaldo {

bool FailureGate::pass(const std::function<void()> &show) {
    if (showing_) {
        ++dropped_;
        return false;
    }
    showing_ = true;
    const auto open = qScopeGuard([this] { showing_ = false; });
    show();
    return true;
}

Application::Application(int &argc, char **argv) : QApplication(argc, argv) {
    // The toolkit's own windows and menus speak Spanish on every machine.
    auto *texts = new QTranslator(this);
    if (texts->load(QStringLiteral("qtbase_es"),
                    QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        installTranslator(texts);
    }
}

Application *Application::current() {
    return qobject_cast<Application *>(QCoreApplication::instance());
}

void Application::setFailureHandler(FailureHandler handler) {
    handler_ = std::move(handler);
}

void Application::setColumnMemory(ColumnMemory memory) {
    columnMemory_ = std::move(memory);
}

void Application::reportFailure(const std::exception &failure) noexcept {
    logTo(logFailure(), failure);
    if (!handler_) {
        return;
    }
    try {
        const FailureHandler handler = handler_;
        gate_.pass([&] { handler(failure); });
    } catch (const std::exception &second) {
        logTo(logFailure(), second, QStringLiteral("al mostrar la anterior"));
    }
}

void Application::endApplication(int exitCode) {
    ending_ = true;
    // Not quit(): that one asks every window first, and a window may refuse.
    exit(exitCode);
}

bool Application::notify(QObject *receiver, QEvent *event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception &failure) {
        reportFailure(failure);
    } catch (...) {
        reportFailure(std::runtime_error("Error desconocido."));
    }
    return true;
}

bool runGuarded(const std::function<void()> &call) noexcept {
    const auto report = [](const std::exception &failure) {
        if (Application *application = Application::current()) {
            application->reportFailure(failure);
        } else {
            logTo(logFailure(), failure);
        }
    };
    try {
        call();
        return true;
    } catch (const std::exception &failure) {
        report(failure);
    } catch (...) {
        report(std::runtime_error("Error desconocido."));
    }
    return false;
}

}  // namespace kaldo
