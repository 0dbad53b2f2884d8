#include "catalogues/item_code.h"

#include <QString>

namespace kaldo {

int itemCode(int tipoProd, int cveProd) {
    const QString item = QString::number(cveProd).left(3).rightJustified(3, u'0');
    const QString area = QString::number(tipoProd).left(6);
    return (area + item).left(6).toInt();
}

}  // namespace kaldo
