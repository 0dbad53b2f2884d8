#pragma once

#include <ibase.h>

#include <atomic>
#include <map>
#include <memory>
#include <vector>

#include "data/call_runner.h"
#include "data/database_error.h"
#include "data/firebird_connection.h"
#include "data/firebird_values.h"
#include "data/statement_text.h"

namespace kaldo {

/// True for a file that is opened inside the process.
bool isEmbedded(const QString &database);

/// A statement that the engine has prepared.
class FirebirdStatement {
public:
    FirebirdStatement(class FirebirdAttachment &attachment, const Statement &statement);
    /// Drops it. forget() it first where the attachment is lost.
    ~FirebirdStatement();
    FirebirdStatement(const FirebirdStatement &) = delete;
    FirebirdStatement &operator=(const FirebirdStatement &) = delete;

    void bind(const Parameters &values, const Statement &statement, const QString &connection);
    /// The rows that the last execution changed.
    qint64 changedRows(const QString &connection, const QString &statement);
    void forget() { handle = 0; }

    isc_stmt_handle handle = 0;
    int type = 0;  ///< isc_info_sql_stmt_...
    PositionalText text;
    FirebirdParameters parameters;
    FirebirdRow row;
    std::shared_ptr<const std::vector<Column>> columns;
};

using PreparedStatement = std::shared_ptr<FirebirdStatement>;

/// What lives from an attach to its detach. Result sets share it, so that one that outlives the
/// connection's opening fails cleanly, and so does every call, which may outlive it as well.
///
/// Calls into the client library are made inside of call(). What is told to be called there must
/// be called nowhere else.
class FirebirdAttachment : public std::enable_shared_from_this<FirebirdAttachment> {
public:
    FirebirdAttachment(QString connection, std::shared_ptr<CallRunner> runner, QString path);
    ~FirebirdAttachment();

    /// Attaches, for at most the time that the login names.
    void open(const FirebirdLogin &login);
    /// Detaches, in a second at most: a server that answers later finds out by itself.
    void close();
    /// False once it is closed, or the connection was lost.
    bool alive() const { return alive_; }

    /// Runs `work`, which owns all that it touches: on the second thread where a server must answer
    /// it. A lost connection, and a call whose answer nobody waited for, ends the attachment.
    template <typename Work>
    auto call(const QString &statement, Work work);
    /// The same for what tidies up: it tells no failure and isn't long waited for.
    template <typename Work>
    void tidy(Work work) noexcept;

    /// In a call: a prepared statement, taken from those that are idle or prepared anew.
    PreparedStatement take(const Statement &statement);
    /// In a call.
    void giveBack(PreparedStatement statement, const QString &text);

    const QString connection;
    isc_db_handle database = 0;
    isc_tr_handle reading = 0;

private:
    CallTerms terms() const;
    void attach(const FirebirdLogin &login);
    void detach();
    void abandon();
    void requireNoWait(const QString &statement) const;
    [[noreturn]] void tellCut(const CallCut &cut, const QString &statement);

    const std::shared_ptr<CallRunner> runner_;
    const QString path_;
    const bool away_;  ///< on a server
    std::atomic<bool> alive_ = false;
    std::map<QString, std::vector<PreparedStatement>> idle_;
};

template <typename Work>
auto FirebirdAttachment::call(const QString &statement, Work work) {
    requireNoWait(statement);
    try {
        return away_ ? runner_->run(terms(), std::move(work)) : work();
    } catch (const CallCut &cut) {
        tellCut(cut, statement);
    } catch (const DatabaseError &failure) {
        if (failure.failure() == DatabaseFailure::ConnectionLost) {
            abandon();
        }
        throw;
    }
}

template <typename Work>
void FirebirdAttachment::tidy(Work work) noexcept {
    constexpr std::chrono::milliseconds limit{1000};
    try {
        requireNoWait(QString());
        if (!away_) {
            work();
            return;
        }
        CallTerms brief = terms();
        brief.limit = limit;
        brief.observed = false;
        runner_->run(brief, std::move(work));
    } catch (const CallCut &) {
        alive_ = false;
    } catch (...) {
        // Whoever tidies up has no use for it: the next statement tells.
    }
}

}  // namespace kaldo
