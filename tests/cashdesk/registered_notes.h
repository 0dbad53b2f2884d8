#pragma once

#include <QDate>
#include <QString>

#include <vector>

#include "tests/support/test_installation.h"

namespace kaldo::test {

/// A line of a note, by a concept of the price list.
struct NoteLine {
    int codigo = 0;
    double cant = 1;
    double precio = 0;
};

/// A note as its tables hold it once it has been registered.
struct RegisteredNote {
    int nota = 0;
    double importe = 0;
    double pesos = 0;
    double dolares = 0;
    double cheque = 0;
    double chequedll = 0;
    double credito = 0;
    double cambio = 0;
    double beca = 0;
    double tipocambio = 19.5;
    QString status = "GE";
    QString tipoVta = "CONTADO";
    int matricula = 0;
    int numEmpl = 0;
    std::vector<NoteLine> lines = {};

    double complementaria() const { return dolares * tipocambio - dolares; }
    QString nombre() const { return QStringLiteral("PACIENTE %1").arg(nota); }
};

/// Whose notes they are.
struct NotesOf {
    int caja = 0;
    QString usuario;
    QDate fecha;
};

inline void storePayment(Connection &clinic, int caja, const RegisteredNote &note) {
    run(clinic,
        "insert into formapago (num_caja, nota_vta, importe_tot, dolares, pesos, cambio, "
        "prestacion, credito, cheque, chequedll, complementaria, beca, bancomn, bancodll) values "
        "(:caja, :nota, :importe, :dolares, :pesos, :cambio, :prestacion, :credito, :cheque, "
        ":chequedll, :complementaria, :beca, 1, 2)",
        {{"caja", caja},
         {"nota", note.nota},
         {"importe", note.importe},
         {"dolares", note.dolares},
         {"pesos", note.pesos},
         {"cambio", note.cambio},
         {"prestacion", note.beca},
         {"credito", note.credito},
         {"cheque", note.cheque},
         {"chequedll", note.chequedll},
         {"complementaria", note.complementaria()},
         {"beca", note.beca}});
}

inline void store(Connection &clinic, const NotesOf &of, const RegisteredNote &note) {
    run(clinic,
        "insert into registrovtas (num_caja, nota_vta, fecha, tipo_vta, status, capto, "
        "importe_tot, tipocambio, matricula, recibo, tipo_serv) values (:caja, :nota, :fecha, "
        ":tipo, :status, :capto, :importe, :cambio, :matricula, :recibo, 'OTROS SERVICIOS')",
        {{"caja", of.caja},
         {"nota", note.nota},
         {"fecha", of.fecha},
         {"tipo", note.tipoVta},
         {"status", note.status},
         {"capto", of.usuario},
         {"importe", note.importe},
         {"cambio", note.tipocambio},
         {"matricula", note.matricula},
         {"recibo", QStringLiteral("%1-%2").arg(of.caja).arg(note.nota)}});
    run(clinic,
        "insert into vtascontado (num_caja, nota_vta, nombre, imp_total) values (:caja, :nota, "
        ":nombre, :importe)",
        {{"caja", of.caja},
         {"nota", note.nota},
         {"nombre", note.nombre()},
         {"importe", note.importe}});
    run(clinic,
        "insert into pagos_odontologia (num_caja, nota_vta, num_empl) values (:caja, :nota, "
        ":empleado)",
        {{"caja", of.caja}, {"nota", note.nota}, {"empleado", note.numEmpl}});
    storePayment(clinic, of.caja, note);
    int line = 0;
    for (const NoteLine &concept_ : note.lines) {
        run(clinic,
            "insert into detallevtas (num_caja, nota_vta, codigo, tipo_prod, cve_prod, cant, "
            "precio, prog, fondo, ftefinid) values (:caja, :nota, :codigo, 1, :line, :cant, "
            ":precio, 12510, '11', 1400)",
            {{"caja", of.caja},
             {"nota", note.nota},
             {"codigo", concept_.codigo},
             {"line", ++line},
             {"cant", concept_.cant},
             {"precio", concept_.precio}});
    }
}

inline void store(Connection &clinic, const NotesOf &of, const std::vector<RegisteredNote> &notes) {
    for (const RegisteredNote &note : notes) {
        store(clinic, of, note);
    }
}

}  // namespace kaldo::test
