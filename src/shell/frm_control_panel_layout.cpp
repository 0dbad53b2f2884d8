#include "shell/frm_control_panel.h"

#include "data/option_values.h"
#include "shell/federal_states.h"
#include "shell/side_by_side.h"

#include <QScreen>
#include <QScrollArea>

namespace kaldo {

namespace {

constexpr int kCodeWidth = 8;
constexpr int kUserWidth = 8;
constexpr int kCityWidth = 20;
constexpr int kTextWidth = 255;
constexpr int kTextShown = 28;
constexpr int kNumberDigits = 5;
constexpr QSize kLogo(260, 150);
constexpr int kCharactersWide = 165;
constexpr int kLinesHigh = 48;
constexpr qreal kMostOfTheDesktop = 0.94;

/// A page that scrolls where the desktop is too small for it.
form::Item scrolled(const QString &name, const form::Item &content) {
    return form::custom<QScrollArea>(nullptr, name)
        .with([content](QScrollArea *area) {
            auto *sheet = new QWidget(area);
            form::build(sheet, content);
            sheet->layout()->setContentsMargins(0, 0, 6, 0);
            area->setWidget(sheet);
            area->setWidgetResizable(true);
            area->setFrameShape(QFrame::NoFrame);
            area->setFocusPolicy(Qt::NoFocus);
            area->viewport()->setAutoFillBackground(false);
            sheet->setAutoFillBackground(false);
            connectGuarded(qApp, &QApplication::focusChanged, area,
                           [area](QWidget *, QWidget *now) {
                               if (now != nullptr && area->widget()->isAncestorOf(now)) {
                                   area->ensureWidgetVisible(now, 0, 24);
                               }
                           });
        })
        .grow();
}

form::WidgetItem<TextField> plainText(TextField **where, const QString &name,
                                      const QString &caption) {
    return form::text(where, name, caption).width(kTextWidth).shown(kTextShown).fill();
}

form::WidgetItem<CheckField> tick(const char *name, const QString &caption,
                                  CheckField **where = nullptr) {
    return form::check(where, QString::fromLatin1(name), caption);
}

GridColumn numberColumn(const QString &field, const QString &title) {
    return GridColumn(field, title, 8).digits(kNumberDigits).editable();
}

GridColumn textColumn(const QString &field, const QString &title, int width, int limit) {
    return GridColumn(field, title, width).limit(limit).editable();
}

}  // namespace

void FRMControlPanel::build() {
    using namespace form;
    const QString kPages[] = {QStringLiteral("General"), QStringLiteral("Sistema"),
                              QStringLiteral("Opciones"), QStringLiteral("Impresiones"),
                              QStringLiteral("Configuraciones")};
    form::build(
        this,
        column({
            pages(
                &PageControl1_, QStringLiteral("PageControl1"),
                {{QStringLiteral("TabSheet1"), kPages[0], scrolled(kPages[0], general())},
                 {QStringLiteral("TabSheet2"), kPages[1], scrolled(kPages[1], sistema())},
                 {QStringLiteral("TabSheet3"), kPages[2], scrolled(kPages[2], opciones())},
                 {QStringLiteral("TabSheet4"), kPages[3], scrolled(kPages[3], impresiones())},
                 {QStringLiteral("TabSheet5"), kPages[4], scrolled(kPages[4], configuraciones())}}),
            row({stretch(),
                 button(nullptr, QStringLiteral("AplicarCambios"),
                        QStringLiteral("&Aplicar Cambios"))
                     .icon(QStringLiteral("accept"))
                     .clicked([this] { AplicarCambios(); }),
                 button(nullptr, QStringLiteral("CerrarVentana"), QStringLiteral("&Cerrar Ventana"))
                     .icon(QStringLiteral("close"))
                     .escape()
                     .clicked([this] { reject(); })}),
        }));
    bindRecords();
    const QSize wanted(fontMetrics().averageCharWidth() * kCharactersWide,
                       fontMetrics().height() * kLinesHigh);
    resize(wanted.boundedTo(screen()->availableSize() * kMostOfTheDesktop));
}

form::WidgetItem<Button> FRMControlPanel::fold(Button **where, const QString &name,
                                               const QString &caption, QWidget **panel) {
    return form::button(where, name, caption)
        .with([](Button *button) { button->setCheckable(true); })
        .clicked([where, panel] { (*panel)->setVisible((*where)->isChecked()); });
}

form::Item FRMControlPanel::general() {
    using namespace form;
    return column({
        row({label(QStringLiteral("Nombre del Cliente")),
             label(&Encabezado_, QStringLiteral("Encabezado")).heading().wrap().grow()}),
        sideBySide(column({clientGroup(), workstationGroup(), stretch()}), lookColumn()),
        stretch(),
    });
}

form::Item FRMControlPanel::workstationGroup() {
    using namespace form;
    return group(
        nullptr, QStringLiteral("Estacion"), QStringLiteral("Estación de Trabajo"),
        column({
            sheet_.option(text(nullptr, QStringLiteral("Usuario"), QStringLiteral("Usuario"))
                              .width(kUserWidth),
                          &Options::Usuario),
            sheet_.option(
                text(nullptr, QStringLiteral("Ciudad"), QStringLiteral("Ciudad")).width(kCityWidth),
                &Options::Ciudad),
            sheet_.option(choice(nullptr, QStringLiteral("Estado"), QStringLiteral("Estado"))
                              .items(federalStates()),
                          &Options::Estado),
            sheet_.option(tick("CambiarPass", QStringLiteral("Cambiar Contraseña")),
                          &Options::CambiarPass),
        }));
}

form::Item FRMControlPanel::lookColumn() {
    using namespace form;
    return column({
        row({sheet_.option(text(&ArchivoAyuda_, QStringLiteral("ArchivoAyuda"),
                                QStringLiteral("Archivo de Ayuda:"))
                               .width(kTextWidth)
                               .shown(20)
                               .grow(),
                           &Options::ArchivoAyuda),
             button(nullptr, QStringLiteral("ArchivoCHM"), QStringLiteral("Archivo CHM"))
                 .clicked([this] { chooseHelpFile(); })}),
        radio(&Ambiente_, QStringLiteral("Ambiente"), QStringLiteral("Ambiente del Sistema"))
            .options({QStringLiteral("Azul"), QStringLiteral("Oscuro"), QStringLiteral("Verde"),
                      QStringLiteral("Predeterminado")})
            .fill(),
        sheet_.option(radio(&Sector_, QStringLiteral("Sector"), QStringLiteral("Sector"))
                          .options({QStringLiteral("Empresarial"), QStringLiteral("Educativo"),
                                    QStringLiteral("Institucional")})
                          .clicked([this](int) { Sector(); })
                          .fill(),
                      &Options::sector),
        fold(&RfcCliente_, QStringLiteral("RFCCliente"), QStringLiteral("RFC Cliente"),
             &DatosFiscales_)
            .hint(QStringLiteral("Muestra u oculta los datos fiscales")),
        panel(&DatosFiscales_, QStringLiteral("DatosFiscales"), fiscalGroup()),
        stretch(),
    });
}

form::Item FRMControlPanel::clientGroup() {
    using namespace form;
    return group(
        nullptr, QStringLiteral("DatosCliente"), QStringLiteral("Datos del Cliente"),
        column({
            sheet_.option(
                text(nullptr, QStringLiteral("NombreCliente"), QStringLiteral("Clave del Cliente"))
                    .width(kCodeWidth),
                &Options::NombreCliente),
            sheet_.option(plainText(&NombreInstitucion_, QStringLiteral("NombreInstitucion"),
                                    QStringLiteral("Nombre Institución")),
                          &Options::NombreInstitucion),
            sheet_.option(
                plainText(nullptr, QStringLiteral("Iniciales"), QStringLiteral("Iniciales")),
                &Options::Iniciales),
            sheet_.option(plainText(&Facultad_, QStringLiteral("Facultad"),
                                    QStringLiteral("Nombre Facultad")),
                          &Options::Facultad),
            sheet_.option(plainText(nullptr, QStringLiteral("Clinica"),
                                    QStringLiteral("Nombre de la Clinica")),
                          &Options::Clinica),
        }));
}

form::Item FRMControlPanel::fiscalGroup() {
    using namespace form;
    const auto line = [this](const QString &name, const QString &caption,
                             QString Options::*member) {
        return sheet_.option(plainText(nullptr, name, caption), member);
    };
    return group(
        nullptr, QStringLiteral("GrupoFiscal"), QStringLiteral("Datos Fiscales"),
        column({
            line(QStringLiteral("Rfc"), QStringLiteral("R.F.C."), &Options::Rfc),
            line(QStringLiteral("Direccion"), QStringLiteral("Dirección"), &Options::Direccion),
            line(QStringLiteral("Colonia"), QStringLiteral("Colonia"), &Options::Colonia),
            line(QStringLiteral("CiudadFiscal"), QStringLiteral("Ciudad"), &Options::CiudadFiscal),
            sheet_.option(choice(nullptr, QStringLiteral("EstadoFiscal"), QStringLiteral("Estado"))
                              .items(federalStates()),
                          &Options::EstadoFiscal),
            row({sheet_.option(text(nullptr, QStringLiteral("Pais"), QStringLiteral("País"))
                                   .width(kTextWidth)
                                   .shown(16)
                                   .grow(),
                               &Options::Pais),
                 sheet_.option(text(nullptr, QStringLiteral("CodigoPostal"), QStringLiteral("C.P."))
                                   .width(kTextWidth)
                                   .shown(6),
                               &Options::CodigoPostal)}),
            line(QStringLiteral("Telefono"), QStringLiteral("Teléfono"), &Options::Telefono),
            line(QStringLiteral("Correo"), QStringLiteral("Correo Electrónico"), &Options::Correo),
        }));
}

form::Item FRMControlPanel::sistema() {
    using namespace form;
    const auto machine = group(
        nullptr, QStringLiteral("Equipo"), QStringLiteral("Equipo"),
        column({
            row({sheet_.option(tick("ApagarSistema", QStringLiteral("Apagar sistema.")),
                               &Options::ApagarSistema),
                 sheet_.option(custom<HourField>(nullptr, QStringLiteral("HoraApagar"),
                                                 QStringLiteral("Cerrar KALDO a las")),
                               &Options::HoraApagar)}),
            sheet_.option(tick("BuscarActualizaciones",
                               QStringLiteral("Buscar actualizaciones automáticas al iniciar "
                                              "KALDO.")),
                          &Options::BuscarActualizaciones),
            sheet_.option(
                tick("GenerarEstadisticas", QStringLiteral("Generar estadísticas por usuario.")),
                &Options::GenerarEstadisticas),
        }));
    const auto government = group(
        nullptr, QStringLiteral("GrupoContable"), QStringLiteral("Contabilidad Gubernamental"),
        column({
            sheet_.option(text(nullptr, QStringLiteral("Fondo"), QStringLiteral("Fondo"))
                              .width(kTextWidth)
                              .shown(16),
                          &Options::Fondo),
            sheet_.option(text(nullptr, QStringLiteral("FuenteFinanciamiento"),
                               QStringLiteral("Fuente de Financiamiento"))
                              .width(kTextWidth)
                              .shown(16),
                          &Options::FuenteFinanciamiento),
            sheet_.option(button(nullptr, QStringLiteral("TitulosMayusculas"),
                                 QStringLiteral("Titulos en Mayusculas"))
                              .with([](Button *button) { button->setCheckable(true); })
                              .hint(QStringLiteral("Hundido: los títulos se imprimen en "
                                                   "mayúsculas")),
                          &Options::TitulosMayusculas),
        }));
    const auto accounting =
        group(nullptr, QStringLiteral("Contabilidad"), QStringLiteral("Contabilidad"),
              column({
                  sheet_.option(tick("ContabilidadGubernamental",
                                     QStringLiteral("Aplica Contabilidad Gubernamental")),
                                &Options::ContabilidadGubernamental),
                  sheet_.option(tick("GenerarPolizas", QStringLiteral("Generar Pólizas")),
                                &Options::GenerarPolizas),
                  sheet_.option(tick("CortesBancarios", QStringLiteral("Cortes Bancarios")),
                                &Options::CortesBancarios),
                  fold(&Contables_, QStringLiteral("Contables"), QStringLiteral("Datos Contables"),
                       &DatosContables_)
                      .hint(QStringLiteral("Muestra u oculta los datos contables")),
                  panel(&DatosContables_, QStringLiteral("DatosContables"), government),
              }));
    return column({machine, accounting, stretch()});
}

form::Item FRMControlPanel::opciones() {
    using namespace form;
    return column(
        {sideBySide(column({admissionsGroup(), stretch()}), column({dossiersGroup(), stretch()})),
         stretch()});
}

form::Item FRMControlPanel::admissionsGroup() {
    using namespace form;
    return group(
        nullptr, QStringLiteral("Admisiones"), QStringLiteral("Admisiones"),
        column({
            sheet_.option(date(nullptr, QStringLiteral("FechaBusquedaAdmisiones"),
                               QStringLiteral("Fecha Inicial de Busqueda.")),
                          &Options::FechaBusquedaAdmisiones),
            sheet_.option(
                number(nullptr, QStringLiteral("DiasBusqueda"), QStringLiteral("Días de busqueda"))
                    .width(4)
                    .range(0, kMostSearchDays),
                &Options::DiasBusqueda),
            sheet_.option(tick("AlumnoCanalizado", QStringLiteral("Registrar Alumno Canalizado"),
                               &AlumnoCanalizado_),
                          &Options::AlumnoCanalizado),
            sheet_.option(radio(nullptr, QStringLiteral("Consentimiento"),
                                QStringLiteral("Consentimiento Valido"))
                              .options({QStringLiteral("Modelo A"), QStringLiteral("Modelo B")})
                              .fill(),
                          &Options::Consentimiento),
            sheet_.option(
                tick("AdmisionesOtrosCentros", QStringLiteral("Buscar Admisiones de Otros Centros"),
                     &AdmisionesOtrosCentros_),
                &Options::AdmisionesOtrosCentros),
            sheet_.option(tick("SaltarAdmision", QStringLiteral("Saltar Clinica de Admisión")),
                          &Options::SaltarAdmision),
            sheet_.option(tick("AdmisionesHoy", QStringLiteral("Admisiones de Hoy")),
                          &Options::AdmisionesHoy),
            sheet_.option(tick("AdmisionesConExpediente", QStringLiteral("Admisiones con Exp.")),
                          &Options::AdmisionesConExpediente),
            sheet_.option(tick("AdmisionesAutorizadas", QStringLiteral("Admisiones Autorizadas")),
                          &Options::AdmisionesAutorizadas),
        }));
}

form::Item FRMControlPanel::dossiersGroup() {
    using namespace form;
    const auto loans = panel(
        &PanelPrestamo_, QStringLiteral("PanelPrestamo"),
        column({
            sheet_.option(tick("ActivarPrestamo", QStringLiteral("Activar Prestamo de Expedentes"),
                               &ActivarPrestamo_)
                              .clicked([this] {
                                  if (!ActivarPrestamo_->isChecked()) {
                                      ExpedientesPorAlumno_->setValue(0);
                                  }
                                  followSwitches();
                              }),
                          &Options::ActivarPrestamo),
            sheet_.option(number(&ExpedientesPorAlumno_, QStringLiteral("ExpedientesPorAlumno"),
                                 QStringLiteral("Expedientes por Alumno"))
                              .width(4)
                              .range(0, kMostDossiers),
                          &Options::ExpedientesPorAlumno),
        }));
    const auto consulting = group(
        &ConsultaExpedientes_, QStringLiteral("ConsultaExpedientes"),
        QStringLiteral("Opción de Consulta de Expedientes"),
        column({
            sheet_.option(
                tick("SistemaAnterior", QStringLiteral("Buscar Información en Sistema Anterior")),
                &Options::SistemaAnterior),
            row({sheet_.option(
                     tick("ActualizarLista", QStringLiteral("Actualizar Lista de Expedientes.")),
                     &Options::ActualizarLista),
                 sheet_.option(custom<HourField>(nullptr, QStringLiteral("IntervaloLista"))
                                   .accessible(QStringLiteral("Tiempo de actualización de la "
                                                              "lista")),
                               &Options::IntervaloLista)}),
        }));
    const auto numbering = row({
        sheet_.option(
            tick("ExpedienteUniversal", QStringLiteral("Generar No. Expedientes Universal:")),
            &Options::ExpedienteUniversal),
        label(&Contador_, QStringLiteral("Contador")).bold(),
    });
    return group(
        nullptr, QStringLiteral("Expedientes"), QStringLiteral("Expedientes"),
        column({
            sheet_.option(date(nullptr, QStringLiteral("FechaBusquedaExpedientes"),
                               QStringLiteral("Fecha Inicial de Busqueda.")),
                          &Options::FechaBusquedaExpedientes),
            sheet_.option(tick("GenerarExpediente", QStringLiteral("Generar Expediente."),
                               &GenerarExpediente_)
                              .clicked([this] { followSwitches(); }),
                          &Options::GenerarExpediente),
            sheet_.option(tick("CapturarSaldos",
                               QStringLiteral("Permitir Capturar Saldos de Sistema Externo"),
                               &CapturarSaldos_),
                          &Options::CapturarSaldos),
            sheet_.option(
                tick("ExpedientesOtrosCentros", QStringLiteral("Ver Expedientes de Otros Centros"),
                     &ExpedientesOtrosCentros_),
                &Options::ExpedientesOtrosCentros),
            sheet_.option(tick("ValidarEdad", QStringLiteral("Validad Edad en Expedientes")),
                          &Options::ValidarEdad),
            loans,
            consulting,
            fold(&ControlExpedientes_, QStringLiteral("ControlExpedientes"),
                 QStringLiteral("Control de Expedientes"), &PanelControl_)
                .hint(QStringLiteral("Muestra u oculta la numeración de los expedientes")),
            panel(&PanelControl_, QStringLiteral("PanelControl"), numbering),
        }));
}

form::Item FRMControlPanel::impresiones() {
    using namespace form;
    const auto receipts =
        group(nullptr, QStringLiteral("Recibos"), QStringLiteral("Recibos"),
              column({
                  number(&TotalRecibos_, QStringLiteral("TotalRecibos"),
                         QStringLiteral("Total de Recibos"))
                      .width(5)
                      .readOnly(),
                  grid(&GridRecibos_, QStringLiteral("GridRecibos"))
                      .accessible(QStringLiteral("Recibos"))
                      .columns({numberColumn(QStringLiteral("RECIBO"), QStringLiteral("Recibo")),
                                textColumn(QStringLiteral("DESCRIPCION"),
                                           QStringLiteral("Descripción"), 24, 100)
                                    .stretch(),
                                textColumn(QStringLiteral("TIPO_SERV"),
                                           QStringLiteral("Tipo Servicio"), 24, 80)})
                      .grow(),
              }));
    const auto prints = group(
        nullptr, QStringLiteral("GrupoImpresiones"), QStringLiteral("Impresiones"),
        column({
            sheet_.option(number(&SegundosDuplicado_, QStringLiteral("SegundosDuplicado"),
                                 QStringLiteral("Duplicado de impresiones:"))
                              .width(4)
                              .range(0, kMostDuplicateSeconds),
                          &Options::SegundosDuplicado),
            sheet_.option(tick("DesactivarDuplicados", QStringLiteral("Desactivar duplicados."),
                               &DesactivarDuplicados_)
                              .clicked([this] { followSwitches(); }),
                          &Options::DesactivarDuplicados),
            sheet_.option(tick("PreliminarNotas",
                               QStringLiteral("Mostrar presentación preliminar en notas de pago.")),
                          &Options::PreliminarNotas),
            sheet_.option(
                tick("PreliminarHojas", QStringLiteral("Mostrar guía preliminar de hojas en "
                                                       "presentación preliminar.")),
                &Options::PreliminarHojas),
        }));
    const auto logos =
        pages(&PageControl2_, QStringLiteral("PageControl2"),
              {{QStringLiteral("LogoReportes"), QStringLiteral("Logo Reportes"), logoPage(0)},
               {QStringLiteral("LogoFacultad"), QStringLiteral("Logo Facultad"), logoPage(1)}});
    return column({receipts, sideBySide(column({prints, stretch()}), logos)});
}

form::Item FRMControlPanel::logoPage(int logo) {
    using namespace form;
    const QString number = QString::number(logo + 1);
    Logo *kept = &logos_.at(static_cast<std::size_t>(logo));
    return column({
        label(&kept->picture, QStringLiteral("ImagenLogo") + number)
            .with([](QLabel *picture) {
                picture->setMinimumSize(kLogo);
                picture->setAlignment(Qt::AlignCenter);
            })
            .fill(),
        label(&kept->caption, QStringLiteral("RutaLogo") + number).wrap(),
        row({button(nullptr, QStringLiteral("CambiarLogo") + number, QStringLiteral("Cambiar Logo"))
                 .icon(QStringLiteral("edit"))
                 .clicked([this, logo] { chooseLogo(logo); }),
             button(nullptr, QStringLiteral("QuitarLogo") + number, QStringLiteral("Quitar Logo"))
                 .icon(QStringLiteral("delete"))
                 .clicked([this, logo] { removeLogo(logo); })}),
    });
}

form::Item FRMControlPanel::configuraciones() {
    using namespace form;
    const QString order = QStringLiteral("NOIDX");
    const QString base = QStringLiteral("BASE");
    return column({
        radio(&SqlCliente_, QStringLiteral("SQLCliente"), QStringLiteral("SQL Cliente"))
            .options({QStringLiteral("Firebird"), QStringLiteral("Informix")})
            .hint(QStringLiteral("Se cambia en el archivo de configuración de la estación"))
            .disabled()
            .fill(),
        grid(&GridFirebird_, QStringLiteral("GridFirebird"), QStringLiteral("Firebird"))
            .above()
            .columns(
                {numberColumn(order, QStringLiteral("No.")),
                 textColumn(base, QStringLiteral("Base de Datos"), 20, 60),
                 textColumn(QStringLiteral("RUTA"), QStringLiteral("Ruta"), 40, 255).stretch()})
            .grow(),
        grid(&GridInformix_, QStringLiteral("GridInformix"), QStringLiteral("Informix"))
            .above()
            .columns({numberColumn(order, QStringLiteral("No.")),
                      textColumn(base, QStringLiteral("Base de Datos"), 16, 60),
                      textColumn(QStringLiteral("ODBC"), QStringLiteral("ODBC"), 14, 60),
                      textColumn(QStringLiteral("SERVER"), QStringLiteral("Servidor"), 14, 60),
                      textColumn(QStringLiteral("DATABASE"), QStringLiteral("Base"), 14, 60),
                      textColumn(QStringLiteral("USER"), QStringLiteral("Usuario"), 12, 60),
                      textColumn(QStringLiteral("PASS"), QStringLiteral("Contraseña"), 12, 60)
                          .stretch()})
            .grow(),
        label(QStringLiteral("Los cambios de las bases de datos se aplican al volver a iniciar "
                             "el sistema."))
            .wrap(),
    });
}

}  // namespace kaldo
