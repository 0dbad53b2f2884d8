#include "payments/service_choice.h"

#include "app/binding.h"
#include "payments/service_types.h"

namespace kaldo {

namespace {

LookupSource descriptions(NamedQuery *query, const QString &value, const QString &title) {
    return {query,
            value,
            QStringLiteral("DESCR"),
            {{QStringLiteral("DESCR"), title, 44, CellMask::Text}}};
}

SalesArea currentArea(const NamedQuery &areas) {
    return {areas.integer(QStringLiteral("TIPO_PROD")), areas.text(QStringLiteral("DESCR")),
            areas.text(QStringLiteral("ANTICIPO")), areas.integer(QStringLiteral("EDADMIN")),
            areas.integer(QStringLiteral("EDADMAX"))};
}

}  // namespace

form::Item ServiceChoice::items() {
    using namespace form;
    return rowAbove(
        {choice(&tipo_, QStringLiteral("ComboBox1"), QStringLiteral("Tipo de Servicio"))
             .closedUp([this] { elegirTipoServicio(); })
             .grow(),
         lookup(&area_, QStringLiteral("ComboBox2"), QStringLiteral("Clasif. del Servicio"))
             .source(descriptions(&context().odonto.serviciosxctros, QStringLiteral("TIPO_PROD"),
                                  QStringLiteral("Clasif. del Servicio")))
             .closedUp([this] { elegirArea(); })
             .edited([this] { emit reopened(); })
             .grow(),
         strip(&panelLugar_, QStringLiteral("PanelLugar"),
               {lookup(&lugar_, QStringLiteral("ComboBox3"), QStringLiteral("Lugar de Atención"))
                    .source(descriptions(&context().odonto.AreaAtencion, QStringLiteral("AREA"),
                                         QStringLiteral("Lugar de Atención")))
                    .closedUp([this] { elegirLugar(); })
                    .edited([this] { emit reopened(); })
                    .above()
                    .grow()})
             .grow()});
}

void ServiceChoice::attach() {
    bindLookup(area_, &context().odonto.serviciosxctros);
    bindLookup(lugar_, &context().odonto.AreaAtencion);
    QSizePolicy policy = panelLugar_->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    panelLugar_->setSizePolicy(policy);
}

void ServiceChoice::reset() {
    tipo_->setItems(serviceTypeRows(options().sector == Sector::Empresarial));
    tipo_->setIndex(-1);
    service_ = {};
    forgetArea();
    context().odonto.serviciosxctros.close();
    context().odonto.AreaAtencion.close();
}

void ServiceChoice::setEnabled(bool enabled) {
    for (QWidget *list : {static_cast<QWidget *>(tipo_), static_cast<QWidget *>(area_),
                          static_cast<QWidget *>(lugar_)}) {
        list->setEnabled(enabled);
    }
}

/// Counts wherever the focus is by then: Tab has left the list before its choice counts.
void ServiceChoice::elegirTipoServicio() {
    if (tipo_->currentIndex() < 0) {
        return;
    }
    forgetArea();
    service_ = {};
    service_.row = tipo_->currentText();
    service_.tipoServ = tipoServOf(service_.row);
    service_.cadenaServicio = cadenaServicioOf(service_.row);
    emit typeChosen();
    context().odonto.serviciosxctros.open({{QStringLiteral("P_CENTRO"), session().Centro.text()},
                                           {QStringLiteral("P_DIRIGIDO"), service_.tipoServ}});
    moveFocus(area_);
}

void ServiceChoice::elegirArea() {
    if (area_->text().isEmpty()) {
        return;
    }
    service_.area = currentArea(context().odonto.serviciosxctros);
    NamedQuery &places = context().odonto.AreaAtencion;
    places.open({{QStringLiteral("centro"), session().Centro.text()},
                 {QStringLiteral("tipo"), service_.area.tipoProd}});
    lugar_->clearField();
    service_.lugarArea.clear();
    service_.lugarDescr.clear();
    service_.lugarShown = !places.isEmpty();
    panelLugar_->setVisible(service_.lugarShown);
    emit reopened();
    if (service_.lugarShown) {
        moveFocus(lugar_);
    } else {
        emit chosen();
    }
}

void ServiceChoice::elegirLugar() {
    if (lugar_->text().isEmpty()) {
        return;
    }
    service_.lugarArea = context().odonto.AreaAtencion.text(QStringLiteral("AREA"));
    service_.lugarDescr = lugar_->text();
    emit chosen();
}

void ServiceChoice::forgetArea() {
    area_->clearField();
    lugar_->clearField();
    panelLugar_->setVisible(false);
}

}  // namespace kaldo
