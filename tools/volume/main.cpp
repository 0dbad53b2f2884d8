// Fills an installation as twenty years of a dental school would have.

#include <chrono>
#include <cstdio>
#include <cstring>
#include <exception>
#include <string>

#include "tools/volume/plans.h"
#include "tools/volume/rows.h"

namespace {

using namespace kaldo::volume;

constexpr int kNotesOfTransaction = 20'000;

struct Arguments {
    std::string root;
    Size size;
    std::uint64_t seed = 1;
    bool routines = false;
    bool plans = false;
    bool frozen = false;
};

/// False after a wrong one.
bool read(int count, char **values, Arguments &arguments) {
    for (int at = 1; at < count; ++at) {
        const std::string name = values[at];
        const char *value = at + 1 < count ? values[at + 1] : nullptr;
        if (name == "--routines") {
            arguments.routines = true;
        } else if (name == "--plans") {
            arguments.plans = true;
        } else if (name == "--frozen") {
            arguments.frozen = true;
        } else if (name == "--notes" && value) {
            arguments.size.notes = std::stoi(value);
            ++at;
        } else if (name == "--seed" && value) {
            arguments.seed = std::stoull(value);
            ++at;
        } else if (name.rfind('-', 0) != 0 && arguments.root.empty()) {
            arguments.root = name;
        } else {
            return false;
        }
    }
    return !arguments.root.empty() && arguments.size.notes > 0;
}

class Watch {
public:
    /// Tells a step that has ended, and how long it took.
    void tell(const std::string &step) {
        const auto now = std::chrono::steady_clock::now();
        std::printf("%-48s %8.1f s\n", step.c_str(),
                    std::chrono::duration<double>(now - last_).count());
        std::fflush(stdout);
        last_ = now;
    }

private:
    std::chrono::steady_clock::time_point last_ = std::chrono::steady_clock::now();
};

/// Indices that no constraint needs, of the tables that the years fill.
std::vector<std::string> freeIndices(BulkDatabase &database) {
    std::vector<std::string> names;
    for (const auto &row : database.rows(
             "select trim(i.rdb$index_name) from rdb$indices i left join rdb$relation_constraints "
             "c on c.rdb$index_name = i.rdb$index_name where i.rdb$system_flag = 0 and "
             "c.rdb$index_name is null and i.rdb$relation_name in ('REGISTROVTAS', "
             "'PAGOS_ODONTOLOGIA', 'DETALLEPAGO', 'ADMISION', 'DATOSGENERALES', 'EXPEDIENTES', "
             "'ESTADOCUENTA', 'ANTICIPOS', 'ABONOS', 'PRESTAMO_EXP', 'HISTORICOODONTOLOGIA') "
             "order by 1")) {
        names.push_back(row[0]);
    }
    return names;
}

void setStatistics(BulkDatabase &database) {
    for (const auto &row : database.rows(
             "select trim(rdb$index_name) from rdb$indices where rdb$system_flag = 0 order by 1")) {
        database.run("set statistics index " + row[0]);
    }
    database.commit();
}

void fill(const Arguments &arguments) {
    const std::string folder = arguments.root + "/DataBase/";
    BulkDatabase clinic(folder + "BD_ODONTOLOGIA.GDB", BulkDatabase::Use::Fill);
    BulkDatabase finance(folder + "BD_FINANZAS.GDB", BulkDatabase::Use::Fill);
    BulkDatabase students(folder + "BD_ESCOLARES.GDB", BulkDatabase::Use::Fill);
    School school(arguments.size, arguments.seed, clinic);
    writePeople(school, clinic, finance, students);

    Watch watch;
    const std::vector<std::string> indices = freeIndices(clinic);
    // An index that is made anew knows its rows, as one in a school doesn't.
    const bool indicesOff = !arguments.routines && !arguments.frozen;
    if (indicesOff) {
        for (const std::string &index : indices) {
            clinic.run("alter index " + index + " inactive");
        }
        clinic.commit();
    }
    {
        const auto writer = arguments.routines ? makeRoutineWriter(clinic, finance)
                                               : makeRowWriter(clinic, finance);
        int committed = 0;
        school.live(*writer, [&](int written) {
            if (written - committed >= kNotesOfTransaction) {
                clinic.commit();
                finance.commit();
                committed = written;
            }
        });
    }
    clinic.commit();
    finance.commit();
    writeCounters(school, clinic);
    watch.tell(std::to_string(arguments.size.notes) + " notes");
    if (indicesOff) {
        for (const std::string &index : indices) {
            clinic.run("alter index " + index + " active");
            clinic.commit();
        }
        watch.tell(std::to_string(indices.size()) + " indices");
    }
    if (!arguments.frozen) {
        setStatistics(clinic);
        setStatistics(finance);
        watch.tell("statistics");
    }
    clinic.finish();
    finance.finish();
    students.finish();
    watch.tell("written to the disk");
}

}  // namespace

int main(int count, char **values) {
    Arguments arguments;
    if (!read(count, values, arguments)) {
        std::fputs(
            "usage: volume ROOT [--notes N] [--seed S] [--routines] [--frozen] | volume ROOT "
            "--plans\n",
            stderr);
        return 2;
    }
    try {
        if (arguments.plans) {
            return showPlans(arguments.root) ? 0 : 1;
        }
        fill(arguments);
    } catch (const std::exception &failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
    return 0;
}
