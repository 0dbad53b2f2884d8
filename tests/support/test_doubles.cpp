#include "tests/support/test_doubles.h"

#include <gtest/gtest.h>

namespace kaldo::test {

namespace {

bool matches(const QString &expected, const QString &shown) {
    return expected.endsWith('*') ? shown.startsWith(expected.chopped(1)) : shown == expected;
}

}  // namespace

ScriptedMessages::~ScriptedMessages() {
    verify();
}

void ScriptedMessages::expect(MessageKind kind, const QString &text, Answer answer) {
    expected_.push_back({kind, text, answer});
}

void ScriptedMessages::verify() {
    for (const Expected &missing : expected_) {
        ADD_FAILURE() << "a box never came: " << missing.text.toStdString();
    }
    expected_.clear();
}

Answer ScriptedMessages::show(const Message &message) {
    shown_ += message.text;
    boxes_ += message;
    if (expected_.empty()) {
        ADD_FAILURE() << "an unexpected box: " << message.text.toStdString();
        return Answer::No;
    }
    const Expected expected = expected_.front();
    expected_.pop_front();
    EXPECT_EQ(static_cast<int>(expected.kind), static_cast<int>(message.kind))
        << message.text.toStdString();
    if (!matches(expected.text, message.text)) {
        ADD_FAILURE() << "another box than expected:\n  expected: " << expected.text.toStdString()
                      << "\n  shown:    " << message.text.toStdString();
    }
    return expected.answer;
}

void RecordingPrinting::print(const report::Document &document, const report::PrintJob &job) {
    if (onPrint) {
        onPrint();
    }
    records.append({document, job.title, job.printer, false});
}

void RecordingPrinting::preview(const report::Document &document, const QString &title, QWidget *,
                                const report::PreviewOptions &options) {
    records.append({document, title, options.printer, true});
}

void TestFrame::setEntryEnabled(const QString &entry, bool enabled) {
    (enabled ? enabledEntries : disabledEntries) += entry;
    states_[entry] = enabled;
}

}  // namespace kaldo::test
