#pragma once

#include <firebird/Interface.h>

#include <cstdint>
#include <cstring>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace kaldo::volume {

/// A day, counted from 1 January 2000.
struct Day {
    int number = 0;
    friend auto operator<=>(const Day &, const Day &) = default;
};

/// A second of a day.
struct Moment {
    Day day;
    int second = 0;  ///< since midnight
};

struct Null {};

/// An attachment for writing a great deal: one transaction at a time, no undo of single
/// statements, prepared statements that outlive commits. All failures are std::runtime_error.
class BulkDatabase {
public:
    enum class Use {
        Fill,  ///< forced writes go off until `finish()`
        Look,  ///< the database's own settings stand
    };

    /// `path`: a file, with the engine in this process.
    BulkDatabase(const std::string &path, Use use);
    ~BulkDatabase();
    BulkDatabase(const BulkDatabase &) = delete;
    BulkDatabase &operator=(const BulkDatabase &) = delete;

    /// Executes a text at once, within the running transaction.
    void run(const std::string &text);
    /// Every row of a select, all columns as texts; NULL is an empty one.
    std::vector<std::vector<std::string>> rows(const std::string &text);
    /// The engine's way through a text, one step a line, whose parameters are question marks.
    std::string plan(const std::string &text);
    /// Rows read one after the other so far by this attachment, by table.
    std::map<std::string, std::int64_t> sequentialReads();
    /// Makes what was written stand and begins the next transaction.
    void commit();
    /// Forced writes on again: what was written so far lies on the disk when this returns.
    void finish();

private:
    friend class BulkStatement;

    void attach(int forcedWrites);
    void detach();

    std::string path_;
    Firebird::IMaster *master_;
    Firebird::IStatus *rawStatus_;
    Firebird::IAttachment *attachment_ = nullptr;
    Firebird::ITransaction *transaction_ = nullptr;
};

/// A prepared statement with parameters in order. It must not outlive its database.
class BulkStatement {
public:
    BulkStatement(BulkDatabase &database, const std::string &text);
    /// An insert of the columns, which stand between commas.
    BulkStatement(BulkDatabase &database, const std::string &table, const std::string &columns);
    ~BulkStatement();
    BulkStatement(const BulkStatement &) = delete;
    BulkStatement &operator=(const BulkStatement &) = delete;

    /// Executes with these values: integers, doubles, texts, Day, Moment, Null.
    template <typename... Values>
    void operator()(const Values &...values) {
        expect(sizeof...(values));
        std::size_t at = 0;
        (put(at++, values), ...);
        execute();
    }

    /// The same, value by value.
    template <typename Value>
    void set(std::size_t at, const Value &value) {
        put(at, value);
    }
    std::size_t size() const { return slots_.size(); }
    void execute();

private:
    struct Slot {
        unsigned type = 0;
        int scale = 0;
        unsigned length = 0;
        unsigned offset = 0;
        unsigned nullOffset = 0;
    };

    void expect(std::size_t values) const;
    void mark(const Slot &slot, short indicator) {
        std::memcpy(message_.data() + slot.nullOffset, &indicator, sizeof indicator);
    }
    template <typename Stored>
    void store(const Slot &slot, Stored value) {
        std::memcpy(message_.data() + slot.offset, &value, sizeof value);
    }
    void put(std::size_t at, int value) { putInteger(at, value); }
    void put(std::size_t at, std::int64_t value) { putInteger(at, value); }
    void put(std::size_t at, double value);
    void put(std::size_t at, std::string_view text);
    void put(std::size_t at, const std::string &text) { put(at, std::string_view(text)); }
    void put(std::size_t at, const char *text) { put(at, std::string_view(text)); }
    void put(std::size_t at, Day day);
    void put(std::size_t at, Moment moment);
    void put(std::size_t at, Null) { mark(slots_.at(at), -1); }
    void putInteger(std::size_t at, std::int64_t value);
    [[noreturn]] void mismatch(std::size_t at) const;

    BulkDatabase &database_;
    std::string text_;
    Firebird::IStatement *statement_ = nullptr;
    Firebird::IMessageMetadata *layout_ = nullptr;
    std::vector<Slot> slots_;
    std::vector<unsigned char> message_;
};

}  // namespace kaldo::volume
