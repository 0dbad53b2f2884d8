#include "tools/volume/plans.h"

#include <QDate>

#include <cstdio>
#include <map>
#include <set>
#include <vector>

#include "data/dm_conexion.h"
#include "data/dm_escolares.h"
#include "data/dm_finanzas.h"
#include "data/dm_ingresos_caja.h"
#include "data/dm_local.h"
#include "data/dm_odonto.h"
#include "data/runtime_texts.h"
#include "data/statement_text.h"
#include "tools/volume/bulk_database.h"

namespace kaldo::volume {

namespace {

constexpr int kMany = 10'000;
/// A routine that passes over this many rows of a large table reads more than it answers with.
constexpr int kPassedOver = 5'000;

/// Tables that nobody would want to read whole.
std::set<std::string> largeTables(BulkDatabase &database) {
    std::set<std::string> large;
    for (const auto &table : database.rows(
             "select trim(rdb$relation_name) from rdb$relations where rdb$system_flag = 0 and "
             "rdb$view_blr is null")) {
        const auto counted =
            database.rows("select count(*) from (select first " + std::to_string(kMany) +
                          " 1 as x from " + table[0] + ")");
        if (counted[0][0] == std::to_string(kMany)) {
            large.insert(table[0]);
        }
    }
    return large;
}

/// `plan` reads a large table as a whole: a scan of its rows, or of an index from end to end.
bool readsWhole(const std::string &plan, const std::set<std::string> &large) {
    std::size_t begin = 0;
    std::string table;
    while (begin < plan.size()) {
        const std::size_t end = std::min(plan.find('\n', begin), plan.size());
        const std::string line = plan.substr(begin, end - begin);
        const std::size_t named = line.find("Table \"");
        if (named != std::string::npos) {
            const std::size_t from = named + 7;
            table = line.substr(from, line.find('"', from) - from);
        }
        if (line.find("Full Scan") != std::string::npos && large.contains(table)) {
            return true;
        }
        begin = end + 1;
    }
    return false;
}

struct Text {
    QString name;
    QString text;
};

class Judge {
public:
    explicit Judge(BulkDatabase &database) : database_(database), large_(largeTables(database)) {}

    void judge(const Text &text) {
        const std::string plan = database_.plan(toPositional(text.text).text.toStdString());
        tell(text.name.toStdString(), readsWhole(plan, large_), plan);
    }

    /// Calls a routine and counts: no plan tells what stands in its body.
    void measure(const std::string &name, const std::string &call) {
        const auto before = database_.sequentialReads();
        database_.rows(call);
        std::string told;
        bool whole = false;
        for (const auto &[table, count] : database_.sequentialReads()) {
            const auto known = before.find(table);
            const std::int64_t reads = count - (known == before.end() ? 0 : known->second);
            if (reads > 0 && large_.contains(table)) {
                told += "\n    " + table + ": " + std::to_string(reads) + " rows one by one";
                whole = whole || reads > kPassedOver;
            }
        }
        tell(name, whole, told);
    }

    bool well() const { return well_; }

private:
    void tell(const std::string &name, bool whole, const std::string &how) {
        std::printf("%s %s%s\n", whole ? "WHOLE" : "     ", name.c_str(), how.c_str());
        well_ = well_ && !whole;
    }

    BulkDatabase &database_;
    std::set<std::string> large_;
    bool well_ = true;
};

void judgeRunTimeTexts(Judge &judge) {
    judge.judge({QStringLiteral("Expe"), expeText("00101/20", "VAN").firebird()});
    judge.judge({QStringLiteral("ConsultaAdmision"),
                 consultaAdmisionText("GARCIA", "LOPEZ", "ANA").firebird()});
    judge.judge({QStringLiteral("ListaPrecios"), listaPreciosFaceText(4, true).firebird()});
    for (const RuntimeText &text : borrarCorteTexts(1, QDate(2024, 1, 1))) {
        judge.judge({QStringLiteral("BorrarCorte"), text.firebird()});
    }
}

/// Each routine with what the screens ask of it, on the last rows of the first desk.
void measureRoutines(Judge &judge, BulkDatabase &clinic) {
    const auto last = clinic.rows(
        "select first 1 r.nota_vta, r.fecha, r.capto from registrovtas r where r.num_caja = 1 "
        "order by r.num_caja desc, r.nota_vta desc");
    const std::string day = last.at(0)[1].substr(0, 10);
    const auto listed = [&](const std::string &name, const std::string &call) {
        judge.measure(name, "select first 64 * from " + call);
    };
    for (const char *ban : {"1", "2", "3", "4"}) {
        listed("KDCARGAREXP " + std::string(ban),
               "kdcargarexp('01', 'VAN', '2024-01-01', 'A', '" + std::string(ban) + "')");
    }
    listed("KDSERVICIOSXCTROS", "kdserviciosxctros('01', 'AP')");
    listed("KDCONSULTA_EMPLEADO_P", "kdconsulta_empleado_p(1001)");
    listed("KDVERIFICA_PAGODETRATAMIENTO_P", "kdverifica_pagodetratamiento_p('00110/20', 4001)");
    listed("KDEST_CAJA", "kdest_caja(1, '" + day + "')");
    const auto called = [&](const std::string &name, const std::string &call) {
        judge.measure(name, "execute block returns (x integer) as begin execute procedure " + call +
                                "; x = 1; suspend; end");
    };
    called("KDCOMPLETACORTEBANCARIO",
           "kdcompletacortebancario('" + last[0][2] + "', 1, '" + day + "')");
    called("KDREGISTRAIVA", "kdregistraiva(1, " + last[0][0] + ")");
    for (const char *name : {"KDBORRARDETALLEVTAS", "SP550"}) {
        called(name, std::string(name) + "(1, " + last[0][0] + ")");
    }
    for (const char *name : {"KDBORRARADMISION", "KDBORRAREXPEDIENTE"}) {
        called(name, std::string(name) + "(1, " + last[0][0] + ", 'VAN')");
    }
}

}  // namespace

bool showPlans(const std::string &root) {
    const Installation installation(QString::fromStdString(root));
    const IniFile ini(installation.map(QStringLiteral("C:\\KALDO\\Ini\\kaldo.ini")));
    const Session session;
    const Options options;
    // Closed: they only hold the texts.
    DMConexion conexion(installation, ini);
    DMLocal local(conexion);
    DMOdonto odonto(conexion, session, options);
    DMIngresosCaja caja(conexion);
    DMFinanzas finanzas(conexion);
    DMEscolares escolares(conexion);

    std::map<QString, std::vector<Text>> texts;
    for (const DataModule *module :
         std::initializer_list<const DataModule *>{&local, &odonto, &caja, &finanzas, &escolares}) {
        for (const NamedQuery *query : module->queries()) {
            texts[query->connection().database()].push_back(
                {module->name() + u'.' + query->name(), query->statement().text});
        }
        for (const Command *command : module->commands()) {
            texts[command->connection().database()].push_back(
                {module->name() + u'.' + command->statement().name, command->statement().text});
        }
    }
    bool well = true;
    for (const auto &[path, all] : texts) {
        BulkDatabase database(path.toStdString(), BulkDatabase::Use::Look);
        Judge judge(database);
        for (const Text &text : all) {
            judge.judge(text);
        }
        if (path == conexion.FBOdonto.database()) {
            judgeRunTimeTexts(judge);
            measureRoutines(judge, database);
        }
        well = well && judge.well();
    }
    return well;
}

}  // namespace kaldo::volume
