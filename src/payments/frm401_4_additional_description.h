#pragma once

#include "app/screen.h"

namespace kaldo {

class Button;
class Memo;

/// "Descripción Adicional": a text of its own for one line of the note, `DESC_ADIC` of the row of
/// the working table that stands open for edit.
class FRM401_4 final : public Dialog {
    Q_OBJECT

public:
    explicit FRM401_4(Context &context);

    void activated() override;
    void reject() override;

protected:
    void build() override;

private:
    void aplicarCambios();

    Memo *memo_ = nullptr;
    Button *aplicar_ = nullptr;
    Button *cerrar_ = nullptr;
};

}  // namespace kaldo
