#pragma once

#include <optional>

#include "app/screen.h"

namespace kaldo {

class Button;
class TextField;

/// Change of the password of the user in session.
class FRMPass final : public Dialog {
    Q_OBJECT

public:
    explicit FRMPass(Context &context);

    /// Empties the fields and disables "&Aplicar Cambios". `current`: the password that the user
    /// must know; none where the last login was not hers, and the database is asked.
    void reset(std::optional<QString> current);

protected:
    void build() override;

private:
    /// Tells what is wrong, and false.
    bool checkCurrent();
    bool checkRepeated();
    void BitBtn1Click();

    std::optional<QString> current_;
    TextField *Edit1_ = nullptr;
    TextField *Edit2_ = nullptr;
    TextField *Edit3_ = nullptr;
    Button *BitBtn1_ = nullptr;
    Button *BitBtn2_ = nullptr;
};

}  // namespace kaldo
