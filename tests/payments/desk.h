#pragma once

#include "data/firebird_connection.h"
#include "payments/receipt_printer.h"
#include "payments/registration.h"
#include "tests/payments/sample_note.h"
#include "tests/support/test_station.h"

#include <QStringList>

namespace kaldo::test {

inline constexpr char kRegistered[] =
    "La información ha sido registrada correctamente, presione cualquier tecla para continuar.";
inline constexpr char kFailed[] =
    "Ocurrió un error al tratar de registrar la información. Verifique Recibos Incompletos.";

/// A cash desk that registers notes, without a screen: modules over the databases of an
/// installation, also of one that another process made.
class Desk : public TestStation {
public:
    explicit Desk(const QString &root, int numCaja = 1) : TestStation(root) {
        session.NumCaja = static_cast<qint16>(numCaja);
        session.Usuario = "cajero1";
        session.NombreCorto = "FERNANDA OCHOA";
        session.Turno = "MA";
        session.Origen = "VAN";
        session.Origen2 = "VA";
        session.Centro = "01";
    }

    /// A note over lines of the real price list: `keys` are the concepts' keys in their area.
    NoteDraft note(const QString &service, int tipoProd, const QList<int> &keys, int percent = 0) {
        QList<NoteLine> lines;
        for (const int key : keys) {
            lines += line(tipoProd, key);
        }
        NoteDraft draft = noteDraft(service, lines, percent);
        draft.service.area.tipoProd = tipoProd;
        draft.notaActual = nextNote();
        draft.fecha = clock.today();
        return draft;
    }

    /// The number that the screen reads for a new note.
    int nextNote() {
        caja.DatosCaja1.open({{"caja", session.NumCaja}});
        return caja.DatosCaja1.integer("nota_vta");
    }

    bool registrar(const NoteDraft &draft, const Payment &payment) {
        return registration.registrar(draft, payment).registered;
    }
    /// Registers and expects to be told that all went well.
    bool registers(const NoteDraft &draft, const Payment &payment) {
        messages.expectInformation(kRegistered);
        return registrar(draft, payment);
    }
    /// Registers and expects the box that sends the cashier to the repair.
    bool fails(const NoteDraft &draft, const Payment &payment) {
        messages.expectWarning(kFailed);
        return !registrar(draft, payment);
    }

    ReceiptPrinter receipt{context};
    Registration registration{context, receipt};

private:
    NoteLine line(int tipoProd, int key) {
        NamedQuery &prices = caja.ListaPrecios;
        prices.open({{"tipo_prod", tipoProd}});
        if (!prices.locate({{"cve_prod", key}})) {
            throw std::runtime_error("no such concept");
        }
        NoteLine line = noteLine(1, prices.number("menudeo"), prices.text("descr"));
        line.codigo = prices.integer("codigo");
        line.tipoProd = tipoProd;
        line.cveProd = key;
        line.prog = prices.text("prog").isEmpty() ? QStringLiteral("12510") : prices.text("prog");
        line.subsubcta = prices.integer("subsubcta");
        return line;
    }
};

/// What stands in the databases, looked at behind the program's back.
class Records {
public:
    /// `server`: "host/port:", or nothing for the files themselves.
    explicit Records(const QString &root, const QString &server = {})
        : clinic(QStringLiteral("clinic"), {}), finance(QStringLiteral("finance"), {}) {
        clinic.setDatabase(server + root + QStringLiteral("/DataBase/BD_ODONTOLOGIA.GDB"));
        finance.setDatabase(server + root + QStringLiteral("/DataBase/BD_FINANZAS.GDB"));
    }

    /// The rows as text: columns parted by "|", rows by "; ".
    QString rows(const QString &table, const QString &columns, const QString &where) {
        QStringList all;
        for (const QVariantList &row :
             rowsOf(clinic, QStringLiteral("select %1 from %2 where %3 order by 1, 2")
                                .arg(columns, table, where))) {
            QStringList texts;
            for (const QVariant &value : row) {
                texts += text(value);
            }
            all += texts.join('|');
        }
        return all.join("; ");
    }

    int count(const QString &table, const QString &where) {
        return valueOf(clinic, "select count(*) from " + table + " where " + where).toInt();
    }

    int folio() { return valueOf(clinic, "select folioad from control").toInt(); }

    /// What a note has left so far, and where its counters stand.
    QString ofNote(int caja, int nota, int firstFolio) {
        const QString note = QStringLiteral("num_caja = %1 and nota_vta = %2").arg(caja).arg(nota);
        QStringList all;
        for (const char *table :
             {"registrovtas", "pagos_odontologia", "formapago", "vtascontado", "detallepago",
              "metodopagonota", "detallevtas", "historicoodontologia", "admision"}) {
            all += QStringLiteral("%1 %2").arg(table).arg(count(table, note));
        }
        const QString folio = QStringLiteral("folio >= %1").arg(firstFolio);
        all += QStringLiteral("datosgenerales %1").arg(count("datosgenerales", folio));
        all += QStringLiteral("antecedentes %1").arg(count("antecedentes", folio));
        all +=
            QStringLiteral("iva %1").arg(count("detallevtas", note + " and tipofactoriva <> ''"));
        all += QStringLiteral("finanzas %1")
                   .arg(valueOf(finance, "select count(*) from recibopago where " + note).toInt());
        all += QStringLiteral("siguiente +%1")
                   .arg(valueOf(clinic, QStringLiteral("select nota_vta from datoscaja where "
                                                       "num_caja = %1")
                                            .arg(caja))
                            .toInt() -
                        nota);
        return all.join(", ");
    }

    /// Removes a half-written note, as the repair of the cash desk does.
    void repair(int caja, int nota) {
        const Parameters note{{"caja", caja}, {"nota", nota}};
        run(clinic, "execute procedure kdborrardetallevtas(:caja, :nota)", note);
        run(clinic, "execute procedure kdborraradmision(:caja, :nota, 'VAN')", note);
        run(clinic, "execute procedure sp550(:caja, :nota)", note);
        run(finance, "execute procedure borrarpago(:caja, :nota)", note);
    }

    FirebirdConnection clinic;
    FirebirdConnection finance;

private:
    static QString text(const QVariant &value) {
        if (!value.isValid()) {
            return QStringLiteral("NULL");
        }
        return value.typeId() == QMetaType::Double  ? QString::number(value.toDouble(), 'g', 12)
               : value.typeId() == QMetaType::QDate ? value.toDate().toString(Qt::ISODate)
                                                    : value.toString();
    }
};

}  // namespace kaldo::test
