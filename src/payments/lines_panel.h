#pragma once

#include <QObject>

#include <functional>
#include <memory>

#include "app/screen.h"
#include "payments/frm401_4_additional_description.h"
#include "payments/note_draft.h"
#include "payments/note_rules.h"
#include "toolkit/forms/form.h"

namespace kaldo {

/// The lines of the note being written: their grid with its buttons, over the price list of the
/// sales area. They live in the local working table, applied one by one, so that it never lags
/// behind the screen.
class LinesPanel final : public QObject, public ScreenBase {
    Q_OBJECT

public:
    /// Says, and tells why not, whether the concept with this code may be charged to the payer.
    using Guard = std::function<bool(int codigo)>;

    /// The table outlives the grid, which is let go in time by detach().
    LinesPanel(Context &context, Guard mayCharge);

    form::Item items();
    /// To be called once the form is built.
    void attach();
    void detach();

    /// The number that new lines bear.
    void setNote(int nota) { nota_ = nota; }
    /// No lines at all.
    void empty();
    /// The concepts of a sales area; false where it has none.
    bool openPrices(int tipoProd);
    /// Those of the area in force that are meant for this age.
    void openPricesForAge(int edad);

    /// The saved lines.
    const QList<NoteLine> &lines() const { return lines_; }
    /// A row is open for edit.
    bool editing() const { return editing_; }
    /// The open row has the concept of a key.
    bool conceptTaken() const { return conceptTaken_; }

    void enable(const NoteButtons &on);
    /// To the row that is open, else to the button of the next one.
    void focus();
    Button *agregar() const { return agregar_; }
    Button *borrar() const { return borrar_; }

signals:
    /// Lines or the open row are not what they were.
    void changed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showPriceList();

    void agregarRegistro();
    void borrarRegistro();
    void grabarInformacion();
    void cancelarRegistro();
    void descripcionAdicional();
    void Editar();
    void NoEditar();

    void corregirRegistro();
    void conceptPicked(int row);
    void enterColumn(const QString &field);
    void enterClave();
    void enterCantidad();
    void enterPrecio();
    void takeConcept();
    bool conceptoRepetido();
    bool conceptoPermitido();
    bool conceptoPendiente() const;
    bool rowComplete();
    bool cantidadCabe();
    bool precioCabe();
    void refuse(const QString &field, const QString &text);
    void stayInColumn(const QString &field);
    void goToColumn(const QString &field);
    QList<NoteLine> readLines();
    NamedQuery &table() const { return context().local.FBDetalleVtas; }

    Guard mayCharge_;
    FRM401_4 descripcionAdicional_;
    // Queries whose text this panel rebuilds.
    std::unique_ptr<NamedQuery> ClaveRepetida_;
    std::unique_ptr<NamedQuery> ListaPreciosFace_;
    NamedQuery *precios_;  ///< the price list in force: all concepts, or those of the age

    int nota_ = 0;
    int tipoProd_ = 0;
    QList<NoteLine> lines_;
    QVariant ClaveActual_;
    bool editing_ = false;
    bool conceptTaken_ = false;
    bool claveDesconocida_ = false;  ///< the key typed last is not on the price list
    int permitido_ = 0;              ///< `CODIGO` of the concept that was found chargeable last
    int confirmada_ = 0;             ///< the large quantity that the cashier said is meant

    Button *agregar_ = nullptr;
    Button *borrar_ = nullptr;
    Button *grabar_ = nullptr;
    Button *cancelar_ = nullptr;
    DataGrid *grid_ = nullptr;
};

}  // namespace kaldo
