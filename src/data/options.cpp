#include "data/options.h"

#include "data/option_values.h"

#include <algorithm>
#include <stdexcept>

namespace kaldo {

namespace {

const QString kClient = QStringLiteral("Cliente");
const QString kUser = QStringLiteral("Usuario");
const QString kMachine = QStringLiteral("Equipo");
const QString kAdmissions = QStringLiteral("Admisiones");
const QString kDossiers = QStringLiteral("Expedientes");
const QString kPrints = QStringLiteral("Impresiones");
const QString kAccounting = QStringLiteral("Contabilidad");

[[noreturn]] void refuse(const QString &text, const QString &what, const QString &section,
                         const QString &key) {
    throw std::invalid_argument(
        QStringLiteral("'%1' no es una %2 válida para la clave %3 de la sección [%4] del archivo "
                       "de configuración.")
            .arg(text, what, key, section)
            .toStdString());
}

/// A whole number that may be absent or empty.
int numberOr(int missing, const IniFile &ini, const QString &section, const QString &key) {
    return ini.value(section, key).isEmpty() ? missing : ini.integer(section, key);
}

/// A date that is kept as a text; empty is none.
QString dateText(const IniFile &ini, const QString &section, const QString &key) {
    const QString text = ini.value(section, key);
    const QDate date = parseShortDate(text);
    if (!text.isEmpty() && !date.isValid()) {
        refuse(text, QStringLiteral("fecha"), section, key);
    }
    return date.toString(QStringLiteral("dd/MM/yyyy"));
}

QTime hour(const IniFile &ini, const QString &section, const QString &key) {
    const QString text = ini.value(section, key);
    const QTime time = parseHour(text);
    if (!text.isEmpty() && !time.isValid()) {
        refuse(text, QStringLiteral("hora"), section, key);
    }
    return time;
}

QTime hourInParts(const IniFile &ini, const QString &section) {
    const QTime time(numberOr(0, ini, section, QStringLiteral("h")),
                     numberOr(0, ini, section, QStringLiteral("m")),
                     numberOr(0, ini, section, QStringLiteral("s")));
    if (!time.isValid()) {
        const QString text = ini.value(section, QStringLiteral("h")) + u':' +
                             ini.value(section, QStringLiteral("m")) + u':' +
                             ini.value(section, QStringLiteral("s"));
        refuse(text, QStringLiteral("hora"), section, QStringLiteral("h, m, s"));
    }
    return time;
}

void writeYes(IniFile &ini, const QString &section, const QString &key, bool yes) {
    ini.setValue(section, key, yes ? QStringLiteral("S") : QStringLiteral("N"));
}

/// Whole, and in its parts by their places in the text; no hour leaves all four empty.
void writeHour(IniFile &ini, const QString &section, const QTime &time) {
    const QString text = time.isValid() ? time.toString(QStringLiteral("HH:mm:ss")) : QString();
    ini.setValue(section, QStringLiteral("hora"), text);
    ini.setValue(section, QStringLiteral("h"), text.mid(0, 2));
    ini.setValue(section, QStringLiteral("m"), text.mid(3, 2));
    ini.setValue(section, QStringLiteral("s"), text.mid(6, 2));
}

}  // namespace

void Options::load(const IniFile &ini) {
    loadGeneral(ini);
    loadSystem(ini);
    loadAdmissions(ini);
    loadDossiers(ini);
    loadPrints(ini);
}

void Options::loadGeneral(const IniFile &ini) {
    NombreCliente = ini.value(kClient, QStringLiteral("cliente"));
    NombreInstitucion = ini.value(kClient, QStringLiteral("nombre"));
    Iniciales = ini.value(kClient, QStringLiteral("iniciales"));
    Facultad = ini.value(kClient, QStringLiteral("facultad"));
    Clinica = ini.value(kClient, QStringLiteral("clinica"));
    Usuario = ini.value(kUser, QStringLiteral("user"));
    Ciudad = ini.value(kUser, QStringLiteral("ciudad"));
    Estado = numberOr(0, ini, kUser, QStringLiteral("estado")) - 1;
    CambiarPass = ini.isYes(kUser, QStringLiteral("cambiar_pass"));
    ArchivoAyuda = ini.value(QStringLiteral("Ayuda"), QStringLiteral("chm"));
    SkinName =
        ini.value(QStringLiteral("Sistema"), QStringLiteral("skinname"), QStringLiteral("Windows"));
    Skin = ini.value(QStringLiteral("Ambiente"), QStringLiteral("skin"),
                     QStringLiteral("C:\\KALDO\\Ini\\skinblue.dll"));
    sector = static_cast<Sector>(
        std::clamp(numberOr(0, ini, kClient, QStringLiteral("sector")) - 1, -1, 2));
    Rfc = ini.value(kClient, QStringLiteral("rfc"));
    Direccion = ini.value(kClient, QStringLiteral("direccion"));
    Colonia = ini.value(kClient, QStringLiteral("colonia"));
    CiudadFiscal = ini.value(kClient, QStringLiteral("ciudad"));
    EstadoFiscal = numberOr(-1, ini, kClient, QStringLiteral("estado"));
    Pais = ini.value(kClient, QStringLiteral("pais"));
    CodigoPostal = ini.value(kClient, QStringLiteral("cp"));
    Telefono = ini.value(kClient, QStringLiteral("tel"));
    Correo = ini.value(kClient, QStringLiteral("correoe"));
}

void Options::loadSystem(const IniFile &ini) {
    ApagarSistema = ini.isYes(kMachine, QStringLiteral("apagar"));
    HoraApagar = hour(ini, kMachine, QStringLiteral("hora"));
    BuscarActualizaciones = ini.isYes(kMachine, QStringLiteral("actualiza"));
    GenerarEstadisticas = ini.isYes(kMachine, QStringLiteral("estadisticas"));
    ContabilidadGubernamental = ini.isYes(kAccounting, QStringLiteral("gubernamental"));
    GenerarPolizas = ini.isYes(kAccounting, QStringLiteral("prelimipolizasnar_hojas"));
    CortesBancarios = ini.isYes(kAccounting, QStringLiteral("cortebanca"));
    Fondo = ini.value(kClient, QStringLiteral("fondo"));
    FuenteFinanciamiento = ini.value(kClient, QStringLiteral("ftefin"));
    TitulosMayusculas = ini.isYes(kClient, QStringLiteral("maysucula"));
}

void Options::loadAdmissions(const IniFile &ini) {
    FechaBusquedaAdmisiones = dateText(ini, kAdmissions, QStringLiteral("fbusqueda"));
    DiasBusqueda = std::clamp(ini.integer(kAdmissions, QStringLiteral("dias")), 0, kMostSearchDays);
    AlumnoCanalizado = ini.isYes(kAdmissions, QStringLiteral("canalizado"));
    // Absent is the first model, empty is none.
    const QString consent = QStringLiteral("consentimiento");
    const bool first = ini.value(kAdmissions, consent, QStringLiteral("0")) == QLatin1String("0");
    Consentimiento = first ? 0 : numberOr(-1, ini, kAdmissions, consent);
    AdmisionesOtrosCentros = ini.isYes(kAdmissions, QStringLiteral("buscarxcd"));
    SaltarAdmision = ini.isYes(kAdmissions, QStringLiteral("saltar_adm"));
    AdmisionesHoy = ini.isYes(kAdmissions, QStringLiteral("hoy"));
    AdmisionesConExpediente = ini.isYes(kAdmissions, QStringLiteral("exp"));
    AdmisionesAutorizadas = ini.isYes(kAdmissions, QStringLiteral("aut"));
}

void Options::loadDossiers(const IniFile &ini) {
    FechaBusquedaExpedientes = dateText(ini, kDossiers, QStringLiteral("fbusqueda"));
    GenerarExpediente = ini.isYes(kDossiers, QStringLiteral("guardar"));
    CapturarSaldos = GenerarExpediente && ini.isYes(kDossiers, QStringLiteral("saldo"));
    ExpedientesOtrosCentros = ini.isYes(kDossiers, QStringLiteral("verexp"));
    ValidarEdad = ini.isYes(kDossiers, QStringLiteral("validaedad"));
    ActivarPrestamo = ini.isYes(kDossiers, QStringLiteral("prestamo"));
    ExpedientesPorAlumno =
        std::clamp(ini.integer(kDossiers, QStringLiteral("expedientes")), 0, kMostDossiers);
    SistemaAnterior = ini.isYes(kDossiers, QStringLiteral("sysanterior"));
    // The old system's switch governs the loans and not the search that bears its name.
    if (!SistemaAnterior) {
        ActivarPrestamo = false;
    }
    if (!ActivarPrestamo) {
        ExpedientesPorAlumno = 0;
    }
    ActualizarLista = ini.isYes(kDossiers, QStringLiteral("actualizar"));
    IntervaloLista = hourInParts(ini, kDossiers);
    ExpedienteUniversal = ini.isYes(kDossiers, QStringLiteral("controlexp"));
}

void Options::loadPrints(const IniFile &ini) {
    SegundosDuplicado =
        std::clamp(ini.integer(kPrints, QStringLiteral("duplicado")), 0, kMostDuplicateSeconds);
    DesactivarDuplicados = ini.isYes(kPrints, QStringLiteral("des_duplicado"));
    PreliminarNotas = ini.isYes(kPrints, QStringLiteral("preliminar"));
    PreliminarHojas = ini.isYes(kPrints, QStringLiteral("preliminar_hojas"));
    ImgEmpresa = ini.value(kClient, QStringLiteral("img_empresa"));
    ImgEmpresa1 = ini.value(kClient, QStringLiteral("img_empresa1"));
}

void Options::save(IniFile &ini) const {
    ini.writeTogether([&] {
        saveGeneral(ini);
        saveSystem(ini);
        saveAdmissions(ini);
        saveDossiers(ini);
        savePrints(ini);
    });
}

void Options::saveGeneral(IniFile &ini) const {
    ini.setValue(kClient, QStringLiteral("cliente"), NombreCliente);
    ini.setValue(kClient, QStringLiteral("nombre"), NombreInstitucion);
    ini.setValue(kClient, QStringLiteral("iniciales"), Iniciales);
    ini.setValue(kClient, QStringLiteral("facultad"), Facultad);
    ini.setValue(kClient, QStringLiteral("clinica"), Clinica);
    ini.setValue(kUser, QStringLiteral("user"), Usuario);
    ini.setValue(kUser, QStringLiteral("ciudad"), Ciudad);
    ini.setValue(kUser, QStringLiteral("estado"), QString::number(Estado + 1));
    if (CambiarPass) {
        ini.setValue(kUser, QStringLiteral("cambiar_pass"), QStringLiteral("S"));
    }
    ini.setValue(QStringLiteral("Ayuda"), QStringLiteral("Ayuda"), ArchivoAyuda);
    // The look that a file without the key stands for is written where it replaces another.
    if (SkinName != ini.value(QStringLiteral("Sistema"), QStringLiteral("skinname"),
                              QStringLiteral("Windows"))) {
        ini.setValue(QStringLiteral("Sistema"), QStringLiteral("skinname"), SkinName);
        ini.setValue(QStringLiteral("Ambiente"), QStringLiteral("skin"), Skin);
    }
    if (sector != Sector::None) {
        ini.setValue(kClient, QStringLiteral("sector"),
                     QString::number(static_cast<int>(sector) + 1));
    }
    ini.setValue(kClient, QStringLiteral("rfc"), Rfc);
    ini.setValue(kClient, QStringLiteral("direccion"), Direccion);
    ini.setValue(kClient, QStringLiteral("colonia"), Colonia);
    ini.setValue(kClient, QStringLiteral("ciudad"), CiudadFiscal);
    ini.setValue(kClient, QStringLiteral("estado"), QString::number(EstadoFiscal));
    ini.setValue(kClient, QStringLiteral("pais"), Pais);
    ini.setValue(kClient, QStringLiteral("cp"), CodigoPostal);
    ini.setValue(kClient, QStringLiteral("tel"), Telefono);
    ini.setValue(kClient, QStringLiteral("correoe"), Correo);
}

void Options::saveSystem(IniFile &ini) const {
    if (ApagarSistema) {
        ini.setValue(kMachine, QStringLiteral("apagar"), QStringLiteral("S"));
    }
    writeHour(ini, kMachine, HoraApagar);
    writeYes(ini, kMachine, QStringLiteral("actualiza"), BuscarActualizaciones);
    writeYes(ini, kMachine, QStringLiteral("estadisticas"), GenerarEstadisticas);
    writeYes(ini, kAccounting, QStringLiteral("gubernamental"), ContabilidadGubernamental);
    writeYes(ini, kAccounting, QStringLiteral("polizas"), GenerarPolizas);
    writeYes(ini, kAccounting, QStringLiteral("cortebanca"), CortesBancarios);
    ini.setValue(kClient, QStringLiteral("fondo"), Fondo);
    ini.setValue(kClient, QStringLiteral("ftefin"), FuenteFinanciamiento);
    // Twice: the source of financing stands under this key for the time of one write.
    ini.setValue(kClient, QStringLiteral("maysucula"), FuenteFinanciamiento);
    writeYes(ini, kClient, QStringLiteral("maysucula"), TitulosMayusculas);
}

void Options::saveAdmissions(IniFile &ini) const {
    ini.setValue(kAdmissions, QStringLiteral("fbusqueda"), FechaBusquedaAdmisiones);
    ini.setValue(kAdmissions, QStringLiteral("dias"), QString::number(DiasBusqueda));
    writeYes(ini, kAdmissions, QStringLiteral("canalizado"), AlumnoCanalizado);
    ini.setValue(kAdmissions, QStringLiteral("consentimiento"),
                 Consentimiento < 0 ? QString() : QString::number(Consentimiento));
    writeYes(ini, kAdmissions, QStringLiteral("buscarxcd"), AdmisionesOtrosCentros);
    writeYes(ini, kAdmissions, QStringLiteral("saltar_adm"), SaltarAdmision);
    writeYes(ini, kAdmissions, QStringLiteral("hoy"), AdmisionesHoy);
    writeYes(ini, kAdmissions, QStringLiteral("exp"), AdmisionesConExpediente);
    writeYes(ini, kAdmissions, QStringLiteral("aut"), AdmisionesAutorizadas);
}

void Options::saveDossiers(IniFile &ini) const {
    ini.setValue(kDossiers, QStringLiteral("fbusqueda"), FechaBusquedaExpedientes);
    writeYes(ini, kDossiers, QStringLiteral("guardar"), GenerarExpediente);
    writeYes(ini, kDossiers, QStringLiteral("saldo"), CapturarSaldos);
    writeYes(ini, kDossiers, QStringLiteral("verexp"), ExpedientesOtrosCentros);
    writeYes(ini, kDossiers, QStringLiteral("validaedad"), ValidarEdad);
    writeYes(ini, kDossiers, QStringLiteral("prestamo"), ActivarPrestamo);
    ini.setValue(kDossiers, QStringLiteral("expedientes"), QString::number(ExpedientesPorAlumno));
    writeYes(ini, kDossiers, QStringLiteral("sysanterior"), SistemaAnterior);
    writeYes(ini, kDossiers, QStringLiteral("actualizar"), ActualizarLista);
    writeHour(ini, kDossiers, IntervaloLista);
    writeYes(ini, kDossiers, QStringLiteral("controlexp"), ExpedienteUniversal);
}

void Options::savePrints(IniFile &ini) const {
    ini.setValue(kPrints, QStringLiteral("duplicado"), QString::number(SegundosDuplicado));
    writeYes(ini, kPrints, QStringLiteral("des_duplicado"), DesactivarDuplicados);
    writeYes(ini, kPrints, QStringLiteral("preliminar"), PreliminarNotas);
    writeYes(ini, kPrints, QStringLiteral("preliminar_hojas"), PreliminarHojas);
    ini.setValue(kClient, QStringLiteral("img_empresa"), ImgEmpresa);
    ini.setValue(kClient, QStringLiteral("img_empresa1"), ImgEmpresa1);
}

QDate Options::fechaExpedientes() const {
    return parseShortDate(FechaBusquedaExpedientes);
}

QDate parseShortDate(const QString &text) {
    return QDate::fromString(text.trimmed(), QStringLiteral("d/M/yyyy"));
}
}  // namespace kaldo
