#include "shell/help_window.h"

#include "toolkit/forms/form.h"

#include <QFile>
#include <QTextBrowser>

using namespace Qt::StringLiterals;

namespace kaldo {

namespace {

QString fileOf(const QString &screen) {
    return u":/manual/"_s + screen.toLower() + u".html"_s;
}

}  // namespace

HelpWindow::HelpWindow(QWidget *parent) : QDialog(parent) {
    using namespace form;
    setObjectName(u"Ayuda"_s);
    setWindowTitle(u"Ayuda de KALDO"_s);
    Button *back = nullptr;
    form::build(
        this,
        column({
            row({button(nullptr, u"Indice"_s, u"&Índice"_s).icon(u"help"_s).clicked([this] {
                     showPage(u"index"_s);
                 }),
                 button(&back, u"Atras"_s, u"&Atrás"_s).icon(u"previous"_s).disabled(), stretch(),
                 button(nullptr, u"Cerrar"_s, u"&Cerrar"_s)
                     .icon(u"close"_s)
                     .escape()
                     .clicked([this] { close(); })}),
            custom<QTextBrowser>(&browser_, u"Pagina"_s)
                .accessible(u"Página de la ayuda"_s)
                .fill()
                .grow(),
        }));
    browser_->setOpenExternalLinks(false);
    connectGuarded(back, &QPushButton::clicked, browser_, [this] { browser_->backward(); });
    connectGuarded(browser_, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connectGuarded(browser_, &QTextBrowser::sourceChanged, this,
                   [this] { setWindowTitle(browser_->documentTitle() + u" - Ayuda de KALDO"_s); });
    resize(fontMetrics().averageCharWidth() * 130, fontMetrics().height() * 36);
}

bool HelpWindow::hasPage(const QString &screen) {
    return QFile::exists(fileOf(screen));
}

void HelpWindow::showPage(const QString &screen) {
    browser_->setSource(QUrl(u"qrc"_s + fileOf(hasPage(screen) ? screen : u"index"_s)));
    show();
    raise();
    activateWindow();
    browser_->setFocus();
}

void HelpWindow::done(int result) {
    QDialog::done(result);
    parentWidget()->activateWindow();
}

QString HelpWindow::page() const {
    return browser_->source().fileName();
}

}  // namespace kaldo
