#pragma once

#include <QHash>
#include <QStringList>

#include <deque>
#include <functional>
#include <utility>

#include "app/frame.h"
#include "toolkit/core/clock.h"
#include "toolkit/forms/file_dialogs.h"
#include "toolkit/forms/messages.h"
#include "toolkit/report/printing.h"

namespace kaldo::test {

/// A clock that stands until it is set.
class TestClock final : public Clock {
public:
    QDateTime now() const override { return now_; }
    void set(const QDateTime &now) { now_ = now; }

private:
    QDateTime now_ = QDateTime::currentDateTime();
};

/// Message boxes by script: a test says which boxes it expects, in their order, and what it
/// answers. A box that isn't expected fails the test; so does an expected one that never came.
class ScriptedMessages final : public Messages {
public:
    ~ScriptedMessages() override;

    void expectInformation(const QString &text) { expect(MessageKind::Information, text); }
    void expectWarning(const QString &text) { expect(MessageKind::Warning, text); }
    void expectError(const QString &text) { expect(MessageKind::Error, text); }
    void expectConfirmation(const QString &text, Answer answer) {
        expect(MessageKind::Confirmation, text, answer);
    }
    /// `text` may end in "*", which stands for any rest.
    void expect(MessageKind kind, const QString &text, Answer answer = Answer::Yes);

    /// Fails the test unless every expected box has come, and forgets the rest.
    void verify();
    /// The texts of all boxes so far.
    const QStringList &shown() const { return shown_; }
    const QList<Message> &boxes() const { return boxes_; }

protected:
    Answer show(const Message &message) override;

private:
    struct Expected {
        MessageKind kind;
        QString text;
        Answer answer;
    };
    std::deque<Expected> expected_;
    QStringList shown_;
    QList<Message> boxes_;
};

/// Gives the file that the test has set, once; asked without one, the user chose none.
class ScriptedFileDialogs final : public FileDialogs {
public:
    QString openFile(QWidget *, const QString &title, const QString &, const QString &) override {
        asked += title;
        return std::exchange(next, QString());
    }

    QString next;
    QStringList asked;
};

/// Keeps what was printed and previewed. `onPrint` may throw, as a printer that fails does.
class RecordingPrinting final : public report::Printing {
public:
    struct Record {
        report::Document document;
        QString title;
        int printer;
        bool preview;
    };

    void print(const report::Document &document, const report::PrintJob &job) override;
    void preview(const report::Document &document, const QString &title, QWidget *parent,
                 const report::PreviewOptions &options) override;
    QStringList printers() const override { return {QStringLiteral("Impresora de prueba")}; }
    int choosePrinter(QWidget *, int) override { return chosenPrinter; }

    QList<Record> records;
    std::function<void()> onPrint;
    int chosenPrinter = 0;
};

/// A main window that only remembers what was asked of it.
class TestFrame final : public Frame {
public:
    void openEntry(const QString &entry) override { openedEntries += entry; }
    void setEntryEnabled(const QString &entry, bool enabled) override;
    void showRate() override { ++ratesShown; }
    void refreshDeskFigures() override { ++figuresRefreshed; }
    void showNotice(const QString &text) override { notices += text; }
    void beginProgress(int total, double) override { progressTotals += total; }
    void advanceProgress() override { ++progressSteps; }
    void endProgress() override { ++progressEnded; }

    /// As it was set last; true where it never was.
    bool lastState(const QString &entry) const { return states_.value(entry, true); }

    QStringList openedEntries;
    QStringList enabledEntries;
    QStringList disabledEntries;
    QStringList notices;
    QList<int> progressTotals;
    int ratesShown = 0;
    int figuresRefreshed = 0;
    int progressSteps = 0;
    int progressEnded = 0;

private:
    QHash<QString, bool> states_;
};

}  // namespace kaldo::test
