#include "toolkit/forms/date_field.h"

#include "toolkit/core/clock.h"
#include "toolkit/forms/application.h"
#include "toolkit/forms/button.h"
#include "toolkit/forms/complaint.h"

#include <QAction>
#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLocale>
#include <QRegularExpression>
#include <QVBoxLayout>

namespace kaldo {

namespace {

constexpr int kFirstYearOfLastCentury = 50;

/// The calendar under a date field; Escape or a click outside closes it without a choice.
class CalendarPopup : public QFrame {
public:
    CalendarPopup(QWidget *owner, const QDate &date) : QFrame(owner, Qt::Popup) {
        setAttribute(Qt::WA_DeleteOnClose);
        setFrameShape(QFrame::StyledPanel);
        setObjectName(QStringLiteral("calendarPopup"));
        auto *layout = new QVBoxLayout(this);
        layout->setContentsMargins(1, 1, 1, 1);
        calendar_ = new QCalendarWidget(this);
        calendar_->setLocale(QLocale(QLocale::Spanish, QLocale::Mexico));
        calendar_->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
        // "mié." is wider than a day's number.
        calendar_->setMinimumWidth(7 * (fontMetrics().horizontalAdvance(QStringLiteral("mié.")) +
                                        fontMetrics().averageCharWidth() * 2));
        calendar_->setSelectedDate(date);
        layout->addWidget(calendar_);
        setFocusProxy(calendar_);
    }

    QCalendarWidget *calendar() const { return calendar_; }

protected:
    void keyPressEvent(QKeyEvent *event) override {
        if (event->key() == Qt::Key_Escape) {
            close();
        }
    }

private:
    QCalendarWidget *calendar_;
};

}  // namespace

DateField::DateField(QWidget *parent) : LineField(parent) {
    setCharacters(10);
    setShownCharacters(12);
    setPlaceholderText(QStringLiteral("dd/mm/aaaa"));
    QAction *open = addAction(iconNamed(QStringLiteral("calendar")), QLineEdit::TrailingPosition);
    open->setToolTip(QStringLiteral("Calendario (F4)"));
    connectGuarded(open, &QAction::triggered, this, &DateField::openCalendar);
}

QDate DateField::parse(const QString &text) {
    static const QRegularExpression shape(QStringLiteral(
        R"(^\s*(?:(\d{1,2})/(\d{1,2})/(\d{4}|\d{2})|(\d{2})(\d{2})(\d{4}|\d{2}))\s*$)"));
    const QRegularExpressionMatch match = shape.match(text);
    if (!match.hasMatch()) {
        return {};
    }
    const int first = match.capturedLength(1) > 0 ? 1 : 4;
    int year = match.captured(first + 2).toInt();
    if (match.capturedLength(first + 2) == 2) {
        year += year < kFirstYearOfLastCentury ? 2000 : 1900;
    }
    return QDate(year, match.captured(first + 1).toInt(), match.captured(first).toInt());
}

QDate DateField::date() const {
    return parse(text());
}

void DateField::setDate(const QDate &date) {
    settled_ = date;
    if (const QString shown = formatDate(date); shown != text()) {
        setText(shown);
    }
}

void DateField::setInvalidHandler(std::function<void(const QString &)> handler) {
    invalid_ = std::move(handler);
}

bool DateField::commit() {
    const QDate typed = date();
    if (!typed.isValid() && !text().trimmed().isEmpty()) {
        selectAll();
        const QString wrong = text();
        if (invalid_) {
            invalid_(wrong);
        } else {
            complain(this, QStringLiteral("«%1» no es una fecha. Escriba día/mes/año.").arg(wrong));
        }
        return false;
    }
    settle(typed);
    return true;
}

void DateField::settle(const QDate &date) {
    const bool changed = date != settled_;
    setDate(date);
    if (changed) {
        emit dateEdited(date);
    }
}

void DateField::openCalendar() {
    if (isReadOnly() || !isEnabled()) {
        return;
    }
    setFocus(Qt::OtherFocusReason);
    const QDate shown = date().isValid() ? date() : settled_;
    auto *popup = new CalendarPopup(this, shown.isValid() ? shown : QDate::currentDate());
    const auto pick = [this, popup](const QDate &date) {
        popup->close();
        settle(date);
        selectAll();
        emit calendarClosed();
    };
    // Enter and a double click activate; one click is enough.
    connectGuarded(popup->calendar(), &QCalendarWidget::clicked, this, pick);
    connectGuarded(popup->calendar(), &QCalendarWidget::activated, this, [popup, pick](QDate date) {
        if (popup->isVisible()) {
            pick(date);
        }
    });
    popup->adjustSize();
    popup->move(mapToGlobal(rect().bottomLeft()));
    popup->show();
    popup->calendar()->setFocus(Qt::PopupFocusReason);
}

void DateField::normalise(QString *text, int *position) const {
    for (QChar &c : *text) {
        if (QStringLiteral("/-. ").contains(c)) {
            c = QLatin1Char('/');
        }
    }
    keepOnly(text, position, [](QChar c, const QString &before) {
        return (c >= QLatin1Char('0') && c <= QLatin1Char('9')) ||
               (c == QLatin1Char('/') && !before.isEmpty());
    });
    LineField::normalise(text, position);
}

void DateField::keyPressEvent(QKeyEvent *event) {
    const bool altDown = event->key() == Qt::Key_Down && (event->modifiers() & Qt::AltModifier);
    if ((event->key() == Qt::Key_F4 && event->modifiers() == Qt::NoModifier) || altDown) {
        openCalendar();
        return;
    }
    LineField::keyPressEvent(event);
}

}  // namespace kaldo
