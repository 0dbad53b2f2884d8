#include "tools/prove/verdict.h"

#include <QFile>
#include <QSet>

#include <algorithm>
#include <stdexcept>

#include "tests/support/test_installation.h"
#include "tools/prove/station.h"

namespace kaldo::prove {

namespace {

/// A note as the databases hold it; the pieces in the order of kPieces.
struct Found {
    QString cashier;
    QString patient;
    QList<int> pieces;
};

/// Tables with the number of rows that a complete note has there; -1 and -2 stand for its lines and
/// its admissions.
struct Piece {
    const char *table;
    int rows;
    const char *condition = "";
};
constexpr int kLines = -1;
constexpr int kAdmissions = -2;
constexpr std::array kPieces{
    Piece{"pagos_odontologia", 1}, Piece{"formapago", 1},
    Piece{"metodopagonota", 1},    Piece{"detallevtas", kLines, " and t.tipofactoriva <> ''"},
    Piece{"vtascontado", 1},       Piece{"admision", kAdmissions},
};

QHash<int, Found> notesOf(Connection &clinic, Connection &finance) {
    QString columns;
    for (const Piece &piece : kPieces) {
        columns += QStringLiteral(
                       ", (select count(*) from %1 t where t.num_caja=r.num_caja and "
                       "t.nota_vta=r.nota_vta%2)")
                       .arg(QLatin1String(piece.table), QLatin1String(piece.condition));
    }
    QHash<int, Found> notes;
    for (const QVariantList &row :
         test::rowsOf(clinic,
                      QStringLiteral("select r.nota_vta, r.capto, p.paterno%1 from registrovtas r "
                                     "left join pagos_odontologia p on p.num_caja=r.num_caja and "
                                     "p.nota_vta=r.nota_vta where r.num_caja=:caja")
                          .arg(columns),
                      {{"caja", kDesk}})) {
        Found found{row[1].toString(), row[2].toString(), {}};
        for (const QVariant &count : row.mid(3)) {
            found.pieces += count.toInt();
        }
        found.pieces += 0;
        notes.insert(row[0].toInt(), found);
    }
    for (const QVariantList &row : test::rowsOf(
             finance, "select nota_vta from recibopago where num_caja=:caja", {{"caja", kDesk}})) {
        if (const auto note = notes.find(row[0].toInt()); note != notes.end()) {
            ++note->pieces.last();
        }
    }
    return notes;
}

QList<int> expectedPieces(const ToldNote &note) {
    QList<int> pieces;
    for (const Piece &piece : kPieces) {
        pieces += piece.rows == kLines        ? note.lines
                  : piece.rows == kAdmissions ? note.admissions
                                              : piece.rows;
    }
    return pieces << 1;
}

/// Rows below the desk's counter that no head explains.
int orphansOf(Connection &clinic) {
    int orphans = 0;
    for (const Piece &piece : kPieces) {
        orphans += test::valueOf(clinic,
                                 QStringLiteral("select count(*) from %1 t where t.num_caja=:caja "
                                                "and not exists (select 1 from registrovtas r "
                                                "where r.num_caja=t.num_caja and "
                                                "r.nota_vta=t.nota_vta)")
                                     .arg(QLatin1String(piece.table)),
                                 {{"caja", kDesk}})
                       .toInt();
    }
    return orphans;
}

}  // namespace

void readLedger(const QString &path, const QString &cashier, Told *told) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return;  // a station that died before its first line
    }
    for (const QByteArray &line : file.readAll().split('\n')) {
        const QString text = QString::fromUtf8(line);
        const QStringList words = text.split(u' ');
        if (words[0] == QLatin1String(kNoteLine) && words.size() == 5) {
            told->notes +=
                ToldNote{words[1].toInt(), cashier, words[2], words[3].toInt(), words[4].toInt()};
        } else if (words[0] == QLatin1String(kToldLine)) {
            ++told->boxes[text.mid(5)];
        } else if (!text.isEmpty()) {
            throw std::runtime_error("no line of a ledger: " + text.toStdString());
        }
    }
}

Verdict judge(const Told &told, Connection &clinic, Connection &finance) {
    Verdict verdict;
    const QHash<int, Found> notes = notesOf(clinic, finance);
    QSet<int> numbers;
    const auto example = [&](const char *fault, const ToldNote &note) {
        verdict.examples += QStringLiteral("%1: note %2 of %3, patient %4")
                                .arg(QLatin1String(fault))
                                .arg(note.number)
                                .arg(note.cashier, note.patient);
    };
    for (const ToldNote &note : told.notes) {
        if (numbers.contains(note.number)) {
            ++verdict.doubled;
            example("doubled", note);
        }
        numbers += note.number;
        const auto found = notes.constFind(note.number);
        if (found == notes.cend() || found->cashier != note.cashier ||
            found->patient != note.patient) {
            ++verdict.lost;
            example("lost", note);
        } else if (found->pieces != expectedPieces(note)) {
            ++verdict.maimed;
            example("maimed", note);
        }
    }
    verdict.orphans = orphansOf(clinic);
    return verdict;
}

}  // namespace kaldo::prove
