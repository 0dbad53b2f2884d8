#include "shell/frm_acceso_login.h"

#include "data/schema_version.h"
#include "payments/receipt_mark.h"
#include "shell/frm_inicio_firebird_wizard.h"
#include "shell/frm_pass_password.h"
#include "shell/update_check.h"
#include "toolkit/core/text.h"
#include "toolkit/forms/form.h"
#include "toolkit/forms/picture_file.h"

#include <QPixmap>
#include <QTimer>

namespace kaldo {

namespace {

constexpr int kCodeWidth = 8;
constexpr int kPasswordWidth = 8;
constexpr int kPasswordBuffer = 10;
constexpr int kAttempts = 3;
constexpr int kCentreWidth = 2;
constexpr int kProgrammeWidth = 5;
constexpr int kPicture = 72;

const QString kUsuario = QStringLiteral("Usuario");
const QString kLeaveProgram = QStringLiteral("&Salir de la Aplicación");

}  // namespace

FRMAcceso::FRMAcceso(Context &context, FRM000 &main, FRMPass &password, UpdateCheck &update,
                     FRMInicioFirebird &wizard)
    : Dialog(context, QStringLiteral("FRMAcceso"), QStringLiteral("Acceso a Usuario")),
      main_(main),
      password_(password),
      update_(update),
      wizard_(wizard) {}

void FRMAcceso::build() {
    using namespace form;
    form::build(
        this,
        column({
            row({form::label(&Image1_, QStringLiteral("Image1")),
                 panel(nullptr, QStringLiteral("Panel1"),
                       column({
                           stretch(),
                           form::label(&Label1_, QStringLiteral("Label1")).heading().wrap(),
                           form::label(&Label2_, QStringLiteral("Label2")).wrap(),
                           stretch(),
                       }))
                     .grow()}),
            form::line(),
            text(&Edit1_, QStringLiteral("Edit1"), kUsuario)
                .width(kCodeWidth)
                .shown(20)
                .edited([this] { offerPasswordChange(); })
                .enter([this] { offerPasswordChange(); }),
            text(&Edit2_, QStringLiteral("Edit2"), QStringLiteral("Contraseña"))
                .password()
                .width(kPasswordWidth)
                .shown(20)
                .changed([this] { BitBtn1_->setDefault(!Edit2_->text().isEmpty()); })
                .enter([this] { BitBtn1Click(); }),
            check(&CheckBox1_, QStringLiteral("CheckBox1"),
                  QStringLiteral("Iniciar siempre con este usuario"))
                .clicked([this] { CheckBox1Click(); }),
            form::line(),
            row({button(&BitBtn1_, QStringLiteral("BitBtn1"), QStringLiteral("&Aceptar"))
                     .icon(QStringLiteral("accept"))
                     .clicked([this] { BitBtn1Click(); }),
                 button(&BitBtn2_, QStringLiteral("BitBtn2"), QStringLiteral("&Borrar"))
                     .icon(QStringLiteral("delete"))
                     .clicked([this] { BitBtn2Click(); }),
                 button(&BitBtn4_, QStringLiteral("BitBtn4"), QStringLiteral("&Cambiar Contraseña"))
                     .icon(QStringLiteral("key"))
                     .hidden()
                     .clicked([this] { BitBtn4Click(); }),
                 stretch(),
                 button(&BitBtn3_, QStringLiteral("BitBtn3"), kLeaveProgram)
                     .icon(QStringLiteral("exit"))
                     .escape()
                     .clicked([this] { BitBtn3Click(); })}),
        }));
    const qreal ratio = devicePixelRatioF();
    const QSize size(kPicture, kPicture);
    QPixmap picture = QPixmap::fromImage(
        loadPicture(context().installation.map(QStringLiteral("C:/KALDO/Images/KALDO/user.png"))));
    if (picture.isNull()) {
        picture = iconNamed(QStringLiteral("user")).pixmap(size, ratio);
    } else if (picture.size() != size * ratio) {
        picture = picture.scaled(size * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }
    picture.setDevicePixelRatio(ratio);
    Image1_->setPixmap(picture);
}

void FRMAcceso::formCreate() {
    if (context().ini.value(QStringLiteral("Equipo"), QStringLiteral("consulta")) !=
            QLatin1String("S") ||
        !hasUnattendedUser()) {
        return;
    }
    ensureBuilt();
    try {
        BitBtn1Click();
    } catch (const std::exception &) {
        main_.tellFailure(std::current_exception());
    }
    takeBack();
}

bool FRMAcceso::hasUnattendedUser() const {
    return !context().ini.value(kUsuario, QStringLiteral("user1")).isEmpty() &&
           !context().ini.value(kUsuario, QStringLiteral("pass")).isEmpty();
}

void FRMAcceso::openAtStart() {
    ensureBuilt();
    // The menu may have opened it while the splash stood, and it may still be open.
    fromMenu_ = false;
    CheckBox1_->show();
    BitBtn3_->setText(kLeaveProgram);
    BitBtn4_->hide();
    if (!isVisible()) {
        showModal();
    }
}

void FRMAcceso::openFromMenu() {
    ensureBuilt();
    main_.CerrarVentana();
    if (main_.childScreen() != nullptr) {
        return;  // it refused to close: its work comes first
    }
    fromMenu_ = true;
    CheckBox1_->hide();
    BitBtn3_->setText(QStringLiteral("Salir de la Ventana"));
    BitBtn2Click();
    showModal();
}

void FRMAcceso::activated() {
    failures_ = 0;
    Label1_->setText(context().ini.value(QStringLiteral("Cliente"), QStringLiteral("nombre")));
    Label2_->setText(context().ini.value(QStringLiteral("Cliente"), QStringLiteral("facultad")));
    moveFocus(Edit1_);
    if (context().ini.value(kUsuario, QStringLiteral("desactivar")) == QLatin1String("N")) {
        const QString remembered = context().ini.value(kUsuario, QStringLiteral("user"));
        Edit1_->setText(remembered);
        CheckBox1_->setChecked(!remembered.isEmpty());
        BitBtn4_->hide();  // it needs a code that was typed
        if (!remembered.trimmed().isEmpty() && remembered.trimmed() == session().Usuario.text()) {
            moveFocus(Edit2_);
        }
    }
    // The whole main window is painted anew for it: the login is seen first.
    main_.setUpdatesEnabled(false);
    QTimer::singleShot(0, &main_, [&main = main_] { main.setUpdatesEnabled(true); });
    main_.setEnabled(false);
    setEnabled(true);  // it belongs to the main window
}

void FRMAcceso::CheckBox1Click() {
    if (CheckBox1_->isChecked() && Edit1_->text().isEmpty()) {
        CheckBox1_->setChecked(false);
        return;
    }
    const QString remembered = CheckBox1_->isChecked() ? Edit1_->text() : QString();
    context().ini.setValue(kUsuario, QStringLiteral("user"), remembered);
    context().options.Usuario = remembered;  // the control panel would write its own back
    main_.Ini();
}

void FRMAcceso::offerPasswordChange() {
    const QString profile = session().Acceso;
    BitBtn4_->setVisible(fromMenu_ && Edit1_->text() == session().Usuario.text() &&
                         context().ini.isYes(kUsuario, QStringLiteral("cambiar_pass")) &&
                         (profile == QLatin1String("CA") || profile == QLatin1String("AM")));
}

void FRMAcceso::BitBtn1Click() {
    QString code = Edit1_->text();
    QString password = cutToWidth(Edit2_->text(), kPasswordBuffer);
    const bool station = context().ini.value(QStringLiteral("Equipo"),
                                             QStringLiteral("consulta")) == QLatin1String("S");
    if (station && !fromMenu_ && hasUnattendedUser()) {
        code = context().ini.value(kUsuario, QStringLiteral("user1"));
        password =
            cutToWidth(context().ini.value(kUsuario, QStringLiteral("pass")), kPasswordBuffer);
    }
    if (logIn(code, password)) {
        before_.reset();
        Edit2_->clear();
        main_.startSession();
        accept();
        main_.whenRunning([this] { tellUnfinishedReceipts(context()); });
    }
}

bool FRMAcceso::logIn(const QString &code, const QString &password) {
    const QString complaint = schemaComplaint(context().conexion);
    if (!complaint.isEmpty()) {
        main_.whenRunning([this, complaint] { messages().error(complaint); });
        return false;
    }
    NamedQuery &user = context().odonto.ControlUsuarios1;
    user.open({{QStringLiteral("usr"), code}, {QStringLiteral("pas"), password}});
    if (user.isEmpty()) {
        refuseWrongPassword();
        return false;
    }
    if (!before_) {
        before_ = main_.standing();
    }
    fillSession(code);
    main_.showUser();
    context().odonto.CtroAtencion4.open({{QStringLiteral("centro"), user.value("centro")}});
    main_.EnableButtons();
    loadRate();
    const QString profile = session().Acceso;
    if (profile == QLatin1String("AM") || profile == QLatin1String("CA")) {
        main_.showRate();
    }
    if (profile == QLatin1String("CA") && !enterDesk(code)) {
        return false;
    }
    findCentre();
    if (options().BuscarActualizaciones &&
        (profile == QLatin1String("AM") || profile == QLatin1String("CA"))) {
        lookForUpdate();
        if (Application::current()->ending()) {
            return false;
        }
    }
    offerWizard();
    return true;
}

void FRMAcceso::takeBack() {
    if (before_) {
        main_.restore(*std::exchange(before_, std::nullopt));
    }
}

void FRMAcceso::refuseWrongPassword() {
    ++failures_;
    main_.whenRunning([this] {
        messages().warning(QStringLiteral("La contraseña es incorrecta, vuelva a intentar."));
        if (failures_ >= kAttempts) {
            messages().error(
                QStringLiteral("Usted no esta autorizado para utilizar este sistema."));
            Application::current()->endApplication();
            return;
        }
        Edit2_->clear();
        moveFocus(Edit2_);
    });
}

void FRMAcceso::fillSession(const QString &code) {
    const NamedQuery &user = context().odonto.ControlUsuarios1;
    Session &current = session();
    const QString desk = user.text(QStringLiteral("num_caja")).trimmed();
    bool number = false;
    const short parsed = desk.toShort(&number);
    if (!number) {
        throw std::invalid_argument(
            QStringLiteral("'%1' no es un número de caja válido.").arg(desk).toStdString());
    }
    current.NumCaja = parsed;
    current.NombreUsuario = user.text(QStringLiteral("nombre"));
    current.Acceso = user.text(QStringLiteral("acceso"));
    // From the query of the user screen, which is closed until that screen has been opened.
    current.Origen2 = context().odonto.ControlUsuarios.text(QStringLiteral("origen"));
    if (current.Acceso.text() == QLatin1String("CA") ||
        current.Acceso.text() == QLatin1String("AM")) {
        current.Turno = user.text(QStringLiteral("turno"));
        current.CargarTurno();
        current.Mpo = user.text(QStringLiteral("mpo"));
    }
    current.Origen = user.text(QStringLiteral("origen"));
    current.Centro = user.text(QStringLiteral("centro"));
    current.Usuario = code;
    current.NombreCorto = user.text(QStringLiteral("nombrecorto"));
}

void FRMAcceso::loadRate() {
    NamedQuery &rate =
        session().isFirebird() ? context().odonto.TipoCambio1 : context().odonto.Control;
    rate.open();
    session().TipoCambio = Money::rounded(rate.number(QStringLiteral("tipo_cam")));
}

bool FRMAcceso::enterDesk(const QString &code) {
    NamedQuery &finance = context().finanzas.UsuarioID;
    finance.open({{QStringLiteral("usuario"), asciiUpper(code)}});
    if (finance.isEmpty()) {
        main_.whenRunning([this] {
            messages().error(
                QStringLiteral("La clave del usuario no se encuentra registrada para finanzas, "
                               "presione cualquier tecla para continuar."));
            BitBtn2Click();
        });
        return false;
    }
    NamedQuery &desk = context().caja.DatosCajaUsuario;
    desk.open({{QStringLiteral("caja"), session().NumCaja}});
    if (desk.date(QStringLiteral("fechapaquete")) != context().clock.today()) {
        desk.reopen();
    }
    if (options().GenerarEstadisticas) {
        main_.refreshDeskFigures();
    }
    return true;
}

void FRMAcceso::findCentre() {
    NamedQuery &centres = context().odonto.CtroAtencion1;
    centres.open({{QStringLiteral("cd"), session().Origen.text()}});
    centres.locate(
        {{QStringLiteral("centro"), cutToWidth(session().Centro.text().trimmed(), kCentreWidth)}});
    session().Prog = centres.text(QStringLiteral("prog")).rightJustified(kProgrammeWidth, u'0');
    session().CentroDescr = centres.text(QStringLiteral("descr"));
}

void FRMAcceso::lookForUpdate() {
    main_.whenRunning([this] {
        if (update_.run(UpdateCheck::Asked::AtLogin)) {
            Application::current()->endApplication();
        }
    });
}

void FRMAcceso::offerWizard() {
    if (!session().isFirebird()) {
        return;
    }
    context().odonto.CtroAtencionF.open();
    if (context().odonto.CtroAtencionF.isEmpty()) {
        main_.whenRunning([this] { wizard_.showModal(); });
    }
}

void FRMAcceso::BitBtn2Click() {
    Edit1_->clear();
    Edit2_->clear();
    offerPasswordChange();
    moveFocus(Edit1_);
}

void FRMAcceso::BitBtn3Click() {
    if (fromMenu_) {
        Dialog::reject();
        return;
    }
    const Answer answer = messages().confirm(QStringLiteral("Desea Salir del Sistema?"));
    if (answer == Answer::Yes) {
        Application::current()->endApplication();
    } else if (answer == Answer::No) {
        moveFocus(Edit2_);
    }
}

void FRMAcceso::BitBtn4Click() {
    const NamedQuery &user = context().odonto.ControlUsuarios1;
    const bool hers =
        !user.isEmpty() && user.text(QStringLiteral("usuario")) == session().Usuario.text();
    password_.reset(hers ? std::optional(user.text(QStringLiteral("pass"))) : std::nullopt);
    password_.showModal(this);
    moveFocus(Edit2_);
}

void FRMAcceso::reject() {
    runGuarded([this] { BitBtn3Click(); });
}

void FRMAcceso::done(int result) {
    takeBack();
    // Without a login the window goes back to the session that stands; on a station for
    // consultations there may be none.
    main_.setEnabled(fromMenu_ || main_.sessionStarted());
    Dialog::done(result);
}

}  // namespace kaldo
