#include "toolkit/forms/choice.h"

#include "toolkit/core/text.h"
#include "toolkit/forms/focus.h"
#include "toolkit/forms/keys.h"
#include "toolkit/forms/list_popup.h"
#include "toolkit/forms/read_only_look.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QBoxLayout>
#include <QButtonGroup>
#include <QKeyEvent>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QStandardItemModel>
#include <QTextCursor>
#include <QTextDocument>
#include <QWheelEvent>

#include <utility>

namespace kaldo {

namespace {

constexpr int kItemsVisible = 16;

bool wordStartsWith(const QString &item, const QString &wanted) {
    const QString folded = foldedText(item);
    for (qsizetype at = folded.indexOf(wanted); at >= 0; at = folded.indexOf(wanted, at + 1)) {
        if (at == 0 || !folded.at(at - 1).isLetterOrNumber()) {
            return true;
        }
    }
    return false;
}

/// Items are sought by their beginning; where none has it, by that of any of their words, so that
/// an item with a code before its name is found by either.
class WordModel final : public QStandardItemModel {
public:
    using QStandardItemModel::QStandardItemModel;

    QModelIndexList match(const QModelIndex &start, int role, const QVariant &value, int hits,
                          Qt::MatchFlags flags) const override {
        const QModelIndexList found = QStandardItemModel::match(start, role, value, hits, flags);
        if (!found.isEmpty() || !flags.testFlag(Qt::MatchStartsWith)) {
            return found;
        }
        const QString wanted = foldedText(value.toString());
        for (int step = 0; step < rowCount(); ++step) {
            const QModelIndex candidate = index((start.row() + step) % rowCount(), start.column());
            if (wordStartsWith(candidate.data(role).toString(), wanted)) {
                return {candidate};
            }
        }
        return {};
    }
};

}  // namespace

Choice::Choice(QWidget *parent) : QComboBox(parent), Field(this) {
    setModel(new WordModel(this));
    setMaxVisibleItems(kItemsVisible);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    setSizeAdjustPolicy(AdjustToContents);
    connect(this, &QComboBox::activated, this, [this] {
        pending_ = byKeys_;
        if (!byKeys_) {
            emit closedUp();
        }
    });
}

void Choice::setItems(const QStringList &items) {
    pending_ = false;
    QStringList present;
    for (int row = 0; row < count(); ++row) {
        present += itemText(row);
    }
    if (present != items) {
        clear();
        addItems(items);
    }
    setIndex(-1);
}

void Choice::setIndex(int index) {
    // What was typed for the last choice is no beginning of the next one.
    if (std::exchange(sought_, false)) {
        view()->keyboardSearch(QString());
    }
    pending_ = false;
    setCurrentIndex(index);
}

void Choice::setChosenText(const QString &text) {
    setIndex(findText(text));
}

bool Choice::commit() {
    if (pending_) {
        pending_ = false;
        emit closedUp();
        return true;
    }
    if (currentIndex() < 0 && count() > 0 && hasFocus() && !readOnly_) {
        showPopup();
        return false;
    }
    return true;
}

void Choice::setFieldReadOnly(bool readOnly) {
    readOnly_ = readOnly;
    setAttribute(Qt::WA_TransparentForMouseEvents, readOnly);
    setFocusPolicy(readOnly ? Qt::NoFocus : Qt::StrongFocus);
}

void Choice::showPopup() {
    open_ = true;
    // Installed last, it comes before the list's own filter, which picks on every Enter.
    view()->removeEventFilter(this);
    QComboBox::showPopup();
    view()->installEventFilter(this);
}

void Choice::hidePopup() {
    open_ = false;
    QComboBox::hidePopup();
}

bool Choice::eventFilter(QObject *watched, QEvent *event) {
    // The list picks as early as the question whether Enter is a shortcut.
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride) {
        const auto &key = *static_cast<QKeyEvent *>(event);
        if (isEnter(key) && key.isAutoRepeat()) {
            event->accept();
            return true;
        }
    }
    return QComboBox::eventFilter(watched, event);
}

void Choice::keyPressEvent(QKeyEvent *event) {
    sought_ = sought_ || (!event->text().isEmpty() && event->text().at(0).isPrint());
    const QScopedValueRollback<bool> keys(byKeys_, true);
    QComboBox::keyPressEvent(event);
}

void Choice::wheelEvent(QWheelEvent *event) {
    event->ignore();  // a form that scrolls must not change what it passes over
}

void Choice::paintEvent(QPaintEvent *event) {
    QComboBox::paintEvent(event);
    paintFocusRing(this);
}

RadioGroup::RadioGroup(QWidget *parent)
    : QGroupBox(parent), Field(this), buttons_(new QButtonGroup(this)) {
    connect(buttons_, &QButtonGroup::idClicked, this, [this](int index) {
        updateProxy();
        emit clicked(index);
    });
}

void RadioGroup::setOptions(const QStringList &options, Qt::Orientation orientation) {
    const QList<QAbstractButton *> old = buttons_->buttons();
    for (QAbstractButton *button : old) {
        delete button;
    }
    delete layout();
    auto *line = new QBoxLayout(
        orientation == Qt::Horizontal ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, this);
    for (int i = 0; i < options.size(); ++i) {
        auto *button = new QRadioButton(options.at(i), this);
        button->setObjectName(QStringLiteral("%1_%2").arg(objectName()).arg(i));
        buttons_->addButton(button, i);
        watchPart(button);
        button->installEventFilter(this);
        line->addWidget(button);
    }
    line->addStretch();
    updateProxy();
}

