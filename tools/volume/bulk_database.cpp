#include "tools/volume/bulk_database.h"

#include <ibase.h>

#include <array>
#include <cmath>
#include <stdexcept>

namespace kaldo::volume {

namespace {

using Status = Firebird::ThrowStatusWrapper;

constexpr unsigned kDialect = 3;
/// Pages of the cache, 400 MB: the ends of all keys stay in memory.
constexpr int kCachePages = 50000;
/// Days from the engine's day 0, 17 November 1858, to 1 January 2000.
constexpr int kEngineDay = 51544;
constexpr int kForcedWritesAsTheyAre = -1;
constexpr int kForcedWritesOff = 0;
constexpr int kForcedWritesOn = 1;
constexpr int kTicksOfSecond = 10000;

/// Runs an action of the client library; its failure as a sentence.
template <typename Action>
auto guarded(Firebird::IMaster *master, Firebird::IStatus *raw, const std::string &about,
             Action action) {
    Status status(raw);
    try {
        return action(status);
    } catch (const Firebird::FbException &failure) {
        std::array<char, 1024> text{};
        master->getUtilInterface()->formatStatus(text.data(), text.size(), failure.getStatus());
        throw std::runtime_error(about + ": " + text.data());
    }
}

std::string insertText(const std::string &table, const std::string &columns) {
    std::string marks = "?";
    for (const char letter : columns) {
        if (letter == ',') {
            marks += ", ?";
        }
    }
    return "insert into " + table + " (" + columns + ") values (" + marks + ")";
}

}  // namespace

BulkDatabase::BulkDatabase(const std::string &path, Use use)
    : path_(path), master_(Firebird::fb_get_master_interface()), rawStatus_(master_->getStatus()) {
    attach(use == Use::Fill ? kForcedWritesOff : kForcedWritesAsTheyAre);
}

BulkDatabase::~BulkDatabase() {
    if (transaction_) {
        Firebird::CheckStatusWrapper ignored(rawStatus_);
        transaction_->rollback(&ignored);
        transaction_->release();
    }
    if (attachment_) {
        Firebird::CheckStatusWrapper ignored(rawStatus_);
        attachment_->detach(&ignored);
        attachment_->release();
    }
    rawStatus_->dispose();
}

void BulkDatabase::attach(int forcedWrites) {
    guarded(master_, rawStatus_, path_, [&](Status &status) {
        Firebird::IUtil *util = master_->getUtilInterface();
        Firebird::IXpbBuilder *dpb =
            util->getXpbBuilder(&status, Firebird::IXpbBuilder::DPB, nullptr, 0);
        dpb->insertString(&status, isc_dpb_user_name, "SYSDBA");
        dpb->insertString(&status, isc_dpb_lc_ctype, "UTF8");
        dpb->insertTag(&status, isc_dpb_utf8_filename);
        dpb->insertInt(&status, isc_dpb_num_buffers, kCachePages);
        if (forcedWrites != kForcedWritesAsTheyAre) {
            dpb->insertInt(&status, isc_dpb_force_write, forcedWrites);
        }
        Firebird::IProvider *provider = master_->getDispatcher();
        attachment_ = provider->attachDatabase(
            &status, path_.c_str(), dpb->getBufferLength(&status), dpb->getBuffer(&status));
        dpb->dispose();
        provider->release();
    });
    commit();
}

void BulkDatabase::detach() {
    guarded(master_, rawStatus_, path_, [this](Status &status) {
        transaction_->commit(&status);
        transaction_ = nullptr;
        attachment_->detach(&status);
        attachment_ = nullptr;
    });
}

void BulkDatabase::run(const std::string &text) {
    guarded(master_, rawStatus_, text, [&](Status &status) {
        attachment_->execute(&status, transaction_, 0, text.c_str(), kDialect, nullptr, nullptr,
                             nullptr, nullptr);
    });
}

std::vector<std::vector<std::string>> BulkDatabase::rows(const std::string &text) {
    return guarded(master_, rawStatus_, text, [&](Status &status) {
        std::vector<std::vector<std::string>> result;
        Firebird::IStatement *statement =
            attachment_->prepare(&status, transaction_, 0, text.c_str(), kDialect,
                                 Firebird::IStatement::PREPARE_PREFETCH_METADATA);
        Firebird::IMessageMetadata *described = statement->getOutputMetadata(&status);
        Firebird::IMetadataBuilder *builder = described->getBuilder(&status);
        const unsigned columns = described->getCount(&status);
        constexpr unsigned kWidth = 1024;
        for (unsigned at = 0; at < columns; ++at) {
            builder->setType(&status, at, SQL_VARYING);
            builder->setLength(&status, at, kWidth);
        }
        Firebird::IMessageMetadata *layout = builder->getMetadata(&status);
        std::vector<unsigned char> message(layout->getMessageLength(&status));
        Firebird::IResultSet *cursor =
            statement->openCursor(&status, transaction_, nullptr, nullptr, layout, 0);
        while (cursor->fetchNext(&status, message.data()) == Firebird::IStatus::RESULT_OK) {
            std::vector<std::string> row;
            for (unsigned at = 0; at < columns; ++at) {
                short null = 0;
                unsigned short length = 0;
                std::memcpy(&null, message.data() + layout->getNullOffset(&status, at),
                            sizeof null);
                const unsigned char *value = message.data() + layout->getOffset(&status, at);
                std::memcpy(&length, value, sizeof length);
                row.emplace_back(
                    null ? std::string()
                         : std::string(reinterpret_cast<const char *>(value) + sizeof length,
                                       length));
            }
            result.push_back(std::move(row));
        }
        cursor->close(&status);
        layout->release();
        builder->release();
        described->release();
        statement->free(&status);
        return result;
    });
}

std::string BulkDatabase::plan(const std::string &text) {
    return guarded(master_, rawStatus_, text, [&](Status &status) {
        Firebird::IStatement *statement =
            attachment_->prepare(&status, transaction_, 0, text.c_str(), kDialect,
                                 Firebird::IStatement::PREPARE_PREFETCH_DETAILED_PLAN);
        const char *told = statement->getPlan(&status, true);
        std::string result = told ? told : "";
        statement->free(&status);
        return result;
    });
}

std::map<std::string, std::int64_t> BulkDatabase::sequentialReads() {
    std::map<int, std::string> names;
    for (const auto &row :
         rows("select rdb$relation_id, trim(rdb$relation_name) from rdb$relations")) {
        names[std::stoi(row[0])] = row[1];
    }
    return guarded(master_, rawStatus_, path_, [&](Status &status) {
        const unsigned char item = isc_info_read_seq_count;
        std::array<unsigned char, 16384> answer{};
        attachment_->getInfo(&status, 1, &item, answer.size(), answer.data());
        std::map<std::string, std::int64_t> reads;
        const auto number = [&answer](std::size_t at, short bytes) {
            return isc_portable_integer(answer.data() + at, bytes);
        };
        if (answer[0] == item) {
            const auto length = static_cast<std::size_t>(number(1, 2));
            constexpr std::size_t kEntry = 6;  // number of the table, count
            for (std::size_t at = 3; at + kEntry <= 3 + length; at += kEntry) {
                reads[names[static_cast<int>(number(at, 2))]] = number(at + 2, 4);
            }
        }
        return reads;
    });
}

void BulkDatabase::commit() {
    static constexpr std::array<unsigned char, 6> kWriting = {
        isc_tpb_version3,    isc_tpb_write, isc_tpb_read_committed,
        isc_tpb_rec_version, isc_tpb_wait,  isc_tpb_no_auto_undo};
    guarded(master_, rawStatus_, path_ + ", commit", [this](Status &status) {
        if (transaction_) {
            transaction_->commit(&status);
            transaction_ = nullptr;
        }
        transaction_ = attachment_->startTransaction(&status, kWriting.size(), kWriting.data());
    });
}

void BulkDatabase::finish() {
    detach();
    attach(kForcedWritesOn);
}

BulkStatement::BulkStatement(BulkDatabase &database, const std::string &text)
    : database_(database), text_(text) {
    guarded(database_.master_, database_.rawStatus_, text_, [this](Status &status) {
        statement_ = database_.attachment_->prepare(
            &status, database_.transaction_, 0, text_.c_str(), kDialect,
            Firebird::IStatement::PREPARE_PREFETCH_METADATA);
        layout_ = statement_->getInputMetadata(&status);
        for (unsigned at = 0; at < layout_->getCount(&status); ++at) {
            slots_.push_back({layout_->getType(&status, at) & ~1U, layout_->getScale(&status, at),
                              layout_->getLength(&status, at), layout_->getOffset(&status, at),
                              layout_->getNullOffset(&status, at)});
        }
        message_.resize(layout_->getMessageLength(&status));
    });
}

BulkStatement::BulkStatement(BulkDatabase &database, const std::string &table,
                             const std::string &columns)
    : BulkStatement(database, insertText(table, columns)) {}

BulkStatement::~BulkStatement() {
    Firebird::CheckStatusWrapper ignored(database_.rawStatus_);
    layout_->release();
    statement_->free(&ignored);
}

void BulkStatement::execute() {
    guarded(database_.master_, database_.rawStatus_, text_, [this](Status &status) {
        statement_->execute(&status, database_.transaction_, layout_, message_.data(), nullptr,
                            nullptr);
    });
}

void BulkStatement::expect(std::size_t values) const {
    if (values != slots_.size()) {
        throw std::logic_error(text_ + ": " + std::to_string(values) + " values for " +
                               std::to_string(slots_.size()) + " parameters");
    }
}

void BulkStatement::putInteger(std::size_t at, std::int64_t value) {
    const Slot &slot = slots_.at(at);
    mark(slot, 0);
    switch (slot.type) {
        case SQL_SHORT:
            return store(slot, static_cast<std::int16_t>(value));
        case SQL_LONG:
            return store(slot, static_cast<std::int32_t>(value));
        case SQL_INT64:
            return store(slot, value);
        case SQL_DOUBLE:
            return store(slot, static_cast<double>(value));
        default:
            mismatch(at);
    }
}

void BulkStatement::put(std::size_t at, double value) {
    const Slot &slot = slots_.at(at);
    if (slot.type != SQL_DOUBLE) {
        mismatch(at);
    }
    mark(slot, 0);
    store(slot, value);
}

void BulkStatement::put(std::size_t at, std::string_view text) {
    const Slot &slot = slots_.at(at);
    if (slot.type != SQL_VARYING || text.size() > slot.length) {
        mismatch(at);
    }
    mark(slot, 0);
    const auto length = static_cast<std::uint16_t>(text.size());
    store(slot, length);
    std::memcpy(message_.data() + slot.offset + sizeof length, text.data(), text.size());
}

void BulkStatement::put(std::size_t at, Day day) {
    const Slot &slot = slots_.at(at);
    if (slot.type != SQL_TYPE_DATE) {
        mismatch(at);
    }
    mark(slot, 0);
    store(slot, static_cast<ISC_DATE>(day.number + kEngineDay));
}

void BulkStatement::put(std::size_t at, Moment moment) {
    const Slot &slot = slots_.at(at);
    if (slot.type != SQL_TIMESTAMP) {
        mismatch(at);
    }
    mark(slot, 0);
    store(slot, ISC_TIMESTAMP{moment.day.number + kEngineDay,
                              static_cast<ISC_TIME>(moment.second * kTicksOfSecond)});
}

void BulkStatement::mismatch(std::size_t at) const {
    throw std::logic_error(text_ + ": value " + std::to_string(at + 1) +
                           " doesn't fit its parameter");
}

}  // namespace kaldo::volume
