#include "shell/program.h"

#include "app/waiting_box.h"
#include "cashdesk/frm405_cash_cut.h"
#include "cashdesk/frm801_incomplete_receipts.h"
#include "data/database_error.h"
#include "data/module_lookups.h"
#include "data/start_failure.h"
#include "payments/frm401_3_payment_form.h"
#include "payments/frm401_payment_note.h"
#include "people/frm_alumnos_student_choice.h"
#include "shell/catalogue_screens.h"
#include "shell/frm_acceso_login.h"
#include "shell/frm_control_panel.h"
#include "shell/frm_inicio_firebird_wizard.h"
#include "shell/frm_inicio_splash.h"
#include "shell/frm_pass_password.h"
#include "shell/frm_version_about.h"
#include "shell/main_skin.h"
#include "toolkit/core/log.h"
#include "toolkit/forms/application.h"

namespace kaldo {

namespace {

report::PrintingHost printingHost(FRM000 *window, Messages *messages) {
    report::PrintingHost host;
    host.notice = [window](const QString &text) { window->showNotice(text); };
    host.failure = [messages](QWidget *, const QString &text) {
        logSwallowed(QStringLiteral("impresión"), std::runtime_error(text.toStdString()));
        messages->error(text, QStringLiteral("Impresión"));
    };
    return host;
}

QString receiptFolder(const Installation &installation) {
    return installation.map(QStringLiteral("C:\\KALDO\\Recibos"));
}

}  // namespace

/// In the order of their lives: what stands below is destroyed first, the connections outlive all
/// screens. Constructors are light and open nothing.
struct Program::Parts {
    explicit Parts(const ProgramSettings &settings)
        : installation(settings.root),
          clock(settings.clock != nullptr ? *settings.clock : machineClock),
          messages(settings.messages != nullptr ? *settings.messages : boxes),
          fileDialogs(settings.fileDialogs != nullptr ? *settings.fileDialogs : chooser),
          splashTime(settings.splash),
          ini(installation.map(QStringLiteral("C:\\KALDO\\Ini\\kaldo.ini"))),
          columns(installation.map(QStringLiteral("C:\\KALDO\\Ini\\columnas.ini"))),
          conexion(installation, ini),
          local(conexion),
          odonto(conexion, session, options),
          caja(conexion),
          finanzas(conexion),
          escolares(conexion),
          window(std::make_unique<FRM000>(context, settings.tick)),
          systemPrinting(receiptFolder(installation), printingHost(window.get(), &messages)),
          context{installation, clock,
                  ini,          session,
                  options,      messages,
                  fileDialogs,  settings.printing != nullptr ? *settings.printing : systemPrinting,
                  *window,      conexion,
                  local,        odonto,
                  caja,         finanzas,
                  escolares},
          update(context, settings.update),
          countDown(settings.countDown) {
        conexion.setSeam(settings.seam);
        conexion.setWaitObserver(&waiting);
        linkModules(odonto, caja, finanzas);
    }
    ~Parts() {
        // A screen refers to resident dialogs, which go before the window.
        window->dropChildren();
        conexion.setWaitObserver(nullptr);
    }

    Installation installation;
    Clock machineClock;
    const Clock &clock;
    BoxMessages boxes;
    Messages &messages;
    DesktopFileDialogs chooser;
    FileDialogs &fileDialogs;
    std::chrono::milliseconds splashTime;
    IniFile ini;
    IniFile columns;  ///< as wide as the users of this station have dragged them
    Session session;
    Options options;
    WaitingBox waiting;
    DMConexion conexion;
    DMLocal local;
    DMOdonto odonto;
    DMIngresosCaja caja;
    DMFinanzas finanzas;
    DMEscolares escolares;
    std::unique_ptr<FRM000> window;
    report::SystemPrinting systemPrinting;
    Context context;
    UpdateCheck update;
    CountDownPace countDown;

    std::unique_ptr<FRMControlPanel> panel;
    std::unique_ptr<FRM401_3> formaPago;
    std::unique_ptr<FRMAlumnos> alumnos;
    std::unique_ptr<FRMVersion> version;
    std::unique_ptr<FRMPass> password;
    std::unique_ptr<FRMInicioFirebird> wizard;
    std::unique_ptr<FRMAcceso> login;
    std::unique_ptr<FRMInicio> splash;
    std::unique_ptr<FRMClose> cierre;
    std::unique_ptr<FRM801> incompletos;

