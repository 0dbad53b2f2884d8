#include <QHash>

#include "cashdesk/cut_reports.h"
#include "cashdesk/frm405_cash_cut.h"

namespace kaldo {

namespace {

/// What the list of receipts prints of a line's concept, read once per concept.
class Concepts {
public:
    struct Concept {
        QString nomenclatura;
        QString descr;
    };

    explicit Concepts(NamedQuery &listaPrecios) : listaPrecios_(listaPrecios) {}

    const Concept &of(int codigo) {
        const auto known = read_.constFind(codigo);
        if (known != read_.constEnd()) {
            return *known;
        }
        listaPrecios_.open({{QStringLiteral("codigo"), codigo}});
        return *read_.insert(codigo, {listaPrecios_.text(QStringLiteral("nomenclatura")),
                                      listaPrecios_.text(QStringLiteral("descr"))});
    }

private:
    NamedQuery &listaPrecios_;
    QHash<int, Concept> read_;
};

QList<ReceiptListRow> receiptRows(DMIngresosCaja &caja) {
    Concepts concepts(caja.ListaPrecios1);
    QList<ReceiptListRow> rows;
    NamedQuery &lines = caja.Qry405_5;
    for (bool more = !lines.isEmpty(); more; more = lines.next()) {
        const Concepts::Concept &concept_ = concepts.of(lines.integer(QStringLiteral("codigo")));
        ReceiptListRow row;
        row.notaVta = lines.integer(QStringLiteral("nota_vta"));
        row.clNombre = lines.text(QStringLiteral("CLNombre"));
        row.tipoPago = lines.text(QStringLiteral("tipo_pago"));
        row.importe = lines.number(QStringLiteral("importe"));
        row.nomenclatura = concept_.nomenclatura;
        row.prog = lines.text(QStringLiteral("prog"));
        row.cant = lines.number(QStringLiteral("sum_1"));
        row.precio = lines.number(QStringLiteral("precio"));
        row.descr = concept_.descr;
        rows += row;
    }
    return rows;
}

CutTotals storedTotals(const NamedQuery &pesos) {
    CutTotals totals;
    totals.sumapesos = pesos.number(QStringLiteral("sumapesos"));
    totals.sumadolares = pesos.number(QStringLiteral("sumadolares"));
    totals.sumacheque = pesos.number(QStringLiteral("sumacheque"));
    totals.sumacredito = pesos.number(QStringLiteral("sumacredito"));
    totals.sumapesosche = pesos.number(QStringLiteral("sumapesosche"));
    totals.sumatodo = pesos.number(QStringLiteral("sumatodo"));
    totals.sumadm = pesos.number(QStringLiteral("sumadm"));
    totals.sumadoc = pesos.number(QStringLiteral("sumadoc"));
    totals.sumchdll = pesos.number(QStringLiteral("sumchdll"));
    totals.sumacomplemento = pesos.number(QStringLiteral("sumacomplemento"));
    totals.sumapagoreconocido = pesos.number(QStringLiteral("sumapagoreconocido"));
    return totals;
}

}  // namespace

void FRM405::Reportes() {
    previewRecibos();
    previewResumen();
    if (options().CortesBancarios) {
        previewBancario();
    }
}

void FRM405::previewRecibos() {
    DMIngresosCaja &caja = context().caja;
    caja.Qry405_5.open(
        {{QStringLiteral("usuario"), UsuarioCorte_.text()}, {QStringLiteral("caja"), CajaCorte_}});
    ReceiptList list;
    list.cajaCorte = CajaCorte_;
    list.rows = receiptRows(caja);
    list.saldoFinal = SaldoFinal_.total();
    list.contabilidadGubernamental = options().ContabilidadGubernamental;
    caja.PagoAnticipo.open(
        {{QStringLiteral("fecha"), fechaCorte_},
         {QStringLiteral("caja"), caja.Qry405_2.value(QStringLiteral("num_caja"))}});
    list.pagoAnticipo = caja.PagoAnticipo.number(QStringLiteral("sum"));
    caja.SaldoPaciente.open({{QStringLiteral("caja"), CajaCorte_},
                             {QStringLiteral("nota1"), notaMin_},
                             {QStringLiteral("nota2"), notaMax_}});
    preview(layoutReporteRecibos(heading(cajero()), list), QStringLiteral("Relación de Recibos"));
}

void FRM405::previewResumen() {
    DMIngresosCaja &caja = context().caja;
    caja.ConsultaDolares.open({{QStringLiteral("caja"), CajaCorte_},
                               {QStringLiteral("fcha"), fechaCorte_},
                               {QStringLiteral("usr"), UsuarioCorte_.text()}});
    QList<DollarRow> dollars;
    NamedQuery &rates = caja.ConsultaDolares;
    for (bool more = !rates.isEmpty(); more; more = rates.next()) {
        dollars += DollarRow{rates.number(QStringLiteral("dolares")),
                             rates.number(QStringLiteral("chequedll")),
                             rates.number(QStringLiteral("complementaria")),
                             rates.number(QStringLiteral("tipocambio"))};
    }
    caja.Pesos.open({{QStringLiteral("usr"), UsuarioCorte_.text()},
                     {QStringLiteral("caja"), CajaCorte_},
                     {QStringLiteral("fecha"), fechaCorte_}});
    preview(layoutReporteResumen(heading(cajero()), storedTotals(caja.Pesos), dollars),
            QStringLiteral("Resumen del Corte"));
}

void FRM405::previewBancario() {
    QList<BankCutRow> rows;
    NamedQuery &bank = context().caja.CorteBancario;
    for (bool more = !bank.isEmpty(); more; more = bank.next()) {
        rows += BankCutRow{
            bank.text(QStringLiteral("todo")),      bank.text(QStringLiteral("nomenclatura")),
            bank.text(QStringLiteral("nom_banco")), bank.text(QStringLiteral("ftefto")),
            bank.text(QStringLiteral("fondo")),     bank.text(QStringLiteral("prog")),
            bank.text(QStringLiteral("concepto")),  bank.number(QStringLiteral("importe"))};
    }
    // Whoever runs the cut signs here, also where an administrator cuts a cashier's desk.
    preview(layoutReporteBancario(heading(session().NombreCorto), rows),
            QStringLiteral("Corte Bancario"));
}

CutHeading FRM405::heading(const QString &cajero) const {
    CutHeading heading;
    heading.clinica = options().Clinica;
    heading.segundaLinea = options().Facultad;
    heading.capitals = options().TitulosMayusculas;
    heading.fechaCorte = fechaCorte_;
    heading.printedOn = context().clock.today();
    heading.numCaja = session().NumCaja;
    heading.logoPath = context().installation.map(options().ImgEmpresa);
    heading.notaMin = notaMin_;
    heading.notaMax = notaMax_;
    heading.cajero = cajero;
    return heading;
}

QString FRM405::cajero() const {
    return isAdministrator() ? context().odonto.ControlUsuarios2.text(QStringLiteral("nombrecorto"))
                             : session().NombreCorto.text();
}

void FRM405::preview(const report::Document &document, const QString &title) {
    report::PreviewOptions previewOptions;
    previewOptions.printer = session().ImpresoraIndice;
    previewDocument(context(), this, this, document, title, previewOptions);
}

}  // namespace kaldo
