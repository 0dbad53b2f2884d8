#include <QCoreApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QShortcut>

#include "app/binding.h"
#include "payments/frm401_payment_note.h"

namespace kaldo {

namespace {

constexpr int kAmountDigits = 14;
/// Place of linesItems() in the form: it takes what height is left.
constexpr int kLinesRow = 3;

/// The columns of the working table that the cashier sees. Only what a person types is editable.
QList<GridColumn> lineColumns() {
    return {
        GridColumn(QStringLiteral("CVE_PROD"), QStringLiteral("Clave"), 9)
            .align(Qt::AlignLeft)
            .editable(),
        GridColumn(QStringLiteral("DESCRIPCION"), QStringLiteral("Descripción"), 50)
            .editable()
            .upper()
            .limit(200)
            .stretch(),
        GridColumn(QStringLiteral("CANT"), QStringLiteral("Cant"), 7)
            .mask(CellMask::Integer)
            .limit(9)
            .allowed(QStringLiteral("0123456789"))
            .editable(),
        GridColumn(QStringLiteral("PRECIO"), QStringLiteral("Precio"), 13)
            .mask(CellMask::MoneyTight)
            .limit(15)
            .allowed(QStringLiteral("0123456789.,$ "))
            .editable(),
        GridColumn(QStringLiteral("TOTAL"), QStringLiteral("Total"), 15)
            .mask(CellMask::MoneyTight)
            .sum(CellMask::MoneyTight),
        GridColumn(QStringLiteral("PORCENTAJE"), QStringLiteral("Porcentaje"), 13)
            .mask(CellMask::MoneySpaced)
            .sum(CellMask::MoneySpaced)
            .hidden(),
    };
}

LookupSource descriptions(NamedQuery *query, const QString &value, const QString &title) {
    return {query,
            value,
            QStringLiteral("DESCR"),
            {{QStringLiteral("DESCR"), title, 44, CellMask::Text}}};
}

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

/// As Enter on the button: the field where the keys came from is left first, and what it has to
/// say may disable the button or keep the focus.
void pressFrom(Button *target) {
    if (!target->isEnabled()) {
        return;
    }
    target->setFocus(Qt::ShortcutFocusReason);
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &enter);
}

void retainRoom(QWidget *widget) {
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
}

}  // namespace

void FRM401::buildForm() {
    using namespace form;
    build(this,
          column({headingItems(), serviceItems(), patientItems(), linesItems(), totalsItems()}));
    keepRoomWhenHidden();
    qobject_cast<QGridLayout *>(layout())->setRowStretch(kLinesRow, 1);
    bindLists();
    wireGrid();
    prestacionLabel_ = findChild<QLabel *>(QStringLiteral("CEdit1_label"));
    RadioGroup1_->setOptionEnabled(int(NoteMode::Consultar), false);

    addShortcuts();
}

void FRM401::bindLists() {
    bindLookup(ComboBox2_, &context().odonto.serviciosxctros);
    bindLookup(ComboBox3_, &context().odonto.AreaAtencion);
    bindLookup(listaExpedientes_, &context().odonto.CargarExp);
    bindGrid(grid_, &context().local.FBDetalleVtas);
}

void FRM401::addShortcuts() {
    const auto shortcut = [this](const QKeySequence &keys, Button *target) {
        auto *action = new QShortcut(keys, this);
        action->setContext(Qt::WidgetWithChildrenShortcut);
        action->setAutoRepeat(false);
        connectGuarded(action, &QShortcut::activated, target, [target] { pressFrom(target); });
    };
    shortcut(QKeySequence(Qt::Key_Insert), agregar_);
    shortcut(QKeySequence(Qt::CTRL | Qt::Key_Delete), borrar_);
    // Its letter is a menu's too.
    shortcut(QKeySequence(Qt::CTRL | Qt::Key_Return), registrar_);
    shortcut(QKeySequence(Qt::CTRL | Qt::Key_Enter), registrar_);
}

