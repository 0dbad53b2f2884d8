#include <QCalendarWidget>
#include <QClipboard>
#include <QGuiApplication>
#include <QListView>
#include <QRadioButton>
#include <QTableView>
#include <QTest>

#include "forms_sample.h"
#include "tests/support/keys.h"

namespace kaldo::test {

namespace {

void paste(const QString &text) {
    QGuiApplication::clipboard()->setText(text);
    press(Qt::Key_V, Qt::ControlModifier);
}

struct Shown : SampleForm {
    Shown() { showActive(this); }
    template <typename W>
    W *at(W *field) {
        field->setFocus(Qt::TabFocusReason);
        settle();
        return field;
    }
};

}  // namespace

TEST(TextField, CutsAndTurnsToCapitalsWhatIsTypedOrPasted) {
    Shown form;
    TextField *field = form.at(form.dossier);
    typeText(QStringLiteral("ñu-1é"));
    EXPECT_EQ(field->text(), QStringLiteral("ÑU-1É"));
    press(Qt::Key_Home);
    paste(QStringLiteral("abcdefghij"));
    EXPECT_EQ(field->text(), QStringLiteral("ABCÑU-1É"))
        << "the pasted text is cut, not what stood";
    typeText(QStringLiteral("z"));
    EXPECT_EQ(field->text(), QStringLiteral("ABCÑU-1É"));
    field->clear();
    paste(QStringLiteral("a\nb\tc%'\"😀😀😀"));
    EXPECT_EQ(field->text(), QStringLiteral("A B C%'\"")) << "eight characters, breaks as blanks";
    field->clear();
    paste(QStringLiteral("😀😀😀😀😀😀😀😀😀"));
    EXPECT_EQ(field->text(), QStringLiteral("😀").repeated(8)) << "no half of a pair";

    field->setDigitsOnly();
    field->clear();
    typeText(QStringLiteral("12a-x 3"));
    EXPECT_EQ(field->text(), QStringLiteral("12- 3"));
}

TEST(NumberField, KeepsANumberThatIsOutOfRangeAndTellsIt) {
    Shown form;
    NumberField *field = form.at(form.note);
    field->setRange(1, 2147483647);
    typeText(QStringLiteral("2x147483647"));
    EXPECT_EQ(field->value(), 2147483647);
    typeText(QStringLiteral("0"));
    press(Qt::Key_Return);
    EXPECT_TRUE(field->hasFocus());
    EXPECT_EQ(field->text(), QStringLiteral("21474836470"));
    EXPECT_EQ(field->property("complaint").toString(),
              QStringLiteral("El número debe estar entre 1 y 2147483647."));
    press(Qt::Key_Tab);
    EXPECT_TRUE(field->hasFocus()) << "nor by Tab";
    form.close->setFocus();
    settle();
    EXPECT_TRUE(form.close->hasFocus()) << "the way out is open";
    form.at(form.note)->clear();
    typeText(QStringLiteral("-5"));
    press(Qt::Key_Return);
    EXPECT_EQ(field->text(), QStringLiteral("-5")) << "refused, and not turned into 5";
    EXPECT_TRUE(field->hasFocus());
}

TEST(MoneyField, ShowsTheMaskAtRestAndTheNumberWhileTyping) {
    Shown form;
    QList<double> edited;
    QObject::connect(form.pesos, &MoneyField::valueEdited, &form,
                     [&](double value) { edited += value; });
    form.pesos->setValue(181.234);
    EXPECT_EQ(form.pesos->text(), QStringLiteral("$181.23"));
    form.at(form.pesos);
    EXPECT_EQ(form.pesos->text(), QStringLiteral("181.234"));
    press(Qt::Key_Tab);
    EXPECT_EQ(form.pesos->value(), 181.234) << "passing by does not round";
    form.at(form.pesos);
    typeText(QStringLiteral("1a,234.5"));
    EXPECT_EQ(form.pesos->value(), 1234.5);
    press(Qt::Key_Tab);
    EXPECT_EQ(form.pesos->text(), QStringLiteral("$1,234.50"));
    EXPECT_EQ(edited.last(), 1234.5);

    for (const char *bad : {"1.2.3", "-5", "1000000000", "1,23"}) {
        form.at(form.pesos)->selectAll();
        typeText(QString::fromLatin1(bad));
        press(Qt::Key_Return);
        EXPECT_TRUE(form.pesos->hasFocus()) << bad;
        EXPECT_EQ(form.pesos->text(), QString::fromLatin1(bad));
        EXPECT_FALSE(form.pesos->property("complaint").toString().isEmpty());
    }
    form.pesos->setBlank();
    EXPECT_TRUE(form.pesos->isBlank());
    typeText(QStringLiteral("999999999.99"));
    press(Qt::Key_Return);
    EXPECT_FALSE(form.pesos->hasFocus());
    EXPECT_EQ(form.pesos->value(), 999999999.99);
    EXPECT_EQ(form.pesos->text(), QStringLiteral("$999,999,999.99"));
    form.at(form.pesos)->setBlank();
    press(Qt::Key_Tab);
    EXPECT_EQ(form.pesos->text(), QStringLiteral("$0.00"));
}

TEST(DateField, ReadsDatesAsTheyAreTypedAndRefusesOthers) {
    EXPECT_EQ(DateField::parse(QStringLiteral("1/2/24")), QDate(2024, 2, 1));
    EXPECT_EQ(DateField::parse(QStringLiteral("010250")), QDate(1950, 2, 1));
    EXPECT_EQ(DateField::parse(QStringLiteral("29022024")), QDate(2024, 2, 29));
    EXPECT_FALSE(DateField::parse(QStringLiteral("29/02/2023")).isValid());
    EXPECT_FALSE(DateField::parse(QStringLiteral("1/2/024")).isValid());

    Shown form;
    QString refused;
    form.birth->setInvalidHandler([&](const QString &text) { refused = text; });
    form.at(form.birth);
    typeText(QStringLiteral("31-02-2024"));
    press(Qt::Key_Return);
    EXPECT_EQ(refused, QStringLiteral("31/02/2024"));
    EXPECT_TRUE(form.birth->hasFocus());
    EXPECT_EQ(form.birth->text(), QStringLiteral("31/02/2024")) << "what was typed is still there";
    typeText(QStringLiteral("28022024"));
    press(Qt::Key_Return);
    EXPECT_EQ(form.birth->text(), QStringLiteral("28/02/2024"));
    EXPECT_FALSE(form.birth->hasFocus());
}

TEST(DateField, TheCalendarPicksByKeys) {
    Shown form;
    int closed = 0;
    QObject::connect(form.birth, &DateField::calendarClosed, &form, [&] { ++closed; });
    form.at(form.birth)->setDate(QDate(2024, 2, 28));
    press(Qt::Key_F4);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    picture(QApplication::activePopupWidget(), QStringLiteral("forms_calendar"));
    press(Qt::Key_Escape);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(closed, 0);
    press(Qt::Key_Down, Qt::AltModifier);
    press(Qt::Key_Right);
    press(Qt::Key_Return);
    EXPECT_EQ(form.birth->date(), QDate(2024, 2, 29));
    EXPECT_EQ(closed, 1);
    EXPECT_TRUE(form.birth->hasFocus());
}

TEST(MaskedField, DigitsGoIntoTheHoles) {
    Shown form;
    form.at(form.phone);
    EXPECT_EQ(form.phone->text(), QStringLiteral("(   )   -    "));
    typeText(QStringLiteral("66412x34567"));
    EXPECT_EQ(form.phone->text(), QStringLiteral("(664)123-4567"));
    typeText(QStringLiteral("8"));
    EXPECT_EQ(form.phone->digits(), QStringLiteral("6641234567"));
    for (int i = 0; i < 5; ++i) {
        press(Qt::Key_Backspace);
    }
    EXPECT_EQ(form.phone->text(), QStringLiteral("(664)12 -    "));
    form.phone->selectAll();
    press(Qt::Key_Delete);
    press(Qt::Key_Tab);
    EXPECT_EQ(form.phone->text(), QString()) << "an empty mask is no value";
    form.phone->setMaskedText(QStringLiteral("664 123 EXT 4"));
    EXPECT_EQ(form.phone->text(), QStringLiteral("664 123 EXT 4"));
    form.at(form.phone);
    press(Qt::Key_Tab);
    EXPECT_EQ(form.phone->maskedText(), QStringLiteral("664 123 EXT 4"))
        << "an old record's text is not lost by passing through";
}

TEST(Choice, ClosesUpOnWhatWasPickedNotOnEveryArrow) {
    Shown form;
    QStringList closedUp;
    QObject::connect(form.service, &Choice::closedUp, &form,
                     [&] { closedUp += form.service->currentText().left(2); });
    form.at(form.service);
    press(Qt::Key_Return);
    EXPECT_TRUE(form.service->listOpen()) << "Enter on an empty list opens it";
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(closedUp.join(' ').toStdString(), "AE");
    EXPECT_TRUE(form.service->hasFocus());
    press(Qt::Key_Down);
    EXPECT_EQ(form.service->currentIndex(), 2);
    EXPECT_EQ(closedUp.size(), 1) << "an arrow alone picks nothing";
    press(Qt::Key_Return);
    EXPECT_EQ(closedUp.join(' ').toStdString(), "AE ES");
    EXPECT_FALSE(form.service->hasFocus());
    form.at(form.service);
    press(Qt::Key_Return);
    EXPECT_EQ(closedUp.size(), 2) << "unchanged: Enter only moves on";
    form.at(form.service);
    typeText(QStringLiteral("ex"));
    press(Qt::Key_Return);
    EXPECT_EQ(closedUp.last(), QStringLiteral("EX"));
    form.at(form.service);
    press(Qt::Key_F4);
    press(Qt::Key_Home);
    press(Qt::Key_Escape);
    EXPECT_EQ(form.service->currentIndex(), 3) << "Escape keeps what stood";
    EXPECT_EQ(closedUp.size(), 3);
}

TEST(Choice, IsSoughtByTheWordsBehindItsCodeToo) {
    Choice states;
    states.setItems(
        {"BCN-Baja California", "NLE-Nuevo León", "NAY-Nayarit", "SLP-San Luis Potosí"});
    for (const char *typed : {"nuevo", "potosi"}) {
        states.setIndex(-1);
        QTest::keyClicks(&states, QString::fromLatin1(typed));
        EXPECT_TRUE(foldedText(states.currentText()).contains(QString(typed).toUpper()));
    }
    states.setIndex(-1);
    QTest::keyClicks(&states, "na");
    EXPECT_EQ(states.currentText(), "NAY-Nayarit") << "the beginning comes first";
}

TEST(RadioGroup, IsOneFieldWithNoneOrOneChosen) {
    Shown form;
    QList<int> clicked;
    QObject::connect(form.sex, &RadioGroup::clicked, &form, [&](int index) { clicked += index; });
    EXPECT_EQ(form.sex->index(), -1);
    moveFocus(form.sex);
    settle();
    press(Qt::Key_Right);
    EXPECT_EQ(form.sex->index(), 1);
    press(Qt::Key_Left);
    EXPECT_EQ(clicked, (QList<int>{1, 0}));
    press(Qt::Key_Return);
    EXPECT_TRUE(form.table->hasFocus()) << "past the other buttons";
    form.sex->setIndex(-1);
    EXPECT_EQ(form.sex->index(), -1);
    EXPECT_EQ(clicked.size(), 2) << "the program's own choice fires nothing";
}

TEST(Memo, CutsBreaksAndMovesOn) {
    Shown form;
    form.at(form.remarks);
    typeText(QStringLiteral("uno"));
    press(Qt::Key_Return, Qt::ControlModifier);
    typeText(QStringLiteral("dos"));
    EXPECT_EQ(form.remarks->text(), QStringLiteral("UNO\nDOS"));
    paste(QString(100, QLatin1Char('x')));
    EXPECT_EQ(form.remarks->text().size(), 30);
    press(Qt::Key_Home, Qt::ControlModifier);
    typeText(QStringLiteral("z"));
    EXPECT_TRUE(form.remarks->text().startsWith(QStringLiteral("UNO"))) << "full";
    press(Qt::Key_Return);
    EXPECT_TRUE(form.always->hasFocus());
}

TEST(LookupField, PicksByTypingByListAndByFilter) {
    Shown form;
    int closedUp = 0;
    int cancelled = 0;
    QObject::connect(form.area, &LookupField::closedUp, &form, [&] { ++closedUp; });
    QObject::connect(form.area, &LookupField::cancelled, &form, [&] { ++cancelled; });
    form.at(form.area);
    typeText(QStringLiteral("blan"));
    EXPECT_EQ(form.area->text(), QStringLiteral("blanQUEAMIENTO"));
    press(Qt::Key_Return);
    EXPECT_EQ(form.area->value(), QVariant(2));
    EXPECT_EQ(form.area->text(), QStringLiteral("BLANQUEAMIENTO"));
    EXPECT_EQ(closedUp, 1);

    form.at(form.area);
    press(Qt::Key_F4);
    ASSERT_TRUE(form.area->listOpen());
    picture(form.area->list(), QStringLiteral("forms_list"));
    EXPECT_EQ(form.area->list()->table()->currentIndex().row(), 1) << "where the value stands";
    typeText(QStringLiteral("nin"));
    press(Qt::Key_Return);
    EXPECT_EQ(form.area->value(), QVariant(20)) << "accents aside";
    EXPECT_EQ(closedUp, 2);
    EXPECT_TRUE(form.area->hasFocus());

    press(Qt::Key_Down, Qt::AltModifier);
    press(Qt::Key_Escape);
    EXPECT_EQ(cancelled, 1);
    EXPECT_EQ(form.area->value(), QVariant(20));

    form.area->setFiltering(true);
    press(Qt::Key_F4);
    typeText(QStringLiteral("3,200"));
    EXPECT_EQ(form.area->list()->table()->model()->rowCount(), 1);
    press(Qt::Key_Return);
    EXPECT_EQ(form.area->row(), 2) << "the row of the model, not of the filtered list";
    press(Qt::Key_F4);
    typeText(QStringLiteral("sella nin"));
    EXPECT_EQ(form.area->list()->table()->model()->rowCount(), 1) << "words, in any order";
    press(Qt::Key_Escape);

    form.area->selectAll();
    typeText(QStringLiteral("zzz"));
    press(Qt::Key_Tab);
    EXPECT_TRUE(form.area->hasFocus());
    EXPECT_EQ(form.area->text(), QStringLiteral("zzz"));
    EXPECT_FALSE(form.area->property("complaint").toString().isEmpty());
    form.area->clearField();
    press(Qt::Key_Return);
    EXPECT_TRUE(form.area->listOpen()) << "Enter on an empty field opens the list";
    form.area->closeList();
}

namespace {

/// Hands out its rows in pages, as a query does.
class Paged : public QAbstractTableModel {
public:
    int rowCount(const QModelIndex &parent = {}) const override {
        return parent.isValid() ? 0 : fetched_;
    }
    int columnCount(const QModelIndex & = {}) const override { return 1; }
    QVariant data(const QModelIndex &index, int role) const override {
        return role == Qt::EditRole || role == Qt::DisplayRole
                   ? QVariant(QStringLiteral("E%1").arg(index.row(), 6, 10, QLatin1Char('0')))
                   : QVariant();
    }
    QVariant headerData(int, Qt::Orientation, int role) const override {
        return role == Qt::DisplayRole ? QVariant(QStringLiteral("EXPEDIENTE")) : QVariant();
    }
    bool canFetchMore(const QModelIndex &) const override { return fetched_ < 100000; }
    void fetchMore(const QModelIndex &) override {
        beginInsertRows({}, fetched_, fetched_ + 199);
        fetched_ += 200;
        endInsertRows();
    }

private:
    int fetched_ = 0;
};

}  // namespace

TEST(LookupField, AHundredThousandRowsOpenAtOnceAndAreAllFound) {
    Paged rows;
    QWidget form;
    LookupField *field = nullptr;
    using namespace kaldo::form;
    build(&form,
          column({lookup(&field, "Lookup", "Expediente")
                      .source({&rows,
                               QStringLiteral("EXPEDIENTE"),
                               QStringLiteral("EXPEDIENTE"),
                               {{QStringLiteral("EXPEDIENTE"), QStringLiteral("Exp."), 10}}})}));
    showActive(&form);
    field->setFocus();
    press(Qt::Key_F4);
    EXPECT_LE(rows.rowCount(), 1000) << "opening fetches what is seen";
    typeText(QStringLiteral("E0987"));
    press(Qt::Key_Return);
    EXPECT_EQ(field->row(), 98700);
}

}  // namespace kaldo::test
