#include "shell/frm_control_panel.h"

#include "shell/frm000_main_window.h"
#include "toolkit/forms/picture_file.h"

#include <QTabWidget>

#include <algorithm>
#include <array>

#include "data/runtime_texts.h"

namespace kaldo {

namespace {

struct Scheme {
    const char *name;
    const char *library;
};

/// In the order of the list; the default look keeps the library for its wallpaper.
constexpr std::array<Scheme, 4> kSchemes = {{
    {"KaldoBlue", "C:\\KALDO\\Ini\\skinblue.dll"},
    {"KaldoBlack", "C:\\KALDO\\Ini\\skinblack.dll"},
    {"KaldoGreen", "C:\\KALDO\\Ini\\skingreen.dll"},
    {"Windows", "C:\\KALDO\\Ini\\skinblue.dll"},
}};

/// -1 for a look that is none of the list.
int schemeIndex(const QString &name) {
    const auto found =
        std::find_if(kSchemes.begin(), kSchemes.end(),
                     [&name](const Scheme &scheme) { return name == QLatin1String(scheme.name); });
    return found == kSchemes.end() ? -1 : static_cast<int>(found - kSchemes.begin());
}

/// Lets a label break a path behind its separators.
QString breakable(QString path) {
    const QChar gap(0x200B);
    return path.replace(u'\\', QString(u'\\') + gap).replace(u'/', QString(u'/') + gap);
}

}  // namespace

FRMControlPanel::FRMControlPanel(Context &context, FRM000 &main)
    : Dialog(context, QStringLiteral("FRMControlPanel"), QStringLiteral("Panel de Control")),
      main_(main) {}

void FRMControlPanel::formCreate() {
    created_ = false;
    context().options.load(context().ini);
    context().conexion.FBCtrclinicas.close();
    created_ = true;
}

void FRMControlPanel::openFromMenu(ScreenBase *opener) {
    if (!created_) {
        main_.Ini();
        formCreate();
    }
    ensureBuilt();
    PageControl1_->setCurrentIndex(0);
    foldPanels();
    showOptions();
    showModal(opener);
}

void FRMControlPanel::activated() {
    applyProfile();
    showCounters();
    moveFocus(PageControl1_->tabBar());
}

void FRMControlPanel::applyProfile() {
    const bool administrator = session().Acceso.text() == QLatin1String("AM");
    PageControl1_->setTabEnabled(PageControl1_->count() - 1, administrator);
    ActivarPrestamo_->setEnabled(administrator);
    RfcCliente_->setEnabled(administrator);
    Sector_->setEnabled(administrator);
    followSwitches();
}

void FRMControlPanel::foldPanels() {
    for (Button *button : {RfcCliente_, Contables_, ControlExpedientes_}) {
        button->setChecked(false);
    }
    for (QWidget *panel : {DatosFiscales_, DatosContables_, PanelControl_}) {
        panel->hide();
    }
}

void FRMControlPanel::showOptions() {
    sheet_.show(options());
    Encabezado_->setText(options().encabezado());
    Ambiente_->setIndex(schemeIndex(options().SkinName));
    SqlCliente_->setIndex(session().isFirebird()                                     ? 0
                          : session().ClienteSql.text() == QLatin1String("Informix") ? 1
                                                                                     : -1);
    logos_[0].path = options().ImgEmpresa;
    logos_[1].path = options().ImgEmpresa1;
    showLogos();
    Sector();
    followSwitches();
    shown_ = typed();
}

void FRMControlPanel::showCounters() {
    NamedQuery &counter = context().odonto.ControlExpediente;
    counter.open({{QStringLiteral("campus"), QStringLiteral("000")}});
    Contador_->setText(counter.text(QStringLiteral("num_expediente")));
    for (NamedQuery *query :
         {&context().local.Recibos, &context().local.Firebird, &context().local.Informix}) {
        query->open();
    }
    TotalRecibos_->setValue(context().local.Recibos.count());
}

void FRMControlPanel::showLogos() {
    const bool present = !logos_[0].path.isEmpty();
    for (const Logo &logo : logos_) {
        QPixmap picture;
        if (present) {
            picture = QPixmap::fromImage(loadPicture(context().installation.map(logo.path)));
        }
        if (!picture.isNull()) {
            const qreal ratio = devicePixelRatioF();
            picture = picture.scaled(logo.picture->minimumSize() * ratio, Qt::KeepAspectRatio,
                                     Qt::SmoothTransformation);
            picture.setDevicePixelRatio(ratio);
        }
        logo.picture->setPixmap(picture);
        logo.caption->setText(breakable(logo.path));
        logo.caption->setVisible(present);
    }
}

void FRMControlPanel::setCaption(QWidget *field, const QString &caption) {
    field->setAccessibleName(caption);
    if (auto *label = findChild<QLabel *>(field->objectName() + QStringLiteral("_label"))) {
        label->setText(caption);
    }
}

void FRMControlPanel::Sector() {
    const auto sector = static_cast<kaldo::Sector>(Sector_->index());
    const bool company = sector == kaldo::Sector::Empresarial;
    const bool hospital = sector == kaldo::Sector::Institucional;
    QString client = QStringLiteral("Facultad");
    if (company) {
        client = QStringLiteral("Cliente");
    } else if (hospital) {
        client = QStringLiteral("Hospital");
    }
    setCaption(NombreInstitucion_,
               company ? QStringLiteral("Nombre Empresa") : QStringLiteral("Nombre Institución"));
    setCaption(Facultad_, QStringLiteral("Nombre ") + client);
    PageControl2_->setTabText(
        1, QStringLiteral("Logo ") + (company ? QStringLiteral("Empresa") : client));
    if (!company) {
        const QString person = hospital ? QStringLiteral("Asistente") : QStringLiteral("Alumno");
        setCaption(ExpedientesPorAlumno_, QStringLiteral("Expedientes por ") + person);
        const QString registers = QStringLiteral("Registrar %1 Canalizado").arg(person);
        AlumnoCanalizado_->setText(registers);
        AlumnoCanalizado_->setAccessibleName(registers);
    }
    for (QWidget *widget : std::initializer_list<QWidget *>{
             AlumnoCanalizado_, AdmisionesOtrosCentros_, CapturarSaldos_, ExpedientesOtrosCentros_,
             PanelPrestamo_, ConsultaExpedientes_}) {
        widget->setVisible(!company);
    }
}

void FRMControlPanel::followSwitches() {
    CapturarSaldos_->setEnabled(GenerarExpediente_->isChecked());
    if (!GenerarExpediente_->isChecked()) {
        CapturarSaldos_->setChecked(false);
    }
    ExpedientesPorAlumno_->setEnabled(ActivarPrestamo_->isEnabled() &&
                                      ActivarPrestamo_->isChecked());
    SegundosDuplicado_->setEnabled(!DesactivarDuplicados_->isChecked());
}

void FRMControlPanel::AplicarCambios() {
    if (!valuesFit() || !recordsSaved()) {
        return;
    }
    const Options changed = typed();
    const bool otherLook = changed.SkinName != options().SkinName;
    changed.save(context().ini);
    context().options = changed;
    main_.Ini();
    if (otherLook) {
        main_.changeSkin();
    }
    showOptions();
    messages().information(
        QStringLiteral("Algunos cambios pueden necesitar reiniciar el sistema."));
    accept();
}

Options FRMControlPanel::typed() const {
    Options typed = options();
    sheet_.take(&typed);
    if (const int scheme = Ambiente_->index();
        scheme >= 0 && scheme != schemeIndex(typed.SkinName)) {
        typed.SkinName = QString::fromLatin1(kSchemes.at(scheme).name);
        typed.Skin = QString::fromLatin1(kSchemes.at(scheme).library);
    }
    typed.ImgEmpresa = logos_[0].path;
    typed.ImgEmpresa1 = logos_[1].path;
    return typed;
}

bool FRMControlPanel::changed() const {
    return typed() != shown_ ||
           std::any_of(records_.begin(), records_.end(),
                       [](const RecordGrid *records) { return records->editing(); });
}

void FRMControlPanel::reject() {
    runGuarded([this] {
        const QString question = QStringLiteral("¿Desea cerrar el panel sin aplicar los cambios?");
        if (!changed() || messages().confirmLoss(question, {}) == Answer::Yes) {
            Dialog::reject();
        }
    });
}

bool FRMControlPanel::valuesFit() {
    for (LineField *field : sheet_.strictFields()) {
        const bool asked = field->isVisibleTo(pageOf(field)) && field->isEnabledTo(this);
        if (!asked || field->commit()) {
            continue;
        }
        PageControl1_->setCurrentWidget(pageOf(field));
        field->commit();  // tells what is wrong where it can be seen
        moveFocus(field);
        return false;
    }
    return true;
}

bool FRMControlPanel::recordsSaved() {
    for (RecordGrid *records : records_) {
        if (records->editing()) {
            PageControl1_->setCurrentWidget(pageOf(records->grid()));
            if (!records->save()) {
                moveFocus(records->grid());
                return false;
            }
        }
    }
    return true;
}

QWidget *FRMControlPanel::pageOf(const QWidget *widget) const {
    int page = 0;
    while (!PageControl1_->widget(page)->isAncestorOf(widget)) {
        ++page;
    }
    return PageControl1_->widget(page);
}

void FRMControlPanel::bindRecords() {
    auto *menu = new RecordMenu(this);
    DMLocal &local = context().local;
    const auto add = [&](
                         DataGrid *grid, NamedQuery *query, const QString &number,
                         const QString &last, RuntimeText (*repeated)(const QVariant &),
                         const QString &text,
                         std::function<void(NamedQuery &)> normalise = [](NamedQuery &) {}) {
        auto *records = new RecordGrid(
            messages(),
            {grid, query, number, last,
             [&local, repeated](const QVariant &value) { return local.existe(repeated(value)); },
             text, std::move(normalise)},
            this);
        grid->setEscapeHandler([this, records] {
            if (records->editing()) {
                records->cancel();
            } else {
                reject();
            }
        });
        menu->serve(records);
        records_.push_back(records);
        return records;
    };
    const QString index = QStringLiteral(
        "El número de indice ya se encuentra registrado, presione cualquier tecla "
        "para continuar.");
    const RecordGrid *receipts =
        add(GridRecibos_, &local.Recibos, QStringLiteral("RECIBO"), QStringLiteral("TIPO_SERV"),
            recibosDuplicadoText,
            QStringLiteral("El número de recibo ya se encuentra registrado, presione cualquier "
                           "tecla para continuar."));
    connectGuarded(receipts, &RecordGrid::changed, this,
                   [this] { TotalRecibos_->setValue(context().local.Recibos.count()); });
    add(GridFirebird_, &local.Firebird, QStringLiteral("NOIDX"), QStringLiteral("RUTA"),
        firebirdDuplicadoText, index, [this](NamedQuery &row) {
            const QString typed = row.text(QStringLiteral("RUTA"));
            const QString kept = context().installation.portable(typed);
            if (kept != typed) {
                row.set(QStringLiteral("RUTA"), kept);
            }
        });
    add(GridInformix_, &local.Informix, QStringLiteral("NOIDX"), QStringLiteral("PASS"),
        informixDuplicadoText, index);
}

void FRMControlPanel::chooseHelpFile() {
    const QString file = context().fileDialogs.openFile(
        this, QStringLiteral("Archivo de Ayuda"), context().installation.map(ArchivoAyuda_->text()),
        QStringLiteral("Archivos de ayuda (*.chm *.html);;Todos los archivos (*)"));
    if (!file.isEmpty()) {
        ArchivoAyuda_->setText(file);
    }
}

void FRMControlPanel::chooseLogo(int logo) {
    Logo &kept = logos_.at(static_cast<std::size_t>(logo));
    const QString file = context().fileDialogs.openFile(
        this, PageControl2_->tabText(logo), context().installation.map(kept.path),
        QStringLiteral("Imágenes (*.png *.jpg *.jpeg *.bmp);;Todos los archivos (*)"));
    if (file.isEmpty()) {
        return;
    }
    if (loadPicture(file).isNull()) {
        messages().warning(
            QStringLiteral("El archivo %1 no es una imagen que se pueda mostrar.").arg(file));
        return;
    }
    kept.path = file;
    showLogos();
}

void FRMControlPanel::removeLogo(int logo) {
    logos_.at(static_cast<std::size_t>(logo)).path.clear();
    showLogos();
}

void FRMControlPanel::done(int result) {
    for (RecordGrid *records : records_) {
        if (records->editing()) {
            records->cancel();
        }
    }
    Dialog::done(result);
}

}  // namespace kaldo
