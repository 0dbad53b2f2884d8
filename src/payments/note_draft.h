#pragma once

#include "toolkit/core/text.h"

#include <QDate>
#include <QList>
#include <QString>

#include <optional>

namespace kaldo {

enum class NoteMode { Registrar, Consultar };

/// One line of the note being written: a row of the working table.
struct NoteLine {
    int codigo = 0;
    int tipoProd = 0;
    std::optional<int> cveProd;  ///< unset where "Clave" was left empty
    QString descripcion;
    int cant = 0;
    double precio = 0;
    double total = 0;  ///< as saved with the row: cant × precio
    QString prog;      ///< programme as text, at most 5 digits
    int subsubcta = 0;
    int claveProdServ = 0;
    QString descAdic;
    QString nomenclatura;
    double porcentaje = 0;  ///< share of an advance in this line, in pesos
};

/// The row of `serviciosxctros` that the cashier chose.
struct SalesArea {
    int tipoProd = 0;
    QString descr;
    QString anticipo;  ///< "S" where the area takes advances

    bool takesAdvances() const { return anticipo == QLatin1String("S"); }
};

/// The open row of `Prestaciones1`; 0 while the query is closed or empty.
struct PatientType {
    int prestacion = 0;
    QString descripcion;
};

enum class Sex { Unset, Femenino, Masculino };

/// What registration and receipt need of the payment note's screen, copied once when the cashier
/// pays. Texts stand as the fields hold them: neither trimmed nor cut.
struct NoteDraft {
    NoteMode mode = NoteMode::Registrar;
    int notaActual = 0;
    QDate fecha;

    QString servicio;        ///< the whole row of "Tipo de Servicio": "AD - ADMISION"
    QString tipoServ;        ///< its two letters
    QString cadenaServicio;  ///< its words, at most 80
    QString tipoServNota;    ///< first three letters of a consulted note's `tipo_serv`
    SalesArea area;
    QString centroLabel;  ///< the label "Centro:" of the heading

    bool lugarShown = false;  ///< the strip "Lugar de Atención" is shown
    QString lugarArea;        ///< `AreaAtencion.AREA` of the place, empty without one
    QString lugarDescr;

    QString expediente;
    int folioAdmision = 0;
    QString paterno;
    QString materno;
    QString nombre;

    QString matricula;
    QString alumno;

    QString noEmpleado;  ///< text of the field "No. Empleado"
    QString nombreEmpleado;
    int numEmpleado = 0;
    bool empleadoPanelShown = false;
    QString empleadoLabel;  ///< number, blank, name
    QString dependenciaLabel;

    PatientType tipoPacienteRow;
    int porcPrestacion = 0;  ///< whole percent
    int prestacionExpediente = 0;
    QString prestacionLabel = QStringLiteral("Prestación");

    bool nacimientoShown = false;  ///< the strip with the date of birth is shown
    int edad = 0;
    QString tipoPaciente;  ///< "I" or "A"
    QDate fechaNac;
    Sex sexo = Sex::Unset;

    double prestacion = 0;    ///< the screen's "Prestación"
    double iva = 0;           ///< the screen's "IVA"
    double importeTotal = 0;  ///< the screen's "Importe Total"
    bool pagoAnticipoShown = false;
    double pagoAnticipo = 0;

    QList<NoteLine> lines;

    /// Neither a blank matricula nor "0" is a student.
    bool hasStudent() const {
        const QString text = matricula.trimmed();
        return !text.isEmpty() && text != QLatin1String("0");
    }
    bool hasDossier() const { return !expediente.trimmed().isEmpty(); }
    bool hasEmployeeNumber() const { return !noEmpleado.trimmed().isEmpty(); }
};

}  // namespace kaldo
