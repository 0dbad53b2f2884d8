#include "payments/line_rules.h"

namespace kaldo {

bool needsTreatmentCheck(int tipoProd, int codigo) {
    return tipoProd == kFaceArea &&
           ((codigo >= 96028 && codigo <= 96031) || codigo == 96033 || codigo == 96034);
}

}  // namespace kaldo
