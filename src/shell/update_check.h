#pragma once

#include <QString>

#include <chrono>
#include <functional>

#include "app/context.h"
#include "data/ftp_file.h"

namespace kaldo {

/// What a test puts in the place of the world outside.
struct UpdateSettings {
    quint16 port = 21;                         ///< of the update server
    std::chrono::milliseconds patience{4000};  ///< with a server that does not answer
    /// Starts a program and leaves it running; false where that fails. Empty: as the desktop does.
    std::function<bool(const QString &program)> launch;
};

/// The check for a new version: what the update server publishes goes to control.sistema_ver, which
/// all stations share; a station whose own version is another one hands over to the updater.
class UpdateCheck {
public:
    enum class Asked {
        AtLogin,  ///< silent where all is up to date
        FromMenu,
    };

    UpdateCheck(Context &context, UpdateSettings settings);

    /// Fetches the published version and keeps it in the local file and in the database. A failure
    /// of any step is caught and told by false; what comes after it stays as it was.
    bool ConectarFTP();

    /// The whole check. True when the updater has been started and the application has to end.
    [[nodiscard]] bool run(Asked asked);

private:
    void fetchPublishedVersion();
    FtpServer serverOfInstallation() const;
    bool startUpdater();

    Context &context_;
    UpdateSettings settings_;
};

}  // namespace kaldo
