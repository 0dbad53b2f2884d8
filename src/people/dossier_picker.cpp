#include "people/dossier_picker.h"

#include "app/binding.h"

namespace kaldo {

namespace {

LookupSource dossierSource(NamedQuery *query) {
    return {query,
            QStringLiteral("EXPEDIENTE"),
            QStringLiteral("EXPEDIENTE"),
            {{QStringLiteral("EXPEDIENTE"), QStringLiteral("Exp."), 10, CellMask::Text},
             {QStringLiteral("PATERNO"), QStringLiteral("Apellido Paterno"), 20, CellMask::Text},
             {QStringLiteral("MATERNO"), QStringLiteral("Apellido Materno"), 20, CellMask::Text},
             {QStringLiteral("PACIENTE"), QStringLiteral("Paciente"), 22, CellMask::Text},
             {QStringLiteral("FECHA_NAC"), QStringLiteral("Fecha Nac."), 11, CellMask::Date},
             {QStringLiteral("EDAD"), QStringLiteral("Edad"), 5, CellMask::Integer},
             {QStringLiteral("CENTRO"), QStringLiteral("Centro"), 7, CellMask::Text}}};
}

}  // namespace

DossierPicker::DossierPicker(NamedQuery &dossiers, Ask ask)
    : dossiers_(dossiers), ask_(std::move(ask)) {}

form::Item DossierPicker::items() {
    using namespace form;
    return row({iconButton(&consultar_, QStringLiteral("ConsultarExpedientes"),
                           QStringLiteral("Consultar Expedientes F5"), QStringLiteral("search"))
                    .clicked([this] { open(); }),
                iconButton(&filtro_, QStringLiteral("FiltroExpedientes"),
                           QStringLiteral("Activar Filtro de Busqueda"), QStringLiteral("filter"))
                    .clicked([this] { alternarFiltro(); }),
                lookup(&lista_, QStringLiteral("ListaExpedientes"))
                    .accessible(QStringLiteral("Lista de expedientes"))
                    .source(dossierSource(&dossiers_))
                    .shown(10)
                    .key(Qt::Key_F5, [this] { toggle(); })
                    .arrive([this] { lista_->openList(); })
                    .closedUp([this] {
                        const QString expediente = dossiers_.text(QStringLiteral("EXPEDIENTE"));
                        hide();
                        emit picked(expediente);
                    })
                    .cancelled([this] {
                        hide();
                        emit cancelled();
                        moveFocus(number_);
                    })});
}

void DossierPicker::attach(LineField *number) {
    number_ = number;
    bindLookup(lista_, &dossiers_);
    QSizePolicy policy = lista_->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    lista_->setSizePolicy(policy);
}

void DossierPicker::open() {
    if (!lista_->isHidden()) {
        hide();
        moveFocus(number_);
        return;
    }
    if (const std::optional<Parameters> values = ask_()) {
        dossiers_.open(*values);
        lista_->setVisible(true);
        moveFocus(lista_);
    }
}

void DossierPicker::hide() {
    lista_->closeList();
    lista_->setVisible(false);
    lista_->clearField();
}

void DossierPicker::setEnabled(bool enabled) {
    consultar_->setEnabled(enabled);
    filtro_->setEnabled(enabled);
}

void DossierPicker::alternarFiltro() {
    const bool on = !lista_->filtering();
    lista_->setFiltering(on);
    const QString hint = on ? QStringLiteral("Desactivar Filtro de Busqueda")
                            : QStringLiteral("Activar Filtro de Busqueda");
    filtro_->setText(hint);
    filtro_->setToolTip(hint);
    filtro_->setAccessibleName(hint);
    filtro_->setIconName(on ? QStringLiteral("filter-off") : QStringLiteral("filter"));
    moveFocus(lista_->isHidden() ? static_cast<QWidget *>(number_) : lista_);
}

}  // namespace kaldo
