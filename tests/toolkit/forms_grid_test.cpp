#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QToolTip>

#include "forms_sample.h"
#include "tests/support/keys.h"

namespace kaldo::test {

namespace {

struct Grid : SampleForm {
    Grid() {
        resize(1000, 640);
        showActive(this);
        table->setColumnEnterHandler([this](const QString &field) {
            entered += field;
            if (act) {
                act(field);
            }
        });
        table->setFocus(Qt::TabFocusReason);
        settle();
    }
    QVariant value(int row, int column) const {
        return lines.index(row, column).data(Qt::EditRole);
    }
    QStringList entered;
    std::function<void(const QString &)> act;
};

}  // namespace

TEST(DataGrid, EnterCommitsTheCellThenRunsTheHandlerThenMovesOn) {
    Grid form;
    form.table->setCurrentField(QStringLiteral("DESCRIPCION"));
    typeText(QStringLiteral("x"));
    EXPECT_FALSE(form.table->editorOpen()) << "a row that is not open takes no input";

    form.table->setRowEdit(true);
    form.act = [&](const QString &field) {
        EXPECT_FALSE(form.table->editorOpen());
        if (field == QLatin1String("DESCRIPCION")) {
            EXPECT_EQ(form.value(0, 1), QVariant(QStringLiteral("RESINA DE FOTOCURADO")))
                << "in capitals, cut at its limit";
        }
    };
    typeText(QStringLiteral("resina de fotocurado dental"));
    EXPECT_TRUE(form.table->editorOpen());
    picture(&form, QStringLiteral("forms_grid_editor"));
    press(Qt::Key_Return);
    EXPECT_EQ(form.table->currentField(), QStringLiteral("CANT"));
    typeText(QStringLiteral("x3"));
    press(Qt::Key_Return);
    EXPECT_EQ(form.value(0, 2), QVariant(3));
    press(Qt::Key_Return);
    EXPECT_EQ(form.entered.join(' ').toStdString(), "DESCRIPCION CANT PRECIO");
    EXPECT_EQ(form.table->currentField(), QStringLiteral("PRECIO")) << "the last of the open row";

    form.act = [&](const QString &) {
        form.table->setRowEdit(false);
        moveFocus(form.save);
    };
    press(Qt::Key_Return);
    EXPECT_TRUE(form.save->hasFocus());
}

TEST(DataGrid, TheMarkedRowIsMutedWithoutTheFocus) {
    Grid form;
    QPalette colours = form.table->palette();
    colours.setColor(QPalette::Active, QPalette::Highlight, Qt::blue);
    colours.setColor(QPalette::Inactive, QPalette::Highlight, Qt::yellow);
    form.table->setPalette(colours);
    form.table->setCurrentRow(1);
    const auto ground = [&] {
        const QRect cell = form.table->visualRect(form.table->currentIndex().siblingAtColumn(1));
        return form.table->viewport()->grab().toImage().pixelColor(cell.bottomRight() -
                                                                   QPoint(6, 6));
    };
    EXPECT_EQ(ground(), QColor(Qt::blue));
    form.save->setFocus();
    EXPECT_EQ(ground(), QColor(Qt::yellow));
}

TEST(DataGrid, TheHandlerSaysWhereTheColumnGoes) {
    Grid form;
    form.table->setRowEdit(true);
    form.table->setCurrentField(QStringLiteral("CANT"));
    form.act = [&](const QString &) { form.table->setCurrentField(QStringLiteral("CVE_PROD")); };
    press(Qt::Key_Return);
    EXPECT_EQ(form.table->currentField(), QStringLiteral("CVE_PROD"));
    form.act = [](const QString &) { stayHere(); };
    hold(Qt::Key_Return, 10);
    EXPECT_EQ(form.table->currentField(), QStringLiteral("CVE_PROD"));
    EXPECT_EQ(form.entered.size(), 2) << "held: one stroke";
    // Handlers reset and reopen the model: the editor is gone by then.
    form.act = [&](const QString &) { form.lines.clear(); };
    typeText(QStringLiteral("1"));
    press(Qt::Key_Return);
    EXPECT_EQ(form.lines.rowCount(), 0);
}

TEST(DataGrid, ARefusedTextStaysInTheCell) {
    Grid form;
    form.table->setRowEdit(true);
    form.table->setCurrentField(QStringLiteral("PRECIO"));
    typeText(QStringLiteral("1.2.3"));
    press(Qt::Key_Return);
    ASSERT_TRUE(form.table->editorOpen());
    EXPECT_EQ(child<QLineEdit>(form.table, "cellEditor")->text(), QStringLiteral("1.2.3"));
    EXPECT_TRUE(form.entered.isEmpty());
    press(Qt::Key_Tab);
    EXPECT_TRUE(form.table->editorOpen());
    press(Qt::Key_Escape);
    EXPECT_FALSE(form.table->editorOpen());
    EXPECT_EQ(form.value(0, 3), QVariant(250.0));
    typeText(QStringLiteral("1,250.5"));
    press(Qt::Key_Tab);
    EXPECT_EQ(form.value(0, 3), QVariant(1250.5));
    // Leaving the grid by the mouse puts the open cell into the model as well.
    form.table->setCurrentField(QStringLiteral("CANT"));
    typeText(QStringLiteral("9"));
    QTest::mouseClick(form.always, Qt::LeftButton, {}, QPoint(8, 8));
    settle();
    EXPECT_EQ(form.value(0, 2), QVariant(9));
}

TEST(DataGrid, CellsObeyTheRulesOfFieldsAndTellWhatTheyRefuse) {
    Grid form;
    const auto paste = [](const QString &text) {
        QGuiApplication::clipboard()->setText(text);
        press(Qt::Key_V, Qt::ControlModifier);
    };
    const auto open = [&](const char *field) {
        form.table->setCurrentField(QLatin1String(field));
        press(Qt::Key_F2);
        return static_cast<QLineEdit *>(QApplication::focusWidget());
    };
    const auto complaint = [](const QLineEdit *editor) {
        return editor->property("complaint").toString();
    };
    const QString full = QStringLiteral("RESINA DE FOTOCURADO");
    form.lines.setData(form.lines.index(0, 1), full, Qt::EditRole);
    form.act = [](const QString &) { stayHere(); };
    form.table->setRowEdit(true);

    QLineEdit *text = open("DESCRIPCION");
    press(Qt::Key_Home);
    typeText(QStringLiteral("x"));
    EXPECT_EQ(text->text(), full) << "what stood stays whole";
    EXPECT_EQ(complaint(text), QStringLiteral("Aquí caben 20 caracteres."));
    press(Qt::Key_Return);

    QLineEdit *price = open("PRECIO");
    paste(QStringLiteral("1,234.50 MXN"));
    EXPECT_EQ(complaint(price), QStringLiteral("Aquí no se acepta «MXN»."));
    press(Qt::Key_Return);
    EXPECT_EQ(form.value(0, 3), QVariant(1234.5));
    open("PRECIO");
    press(Qt::Key_Delete);
    press(Qt::Key_Return);
    EXPECT_FALSE(form.value(0, 3).isValid()) << "an emptied amount is none, not zero";

    QLineEdit *quantity = open("CANT");
    paste(QStringLiteral("1a2"));
    EXPECT_FALSE(complaint(quantity).isEmpty()) << "not without a word";
    press(Qt::Key_Return);
    EXPECT_EQ(form.value(0, 2), QVariant(12));
}

TEST(DataGrid, TheKeysComeBackIntoTheGridAfterABoxOverItsEditor) {
    Grid form;
    BoxMessages boxes;
    QObject::connect(form.table, &DataGrid::resolved, &form, [&](const QString &, int) {
        QTimer::singleShot(30, &form, [] {
            ASSERT_TRUE(QTest::qWaitForWindowActive(QApplication::activeModalWidget()));
            press(Qt::Key_Return);
        });
        boxes.information(QStringLiteral("La clave no se encuentra en la lista de precios."));
    });
    form.act = [](const QString &) { stayHere(); };
    form.table->setRowEdit(true);
    form.table->setCurrentField(QStringLiteral("CVE_PROD"));
    typeText(QStringLiteral("99"));
    press(Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    settle();
    EXPECT_EQ(form.focusWidget(), form.table);
    // Alt and the letter of a grey button is no text, neither in a cell nor in a field.
    const QString before = form.value(0, 1).toString();
    form.save->setEnabled(false);
    form.table->setCurrentField(QStringLiteral("DESCRIPCION"));
    press(Qt::Key_R, Qt::AltModifier);
    EXPECT_FALSE(form.table->editorOpen());
    press(Qt::Key_F2);
    press(Qt::Key_R, Qt::AltModifier);
    EXPECT_EQ(static_cast<QLineEdit *>(QApplication::focusWidget())->text(), before);
}

TEST(DataGrid, DraggedColumnsAreRememberedAndCutTextsShowInATip) {
    QHash<QString, QString> kept;
    Application::current()->setColumnMemory(
        {[&](const QString &grid) { return kept.value(grid); },
         [&](const QString &grid, const QString &widths) { kept[grid] = widths; }});
    const auto dragged = [](Grid &form) { return form.table->columnWidth(3); };
    int width = 0;
    {
        Grid form;
        auto *header = form.table->horizontalHeader();
        const QPoint edge(header->sectionViewportPosition(3) + header->sectionSize(3) - 1, 8);
        width = dragged(form);
        QTest::mousePress(header->viewport(), Qt::LeftButton, {}, edge);
        QTest::mouseMove(header->viewport(), edge - QPoint(20, 0));
        QTest::mouseMove(header->viewport(), edge - QPoint(50, 0));
        QTest::mouseRelease(header->viewport(), Qt::LeftButton, {}, edge - QPoint(50, 0));
        EXPECT_LT(dragged(form), width - 40);
        width = dragged(form);
        const QRect cell = form.table->visualRect(form.table->model()->index(1, 3));
        QHelpEvent help(QEvent::ToolTip, cell.center(), {});
        QApplication::sendEvent(form.table->viewport(), &help);
        EXPECT_EQ(QToolTip::text(), QStringLiteral("$3,200.00"));
        QToolTip::hideText();
    }
    EXPECT_TRUE(kept.value(QStringLiteral("FRM401.DBGrid1")).contains(QStringLiteral("PRECIO:")));
    Grid again;
    EXPECT_EQ(dragged(again), width);
    Application::current()->setColumnMemory({});
}

TEST(DataGrid, ALookUpColumnTakesTypedKeysAndPickedRows) {
    Grid form;
    QStringList told;
    QObject::connect(form.table, &DataGrid::closedUp, &form, [&](const QString &field, int row) {
        told += QStringLiteral("closed %1 %2").arg(field).arg(row);
    });
    QObject::connect(form.table, &DataGrid::resolved, &form, [&](const QString &field, int row) {
        told += QStringLiteral("resolved %1 %2").arg(field).arg(row);
    });
    form.table->setRowEdit(true);
    form.table->setCurrentField(QStringLiteral("CVE_PROD"));
    form.act = [](const QString &) { stayHere(); };
    press(Qt::Key_F4);
    ASSERT_TRUE(form.table->listOpen());
    picture(QApplication::activePopupWidget(), QStringLiteral("forms_grid_list"));
    hold(Qt::Key_Down, 2);
    EXPECT_TRUE(form.table->listOpen()) << "arrows belong to the open list";
    press(Qt::Key_Return);
    EXPECT_EQ(form.value(0, 0), QVariant(12));
    EXPECT_TRUE(form.entered.isEmpty()) << "picking is not yet Enter in the column";
    EXPECT_TRUE(form.table->hasFocus());
    typeText(QStringLiteral("2"));
    press(Qt::Key_Return);
    EXPECT_EQ(form.value(0, 0), QVariant(2)) << "the key, not a prefix of another";
    typeText(QStringLiteral("99"));
    press(Qt::Key_Return);
    EXPECT_FALSE(form.value(0, 0).isValid()) << "an unknown key clears the cell";
    EXPECT_EQ(told.join(", ").toStdString(),
              "closed CVE_PROD 2, resolved CVE_PROD 1, resolved CVE_PROD -1");
}

TEST(DataGrid, ArrowsCancelAnOpenRowAndMoveOverOthers) {
    Grid form;
    int cancelled = 0;
    form.table->setArrowCancelHandler([&] { ++cancelled; });
    press(Qt::Key_Down);
    EXPECT_EQ(form.table->currentRow(), 1);
    EXPECT_EQ(cancelled, 0);
    form.table->setRowEdit(true);
    form.table->setCurrentField(QStringLiteral("CANT"));
    typeText(QStringLiteral("5"));
    press(Qt::Key_Up);
    EXPECT_EQ(cancelled, 1);
    EXPECT_EQ(form.table->currentRow(), 1);
    EXPECT_EQ(form.value(1, 2), QVariant(1)) << "what was being typed is dropped with the row";
    const QRect other = form.table->visualRect(form.table->model()->index(0, 2));
    QTest::mouseClick(form.table->viewport(), Qt::LeftButton, {}, other.center());
    EXPECT_EQ(form.table->currentRow(), 1) << "nor does the mouse leave it";
}

TEST(DataGrid, SumsFollowTheModelAndStandUnderTheirColumn) {
    Grid form;
    EXPECT_EQ(form.table->sum(QStringLiteral("total")), 3700.0);
    form.lines.setData(form.lines.index(0, 4), 1500.5, Qt::EditRole);
    EXPECT_EQ(form.table->sum(QStringLiteral("TOTAL")), 4700.5);
    form.lines.setData(form.lines.index(0, 4), QVariant(), Qt::EditRole);
    EXPECT_EQ(form.table->sum(QStringLiteral("TOTAL")), 3200.0) << "NULL is nothing";
    form.lines.removeRow(0);
    form.lines.removeRow(0);
    EXPECT_EQ(form.table->sum(QStringLiteral("TOTAL")), 0.0);

    for (int row = 0; row < 60; ++row) {
        form.lines.appendRow(new QStandardItem);
    }
    settle();
    form.table->setCurrentRow(59);
    settle();
    const QRect last = form.table->visualRect(form.table->currentIndex());
    EXPECT_LE(last.bottom(), form.table->viewport()->height()) << "not behind the footer";
    auto *footer = child<QWidget>(form.table, "gridFooter");
    EXPECT_GE(footer->y(), form.table->viewport()->geometry().bottom());
}

TEST(DataGrid, CopiesWhatItShowsAndFiltersAndSorts) {
    Grid form;
    form.table->setRowSelection(true);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              QStringLiteral("1\tAMALGAMA\t2\t$250.00\t$500.00"));
    auto *header = form.table->horizontalHeader();
    const QPoint title(header->sectionViewportPosition(4) + 5, 8);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, title);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, title);
    press(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(form.table->currentRow(), 1) << "the largest first; rows are the model's";
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, title);
    press(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(form.table->currentRow(), 0) << "and back to the order of the query";

    form.table->setFiltering(true);
    form.table->setCurrentField(QStringLiteral("DESCRIPCION"));
    press(Qt::Key_F, Qt::ControlModifier);
    typeText(QStringLiteral("coró"));
    picture(&form, QStringLiteral("forms_grid_filter"));
    press(Qt::Key_Return);
    EXPECT_EQ(form.table->model()->rowCount(), 1);
    form.table->setCurrentRow(1);
    EXPECT_EQ(form.table->currentValue(QStringLiteral("SECRETO")), QVariant(8));
    form.table->setFiltering(false);
    EXPECT_EQ(form.table->model()->rowCount(), 2);
}

TEST(DataGrid, ADoubleClickRunsItsHandlerOnTheRow) {
    Grid form;
    int row = -1;
    form.table->setDoubleClickHandler([&] { row = form.table->currentRow(); });
    const QRect cell = form.table->visualRect(form.table->model()->index(1, 1));
    QTest::mouseDClick(form.table->viewport(), Qt::LeftButton, {}, cell.center());
    settle();
    EXPECT_EQ(row, 1);
}

}  // namespace kaldo::test
