#include "shell/frm_inicio_firebird_wizard.h"

#include "catalogues/two_lists.h"
#include "shell/frm000_main_window.h"
#include "toolkit/forms/form.h"

#include <QStackedWidget>
#include <QTimer>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kaldo {

namespace {

bool filled(std::initializer_list<const QLineEdit *> fields) {
    return std::all_of(fields.begin(), fields.end(),
                       [](const QLineEdit *field) { return !field->text().trimmed().isEmpty(); });
}

void showTick(QLabel &mark, QLabel &text, bool on) {
    const int side = mark.fontMetrics().height();
    mark.setPixmap(on ? iconNamed(u"accept"_s).pixmap(QSize(side, side), mark.devicePixelRatioF())
                      : QPixmap());
    text.setAccessibleName(text.text() + (on ? u": listo"_s : u": pendiente"_s));
}

}  // namespace

FRMInicioFirebird::FRMInicioFirebird(Context &context, FRM000 &main)
    : Dialog(context, u"FRMInicioFirebird"_s, u"Asistente de Inicio"_s),
      main_(main),
      setup_(context) {
    children_.area = u"INFANTIL"_s;
    adults_.area = u"ADULTOS"_s;
}

void FRMInicioFirebird::activated() {
    // The main window is disabled under the login, and with it the windows that belong to it.
    setEnabled(true);
    setup_ = ClinicSetup(context());
    clearFields();
    showPage(Data);
    moveFocus(Edit1_);
}

void FRMInicioFirebird::clearFields() {
    for (TextField *field :
         {Edit1_, Edit2_, Edit3_, Edit3a_, Edit3b_, Edit3c_, Edit5_, Edit6_, Edit7_, Edit7a_}) {
        field->clear();
    }
    for (NumberField *field :
         {Edit4_, children_.lowest, children_.highest, adults_.lowest, adults_.highest}) {
        field->clear();
    }
    panelCampus_->setVisible(options().sector >= Sector::Educativo);
    ComboBox0_->setItems({session().Origen.text()});
    ComboBox0_->setIndex(0);
    ComboBox1_->setIndex(-1);
    ComboBox2_->setIndex(-1);
    universal_->setChecked(options().ExpedienteUniversal);
    areas_->setCentre(QString());
    lockWritten();
    updateTicks();
}

void FRMInicioFirebird::showStep(int step) {
    step_->setText(u"Paso %1 de 4"_s.arg(step));
}

void FRMInicioFirebird::showPage(Page page) {
    pages_->setCurrentIndex(page);
    step_->setVisible(page == Data);
    showStep(1);
    updateTicks();
}

void FRMInicioFirebird::goOn() {
    if (pages_->currentIndex() == Data) {
        enterAreas();
    } else if (pages_->currentIndex() == Areas) {
        enterFinish();
    }
}

void FRMInicioFirebird::goBack() {
    if (pages_->currentIndex() == Finish) {
        showPage(Areas);
        moveFocus(areas_->availableGrid());
    } else if (pages_->currentIndex() == Areas) {
        showPage(Data);
        moveFocus(firstToMend());
    }
}

QWidget *FRMInicioFirebird::firstToMend() const {
    if (ciudad_->isEnabled()) {
        return Edit1_;
    }
    return caja_->isEnabled() ? static_cast<QWidget *>(Edit4_) : Edit6_;
}

void FRMInicioFirebird::enterAreas() {
    const QString centro = Edit2_->text().trimmed();
    if (areas_->centre() != centro) {
        // The centre's code was changed: nobody offers what was chosen for the former one.
        areas_->removeAll();
    }
    areas_->setCentre(centro);
    showPage(Areas);
    moveFocus(areas_->availableGrid());
}

void FRMInicioFirebird::enterFinish() {
    showAges(children_);
    showAges(adults_);
    showPage(Finish);
    QWidget *first = universal_;
    if (children_.tipoProd > 0) {
        first = children_.lowest;
    } else if (adults_.tipoProd > 0) {
        first = adults_.lowest;
    }
    moveFocus(first);
}

void FRMInicioFirebird::showAges(Ages &ages) {
    NamedQuery &all = context().odonto.AreaVenta2;
    NamedQuery &offered = context().odonto.ServxCtro2;
    all.open({{u"cd"_s, session().Origen.text()}});
    ages.tipoProd = 0;
    if (all.locate({{u"descr"_s, ages.area}})) {
        offered.open({{u"tipo"_s, all.value(u"tipo_prod"_s)}});
        ages.tipoProd = offered.integer(u"tipo_prod"_s);
        offered.close();
    }
    all.close();
    ages.group->setVisible(ages.tipoProd > 0);
}

void FRMInicioFirebird::checkAges(const Ages &ages) {
    if (ages.lowest->hasValue() && ages.highest->hasValue() &&
        ages.lowest->value() > ages.highest->value()) {
        messages().warning(u"La edad mínima no puede ser mayor que la edad máxima."_s);
        moveFocus(ages.lowest);
    }
}

bool FRMInicioFirebird::cityComplete() const {
    const bool campus = panelCampus_->isHidden() || ComboBox2_->currentIndex() >= 0;
    return ComboBox0_->currentIndex() >= 0 && filled({Edit1_}) && ComboBox1_->currentIndex() >= 0 &&
           campus;
}

