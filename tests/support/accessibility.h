#pragma once

#include <QStringList>

class QWidget;

namespace kaldo::test {

/// What is wrong with a shown form for someone without a mouse, or who can't see it: fields that
/// Tab does not reach, fields without a caption or accessible name, two controls with one mnemonic,
/// texts that do not fit their widget. Hidden and disabled parts are passed over. Empty if all is
/// well; else one line per fault, with the object's name.
QStringList accessibilityFaults(QWidget &form);

/// Fails the test with these lines.
void checkAccessibility(QWidget &form);

}  // namespace kaldo::test
