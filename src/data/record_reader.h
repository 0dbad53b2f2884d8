#pragma once

#include <functional>
#include <utility>
#include <vector>

#include "data/named_query.h"

namespace kaldo {

/// Reads rows of one query into a struct, for who reads thousands: each field is found once, by the
/// first row. It stands in the data module beside its query, which keeps the names, so that the
/// test of all texts finds one that the database doesn't have.
template <typename T>
class RecordReader {
public:
    struct Field {
        template <typename Member>
        Field(const char *name, Member T::*member)
            : name(QString::fromLatin1(name)), take([member](T &row, const QVariant &value) {
                  row.*member = value.value<Member>();
              }) {}

        QString name;
        std::function<void(T &, const QVariant &)> take;
    };

    /// The query outlives its reader.
    RecordReader(NamedQuery &query, std::initializer_list<Field> fields)
        : query_(query), fields_(fields) {
        for (const Field &field : fields_) {
            query_.expectField(field.name);
        }
    }
    RecordReader(const RecordReader &) = delete;
    RecordReader &operator=(const RecordReader &) = delete;

    /// The row at the cursor; NULL, and every field of a closed or an empty query, reads as zero or
    /// as an empty text.
    T current() const { return query_.position() < 0 ? T{} : at(query_.position()); }
    T at(int row) const {
        if (version_ != query_.columnsVersion()) {
            columns_.clear();
            for (const Field &field : fields_) {
                columns_.push_back(query_.requireColumn(field.name));
            }
            version_ = query_.columnsVersion();
        }
        T read{};
        for (std::size_t each = 0; each < fields_.size(); ++each) {
            fields_[each].take(read, query_.valueAt(row, columns_[each]));
        }
        return read;
    }

private:
    NamedQuery &query_;
    std::vector<Field> fields_;
    mutable std::vector<int> columns_;
    mutable int version_ = -1;
};

}  // namespace kaldo
