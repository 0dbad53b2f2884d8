#include <gtest/gtest.h>

#include "data/dm_conexion.h"
#include "data/dm_ingresos_caja.h"
#include "data/dm_odonto.h"
#include "data/firebird_connection.h"
#include "tests/support/test_installation.h"

namespace kaldo::test {
namespace {

/// The clinic's routines run on the example school, called as the program calls them.
class RoutinesTest : public ::testing::Test {
protected:
    RoutinesTest() { conexion.open(); }

    Connection &clinic() { return conexion.FBOdonto; }

    void write(const QString &text) { run(clinic(), text); }

    /// Columns of one row parted by "|", rows by "; ".
    QString rows(const QString &text) {
        QStringList all;
        for (const QVariantList &row : rowsOf(clinic(), text)) {
            QStringList values;
            for (const QVariant &value : row) {
                values += value.isValid() ? value.toString() : QStringLiteral("NULL");
            }
            all += values.join(u'|');
        }
        return all.join(QLatin1String("; "));
    }

    void repair(Procedure &procedure, int nota, const QString &ciudad = {}) {
        Parameters values{{"num_caja", 1}, {"nota_vta", nota}};
        if (!ciudad.isEmpty()) {
            values.append({"ciudad", ciudad});
        }
        procedure.execute(values);
    }

