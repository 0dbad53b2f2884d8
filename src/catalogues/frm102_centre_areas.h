#pragma once

#include "app/screen.h"

namespace kaldo {

class LookupField;
class TwoLists;

/// Which sales areas a care centre offers. It has no edit mode: each step is written at once.
class FRM102 : public Screen {
    Q_OBJECT

public:
    explicit FRM102(Context &context);

    void activated() override;
    bool previewReport() override;

protected:
    void formCreate() override;

private:
    void chooseCentre();
    void forgetCentre();

    LookupField *centro_ = nullptr;
    TwoLists *areas_ = nullptr;
};

}  // namespace kaldo
