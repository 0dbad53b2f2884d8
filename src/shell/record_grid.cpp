#include "shell/record_grid.h"

#include "app/binding.h"
#include "toolkit/forms/application.h"
#include "toolkit/forms/focus.h"

#include <algorithm>

namespace kaldo {

RecordGrid::RecordGrid(Messages &messages, Settings settings, QObject *parent)
    : QObject(parent), messages_(messages), settings_(std::move(settings)) {
    bindGrid(settings_.grid, settings_.query);
    settings_.grid->setSortable(false);  // rows change places by their numbers
    settings_.grid->setColumnEnterHandler([this](const QString &field) { columnEntered(field); });
    settings_.grid->setDoubleClickHandler([this] { settings_.query->edit(); });
}

bool RecordGrid::editing() const {
    const NamedQuery::State state = settings_.query->state();
    return state == NamedQuery::State::Editing || state == NamedQuery::State::Inserting;
}

void RecordGrid::add() {
    settings_.query->append();
    settings_.grid->setCurrentField(settings_.number);
    moveFocus(settings_.grid);
}

void RecordGrid::edit() {
    settings_.query->edit();
    settings_.grid->setCurrentField(settings_.number);
    moveFocus(settings_.grid);
}

void RecordGrid::remove() {
    if (messages_.confirmLoss(QStringLiteral("¿Desea borrar esta Información?"),
                              settings_.grid->rowText()) != Answer::Yes) {
        return;
    }
    const int row = settings_.query->position();
    settings_.query->remove();
    try {
        settings_.query->apply();
    } catch (...) {
        settings_.query->cancelUpdates();
        throw;
    }
    settings_.query->reopen();
    settings_.query->moveTo(std::min(row, settings_.query->count() - 1));
    emit changed();
}

void RecordGrid::cancel() {
    settings_.grid->cancelEditor();
    settings_.query->cancelUpdates();
}

bool RecordGrid::save() {
    if (!settings_.grid->commitEditor()) {
        return false;
    }
    settings_.normalise(*settings_.query);
    if (messages_.confirm(QStringLiteral("¿La Información es Correcta?")) != Answer::Yes) {
        return false;
    }
    const QVariant number = settings_.query->value(settings_.number);
    try {
        settings_.query->apply();
    } catch (...) {
        settings_.query->edit();  // what was typed stays open
        throw;
    }
    reload(number);
    return true;
}

void RecordGrid::goTo(int row) {
    settings_.query->moveTo(std::clamp(row, 0, std::max(0, settings_.query->count() - 1)));
}

void RecordGrid::swap(int rows) {
    NamedQuery &query = *settings_.query;
    const int row = query.position();
    const int other = row + rows;
    if (row < 0 || other < 0 || other >= query.count()) {
        return;
    }
    const QVariant mine = query.valueAt(row, settings_.number);
    const QVariant theirs = query.valueAt(other, settings_.number);
    try {
        setNumber(row, 0);
        setNumber(other, mine);
        setNumber(row, theirs);
    } catch (...) {
        query.cancelUpdates();
        query.reopen();
        throw;
    }
    reload(theirs);
}

void RecordGrid::setNumber(int row, const QVariant &number) {
    settings_.query->moveTo(row);
    settings_.query->set(settings_.number, number);
    settings_.query->apply();
}

void RecordGrid::reload(const QVariant &number) {
    settings_.query->reopen();
    settings_.query->locate({{settings_.number, number}});
    emit changed();
}

void RecordGrid::columnEntered(const QString &field) {
    if (!editing()) {
        return;
    }
    if (field.compare(settings_.lastColumn, Qt::CaseInsensitive) == 0) {
        save();
    } else if (field.compare(settings_.number, Qt::CaseInsensitive) == 0) {
        // A check that fails is no reason to keep anybody from the next column.
        runGuarded([this] { checkNumber(); });
    }
}

void RecordGrid::checkNumber() {
    if (!settings_.repeated(settings_.query->value(settings_.number))) {
        return;
    }
    settings_.query->set(settings_.number, QVariant());
    messages_.warning(settings_.repeatedText);
    settings_.grid->setCurrentField(settings_.number);
}

RecordMenu::RecordMenu(QWidget *parent) : QMenu(parent) {
    setObjectName(QStringLiteral("PopupMenu1"));
    addEntry(QStringLiteral("Agregar Registro"), false, [this] { records_->add(); });
    addEntry(QStringLiteral("Borrar Registro"), false, [this] { records_->remove(); });
    addEntry(QStringLiteral("Cancelar Información"), true, [this] { records_->cancel(); });
    addEntry(QStringLiteral("Editar Registro"), false, [this] { records_->edit(); });
    addEntry(QStringLiteral("Grabar Registro"), true, [this] { records_->save(); });
    addSeparator();
    addEntry(QStringLiteral("Primer Registro"), false, [this] { records_->goTo(0); });
    addEntry(QStringLiteral("Registro Anterior"), false, [this] { records_->step(-1); });
    addEntry(QStringLiteral("Registro Siguiente "), false, [this] { records_->step(1); });
    addEntry(QStringLiteral("Ultimo Registro"), false, [this] { records_->goToLast(); });
    addSeparator();
    addEntry(QStringLiteral("Subir Registro"), false, [this] { records_->swap(-1); });
    addEntry(QStringLiteral("Bajar Registro"), false, [this] { records_->swap(1); });
}

void RecordMenu::addEntry(const QString &caption, bool whileEditing, std::function<void()> run) {
    QAction *entry = addAction(caption);
    (whileEditing ? editing_ : browsing_) += entry;
    connectGuarded(entry, &QAction::triggered, this, std::move(run));
}

void RecordMenu::serve(RecordGrid *records) {
    DataGrid *grid = records->grid();
    grid->setContextMenuPolicy(Qt::CustomContextMenu);
    connectGuarded(grid, &QWidget::customContextMenuRequested, this,
                   [this, records, grid](const QPoint &at) {
                       openFor(records, grid->viewport()->mapToGlobal(at));
                   });
    const auto byKey = [this, records, grid] {
        const QRect cell = grid->visualRect(grid->currentIndex());
        openFor(records, grid->viewport()->mapToGlobal(cell.bottomLeft()));
    };
    grid->setKeyHandler(Qt::Key_Menu, byKey);
    grid->setKeyHandler(Qt::Key_F10, byKey, Qt::ShiftModifier);
}

void RecordMenu::openFor(RecordGrid *records, const QPoint &at) {
    if (isVisible()) {
        return;  // some desktops send a request of their own after the key
    }
    records_ = records;
    const bool editing = records->editing();
    for (QAction *entry : std::as_const(editing_)) {
        entry->setEnabled(editing);
    }
    for (QAction *entry : std::as_const(browsing_)) {
        entry->setEnabled(!editing && (!records->isEmpty() || entry == browsing_.first()));
    }
    popup(at);
}

}  // namespace kaldo
