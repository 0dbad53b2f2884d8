#include "toolkit/forms/file_dialogs.h"

#include "toolkit/forms/focus.h"

#include <QFileDialog>

namespace kaldo {

QString DesktopFileDialogs::openFile(QWidget *parent, const QString &title, const QString &start,
                                     const QString &filter) {
    const ActivationReturn activation;
    return QFileDialog::getOpenFileName(parent, title, start, filter);
}

}  // namespace kaldo
