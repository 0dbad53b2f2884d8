#include "tests/support/accessibility.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSet>
#include <QTabBar>
#include <QTableView>

#include <gtest/gtest.h>

#include "toolkit/forms/field.h"
#include "toolkit/forms/focus.h"

namespace kaldo::test {

namespace {

QString nameOf(const QWidget *widget) {
    const QString name = widget->objectName();
    return QStringLiteral("%1 %2").arg(QString::fromLatin1(widget->metaObject()->className()),
                                       name.isEmpty() ? QStringLiteral("(no name)") : name);
}

bool isControl(QWidget *widget) {
    const bool known = qobject_cast<QAbstractButton *>(widget) ||
                       qobject_cast<QLineEdit *>(widget) || qobject_cast<QComboBox *>(widget) ||
                       qobject_cast<QTableView *>(widget) || qobject_cast<QPlainTextEdit *>(widget);
    // Parts of a field, as the arrow of a drop-down, are reached through it.
    const Field *field = Field::of(widget);
    const bool part =
        field && field->fieldWidget() != widget && !qobject_cast<QRadioButton *>(widget);
    return known && !part && !widget->objectName().startsWith(QLatin1String("qt_"));
}

bool takesInput(const QWidget *widget) {
    const auto *line = qobject_cast<const QLineEdit *>(widget);
    const auto *text = qobject_cast<const QPlainTextEdit *>(widget);
    return !(line && line->isReadOnly()) && !(text && text->isReadOnly());
}

QSet<QWidget *> reachedByTab(QWidget &form) {
    QSet<QWidget *> reached;
    QWidget *at = nextInTabOrder(&form);
    // The form itself is passed over as the start with all that is inside, and so is a panel in it.
    const QList<QWidget *> children = form.findChildren<QWidget *>();
    for (int child = 0; !at && child < children.size(); ++child) {
        at = nextInTabOrder(children.at(child));
    }
    while (at && !reached.contains(at)) {
        reached += at;
        at = nextInTabOrder(at);
    }
    return reached;
}

bool isReached(QWidget *widget, const QSet<QWidget *> &reached) {
    if (reached.contains(widget)) {
        return true;
    }
    // Of radio buttons Tab reaches one; the arrows the others.
    if (qobject_cast<QRadioButton *>(widget)) {
        const QList<QRadioButton *> siblings =
            widget->parentWidget()->findChildren<QRadioButton *>();
        for (QRadioButton *sibling : siblings) {
            if (reached.contains(sibling)) {
                return true;
            }
        }
    }
    return false;
}

QString captionOf(const QWidget *widget) {
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
        return button->text();
    }
    if (const auto *box = qobject_cast<const QGroupBox *>(widget)) {
        return box->title();
    }
    if (const auto *label = qobject_cast<const QLabel *>(widget)) {
        return label->buddy() ? label->text() : QString();
    }
    return {};
}

bool hasName(const QWidget &form, QWidget *widget) {
    if (!widget->accessibleName().isEmpty() || !captionOf(widget).isEmpty()) {
        return true;
    }
    const QList<QLabel *> labels = form.findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->buddy() == widget) {
            return true;
        }
    }
    return false;
}

bool isClipped(const QWidget *widget) {
    const auto *label = qobject_cast<const QLabel *>(widget);
    const QSize size = widget->size();
    if (label && label->wordWrap()) {
        return label->heightForWidth(size.width()) > size.height();
    }
    if (label || qobject_cast<const QAbstractButton *>(widget) ||
        qobject_cast<const QComboBox *>(widget)) {
        const QSize needed = widget->sizeHint();
        const int slack = label ? 1 : 2;
        return needed.width() > size.width() + slack || needed.height() > size.height() + slack;
    }
    return widget->minimumSizeHint().height() > size.height() + 1;
}

/// A button may have given the letter of its caption away.
QKeySequence letterOf(QWidget *widget) {
    const auto *button = qobject_cast<QAbstractButton *>(widget);
    return button ? button->shortcut() : QKeySequence::mnemonic(captionOf(widget));
}

}  // namespace

QStringList accessibilityFaults(QWidget &form) {
    QStringList faults;
    const QSet<QWidget *> reached = reachedByTab(form);
    QHash<QString, QWidget *> mnemonics;
    const QList<QWidget *> all = form.findChildren<QWidget *>();
    for (QWidget *widget : all) {
        if (!widget->isVisibleTo(&form) || widget->window() != form.window()) {
            continue;
        }
        if (isControl(widget) && widget->isEnabled() && takesInput(widget)) {
            if (!isReached(widget, reached)) {
                faults += QStringLiteral("%1 is not reached by Tab").arg(nameOf(widget));
            }
            if (!hasName(form, widget)) {
                faults += QStringLiteral("%1 has no accessible name").arg(nameOf(widget));
            }
        }
        const QString mnemonic = letterOf(widget).toString();
        if (!mnemonic.isEmpty() && widget->isEnabled()) {
            if (QWidget *other = mnemonics.value(mnemonic)) {
                faults += QStringLiteral("%1 and %2 share %3")
                              .arg(nameOf(other), nameOf(widget), mnemonic);
            }
            mnemonics[mnemonic] = widget;
        }
        if ((isControl(widget) || qobject_cast<QLabel *>(widget)) && isClipped(widget)) {
            faults += QStringLiteral("%1 is clipped: %2x%3 of %4x%5")
                          .arg(nameOf(widget))
                          .arg(widget->width())
                          .arg(widget->height())
                          .arg(widget->sizeHint().width())
                          .arg(widget->sizeHint().height());
        }
    }
    return faults;
}

void checkAccessibility(QWidget &form) {
    const QStringList faults = accessibilityFaults(form);
    EXPECT_TRUE(faults.isEmpty()) << faults.join(QLatin1Char('\n')).toStdString();
}

}  // namespace kaldo::test
