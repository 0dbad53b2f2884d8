#include "catalogues/bank_copy.h"

#include <QMap>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace kaldo {

namespace {

/// Rows by bank, in an order that two databases share.
QMap<qint64, QList<Parameters>> byBank(NamedQuery &query, const QStringList &columns) {
    QMap<qint64, QList<Parameters>> rows;
    query.open();
    for (int row = 0; row < query.count(); ++row) {
        Parameters values;
        for (const QString &column : columns) {
            values.append({column, query.valueAt(row, column)});
        }
        rows[query.valueAt(row, u"bancoid"_s).toLongLong()] += values;
    }
    query.close();
    return rows;
}

/// The texts of rows: the two databases may keep a number in columns of different width.
QStringList texts(const QList<Parameters> &rows) {
    QStringList lines;
    for (const Parameters &row : rows) {
        QStringList values;
        for (const auto &value : row) {
            values += value.second.toString();
        }
        lines += values.join(u'\t');
    }
    lines.sort();
    return lines;
}

void update(NamedQuery &source, NamedQuery &copy, const QStringList &columns, Command &erase,
            Command &write) {
    QMap<qint64, QList<Parameters>> wanted = byBank(source, columns);
    const QMap<qint64, QList<Parameters>> kept = byBank(copy, columns);
    for (auto bank = kept.keyBegin(); bank != kept.keyEnd(); ++bank) {
        wanted[*bank];  // none, where finance has it no more
    }
    for (auto bank = wanted.cbegin(); bank != wanted.cend(); ++bank) {
        const QList<Parameters> old = kept.value(bank.key());
        if (texts(*bank) == texts(old)) {
            continue;
        }
        if (!old.isEmpty()) {
            erase.execute({{u"bancoid"_s, bank.key()}});
        }
        for (const Parameters &row : *bank) {
            write.execute(row);
        }
    }
}

}  // namespace

void updateBankCopy(Context &context) {
    if (!context.session.isFirebird()) {
        return;
    }
    DMIngresosCaja &caja = context.caja;
    update(context.finanzas.BancosTodos, caja.BancosCopia,
           {u"bancoid"_s, u"generoid"_s, u"grupoid"_s, u"cgrubroid"_s, u"cuentaid"_s, u"subctaid"_s,
            u"subsubctaid"_s, u"nomenclatura"_s, u"descripcion"_s, u"tipomoneda"_s,
            u"posleftnumcheque"_s},
           caja.BorraBanco, caja.CopiaBanco);
    update(context.finanzas.BancoProgramasTodos, caja.BancoProgramasCopia,
           {u"bancoid"_s, u"programaid"_s}, caja.BorraBancoProgramas, caja.CopiaBancoPrograma);
}

}  // namespace kaldo
