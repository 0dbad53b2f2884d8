#pragma once

#include <QDate>

#include "app/screen.h"
#include "cashdesk/cut_page.h"
#include "cashdesk/cut_totals.h"
#include "toolkit/core/text.h"

namespace kaldo {

class Button;
class Choice;
class DateField;
class LookupField;

/// "Corte de Caja": closes a cash desk for one day and one cashier. It rebuilds the work tables of
/// the cut and previews its reports; no note is ever changed, and it can be run again at will.
class FRM405 : public Screen {
    Q_OBJECT

public:
    explicit FRM405(Context &context);

    bool keepsPrinter() const override { return true; }

protected:
    void formCreate() override;

private:
    void buildForm();

    // Who is cut
    bool isAdministrator() const;
    void elegirCaja();
    void cerrarTurno();
    void confirmarFecha();
    void salirFecha();
    void revisarMovimientos();

    // The cut
    void generar();
    void BorrarCorte();
    void CorteDetallado();
    void CorteBancario();
    void Totales();

    // The reports
    void Reportes();
    void previewRecibos();
    void previewResumen();
    void previewBancario();
    CutHeading heading(const QString &cajero) const;
    QString cajero() const;
    void preview(const report::Document &document, const QString &title);

    DateField *FechaCorte_ = nullptr;
    LookupField *NumeroCaja_ = nullptr;
    Choice *Turno_ = nullptr;
    Button *Generar_ = nullptr;

    qint16 CajaCorte_ = 0;
    FixedText<8> UsuarioCorte_;
    QDate fechaCorte_;  ///< the date that was checked last
    CutBalance SaldoFinal_;
    /// False until the first empty answer of this screen's life, which stays silent.
    bool AvisoSinMovimientos_ = false;
    int notaMin_ = 0;  ///< first and last note that the last check found; 0 for none
    int notaMax_ = 0;
};

}  // namespace kaldo