form::Item FRM401::headingItems() {
    using namespace form;
    const auto caption = [](const char *text) { return label(QString::fromUtf8(text)); };
    const auto value = [](QLabel **where, const char *name) {
        return label(where, QString::fromLatin1(name)).bold();
    };
    const Item who = column({row({caption("Cajero:"), value(&cajero_, "Cajero").grow()}),
                             row({caption("Centro:"), value(&centro_, "Centro").grow()})});
    const Item where = column({row({caption("Turno:"), value(&turno_, "Turno"), stretch()}),
                               row({caption("Caja:"), value(&caja_, "Caja"), stretch()})});
    return panel(
        &panelEncabezado_, QStringLiteral("PanelEncabezado"),
        row({panel(nullptr, QStringLiteral("PanelCajero"), who).grow(),
             panel(nullptr, QStringLiteral("PanelTurno"), where).with([](QWidget *panel) {
                 panel->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
                 panel->setContentsMargins(0, 0, 12, 0);
             }),
             radio(&RadioGroup1_, QStringLiteral("RadioGroup1"), QStringLiteral("Selecciona"))
                 .options({QStringLiteral("Registrar"), QStringLiteral("Consultar")})
                 .with([](RadioGroup *group) {
                     group->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
                 })
                 .clicked([this](int) { repetirModo(); }),
             text(&Edit1_, QStringLiteral("Edit1"), QStringLiteral("Nota de Pago"))
                 .digits()
                 .width(10)
                 .readOnly()
                 .above(),
             date(&DateEdit1_, QStringLiteral("DateEdit1"), QStringLiteral("Fecha"))
                 .readOnly()
                 .above()}));
}

form::Item FRM401::serviceItems() {
    using namespace form;
    return rowAbove(
        {choice(&ComboBox1_, QStringLiteral("ComboBox1"), QStringLiteral("Tipo de Servicio"))
             .closedUp([this] { elegirTipoServicio(); })
             .grow(),
         lookup(&ComboBox2_, QStringLiteral("ComboBox2"), QStringLiteral("Clasif. del Servicio"))
             .source(descriptions(&context().odonto.serviciosxctros, QStringLiteral("TIPO_PROD"),
                                  QStringLiteral("Clasif. del Servicio")))
             .closedUp([this] { elegirArea(); })
             .edited([this] { identifyAnew(); })
             .grow(),
         strip(
             &panelLugar_, QStringLiteral("PanelLugar"),
             {lookup(&ComboBox3_, QStringLiteral("ComboBox3"), QStringLiteral("Lugar de Atención"))
                  .source(descriptions(&context().odonto.AreaAtencion, QStringLiteral("AREA"),
                                       QStringLiteral("Lugar de Atención")))
                  .closedUp([this] { elegirLugar(); })
                  .edited([this] { identifyAnew(); })
                  .above()
                  .grow()})
             .grow()});
}

