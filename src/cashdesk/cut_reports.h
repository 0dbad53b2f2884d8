#pragma once

#include "cashdesk/cut_page.h"
#include "cashdesk/cut_totals.h"
#include "toolkit/core/money.h"
#include "toolkit/report/document.h"

#include <QList>
#include <QString>

namespace kaldo {

/// One line of a note in the list of receipts: a row of `Qry405_5` with its price list's texts.
/// The rows of one note follow each other.
struct ReceiptListRow {
    int notaVta = 0;
    QString clNombre;
    QString tipoPago;
    double importe = 0;
    QString nomenclatura;  ///< of the line's concept
    QString prog;
    double cant = 0;
    double precio = 0;
    QString descr;
};

struct ReceiptList {
    int cajaCorte = 0;
    QList<ReceiptListRow> rows;
    Money saldoFinal;
    double pagoAnticipo = 0;  ///< shown, not subtracted
    bool contabilidadGubernamental = false;
};

/// `ReporteRecibos`: every note of the cut with its lines.
report::Document layoutReporteRecibos(const CutHeading &heading, const ReceiptList &list);

/// A row of `ConsultaDolares`: the dollars received at one rate.
struct DollarRow {
    double dolares = 0;
    double chequedll = 0;
    double complementaria = 0;
    double tipocambio = 0;
};

/// `ReporteResumen`: the sums of the cut.
report::Document layoutReporteResumen(const CutHeading &heading, const CutTotals &totals,
                                      const QList<DollarRow> &dollars);

/// A row of `CorteBancario`, in the order of `todo`.
struct BankCutRow {
    QString todo;
    QString nomenclatura;
    QString nomBanco;
    QString ftefto;
    QString fondo;
    QString prog;
    QString concepto;
    double importe = 0;
};

/// `ReporteBancario`: what goes to which bank account.
report::Document layoutReporteBancario(const CutHeading &heading, const QList<BankCutRow> &rows);

}  // namespace kaldo
