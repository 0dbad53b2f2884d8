#pragma once

#include "app/screen.h"

class QLabel;

namespace kaldo {

/// The about box: the picture of the installation and the version of the running program.
class FRMVersion final : public Dialog {
    Q_OBJECT

public:
    explicit FRMVersion(Context &context);

protected:
    void build() override;

private:
    void showPicture();

    QLabel *Image1_ = nullptr;
};

}  // namespace kaldo
