#pragma once

#include <QString>

namespace kaldo {

/// Ended: the application came to its end while the question stood; neither yes nor no.
enum class Answer { Yes, No, Ended };

enum class MessageKind { Information, Warning, Error, Confirmation };

/// The titles that boxes carry when none is told.
QString defaultTitle(MessageKind kind);

struct Message {
    MessageKind kind = MessageKind::Information;
    QString text;
    QString title;
    /// Shown below the text.
    QString detail;
    /// The answer that Enter gives to a question.
    Answer preset = Answer::Yes;
};

/// How screens talk to the user: modal boxes with literal texts. Tests replace it with a script.
class Messages {
public:
    virtual ~Messages() = default;

    void information(const QString &text, const QString &title = {});
    void warning(const QString &text, const QString &title = {});
    void error(const QString &text, const QString &title = {});
    Answer confirm(const QString &text, const QString &title = {});
    /// A question whose Yes destroys what nobody brings back: "No" has the focus, and `lost`, which
    /// may be empty, tells below the text what would go.
    Answer confirmLoss(const QString &text, const QString &lost);

protected:
    /// Shows one box and returns when it is gone. For other kinds than Confirmation the answer is
    /// not looked at.
    virtual Answer show(const Message &message) = 0;
};

/// The boxes of the desktop: modal to the active window, "&Sí" and "&No" or "&Aceptar", Escape
/// means no. A held or repeated Enter presses nothing; a box that says that any key will do takes
/// any. Afterwards the text of the field that has the focus is selected. The dialog is called
/// "messageBox", its text stands in the label "messageText", the detail in "messageDetail"; its
/// buttons are "yesButton", "noButton", "okButton".
class BoxMessages : public Messages {
protected:
    Answer show(const Message &message) override;
};

}  // namespace kaldo