form::Item FRM401::patientItems() {
    using namespace form;
    const Item dossier = row(
        {text(&Edit2_, QStringLiteral("Edit2"), QStringLiteral("Expediente"))
             .upper()
             .width(8)
             .key(Qt::Key_F5, [this] { consultarExpedientes_->click(); })
             .key(Qt::Key_F8, [this] { repetirExpediente(); })
             .edited([this] { pagadorCambiado(); })
             .enter([this] { buscarExpediente(); }),
         iconButton(&consultarExpedientes_, QStringLiteral("ConsultarExpedientes"),
                    QStringLiteral("Consultar Expedientes F5"), QStringLiteral("search"))
             .clicked([this] { consultarExpedientes(); }),
         iconButton(&filtro_, QStringLiteral("FiltroExpedientes"),
                    QStringLiteral("Activar Filtro de Busqueda"), QStringLiteral("filter"))
             .clicked([this] { alternarFiltro(); }),
         lookup(&listaExpedientes_, QStringLiteral("ListaExpedientes"))
             .accessible(QStringLiteral("Lista de expedientes"))
             .source(dossierSource(&context().odonto.CargarExp))
             .shown(10)
             .key(Qt::Key_F5, [this] { consultarExpedientes_->click(); })
             .arrive([this] { listaExpedientes_->openList(); })
             .closedUp([this] { tomarExpediente(); })
             .cancelled([this] { cancelarLista(); }),
         text(&tipoPaciente_, QStringLiteral("TipoPaciente"), QStringLiteral("Tipo de Paciente"))
             .width(100)
             .shown(26)
             .readOnly()});
    const Item names =
        rowAbove({text(&paterno_, QStringLiteral("Paterno"), QStringLiteral("Paterno"))
                      .upper()
                      .width(40)
                      .enter([this] { enterPaterno(); })
                      .grow(),
                  text(&materno_, QStringLiteral("Materno"), QStringLiteral("Materno"))
                      .upper()
                      .width(40)
                      .grow(),
                  text(&nombre_, QStringLiteral("Nombre"), QStringLiteral("Nombre"))
                      .upper()
                      .width(70)
                      .enter([this] { enterNombre(); })
                      .grow()});
    auto student =
        strip(&panelAlumno_, QStringLiteral("PanelAlumno"),
              {text(&matricula_, QStringLiteral("Matricula"), QStringLiteral("Matricula"))
                   .digits()
                   .width(10)
                   .enter([this] { buscarAlumno(); })
                   .changed([this] { agregar_->setEnabled(false); }),
               text(&alumno_, QStringLiteral("Alumno"), QStringLiteral("Alumno"))
                   .width(100)
                   .readOnly()
                   .grow()});
    auto employee =
        strip(&panelNoEmpleado_, QStringLiteral("PanelNoEmpleado"),
              {text(&noEmpleado_, QStringLiteral("NoEmpleado"), QStringLiteral("No. Empleado"))
                   .digits()
                   .width(10)
                   .enter([this] { buscarEmpleado(); })
                   .edited([this] { pagadorCambiado(); }),
               text(&nombreEmpleado_, QStringLiteral("NombreEmpleado"), QStringLiteral("Nombre"))
                   .width(100)
                   .readOnly()
                   .grow()});
    auto origin = strip(&panelOrigen_, QStringLiteral("PanelOrigen"),
                        {label(QStringLiteral("Origen del Expediente:")),
                         label(&origen_, QStringLiteral("Origen")).bold().grow()});
    auto birth =
        strip(&panelNacimiento_, QStringLiteral("PanelNacimiento"),
              {date(&DateEdit2_, QStringLiteral("DateEdit2"), QStringLiteral("Fec. de Nacimiento"))
                   .leave([this] { leaveNacimiento(); }),
               text(&edad_, QStringLiteral("Edad"), QStringLiteral("Edad")).width(3).readOnly(),
               label(QStringLiteral("Sexo")),
               radio(&sexo_, QStringLiteral("RadioGroup2"), QString())
                   .accessible(QStringLiteral("Sexo"))
                   .options({QStringLiteral("Femenino"), QStringLiteral("Masculino")})
                   .clicked([this](int) { elegirSexo(); }),
               stretch()});
    auto benefit = strip(&panelEmpleado_, QStringLiteral("PanelEmpleado"),
                         {label(QStringLiteral("Empleado:")),
                          label(&empleado_, QStringLiteral("Empleado")).bold().grow(),
                          label(QStringLiteral("Dependencia:")),
                          label(&dependencia_, QStringLiteral("Dependencia")).bold().grow()});
    // Enabled and disabled as one for the path of the service; the birth strip and the employee's
    // benefit never stand together and share their row.
    return column(
        {panel(&panelPaciente_, QStringLiteral("PanelPaciente"), column({dossier, names})).fill(),
         panel(&panelOtros_, QStringLiteral("PanelOtros"),
               row({student.grow(), panel(nullptr, QStringLiteral("PanelDerecho"),
                                          row({employee.grow(), origin.grow()}))
                                        .grow()}))
             .fill(),
         panel(&panelDatos_, QStringLiteral("PanelDatos"), row({birth.grow(), benefit.grow()}))
             .fill()});
}

