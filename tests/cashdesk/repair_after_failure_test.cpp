#include "cashdesk/frm801_incomplete_receipts.h"

#include <gtest/gtest.h>

#include "tests/payments/desk.h"
#include "tests/support/keys.h"
#include "tests/support/seams.h"

namespace kaldo::test {
namespace {

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
        return paidWith(draft, 1, 1, draft.amounts.importeTotal);
    };

    const int folio = records.folio();
    TestSeam none;
    desk.local.Recibos.open();
    const NoteDraft first = admission();
    desk.conexion.setSeam(&none);
    ASSERT_TRUE(desk.registers(first, paid(first)));
    desk.conexion.setSeam(nullptr);
    const QString whole = records.ofNote(1, first.notaActual, folio);
    // The note is whole by then, and its failure isn't one.
    none.begun.removeOne(QStringLiteral("QuitaMarcaRecibo"));
    for (int call = 1; call <= none.begun.size(); ++call) {
        SCOPED_TRACE(none.begun[call - 1].toStdString());
        const NoteDraft draft = admission();
        TestSeam fault(Moment::BeforeExecution, atCall(call));
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
