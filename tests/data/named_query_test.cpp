#include "data/named_query.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include "data/database_error.h"
#include "data/firebird_connection.h"
#include "tests/support/test_installation.h"

namespace kaldo::test {
namespace {

class NamedQueryTest : public ::testing::Test {
protected:
    NamedQueryTest() {
        connection.setDatabase(files.database("BD_LOCAL.GDB"));
        run(connection,
            "create table lineas (tipo integer not null, clave integer, texto "
            "varchar(10) default 'nada', cant smallint)");
        run(connection, "create unique index lineas_clave on lineas (clave)");
        for (int at = 1; at <= 3; ++at) {
            run(connection, "insert into lineas values (:t, :c, :x, 1)",
                {{"t", 96}, {"c", at}, {"x", QString("linea %1").arg(at)}});
        }
        query.bindTo(connection);
    }

    QList<QVariantList> stored() {
        return rowsOf(connection,
                      "select clave, texto, cant from lineas order by clave nulls last");
    }

    TestInstallation files;
    FirebirdConnection connection{QStringLiteral("FBLocal"), {}};
    NamedQuery query{
        {"Lineas", "select * from lineas where tipo=:tipo order by clave", "lineas", "tipo,clave"}};
};

TEST_F(NamedQueryTest, AClosedOrEmptyQueryReadsAsNull) {
    EXPECT_TRUE(query.isNull("CLAVE"));
    query.open({{"tipo", 5}});
    EXPECT_TRUE(query.isEmpty());
    EXPECT_TRUE(query.isNull("clave"));
    EXPECT_EQ(query.text("texto"), "");
    EXPECT_FALSE(query.locate({{"clave", 1}}));
}

TEST_F(NamedQueryTest, TheCursorStaysWhereASearchFails) {
    query.open({{"tipo", 96}});
    EXPECT_EQ(query.integer("CLAVE"), 1);
    ASSERT_TRUE(query.locate({{"texto", "linea 3"}}));
    EXPECT_EQ(query.integer("clave"), 3);
    EXPECT_FALSE(query.locate({{"clave", 9}}));
    EXPECT_EQ(query.integer("clave"), 3);
    EXPECT_THROW(query.valueAt(0, "no_existe"), std::logic_error);
    query.reopen();
    EXPECT_EQ(query.integer("clave"), 1) << "the parameters of the last opening hold";
}

TEST_F(NamedQueryTest, AnInsertWritesOnlyWhatWasAssigned) {
    query.open({{"tipo", 96}});
    query.append();
    query.set("tipo", 96);
    query.set("clave", 7);
    EXPECT_EQ(stored().size(), 3) << "nothing is written before the apply";
    query.post();
    query.apply();
    EXPECT_EQ(stored().last(), QVariantList({7, "nada", QVariant()})) << "the default stands";
}

TEST_F(NamedQueryTest, ARowInsertedFirstStandsAboveTheOthersAndLeavesThemAsTheyWere) {
    query.open({{"tipo", 96}});
    query.moveTo(1);
    query.set("cant", 9);
    QSignalSpy moved(&query, &NamedQuery::cursorMoved);
    query.insertFirst();
    EXPECT_EQ(stored()[1], QVariantList({2, "linea 2", 9})) << "what was open is written";
    ASSERT_EQ(moved.size(), 1);
    EXPECT_EQ(moved[0][0].toInt(), 0);
    EXPECT_TRUE(query.isNull("clave"));
    EXPECT_EQ(query.valueAt(1, "clave").toInt(), 1);
    query.cancelUpdates();
    EXPECT_EQ(query.count(), 3);
    EXPECT_EQ(query.integer("clave"), 1);

    query.insertFirst();
    query.set("tipo", 96);
    query.set("clave", 0);
    query.apply();
    query.moveTo(3);
    query.set("texto", "otra");
    query.apply();
    EXPECT_EQ(stored().first(), QVariantList({0, "nada", QVariant()}));
    EXPECT_EQ(stored().last(), QVariantList({3, "otra", 1}));
}

TEST_F(NamedQueryTest, ARowThatTheDatabaseRefusesStaysPending) {
    query.open({{"tipo", 96}});
    query.append();
    query.set("tipo", 96);
    query.set("clave", 2);
    query.post();
    EXPECT_THROW(query.apply(), DatabaseError);
    EXPECT_TRUE(query.isPending());
    EXPECT_EQ(query.integer("clave"), 2) << "what was typed is still there";
    query.set("clave", 8);
    query.post();
    query.apply();
    EXPECT_FALSE(query.isPending());
    EXPECT_EQ(stored().size(), 4);

    query.append();
    query.set("tipo", 96);
    query.post();
    query.cancelUpdates();
    EXPECT_EQ(query.count(), 4);
    EXPECT_EQ(stored().size(), 4);
}

TEST_F(NamedQueryTest, AnUpdateGoesByTheOldKeyAndTouchesOnlyWhatChanged) {
    run(connection, "insert into lineas (tipo) values (96)");
    query.open({{"tipo", 96}});
    query.locate({{"clave", 2}});
    query.set("clave", 20);
    query.post();
    run(connection, "update lineas set cant=5 where clave=2");
    query.apply();
    EXPECT_EQ(stored()[2], QVariantList({20, "linea 2", 5}));

    query.locate({{"clave", QVariant()}});
    ASSERT_TRUE(query.isNull("clave"));
    query.set("texto", "sin clave");
    query.apply();
    EXPECT_EQ(stored().last()[1].toString(), "sin clave") << "a NULL key finds its row";
}

TEST_F(NamedQueryTest, CancelBringsTheRowBack) {
    query.open({{"tipo", 96}});
    query.edit();
    query.set("texto", "otro");
    query.cancel();
    EXPECT_EQ(query.text("texto"), "linea 1");
    EXPECT_FALSE(query.isPending());

    query.remove();
    EXPECT_EQ(query.count(), 2);
    query.cancelUpdates();
    EXPECT_EQ(query.count(), 3);
    EXPECT_EQ(query.integer("clave"), 1);
    query.remove();
    query.apply();
    EXPECT_EQ(stored().size(), 2);
}

TEST_F(NamedQueryTest, ADeletionTakesItsOwnRowAndNoOther) {
    query.open({{"tipo", 96}});
    query.append();
    query.remove();
    EXPECT_EQ(query.count(), 3);
    query.append();
    query.set("tipo", 96);
    query.set("clave", 2);
    EXPECT_THROW(query.apply(), DatabaseError);
    query.remove();
    EXPECT_FALSE(query.isPending()) << "what the database refused can be dropped";
    EXPECT_EQ(stored().size(), 3);

    query.moveTo(1);
    query.remove();
    query.set("texto", "tras ella");
    query.apply();
    EXPECT_EQ(stored(), QList<QVariantList>({{1, "linea 1", 1}, {3, "tras ella", 1}}));
}

TEST_F(NamedQueryTest, ARowThatAnotherStationRemovedIsTold) {
    query.open({{"tipo", 96}});
    query.set("texto", "tarde");
    run(connection, "delete from lineas where clave=1");
    EXPECT_THROW(query.apply(), DatabaseError);
    EXPECT_TRUE(query.isPending());
}

TEST_F(NamedQueryTest, LongListsComeInPages) {
    run(connection,
        "insert into lineas (tipo, clave) select 1, row_number() over () + 9 from rdb$fields a, "
        "rdb$fields b rows 4990");
    query.open({{"tipo", 1}});
    EXPECT_LT(query.rowCount(), 200);
    EXPECT_TRUE(query.canFetchMore({}));
    EXPECT_TRUE(query.locate({{"clave", 4000}}));
    EXPECT_TRUE(query.canFetchMore({}));
    EXPECT_EQ(query.count(), 4990);
    EXPECT_FALSE(query.canFetchMore({}));
}

TEST_F(NamedQueryTest, CalculatedAndLookedUpFieldsFollowTheirSources) {
    NamedQuery names{{"Nombres", "select clave, texto from lineas order by clave"}};
    names.bindTo(connection);
    int calculations = 0;
    query.addCalculated("Doble", [&calculations](const NamedQuery::RowReader &row) {
        ++calculations;
        return row("clave").toInt() * 2;
    });
    query.addLookup("LKClave", "clave", names, "clave", "texto");
    query.open({{"tipo", 96}});
    EXPECT_EQ(query.integer("DOBLE"), 2);
    EXPECT_TRUE(query.isNull("LKClave")) << "the source is closed";
    names.open();
    EXPECT_EQ(query.text("LKClave"), "linea 1");
    query.valueAt(2, "doble");
    query.valueAt(2, "doble");
    EXPECT_EQ(calculations, 3) << "once per row, never while reading";
    query.set("texto", "x");
    query.apply();
    EXPECT_EQ(stored()[0][1].toString(), "x") << "such fields are not written";
}

TEST_F(NamedQueryTest, ALookupReadsNoFurtherThanItsKeyAndFollowsItsSource) {
    run(connection,
        "insert into lineas select 7, 1000 + row_number() over (), 'fila', 1 from rdb$fields rows "
        "100");
    NamedQuery names{{"Nombres", "select * from lineas order by clave", "lineas", "tipo,clave"}};
    names.bindTo(connection);
    query.addLookup("LKClave", "clave", names, "clave", "texto");
    query.open({{"tipo", 96}});
    names.open();
    const int page = names.rowCount();
    ASSERT_LT(page, 103);
    EXPECT_EQ(query.valueAt(1, "LKClave").toString(), "linea 2");
    EXPECT_EQ(names.rowCount(), page);
    query.set("clave", 1100);
    EXPECT_EQ(query.text("LKClave"), "fila");
    query.set("clave", 5000);
    EXPECT_TRUE(query.isNull("LKClave"));
    EXPECT_EQ(names.rowCount(), 103);
    names.append();
    names.set("clave", 5000);
    names.set("texto", "ultima");
    EXPECT_EQ(query.text("LKClave"), "ultima");
    names.cancelUpdates();
    EXPECT_TRUE(query.isNull("LKClave"));
    names.insertFirst();
    names.set("clave", 5000);
    names.set("texto", "primera");
    EXPECT_EQ(query.text("LKClave"), "primera");
}

TEST_F(NamedQueryTest, RepeatedColumnNamesAreNumbered) {
    NamedQuery sums{{"Sumas",
                     "select max(a.clave), min(a.clave), max(a.cant), a.texto, b.texto from lineas "
                     "a join lineas b on a.clave=b.clave group by a.texto, b.texto"}};
    sums.bindTo(connection);
    sums.open();
    EXPECT_EQ(sums.integer("MAX"), 1);
    EXPECT_TRUE(sums.hasField("MAX_1"));
    EXPECT_TRUE(sums.hasField("TEXTO_1"));
}

TEST_F(NamedQueryTest, AsAModelItTellsItsViews) {
    QSignalSpy resets(&query, &QAbstractItemModel::modelReset);
    QSignalSpy inserted(&query, &QAbstractItemModel::rowsInserted);
    QSignalSpy changed(&query, &QAbstractItemModel::dataChanged);
    query.open({{"tipo", 96}});
    EXPECT_EQ(query.rowCount(), 3);
    EXPECT_EQ(query.headerData(1, Qt::Horizontal).toString(), "CLAVE");
    EXPECT_TRUE(query.setData(query.index(1, 2), "nuevo"));
    EXPECT_EQ(query.position(), 1);
    EXPECT_EQ(query.state(), NamedQuery::State::Editing);
    query.moveTo(0);
    EXPECT_EQ(query.state(), NamedQuery::State::Browsing) << "leaving the row posts it";
    query.apply();
    EXPECT_EQ(stored()[1][1].toString(), "nuevo");
    EXPECT_GE(resets.size(), 1);
    EXPECT_EQ(inserted.size(), 1);
    EXPECT_EQ(changed.size(), 1);
}

}  // namespace
}  // namespace kaldo::test
