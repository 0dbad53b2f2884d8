#include "data/options.h"

#include <stdexcept>

namespace kaldo {

namespace {

/// A list index kept as text; empty is no selection.
int listIndex(const IniFile &ini, const QString &section, const QString &key, int shift) {
    return ini.value(section, key).isEmpty() ? -1 : ini.integer(section, key) - shift;
}

QTime timeOf(const IniFile &ini, const QString &section) {
    return QTime(ini.value(section, QStringLiteral("h")).toInt(),
                 ini.value(section, QStringLiteral("m")).toInt(),
                 ini.value(section, QStringLiteral("s")).toInt());
}

}  // namespace

void Options::load(const IniFile &ini) {
    const QString client = QStringLiteral("Cliente");
    NombreCliente = ini.value(client, QStringLiteral("cliente"));
    NombreInstitucion = ini.value(client, QStringLiteral("nombre"));
    Iniciales = ini.value(client, QStringLiteral("iniciales"));
    if (Iniciales.isEmpty()) {
        Iniciales = NombreInstitucion;
    }
    Facultad = ini.value(client, QStringLiteral("facultad"));
    Clinica = ini.value(client, QStringLiteral("clinica"));
    ImgEmpresa = ini.value(client, QStringLiteral("img_empresa"));
    ImgEmpresa1 = ini.value(client, QStringLiteral("img_empresa1"));
    sector =
        static_cast<Sector>(std::clamp(listIndex(ini, client, QStringLiteral("sector"), 1), -1, 2));
    Rfc = ini.value(client, QStringLiteral("rfc"));
    Direccion = ini.value(client, QStringLiteral("direccion"));
    Colonia = ini.value(client, QStringLiteral("colonia"));
    CiudadFiscal = ini.value(client, QStringLiteral("ciudad"));
    EstadoFiscal = listIndex(ini, client, QStringLiteral("estado"), 0);
    Pais = ini.value(client, QStringLiteral("pais"));
    CodigoPostal = ini.value(client, QStringLiteral("cp"));
    Telefono = ini.value(client, QStringLiteral("tel"));
    Correo = ini.value(client, QStringLiteral("correoe"));
    Fondo = ini.value(client, QStringLiteral("fondo"));
    FuenteFinanciamiento = ini.value(client, QStringLiteral("ftefin"));
    TitulosMayusculas = ini.isYes(client, QStringLiteral("maysucula"));

    const QString user = QStringLiteral("Usuario");
    Usuario = ini.value(user, QStringLiteral("user"));
    Ciudad = ini.value(user, QStringLiteral("ciudad"));
    Estado = ini.value(user, QStringLiteral("estado"), QStringLiteral("0")).toInt() - 1;
    CambiarPass = ini.isYes(user, QStringLiteral("cambiar_pass"));
    SkinName =
        ini.value(QStringLiteral("Sistema"), QStringLiteral("skinname"), QStringLiteral("Windows"));
    Skin = ini.value(QStringLiteral("Ambiente"), QStringLiteral("skin"),
                     QStringLiteral("C:\\KALDO\\Ini\\skinblue.dll"));
    ArchivoAyuda = ini.value(QStringLiteral("Ayuda"), QStringLiteral("chm"));

    const QString machine = QStringLiteral("Equipo");
    ApagarSistema = ini.isYes(machine, QStringLiteral("apagar"));
    const QString hour = ini.value(machine, QStringLiteral("hora"));
    HoraApagar = QTime::fromString(hour, QStringLiteral("HH:mm:ss"));
    if (!hour.isEmpty() && !HoraApagar.isValid()) {
        throw std::invalid_argument(
            QStringLiteral("'%1' no es una hora válida para la clave hora de la sección [Equipo] "
                           "del archivo de configuración.")
                .arg(hour)
                .toStdString());
    }
    BuscarActualizaciones = ini.isYes(machine, QStringLiteral("actualiza"));
    GenerarEstadisticas = ini.isYes(machine, QStringLiteral("estadisticas"));

    const QString admissions = QStringLiteral("Admisiones");
    FechaBusquedaAdmisiones = ini.value(admissions, QStringLiteral("fbusqueda"));
    DiasBusqueda = ini.integer(admissions, QStringLiteral("dias"));
    AlumnoCanalizado = ini.isYes(admissions, QStringLiteral("canalizado"));
    AdmisionesOtrosCentros = ini.isYes(admissions, QStringLiteral("buscarxcd"));
    SaltarAdmision = ini.isYes(admissions, QStringLiteral("saltar_adm"));
    AdmisionesHoy = ini.isYes(admissions, QStringLiteral("hoy"));
    AdmisionesConExpediente = ini.isYes(admissions, QStringLiteral("exp"));
    AdmisionesAutorizadas = ini.isYes(admissions, QStringLiteral("aut"));
    const QString consent =
        ini.value(admissions, QStringLiteral("consentimiento"), QStringLiteral("0"));
    Consentimiento = consent.isEmpty() ? -1 : consent.toInt();

    const QString dossiers = QStringLiteral("Expedientes");
    ExpedienteUniversal = ini.isYes(dossiers, QStringLiteral("controlexp"));
    GenerarExpediente = ini.isYes(dossiers, QStringLiteral("guardar"));
    CapturarSaldos = ini.isYes(dossiers, QStringLiteral("saldo"));
    ExpedientesOtrosCentros = ini.isYes(dossiers, QStringLiteral("verexp"));
    ValidarEdad = ini.isYes(dossiers, QStringLiteral("validaedad"));
    ActivarPrestamo = ini.isYes(dossiers, QStringLiteral("prestamo"));
    SistemaAnterior = ini.isYes(dossiers, QStringLiteral("sysanterior"));
    // The old system's switch governs the loans and not the search that bears its name.
    if (!SistemaAnterior) {
        ActivarPrestamo = false;
    }
    ActualizarLista = ini.isYes(dossiers, QStringLiteral("actualizar"));
    FechaBusquedaExpedientes = ini.value(dossiers, QStringLiteral("fbusqueda"));
    ExpedientesPorAlumno = ini.integer(dossiers, QStringLiteral("expedientes"));
    if (!ActivarPrestamo) {
        ExpedientesPorAlumno = 0;
    }
    IntervaloLista = timeOf(ini, dossiers);

    const QString prints = QStringLiteral("Impresiones");
    SegundosDuplicado = ini.integer(prints, QStringLiteral("duplicado"));
    DesactivarDuplicados = ini.isYes(prints, QStringLiteral("des_duplicado"));
    PreliminarNotas = ini.isYes(prints, QStringLiteral("preliminar"));
    PreliminarHojas = ini.isYes(prints, QStringLiteral("preliminar_hojas"));

    const QString accounting = QStringLiteral("Contabilidad");
    ContabilidadGubernamental = ini.isYes(accounting, QStringLiteral("gubernamental"));
    CortesBancarios = ini.isYes(accounting, QStringLiteral("cortebanca"));
    GenerarPolizas = ini.isYes(accounting, QStringLiteral("prelimipolizasnar_hojas"));
}

QDate Options::fechaExpedientes() const {
    return parseShortDate(FechaBusquedaExpedientes);
}

QDate parseShortDate(const QString &text) {
    return QDate::fromString(text.trimmed(), QStringLiteral("dd/MM/yyyy"));
}

}  // namespace kaldo
