#include "app/catalogue_panel.h"

#include <QLabel>

#include "data/catalogue_texts.h"
#include "tests/catalogues/catalogue_test.h"

namespace kaldo::test {
namespace {

const QString kGone = "Otra estación borró el registro, la información no se guardó.";

/// A catalogue with nothing of its own: two columns, and a key that is tested at Enter.
class PlainCatalogue : public Screen {
public:
    explicit PlainCatalogue(Context &context) : Screen(context, "Plain", "Métodos") {
        CatalogueRules rules;
        rules.query = &context.odonto.Metodopagocfdi;
        rules.keys = {"clave"};
        rules.columns = {GridColumn("CLAVE", "Clave", 8).limit(2).editable(),
                         GridColumn("DESCRIPCION", "Descripción", 40).limit(100).editable()};
        rules.fixedOnEdit = {"CLAVE"};
        rules.waitsFor = "Elija algo.";
        rules.writeFailure = writeFailure;
        rules.enter = {{"CLAVE", [this] {
                            const QString clave = panel->query().text("clave");
                            if (context_().odonto.existe(metodoClaveText(clave))) {
                                return panel->refuse("clave", "Ya existe.");
                            }
                            panel->allowSave();
                            return EnterResult::Next;
                        }}};
        form::build(this, form::column({catalogue(&panel, context, "Lista", rules)}));
    }
    static inline WriteFailure writeFailure = WriteFailure::KeepsRowOpen;
    CataloguePanel *panel = nullptr;

protected:
    void formCreate() override { panel->reload(); }

private:
    Context &context_() const { return Screen::context(); }
};

class CataloguePanelTest : public CatalogueTest<PlainCatalogue> {
protected:
    ~CataloguePanelTest() override { PlainCatalogue::writeFailure = WriteFailure::KeepsRowOpen; }
    QString panelName() const override { return "Lista"; }
    QString stored(const QString &clave) {
        return inClinic("select descripcion from metodopagocfdi where clave=:c", {{"c", clave}})
            .toString();
    }
    /// Which of the four buttons are on, then the navigator, then the preview.
    QString buttons() {
        QString on;
        for (const char *name : {"SpeedButton1", "SpeedButton2", "SpeedButton3", "SpeedButton4"}) {
            on += button(name)->isEnabled() ? u'1' : u'0';
        }
        return on + (child<IconButton>(panel(), "Ultimo")->isEnabled() ? u'1' : u'0') +
               (station.frame.lastState("A1") ? u'1' : u'0');
    }
    /// Opens the first row and types another description into it.
    void typeOver(const QString &text) {
        press(Qt::Key_F2);
        typeText(text);
    }
    void save(Answer given = Answer::Yes) {
        answer(kSave, given);
        alt(Qt::Key_G);
        station.messages.verify();
    }
};

TEST_F(CataloguePanelTest, ModesOpenTheButtonsAndKeysMoveTheRow) {
    open();
    EXPECT_EQ(buttons(), "110011");
    child<IconButton>(panel(), "Ultimo")->click();
    const QString last = query().text("clave");
    EXPECT_EQ(query().position(), query().count() - 1);
    alt(Qt::Key_I);
    EXPECT_EQ(buttons(), "000100");
    press(Qt::Key_Tab);
    EXPECT_TRUE(grid()->hasFocus()) << "Tab is swallowed";
    EXPECT_EQ(grid()->currentField(), "CLAVE");
    enter("77");
    EXPECT_EQ(buttons(), "001100");
    save();
    EXPECT_EQ(query().text("clave"), "77") << "it moves to the row that was saved";
    EXPECT_EQ(buttons(), "110011");
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Escape}) {
        typeOver("otra");
        EXPECT_EQ(buttons(), "001100");
        press(key);
        if (key == Qt::Key_Escape) {
            press(key);  // the first one closed the cell
        }
        EXPECT_FALSE(panel()->editing());
        EXPECT_EQ(query().text("clave"), "77");
    }
    EXPECT_EQ(stored("77"), "");
}

TEST_F(CataloguePanelTest, ANoDropsTheRowAndAClosedScreenLeavesNothing) {
    open();
    const QString before = query().text("descripcion");
    typeOver("no");
    save(Answer::No);
    EXPECT_FALSE(panel()->editing());
    EXPECT_EQ(query().text("descripcion"), before);

    typeOver("tampoco");
    station.frame.enabledEntries.clear();
    screen.reset();
    EXPECT_EQ(stored("01"), before);
    EXPECT_FALSE(station.odonto.Metodopagocfdi.isPending());
    EXPECT_TRUE(station.frame.enabledEntries.contains("A1"));
}

