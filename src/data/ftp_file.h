#pragma once

#include <QByteArray>
#include <QString>

#include <chrono>
#include <stdexcept>

namespace kaldo {

/// A transfer that did not bring the whole file. The text is Spanish and holds no password.
class FtpError : public std::runtime_error {
public:
    explicit FtpError(const QString &text) : std::runtime_error(text.toStdString()) {}
};

struct FtpServer {
    QString host;
    QString user;  ///< empty: anonymous
    QString password;
    QString directory;  ///< from the user's own one; from the root of the server with a leading "/"
    quint16 port = 21;
};

/// Fetches one small file (1 MiB at most) in passive mode and gives its bytes as they are. Blocks
/// the thread for `patience` at most, and a second `patience` where a server that has sent all does
/// not say good-bye. Throws FtpError for a server that isn't there, refuses, or sends less than
/// it announced.
QByteArray fetchFtpFile(const FtpServer &server, const QString &file,
                        std::chrono::milliseconds patience);

}  // namespace kaldo
