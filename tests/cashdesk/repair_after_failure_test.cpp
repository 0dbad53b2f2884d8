#include "cashdesk/frm801_incomplete_receipts.h"

#include <gtest/gtest.h>

#include "tests/payments/desk.h"
#include "tests/support/keys.h"

namespace kaldo::test {
namespace {

/// Fails the call of one ordinal and writes down the names of all.
class FailAt final : public Seam {
public:
    explicit FailAt(int call) : call_(call) {}
    void beforeExecution(const Execution &execution) override {
        names += execution.name;
        if (names.size() == call_) {
            throw std::runtime_error("fault");
        }
    }
    QStringList names;

private:
    int call_;
};

/// A registration that stops at any of its calls, the repair by the screen, and the note again.
TEST(RepairAfterFailure, TheNoteCanBeEnteredAgain) {
    TestInstallation files;
    Desk desk(files.root());
    Records records(files.root());
    FRM801 repair(desk.context);
    repair.ensureBuilt();
    showActive(&repair);
    const auto process = [&](const QString &answer) {
        desk.messages.expectInformation(answer);
        repair.activated();
        press(Qt::Key_Return);
    };
    const auto admission = [&] { return desk.note("AD - ADMISION", 1, {1}); };
    const auto paid = [](const NoteDraft &draft) {
        return paidWith(draft, 1, 1, draft.importeTotal);
    };

    const int folio = records.folio();
    FailAt none(0);
    desk.local.Recibos.open();
    const NoteDraft first = admission();
    desk.conexion.setSeam(&none);
    ASSERT_TRUE(desk.registers(first, paid(first)));
    desk.conexion.setSeam(nullptr);
    const QString whole = records.ofNote(1, first.notaActual, folio);
    for (int call = 1; call <= none.names.size(); ++call) {
        SCOPED_TRACE(none.names[call - 1].toStdString());
        const NoteDraft draft = admission();
        FailAt fault(call);
        desk.conexion.setSeam(&fault);
        EXPECT_TRUE(desk.fails(draft, paid(draft)));
        desk.conexion.setSeam(nullptr);

        process(call == 1 ? "La información se encuentra registrada correctamente"
                          : "La última nota se encontró registrada de manera incompleta, vuelva a "
                            "captarla");
        const NoteDraft again = admission();
        EXPECT_EQ(again.notaActual, draft.notaActual);
        const int next = records.folio();
        EXPECT_TRUE(desk.registers(again, paid(again)));
        EXPECT_EQ(records.ofNote(1, again.notaActual, next), whole);
        process("La información se encuentra registrada correctamente");
    }
}

}  // namespace
}  // namespace kaldo::test
