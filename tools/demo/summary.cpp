#include <QDir>
#include <QJsonArray>

#include "data/firebird_connection.h"
#include "tools/demo/readback.h"
#include "tools/demo/road.h"

namespace kaldo {

namespace {

constexpr int kDesk = 1;

/// What one note should be.
struct ExpectedNote {
    const char *service;
    double total;
    double pesos;
    double dollars;
    double card;
    double cheque;
    double change;
};

// 3 dollars at 19.50 are 58.50; with 50 by card and 100 in pesos 58.50 come back of 150, so that
// 41.50 of the pesos stay.
constexpr ExpectedNote kExpected[] = {
    {"ADMISION", 150, 41.5, 3, 50, 0, 58.5},        {"ALUMNOS", 155, 155, 0, 0, 0, 45},
    {"SERVICIOS DE CLINICA", 300, 300, 0, 0, 0, 0}, {"PUBLICO GENERAL", 180, 0, 0, 0, 180, 0},
    {"PUBLICO GENERAL", 320, 320, 0, 0, 0, 180},
};

QJsonObject noteObject(const QVariantMap &row) {
    QJsonObject note;
    for (const char *key : {"num_caja", "nota_vta", "tipo_serv", "status", "importe_tot", "pesos",
                            "dolares", "credito", "cheque", "cambio", "tipocambio", "paciente",
                            "matricula", "expediente", "folio"}) {
        note.insert(QString::fromLatin1(key),
                    QJsonValue::fromVariant(row.value(QString::fromLatin1(key))));
    }
    return note;
}

void checkNotes(Check &check, const QList<QVariantMap> &notes) {
    check.that(notes.size() == 5, QStringLiteral("five notes stand, not %1").arg(notes.size()));
    for (qsizetype at = 0; at < notes.size(); ++at) {
        const QVariantMap &note = notes.at(at);
        const QString name = QStringLiteral("note %1").arg(note.value("nota_vta").toInt());
        const auto number = [&note](const char *field) {
            return note.value(QString::fromLatin1(field)).toDouble();
        };
        check.that(note.value("nota_vta").toInt() == at + 1, name + " follows its predecessor");
        check.that(note.value("status").toString() == "GE", name + " is registered");
        check.that(note.value("lines").toInt() > 0, name + " has its lines");
        if (at < static_cast<qsizetype>(std::size(kExpected))) {
            const ExpectedNote &expected = kExpected[at];
            check.that(note.value("tipo_serv").toString() == expected.service,
                       name + " is of its service");
            check.that(same(number("importe_tot"), expected.total) &&
                           same(number("pesos"), expected.pesos) &&
                           same(number("dolares"), expected.dollars) &&
                           same(number("credito"), expected.card) &&
                           same(number("cheque"), expected.cheque) &&
                           same(number("cambio"), expected.change),
                       name + " has its amounts");
        }
    }
    if (notes.size() == 5) {
        check.that(notes.at(0).value("folio").toInt() > 0, "the admission has its folio");
        check.that(notes.at(0).value("admission_status").toString() == "PD",
                   "the admission waits for its clinic");
        check.that(notes.at(1).value("matricula").toInt() == 1100001, "the student's number");
        check.that(notes.at(2).value("expediente").toString() == "00001/24", "the dossier");
    }
}

}  // namespace

bool writeSummary(const QString &root, const QString &folder) {
    FirebirdConnection clinic(QStringLiteral("FBOdonto"), {});
    FirebirdConnection finance(QStringLiteral("FBFinanzas"), {});
    clinic.setDatabase(root + QStringLiteral("/DataBase/BD_ODONTOLOGIA.GDB"));
    finance.setDatabase(root + QStringLiteral("/DataBase/BD_FINANZAS.GDB"));

    Check check;
    const QList<QVariantMap> notes = rowsOf(
        clinic,
        QStringLiteral("select r.num_caja, r.nota_vta, r.tipo_serv, r.status, r.importe_tot, "
                       "r.tipocambio, r.matricula, f.pesos, f.dolares, f.credito, f.cheque, "
                       "f.cambio, p.paciente, p.expediente, a.folio, a.status as "
                       "admission_status, (select count(*) from detallevtas d where d.num_caja = "
                       "r.num_caja and d.nota_vta = r.nota_vta) as lines from registrovtas r "
                       "left join formapago f on f.num_caja = r.num_caja and f.nota_vta = "
                       "r.nota_vta left join pagos_odontologia p on p.num_caja = r.num_caja and "
                       "p.nota_vta = r.nota_vta left join admision a on a.num_caja = r.num_caja "
                       "and a.nota_vta = r.nota_vta where r.num_caja = 1 order by r.nota_vta"));
    checkNotes(check, notes);

    const QList<QVariantMap> handed =
        rowsOf(finance, QStringLiteral("select num_caja, nota_vta from recibopago"));
    check.that(handed.size() == notes.size(), "finance has each note once");
    const int next =
        rowsOf(clinic, QStringLiteral("select nota_vta from datoscaja where num_caja = 1"))
            .value(0)
            .value("nota_vta")
            .toInt();
    check.that(next == notes.size() + 1, "the desk's counter stands behind its last note");

    const QVariantMap totals =
        rowsOf(clinic, QStringLiteral("select * from totales where num_caja = 1")).value(0);
    double sum = 0;
    QJsonArray noteArray;
    for (const QVariantMap &note : notes) {
        sum += note.value("importe_tot").toDouble();
        noteArray.append(noteObject(note));
    }
    check.that(same(totals.value("sumatodo").toDouble(), sum), "the cut adds up its notes");
    const int cutRows =
        rowsOf(clinic, QStringLiteral("select * from cortedetallado where num_caja = 1")).size();
    check.that(cutRows == notes.size(), "the cut lists each note");

    QJsonObject cut;
    for (auto total = totals.begin(); total != totals.end(); ++total) {
        cut.insert(total.key(), QJsonValue::fromVariant(total.value()));
    }
    const QDir files(folder);
    const QStringList receipts = files.entryList({QStringLiteral("receipt-*.pdf")}, QDir::Files);
    check.that(receipts.size() >= notes.size(), "each note has its receipt");
    for (const char *report : {"cut-receipts.pdf", "cut-summary.pdf", "cut-banks.pdf"}) {
        check.that(files.exists(QString::fromLatin1(report)),
                   QString::fromLatin1(report) + " was saved");
    }

    const QJsonObject summary{{"desk", kDesk},
                              {"notes", noteArray},
                              {"cut", cut},
                              {"receipts", QJsonArray::fromStringList(receipts)},
                              {"holds", check.good()}};
    return writeSummaryFile(folder, summary) && check.good();
}

}  // namespace kaldo
