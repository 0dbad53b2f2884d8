#include "data/odbc_connection.h"

#include <gtest/gtest.h>

#include <QDate>
#include <QTemporaryDir>

#include "data/database_error.h"
#include "data/named_query.h"
#include "data/runtime_texts.h"
#include "tests/support/test_installation.h"

namespace kaldo::test {
namespace {

const QString kOdd = QStringLiteral("O'HARA \"EL 100%\" ÑÚ¿:Exp? -- /* \\");

class OdbcTest : public ::testing::Test {
protected:
    OdbcTest() : connection("InfxOdonto") {
        connection.setDatabase("Driver=SQLite3;Database=" + folder.filePath("odbc.sqlite"));
        query.bindTo(connection);
    }

    void create(const QStringList &texts) {
        for (const QString &text : texts) {
            run(connection, text);
        }
    }
    /// The rows of a run-time text, the named field of each.
    QString open(const RuntimeText &text, const QString &field) {
        query.setText(text);
        query.open();
        QStringList values;
        for (int row = 0; row < query.count(); ++row) {
            values += query.valueAt(row, field).toString();
        }
        return values.join('|');
    }

    QTemporaryDir folder;
    OdbcConnection connection;
    NamedQuery query{{"Qry", ""}};
};

TEST_F(OdbcTest, ValuesComeBackAsTheyWereWrittenIntoTheText) {
    EXPECT_EQ(connection.dialect(), Dialect::Odbc);
    create(
        {"create table prueba (llave integer, texto varchar(80), numero double precision, "
         "dia varchar(10))"});
    const QList<QVariant> texts{kOdd, QString(""), QString("\""), QString("\"\""), QVariant()};
    for (int at = 0; at < texts.size(); ++at) {
        const auto insert = RuntimeText()
                                .line("insert into prueba (llave, texto, numero, dia)")
                                .line("values (:llave, :texto, :numero, :dia)")
                                .bind("llave", at)
                                .bind("texto", texts.at(at))
                                .bind("numero", 18.1234)
                                .bind("dia", QDate(2024, 3, 5));
        EXPECT_EQ(execute(connection, "insert", insert), 1);
        const auto rows =
            rowsOf(connection, "select texto, numero, dia from prueba where llave=:llave",
                   {{"llave", at}});
        ASSERT_EQ(rows.size(), 1);
        EXPECT_EQ(rows[0][0].isValid(), texts.at(at).isValid()) << at;
        EXPECT_EQ(rows[0][0].toString(), texts.at(at).toString());
        EXPECT_EQ(rows[0][1].toDouble(), 18.1234);
        EXPECT_EQ(rows[0][2].toString(), "05/03/2024");
    }
}

TEST_F(OdbcTest, DossiersAndAdmissionsAreSoughtByWhatWasTyped) {
    create(
        {"create table expedientes (expediente varchar(10), folio integer, prestacion integer, "
         "centro varchar(4), num_empl integer, empleado varchar(80), dependencia varchar(80), "
         "status varchar(2), campus varchar(3))",
         "create table datosgenerales (folio integer, paterno varchar(42), materno varchar(42), "
         "paciente varchar(72), edad integer, tipopaciente varchar(1), fecha_nac date, "
         "nombre varchar(100))",
         "create table admision (folio integer, fecha date, num_caja integer, nota_vta integer, "
         "status varchar(2), canalizadoa integer, nombre varchar(100))",
         "create table ctroatencion (centro varchar(4), descr varchar(80))",
         "insert into ctroatencion values ('01', 'CLINICA')"});
    int folio = 0;
    for (const QString &expediente : {QString("00012/24"), QString("00013/24"), kOdd.left(10)}) {
        ++folio;
        run(connection,
            "insert into expedientes (expediente, folio, centro, campus) values (:e, :f, '01', "
            ":c)",
            {{"e", expediente}, {"f", folio}, {"c", folio == 2 ? "COS" : "VAN"}});
        run(connection,
            "insert into datosgenerales (folio, paterno, materno, paciente) values (:f, :p, "
            "'LUNA', 'ANA')",
            {{"f", folio}, {"p", folio == 3 ? kOdd : QString("VEGA")}});
        run(connection, "insert into admision (folio) values (:f)", {{"f", folio}});
    }
    EXPECT_EQ(open(expeText("0001", "VAN"), "folio"), "1");
    EXPECT_EQ(open(expeText("0001", ""), "folio"), "1|2");
    EXPECT_EQ(open(expeText(kOdd.left(8), "VAN"), "folio"), "3");
    EXPECT_EQ(open(expeText("\" or 1=1 --", "VAN"), "folio"), "");

    EXPECT_EQ(open(consultaAdmisionText(" EG ", "LUNA", ""), "folio"), "1|2");
    EXPECT_EQ(open(consultaAdmisionText("\"EL 100", "", "ANA"), "folio"), "3");
    EXPECT_EQ(open(consultaAdmisionText("\" or 1=1 --", "", ""), "folio"), "");
}

TEST_F(OdbcTest, PriceListsAndKeysAreFilteredAlike) {
    create({"create table listaprecios (tipo_prod integer, descr varchar(150))",
            "insert into listaprecios values (3, 'RESINA FACE 1')",
            "insert into listaprecios values (3, 'RESINA FACE 2')",
            "insert into listaprecios values (3, 'RESINA FACE 1 MOLAR')",
            "insert into listaprecios values (3, 'CORONA')",
            "insert into listaprecios values (4, 'OTRA')",
            "create table detallevtas (cve_prod integer, descripcion varchar(255))",
            "insert into detallevtas values (7, 'SIETE')",
            "insert into detallevtas values (null, 'VACIA')"});
    EXPECT_EQ(open(listaPreciosFaceText(3, true), "descr"),
              "CORONA|RESINA FACE 1|RESINA FACE 1 MOLAR");
    EXPECT_EQ(open(listaPreciosFaceText(3, false), "descr"), "CORONA|RESINA FACE 2");
    EXPECT_EQ(open(claveRepetidaText(7), "descripcion"), "SIETE");
    EXPECT_EQ(open(claveRepetidaText(QVariant()), "descripcion"), "");
}

TEST_F(OdbcTest, ACutEmptiesItsOwnDeskAndNoOther) {
    for (const QString table : {"cortebancario", "cortedetallado", "totales"}) {
        create({"create table " + table + " (num_caja integer, fechacorte varchar(10))"});
        for (const int caja : {1, 12, 2}) {
            for (const char *fecha : {"05/03/2024", "06/03/2024"}) {
                run(connection, "insert into " + table + " values (:c, :f)",
                    {{"c", caja}, {"f", fecha}});
            }
        }
    }
    for (const RuntimeText &text : borrarCorteTexts(1, QDate(2024, 3, 5))) {
        execute(connection, "BorrarCorte", text);
    }
    const auto left = [this](const QString &table) {
        QStringList desks;
        for (const QVariantList &row :
             rowsOf(connection, "select num_caja from " + table + " order by 1")) {
            desks += row.first().toString();
        }
        return desks.join('|');
    };
    EXPECT_EQ(left("cortebancario"), "1|2|2|12|12");
    EXPECT_EQ(left("cortedetallado"), "2|2|12|12");
    EXPECT_EQ(left("totales"), "2|2|12|12");
}

TEST_F(OdbcTest, FailuresNameTheConnectionAndTheStatement) {
    OdbcConnection nowhere("InfxFinanzas");
    nowhere.setDatabase("Driver=NoSuchDriver;Database=x");
    try {
        nowhere.open();
        FAIL() << "opened";
    } catch (const DatabaseError &error) {
        EXPECT_EQ(error.failure(), DatabaseFailure::CannotAttach);
        EXPECT_EQ(error.details().connection, "InfxFinanzas");
    }
    try {
        execute(connection, "BorrarCorte", RuntimeText().line("delete from no_hay"));
        FAIL() << "executed";
    } catch (const DatabaseError &error) {
        EXPECT_EQ(error.details().statement, "BorrarCorte");
    }
    // The second row fails while it is fetched: a list must not seem to end there.
    OdbcConnection stepping("InfxEscolar");
    stepping.setDatabase(connection.database() + ";StepAPI=1");
    try {
        rowsOf(stepping,
               "select abs(n) from (select 1 as n union all select -9223372036854775807 - 1)");
        FAIL() << "fetched";
    } catch (const DatabaseError &error) {
        EXPECT_EQ(error.details().connection, "InfxEscolar");
    }
}

}  // namespace
}  // namespace kaldo::test
