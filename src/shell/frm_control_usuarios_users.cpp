#include "shell/frm_control_usuarios_users.h"

#include "catalogues/lookups.h"
#include "data/catalogue_texts.h"
#include "shell/users_report.h"

using namespace Qt::StringLiterals;

namespace kaldo {

namespace {

GridColumn textColumn(const QString &field, const QString &title, int width, int limit) {
    return GridColumn(field, title, width).limit(limit).editable();
}

GridColumn numberColumn(const QString &field, const QString &title, int width, int digits) {
    return GridColumn(field, title, width).digits(digits).editable();
}

}  // namespace

FRMControlUsuarios::FRMControlUsuarios(Context &context)
    : Screen(context, u"FRMControlUsuarios"_s, u"Control de Usuarios"_s) {
    using namespace form;
    form::build(this, column({
                          label(u"Administre las opciones para cada usuario de KALDO."_s).bold(),
                          catalogue(&panel_, context, u"Usuarios"_s, users()),
                          custom<RightsGrids>(&rights_, u"Derechos"_s)
                              .fill()
                              .grow()
                              .with([this](RightsGrids *grids) { grids->setQuery(rights()); }),
                      }));
    rights_->setEditable(false);
    connectGuarded(panel_, &CataloguePanel::rowChanged, this, [this] { openRights(); });
    connectGuarded(rights_, &RightsGrids::finished, this, [this] { panel_->save(); });
}

FRMControlUsuarios::~FRMControlUsuarios() {
    rights().cancelUpdates();
}

CatalogueRules FRMControlUsuarios::users() {
    CatalogueRules rules;
    rules.query = &context().odonto.ControlUsuarios;
    rules.parameters = [this] { return Parameters{{u"origen"_s, session().Origen.text()}}; };
    rules.keys = {u"usuario"_s};
    rules.columns = userColumns();
    rules.fixedOnEdit = {u"USUARIO"_s};
    rules.toldBy = {u"USUARIO"_s, u"NOMBRE"_s};
    rules.defaults = [this](NamedQuery &row) {
        row.set(u"origen"_s, session().Origen.text());
        row.set(u"campus"_s, context().odonto.campusDelUsuario(session().Usuario.text()));
    };
    rules.openRow = [this] { openUser(); };
    rules.enter = {
        {u"USUARIO"_s, [this] { return enterUsuario(); }},
        {u"MPO"_s,
         [this] {
             rights_->start();
             return EnterResult::Stay;
         }},
    };
    rules.complete = [this] { return completeRights(); };
    rules.write = [this] { write(); };
    rules.mayRemove = [this] { return mayRemove(); };
    rules.remove = [this] { remove(); };
    rules.drop = [this] { rights().cancelUpdates(); };
    rules.modeChanged = [this](CatalogueMode mode) {
        if (rights_) {
            rights_->setEditable(mode == CatalogueMode::Edit);
        }
    };
    return rules;
}

QList<GridColumn> FRMControlUsuarios::userColumns() {
    const bool accounts = options().ContabilidadGubernamental;
    const auto ifAccounts = [accounts](GridColumn column) {
        return accounts ? column : column.hidden();
    };
    return {
        textColumn(u"USUARIO"_s, u"Usuario"_s, 8, 8),
        textColumn(u"PASS"_s, u"Contraseña"_s, 9, 8),
        textColumn(u"NOMBRE"_s, u"Nombre"_s, 20, 60).stretch(),
        textColumn(u"NOMBRECORTO"_s, u"Nombre Corto"_s, 17, 20),
        GridColumn(u"LKCAJA"_s, u"Caja"_s, 15)
            .lookup({&context().caja.DatosCaja2,
                     u"NUM_CAJA"_s,
                     u"NOMBRE"_s,
                     {{u"NUM_CAJA"_s, u"Caja"_s, 6, CellMask::Integer},
                      {u"NOMBRE"_s, u"Nombre"_s, 22}}})
            .strict()
            .editable(),
        GridColumn(u"LKCENTRO"_s, u"Centro"_s, 13)
            .lookup(centres(context().odonto.CtroAtencion1))
            .strict()
            .editable(),
        textColumn(u"TURNO"_s, u"Turno"_s, 5, 2),
        textColumn(u"ACCESO"_s, u"Acceso"_s, 6, 2),
        textColumn(u"AUTORIZA"_s, u"Autoriza"_s, 8, 8),
        ifAccounts(textColumn(u"CAMPUS"_s, u"Campus"_s, 6, 1)),
        textColumn(u"ORIGEN"_s, u"Origen"_s, 6, 3),
        ifAccounts(numberColumn(u"USUARIOID"_s, u"Usuario Id"_s, 9, 9)),
        numberColumn(u"MPO"_s, u"Municipio"_s, 8, 1),
    };
}

void FRMControlUsuarios::formCreate() {
    context().caja.DatosCaja2.open();
    context().odonto.CtroAtencion1.open({{u"cd"_s, session().Origen.text()}});
    panel_->reload();
}

void FRMControlUsuarios::activated() {
    panel_->refresh();
}

void FRMControlUsuarios::openRights() {
    rights().open({{u"usuario"_s, panel_->query().text(u"usuario"_s)}});
}

EnterResult FRMControlUsuarios::enterUsuario() {
    if (context().odonto.existe(usuarioText(panel_->query().text(u"usuario"_s)))) {
        return panel_->refuse(u"usuario"_s, u"El usuario ya existe vuelva a intentar"_s);
    }
    panel_->allowSave();
    beginRights();
    return EnterResult::Next;
}

void FRMControlUsuarios::openUser() {
    panel_->query().edit();
    if (rights().isEmpty()) {
        beginRights();
    } else {
        rights().edit();
    }
}

void FRMControlUsuarios::beginRights() {
    openRights();
    if (rights().isEmpty()) {
        rights().append();
        rights().set(u"usuario"_s, panel_->query().value(u"usuario"_s));
    }
    // A save that failed half way has left rights without their user: they start anew.
    for (const QString &column : rightColumns()) {
        rights().set(column, QVariant());
    }
    for (const QString &column : rightsOfNewUser()) {
        rights().set(column, u"N"_s);
    }
}

bool FRMControlUsuarios::completeRights() {
    const NamedQuery &user = panel_->query();
    if (options().ContabilidadGubernamental && user.text(u"campus"_s).isEmpty()) {
        messages().warning(u"El Campo Campus se encuentra vacío, favor de llenarlo"_s);
        panel_->grid()->setCurrentField(u"CAMPUS"_s);
        return false;
    }
    for (const QString &field : {u"usuario"_s, u"origen"_s, u"centro"_s, u"acceso"_s}) {
        rights().set(field, user.value(field));
    }
    return true;
}

void FRMControlUsuarios::write() {
    rights().apply();
    panel_->query().apply();
}

bool FRMControlUsuarios::mayRemove() {
    const QString usuario = panel_->query().text(u"usuario"_s).trimmed();
    if (usuario.compare(session().Usuario.text().trimmed(), Qt::CaseInsensitive) == 0) {
        messages().warning(u"No se puede borrar al usuario con el que se entró al sistema."_s);
        return false;
    }
    if (panel_->query().text(u"acceso"_s) == u"AM"_s &&
        !context().odonto.existe(otroAdministradorText(session().Origen.text(), usuario))) {
        messages().warning(u"No se puede borrar al último administrador."_s);
        return false;
    }
    return true;
}

void FRMControlUsuarios::remove() {
    try {
        rights().remove();
        rights().apply();
        panel_->query().remove();
        panel_->query().apply();
    } catch (...) {
        rights().cancelUpdates();
        throw;
    }
}

bool FRMControlUsuarios::previewReport() {
    panel_->refresh();
    CatalogueHeading heading = catalogueHeading(context());
    heading.clinica = options().Facultad;
    previewCatalogue(context(), this, this, layoutUsers(heading, userRows(panel_->query())),
                     windowTitle());
    return true;
}

}  // namespace kaldo
