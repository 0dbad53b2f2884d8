#include "data/row_lookup.h"

#include <QScopeGuard>

#include <utility>

#include "data/named_query.h"

namespace kaldo {

RowLookup::RowLookup(QString field, QString key, NamedQuery &source, QString sourceKey,
                     QString result)
    : field_(std::move(field)),
      key_(std::move(key)),
      source_(&source),
      sourceKey_(std::move(sourceKey)),
      result_(std::move(result)) {}

QVariant RowLookup::find(const QVariant &key) {
    if (!key.isValid() || !source_->isOpen()) {
        return QVariant();
    }
    const QString wanted = key.toString();
    finding_ = true;
    const auto found = qScopeGuard([this] { finding_ = false; });
    for (;;) {
        readRows();
        if (const auto known = known_.constFind(wanted); known != known_.cend()) {
            return *known;
        }
        if (!source_->canFetchMore({})) {
            return QVariant();
        }
        source_->fetchMore({});
    }
}

void RowLookup::readRows() {
    for (; read_ < source_->rowCount(); ++read_) {
        const QString key = source_->valueAt(read_, sourceKey_).toString();
        if (!known_.contains(key)) {
            known_.insert(key, source_->valueAt(read_, result_));
        }
    }
}

void RowLookup::forget() {
    known_.clear();
    read_ = 0;
}

}  // namespace kaldo
