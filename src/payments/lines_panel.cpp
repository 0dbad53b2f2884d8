#include "payments/lines_panel.h"

#include <QKeyEvent>
#include <QScopeGuard>

#include <limits>
#include <utility>

#include "app/binding.h"
#include "data/query_rows.h"
#include "data/runtime_texts.h"
#include "payments/totals.h"

namespace kaldo {

namespace {

const QString &clave() {
    static const QString field = QStringLiteral("CVE_PROD");
    return field;
}
const QString &cantidad() {
    static const QString field = QStringLiteral("CANT");
    return field;
}
const QString &precio() {
    static const QString field = QStringLiteral("PRECIO");
    return field;
}

constexpr int kOldestChild = 14;
/// Above it a quantity is more likely a key or a price in the wrong column.
constexpr int kLargeQuantity = 999;
constexpr int kHighestQuantity = std::numeric_limits<qint16>::max();
/// What the payment dialog can take.
constexpr double kHighestPrice = 999999999.99;

/// The columns of the working table that the cashier sees. Only what a person types is editable.
QList<GridColumn> lineColumns() {
    return {
        GridColumn(clave(), QStringLiteral("Clave"), 9).align(Qt::AlignLeft).editable(),
        GridColumn(QStringLiteral("DESCRIPCION"), QStringLiteral("Descripción"), 50)
            .editable()
            .upper()
            .limit(200)
            .stretch(),
        GridColumn(cantidad(), QStringLiteral("Cant"), 7)
            .mask(CellMask::Integer)
            .limit(9)
            .allowed(QStringLiteral("0123456789-"))
            .editable(),
        GridColumn(precio(), QStringLiteral("Precio"), 13)
            .mask(CellMask::MoneyTight)
            .limit(15)
            .allowed(QStringLiteral("0123456789.,$ "))
            .editable(),
        GridColumn(QStringLiteral("TOTAL"), QStringLiteral("Total"), 15)
            .mask(CellMask::MoneyTight)
            .sum(CellMask::MoneyTight),
        GridColumn(QStringLiteral("PORCENTAJE"), QStringLiteral("Porcentaje"), 13)
            .mask(CellMask::MoneySpaced)
            .sum(CellMask::MoneySpaced)
            .hidden(),
    };
}

NoteLine lineOf(const QueryRow &row) {
    NoteLine line;
    line.codigo = row.value(QStringLiteral("CODIGO")).toInt();
    line.tipoProd = row.value(QStringLiteral("TIPO_PROD")).toInt();
    if (const QVariant key = row.value(clave()); key.isValid()) {
        line.cveProd = key.toInt();
    }
    line.descripcion = row.text(QStringLiteral("DESCRIPCION"));
    line.cant = row.value(cantidad()).toInt();
    line.precio = row.value(precio()).toDouble();
    line.total = row.value(QStringLiteral("TOTAL")).toDouble();
    line.prog = row.text(QStringLiteral("PROG"));
    line.subsubcta = row.value(QStringLiteral("SUBSUBCTA")).toInt();
    line.claveProdServ = row.value(QStringLiteral("CLAVEPRODSERV")).toInt();
    line.descAdic = row.text(QStringLiteral("DESC_ADIC"));
    line.nomenclatura = row.text(QStringLiteral("NOMENCLATURA"));
    line.porcentaje = row.value(QStringLiteral("PORCENTAJE")).toDouble();
    return line;
}

}  // namespace

LinesPanel::LinesPanel(Context &context, Guard mayCharge)
    : ScreenBase(context),
      mayCharge_(std::move(mayCharge)),
      descripcionAdicional_(context),
      ClaveRepetida_(context.local.newQuery("ClaveRepetida")),
      ListaPreciosFace_(context.caja.newQuery("ListaPrecios")),
      precios_(&context.caja.ListaPrecios) {}

// ---- The form

form::Item LinesPanel::items() {
    using namespace form;
    const auto rowButton = [this](Button **where, const char *name, const char *caption,
                                  const char *icon, const char *hint,
                                  void (LinesPanel::*handler)()) {
        return button(where, QString::fromLatin1(name), QString::fromUtf8(caption))
            .icon(QString::fromLatin1(icon))
            .hint(QString::fromUtf8(hint))
            .clicked([this, handler] { (this->*handler)(); });
    };
    return column({row({rowButton(&agregar_, "AgregarRegistro", "A&gregar Registro", "insert",
                                  "Agregar Registro (Insert)", &LinesPanel::agregarRegistro),
                        rowButton(&borrar_, "BorrarRegistro", "&Borrar Registro", "delete",
                                  "Borrar Registro (Ctrl+Supr)", &LinesPanel::borrarRegistro),
                        rowButton(&grabar_, "GrabarInformacion", "Grabar &Información", "save",
                                  "Grabar Información", &LinesPanel::grabarInformacion),
                        rowButton(&cancelar_, "CancelarRegistro", "Ca&ncelar Registro", "undo",
                                  "Cancelar Registro (Esc)", &LinesPanel::cancelarRegistro)
                            .escape(),
                        stretch()}),
                   grid(&grid_, QStringLiteral("Detalle"))
                       .accessible(QStringLiteral("Conceptos de la nota"))
                       .hint(QStringLiteral("Doble clic o F6: Descripción Adicional"))
                       .columns(lineColumns())
                       .enterColumn([this](const QString &field) { enterColumn(field); })
                       .key(Qt::Key_F6, [this] { descripcionAdicional(); })
                       .grow()});
}

void LinesPanel::attach() {
    bindGrid(grid_, &table());
    connectGuarded(grid_, &DataGrid::closedUp, this,
                   [this](const QString &, int row) { conceptPicked(row); });
    // What there is to say of a typed key is said when the cell is left: a box now would take the
    // focus from the editor that is being closed.
    connectGuarded(grid_, &DataGrid::resolved, this, [this](const QString &, int row) {
        claveDesconocida_ = row < 0;
        if (row >= 0) {
            precios_->moveTo(row);
        }
    });
    grid_->setTabHeld(true);
    grid_->setSortable(false);
    grid_->installEventFilter(this);
    grid_->setDoubleClickHandler([this] { descripcionAdicional(); });
    grid_->setSortable(false);  // the lines stand in the order in which they were typed
    grid_->setEscapeHandler([this] {
        if (editing_) {
            cancelarRegistro();
        }
    });
}

/// F2 and what is typed on a saved line open it; the stroke goes on into the cell. No Tab leaves a
/// row that is open.
bool LinesPanel::eventFilter(QObject *watched, QEvent *event) {
    if (watched != grid_ || event->type() != QEvent::KeyPress) {
        return QObject::eventFilter(watched, event);
    }
    const auto *key = static_cast<QKeyEvent *>(event);
    if (editing_) {
        return key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab;
    }
    const bool shortcut = key->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    const bool types = !shortcut && !key->text().isEmpty() && key->text().at(0).isPrint();
    if (!types && key->key() != Qt::Key_F2) {
        return false;
    }
    runGuarded([this] { corregirRegistro(); });
    return !editing_;
}

void LinesPanel::detach() {
    grid_->setModel(nullptr);
}

void LinesPanel::enable(const NoteButtons &on) {
    agregar_->setEnabled(on.agregar);
    borrar_->setEnabled(on.borrar);
    grabar_->setEnabled(on.grabar);
    cancelar_->setEnabled(on.cancelar);
}

void LinesPanel::focus() {
    moveFocus(editing_ ? static_cast<QWidget *>(grid_) : agregar_);
}

// ---- The price list

bool LinesPanel::openPrices(int tipoProd) {
    tipoProd_ = tipoProd;
    precios_ = &context().caja.ListaPrecios;
    precios_->open({{QStringLiteral("tipo_prod"), tipoProd}});
    showPriceList();
    return !precios_->isEmpty();
}

void LinesPanel::openPricesForAge(int edad) {
    ListaPreciosFace_->setText(listaPreciosFaceText(tipoProd_, edad <= kOldestChild));
    ListaPreciosFace_->open();
    precios_ = ListaPreciosFace_.get();
    showPriceList();
}

/// "Clave" of the grid chooses from the list in force, by key or by words of the description.
void LinesPanel::showPriceList() {
    grid_->setLookup(
        clave(), {precios_,
                  clave(),
                  QStringLiteral("DESCR"),
                  {{clave(), QStringLiteral("Clave"), 7, CellMask::Integer},
                   {QStringLiteral("DESCR"), QStringLiteral("Descripción"), 62, CellMask::Text},
                   {QStringLiteral("MENUDEO"), QStringLiteral("Precio"), 14, CellMask::MoneyTight}},
                  true});
}

// ---- The buttons

void LinesPanel::empty() {
    table().cancelUpdates();
    context().local.LimpiarTabla.execute({});
    table().reopen();
    NoEditar();
}

void LinesPanel::agregarRegistro() {
    table().append();
    table().set(QStringLiteral("NUM_CAJA"), int(session().NumCaja));
    table().set(QStringLiteral("NOTA_VTA"), nota_);
    table().set(QStringLiteral("TIPO_PROD"), tipoProd_);
    Editar();
    grid_->setColumnEditable(clave(), true);
    grid_->setColumnEditable(precio(), false);
    grid_->setCurrentField(clave());
    moveFocus(grid_);
}

/// A saved line is opened again, on its quantity. Its concept stays.
void LinesPanel::corregirRegistro() {
    if (editing_ || !agregar_->isEnabled() || table().isEmpty()) {
        return;
    }
    table().edit();
    Editar();
    ClaveActual_ = table().value(clave());
    conceptTaken_ = true;
    emit changed();
    grid_->setColumnEditable(clave(), false);
    grid_->setColumnEditable(precio(), true);
    if (grid_->currentField() != precio() &&
        grid_->currentField() != QLatin1String("DESCRIPCION")) {
        grid_->setCurrentField(cantidad());
    }
}

void LinesPanel::Editar() {
    editing_ = true;
    conceptTaken_ = false;
    claveDesconocida_ = false;
    permitido_ = 0;
    confirmada_ = 0;
    grid_->setRowSelection(true);
    emit changed();
}

void LinesPanel::NoEditar() {
    editing_ = false;
    conceptTaken_ = false;
    grid_->setRowSelection(false);
    lines_ = readLines();
    emit changed();
}

QList<NoteLine> LinesPanel::readLines() {
    return mapRows(table(), lineOf);
}

void LinesPanel::grabarInformacion() {
    if (!grid_->commitEditor()) {
        return;
    }
    if (conceptoPendiente()) {
        moveFocus(grid_);
        enterClave();
        return;
    }
    if (!rowComplete()) {
        return;
    }
    table().set(QStringLiteral("TOTAL"),
                lineTotal(table().integer(cantidad()), table().number(precio())));
    table().post();
    table().apply();
    // Not opened anew: the table would give its rows in an order of its own.
    NoEditar();
    moveFocus(agregar_);
}

/// What a line needs before it is saved, whatever the way to the button. Goes to the column that
/// lacks it.
bool LinesPanel::rowComplete() {
    if (!cantidadCabe()) {
        goToColumn(cantidad());
        return false;
    }
    if (!precioCabe()) {
        goToColumn(precio());
        return false;
    }
    const bool without = table().isNull(cantidad()) || table().number(cantidad()) < 0;
    if (without || table().number(precio()) <= 0) {
        messages().information(
            QStringLiteral("Ocurrio un error, verifique que los datos esten completos."));
        goToColumn(without ? cantidad() : precio());
        return false;
    }
    return true;
}

void LinesPanel::cancelarRegistro() {
    grid_->cancelEditor();
    table().cancelUpdates();
    NoEditar();
    moveFocus(agregar_);
}

void LinesPanel::borrarRegistro() {
    if (messages().confirmLoss(QStringLiteral("¿Desea borrar este concepto?"), grid_->rowText()) ==
        Answer::Yes) {
        auto backAgain = qScopeGuard([this] { table().cancelUpdates(); });
        table().remove();
        table().apply();
        backAgain.dismiss();
    }
    NoEditar();
    moveFocus(agregar_);
}

void LinesPanel::descripcionAdicional() {
    if (editing_ || table().isEmpty()) {
        return;
    }
    table().edit();
    descripcionAdicional_.showModal();
    NoEditar();
    moveFocus(grid_);
}

// ---- The open row

void LinesPanel::conceptPicked(int row) {
    // The picked concept becomes the price list's current row before anything else looks at it.
    claveDesconocida_ = false;
    precios_->moveTo(row);
    if (!conceptoPermitido()) {
        table().set(clave(), QVariant());
    }
}

bool LinesPanel::conceptoPermitido() {
    const int codigo = precios_->integer(QStringLiteral("CODIGO"));
    if (codigo != permitido_ && mayCharge_(codigo)) {
        permitido_ = codigo;
    }
    return codigo == permitido_;
}

void LinesPanel::enterColumn(const QString &field) {
    if (!editing_) {
        return;
    }
    if (field == clave()) {
        enterClave();
    } else if (field == cantidad()) {
        enterCantidad();
    } else if (field == precio()) {
        enterPrecio();
    }
}

void LinesPanel::enterClave() {
    if (std::exchange(claveDesconocida_, false)) {
        refuse(clave(), QStringLiteral("La clave no se encuentra en la lista de precios, vuelva a "
                                       "intentar."));
        return;
    }
    const QVariant key = table().value(clave());
    if (!key.isValid() && precios_->isEmpty()) {
        refuse(clave(), QStringLiteral("La clave es campo obligatorio, presione cualquier tecla "
                                       "para continuar."));
        return;
    }
    ClaveActual_ = key;
    ClaveRepetida_->setText(claveRepetidaText(key));
    ClaveRepetida_->open();
    if (!ClaveRepetida_->isEmpty() || conceptoRepetido()) {
        table().set(clave(), QVariant());
        refuse(clave(), QStringLiteral("La clave ya se encuentra registrada, presione cualquier "
                                       "tecla para continuar."));
        return;
    }
    if (!conceptoPermitido()) {
        table().set(clave(), QVariant());
        stayInColumn(clave());
        return;
    }
    takeConcept();
    stayInColumn(QStringLiteral("DESCRIPCION"));
}

/// Another line charges the price list's current concept already, perhaps under an empty "Clave":
/// a note that charges it twice could not be registered.
bool LinesPanel::conceptoRepetido() {
    const int codigo = precios_->integer(QStringLiteral("CODIGO"));
    const QList<NoteLine> all = readLines();
    for (int row = 0; row < all.size(); ++row) {
        if (row != table().position() && all.at(row).codigo == codigo) {
            return true;
        }
    }
    return false;
}

/// The row has no concept yet, or that of another key than it shows.
bool LinesPanel::conceptoPendiente() const {
    return table().isNull(QStringLiteral("CODIGO")) || table().value(clave()) != ClaveActual_;
}

/// The line takes what the price list's current row says, also where "Clave" was left empty.
void LinesPanel::takeConcept() {
    for (const char *field : {"CODIGO", "SUBSUBCTA", "CLAVEPRODSERV", "NOMENCLATURA"}) {
        const QString name = QString::fromLatin1(field);
        table().set(name, precios_->value(name));
    }
    table().set(QStringLiteral("DESCRIPCION"), precios_->value(QStringLiteral("DESCR")));
    // What an older list holds in fractions of a centavo is charged as it is shown.
    const QVariant price = precios_->value(QStringLiteral("MENUDEO"));
    table().set(precio(), price.isValid() ? QVariant(roundedToCents(price.toDouble())) : price);
    const QString prog = precios_->text(QStringLiteral("PROG"));
    table().set(QStringLiteral("PROG"), prog.isEmpty() ? session().Prog.text() : prog);
    conceptTaken_ = true;
    // A price that the list gives is not asked for.
    grid_->setColumnEditable(precio(), table().number(precio()) <= 0);
    emit changed();
}

void LinesPanel::enterCantidad() {
    if (conceptoPendiente()) {
        enterClave();
    } else if (table().number(cantidad()) <= 0) {
        refuse(cantidad(), QStringLiteral("Campo obligatorio, vuelva a intentar."));
    } else if (!cantidadCabe()) {
        stayInColumn(cantidad());
    } else if (table().number(precio()) > 0) {
        grabarInformacion();
    } else {
        stayInColumn(precio());
    }
}

bool LinesPanel::cantidadCabe() {
    const int quantity = table().integer(cantidad());
    if (quantity <= kLargeQuantity || quantity == confirmada_) {
        return true;
    }
    if (quantity <= kHighestQuantity) {
        const bool meant =
            messages().confirm(
                QStringLiteral("La cantidad es de %1, ¿es correcta?").arg(quantity)) == Answer::Yes;
        confirmada_ = meant ? quantity : 0;
        return meant;
    }
    messages().warning(QStringLiteral("La cantidad no puede ser mayor que %1, vuelva a intentar.")
                           .arg(kHighestQuantity));
    return false;
}

void LinesPanel::enterPrecio() {
    if (conceptoPendiente()) {
        enterClave();
    } else if (!precioCabe()) {
        stayInColumn(precio());
    } else if (table().number(precio()) > 0) {
        grabarInformacion();
    } else {
        refuse(cantidad(), QStringLiteral("El precio debe ser mayor que cero, presione cualquier "
                                          "tecla para continuar."));
    }
}

bool LinesPanel::precioCabe() {
    if (table().number(precio()) <= kHighestPrice) {
        return true;
    }
    messages().warning(QStringLiteral("El precio no puede ser mayor que %1, vuelva a intentar.")
                           .arg(formatMoney(kHighestPrice)));
    return false;
}

void LinesPanel::refuse(const QString &field, const QString &text) {
    messages().information(text);
    stayInColumn(field);
}

void LinesPanel::stayInColumn(const QString &field) {
    stayHere();
    grid_->setCurrentField(field);
}

void LinesPanel::goToColumn(const QString &field) {
    grid_->setCurrentField(field);
    moveFocus(grid_);
}

}  // namespace kaldo
