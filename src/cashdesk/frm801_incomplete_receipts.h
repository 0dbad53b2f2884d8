#pragma once

#include <optional>

#include "app/screen.h"
#include "cashdesk/desk_reservation.h"

class QLabel;

namespace kaldo {

class Button;

/// "Recibos Incompletos": brings the note counter of the session's cash desk and its last note
/// back together after a registration that stopped midway. Each step stands by itself and the
/// counter comes last, so a repair that failed is repeated by pressing the button again. Where
/// another station has registered on the desk since the screen came to the front, or does so now,
/// nothing is written.
class FRM801 : public Dialog {
    Q_OBJECT

public:
    explicit FRM801(Context &context);

    void activated() override;

protected:
    void build() override;

private:
    void procesarVerificacion();
    void corregirConsecutivo();
    void borrarUltimaNota();
    void borrarNota(const QString &servicio);
    void borrarDeFinanzas();
    void devolverNumero();
    void avisarOtraEstacion();

    QLabel *UltimoFolio_ = nullptr;
    Button *Procesar_ = nullptr;
    /// The desk as it was when the screen came to the front; unset where it couldn't be read.
    std::optional<DeskFigures> Vista_;
};

}  // namespace kaldo
