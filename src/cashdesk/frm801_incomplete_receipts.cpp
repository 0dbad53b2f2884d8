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
    Vista_.reset();
    UltimoFolio_->clear();
    const Parameters desk{{QStringLiteral("caja"), session().NumCaja}};
    DMIngresosCaja &caja = context().caja;
    caja.UltimaNota.open(desk);
    // DatosCaja1 is the note's, which goes on from where it stands.
    caja.DatosCajaUsuario.open(desk);
    Vista_ = DeskFigures{caja.UltimaNota.value(QStringLiteral("max")).toLongLong(),
                         caja.DatosCajaUsuario.value(QStringLiteral("nota_vta")).toLongLong()};
    UltimoFolio_->setText(QString::number(Vista_->ultima));
}

void FRM801::procesarVerificacion() {
    if (!Vista_) {
        // Never by the number of an earlier day: it would take a sound note for the last one.
        activated();
    }
    NamedQuery &caja = context().caja.DatosCaja1;
    caja.open({{QStringLiteral("caja"), session().NumCaja}});
    const qint64 siguiente = caja.value(QStringLiteral("nota_vta")).toLongLong();
    if (siguiente == Vista_->ultima + 1) {
        messages().information(
            QStringLiteral("La información se encuentra registrada correctamente"),
            QStringLiteral("Información"));
    } else if (siguiente == Vista_->ultima) {
        borrarUltimaNota();
    } else {
        corregirConsecutivo();
    }
}

void FRM801::corregirConsecutivo() {
    {
        const DeskReservation desk(context().caja, session().NumCaja, *Vista_);
        if (!desk.held()) {
            avisarOtraEstacion();
            return;
        }
        context().caja.UDatosCaja.execute({{QStringLiteral("nota"), Vista_->ultima + 1},
                                           {QStringLiteral("caja"), session().NumCaja}});
        Vista_->siguiente = Vista_->ultima + 1;
    }
    messages().information(
        QStringLiteral("Se corrigió el consecutivo de notas, vuelva a intentar"));
}

void FRM801::borrarUltimaNota() {
    {
        const DeskReservation desk(context().caja, session().NumCaja, *Vista_);
        if (!desk.held()) {
            avisarOtraEstacion();
            return;
        }
        NamedQuery &head = context().caja.RegistroVtas;
        head.open({{QStringLiteral("num_caja"), session().NumCaja},
                   {QStringLiteral("nota_vta"), Vista_->ultima}});
        if (head.isEmpty()) {
            // What an earlier press has left: finance comes after the head.
            borrarDeFinanzas();
            return;
        }
        if (head.integer(QStringLiteral("polizaid")) > 0) {
            return;
        }
        borrarNota(head.text(QStringLiteral("tipo_serv")));
    }
    messages().information(QStringLiteral(
        "La última nota se encontró registrada de manera incompleta, vuelva a captarla"));
    devolverNumero();
    activated();
    if (options().GenerarEstadisticas) {
        context().frame.refreshDeskFigures();
    }
}

void FRM801::borrarNota(const QString &servicio) {
    DMIngresosCaja &caja = context().caja;
    DMOdonto &odonto = context().odonto;
    const Parameters note{{QStringLiteral("num_caja"), session().NumCaja},
                          {QStringLiteral("nota_vta"), Vista_->ultima}};
    Parameters noteOfCampus = note;
    noteOfCampus.append({QStringLiteral("ciudad"), session().Origen.text()});

    caja.BorrarDetalleVtas.execute(note);
    if (servicio == QLatin1String("ADMISION")) {
        odonto.AdmisionNota.open({{QStringLiteral("caja"), session().NumCaja},
                                  {QStringLiteral("nota"), Vista_->ultima}});
        odonto.BorrarAdmision.execute(noteOfCampus);
    }
    if (servicio == QLatin1String("APERTURA DE EXPEDIENTE")) {
        odonto.BorrarExpediente.execute(noteOfCampus);
    }
    caja.SP550.execute(note);
    borrarDeFinanzas();
}

void FRM801::borrarDeFinanzas() {
    if (session().isFirebird()) {
        context().finanzas.BorrarPago.execute({{QStringLiteral("num_caja"), session().NumCaja},
                                               {QStringLiteral("nota_vta"), Vista_->ultima}});
    }
}

void FRM801::devolverNumero() {
    // While the box stood there, another station may have used the number.
    const DeskReservation desk(context().caja, session().NumCaja, {Vista_->ultima, Vista_->ultima});
    if (desk.held()) {
        context().caja.FolioNota.execute({{QStringLiteral("nota"), Vista_->ultima},
                                          {QStringLiteral("caja"), session().NumCaja}});
    }
}

void FRM801::avisarOtraEstacion() {
    const DeskFigures antes = *Vista_;
    activated();
    if (*Vista_ == antes) {
        messages().warning(
            QStringLiteral("Otra estación está trabajando con la última nota de esta caja. No se "
                           "modificó nada; espere un momento y vuelva a intentar."),
            QStringLiteral("Información"));
    } else {
        messages().warning(
            QStringLiteral("Otra estación registró una nota de esta caja mientras tanto. No se "
                           "modificó nada; revise el último folio y vuelva a intentar."),
            QStringLiteral("Información"));
    }
}

}  // namespace kaldo
