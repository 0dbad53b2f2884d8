#include "shell/menu_entries.h"

#include <QSet>

namespace kaldo {

const std::vector<MenuHeading> &menuHeadings() {
    static const std::vector<MenuHeading> headings = {
        {"A0",
         "&Archivo",
         {{"A1", "Presentación preliminar", "Ctrl+F10"},
          {"A2", "Config. Impresora"},
          {"", ""},
          {"A3", "Panel de Control", "F9"},
          {"", ""},
          {"A4", "Salir", "Alt+F4"}}},
        {"B0",
         "&Mantenimiento",
         {{"B1", "Centros de atención", "Ctrl+A"},
          {"B2", "Áreas de venta", "Ctrl+B"},
          {"B3", "Centros Atención / Area Ventas"},
          {"B4", "Clasificación de Pacientes", "Ctrl+D"},
          {"B5", "Clasificación de Servicios Prestados"},
          {"B6", "Clinicas por Areas de Ventas", "Ctrl+E"},
          {"B7", "Forma de Pago"},
          {"B8", "Métodos de Pago"},
          {"B9", "Lista de Precios", "Ctrl+F"},
          {"B10", "Laboratorios Externos", "Ctrl+G"},
          {"B11", "Bancos", "", "BS1"},
          {"B12", "Tipo Cambio", "", "BS1"}}},
        {"C0",
         "&Recepción",
         {{"C1", "Registro de Citas"},
          {"C2", "Calendario de Citas"},
          {"C3", "Registro de Clínicas"}}},
        {"D0",
         "A&dmisión",
         {{"D1", "Registro de Admisión", "Ctrl+E"},
          {"D1a", "Admisiones de Hoy"},
          {"D1b", "Admisiones Autorizadas"},
          {"D1c", "Admisiones Ultimo Mes"},
          {"", ""},
          {"D2", "Alumnos para Atención", "Ctrl+F"}}},
        {"E0",
         "&Caja",
         {{"E1", "Registro de Pagos", "Ctrl+G"},
          {"E2", "Datos Paciente", "Ctrl+H"},
          {"E3", "Registrar Pacientes", "Ctrl+I"},
          {"E4", "Cancelación Pagos"},
          {"", ""},
          {"E5a", "Generar Factura Global"},
          {"E5b", "Reposición de Factura"},
          {"E5c", "Reenviar Facturas"},
          {"E5d", "Relación de Facturas"},
          {"", ""},
          {"E6", "Corte de Caja"},
          {"AjustesCorte1", "Ajustes a Corte"},
          {"E7", "Registrar Abono a Cuenta", "Ctrl+J"},
          {"E8", "Generar Etiquetas"},
          {"E9", "Estado de Cuenta", "Ctrl+K"}}},
        {"F0",
         "Control de &Expedientes",
         {{"F1", "Consultar Expediente", "Ctrl+L"},
          {"F2", "Prestamo de Expedientes", "Ctrl+M"},
          {"F3", "Registrar Historia Clínica"},
          {"CancelarSA1", "Cancelar Exp. Sistema Anterior"}}},
        {"G0", "A&lmacén", {}},
        {"H0",
         "Re&portes",
         {{"H1a", "Estadisticas"},
          {"H1b", "Reporte de Admisiones"},
          {"", ""},
          {"H2a", "Igresos por Area de Servicio"},
          {"H2b", "Movimientos por Alumno"},
          {"H2c", "Recibos Cancelados"},
          {"H2d", "Saldos Laboratorios Ext."},
          {"H2e", "Saldo Expedientes"}}},
        {"I0", "Admi&nistración", {{"I1", "Control de Usuarios"}, {"I2", "Datos Caja"}}},
        {"J0",
         "&Funciones Especiales",
         {{"J1", "Acceso a Usuario", "F11"},
          {"", ""},
          {"J2a", "Recibos Incompletos"},
          {"J3", "R.F.C. Clientes"}}},
        {"K0",
         "A&yuda",
         {{"K1", "Ayuda", "F1"},
          {"K2", "Actualizar Sistema"},
          {"", ""},
          {"K3", "Acerca de...", "F12"}}},
    };
    return headings;
}

QString submenuCaption(const QString &name) {
    return name == QLatin1String("BS1") ? QStringLiteral("Finanzas") : QString();
}

const std::vector<ToolEntry> &toolEntries() {
    static const std::vector<ToolEntry> entries = {
        {1, "Preliminar", "preview", "A1"}, {2, "Conf. Imp.", "printer-setup", "A2", 1},
        {3, "Admisión", "admission", "D1"}, {4, "Exp.", "dossier", "F1", 2},
        {5, "Nota Pgo.", "note", "E1"},     {6, "Corte Caja", "cash-cut", "E6"},
        {7, "Abono", "deposit", "E7"},      {8, "Edo. Cta.", "statement", "E9"},
        {9, "R.F.C.", "tax-id", "J3", 3},   {10, "Usuario", "user", "J1"},
        {11, "Ayuda", "help", "K1"},        {12, "Salida", "exit", "A4"},
    };
    return entries;
}

EntryKind kindOf(const QString &entry) {
    static const QSet<QString> silent = {
        QStringLiteral("C1"),  QStringLiteral("C2"),  QStringLiteral("C3"),
        QStringLiteral("E5a"), QStringLiteral("E5b"), QStringLiteral("E5c"),
        QStringLiteral("E5d"), QStringLiteral("H1b"), QStringLiteral("H2a"),
        QStringLiteral("H2b"), QStringLiteral("H2c"), QStringLiteral("H2d"),
        QStringLiteral("H2e"), QStringLiteral("J3"),  QStringLiteral("AjustesCorte1"),
    };
    return silent.contains(entry) ? EntryKind::Silent : EntryKind::Screen;
}

const std::vector<QString> &previewOrder() {
    static const std::vector<QString> order = {
        QStringLiteral("FRM100"),
        QStringLiteral("FRM102"),
        QStringLiteral("FRM103"),
        QStringLiteral("FRM104"),
        QStringLiteral("FRM105"),
        QStringLiteral("FRM107"),
        QStringLiteral("FRM108"),
        QStringLiteral("FRM109"),
        QStringLiteral("FRMControlUsuarios"),
        QStringLiteral("FRMDatosCaja"),
        QStringLiteral("FRM101"),
        QStringLiteral("FRM301"),
        QStringLiteral("FRM106"),
    };
    return order;
}

}  // namespace kaldo