form::Item FRM401::linesItems() {
    using namespace form;
    const auto rowButton = [this](Button **where, const char *name, const char *caption,
                                  const char *icon, const char *hint, void (FRM401::*handler)()) {
        return button(where, QString::fromLatin1(name), QString::fromUtf8(caption))
            .icon(QString::fromLatin1(icon))
            .hint(QString::fromUtf8(hint))
            .clicked([this, handler] { (this->*handler)(); });
    };
    return column({row({rowButton(&agregar_, "AgregarRegistro", "A&gregar Registro", "insert",
                                  "Agregar Registro (Insert)", &FRM401::agregarRegistro),
                        rowButton(&borrar_, "BorrarRegistro", "&Borrar Registro", "delete",
                                  "Borrar Registro (Ctrl+Supr)", &FRM401::borrarRegistro),
                        rowButton(&grabar_, "GrabarInformacion", "Grabar &Información", "save",
                                  "Grabar Información", &FRM401::grabarInformacion),
                        rowButton(&cancelar_, "CancelarRegistro", "Ca&ncelar Registro", "undo",
                                  "Cancelar Registro (Esc)", &FRM401::cancelarRegistro)
                            .escape(),
                        stretch()}),
                   grid(&grid_, QStringLiteral("Detalle"))
                       .accessible(QStringLiteral("Conceptos de la nota"))
                       .hint(QStringLiteral("Doble clic o F6: Descripción Adicional"))
                       .columns(lineColumns())
                       .enterColumn([this](const QString &field) { enterColumn(field); })
                       .key(Qt::Key_F6, [this] { descripcionAdicional(); })
                       .grow()});
}

form::Item FRM401::totalsItems() {
    using namespace form;
    const auto amount = [](MoneyField **where, const char *name, const char *caption) {
        return money(where, QString::fromLatin1(name), QString::fromUtf8(caption))
            .width(kAmountDigits)
            .readOnly()
            .above();
    };
    return row({panel(nullptr, QStringLiteral("PanelBotones"),
                      row({button(&registrar_, QStringLiteral("Registrar"),
                                  QStringLiteral("&Registrar Información"))
                               .hint(QStringLiteral("Registrar Información (Ctrl+Entrar)"))
                               .icon(QStringLiteral("accept"))
                               .clicked([this] { registrarInformacion(); }),
                           button(&formaPagoButton_, QStringLiteral("FormaPago"),
                                  QStringLiteral("&Forma de Pago"))
                               .icon(QStringLiteral("pay"))
                               .disabled(),
                           button(&cerrar_, QStringLiteral("Cerrar"), QStringLiteral("&Cerrar"))
                               .icon(QStringLiteral("close"))
                               .escape()
                               .clicked([this] { emit closeRequested(); })})),
                stretch(),
                strip(&panelAnticipo_, QStringLiteral("PanelAnticipo"),
                      {amount(&CEdit0_, "CEdit0", "Pago de Anticipo")}),
                amount(&subtotal_, "SubTotal", "SubTotal"),
                amount(&CEdit1_, "CEdit1", "Prestación"), amount(&CEdit2_, "CEdit2", "IVA"),
                amount(&CEdit3_, "CEdit3", "Importe Total").with([](MoneyField *field) {
                    QFont font = field->font();
                    font.setBold(true);
                    field->setFont(font);
                })});
}

void FRM401::keepRoomWhenHidden() {
    for (QWidget *widget :
         {panelLugar_, panelAnticipo_, static_cast<QWidget *>(listaExpedientes_)}) {
        retainRoom(widget);
    }
    panelOtros_->setMinimumHeight(panelOtros_->sizeHint().height());
    panelDatos_->setMinimumHeight(panelDatos_->sizeHint().height());
    // The lines take what height there is; long names are cut rather than widen the screen.
    for (QWidget *panel : {panelEncabezado_, panelPaciente_, panelOtros_, panelDatos_}) {
        panel->setSizePolicy(panel->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    }
    for (QLabel *name : {cajero_, centro_, origen_, empleado_, dependencia_}) {
        name->setSizePolicy(QSizePolicy::Ignored, name->sizePolicy().verticalPolicy());
    }
}

}  // namespace kaldo
