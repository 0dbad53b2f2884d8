#pragma once

#include <optional>

#include "app/screen.h"

class QLabel;

namespace kaldo {

class Button;

/// "Recibos Incompletos": brings the note counter of the session's cash desk and its last note
/// back together after a registration that stopped midway. Each step stands by itself and the
/// counter comes last, so a repair that failed is repeated by pressing the button again.
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

    QLabel *UltimoFolio_ = nullptr;
    Button *Procesar_ = nullptr;
    /// Highest note of the desk, as it was when the screen came to the front; unset where it
    /// couldn't be read.
    std::optional<qint64> Max_;
};

}  // namespace kaldo
