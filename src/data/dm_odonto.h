#pragma once

#include "data/data_module.h"
#include "data/dm_conexion.h"
#include "data/options.h"
#include "data/session.h"

namespace kaldo {

/// The clinic's queries: users and rights, centres, admissions, dossiers and their routines.
class DMOdonto final : public DataModule {
public:
    DMOdonto(DMConexion &connections, const Session &session, const Options &options);

    // Users and rights
    NamedQuery ControlUsuarios;
    NamedQuery ControlUsuarios1;
    NamedQuery ControlUsuarios2;
    NamedQuery CampusUsuario;
    NamedQuery Usuarios_Mant;
    NamedQuery Usuarios_Mant1;
    Command CambiaPass;

    // Control and rate
    NamedQuery Control;
    NamedQuery ControlExpediente;
    NamedQuery ControlExpedientes;
    NamedQuery TipoCambio;
    NamedQuery TipoCambio1;
    NamedQuery est_caja;

    // Centres, sales areas, clinics
    NamedQuery CtroAtencion;
    NamedQuery CtroAtencion1;
    NamedQuery CtroAtencion3;
    NamedQuery CtroAtencion4;
    NamedQuery CtroAtencionF;
    NamedQuery AreaVenta;
    NamedQuery AreaVenta1;
    NamedQuery AreaVenta2;
    NamedQuery AreaVenta3;
    NamedQuery AreaVentaT;
    NamedQuery ConsultaAreas;
    NamedQuery ServxCtro;
    NamedQuery ServxCtro1;
    NamedQuery ServxCtro2;
    NamedQuery ServxCtroR;
    NamedQuery AreaAtencion;
    NamedQuery AreaAtencionR;

    // Who pays what
    NamedQuery Prestaciones;
    NamedQuery Prestaciones1;
    NamedQuery ClasifServicios;
    NamedQuery ClasifServiciosR;
    NamedQuery Prestacionxserv;
    NamedQuery LabExterno;

    // Price list and forms of payment
    NamedQuery Listaprecios;
    NamedQuery Listaprecios1;
    NamedQuery Listaprecios3;
    NamedQuery UMedida;
    NamedQuery TipoForma;
    NamedQuery Metodopagocfdi;

    // The note's identification
    NamedQuery serviciosxctros;
    NamedQuery CargarExp;
    NamedQuery AdmisionNota;

    // Routines of admissions and dossiers
    Procedure registra_admision_p;
    Procedure registra_datosgenerales_p;
    Procedure registra_antecedentes_p;
    Procedure BorrarAdmision;
    Procedure BorrarExpediente;

    /// Folio of the next admission, as FolioAdm read it last.
    int FolioAdmision = 0;
    /// Number of the next dossier in its printed form, at most 8 characters, and its counter, as
    /// FolioExp read them last.
    FixedText<8> NumExpediente;
    int ConsecExpediente = 0;

    /// The campus whose cash desks a user sees, by his row as it stands now; empty for no such
    /// user.
    QString campusDelUsuario(const QString &usuario);
    void FolioAdm();
    void FolioExp();

private:
    void addClassDescriptions();

    const Session &session_;
    const Options &options_;
};

}  // namespace kaldo
