#pragma once

#include <QString>

namespace kaldo {

/// Where the program is installed, and the one place that knows how a path of the installation is
/// found on this machine.
class Installation {
public:
    explicit Installation(QString root);

    /// The root where none is told: $KALDO_ROOT, else C:\KALDO on Windows and the user's data
    /// folder elsewhere.
    static QString rootFromEnvironment();

    const QString &root() const { return root_; }

    /// Maps a path that is written with the installation's fixed root ("C:\KALDO\Ini\kaldo.ini",
    /// with either slash, in any case) to this machine. Below the root each folder and file is
    /// found without regard to letter case; parts that don't exist stay as they are written.
    /// Any other path is given back as it is.
    QString map(const QString &path) const;

    /// The opposite: a path of this machine that lies below the root, written with the fixed root,
    /// so that it holds in a copy of the installation too. Any other path as it is.
    QString portable(const QString &path) const;

private:
    QString root_;
};

}  // namespace kaldo
