#pragma once

#include "people/new_admission.h"

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

/// A row of `serviciosxctros`.
struct SalesArea {
    int tipoProd = 0;
    QString descr;
    QString anticipo;  ///< "S" where the area takes advances
    int edadMin = 0;   ///< whose dossiers it lists, in years
    int edadMax = 0;

    bool takesAdvances() const { return anticipo == QLatin1String("S"); }
};

/// What is sold: the service type, its sales area and, where the area has some, the place of care.
struct Service {
    QString row;             ///< the whole row of "Tipo de Servicio": "AD - ADMISION"
    QString tipoServ;        ///< its two letters
    QString cadenaServicio;  ///< its words, at most 80
    SalesArea area;
    bool lugarShown = false;  ///< the area has places of care
    QString lugarArea;        ///< `AreaAtencion.AREA` of the place, empty without one
    QString lugarDescr;
};

/// A row of `Prestaciones`; 0 where there is none.
struct PatientType {
    int prestacion = 0;
    QString descripcion;
};

/// Who pays. Texts stand as they were typed or looked up: neither trimmed nor cut.
struct Payer {
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

    PatientType tipoPaciente;
    int prestacionExpediente = 0;  ///< `expedientes.prestacion`, 0 without a dossier

    std::optional<Birth> nacimiento;  ///< of an admission that was asked for it
    Sex sexo = Sex::Unset;

    /// Neither a blank matricula nor "0" is a student.
    bool hasStudent() const {
        const QString text = matricula.trimmed();
        return !text.isEmpty() && text != QLatin1String("0");
    }
    bool hasDossier() const { return !expediente.trimmed().isEmpty(); }
    bool hasEmployeeNumber() const { return !noEmpleado.trimmed().isEmpty(); }
};

/// The share of the price that somebody else bears.
struct Benefit {
    int porcPrestacion = 0;  ///< whole percent

    /// How amounts covered by it are captioned: "Prestación 50 %".
    QString label() const {
        return porcPrestacion > 0 ? QStringLiteral("Prestación %1 %").arg(porcPrestacion)
                                  : QStringLiteral("Prestación");
    }
};

/// The amounts that the screen shows, in pesos.
struct NoteAmounts {
    double prestacion = 0;
    double iva = 0;
    double importeTotal = 0;
    bool pagoAnticipoShown = false;
};

/// One payment note as a value, on its way from the screen through the payment dialog to
/// registration and receipt. Each part was filled when the cashier chose or accepted it.
struct NoteDraft {
    NoteMode mode = NoteMode::Registrar;
    int notaActual = 0;
    QDate fecha;
    QString centroLabel;   ///< the label "Centro:" of the heading
    QString tipoServNota;  ///< first three letters of a consulted note's `tipo_serv`

    Service service;
    Payer payer;
    Benefit benefit;
    NoteAmounts amounts;
    QList<NoteLine> lines;
};

}  // namespace kaldo
