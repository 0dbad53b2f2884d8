#pragma once

#include <QString>

#include "data/connection.h"
#include "tools/support/key_script.h"

namespace kaldo {

/// Makes one call fail on purpose, in the middle of a note: the demonstration shows how the desk
/// gets out of it.
class BreakingSeam final : public Seam {
public:
    /// The next execution of this query or routine fails.
    void breakNext(const QString &name) { name_ = name; }
    void beforeExecution(const Execution &execution) override;

private:
    QString name_;
};

/// The strokes of a cashier's day at desk 1, from the login to the cash cut: six notes, one of
/// which fails midway and is repaired. `pdfFolder` gets the reports of the cut.
void writeRoad(KeyScript &script, BreakingSeam &seam, const QString &pdfFolder);

/// Reads everything back from the databases under `root` by fresh connections and writes
/// `DIR/summary.json`. False, with the reasons on stderr, unless all that the road should have left
/// is there.
bool writeSummary(const QString &root, const QString &folder);

}  // namespace kaldo
