#include "catalogues/frm102_centre_areas.h"

#include "catalogues/two_lists.h"
#include "tests/catalogues/catalogue_test.h"

namespace kaldo::test {
namespace {

class FRM102Test : public ::testing::Test {
protected:
    FRM102Test() { station.logIn("admin"); }

    void open(const QString &centro) {
        screen = std::make_unique<FRM102>(station.context);
        screen->open();
        showActive(screen.get());
        typeText(centro);
        press(Qt::Key_Return);
    }
    DataGrid *grid(const char *name) { return child<DataGrid>(screen.get(), name); }
    bool enabled(const char *name) { return child<IconButton>(screen.get(), name)->isEnabled(); }
    QString buttons() {
        QString states;
        for (const char *name :
             {"AgregarTodas", "AgregarSeleccionada", "EliminarSeleccionada", "EliminarTodas"}) {
            states += enabled(name) ? u'1' : u'0';
        }
        return states;
    }
    void push(const char *name) {
        child<IconButton>(screen.get(), name)->setFocus();
        press(Qt::Key_Return);
    }
    int stored(const QString &condition = "centro='02'") {
        return valueOf(station.clinic(), "select count(*) from serviciosxctro where " + condition)
            .toInt();
    }

    TestStation station;
    std::unique_ptr<FRM102> screen;
};

TEST_F(FRM102Test, AreasGoToAndFroByKeysAlone) {
    screen = std::make_unique<FRM102>(station.context);
    screen->open();
    showActive(screen.get());
    EXPECT_EQ(screen->windowTitle(), "Centros de Atencióm / Areas de Ventas");
    EXPECT_EQ(buttons(), "0000");
    open("CLINICA DE ESP");
    EXPECT_EQ(buttons(), "1111");
    EXPECT_TRUE(grid("AreasDisponibles")->hasFocus());
    const int offered = stored();
    // Children (3) are the first that the specialities don't offer.
    ASSERT_EQ(grid("AreasDisponibles")->currentValue("TIPO_PROD").toInt(), 3);
    press(Qt::Key_Return);
    press(Qt::Key_F2);
    press(Qt::Key_Insert);
    EXPECT_EQ(stored(), offered + 3);
    EXPECT_EQ(stored("centro='02' and tipo_prod in (3, 4, 8)"), 3);
    hold(Qt::Key_Return, 5);
    EXPECT_EQ(stored(), offered + 4) << "a held key adds one";
    picture(screen.get(), "frm102");
    checkAccessibility(*screen);

    push("AgregarTodas");
    EXPECT_EQ(buttons(), "0011");
    EXPECT_TRUE(grid("AreasAgregadas")->hasFocus()) << "nothing is left on the other side";
    EXPECT_EQ(stored(), stored("centro='01'"));
    press(Qt::Key_Home);
    const int first = grid("AreasAgregadas")->currentValue("TIPO_PROD").toInt();
    press(Qt::Key_Delete);
    EXPECT_EQ(stored("centro='02' and tipo_prod=" + QString::number(first)), 0);
    push("EliminarSeleccionada");
    press(Qt::Key_Return);
    EXPECT_EQ(stored(), stored("centro='01'") - 3);
    push("EliminarTodas");
    EXPECT_EQ(stored(), 0);
    EXPECT_EQ(buttons(), "1100");
    EXPECT_EQ(stored("centro='01'"), 23) << "another centre keeps its own";

    auto *centre = child<LookupField>(screen.get(), "Centro");
    centre->setFocus();
    centre->selectAll();
    settle();
    press(Qt::Key_Delete);
    EXPECT_EQ(buttons(), "0000") << "no centre, no areas";
}

TEST_F(FRM102Test, RefusedWriteKeepsThoseBeforeIt) {
    TestSeam seam;
    station.conexion.setSeam(&seam);
    run(station.clinic(), "delete from serviciosxctro where centro='02'");
    open("CLINICA DE ESP");
    seam.strike(Moment::BeforeCommit, atWrite(3));
    EXPECT_THROW(child<TwoLists>(screen.get(), "Areas")->addAll(), DatabaseError);
    EXPECT_EQ(stored(), 2);
    EXPECT_EQ(grid("AreasAgregadas")->model()->rowCount(), 2) << "the lists show what stands";
    // Another station has added the area meanwhile, and taken one away.
    run(station.clinic(), "insert into serviciosxctro values ('02', 3)");
    EXPECT_THROW(child<TwoLists>(screen.get(), "Areas")->addSelected(), DatabaseError);
    run(station.clinic(), "delete from serviciosxctro where centro='02' and tipo_prod=1");
    child<TwoLists>(screen.get(), "Areas")->removeAll();
    EXPECT_EQ(stored(), 0);
    station.conexion.setSeam(nullptr);
}

TEST_F(FRM102Test, ReportGroupsByCentre) {
    open("CLINICA DE ESP");
    station.session.Ciudad = QString("Valle Norte");
    ASSERT_TRUE(screen->previewReport());
    const report::Document &document = station.printing.records.last().document;
    ASSERT_EQ(document.pageCount(), 1);
    EXPECT_TRUE(readsCleanly(document));
    const QString text = report::pageText(document, 0);
    EXPECT_TRUE(text.contains("Centros de Atención / Areas de Venta Valle Norte"));
    EXPECT_EQ(text.count("Centro de Atención"), 2);
    EXPECT_LT(text.indexOf("CLINICA DE LICENCIATURA VALLE NORTE"),
              text.indexOf("CLINICA DE ESPECIALIDADES VALLE NORTE"));
    EXPECT_FALSE(text.contains("COSTA SUR"));
}

}  // namespace
}  // namespace kaldo::test
