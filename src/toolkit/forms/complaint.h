#pragma once

#include <QString>

class QWidget;

namespace kaldo {

/// Tells what is wrong with the text of a field or a cell: a hint under it, which its next key
/// takes away, and a sound. Also left in the widget's property "complaint".
void complain(QWidget *field, const QString &text);

}  // namespace kaldo
