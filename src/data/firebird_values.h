#pragma once

#include <ibase.h>

#include <QByteArray>

#include <vector>

#include "data/connection.h"

namespace kaldo {

/// An XSQLDA with room for its values: the parameters of a prepared statement, or the row that it
/// delivers.
class FirebirdRow {
public:
    FirebirdRow();

    XSQLDA *sqlda() { return reinterpret_cast<XSQLDA *>(storage_.data()); }
    const XSQLDA *sqlda() const { return reinterpret_cast<const XSQLDA *>(storage_.constData()); }
    int count() const { return sqlda()->sqld; }

    /// Makes room for `count` variables; true when the description must be asked again.
    bool grow(int count);
    /// Points every variable into a buffer of its own, sized by its description.
    void allocate();

    std::vector<Column> columns() const;
    void read(Row &row) const;

private:
    QByteArray storage_;
    std::vector<char> values_;
    std::vector<ISC_SHORT> nulls_;
};

/// The parameters of a statement: remembers how the database described each, checks range and
/// width, and binds.
class FirebirdParameters {
public:
    FirebirdRow &row() { return row_; }
    /// Keeps the descriptions; call once after the describe.
    void described();

    /// Binds in the order of the question marks. Throws DatabaseError (BadValue, -303) before the
    /// database sees a value that doesn't fit.
    void bind(const std::vector<const QVariant *> &values, const QStringList &names,
              const Statement &statement, const QString &connection);

private:
    struct Described {
        short type;
        short scale;
        short length;
        short subtype;
    };

    FirebirdRow row_;
    std::vector<Described> described_;
    std::vector<QByteArray> buffers_;
    std::vector<ISC_SHORT> nulls_;
};

}  // namespace kaldo