    TestInstallation files;
    IniFile ini{files.iniPath()};
    Session session;
    Options options;
    DMConexion conexion{files.installation(), ini};
    DMOdonto odonto{conexion, session, options};
    DMIngresosCaja caja{conexion};
};

TEST_F(RoutinesTest, AHistoryStandsColumnByColumn) {
    // Neighbours differ, so that two columns in each other's place are seen.
    const QString letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789!#$%&/";
    Procedure &history = odonto.registra_antecedentes_p;
    QStringList sent;
    Parameters values;
    for (const QString &name : history.parameters()) {
        const int at = int(sent.size());
        const int width = valueOf(clinic(),
                                  "select f.rdb$character_length from rdb$relation_fields r join "
                                  "rdb$fields f on f.rdb$field_name = r.rdb$field_source where "
                                  "r.rdb$relation_name = 'ANTECEDENTES' and r.rdb$field_name = :n",
                                  {{"n", name.toUpper()}})
                              .toInt();
        const QVariant value = width == 0   ? QVariant(9000 + at)
                               : width == 1 ? QVariant(QString(letters[at % letters.size()]))
                                            : QVariant(QStringLiteral("T%1").arg(at));
        values.append({name, value});
        sent += value.toString();
    }
    ASSERT_EQ(sent.size(), 97);
    history.execute(values);
    EXPECT_EQ(rows("select * from antecedentes where folio = 9000"), sent.join(u'|'));
    history.execute({{"folio", 9999}});
    EXPECT_EQ(rows("select heredo_fam, aparatodigestivo from antecedentes where folio = 9999"),
              "NULL|NULL")
        << "nothing is left of the call before";
}

TEST_F(RoutinesTest, ARemovedNoteGivesBackWhatItPaidAndLeavesTheOthers) {
    write(
        "insert into anticipos (campus, expediente, recibo_anticipo, importe_tot, saldo) values "
        "('VAN', '00001/24', '1-5', 1000, 400)");
    write(
        "insert into anticipos (campus, expediente, recibo_anticipo, importe_tot, saldo) values "
        "('VAN', '00002/24', '1-9', 800, 700)");
    for (const char *paid : {"150, '1-9'", "50, '1-9'", "25, '1-6'"}) {
        write(QStringLiteral("insert into abonos (campus, expediente, recibo_anticipo, importe, "
                             "recibopago) values ('VAN', '00001/24', '1-5', %1)")
                  .arg(QLatin1String(paid)));
    }
    for (const char *movement :
         {"'1-5', '00001/24', '1-5'", "'1-5', '00001/24', '1-9'", "'1-9', '00002/24', '1-9'"}) {
        write(QStringLiteral("insert into estadocuenta (recibo, expediente, recibopago, campus) "
                             "values (%1, 'VAN')")
                  .arg(QLatin1String(movement)));
    }
    for (const int nota : {5, 9}) {
        for (const char *table :
             {"registrovtas", "pagos_odontologia", "formapago", "vtascontado", "metodopagonota"}) {
            write(QStringLiteral("insert into %1 (num_caja, nota_vta) values (1, %2)")
                      .arg(QLatin1String(table))
                      .arg(nota));
        }
        write(QStringLiteral("insert into detallepago values (1, %1, 1, 100)").arg(nota));
        write(QStringLiteral("insert into detallevtas (num_caja, nota_vta, codigo, tipo_prod, "
                             "cve_prod) values (1, %1, 4001, 4, 1)")
                  .arg(nota));
        write(QStringLiteral("insert into historicoodontologia (expediente, codigo, num_caja, "
                             "nota_vta) values ('00002/24', 4001, 1, %1)")
                  .arg(nota));
    }
    for (int times = 0; times < 2; ++times) {  // the second run finds nothing more to do
        repair(caja.BorrarDetalleVtas, 9);
        repair(caja.SP550, 9);
        EXPECT_EQ(rows("select recibo_anticipo, saldo from anticipos"), "1-5|600");
        EXPECT_EQ(rows("select recibopago from abonos"), "1-6");
        EXPECT_EQ(rows("select recibo, recibopago from estadocuenta"), "1-5|1-5");
        for (const char *table :
             {"registrovtas", "pagos_odontologia", "formapago", "vtascontado", "metodopagonota",
              "detallepago", "detallevtas", "historicoodontologia"}) {
            EXPECT_EQ(
                rows(QStringLiteral("select num_caja, nota_vta from %1").arg(QLatin1String(table))),
                "1|5")
                << table;
        }
    }
}

TEST_F(RoutinesTest, WhatANoteOpenedGoesWithItInItsCampusOnly) {
    const auto admit = [this](int folio, int nota) {
        write(QStringLiteral("execute procedure kdregistra_admision_p(%1, 1, %2, 'U', null, '', "
                             "null, '', 'AU', 'DRA. LUNA', '1', '120/80', 90, '10:30', 'X', '01')")
                  .arg(folio)
                  .arg(nota));
        write(QStringLiteral("insert into datosgenerales (folio) values (%1)").arg(folio));
        write(QStringLiteral("insert into antecedentes (folio) values (%1)").arg(folio));
        write(QStringLiteral("insert into plantratamiento (folio, prioridad) values (%1, 1)")
                  .arg(folio));
    };
    const auto left = [this](int folio) {
        int count = 0;
        for (const char *table :
             {"admision", "admurgente", "datosgenerales", "antecedentes", "plantratamiento"}) {
            count += rows(QStringLiteral("select count(*) from %1 where folio = %2")
                              .arg(QLatin1String(table))
                              .arg(folio))
                         .toInt();
        }
        return count;
    };
    admit(8001, 9);
    admit(8002, 0);
    admit(8003, 10);
    EXPECT_EQ(rows("select folioad from control"), "8004");
    for (const char *campus : {"VAN", "COS"}) {
        write(QStringLiteral("insert into expedientes (campus, expediente, folio, num_caja, "
                             "nota_vta) values ('%1', '99999/26', 8003, 1, 10)")
                  .arg(QLatin1String(campus)));
        write(QStringLiteral("insert into prestamo_exp (campus, expediente, status) values ('%1', "
                             "'99999/26', 'PR')")
                  .arg(QLatin1String(campus)));
    }
    repair(odonto.BorrarAdmision, 9, "COS");
    EXPECT_EQ(left(8001), 5);
    repair(odonto.BorrarAdmision, 9, "VAN");
    EXPECT_EQ(left(8001), 0);
    repair(odonto.BorrarAdmision, 0, "VAN");
    EXPECT_EQ(left(8002), 5) << "made without a note";
    repair(odonto.BorrarAdmision, 10, "VAN");
    EXPECT_EQ(left(8003), 5) << "a dossier was opened on it";
    repair(odonto.BorrarExpediente, 10, "VAN");
    const QString other = "COS|99999/26";
    EXPECT_EQ(rows("select campus, expediente from expedientes where expediente='99999/26'"),
              other);
    EXPECT_EQ(rows("select campus, expediente from prestamo_exp where expediente='99999/26'"),
              other);
    EXPECT_EQ(rows("select folioad from control"), "8004") << "folios are not given back";
}

TEST(StatisticsTest, AnEmptyClinicKnowsHowSelectiveItsIndicesWillBe) {
    TestInstallation files(TestInstallation::Content::Empty);
    FirebirdConnection clinic(QStringLiteral("clinic"), {});
    clinic.setDatabase(files.database("BD_ODONTOLOGIA.GDB"));
    const auto tables = rowsOf(clinic,
                               "select distinct trim(rdb$relation_name) from rdb$indices where "
                               "rdb$system_flag = 0 and rdb$statistics > 0");
    EXPECT_EQ(tables.size(), 19);
    for (const QVariantList &table : tables) {
        const QString name = table.first().toString();
        EXPECT_EQ(valueOf(clinic, "select count(*) from " + name).toInt(), 0) << name.toStdString();
        EXPECT_EQ(valueOf(clinic,
                          "select count(*) from rdb$indices where rdb$relation_name = :t and not "
                          "rdb$statistics > 0",
                          {{"t", name}})
                      .toInt(),
                  0)
            << name.toStdString();
    }
}

TEST_F(RoutinesTest, TaxIsTakenOutOfWhatTheLineCharges) {
    const auto line = [this](int codigo, int benefit) {
        caja.spinsdetalle.execute({{"p_caja", 1},
                                   {"p_notavta", 9},
                                   {"p_codigo", codigo},
                                   {"p_cant", 2.0},
                                   {"p_precio", 116.0},
                                   {"p_porcdescto", benefit},
                                   {"p_prog", 12510}});
    };
    write("update listaprecios set porcentajeiva = 16 where codigo = 4001");
    write("update listaprecios set porcentajeiva = null where codigo = 4002");
    line(4001, 10);
    line(4002, 0);
    caja.registraiva.execute({{"caja", 1}, {"nota", 9}});
    EXPECT_EQ(rows("select importeiva, tipofactoriva from detallevtas order by codigo"),
              "28.8|Tasa; 0|Exento");
}

TEST_F(RoutinesTest, TheBankCutHasOneRowPerAccountSourceFundAndWay) {
    struct Paid {
        int nota, bancomn, bancodll;
        double pesos, cheque, credito, dolares;
        const char *fondo;
        const char *status;
    };
    for (const Paid &paid :
         {Paid{1, 1, 2, 80, 0, 0, 0, "11", "GE"},
          Paid{2, 1, 3, 20, 5, 0, 7, "11", "GE"},  // the dollar account changed
          Paid{3, 1, 2, 0, 0, 30, 2, "11", "GE"}, Paid{4, 1, 2, 50, 0, 0, 0, "12", "GE"},
          Paid{5, 1, 2, 900, 900, 900, 900, "11", "CA"}}) {
        write(QStringLiteral("insert into registrovtas (num_caja, nota_vta, fecha, capto, status) "
                             "values (1, %1, date '2024-11-20', 'cajero1', '%2')")
                  .arg(paid.nota)
                  .arg(QLatin1String(paid.status)));
        run(clinic(),
            "insert into formapago (num_caja, nota_vta, bancomn, bancodll, pesos, cheque, credito, "
            "dolares) values (1, :nota, :mn, :dll, :pesos, :cheque, :credito, :dolares)",
            {{"nota", paid.nota},
             {"mn", paid.bancomn},
             {"dll", paid.bancodll},
             {"pesos", paid.pesos},
             {"cheque", paid.cheque},
             {"credito", paid.credito},
             {"dolares", paid.dolares}});
        for (const int codigo : {4001, 4002}) {  // two lines are still one payment
            write(QStringLiteral("insert into detallevtas (num_caja, nota_vta, codigo, tipo_prod, "
                                 "cve_prod, fondo, ftefinid) values (1, %1, %2, 4, %2, '%3', 1400)")
                      .arg(paid.nota)
                      .arg(codigo)
                      .arg(QLatin1String(paid.fondo)));
        }
    }
    for (int times = 0; times < 2; ++times) {
        caja.CompletaCorteBancario.execute(
            {{"usr", "cajero1"}, {"caja", 1}, {"fecha", QDate(2024, 11, 20)}});
        EXPECT_EQ(rows("select bancoid, ftefto, fondo, concepto, importe from cortebancario order "
                       "by bancoid, fondo, concepto"),
                  "1|1400|11|CHEQUE|5; 1|1400|11|EFECTIVO|100; 1|1400|11|TARJETA|30; "
                  "1|1400|12|EFECTIVO|50; 2|1400|11|DOLARES|2; 3|1400|11|DOLARES|7");
    }
}

}  // namespace
}  // namespace kaldo::test
