#pragma once

#include <ibase.h>

#include <QString>

namespace kaldo {

/// The status vector of one call into the client library, turned into a DatabaseError where the
/// call failed.
class FirebirdStatus {
public:
    FirebirdStatus(const QString &connection, const QString &statement)
        : connection_(connection), statement_(statement) {}

    ISC_STATUS *vector() { return vector_; }
    bool failed() const { return vector_[0] == 1 && vector_[1] != 0; }
    /// Throws where the call before it failed.
    void check() const;
    /// The same for an attach: a connection that broke in it was none yet.
    void checkAttach() const;

private:
    enum class During { Attach, Statement };
    void check(During during) const;

    ISC_STATUS_ARRAY vector_ = {};
    QString connection_;
    QString statement_;
};

}  // namespace kaldo
