#include "catalogues/two_lists.h"
#include "shell/federal_states.h"
#include "shell/frm_inicio_firebird_wizard.h"
#include "toolkit/forms/form.h"

#include <QStackedWidget>

using namespace Qt::StringLiterals;

namespace kaldo {

namespace {

constexpr int kAgeDigits = 2;
constexpr int kHighestDesk = 32767;

/// A field of a group: going to it shows the group's step, each change is looked at.
template <typename F>
form::WidgetItem<F> ofStep(form::WidgetItem<F> item, const std::function<void()> &arrive,
                           const std::function<void()> &changed) {
    return item.arrive(arrive).changed(changed);
}

form::WidgetItem<Choice> ofStep(form::WidgetItem<Choice> item, const std::function<void()> &arrive,
                                const std::function<void()> &changed) {
    return item.arrive(arrive).with([changed](Choice *made) {
        connectGuarded(made, &QComboBox::currentIndexChanged, made, changed);
    });
}

}  // namespace

void FRMInicioFirebird::build() {
    using namespace form;
    const auto page = [](QStackedWidget *pages, const Item &content) {
        auto *made = new QWidget(pages);
        form::build(made, content);
        made->layout()->setContentsMargins(0, 0, 0, 0);
        pages->addWidget(made);
    };
    form::build(
        this,
        column({
            row({label(u"Antes de iniciar con KALDO se necesita llenar los siguientes catálogos, "
                       "con al menos un registro."_s)
                     .wrap()
                     .bold()
                     .grow(),
                 label(&step_, u"Paso"_s).heading()}),
            form::line(),
            custom(&pages_, u"Paginas"_s)
                .with([this, page](QStackedWidget *pages) {
                    page(pages, dataPage());
                    page(pages, areasPage());
                    page(pages, finishPage());
                })
                .fill()
                .grow(),
            form::line(),
            buttons(),
        }));
}

form::Item FRMInicioFirebird::buttons() {
    using namespace form;
    return row(
        {button(&anterior_, u"Anterior"_s, u"&Anterior"_s).icon(u"previous"_s).clicked([this] {
             goBack();
         }),
         button(&siguiente_, u"Siguiente"_s, u"&Siguiente"_s).icon(u"next"_s).clicked([this] {
             goOn();
         }),
         stretch(),
         button(nullptr, u"Cerrar"_s, u"&Cerrar Ventana"_s)
             .icon(u"close"_s)
             .escape()
             .clicked([this] { reject(); })});
}

form::Item FRMInicioFirebird::dataPage() {
    using namespace form;
    return column({cityGroup(), centreGroup(), deskGroup(), cashierGroup(), stretch()});
}

form::Item FRMInicioFirebird::cityGroup() {
    using namespace form;
    const auto arrive = [this] { showStep(1); };
    const auto changed = [this] { updateTicks(); };
    return group(
        &ciudad_, u"GrupoCiudad"_s, u"Ciudad"_s,
        column({
            row({ofStep(choice(&ComboBox0_, u"ComboBox0"_s, u"Ciudad"_s), arrive, changed),
                 ofStep(text(&Edit1_, u"Edit1"_s, u"Nombre"_s).width(20).shown(24), arrive,
                        changed)}),
            row({ofStep(choice(&ComboBox1_, u"ComboBox1"_s, u"Estado"_s).items(federalStates()),
                        arrive, changed),
                 strip(&panelCampus_, u"PanelCampus"_s,
                       {ofStep(choice(&ComboBox2_, u"ComboBox2"_s, u"Campus"_s)
                                   .items({u"1 - Puerto Alto"_s, u"2 - Valle Norte"_s,
                                           u"3- Costa Sur"_s}),
                               arrive, changed)})}),
        }));
}

form::Item FRMInicioFirebird::centreGroup() {
    using namespace form;
    const auto arrive = [this] { showStep(2); };
    const auto changed = [this] { updateTicks(); };
    return group(
        &centro_, u"GrupoCentro"_s, u"Centro de Atención"_s,
        column({
            row({ofStep(text(&Edit2_, u"Edit2"_s, u"Centro"_s).upper().width(2).shown(4), arrive,
                        changed),
                 ofStep(text(&Edit3_, u"Edit3"_s, u"Descripción"_s).width(80).shown(44), arrive,
                        changed)}),
            ofStep(text(&Edit3a_, u"Edit3a"_s, u"Dirección"_s).width(60), arrive, changed),
            row({ofStep(text(&Edit3b_, u"Edit3b"_s, u"Colonia"_s).width(60).shown(34), arrive,
                        changed),
                 ofStep(text(&Edit3c_, u"Edit3c"_s, u"Teléfono"_s).width(15), arrive, changed)}),
        }));
}

form::Item FRMInicioFirebird::deskGroup() {
    using namespace form;
    const auto arrive = [this] { showStep(3); };
    const auto changed = [this] { updateTicks(); };
    return group(
        &caja_, u"GrupoCaja"_s, u"Caja"_s,
        row({ofStep(number(&Edit4_, u"Edit4"_s, u"Caja"_s).range(1, kHighestDesk).width(5).shown(6),
                    arrive, changed),
             ofStep(text(&Edit5_, u"Edit5"_s, u"Nombre"_s).upper().width(20).shown(24), arrive,
                    changed),
             label(u"Ejemplo:"_s), label(u"1    Caja 01"_s), stretch()}));
}

form::Item FRMInicioFirebird::cashierGroup() {
    using namespace form;
    const auto arrive = [this] { showStep(4); };
    const auto changed = [this] { updateTicks(); };
    return group(
        &usuario_, u"GrupoUsuario"_s, u"Usuario Caja"_s,
        column({
            row({ofStep(text(&Edit6_, u"Edit6"_s, u"Usuario"_s).width(8).shown(12), arrive,
                        changed),
                 ofStep(text(&Edit7_, u"Edit7"_s, u"Contraseña"_s).width(8).shown(12), arrive,
                        changed)}),
            ofStep(text(&Edit7a_, u"Edit7a"_s, u"Nombre Cajero"_s).upper().width(60).shown(44),
                   arrive, changed),
        }));
}

form::Item FRMInicioFirebird::areasPage() {
    using namespace form;
    return column({
        label(u"Seleccione solo las áreas de venta que le sean útiles, por favor no agregue áreas "
              "innecesarias."_s)
            .wrap(),
        twoLists(&areas_, context(), u"Areas"_s).with([this](TwoLists *made) {
            connectGuarded(made, &TwoLists::reloaded, made, [this] { updateTicks(); });
        }),
        label(&agregadas_, u"LabelAgregadas"_s).bold(),
    });
}

form::Item FRMInicioFirebird::finishPage() {
    using namespace form;
    return column({
        label(u"¡Casi terminamos! "_s).heading(),
        agesGroup(children_, u"Infantil"_s, kAgeDigits, u"Recomendación entre 1 a 14 años."_s),
        agesGroup(adults_, u"Adultos"_s, kAgeDigits + 1, u"Recomendación entre 15 a 100 años."_s),
        finishGroup(),
        stretch(),
    });
}

form::Item FRMInicioFirebird::agesGroup(Ages &ages, const QString &name, int highestDigits,
                                        const QString &advice) {
    using namespace form;
    const auto changed = [this] { updateTicks(); };
    return group(&ages.group, u"Edades"_s + name, u"Edades "_s + ages.area,
                 row({number(&ages.lowest, u"EdadMin"_s + name, u"Edad Minima"_s)
                          .range(0, 99)
                          .width(kAgeDigits)
                          .changed(changed),
                      number(&ages.highest, u"EdadMax"_s + name, u"Edad Maxima"_s)
                          .range(0, highestDigits == kAgeDigits ? 99 : 999)
                          .width(highestDigits)
                          .changed(changed)
                          .leave([this, &ages] { checkAges(ages); }),
                      label(advice), stretch()}));
}

form::Item FRMInicioFirebird::finishGroup() {
    using namespace form;
    const auto tick = [this](int place, const QString &name, const QString &caption) {
        Tick &made = ticks_[place];
        return row({label(&made.mark, name + u"Marca"_s).with([](QLabel *mark) {
                        mark->setFixedWidth(mark->fontMetrics().height() + 4);
                    }),
                    label(&made.text, name, caption), stretch()});
    };
    return group(nullptr, u"GrupoFinalizar"_s, u"Finalizar"_s,
                 column({
                     tick(0, u"TickCiudad"_s, u"Registro de Ciudad"_s),
                     tick(1, u"TickCentro"_s, u"Registro de Centro de Atención"_s),
                     tick(2, u"TickCaja"_s, u"Registro de Número de Caja"_s),
                     tick(3, u"TickUsuario"_s, u"Registro de Usuario de Caja"_s),
                     tick(4, u"TickAreas"_s, u"Areas agregadas"_s),
                     tick(5, u"TickClasificacion"_s, u"Clasificación de Servicios"_s),
                     form::line(),
                     check(&universal_, u"Universal"_s, u"Generar No. Expedientes Universal"_s),
                     row({button(&terminar_, u"Terminar"_s, u"&Terminar Proceso"_s)
                              .icon(u"accept"_s)
                              .clicked([this] { terminarProceso(); }),
                          stretch()}),
                 }));
}

}  // namespace kaldo
