#include <QScopeGuard>

#include <limits>

#include "data/runtime_texts.h"
#include "payments/frm401_payment_note.h"
#include "payments/line_rules.h"
#include "payments/totals.h"

namespace kaldo {

namespace {

const QString &clave() {
    static const QString field = QStringLiteral("CVE_PROD");
    return field;
}

constexpr int kHighestQuantity = std::numeric_limits<qint16>::max();
/// What the payment dialog can take.
constexpr double kHighestPrice = 999999999.99;

}  // namespace

void FRM401::wireGrid() {
    grid_->setSortable(false);  // lines stand as they were written
    // The picked concept becomes the price list's current row before anything else looks at it.
    connectGuarded(grid_, &DataGrid::closedUp, this, [this](const QString &, int row) {
        precios_->moveTo(row);
        closeUpClave();
        claveRechazada_ = false;
    });
    connectGuarded(grid_, &DataGrid::resolved, this, [this](const QString &, int row) {
        if (row >= 0) {
            precios_->moveTo(row);
            closeUpClave();
            claveRechazada_ = claveVacia();
            return;
        }
        claveRechazada_ = true;
        messages().information(
            QStringLiteral("La clave no se encuentra en la lista de precios, vuelva a intentar."));
    });
    grid_->setDoubleClickHandler([this] { descripcionAdicional(); });
    grid_->setEscapeHandler([this] {
        if (Editando_) {
            cancelarRegistro();
        }
    });
}

void FRM401::agregarRegistro() {
    registrar_->setEnabled(false);
    setListsEnabled(false);
    NamedQuery &lines = context().local.FBDetalleVtas;
    lines.append();
    lines.set(QStringLiteral("NUM_CAJA"), int(session().NumCaja));
    lines.set(QStringLiteral("NOTA_VTA"), Edit1_->text().toInt());
    lines.set(QStringLiteral("TIPO_PROD"), tipoProd());
    Editar();
    grid_->setCurrentField(clave());
    moveFocus(grid_);
}

void FRM401::Editar() {
    Editando_ = true;
    claveRechazada_ = false;
    agregar_->setEnabled(false);
    borrar_->setEnabled(false);
    cancelar_->setEnabled(true);
    grid_->setRowSelection(true);
}

void FRM401::NoEditar() {
    Editando_ = false;
    grid_->setRowSelection(false);
    grabar_->setEnabled(false);
    cancelar_->setEnabled(false);
    const bool any = !context().local.FBDetalleVtas.isEmpty();
    const bool missing = payerMissing();
    agregar_->setEnabled(!missing);
    borrar_->setEnabled(any);
    registrar_->setEnabled(any && !missing);
    showTotals();
}

/// The amounts follow from the lines as they are saved. Nothing is rounded.
void FRM401::showTotals() {
    const double subtotal = subtotalOf(lines());
    const NoteTotals totals = noteTotals(subtotal, PorcPrestacion_);
    subtotal_->setValue(subtotal);
    CEdit1_->setValue(totals.prestacion);
    CEdit2_->setValue(0);
    CEdit3_->setValue(totals.importeTotal);
}

QList<NoteLine> FRM401::lines() {
    NamedQuery &table = context().local.FBDetalleVtas;
    QList<NoteLine> result;
    for (int row = 0; row < table.count(); ++row) {
        const auto value = [&](const char *field) {
            return table.valueAt(row, QString::fromLatin1(field));
        };
        NoteLine line;
        line.codigo = value("CODIGO").toInt();
        line.tipoProd = value("TIPO_PROD").toInt();
        if (value("CVE_PROD").isValid()) {
            line.cveProd = value("CVE_PROD").toInt();
        }
        line.descripcion = value("DESCRIPCION").toString();
        line.cant = value("CANT").toInt();
        line.precio = value("PRECIO").toDouble();
        line.total = value("TOTAL").toDouble();
        line.prog = value("PROG").toString();
        line.subsubcta = value("SUBSUBCTA").toInt();
        line.claveProdServ = value("CLAVEPRODSERV").toInt();
        line.descAdic = value("DESC_ADIC").toString();
        line.nomenclatura = value("NOMENCLATURA").toString();
        line.porcentaje = value("PORCENTAJE").toDouble();
        result += line;
    }
    return result;
}

bool FRM401::claveVacia() const {
    return !context().local.FBDetalleVtas.value(clave()).isValid();
}

/// The row has no concept yet, or that of another key than it shows.
bool FRM401::conceptoPendiente() const {
    const NamedQuery &lines = context().local.FBDetalleVtas;
    return lines.isNull(QStringLiteral("CODIGO")) || lines.value(clave()) != ClaveActual_;
}

void FRM401::clearClave() {
    context().local.FBDetalleVtas.set(clave(), QVariant());
}

void FRM401::stayInColumn(const QString &field) {
    stayHere();
    grid_->setCurrentField(field);
}

void FRM401::closeUpClave() {
    if (!treatmentAllowed()) {
        clearClave();
    }
}

/// Some treatments of the FACE area are charged to a dossier once at a time. False after telling
/// that the price list's current one is not charged now.
bool FRM401::treatmentAllowed() {
    const int codigo = precios_->integer(QStringLiteral("CODIGO"));
    if (Edit2_->text().isEmpty() || !needsTreatmentCheck(tipoProd(), codigo)) {
        return true;
    }
    NamedQuery &check = context().caja.verifica_pagodetratamiento_p;
    check.open(
        {{QStringLiteral("P_EXPEDIENTE"), Edit2_->text()}, {QStringLiteral("P_CODIGO"), codigo}});
    if (check.integer(QStringLiteral("VALOR")) != 0) {
        return true;
    }
    messages().information(check.text(QStringLiteral("MENSAJE")));
    return false;
}

void FRM401::enterColumn(const QString &field) {
    if (!Editando_) {
        return;
    }
    if (field == clave()) {
        enterClave();
    } else if (field == QLatin1String("CANT")) {
        enterCantidad();
    } else if (field == QLatin1String("PRECIO")) {
        enterPrecio();
    }
}

void FRM401::enterClave() {
    if (std::exchange(claveRechazada_, false)) {
        stayInColumn(clave());
        return;
    }
    const QVariant key = context().local.FBDetalleVtas.value(clave());
    if (!key.isValid() && precios_->isEmpty()) {
        messages().information(QStringLiteral(
            "La clave es campo obligatorio, presione cualquier tecla para continuar."));
        stayInColumn(clave());
        return;
    }
    ClaveActual_ = key;
    ClaveRepetida_->setText(claveRepetidaText(key));
    ClaveRepetida_->open();
    if (!ClaveRepetida_->isEmpty() || conceptoRepetido()) {
        clearClave();
        messages().information(QStringLiteral(
            "La clave ya se encuentra registrada, presione cualquier tecla para continuar."));
        stayInColumn(clave());
        return;
    }
    // An empty key takes a concept that nobody picked.
    if (!key.isValid() && !treatmentAllowed()) {
        stayInColumn(clave());
        return;
    }
    takeConcept();
    grabar_->setEnabled(true);
    stayInColumn(QStringLiteral("DESCRIPCION"));
}

/// Another line charges the price list's current concept already, perhaps under an empty "Clave":
/// a note that charges it twice could not be registered.
bool FRM401::conceptoRepetido() {
    const NamedQuery &table = context().local.FBDetalleVtas;
    const int codigo = precios_->integer(QStringLiteral("CODIGO"));
    const QList<NoteLine> all = lines();
    for (int row = 0; row < all.size(); ++row) {
        if (row != table.position() && all.at(row).codigo == codigo) {
            return true;
        }
    }
    return false;
}

/// The line takes what the price list's current row says, also where "Clave" was left empty.
void FRM401::takeConcept() {
    NamedQuery &lines = context().local.FBDetalleVtas;
    for (const char *field : {"CODIGO", "SUBSUBCTA", "CLAVEPRODSERV", "NOMENCLATURA"}) {
        const QString name = QString::fromLatin1(field);
        lines.set(name, precios_->value(name));
    }
    lines.set(QStringLiteral("DESCRIPCION"), precios_->value(QStringLiteral("DESCR")));
    // What an older list holds in fractions of a centavo is charged as it is shown.
    const QVariant price = precios_->value(QStringLiteral("MENUDEO"));
    lines.set(QStringLiteral("PRECIO"),
              price.isValid() ? QVariant(roundedToCents(price.toDouble())) : price);
    const QString prog = precios_->text(QStringLiteral("PROG"));
    lines.set(QStringLiteral("PROG"), prog.isEmpty() ? session().Prog.text() : prog);
}

void FRM401::enterCantidad() {
    const NamedQuery &lines = context().local.FBDetalleVtas;
    if (lines.number(QStringLiteral("CANT")) <= 0) {
        messages().information(QStringLiteral("Campo obligatorio, vuelva a intentar."));
        stayInColumn(QStringLiteral("CANT"));
    } else if (!cantidadCabe()) {
        stayInColumn(QStringLiteral("CANT"));
    } else if (Editando_ && lines.number(QStringLiteral("PRECIO")) > 0) {
        grabarInformacion();
    } else {
        stayInColumn(QStringLiteral("PRECIO"));
    }
}

bool FRM401::cantidadCabe() {
    if (context().local.FBDetalleVtas.number(QStringLiteral("CANT")) <= kHighestQuantity) {
        return true;
    }
    messages().warning(QStringLiteral("La cantidad no puede ser mayor que %1, vuelva a intentar.")
                           .arg(kHighestQuantity));
    return false;
}

void FRM401::enterPrecio() {
    if (!precioCabe()) {
        stayInColumn(QStringLiteral("PRECIO"));
        return;
    }
    if (context().local.FBDetalleVtas.number(QStringLiteral("PRECIO")) > 0) {
        grabarInformacion();
        return;
    }
    messages().information(QStringLiteral(
        "El precio debe ser mayor que cero, presione cualquier tecla para continuar."));
    stayInColumn(QStringLiteral("CANT"));
}

bool FRM401::precioCabe() {
    if (context().local.FBDetalleVtas.number(QStringLiteral("PRECIO")) <= kHighestPrice) {
        return true;
    }
    messages().warning(QStringLiteral("El precio no puede ser mayor que %1, vuelva a intentar.")
                           .arg(formatMoney(kHighestPrice)));
    return false;
}

void FRM401::grabarInformacion() {
    NamedQuery &table = context().local.FBDetalleVtas;
    if (!grid_->commitEditor()) {
        return;
    }
    if (conceptoPendiente()) {
        moveFocus(grid_);
        enterClave();
        return;
    }
    if (!cantidadCabe()) {
        grid_->setCurrentField(QStringLiteral("CANT"));
        moveFocus(grid_);
        return;
    }
    if (!precioCabe()) {
        grid_->setCurrentField(QStringLiteral("PRECIO"));
        moveFocus(grid_);
        return;
    }
    if (table.isNull(QStringLiteral("CANT")) || table.isNull(QStringLiteral("PRECIO"))) {
        messages().information(
            QStringLiteral("Ocurrio un error, verifique que los datos esten completos."));
    }
    table.set(QStringLiteral("TOTAL"), lineTotal(table.integer(QStringLiteral("CANT")),
                                                 table.number(QStringLiteral("PRECIO"))));
    const QVariant codigo = table.value(QStringLiteral("CODIGO"));
    table.post();
    table.apply();
    table.reopen();
    table.locate({{QStringLiteral("CODIGO"), codigo}});
    NoEditar();
    moveFocus(agregar_);
}

void FRM401::cancelarRegistro() {
    NamedQuery &table = context().local.FBDetalleVtas;
    grid_->cancelEditor();
    table.cancelUpdates();
    table.reopen();
    if (table.isEmpty()) {
        setListsEnabled(true);
    }
    NoEditar();
    moveFocus(agregar_);
}

void FRM401::borrarRegistro() {
    NamedQuery &table = context().local.FBDetalleVtas;
    if (messages().confirmLoss(QStringLiteral("¿Desea borrar este concepto?"), grid_->rowText()) ==
        Answer::Yes) {
        auto backAgain = qScopeGuard([&table] { table.cancelUpdates(); });
        table.remove();
        table.apply();
        backAgain.dismiss();
        table.reopen();
    }
    if (table.isEmpty()) {
        setListsEnabled(true);
    }
    NoEditar();
    moveFocus(agregar_);
}

void FRM401::descripcionAdicional() {
    NamedQuery &table = context().local.FBDetalleVtas;
    if (Editando_ || table.isEmpty()) {
        return;
    }
    table.edit();
    descripcionAdicional_.showModal(this);
    moveFocus(grid_);
}

}  // namespace kaldo
