#include "toolkit/forms/lookup_field.h"

#include "toolkit/forms/application.h"
#include "toolkit/forms/complaint.h"

#include <QKeyEvent>
#include <QResizeEvent>
#include <QStyle>
#include <QToolButton>

namespace kaldo {

LookupField::LookupField(QWidget *parent)
    : LineField(parent), list_(new ListPopup(this)), arrow_(new QToolButton(this)) {
    arrow_->setArrowType(Qt::DownArrow);
    arrow_->setAutoRaise(true);
    arrow_->setFocusPolicy(Qt::NoFocus);
    arrow_->setCursor(Qt::ArrowCursor);
    arrow_->setToolTip(QStringLiteral("Abrir la lista (F4)"));
    setShownCharacters(24);
    connectGuarded(arrow_, &QToolButton::clicked, this, &LookupField::openList);
    connectGuarded(list_, &ListPopup::picked, this, [this](int row) {
        take(row);
        selectAll();
        emit rowTaken(row);
        emit closedUp();
    });
    connectGuarded(list_, &ListPopup::cancelled, this, &LookupField::cancelled);
    connectGuarded(this, &QLineEdit::textEdited, this, &LookupField::complete);
}

void LookupField::setSource(const LookupSource &source) {
    source_ = source;
    list_->setSource(source);
    clearField();
}

void LookupField::take(int row) {
    typed_ = false;
    if (!source_.model || row < 0 || row >= source_.model->rowCount()) {
        row_ = QPersistentModelIndex();
        value_ = {};
        clear();
        return;
    }
    const int shown = fieldSection(*source_.model, source_.displayField);
    const int stored = fieldSection(*source_.model, source_.valueField);
    row_ = source_.model->index(row, std::max(shown, 0));
    value_ = source_.model->index(row, stored).data(Qt::EditRole);
    setText(source_.model->index(row, shown).data(Qt::EditRole).toString());
    setCursorPosition(0);
}

void LookupField::setRow(int row) {
    take(row);
}

bool LookupField::setValue(const QVariant &value) {
    const int section = source_.model ? fieldSection(*source_.model, source_.valueField) : -1;
    take(findText(source_.model, section, value.toString()));
    return row() >= 0;
}

void LookupField::setShownText(const QString &text) {
    typed_ = false;
    row_ = QPersistentModelIndex();
    value_ = {};
    setText(text);
    setCursorPosition(0);
}

void LookupField::clearField() {
    take(-1);
}

void LookupField::setFiltering(bool on) {
    filtering_ = on;
    list_->setFiltering(on);
}

void LookupField::openList() {
    if (isReadOnly() || !isEnabled() || !source_.model || list_->isOpen()) {
        return;
    }
    setFocus(Qt::OtherFocusReason);
    list_->open(row());
    if (typed_) {
        list_->seek(text());
    }
}

void LookupField::closeList() {
    list_->close();
}

bool LookupField::listOpen() const {
    return list_->isOpen();
}

bool LookupField::commit() {
    if (!typed_) {
        if (text().isEmpty() && hasFocus() && !isReadOnly() && source_.model &&
            source_.model->rowCount() > 0) {
            openList();
            return false;
        }
        return true;
    }
    if (text().trimmed().isEmpty()) {
        clearField();
        return true;
    }
    const int section = source_.model ? fieldSection(*source_.model, source_.displayField) : -1;
    int found = findText(source_.model, section, text());
    if (found < 0) {
        found = findPrefix(source_.model, section, text());
    }
    if (found < 0) {
        complain(this, QStringLiteral("«%1» no está en la lista (F4 la muestra).").arg(text()));
        selectAll();
        return false;
    }
    take(found);
    emit rowTaken(row());
    emit closedUp();
    return true;
}

void LookupField::complete(const QString &typed) {
    typed_ = true;
    row_ = QPersistentModelIndex();
    value_ = {};
    if (!source_.model || typed.trimmed().isEmpty() || cursorPosition() != typed.size() ||
        deleting_) {
        return;
    }
    const int section = fieldSection(*source_.model, source_.displayField);
    const int row = findPrefix(source_.model, section, typed);
    if (row < 0) {
        return;
    }
    const QString whole = source_.model->index(row, section).data(Qt::EditRole).toString();
    setText(typed + whole.mid(typed.size()));
    setSelection(int(typed.size()), int(text().size() - typed.size()));
}

void LookupField::setFieldReadOnly(bool readOnly) {
    LineField::setFieldReadOnly(readOnly);
    arrow_->setEnabled(!readOnly);
}

void LookupField::keyPressEvent(QKeyEvent *event) {
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const bool alt = event->modifiers() & Qt::AltModifier;
    if ((event->key() == Qt::Key_F4 && plain) || (event->key() == Qt::Key_Down && (plain || alt))) {
        openList();
        return;
    }
    deleting_ = event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete;
    LineField::keyPressEvent(event);
    deleting_ = false;
}

void LookupField::resizeEvent(QResizeEvent *event) {
    LineField::resizeEvent(event);
    const int frame = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this);
    const int side = height() - 2 * frame;
    arrow_->setGeometry(width() - frame - side, frame, side, side);
    setTextMargins(0, 0, side, 0);
}

}  // namespace kaldo