bool FRMInicioFirebird::centreComplete() const {
    return filled({Edit2_, Edit3_});
}

bool FRMInicioFirebird::deskComplete() const {
    return Edit4_->value() > 0 && filled({Edit5_});
}

bool FRMInicioFirebird::cashierComplete() const {
    return filled({Edit6_, Edit7_, Edit7a_});
}

bool FRMInicioFirebird::agesComplete() const {
    for (const Ages *ages : {&children_, &adults_}) {
        if (ages->tipoProd > 0 && (!ages->lowest->hasValue() || !ages->highest->hasValue() ||
                                   ages->lowest->value() > ages->highest->value())) {
            return false;
        }
    }
    return true;
}

int FRMInicioFirebird::addedAreas() const {
    return context().odonto.ServxCtro.isOpen() ? context().odonto.ServxCtro.count() : 0;
}

int FRMInicioFirebird::ageRanges() const {
    return (children_.tipoProd > 0 ? 1 : 0) + (adults_.tipoProd > 0 ? 1 : 0);
}

void FRMInicioFirebird::updateTicks() {
    if (terminar_ == nullptr || siguiente_ == nullptr) {
        return;  // while the form is being built
    }
    const QString areas = u"Areas agregadas (%1)"_s.arg(addedAreas());
    agregadas_->setText(areas);
    ticks_[4].text->setText(areas);
    ticks_[5].text->setText(u"Clasificación de Servicios (%1)"_s.arg(ageRanges()));
    const bool done[] = {cityComplete(),    centreComplete(), deskComplete(),
                         cashierComplete(), addedAreas() > 0, agesComplete()};
    for (int at = 0; at < 6; ++at) {
        showTick(*ticks_[at].mark, *ticks_[at].text, done[at]);
    }
    const int page = pages_->currentIndex();
    terminar_->setEnabled(
        std::all_of(std::begin(done), std::end(done), [](bool on) { return on; }));
    anterior_->setEnabled(page != Data);
    siguiente_->setEnabled((page == Data && done[0] && done[1] && done[2] && done[3]) ||
                           (page == Areas && done[4]));
}

SetupValues FRMInicioFirebird::values() const {
    SetupValues values;
    values.ciudad = ComboBox0_->currentText();
    values.nombreCiudad = Edit1_->text().trimmed();
    values.estado = ComboBox1_->currentIndex();
    values.campus = panelCampus_->isHidden() ? QString() : ComboBox2_->currentText();
    values.centro = Edit2_->text().trimmed();
    values.descr = Edit3_->text().trimmed();
    values.domicilio = Edit3a_->text().trimmed();
    values.colonia = Edit3b_->text().trimmed();
    values.telefono = Edit3c_->text().trimmed();
    values.caja = static_cast<int>(Edit4_->value());
    values.nombreCaja = Edit5_->text().trimmed();
    values.usuario = Edit6_->text().trimmed();
    values.pass = Edit7_->text();
    values.nombreCajero = Edit7a_->text().trimmed();
    values.universal = universal_->isChecked();
    for (const Ages *ages : {&children_, &adults_}) {
        if (ages->tipoProd > 0) {
            values.edades += AgeRange{ages->tipoProd, static_cast<int>(ages->lowest->value()),
                                      static_cast<int>(ages->highest->value())};
        }
    }
    return values;
}

void FRMInicioFirebird::terminarProceso() {
    try {
        setup_.run(values());
    } catch (...) {
        lockWritten();
        throw;
    }
    writeStation();
    offerPriceList();
}

void FRMInicioFirebird::lockWritten() {
    const ClinicSetup::Step next = setup_.next();
    ciudad_->setEnabled(next <= ClinicSetup::CareCentre);
    centro_->setEnabled(next <= ClinicSetup::CareCentre);
    caja_->setEnabled(next <= ClinicSetup::CashDesk);
    usuario_->setEnabled(next <= ClinicSetup::Cashier);
}

void FRMInicioFirebird::writeStation() {
    const SetupValues chosen = values();
    context().ini.setValue(u"Usuario"_s, u"ciudad"_s, chosen.nombreCiudad);
    context().ini.setValue(u"Usuario"_s, u"estado"_s, QString::number(chosen.estado + 1));
    // The control panel would write its own back.
    context().options.Ciudad = chosen.nombreCiudad;
    context().options.Estado = chosen.estado;
    main_.Ini();
}

void FRMInicioFirebird::offerPriceList() {
    const Answer answer = messages().confirm(
        u"¿El Catálogo de conceptos no tiene registrado ningún precio, desea analizar la lista de "
        "precios? "_s);
    if (answer == Answer::Yes) {
        // The main window takes input again when the login below has closed.
        QTimer::singleShot(0, &main_, guarded([this] { context().frame.openEntry(u"B9"_s); }));
    }
    accept();
}

void FRMInicioFirebird::reject() {
    runGuarded([this] {
        const Answer answer =
            messages().confirmLoss(u"¿Desea cerrar el asistente sin terminar el proceso?"_s, {});
        if (answer != Answer::Yes) {
            return;
        }
        if (setup_.next() == ClinicSetup::CareCentre) {
            areas_->removeAll();
        }
        Dialog::reject();
    });
}

}  // namespace kaldo
