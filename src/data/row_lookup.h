#pragma once

#include <QHash>
#include <QString>
#include <QVariant>

namespace kaldo {

class NamedQuery;

/// A field that shows what another query's rows give for a key. Each row of the source is read
/// once, until it changes, and no further than to the first that has the key.
class RowLookup {
public:
    RowLookup(QString field, QString key, NamedQuery &source, QString sourceKey, QString result);

    const QString &field() const { return field_; }
    const QString &key() const { return key_; }
    NamedQuery &source() const { return *source_; }

    /// Invalid where the source is closed, has no such row, or can't be read any further. It may
    /// fetch rows of the source, and never throws a failure of the database.
    QVariant find(const QVariant &key);
    /// Its own reading makes the source tell of new rows.
    bool finding() const { return finding_; }
    /// How many rows of the source it knows.
    int read() const { return read_; }
    void forget();

private:
    void readRows();

    QString field_;
    QString key_;
    NamedQuery *source_;
    QString sourceKey_;
    QString result_;
    QHash<QString, QVariant> known_;  ///< results by key, of the source's first rows
    int read_ = 0;
    bool finding_ = false;
};

}  // namespace kaldo