QStringList RadioGroup::options() const {
    QStringList texts;
    const QList<QAbstractButton *> all = buttons_->buttons();
    for (const QAbstractButton *button : all) {
        texts += button->text();
    }
    return texts;
}

int RadioGroup::index() const {
    return buttons_->checkedId();
}

void RadioGroup::setIndex(int index) {
    if (QAbstractButton *button = buttons_->button(index)) {
        button->setChecked(true);
    } else if (QAbstractButton *checked = buttons_->checkedButton()) {
        buttons_->setExclusive(false);
        checked->setChecked(false);
        buttons_->setExclusive(true);
    }
    updateProxy();
}

void RadioGroup::focusChoice(Qt::FocusReason reason) {
    updateProxy();
    if (focusProxy()) {
        focusProxy()->setFocus(reason);
    }
}

void RadioGroup::setOptionEnabled(int index, bool enabled) {
    if (QAbstractButton *button = buttons_->button(index)) {
        button->setEnabled(enabled);
    }
}

void RadioGroup::setFieldReadOnly(bool readOnly) {
    const QList<QAbstractButton *> all = buttons_->buttons();
    for (QAbstractButton *button : all) {
        button->setAttribute(Qt::WA_TransparentForMouseEvents, readOnly);
        button->setFocusPolicy(readOnly ? Qt::NoFocus : Qt::StrongFocus);
    }
}

bool RadioGroup::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::FocusIn) {
        // Tab comes to the chosen button from either side.
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        QAbstractButton *chosen = buttons_->checkedButton();
        if ((reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason) && chosen &&
            chosen != watched) {
            chosen->setFocus(reason);
            return true;
        }
    }
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        const bool forward = key == Qt::Key_Right || key == Qt::Key_Down;
        if (forward || key == Qt::Key_Left || key == Qt::Key_Up) {
            // The buttons themselves only move the focus while none is chosen.
            int next = buttons_->id(static_cast<QAbstractButton *>(watched));
            do {
                next += forward ? 1 : -1;
            } while (buttons_->button(next) && !buttons_->button(next)->isEnabled());
            if (!buttons_->button(next) && index() < 0) {
                next = buttons_->id(static_cast<QAbstractButton *>(watched));
            }
            if (QAbstractButton *button = buttons_->button(next)) {
                button->setFocus(Qt::OtherFocusReason);
                button->click();
            }
            return true;
        }
    }
    return QGroupBox::eventFilter(watched, event);
}

void RadioGroup::updateProxy() {
    QAbstractButton *target = buttons_->checkedButton();
    setFocusProxy(target ? target : buttons_->button(0));
}

CheckField::CheckField(QWidget *parent) : QCheckBox(parent), Field(this) {}

void CheckField::setFieldReadOnly(bool readOnly) {
    setAttribute(Qt::WA_TransparentForMouseEvents, readOnly);
    setFocusPolicy(readOnly ? Qt::NoFocus : Qt::StrongFocus);
}

Memo::Memo(QWidget *parent) : QPlainTextEdit(parent), Field(this) {
    setTabChangesFocus(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
    connect(document(), &QTextDocument::contentsChange, this, [this](int at, int, int added) {
        changedAt_ = at;
        added_ = added;
    });
    connect(this, &QPlainTextEdit::textChanged, this, &Memo::normalise);
}

void Memo::setUpperCase(bool upper) {
    upper_ = upper;
}

void Memo::setCharacters(int characters) {
    width_ = characters;
}

void Memo::setLines(int lines) {
    lines_ = lines;
    updateGeometry();
}

QSize Memo::sizeHint() const {
    const int margins = int(2 * document()->documentMargin()) + 2 * frameWidth();
    return {QPlainTextEdit::sizeHint().width(), fontMetrics().lineSpacing() * lines_ + margins + 2};
}

QSize Memo::minimumSizeHint() const {
    return {QPlainTextEdit::minimumSizeHint().width(), sizeHint().height()};
}

void Memo::setFieldReadOnly(bool readOnly) {
    setReadOnly(readOnly);
    setFocusPolicy(readOnly ? Qt::ClickFocus : Qt::StrongFocus);
    showReadOnly(this, readOnly);
}

bool Memo::event(QEvent *event) {
    followColours(this, isReadOnly(), *event);
    return QPlainTextEdit::event(event);
}

void Memo::keyPressEvent(QKeyEvent *event) {
    if (isEnter(*event)) {
        if (!event->isAutoRepeat() && !isReadOnly()) {
            insertPlainText(QStringLiteral("\n"));
        }
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
}

void Memo::normalise() {
    const QString whole = toPlainText();
    const int excess = width_ > 0 ? characterCount(whole) - width_ : 0;
    const int end = std::min(changedAt_ + added_, int(whole.size()));
    const QString added = whole.mid(changedAt_, end - changedAt_);
    QString kept =
        excess > 0 ? cutToWidth(added, std::max(0, characterCount(added) - excess)) : added;
    if (upper_) {
        for (QChar &c : kept) {
            c = c.toUpper();
        }
    }
    if (kept != added) {
        QTextCursor cursor(document());
        cursor.joinPreviousEditBlock();
        cursor.setPosition(changedAt_);
        cursor.setPosition(end, QTextCursor::KeepAnchor);
        cursor.insertText(kept);
        cursor.endEditBlock();
    }
}

}  // namespace kaldo
