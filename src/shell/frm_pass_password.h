#pragma once

#include "app/screen.h"

namespace kaldo {

class Button;
class TextField;

/// Change of the password of the user in session, as her row in ControlUsuarios1 tells it.
class FRMPass final : public Dialog {
    Q_OBJECT

public:
    explicit FRMPass(Context &context);

    /// Empties the fields and disables "&Aplicar Cambios".
    void reset();

protected:
    void build() override;

private:
    /// Tells what is wrong, and false.
    bool checkCurrent();
    bool checkRepeated();
    void BitBtn1Click();

    TextField *Edit1_ = nullptr;
    TextField *Edit2_ = nullptr;
    TextField *Edit3_ = nullptr;
    Button *BitBtn1_ = nullptr;
    Button *BitBtn2_ = nullptr;
};

}  // namespace kaldo