    bool loginAsked = false;  ///< by its key, while the splash stood over everything
};

Program::Program(const ProgramSettings &settings) {
    applyBaseLook();
    parts_ = std::make_unique<Parts>(settings);
    if (Application *application = Application::current()) {
        application->setFailureHandler([this](const std::exception &failure) {
            const QString text = QString::fromUtf8(failure.what());
            const auto *ofDatabase = dynamic_cast<const DatabaseError *>(&failure);
            if (ofDatabase != nullptr && ofDatabase->details().repeated) {
                parts_->window->showNotice(text.section(u'\n', 0, 0));
            } else {
                parts_->messages.error(text);
            }
        });
        IniFile *columns = &parts_->columns;
        const QString widths = QStringLiteral("Columnas");
        application->setColumnMemory(
            {[columns, widths](const QString &grid) { return columns->value(widths, grid); },
             [columns, widths](const QString &grid, const QString &pixels) {
                 columns->setValue(widths, grid, pixels);
             }});
    }
}

Program::~Program() {
    if (Application *application = Application::current()) {
        application->setFailureHandler({});
        application->setColumnMemory({});
    }
}

Context &Program::context() {
    return parts_->context;
}

FRM000 &Program::mainWindow() {
    return *parts_->window;
}

FRMAcceso &Program::login() {
    return *parts_->login;
}

FRMInicio *Program::splash() {
    return parts_->splash.get();
}

DMConexion &Program::conexion() {
    return parts_->conexion;
}

bool Program::start() {
    const QString iniPath = parts_->ini.path();
    if (const QString problem = iniProblem(iniPath); !problem.isEmpty()) {
        qCWarning(logStart).noquote() << problem;
    }
    runGuarded([this] { parts_->window->formCreate(); });
    const bool failed = !createConnections();
    if (!parts_->conexion.FBOdonto.isOpen()) {
        if (!failed) {
            qCWarning(logStart).noquote()
                << nothingNamed(parts_->context.session.ClienteSql, iniPath);
        }
        return false;
    }
    for (const QString &base : parts_->conexion.outside()) {
        qCWarning(logStart).noquote()
            << "Base de datos fuera de la carpeta de esta instalación:" << base;
    }
    report::removeUnfinishedPdfs(receiptFolder(parts_->installation));
    createControlPanel();
    parts_->window->showMaximized();
    createResidents();
    registerScreens();
    FRM000 *window = parts_->window.get();
    QTimer::singleShot(0, window, [this, window] {
        QTimer::singleShot(parts_->splashTime, window, guarded([this] { Timer2(); }));
        window->setRunning();
    });
    return true;
}

int Program::run() {
    if (!start()) {
        return kNotConnected;
    }
    return QCoreApplication::exec();
}

bool Program::createConnections() {
    try {
        parts_->conexion.open();
        return true;
    } catch (const std::exception &failure) {
        const QString why = startFailure(failure, parts_->conexion);
        qCWarning(logStart).noquote() << why;
        logTo(logStart(), failure);
        parts_->messages.error(QStringLiteral("Error en conexión, algún servicio no está "
                                              "disponible, inténtelo más tarde.\n\n") +
                               why);
        return false;
    }
}

void Program::createControlPanel() {
    Parts &parts = *parts_;
    parts.panel = std::make_unique<FRMControlPanel>(parts.context, *parts.window);
    parts.panel->setParent(parts.window.get(), Qt::Dialog);
    runGuarded([&] { parts.panel->formCreate(); });
}

void Program::createResidents() {
    Parts &parts = *parts_;
    Context &context = parts.context;
    FRM000 &window = *parts.window;
    parts.formaPago = std::make_unique<FRM401_3>(context);
    parts.alumnos = std::make_unique<FRMAlumnos>(context);
    parts.version = std::make_unique<FRMVersion>(context);
    parts.version->setParent(&window, Qt::Dialog);
    parts.password = std::make_unique<FRMPass>(context);
    parts.wizard = std::make_unique<FRMInicioFirebird>(context, window);
    parts.wizard->setParent(&window, Qt::Dialog);
    parts.login =
        std::make_unique<FRMAcceso>(context, window, *parts.password, parts.update, *parts.wizard);
    parts.login->setParent(&window, Qt::Dialog);
    parts.password->setParent(&window, Qt::Dialog);
    runGuarded([&] { parts.login->formCreate(); });
    parts.splash = std::make_unique<FRMInicio>(window.splashPicture());
    try {
        parts.splash->formCreate(parts.ini);
    } catch (const std::exception &) {
        window.tellFailure(std::current_exception());  // the splash would cover a box
    }
    parts.splash->show();
    parts.cierre = std::make_unique<FRMClose>(context, parts.countDown);
    parts.cierre->setParent(&window, Qt::Dialog);
    connectGuarded(&window, &FRM000::closingHour, parts.cierre.get(), &FRMClose::begin);
    parts.incompletos = std::make_unique<FRM801>(context);
}

void Program::registerScreens() {
    Parts &parts = *parts_;
    FRM000 &window = *parts.window;
    window.setScreen(QStringLiteral("E1"), [&parts] {
        return std::make_unique<FRM401>(parts.context, *parts.formaPago, *parts.alumnos);
    });
    window.setScreen(QStringLiteral("E6"),
                     [&parts] { return std::make_unique<FRM405>(parts.context); });
    window.setHandler(QStringLiteral("A3"),
                      [&parts, &window] { parts.panel->openFromMenu(window.childScreen()); });
    registerCatalogues(window, parts.context);
    window.setHandler(QStringLiteral("J1"), [&parts] {
        if (parts.splash) {
            parts.loginAsked = true;
        } else {
            parts.login->openFromMenu();
        }
    });
    window.setHandler(QStringLiteral("K2"), [&parts] {
        if (parts.update.run(UpdateCheck::Asked::FromMenu)) {
            Application::current()->endApplication();
        }
    });
    window.setHandler(QStringLiteral("K3"),
                      [&parts, &window] { parts.version->showModal(window.childScreen()); });
    window.setHandler(QStringLiteral("J2a"),
                      [&parts, &window] { parts.incompletos->showModal(window.childScreen()); });
}

void Program::Timer2() {
    Parts &parts = *parts_;
    const QString machine = QStringLiteral("Equipo");
    parts.splash.reset();
    parts.window->tellWhatWaits();
    const bool ordinary =
        parts.ini.value(machine, QStringLiteral("consulta")) == QLatin1String("N");
    const bool named = !parts.ini.value(machine, QStringLiteral("usuario")).isEmpty() &&
                       !parts.ini.value(machine, QStringLiteral("pass")).isEmpty();
    if ((ordinary || !named) && !parts.window->sessionStarted()) {
        parts.login->openAtStart();
        return;
    }
    if (!ordinary && named) {
        // A consultation station: nobody logs in to look a dossier up.
        parts.window->runEntry(QStringLiteral("F1"));
    }
    if (parts.loginAsked) {
        parts.login->openFromMenu();
    }
}

}  // namespace kaldo
