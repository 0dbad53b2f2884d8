#pragma once

#include <QMenu>
#include <QObject>

#include <functional>

#include "data/named_query.h"
#include "toolkit/forms/data_grid.h"
#include "toolkit/forms/messages.h"

namespace kaldo {

/// A grid whose rows stand in the order of a number, with its record keeping: rows are added,
/// edited, deleted and moved up and down, each written at once. Enter in the last column saves,
/// Enter in the number column looks for a duplicate, a double click opens the row, Escape gives it
/// up.
class RecordGrid : public QObject {
    Q_OBJECT

public:
    struct Settings {
        DataGrid *grid = nullptr;
        NamedQuery *query = nullptr;
        QString number;      ///< the column of the order
        QString lastColumn;  ///< where Enter saves
        /// True where another row has this number. May fail: that is told, and nothing more.
        std::function<bool(const QVariant &number)> repeated;
        QString repeatedText;
        /// Puts what was typed into the form in which it is kept; before the question of save().
        std::function<void(NamedQuery &row)> normalise = [](NamedQuery &) {};
    };

    /// All that is given outlives this object.
    RecordGrid(Messages &messages, Settings settings, QObject *parent);

    bool editing() const;
    bool isEmpty() const { return settings_.query->isEmpty(); }
    DataGrid *grid() const { return settings_.grid; }

    void add();
    void remove();
    void cancel();
    void edit();
    /// Asks, writes and reloads. False when the row stays open.
    bool save();
    void goTo(int row);
    void goToLast() { goTo(settings_.query->count() - 1); }
    void step(int rows) { goTo(settings_.query->position() + rows); }
    /// Exchanges the numbers of the row and its neighbour by way of the number 0.
    void swap(int rows);

signals:
    /// Rows came, went or changed.
    void changed();

private:
    void columnEntered(const QString &field);
    void checkNumber();
    void setNumber(int row, const QVariant &number);
    void reload(const QVariant &number);

    Messages &messages_;
    Settings settings_;
};

/// The pop-up menu that the grids share.
class RecordMenu : public QMenu {
    Q_OBJECT

public:
    explicit RecordMenu(QWidget *parent);

    /// The grid opens it by the right button, the menu key and Shift+F10.
    void serve(RecordGrid *records);

private:
    void addEntry(const QString &caption, bool whileEditing, std::function<void()> run);
    void openFor(RecordGrid *records, const QPoint &at);

    RecordGrid *records_ = nullptr;
    QList<QAction *> browsing_;
    QList<QAction *> editing_;
};

}  // namespace kaldo
