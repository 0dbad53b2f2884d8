#pragma once

#include <QDate>
#include <QString>
#include <QTime>

#include "toolkit/core/ini_file.h"

namespace kaldo {

enum class Sector { None = -1, Empresarial = 0, Educativo = 1, Institucional = 2 };

/// The live copy of all options, filled once from the ini file when the control panel is created
/// and changed only by its screen. The comments name the keys.
struct Options {
    // [Cliente]
    QString NombreCliente;      ///< cliente: client code
    QString NombreInstitucion;  ///< nombre: "Nombre del Cliente" of the reports
    QString Iniciales;          ///< iniciales: see encabezado()
    QString Facultad;           ///< facultad: "Facultad o Clinica", second heading of the reports
    QString Clinica;            ///< clinica: "Nombre de la Clinica"
    QString ImgEmpresa;         ///< img_empresa: path of the reports' logo
    QString ImgEmpresa1;        ///< img_empresa1: path of the faculty's logo
    Sector sector = Sector::None;
    QString Rfc;
    QString Direccion;
    QString Colonia;
    QString CiudadFiscal;
    int EstadoFiscal = -1;
    QString Pais;
    QString CodigoPostal;
    QString Telefono;
    QString Correo;
    QString Fondo;
    QString FuenteFinanciamiento;
    bool TitulosMayusculas = false;  ///< maysucula

    // [Usuario], [Sistema], [Ambiente], [Ayuda]
    QString Usuario;
    QString Ciudad;
    int Estado = -1;  ///< list index; the key holds it plus one
    bool CambiarPass = false;
    QString SkinName;
    QString Skin;
    QString ArchivoAyuda;

    // [Equipo]
    bool ApagarSistema = false;
    QTime HoraApagar;
    bool BuscarActualizaciones = false;
    bool GenerarEstadisticas = false;

    // [Admisiones]
    QString FechaBusquedaAdmisiones;  ///< text in the machine's short date format
    int DiasBusqueda = 0;
    bool AlumnoCanalizado = false;
    int Consentimiento = -1;
    bool AdmisionesOtrosCentros = false;
    bool SaltarAdmision = false;
    bool AdmisionesHoy = false;
    bool AdmisionesConExpediente = false;
    bool AdmisionesAutorizadas = false;

    // [Expedientes]
    bool ExpedienteUniversal = false;      ///< controlexp
    bool GenerarExpediente = false;        ///< guardar
    bool CapturarSaldos = false;           ///< saldo; never without guardar
    bool ExpedientesOtrosCentros = false;  ///< verexp
    bool ValidarEdad = false;
    bool ActivarPrestamo = false;
    int ExpedientesPorAlumno = 0;
    bool SistemaAnterior = false;
    bool ActualizarLista = false;
    QString FechaBusquedaExpedientes;  ///< text in the machine's short date format
    QTime IntervaloLista;

    // [Impresiones], [Contabilidad]
    int SegundosDuplicado = 0;
    bool DesactivarDuplicados = false;
    bool PreliminarNotas = false;
    bool PreliminarHojas = false;
    bool ContabilidadGubernamental = false;
    bool CortesBancarios = false;
    bool GenerarPolizas = false;  ///< read from prelimipolizasnar_hojas

    /// Reads every key in the order of the panel's pages: General, Sistema, Opciones, Impresiones.
    /// A value that must be a whole number, a date or an hour and isn't throws
    /// (std::invalid_argument, Spanish text); what stands before it in the order has been read, the
    /// rest keeps what it held.
    void load(const IniFile &ini);

    /// Writes every key in the order of the panel's pages, all of them or, throwing
    /// (std::runtime_error, Spanish text), none. Kept as the files in use have them: the closing
    /// hour and the change of passwords are only ever switched on, the help file and the policies
    /// go to other keys than load() reads, a sector or a colour scheme that is none of the list
    /// leaves its keys alone.
    void save(IniFile &ini) const;

    /// The short name of the institution; its name stands in where it has none.
    QString encabezado() const { return Iniciales.isEmpty() ? NombreInstitucion : Iniciales; }

    /// "Fecha Inicial de Busqueda." of the dossiers as a date; an invalid date where it is none.
    QDate fechaExpedientes() const;

    bool operator==(const Options &) const = default;

private:
    void loadGeneral(const IniFile &ini);
    void loadSystem(const IniFile &ini);
    void loadAdmissions(const IniFile &ini);
    void loadDossiers(const IniFile &ini);
    void loadPrints(const IniFile &ini);
    void saveGeneral(IniFile &ini) const;
    void saveSystem(IniFile &ini) const;
    void saveAdmissions(IniFile &ini) const;
    void saveDossiers(IniFile &ini) const;
    void savePrints(IniFile &ini) const;
};

/// A date as the options keep it: dd/MM/yyyy.
QDate parseShortDate(const QString &text);

}  // namespace kaldo
