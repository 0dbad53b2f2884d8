#include "app/binding.h"

#include "data/named_query.h"
#include "toolkit/forms/application.h"
#include "toolkit/forms/choice.h"
#include "toolkit/forms/data_grid.h"
#include "toolkit/forms/date_field.h"
#include "toolkit/forms/line_field.h"
#include "toolkit/forms/lookup_field.h"

#include <memory>

namespace kaldo {

namespace {

/// Runs `show` whenever the query's current row may have changed; the answer writes a value into
/// the row without `show` running for it, so that the text under the user's cursor stays.
template <typename F>
std::function<void(const QVariant &)> follow(F *field, NamedQuery *query, const QString &column,
                                             std::function<void(const QVariant &)> show) {
    const auto writing = std::make_shared<bool>(false);
    const auto refresh = [query, column, show, writing] {
        if (!*writing) {
            show(query->isOpen() && query->position() >= 0 ? query->value(column) : QVariant());
        }
    };
    connectGuarded(query, &NamedQuery::cursorMoved, field, refresh);
    connectGuarded(query, &NamedQuery::opened, field, refresh);
    connectGuarded(query, &NamedQuery::stateChanged, field, refresh);
    connectGuarded(query, &QAbstractItemModel::dataChanged, field, refresh);
    refresh();
    return [query, column, writing](const QVariant &value) {
        *writing = true;
        runGuarded([&] { query->set(column, value); });
        *writing = false;
    };
}

}  // namespace

void bindGrid(DataGrid *grid, NamedQuery *query) {
    grid->setModel(query);
    connectGuarded(grid, &DataGrid::currentRowChanged, grid, [query](int row) {
        if (row >= 0 && row != query->position()) {
            query->moveTo(row);
        }
    });
    connectGuarded(query, &NamedQuery::cursorMoved, grid, [grid](int row) {
        if (row >= 0 && row != grid->currentRow()) {
            grid->setCurrentRow(row);
        }
    });
    const auto followState = [grid, query] {
        grid->setRowEdit(query->state() == NamedQuery::State::Editing ||
                         query->state() == NamedQuery::State::Inserting);
    };
    connectGuarded(query, &NamedQuery::stateChanged, grid, followState);
    followState();
}

void bindLookup(LookupField *field, NamedQuery *query) {
    connectGuarded(field, &LookupField::rowTaken, field, [query](int row) { query->moveTo(row); });
}

void bindField(TextField *field, NamedQuery *query, const QString &column) {
    const auto write = follow(field, query, column, [field](const QVariant &value) {
        if (field->text() != value.toString()) {
            field->setText(value.toString());
            field->setCursorPosition(0);
        }
    });
    connectGuarded(field, &QLineEdit::textEdited, field,
                   [field, write](const QString &) { write(field->text()); });
}

void bindField(NumberField *field, NamedQuery *query, const QString &column) {
    const auto write = follow(field, query, column, [field](const QVariant &value) {
        if (value.isValid()) {
            field->setValue(value.toLongLong());
        } else {
            field->clear();
        }
    });
    connectGuarded(field, &QLineEdit::textEdited, field, [field, write](const QString &) {
        write(field->hasValue() ? QVariant(field->value()) : QVariant());
    });
}

void bindField(MaskedField *field, NamedQuery *query, const QString &column) {
    const auto write = follow(field, query, column, [field](const QVariant &value) {
        field->setMaskedText(value.toString());
    });
    connectGuarded(field, &QLineEdit::textEdited, field,
                   [field, write](const QString &) { write(field->maskedText()); });
}

void bindField(DateField *field, NamedQuery *query, const QString &column) {
    const auto write = follow(field, query, column,
                              [field](const QVariant &value) { field->setDate(value.toDate()); });
    connectGuarded(field, &QLineEdit::textEdited, field, [field, write](const QString &text) {
        if (field->date().isValid()) {
            write(field->date());
        } else if (text.isEmpty()) {
            write(QVariant());
        }
    });
    connectGuarded(field, &DateField::dateEdited, field, [write](const QDate &date) {
        write(date.isValid() ? QVariant(date) : QVariant());
    });
}

void bindField(CheckField *field, NamedQuery *query, const QString &column) {
    const auto write = follow(field, query, column, [field](const QVariant &value) {
        field->setChecked(value.toString() == QLatin1String("S"));
    });
    connectGuarded(field, &QCheckBox::clicked, field, [write](bool ticked) {
        write(ticked ? QStringLiteral("S") : QStringLiteral("N"));
    });
}

void bindField(LookupField *field, NamedQuery *query, const QString &column) {
    const auto write = follow(field, query, column, [field](const QVariant &value) {
        if (!field->setValue(value) && value.isValid()) {
            field->setShownText(value.toString());
        }
    });
    connectGuarded(field, &LookupField::rowTaken, field,
                   [field, write](int) { write(field->value()); });
    connectGuarded(field, &QLineEdit::textEdited, field, [field, write](const QString &) {
        if (field->text().isEmpty()) {
            write(QVariant());
        }
    });
}

}  // namespace kaldo
