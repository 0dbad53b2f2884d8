#include "toolkit/forms/messages.h"

#include "toolkit/forms/application.h"
#include "toolkit/forms/button.h"
#include "toolkit/forms/focus.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QStyle>
#include <QVBoxLayout>

namespace kaldo {

namespace {

/// Wide enough for a sentence, narrow enough to be read at a glance.
constexpr int kTextCharacters = 58;

QString pictureOf(MessageKind kind) {
    switch (kind) {
        case MessageKind::Warning:
            return QStringLiteral("warning");
        case MessageKind::Error:
            return QStringLiteral("error");
        case MessageKind::Confirmation:
            return QStringLiteral("question");
        case MessageKind::Information:
            break;
    }
    return QStringLiteral("information");
}

/// "presione cualquier tecla para continuar" is meant so.
bool takesAnyKey(const Message &message) {
    return message.kind != MessageKind::Confirmation &&
           message.text.contains(QStringLiteral("presione cualquier tecla"), Qt::CaseInsensitive);
}

/// Keys that only change others press nothing.
bool stands(const QKeyEvent &event) {
    const int key = event.key();
    const bool changes = (key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock) ||
                         (key >= Qt::Key_Super_L && key <= Qt::Key_Hyper_R) ||
                         key == Qt::Key_AltGr || key == Qt::Key_unknown;
    return !changes && !event.isAutoRepeat();
}

class Box : public QDialog {
public:
    Box(const Message &message, QWidget *parent) : QDialog(parent) {
        setObjectName(QStringLiteral("messageBox"));
        setWindowTitle(message.title.isEmpty() ? defaultTitle(message.kind) : message.title);
        setWindowFlag(Qt::WindowContextHelpButtonHint, false);
        auto *rows = new QVBoxLayout(this);
        rows->setContentsMargins(20, 20, 20, 16);
        rows->setSpacing(18);
        rows->setSizeConstraint(QLayout::SetFixedSize);
        rows->addLayout(content(message));
        rows->addLayout(buttons(message));
        anyKey_ = takesAnyKey(message);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override {
        if (anyKey_ && event->type() == QEvent::KeyPress) {
            if (stands(*static_cast<QKeyEvent *>(event))) {
                accept();
            }
            return true;
        }
        return QDialog::eventFilter(watched, event);
    }

private:
    QLayout *content(const Message &message) {
        auto *line = new QHBoxLayout;
        line->setSpacing(16);
        auto *picture = new QLabel(this);
        const int size = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
        picture->setPixmap(iconNamed(pictureOf(message.kind)).pixmap(size, size));
        line->addWidget(picture, 0, Qt::AlignTop);
        auto *texts = new QVBoxLayout;
        texts->setSpacing(10);
        texts->addWidget(paragraph(QStringLiteral("messageText"), message.text));
        if (!message.detail.isEmpty()) {
            texts->addWidget(paragraph(QStringLiteral("messageDetail"), message.detail));
        }
        line->addLayout(texts, 1);
        line->setAlignment(texts, Qt::AlignVCenter);
        setAccessibleName(windowTitle());
        setAccessibleDescription((message.text + u'\n' + message.detail).trimmed());
        return line;
    }

    QLabel *paragraph(const QString &name, const QString &content) {
        auto *text = new QLabel(this);
        text->setObjectName(name);
        text->setTextFormat(Qt::PlainText);
        text->setText(content);
        text->setWordWrap(true);
        const QFontMetrics metrics(text->font());
        const int widest = metrics.averageCharWidth() * kTextCharacters;
        const QRect needed = metrics.boundingRect(QRect(0, 0, widest, 10000),
                                                  Qt::TextWordWrap | Qt::AlignLeft, content);
        text->setMinimumWidth(qMin(widest, needed.width() + metrics.averageCharWidth()));
        text->setMaximumWidth(widest);
        return text;
    }

    QLayout *buttons(const Message &message) {
        auto *line = new QHBoxLayout;
        line->addStretch();
        if (message.kind == MessageKind::Confirmation) {
            Button *yes =
                add(line, QStringLiteral("yesButton"), QStringLiteral("&Sí"), QDialog::Accepted);
            Button *no =
                add(line, QStringLiteral("noButton"), QStringLiteral("&No"), QDialog::Rejected);
            (message.preset == Answer::No ? no : yes)->setFocus();
        } else {
            add(line, QStringLiteral("okButton"), QStringLiteral("&Aceptar"), QDialog::Accepted)
                ->setFocus();
        }
        setAttribute(Qt::WA_KeyboardFocusChange);
        return line;
    }

    Button *add(QHBoxLayout *line, const QString &name, const QString &text, int result) {
        auto *button = new Button(this);
        button->setObjectName(name);
        button->setText(text);
        button->setMinimumWidth(fontMetrics().averageCharWidth() * 14);
        connect(button, &QPushButton::clicked, this, [this, result] { done(result); });
        button->installEventFilter(this);
        line->addWidget(button);
        return button;
    }

    bool anyKey_ = false;
};

/// Selects the text of the field that was told of: the next key replaces what was refused. Where
/// the keys were sent elsewhere meanwhile, they stay there.
class TextReselection {
public:
    explicit TextReselection(const QWidget *window)
        : line_(qobject_cast<QLineEdit *>(window ? window->focusWidget() : nullptr)) {}
    ~TextReselection() {
        if (line_ && !line_->isReadOnly() && line_->window()->focusWidget() == line_) {
            line_->selectAll();
        }
    }
    TextReselection(const TextReselection &) = delete;
    TextReselection &operator=(const TextReselection &) = delete;

private:
    QPointer<QLineEdit> line_;
};

}  // namespace

QString defaultTitle(MessageKind kind) {
    switch (kind) {
        case MessageKind::Warning:
            return QStringLiteral("Advertencia");
        case MessageKind::Error:
            return QStringLiteral("Error");
        case MessageKind::Confirmation:
            return QStringLiteral("Confirmación");
        case MessageKind::Information:
            break;
    }
    return QStringLiteral("Información");
}

void Messages::information(const QString &text, const QString &title) {
    show({MessageKind::Information, text, title, {}, Answer::Yes});
}

void Messages::warning(const QString &text, const QString &title) {
    show({MessageKind::Warning, text, title, {}, Answer::Yes});
}

void Messages::error(const QString &text, const QString &title) {
    show({MessageKind::Error, text, title, {}, Answer::Yes});
}

Answer Messages::confirm(const QString &text, const QString &title) {
    return show({MessageKind::Confirmation, text, title, {}, Answer::Yes});
}

Answer Messages::confirmLoss(const QString &text, const QString &lost) {
    return show({MessageKind::Confirmation, text, {}, lost, Answer::No});
}

Answer BoxMessages::show(const Message &message) {
    const auto ending = [] {
        const Application *application = Application::current();
        return application && application->ending();
    };
    if (ending()) {
        return Answer::Ended;
    }
    const ActivationReturn activation;
    const TextReselection reselection(windowInFront());
    Box box(message, windowInFront());
    const int result = box.exec();
    if (ending()) {
        return Answer::Ended;
    }
    return result == QDialog::Accepted ? Answer::Yes : Answer::No;
}

}  // namespace kaldo
