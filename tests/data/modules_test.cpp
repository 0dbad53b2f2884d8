#include <gtest/gtest.h>

#include <QDate>

#include "data/catalogue_texts.h"
#include "data/database_error.h"
#include "data/dm_conexion.h"
#include "data/dm_escolares.h"
#include "data/dm_finanzas.h"
#include "data/dm_ingresos_caja.h"
#include "data/dm_local.h"
#include "data/dm_odonto.h"
#include "data/runtime_texts.h"
#include "tests/support/test_installation.h"

namespace kaldo::test {
namespace {

struct Modules {
    TestInstallation files;
    IniFile ini{files.iniPath()};
    Session session;
    Options options;
    DMConexion conexion{files.installation(), ini};
    DMLocal local{conexion};
    DMOdonto odonto{conexion, session, options};
    DMIngresosCaja caja{conexion};
    DMFinanzas finanzas{conexion};
    DMEscolares escolares{conexion};

    std::vector<const DataModule *> all() const {
        return {&local, &odonto, &caja, &finanzas, &escolares};
    }
};

TEST(ModulesTest, EveryTextPreparesAgainstFreshDatabases) {
    Modules modules;
    modules.conexion.open();
    const auto prepares = [](Connection &connection, const Statement &statement) {
        try {
            connection.describe(statement);
        } catch (const DatabaseError &failure) {
            ADD_FAILURE() << statement.name.toStdString() << ": " << failure.what();
        }
    };
    int prepared = 0;
    int readByPlace = 0;
    for (const DataModule *module : modules.all()) {
        for (const NamedQuery *query : module->queries()) {
            prepares(query->connection(), query->statement());
            ++prepared;
            if (query->expectedFields().isEmpty()) {
                continue;
            }
            QStringList columns;
            for (const Column &column : query->connection().describe(query->statement())) {
                columns += column.name;
            }
            for (const QString &field : query->expectedFields()) {
                EXPECT_TRUE(columns.contains(field.toUpper()))
                    << query->name().toStdString() << ": " << field.toStdString();
                ++readByPlace;
            }
        }
        for (const Procedure *procedure : module->procedures()) {
            prepares(procedure->connection(), procedure->statement());
            ++prepared;
        }
        for (const Command *command : module->commands()) {
            prepares(command->connection(), command->statement());
            ++prepared;
        }
    }
    EXPECT_GT(prepared, 70);
    EXPECT_GE(readByPlace, 13);
    Connection &clinic = modules.conexion.FBOdonto;
    prepares(clinic, {"Expe", expeText("00001/24", "VAN").firebird()});
    prepares(clinic, {"ConsultaAdmision", consultaAdmisionText("a", "b", "c").firebird()});
    prepares(clinic, {"ListaPrecios", listaPreciosFaceText(96, true).firebird()});
    prepares(modules.conexion.FBLocal, {"Qry000", claveRepetidaText(1).firebird()});
    for (const RuntimeText &text : borrarCorteTexts(1, QDate(2024, 1, 1))) {
        prepares(clinic, {"BorrarCorte", text.firebird()});
    }
    for (const RuntimeText &text : {centroText("01"),
                                    centroDescrText("A"),
                                    campusExpedientesText("VAN"),
                                    areaVentaText(1),
                                    areaEnCentrosText(1),
                                    borrarAreasText("VAN"),
                                    areaAtencionText("01", 1, "07"),
                                    prestacionText(1),
                                    prestacionDescrText("A"),
                                    prestacionxservText("01", 1, 1),
                                    labExternoText(1),
                                    codigoText(1),
                                    borrarPreciosText(1),
                                    tipoFormaText(1),
                                    metodoClaveText("01"),
                                    metodoDescrText("A"),
                                    tipoCambioText(19.5),
                                    usuarioText("a"),
                                    cajaText(1),
                                    cajaNombreText("A")}) {
        prepares(clinic, {"Qry000", text.firebird()});
    }
    prepares(modules.conexion.FBFinanzas, {"Qry000", bancoText(1).firebird()});
    prepares(modules.conexion.FBFinanzas, {"Qry000", bancoProgramaText(1, 1).firebird()});
}

TEST(ModulesTest, RoutinesTakeTheirParametersInTheOrderOfTheDatabase) {
    Modules modules;
    modules.conexion.open();
    for (const DataModule *module : modules.all()) {
        for (const Procedure *procedure : module->procedures()) {
            const QString text = procedure->statement().text;
            const QString routine = text.split(' ').at(2);
            QStringList inDatabase;
            for (const QVariantList &row :
                 rowsOf(procedure->connection(),
                        "select trim(rdb$parameter_name) from rdb$procedure_parameters where "
                        "rdb$procedure_name = :p and rdb$parameter_type = 0 order by "
                        "rdb$parameter_number",
                        {{"p", routine}})) {
                inDatabase += row.first().toString().toLower();
            }
            QStringList declared;
            for (const QString &name : procedure->parameters()) {
                declared += name.toLower();
            }
            EXPECT_EQ(declared, inDatabase) << routine.toStdString();
        }
    }
}

TEST(ModulesTest, EditableQueriesHaveTheirKeys) {
    Modules modules;
    modules.conexion.open();
    for (const DataModule *module : modules.all()) {
        for (NamedQuery *query : module->queries()) {
            const bool hasTable = !query->updateTable().isEmpty();
            EXPECT_EQ(hasTable, !query->updateKeys().isEmpty()) << query->name().toStdString();
            if (!hasTable) {
                continue;
            }
            QStringList columns;
            for (const Column &column : query->connection().describe(query->statement())) {
                columns += column.name.toLower();
            }
            for (const QString &key : query->updateKeys()) {
                EXPECT_TRUE(columns.contains(key)) << query->name().toStdString();
            }
        }
    }
}

TEST(ModulesTest, TheRegistryDecidesWhatIsOpened) {
    struct Case {
        const char *change;
        bool clinic;
        bool finance;
        bool fails;
    };
    const Case cases[] = {
        {"update firebird set base=base", true, true, false},
        {"delete from firebird", false, false, false},
        {"update firebird set base='odontologia' where base='Odontologia'", false, true, false},
        {"update firebird set ruta='/no/existe.gdb' where base='Finanzas'", true, false, true},
        {"update firebird set ruta='/no/existe.gdb' where base='Odontologia'", false, false, true},
        {"insert into firebird (noidx, base, ruta) select 9, base, ruta from firebird where "
         "base='Finanzas'",
         true, true, false},
    };
    for (const Case &each : cases) {
        Modules modules;
        run(modules.conexion.FBLocal, each.change);
        bool failed = false;
        try {
            modules.conexion.open();
        } catch (const DatabaseError &) {
            failed = true;
        }
        EXPECT_EQ(failed, each.fails) << each.change;
        EXPECT_EQ(modules.conexion.FBOdonto.isOpen(), each.clinic) << each.change;
        EXPECT_EQ(modules.conexion.FBFinanzas.isOpen(), each.finance) << each.change;
        EXPECT_FALSE(modules.conexion.FBEscolares.isOpen()) << "only with its first query";
    }
}

TEST(ModulesTest, TheBranchBindsEachModule) {
    Modules firebird;
    EXPECT_EQ(&firebird.odonto.Control.connection(), &firebird.conexion.FBOdonto);
    EXPECT_EQ(&firebird.escolares.Bposgrado.connection(), &firebird.conexion.FBEscolares);

    TestInstallation files;
    files.setIni("SQL", "cliente", "Informix");
    const IniFile ini(files.iniPath());
    DMConexion conexion(files.installation(), ini);
    Session session;
    Options options;
    const DMOdonto odonto(conexion, session, options);
    const DMIngresosCaja caja(conexion);
    EXPECT_EQ(&odonto.Control.connection(), &conexion.InfxOdonto);
    EXPECT_EQ(&caja.Ticket.connection(), &conexion.FBOdonto) << "this module has no branch";
    EXPECT_THROW(conexion.open(), DatabaseError) << "no such data source here";
    EXPECT_TRUE(conexion.FBLocal.isOpen());
    EXPECT_FALSE(conexion.FBOdonto.isOpen());
}

TEST(ModulesTest, DossierNumbersCountPerCampusOrForAll) {
    Modules modules;
    modules.conexion.open();
    Connection &clinic = modules.conexion.FBOdonto;
    run(clinic, "delete from controlexpedientes");
    run(clinic, "insert into controlexpedientes (campus, num_expediente) values ('000', 123)");
    run(clinic, "insert into controlexpedientes (campus, num_expediente) values ('AAA', 123456)");
    modules.session.AnioActual = 2024;
    modules.session.Origen = QStringLiteral("AAA");
    modules.odonto.FolioExp();
    EXPECT_EQ(modules.odonto.NumExpediente.text(), "123456/2") << "eight characters hold";
    modules.options.ExpedienteUniversal = true;
    modules.odonto.FolioExp();
    EXPECT_EQ(modules.odonto.NumExpediente.text(), "00123/24");
    EXPECT_EQ(modules.odonto.ConsecExpediente, 123);
    modules.options.ExpedienteUniversal = false;
    modules.session.Origen = QStringLiteral("BBB");
    modules.odonto.FolioExp();
    EXPECT_EQ(modules.odonto.NumExpediente.text(), "00000/24") << "no row counts as 0";
    run(clinic, "update control set folioad=77");
    modules.odonto.FolioAdm();
    EXPECT_EQ(modules.odonto.FolioAdmision, 77);
}

}  // namespace
}  // namespace kaldo::test
