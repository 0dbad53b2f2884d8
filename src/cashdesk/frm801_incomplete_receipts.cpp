#include "cashdesk/frm801_incomplete_receipts.h"

#include "toolkit/forms/form.h"

namespace kaldo {

FRM801::FRM801(Context &context)
    : Dialog(context, QStringLiteral("FRM801"), QStringLiteral("Recibos Incompletos")) {}

void FRM801::build() {
    using namespace form;
    form::build(
        this,
        column({
            row({label(QStringLiteral("Ultimo Folio Registrado:")),
                 label(&UltimoFolio_, QStringLiteral("UltimoFolio")).heading(), stretch()}),
            line(),
            label(QStringLiteral("IMPORTANTE")).bold(),
            label(QStringLiteral(
                      "Con este proceso se verifica si existe alguna nota de venta registrada de "
                      "manera incompleta para corregirla, o bien, incrementar el folio si se "
                      "detecta que ese es el problema."))
                .wrap()
                .fill()
                .with(
                    [](QLabel *text) { text->setMinimumWidth(text->fontMetrics().height() * 26); }),
            stretch(),
            row({stretch(), button(&Procesar_, QStringLiteral("Procesar"),
                                   QStringLiteral("&Procesar Verificación"))
                                .icon(QStringLiteral("repair"))
                                .clicked([this] { procesarVerificacion(); })}),
        }));
}

void FRM801::activated() {
    Max_.reset();
    UltimoFolio_->clear();
    NamedQuery &ultima = context().caja.UltimaNota;
    ultima.open({{QStringLiteral("caja"), session().NumCaja}});
    Max_ = ultima.value(QStringLiteral("max")).toLongLong();
    UltimoFolio_->setText(QString::number(*Max_));
}

void FRM801::procesarVerificacion() {
    if (!Max_) {
        // Never by the number of an earlier day: it would take a sound note for the last one.
        activated();
    }
    NamedQuery &caja = context().caja.DatosCaja1;
    caja.open({{QStringLiteral("caja"), session().NumCaja}});
    const qint64 siguiente = caja.value(QStringLiteral("nota_vta")).toLongLong();
    if (siguiente == *Max_ + 1) {
        messages().information(
            QStringLiteral("La información se encuentra registrada correctamente"),
            QStringLiteral("Información"));
    } else if (siguiente == *Max_) {
        borrarUltimaNota();
    } else {
        corregirConsecutivo();
    }
}

void FRM801::corregirConsecutivo() {
    context().caja.UDatosCaja.execute(
        {{QStringLiteral("nota"), *Max_ + 1}, {QStringLiteral("caja"), session().NumCaja}});
    messages().information(
        QStringLiteral("Se corrigió el consecutivo de notas, vuelva a intentar"));
}

void FRM801::borrarUltimaNota() {
    DMIngresosCaja &caja = context().caja;
    DMOdonto &odonto = context().odonto;
    const Parameters note{{QStringLiteral("num_caja"), session().NumCaja},
                          {QStringLiteral("nota_vta"), *Max_}};
    caja.RegistroVtas.open(note);
    if (caja.RegistroVtas.isEmpty() || caja.RegistroVtas.integer(QStringLiteral("polizaid")) > 0) {
        return;
    }
    const QString servicio = caja.RegistroVtas.text(QStringLiteral("tipo_serv"));
    Parameters noteOfCampus = note;
    noteOfCampus.append({QStringLiteral("ciudad"), session().Origen.text()});

    caja.BorrarDetalleVtas.execute(note);
    if (servicio == QLatin1String("ADMISION")) {
        odonto.AdmisionNota.open(
            {{QStringLiteral("caja"), session().NumCaja}, {QStringLiteral("nota"), *Max_}});
        odonto.BorrarAdmision.execute(noteOfCampus);
    }
    if (servicio == QLatin1String("APERTURA DE EXPEDIENTE")) {
        odonto.BorrarExpediente.execute(noteOfCampus);
    }
    caja.SP550.execute(note);
    if (session().isFirebird()) {
        context().finanzas.BorrarPago.execute(note);
    }
    messages().information(QStringLiteral(
        "La última nota se encontró registrada de manera incompleta, vuelva a captarla"));
    caja.FolioNota.execute(
        {{QStringLiteral("nota"), *Max_}, {QStringLiteral("caja"), session().NumCaja}});
    activated();
}

}  // namespace kaldo
