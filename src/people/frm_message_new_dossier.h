#pragma once

#include "app/screen.h"

class QLabel;

namespace kaldo {

/// Tells the number of a dossier that was just opened, and leaves it standing while the work goes
/// on.
class FRMMessage final : public Dialog {
    Q_OBJECT

public:
    explicit FRMMessage(Context &context);

    /// Shows the number ("00001/24") and comes back at once.
    void tell(const QString &expediente);

    void done(int result) override;

protected:
    void build() override;

private:
    QLabel *Expediente_ = nullptr;
};

}  // namespace kaldo
