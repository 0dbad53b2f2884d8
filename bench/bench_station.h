#pragma once

#include <QStringList>

#include <memory>

#include "bench/recorder.h"
#include "tests/support/test_station.h"

namespace kaldo::bench {

/// Answers every box at once. A warning or an error ends the measurement: what is timed then isn't
/// what it says.
class PromptMessages final : public Messages {
public:
    int shown() const { return shown_; }

protected:
    Answer show(const Message &message) override;

private:
    int shown_ = 0;
};

/// Counts what is printed and previewed, and keeps nothing of it.
class CountingPrinting final : public report::Printing {
public:
    void print(const report::Document &, const report::PrintJob &) override { ++printed; }
    void preview(const report::Document &, const QString &, QWidget *,
                 const report::PreviewOptions &) override {
        ++previewed;
    }
    QStringList printers() const override { return {}; }
    int choosePrinter(QWidget *, int current) override { return current; }

    int printed = 0;
    int previewed = 0;
};

/// A station over real databases whose every execution is recorded, and a second set of the same
/// databases for the bare replay.
class BenchStation {
public:
    /// Both installations must be in the same state, and stay the only ones that open them.
    BenchStation(std::shared_ptr<test::TestInstallation> own,
                 std::shared_ptr<test::TestInstallation> bare);
    /// Over files that somebody else keeps, without a twin.
    explicit BenchStation(const QString &root);
    ~BenchStation();

    /// The twin of a connection's database, for the bare side.
    QString twinOf(const QString &connection);

    Context &context() { return context_; }
    Connection &clinic() { return station_.clinic(); }
    void logIn(const QString &usuario) { station_.logIn(usuario); }

    PromptMessages messages;
    CountingPrinting printing;
    Recorder recorder;

private:
    void watch();

    std::shared_ptr<test::TestInstallation> bare_;
    test::TestStation station_;
    Context context_;
};

/// The installation's databases leave it to the operating system when to write.
void writeUnforced(const test::TestInstallation &installation);

/// The station prints no copies of its receipts.
void printNoReceipts(const test::TestInstallation &installation);

/// Names the shared databases of an installation through a server ("localhost/3055:").
void reachThrough(const test::TestInstallation &installation, const QString &host);

/// Milliseconds since an unspecified moment.
double milliseconds();

double median(std::vector<double> values);

}  // namespace kaldo::bench
