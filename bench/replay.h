#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "bench/recorder.h"

namespace kaldo::bench {

/// A log whose statements are prepared and whose values lie in their buffers: nothing is left to do
/// but to call the database.
class PreparedLog;

/// The same work done bare: a plain loop over the client library, on attachments of its own, with
/// nothing of KALDO's between. Statements are prepared once per attachment; a write has a
/// transaction of its own, reads share one read-only transaction, as cheap as the engine has it.
class BareClient {
public:
    /// Where the database of a connection lies.
    using Place = std::function<QString(const QString &connection)>;
    /// How many rows a read of this name fetched.
    using RowsRead = std::function<int(const QString &name)>;

    explicit BareClient(Place place);
    ~BareClient();

    /// Prepares what isn't yet and binds the values. `rows`: none means a first page each.
    std::unique_ptr<PreparedLog> prepare(const Log &log, const RowsRead &rows = {});
    /// Calls the database. Throws DatabaseError.
    void play(PreparedLog &log);
    /// Both, for work that nobody times.
    void repeat(const Log &log) { play(*prepare(log)); }

private:
    struct Attachment;
    struct Prepared;
    friend class PreparedLog;

    Attachment &attachmentOf(const QString &connection);
    Prepared &preparedOf(const Execution &execution);

    Place place_;
    std::vector<std::unique_ptr<Attachment>> attachments_;
};

class PreparedLog {
public:
    PreparedLog();
    ~PreparedLog();
    int calls() const;

private:
    friend class BareClient;
    struct Call;
    std::vector<std::unique_ptr<Call>> calls_;
};

}  // namespace kaldo::bench
