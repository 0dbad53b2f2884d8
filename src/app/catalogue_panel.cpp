#include "app/catalogue_panel.h"

#include "data/database_error.h"
#include "toolkit/forms/application.h"
#include "toolkit/forms/focus.h"
#include "toolkit/forms/form.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLayout>

#include <algorithm>

namespace kaldo {

namespace {

// What a list would like to show; 1024 x 768 has room for it beside a page of details.
constexpr int kRows = 12;
constexpr int kSmallRows = 3;

}  // namespace

CataloguePanel::CataloguePanel(Context &context, QWidget *parent, const QString &name)
    : QWidget(parent), context_(context) {
    setObjectName(name);
    connectGuarded(qApp, &QApplication::focusChanged, this, &CataloguePanel::shareLetters);
}

CataloguePanel::~CataloguePanel() {
    if (rules_.query) {
        disconnect(rules_.query, nullptr, this, nullptr);
        grid_->setModel(nullptr);
        rules_.query->cancelUpdates();
        if (!rules_.small) {
            context_.frame.setEntryEnabled(QStringLiteral("A1"), true);
        }
    }
}

void CataloguePanel::setRules(CatalogueRules rules) {
    rules_ = std::move(rules);
    build();
    grid_->setColumns(rules_.columns);
    bindGrid(grid_, rules_.query);
    grid_->setColumnEnterHandler([this](const QString &field) { enterColumn(field); });
    grid_->setArrowCancelHandler([this] { cancel(); });
    grid_->setDoubleClickHandler([this] { edit(); });
    grid_->setTabHeld(true);
    hint_ = new ListHint(grid_);
    connectGuarded(grid_, &DataGrid::cellEdited, this,
                   [this](const QString &field) { keyEdited(field); });
    connectGuarded(rules_.query, &NamedQuery::cursorMoved, this, [this] { emit rowChanged(); });
    connectGuarded(rules_.query, &NamedQuery::opened, this, [this] { emit rowChanged(); });
    connectGuarded(rules_.query, &NamedQuery::stateChanged, this, [this] {
        grid_->setRowEdit(editing());
        updateButtons();
    });
    setMode(CatalogueMode::Consult);
}

void CataloguePanel::build() {
    using namespace form;
    const auto tool = [](Button **where, const char *name, const char *caption, const char *icon,
                         std::function<void()> handler) {
        return button(where, QString::fromLatin1(name), QString::fromUtf8(caption))
            .icon(QString::fromLatin1(icon))
            .clicked(std::move(handler));
    };
    navigator_.resize(4);
    const auto step = [this](int place, const char *name, const char *caption, const char *icon,
                             std::function<void()> handler) {
        return iconButton(&navigator_[place], QString::fromLatin1(name), QString::fromUtf8(caption),
                          QString::fromLatin1(icon))
            .clicked(std::move(handler));
    };
    form::build(this,
                column({
                    row({
                        tool(&insert_, "SpeedButton1", "&Insertar", "insert", [this] { insert(); }),
                        tool(&remove_, "SpeedButton2", "&Borrar", "delete", [this] { remove(); }),
                        tool(&save_, "SpeedButton3", "&Grabar", "save", [this] { save(); }),
                        tool(&cancel_, "SpeedButton4", "&Cancelar", "cancel", [this] { cancel(); })
                            .escape(),
                        stretch(),
                        step(0, "Primero", "Primer Registro", "first",
                             [this] { go(grid_->rowBeside(-rules_.query->count())); }),
                        step(1, "Anterior", "Registro Anterior", "previous",
                             [this] { go(grid_->rowBeside(-1)); }),
                        step(2, "Siguiente", "Siguiente Registro", "next",
                             [this] { go(grid_->rowBeside(1)); }),
                        step(3, "Ultimo", "Ultimo Registro", "last",
                             [this] { go(grid_->rowBeside(rules_.query->count())); }),
                    }),
                    form::grid(&grid_, QStringLiteral("DBGrid1"))
                        .accessible(QStringLiteral("Lista"))
                        .fill()
                        .grow(),
                }));
    layout()->setContentsMargins(0, 0, 0, 0);
    grid_->setShownRows(rules_.small ? kSmallRows : kRows);
    for (IconButton *button : std::as_const(navigator_)) {
        button->setVisible(!rules_.small);
    }
}

void CataloguePanel::reload() {
    rules_.query->cancelUpdates();
    rules_.query->open(rules_.parameters ? rules_.parameters() : Parameters());
    setMode(CatalogueMode::Consult);
}

void CataloguePanel::refresh() {
    if (editing() || !rules_.query->isOpen()) {
        return;
    }
    const Parameters place = keyValues();
    reload();
    rules_.query->locate(place);
}

Parameters CataloguePanel::keyValues() const {
    Parameters values;
    for (const QString &key : rules_.keys) {
        values.append({key, rules_.query->isOpen() ? rules_.query->value(key) : QVariant()});
    }
    return values;
}

void CataloguePanel::insert() {
    if (editing()) {
        return;
    }
    if (rules_.prepareInsert && !rules_.prepareInsert()) {
        moveFocus(grid_);
        return;
    }
    if (rules_.insertsFirst) {
        rules_.query->insertFirst();
    } else {
        rules_.query->append();
    }
    if (rules_.defaults) {
        rules_.defaults(*rules_.query);
    }
    inserting_ = true;
    saveAllowed_ = false;
    removeAllowed_ = false;
    setMode(CatalogueMode::Edit);
    editAt(rules_.insertAt);
}

void CataloguePanel::edit() {
    if (editing() || rules_.query->position() < 0) {
        return;
    }
    inserting_ = false;
    if (rules_.openRow) {
        rules_.openRow();
    } else {
        rules_.query->edit();
    }
    saveAllowed_ = true;
    removeAllowed_ = false;
    setMode(CatalogueMode::Edit);
    editAt(rules_.editAt);
}

void CataloguePanel::addOpenDetail(NumberField *field, const QString &column) {
    addDetail(field, column);
    // After the binding, which opens the row and writes into it.
    connectGuarded(field, &QLineEdit::textEdited, this, [this] { editInPlace(); });
    openDetail_ = field;
    setMode(mode_);
}

void CataloguePanel::editInPlace() {
    if (editing()) {
        return;
    }
    inserting_ = false;
    rules_.query->edit();
    saveAllowed_ = true;
    removeAllowed_ = false;
    setMode(CatalogueMode::Edit);
}

void CataloguePanel::editAt(const QString &wanted) {
    grid_->setCurrentRow(rules_.query->position());
    grid_->setCurrentField(wanted.isEmpty() ? grid_->nextEditableField(QString()) : wanted);
    moveFocus(grid_);
}

void CataloguePanel::allowSave() {
    saveAllowed_ = true;
    updateButtons();
}

void CataloguePanel::allowRemove() {
    removeAllowed_ = inserting();
    updateButtons();
}

void CataloguePanel::setInsertAllowed(bool allowed) {
    insertAllowed_ = allowed;
    updateButtons();
}

bool CataloguePanel::commitInput() {
    for (Field *field : std::as_const(details_)) {
        if (!field->commit()) {
            moveFocus(field->fieldWidget());
            return false;
        }
    }
    return grid_->commitEditor();
}

void CataloguePanel::save() {
    if (!editing() || !commitInput()) {
        return;
    }
    moveFocus(grid_);
    if (!keysFilled() || !keyAccepted() || (rules_.accept && !rules_.accept())) {
        return;
    }
    const Answer answer = context_.messages.confirm(rules_.saveQuestion);
    if (answer == Answer::No) {
        if (rules_.saveRefused) {
            rules_.saveRefused();
        }
        cancel();
    }
    if (answer != Answer::Yes) {
        return;
    }
    if (rules_.complete && !rules_.complete()) {
        return;
    }
    const Parameters place = keyValues();
    try {
        writeRow();
    } catch (...) {
        if (rules_.writeFailure == WriteFailure::CancelsEdit) {
            cancel();
        } else {
            rules_.query->edit();
        }
        throw;
    }
    reload();
    rules_.query->locate(place);
    if (rules_.saved) {
        rules_.saved();
    }
}

void CataloguePanel::writeRow() {
    if (rules_.write) {
        rules_.write();
    } else {
        rules_.query->apply();
    }
}

void CataloguePanel::cancel() {
    if (!editing()) {
        return;
    }
    grid_->cancelEditor();
    const Parameters place = inserting_ ? Parameters() : keyValues();
    if (rules_.drop) {
        rules_.drop();
    }
    reload();
    if (!place.isEmpty()) {
        rules_.query->locate(place);
    }
    moveFocus(grid_);
}

void CataloguePanel::remove() {
    if ((editing() && !removeAllowed_) || rules_.query->position() < 0) {
        return;
    }
    const Answer answer =
        context_.messages.confirmLoss(rules_.removeQuestion, grid_->rowText(rules_.toldBy));
    if (answer == Answer::Ended) {
        return;
    }
    moveFocus(grid_);
    if (answer == Answer::No && rules_.removeRefused) {
        rules_.removeRefused();
    }
    if (editing()) {
        cancel();
    } else if (answer == Answer::No) {
        refresh();
    } else if (!rules_.mayRemove || rules_.mayRemove()) {
        removeRow();
    }
}

void CataloguePanel::removeRow() {
    const int row = rules_.query->position();
    try {
        if (rules_.remove) {
            rules_.remove();
        } else {
            rules_.query->remove();
            rules_.query->apply();
        }
    } catch (const DatabaseError &error) {
        rules_.query->cancelUpdates();
        if (error.failure() == DatabaseFailure::RowGone) {
            reloadAt(row);
        }
        throw;
    }
    reloadAt(row);
    moveFocus(grid_);
}

void CataloguePanel::reloadAt(int row) {
    reload();
    if (!rules_.query->moveTo(row)) {
        rules_.query->moveTo(row - 1);
    }
}

EnterResult CataloguePanel::refuse(const QString &field, const QString &text) {
    context_.messages.information(text);
    return cleared(field);
}

EnterResult CataloguePanel::refuseWarning(const QString &field, const QString &text) {
    context_.messages.warning(text);
    return cleared(field);
}

EnterResult CataloguePanel::cleared(const QString &field) {
    const bool key = rules_.fixedOnEdit.contains(field, Qt::CaseInsensitive);
    if (key && inserting()) {
        saveAllowed_ = false;
        updateButtons();
    }
    // The tests make no exception for the row itself, but the key of a row that stands can't be
    // written: it is told and kept.
    if (!key || inserting()) {
        rules_.query->set(field, QVariant());
    }
    return EnterResult::Stay;
}

EnterResult CataloguePanel::required() {
    context_.messages.warning(QStringLiteral("Campo Obligatorio, vuelva a intentar"));
    return EnterResult::Stay;
}

bool CataloguePanel::filled(const QString &field, const QString &column) {
    if (!rules_.query->text(field).trimmed().isEmpty()) {
        return true;
    }
    required();
    grid_->setCurrentField(column.isEmpty() ? field : column);
    return false;
}

bool CataloguePanel::keysFilled() {
    return std::all_of(rules_.keys.cbegin(), rules_.keys.cend(), [this](const QString &key) {
        return !rules_.fixedOnEdit.contains(key, Qt::CaseInsensitive) || filled(key);
    });
}

bool CataloguePanel::keyAccepted() {
    if (!inserting() || saveAllowed_) {
        return true;
    }
    for (const QString &field : std::as_const(rules_.fixedOnEdit)) {
        if (rules_.enter.contains(field)) {
            rules_.enter.value(field)();
            if (!saveAllowed_) {
                grid_->setCurrentField(field);
                return false;
            }
        }
    }
    return true;
}

void CataloguePanel::keyEdited(const QString &field) {
    // A key typed over one that was accepted isn't accepted.
    if (inserting() && rules_.fixedOnEdit.contains(field, Qt::CaseInsensitive) &&
        rules_.enter.contains(field)) {
        saveAllowed_ = false;
        // "&Grabar" itself, pressed from the cell, takes the text along: what is greyed under its
        // own stroke does nothing and passes the focus on to "&Cancelar". save() asks for the test.
        if (!save_->hasFocus()) {
            updateButtons();
        }
    }
}

void CataloguePanel::enterColumn(const QString &field) {
    if (!editing()) {
        return;
    }
    const auto handler = rules_.enter.constFind(field);
    const EnterResult result =
        handler == rules_.enter.constEnd() ? EnterResult::Next : (*handler)();
    if (!editing()) {
        return;
    }
    const QString next = grid_->nextEditableField(field);
    if (result == EnterResult::Save || (result == EnterResult::Next && next.isEmpty())) {
        save();
    } else if (result == EnterResult::Stay) {
        if (grid_->currentField() == field) {
            grid_->setCurrentField(field);
        }
    } else {
        grid_->setCurrentField(next);
    }
}

void CataloguePanel::setMode(CatalogueMode mode) {
    mode_ = mode;
    grid_->setRowEdit(editing());
    grid_->setRowSelection(!editing());
    if (!editing() && !rules_.columns.isEmpty()) {
        grid_->setCurrentField(rules_.columns.first().settings().field);
    }
    applyColumnsOfMode();
    for (Field *field : std::as_const(details_)) {
        field->setFieldReadOnly(!editing());
    }
    if (openDetail_) {
        openDetail_->setFieldReadOnly(rules_.query->isEmpty());
    }
    updateButtons();
    if (rules_.modeChanged) {
        rules_.modeChanged(mode_);
    }
}

void CataloguePanel::applyColumnsOfMode() {
    for (const QString &field : std::as_const(rules_.fixedOnEdit)) {
        grid_->setColumnEditable(field, inserting_);
    }
}

void CataloguePanel::updateButtons() {
    const bool consult = !editing();
    const bool rows = !rules_.query->isEmpty();
    insert_->setEnabled(consult && insertAllowed_ && rules_.query->isOpen());
    remove_->setEnabled(consult ? rows : removeAllowed_);
    save_->setEnabled(editing() && saveAllowed_);
    cancel_->setEnabled(editing());
    for (IconButton *button : std::as_const(navigator_)) {
        button->setEnabled(consult && rows);
    }
    QString hint;
    if (!rules_.query->isOpen()) {
        hint = rules_.waitsFor;
    } else if (!rows) {
        hint = QStringLiteral("La lista está vacía.");
    }
    hint_->say(hint);
    if (!rules_.small) {
        // A row that isn't saved yet has no place on paper.
        context_.frame.setEntryEnabled(QStringLiteral("A1"), consult && rows && rules_.reports);
    }
}

void CataloguePanel::go(int row) {
    rules_.query->moveTo(row);
}

void CataloguePanel::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Escape && editing()) {
        runGuarded([this] { cancel(); });
        return;
    }
    QWidget::keyPressEvent(event);
}

void CataloguePanel::shareLetters() {
    const QWidget *focus = QApplication::focusWidget();
    if (!focus || !insert_ || !isAncestorOf(focus)) {
        return;
    }
    const QList<CataloguePanel *> panels = window()->findChildren<CataloguePanel *>();
    for (CataloguePanel *panel : panels) {
        panel->setLetters(panel == this);
    }
}

void CataloguePanel::setLetters(bool on) {
    for (Button *button : {insert_, remove_, save_, cancel_}) {
        button->setShortcut(on ? QKeySequence::mnemonic(button->text()) : QKeySequence());
    }
}

void withoutLetter(Button *button) {
    button->setShortcut({});
}

form::WidgetItem<CataloguePanel> catalogue(CataloguePanel **where, Context &context,
                                           const QString &name, CatalogueRules rules) {
    auto node = std::make_shared<form::Node>();
    node->name = name;
    node->make = [where, &context, name, rules](QWidget *parent) -> QWidget * {
        auto *panel = new CataloguePanel(context, parent, name);
        *where = panel;
        panel->setRules(rules);
        return panel;
    };
    return form::WidgetItem<CataloguePanel>(node).fill().grow();
}

}  // namespace kaldo
