#include "shell/frm000_main_window.h"

#include "data/option_values.h"
#include "shell/backdrop.h"
#include "shell/closing_hour.h"
#include "shell/main_skin.h"
#include "shell/side_bar.h"
#include "shell/status_panels.h"
#include "shell/version.h"
#include "toolkit/forms/application.h"
#include "toolkit/forms/button.h"

#include <QCloseEvent>
#include <QDesktopServices>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>

namespace kaldo {

FRM000::FRM000(Context &context, std::chrono::milliseconds tick) : context_(context) {
    setObjectName(QStringLiteral("FRM000"));
    setWindowTitle(QStringLiteral("KALDO"));
    setWindowIcon(iconNamed(QStringLiteral("logo")));
    resize(1024, 700);
    buildMenu();
    buildToolBar();
    buildCentre();
    panels_ = new StatusPanels(this);
    panels_->setPanel(
        1, QStringList{QStringLiteral("   Bienvenidos Sistema KALDO"), QStringLiteral("   KALDO")});
    setStatusBar(panels_);
    setDefaultHandlers();
    DisableButtons();
    clock_.setInterval(tick);
    connectGuarded(&clock_, &QTimer::timeout, this, [this] { Timer1(); });
    clock_.start();
}

FRM000::~FRM000() = default;

void FRM000::buildCentre() {
    auto *centre = new QWidget(this);
    auto *line = new QHBoxLayout(centre);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(0);
    sideBar_ = new SideBar(centre);
    sideBar_->hide();
    backdrop_ = new Backdrop(centre);
    line->addWidget(sideBar_);
    line->addWidget(backdrop_, 1);
    setCentralWidget(centre);
    buildNotice();
}

void FRM000::buildNotice() {
    // Beside the child screens, which stand over it.
    Panel2_ = new QWidget(backdrop_->viewport());
    Panel2_->setObjectName(QStringLiteral("Panel2"));
    auto *line = new QHBoxLayout(Panel2_);
    noticeButton_ = new Button(Panel2_);
    noticeButton_->setObjectName(QStringLiteral("noticeButton"));
    noticeButton_->setMinimumSize(fontMetrics().averageCharWidth() * 24,
                                  fontMetrics().height() * 2);
    line->addWidget(noticeButton_);
    connectGuarded(noticeButton_, &QPushButton::clicked, this, [this] { openNoticePage(); });
    auto *place = new QVBoxLayout(backdrop_->viewport());
    place->addStretch(5);
    place->addWidget(Panel2_, 0, Qt::AlignHCenter);
    place->addStretch(1);
    Panel2_->hide();
}

void FRM000::formCreate() {
    context_.session.FiltroAdmision = AdmissionFilter::Today;
    context_.session.ModoEstadoExpediente = false;
    sessionStarted_ = false;
    Ini();
    MainSkin();
    context_.session.AnioActual = static_cast<qint16>(context_.clock.today().year());
    const QString stem = skinStem();
    splashPicture_ = pictureFile(stem + QStringLiteral("_splash.svg"));
    if (!QFileInfo::exists(splashPicture_)) {
        splashPicture_ = pictureFile(stem + QStringLiteral("_splash.png"));
    }
    if (!backdrop_->hasPicture()) {
        showWallpaper();
    }
}

void FRM000::Ini() {
    IniFile &ini = context_.ini;
    ini.reread();
    const QString client = QStringLiteral("Cliente");
    context_.session.Cliente = ini.value(client, QStringLiteral("cliente"));
    context_.session.ClienteNombre = ini.value(client, QStringLiteral("nombre"));
    context_.session.Ciudad = ini.value(QStringLiteral("Usuario"), QStringLiteral("ciudad"));
    context_.session.ClienteSql = ini.value(QStringLiteral("Sql"), QStringLiteral("cliente"));
    backdrop_->setCaption(context_.session.ClienteNombre,
                          QStringLiteral("KALDO ") + QString::fromLatin1(kVersion));
}

void FRM000::MainSkin() {
    Panel2_->hide();
    context_.session.SkinName = context_.ini.value(
        QStringLiteral("Sistema"), QStringLiteral("skinname"), QStringLiteral("Windows"));
    const ColourScheme *scheme = schemeNamed(context_.session.SkinName);
    if (scheme == nullptr) {
        return;  // any other name leaves the look as it is
    }
    applyScheme(scheme);
    backdrop_->setPicture(pictureFile(pictureOf(*scheme, context_.clock.today())));
    if (backdrop_->hasPicture()) {
        backdrop_->setCaptionColours(scheme->caption, scheme->link);
    }
    sideBar_->setHeaderColour(scheme->kaldoColor);
    panels_->setBarColour(scheme->kaldoColor);
}

void FRM000::changeSkin() {
    context_.session.SkinName = context_.ini.value(
        QStringLiteral("Sistema"), QStringLiteral("skinname"), QStringLiteral("Windows"));
    const ColourScheme *scheme = schemeNamed(context_.session.SkinName);
    applyScheme(scheme);
    // Not that of the time of the year, whose dates may fail: it comes with the next login.
    showWallpaper();
    const QColor accent = scheme != nullptr ? scheme->kaldoColor : baseAccent();
    sideBar_->setHeaderColour(accent);
    panels_->setBarColour(accent);
}

void FRM000::showWallpaper() {
    const QString stem = skinStem();
    backdrop_->setPicture(pictureFile(stem + QStringLiteral(".png")));
    // What is written on a picture takes the colours of the scheme that it was drawn for.
    if (const ColourScheme *scheme = schemeOfPicture(stem);
        scheme != nullptr && backdrop_->hasPicture()) {
        backdrop_->setCaptionColours(scheme->caption, scheme->link);
    }
}

QString FRM000::skinStem() const {
    return pictureStem(context_.ini.value(QStringLiteral("Ambiente"), QStringLiteral("skin"),
                                          QStringLiteral("C:\\KALDO\\Ini\\skinblue.dll")));
}

QString FRM000::pictureFile(const QString &file) const {
    return context_.installation.map(QStringLiteral("C:/KALDO/Images/KALDO/") + file);
}

void FRM000::showUser() {
    panels_->setPanel(0, QStringLiteral("   Usuario: ") + context_.session.NombreCorto);
    panels_->showNotice({});  // the last receipt was that of the user before
    panels_->setPanel(3, QString());
    panels_->setPanel(5, QStringLiteral("   Ciudad: ") + context_.session.Ciudad);
}

void FRM000::restore(const Standing &before) {
    const Notice shown = rights_.notice;
    context_.session = before.session;
    applyRights(before.rights);
    Panel2_->hide();
    showSkinNotice(before.rights.notice);
    if (!sessionStarted_) {
        for (const int panel : {0, 3, 5}) {
            panels_->setPanel(panel, QString());
        }
        return;
    }
    showUser();
    const QString profile = context_.session.Acceso;
    if (profile == QLatin1String("AM") || profile == QLatin1String("CA")) {
        showRate();
    }
    runGuarded([&] {
        if (shown != Notice::None && before.rights.notice == Notice::None) {
            MainSkin();  // the notice had a picture of its own
        }
        if (profile == QLatin1String("CA") && context_.options.GenerarEstadisticas) {
            refreshDeskFigures();
        }
    });
}

void FRM000::startSession() {
    sessionStarted_ = true;
    backdrop_->viewport()->update();
    setEnabled(true);
}

void FRM000::showRate() {
    const QString rate = formatMoney(context_.session.TipoCambio);
    panels_->setPanel(3, QStringLiteral("   Tipo Cambio: ") + rate);
    sideBar_->setRate(rate, context_.clock.today());
}

void FRM000::refreshDeskFigures() {
    NamedQuery &figures = context_.odonto.est_caja;
    figures.open({{QStringLiteral("p_caja"), context_.session.NumCaja},
                  {QStringLiteral("p_fecha"), context_.clock.today()}});
    sideBar_->setFigures([&figures](const QString &column) { return figures.value(column); });
}

void FRM000::showNotice(const QString &text) {
    panels_->showNotice(text);
}

void FRM000::beginProgress(int total, double step) {
    if (progress_++ == 0) {
        menuBar()->setEnabled(false);
        toolBar_->setEnabled(false);
    }
    panels_->beginProgress(total, step);
}

void FRM000::advanceProgress() {
    panels_->advanceProgress();
}

void FRM000::endProgress() {
    if (--progress_ > 0) {
        return;
    }
    panels_->endProgress();
    menuBar()->setEnabled(true);
    toolBar_->setEnabled(true);
    if (closeAsked_) {
        closeAsked_ = false;
        QTimer::singleShot(0, this, [this] { close(); });
    }
}

void FRM000::Timer1() {
    const QDateTime now = context_.clock.now();
    const QDateTime before = std::exchange(lastTick_, now);
    panels_->setPanel(6, QStringLiteral("   ") + now.time().toString(QStringLiteral("HH:mm:ss")));
    if (!context_.options.ApagarSistema) {
        return;
    }
    const QTime hour =
        parseHour(context_.ini.value(QStringLiteral("Equipo"), QStringLiteral("hora")));
    if (closingHourReached(before, now, hour)) {
        emit closingHour();
    }
}

void FRM000::closeEvent(QCloseEvent *event) {
    Application *application = Application::current();
    if (application == nullptr || application->ending()) {
        event->accept();
        return;
    }
    event->ignore();
    if (progress_ > 0) {
        closeAsked_ = true;
        return;
    }
    runGuarded([&] {
        if (context_.messages.confirm(QStringLiteral("¿Desea salir de KALDO?")) == Answer::Yes) {
            application->endApplication();
        }
    });
}

void FRM000::whenRunning(std::function<void()> call) {
    if (running_) {
        call();
    } else {
        waiting_.push_back(std::move(call));
    }
}

void FRM000::tellFailure(const std::exception_ptr &failure) {
    whenRunning([failure] { runGuarded([&] { std::rethrow_exception(failure); }); });
}

void FRM000::setRunning() {
    running_ = true;
}

void FRM000::tellWhatWaits() {
    for (const auto &call : std::exchange(waiting_, {})) {
        runGuarded(call);
    }
}

void FRM000::showSkinNotice(Notice notice) {
    if (notice == Notice::None) {
        return;
    }
    notice_ = notice;
    const bool telegram = notice == Notice::Telegram;
    if (const ColourScheme *scheme = schemeNamed(context_.session.SkinName)) {
        backdrop_->setPicture(
            pictureFile(telegram ? scheme->telegramNotice : scheme->assistanceNotice));
    }
    noticeButton_->setText(telegram ? QStringLiteral("TELEGRAM") : QStringLiteral("Entrar"));
    Panel2_->show();
}

void FRM000::openNoticePage() {
    const QString key =
        notice_ == Notice::Telegram ? QStringLiteral("telegram") : QStringLiteral("asistencia");
    const QString address = context_.ini.value(QStringLiteral("Ayuda"), key);
    if (address.isEmpty()) {
        context_.messages.information(
            QStringLiteral("Esta estación no tiene registrada la dirección de la página (clave %1 "
                           "de la sección [Ayuda] del archivo de configuración).")
                .arg(key));
        return;
    }
    QDesktopServices::openUrl(QUrl(address));
}

}  // namespace kaldo