TEST_F(CataloguePanelTest, ARefusedWriteKeepsTheRowOpenOrDropsItAsTheCatalogueSays) {
    for (const WriteFailure told : {WriteFailure::KeepsRowOpen, WriteFailure::CancelsEdit}) {
        PlainCatalogue::writeFailure = told;
        open();
        const QString before = stored("01");
        const QString text = QString("otra %1").arg(static_cast<int>(told));
        typeOver(text);
        answer(kSave);
        refuseWrite();
        alt(Qt::Key_G);
        station.messages.verify();
        EXPECT_EQ(stored("01"), before);
        if (told == WriteFailure::KeepsRowOpen) {
            EXPECT_EQ(query().text("descripcion"), text);
            save();
            EXPECT_EQ(stored("01"), text) << "the second try";
        }
        EXPECT_FALSE(panel()->editing());
    }
    answer(kRemove);
    refuseWrite();
    alt(Qt::Key_B);
    EXPECT_EQ(query().text("clave"), "01");
    EXPECT_FALSE(panel()->editing());
}

TEST_F(CataloguePanelTest, TheLastWriteWinsAndARowThatIsGoneIsTold) {
    open();
    typeOver("lo mío");
    changeInClinic("update metodopagocfdi set descripcion='LO SUYO' where clave='01'");
    save();
    EXPECT_EQ(stored("01"), "lo mío");

    typeOver("ya no");
    changeInClinic("delete from metodopagocfdi where clave='01'");
    station.messages.expectConfirmation(kSave, Answer::Yes);
    station.messages.expectError(kGone);
    alt(Qt::Key_G);
    EXPECT_TRUE(panel()->editing());
    press(Qt::Key_Escape);
    press(Qt::Key_Escape);
    EXPECT_EQ(query().text("clave"), "02");
    changeInClinic("delete from metodopagocfdi where clave='02'");
    answer(kRemove);
    station.messages.expectError(kGone);
    alt(Qt::Key_B);
    EXPECT_EQ(query().text("clave"), "03") << "the list shows what stands";
}

TEST_F(CataloguePanelTest, ADeletionShowsItsRowAndTakesNoForAnAnswer) {
    open();
    const int rows = query().count();
    press(Qt::Key_End, Qt::ControlModifier);
    ASSERT_EQ(query().position(), rows - 1);
    answer(kRemove, Answer::No);
    alt(Qt::Key_B);
    const Message box = station.messages.boxes().last();
    EXPECT_EQ(box.preset, Answer::No);
    EXPECT_EQ(box.detail,
              "Clave: " + query().text("clave") + "\nDescripción: " + query().text("descripcion"));
    EXPECT_EQ(query().count(), rows);
    answer(kRemove);
    alt(Qt::Key_B);
    EXPECT_EQ(query().position(), rows - 2) << "the one before it, where it was the last";

    auto *hint = child<QLabel>(panel(), "listHint");
    EXPECT_FALSE(hint->isVisible());
    changeInClinic("delete from metodopagocfdi");
    panel()->refresh();
    EXPECT_EQ(hint->text(), "La lista está vacía.");
    EXPECT_EQ(buttons(), "100000");
    query().close();
    panel()->setInsertAllowed(false);
    EXPECT_EQ(hint->text(), "Elija algo.");
    EXPECT_TRUE(hint->isVisible());
}

TEST_F(CataloguePanelTest, AKeyIsTestedHoweverTheRowIsSaved) {
    open();
    alt(Qt::Key_I);
    enter("8");
    EXPECT_TRUE(button("SpeedButton3")->isEnabled());
    press(Qt::Key_Left);
    typeText("01");  // over the accepted one
    station.messages.expectInformation("Ya existe.");
    alt(Qt::Key_G);  // past its Enter
    station.messages.verify();
    EXPECT_EQ(grid()->currentField(), "CLAVE");
    EXPECT_FALSE(button("SpeedButton3")->isEnabled());
    EXPECT_TRUE(grid()->hasFocus());
    enter("8");
    EXPECT_EQ(grid()->currentField(), "DESCRIPCION");
    answer(kSave);
    enter("descripción");  // the last column saves
    station.messages.verify();
    EXPECT_EQ(stored("8"), "descripción");
}

}  // namespace
}  // namespace kaldo::test
