#include "tools/volume/rows.h"

#include <cmath>

#include "data/clinical_history_columns.h"

namespace kaldo::volume {

namespace {

constexpr int kTaxUnits = 10'000;
constexpr const char *kFund = "11";
constexpr int kSource = 1400;

double rounded(double amount) {
    return std::round(amount * kTaxUnits) / kTaxUnits;
}

/// What hangs on a note and has no routine: both writers take it.
class Attachments {
public:
    explicit Attachments(BulkDatabase &clinic)
        : dossier_(clinic, "expedientes",
                   "expediente, folio, prestacion, centro, num_empl, empleado, dependencia, "
                   "status, nombre, campus, fecha_ap, num_caja, nota_vta, observacion, "
                   "expedienteold"),
          account_(clinic, "anticipos",
                   "campus, expediente, recibo_anticipo, paterno, materno, paciente, matricula, "
                   "alumno, importe_tot, saldo, nombretratamiento, pago_inicial"),
          movement_(clinic, "estadocuenta",
                    "recibo, expediente, matricula, tipo_mov, fecha_mov, concepto, importe, saldo, "
                    "consec, saldo_ant, recibopago, tipo_serv, campus"),
          instalment_(clinic, "abonos",
                      "campus, expediente, recibo_anticipo, fecha_mov, concepto, importe, "
                      "recibopago"),
          lower_(clinic,
                 "update anticipos set saldo = ? where campus = ? and expediente = ? and "
                 "recibo_anticipo = ?"),
          loan_(clinic, "prestamo_exp",
                "consec, matricula, campus, expediente, nombre, status, fecha_prestamo, centro, "
                "alumno, fecha_devolucion") {}

    void write(const Note &note) {
        const Desk &desk = *note.desk;
        if (note.dossier) {
            const Dossier &dossier = *note.dossier;
            dossier_(dossier.number, dossier.folio, dossier.prestacion, dossier.centro, 0, "", "",
                     "AU", wholeOf(dossier.name), dossier.campus, note.moment.day, desk.caja,
                     note.nota, "", "");
        }
        if (note.account) {
            open(note, *note.account);
        }
        if (note.instalment) {
            pay(note, *note.instalment);
        }
        if (note.loan) {
            lend(note, *note.loan);
        }
    }

private:
    void open(const Note &note, const Account &account) {
        const Desk &desk = *note.desk;
        const double saldo = rounded(account.importe - account.paid);
        account_(desk.origen, note.expediente, note.recibo(), note.paterno, note.materno,
                 note.nombre, note.matricula, note.alumno, account.importe, saldo,
                 account.treatment, account.paid);
        movement_(note.recibo(), note.expediente, note.matricula, "1", note.moment.day,
                  "PAGO DE ANTICIPO " + account.treatment, account.importe, saldo, ++movements_,
                  0.0, note.recibo(), account.service, desk.origen);
    }

    void pay(const Note &note, const Instalment &instalment) {
        const Desk &desk = *note.desk;
        const double after = rounded(instalment.before - instalment.amount);
        const std::string concept_ = "PAGO DE ANTICIPO RECIBO " + instalment.account;
        lower_(after, desk.origen, note.expediente, instalment.account);
        instalment_(desk.origen, note.expediente, instalment.account, note.moment.day, concept_,
                    instalment.amount, note.recibo());
        movement_(instalment.account, note.expediente, note.matricula, "2", note.moment.day,
                  concept_, instalment.amount, after, ++movements_, instalment.before,
                  note.recibo(), note.service, desk.origen);
    }

    void lend(const Note &note, const Loan &loan) {
        const Desk &desk = *note.desk;
        ++loans_;
        const std::string name = note.paterno + " " + note.materno + " " + note.nombre;
        if (loan.returned) {
            loan_(loans_, note.matricula, desk.origen, note.expediente, name, "RG", loan.lent,
                  desk.centro, note.alumno, *loan.returned);
        } else {
            loan_(loans_, note.matricula, desk.origen, note.expediente, name, "PR", loan.lent,
                  desk.centro, note.alumno, Null());
        }
    }

    BulkStatement dossier_;
    BulkStatement account_;
    BulkStatement movement_;
    BulkStatement instalment_;
    BulkStatement lower_;
    BulkStatement loan_;
    int movements_ = 0;
    int loans_ = 2;  ///< the example school has two
};

/// The clinical history that a new admission gets: "N" for what has one letter, else nothing.
void writeEmptyHistory(BulkStatement &history, int folio) {
    const auto columns = clinicalHistoryColumns();
    history.set(0, folio);
    for (std::size_t at = 1; at < columns.size(); ++at) {
        if (columns[at].width == 0) {
            history.set(at, Null());
        } else {
            history.set(at, columns[at].width == 1 ? "N" : "");
        }
    }
    history.execute();
}

std::string historyColumns() {
    std::string names;
    for (const ClinicalHistoryColumn &column : clinicalHistoryColumns()) {
        names += (names.empty() ? "" : ", ") + std::string(column.name);
    }
    return names;
}

std::string call(const std::string &routine, std::size_t parameters) {
    std::string marks = "?";
    for (std::size_t n = 1; n < parameters; ++n) {
        marks += ", ?";
    }
    return "execute procedure " + routine + "(" + marks + ")";
}

class RowWriter final : public Writer {
public:
    RowWriter(BulkDatabase &clinic, BulkDatabase &finance)
        : attachments_(clinic),
          head_(clinic, "registrovtas",
                "num_caja, nota_vta, mpio, fecha, fecha_hora, tipo_vta, observ, status, capto, "
                "importe_tot, tipocambio, tipo_serv, matricula, alumno, recibo, pk_tipo_cliente, "
                "polizaid, campusid, sistemaid, paqueteid, fecha_cancel"),
          clinicSide_(clinic, "pagos_odontologia",
                      "num_caja, nota_vta, expediente, tipo_serv, turno, centro, prestacion, "
                      "porc_descto, imp_descto, matricula, alumno, num_empl, area, paciente, "
                      "paterno, materno, nombre"),
          payment_(clinic, "formapago",
                   "num_caja, nota_vta, importe_tot, dolares, pesos, cambio, prestacion, anticipo, "
                   "credito, cheque, chequedll, numcheque, bancomn, bancodll, complementaria, "
                   "beca"),
          sale_(clinic, "vtascontado", "num_caja, nota_vta, tipo_cliente, nombre, imp_total"),
          part_(clinic, "detallepago", "num_caja, nota_vta, idtipo, importe"),
          method_(clinic, "metodopagonota",
                  "num_caja, nota_vta, cve, importe, cta, rfcbanco, banco, operacion, rfcdestino, "
                  "ctadestino, moneda, tipocambio"),
          line_(clinic, "detallevtas",
                "num_caja, nota_vta, codigo, tipo_prod, cve_prod, cant, precio, porc_desc, "
                "perc_dcto, prog, des_adic, fondo, foliosa, subsubcta, ftefinid, tipodeiva, "
                "porcentajeiva, importeiva, clasificacioniva, claveprodserv, tipofactoriva"),
          charge_(clinic, "historicoodontologia",
                  "expediente, codigo, tipo_prod, cve_prod, num_caja, nota_vta, fecha, descr, "
                  "cant, precio, matricula, origen, areactr"),
          admission_(clinic, "admision",
                     "folio, fecha, num_caja, nota_vta, status, tipoadmision, matricula, alumno, "
                     "canalizadoa, nombre, autorizacion, centro"),
          patient_(clinic, "datosgenerales",
                   "folio, paterno, materno, paciente, edad, sexo, tipopaciente, domicilio, "
                   "colonia, ciudad, cod_postal, fecha_nac, curp, estadocivil, telefono1, "
                   "telefono2, medico, telmedico, enemergencia, parentesco, telemergencia, "
                   "padretutor, telpadre, ocupacion, otraocupacion, motivocons, otromotivo, "
                   "recomendadopor, otrarecomendacion, nombre"),
          history_(clinic, "antecedentes", historyColumns()),
          handedOver_(finance, "recibopago", "num_caja, nota_vta, momento") {}

    void write(const Admission &made) override {
        admission_(made.folio, made.moment.day, made.caja, made.nota, made.status, "N", Null(), "",
                   Null(), "", "", made.centro);
        const std::string paterno = paternoOf(made.name);
        const std::string materno = maternoOf(made.name);
        const auto patient = [&](const auto &birth) {
            patient_(made.folio, paterno, materno, givenOf(made.name), made.age,
                     made.name.woman ? "F" : "M", made.tipoPaciente, "", "", "", Null(), birth, "",
                     "", "", "", "", "", "", "", "", "", "", "", "", "", "", "", "",
                     wholeOf(made.name));
        };
        if (made.birth) {
            patient(*made.birth);
        } else {
            patient(Null());
        }
        writeEmptyHistory(history_, made.folio);
    }

    void write(const Note &note) override {
        writeHead(note);
        if (note.admission) {
            write(*note.admission);
        }
        writePayment(note);
        for (const Line &line : note.lines) {
            writeLine(note, line);
        }
        handedOver_(note.desk->caja, note.nota, note.moment);
        attachments_.write(note);
    }

private:
    void writeHead(const Note &note) {
        const Desk &desk = *note.desk;
        const auto head = [&](const char *status, const auto &reason, const auto &cancelled) {
            head_(desk.caja, note.nota, desk.mpio(), note.moment.day, note.moment, "CONTADO",
                  reason, status, desk.usuario, note.importe, note.rate, note.service,
                  note.matricula, note.alumno, note.recibo(), note.prestacion, 0,
                  std::stoi(desk.campus), desk.sistemaid, desk.paqueteid, cancelled);
        };
        if (note.cancelled) {
            head("CA", kReason, *note.cancelled);
        } else {
            head("GE", Null(), Null());
        }
        clinicSide_(desk.caja, note.nota, note.expediente, note.service, desk.turno, desk.centro,
                    note.prestacion, note.percent, note.benefit, note.matricula, note.alumno, 0,
                    note.area, note.payer, note.paterno, note.materno, note.nombre);
        sale_(desk.caja, note.nota, note.prestacion, note.payer, note.importe);
    }

    void writePayment(const Note &note) {
        const Desk &desk = *note.desk;
        const Tender &tender = note.tender;
        const double dollars = rounded(tender.dolares * note.rate);
        payment_(desk.caja, note.nota, note.importe, tender.dolares, tender.pesos, tender.cambio,
                 note.benefit, 0.0, tender.credito, tender.cheque, 0.0, tender.numCheque,
                 desk.bancomn, desk.bancodll, rounded(dollars - tender.dolares), note.benefit);
        const std::pair<int, double> parts[] = {{1, tender.pesos},
                                                {2, dollars},
                                                {3, tender.cheque},
                                                {4, tender.credito},
                                                {10, note.benefit}};
        for (const auto &[type, amount] : parts) {
            if (amount > 0) {
                part_(desk.caja, note.nota, type, amount);
            }
        }
        if (note.method) {
            method_(desk.caja, note.nota, note.method->cve, note.method->importe, "", "", "", "",
                    "", "", note.method->moneda, note.method->tipocambio);
        } else {
            method_(desk.caja, note.nota, Null(), Null(), "", "", "", "", "", "", Null(), Null());
        }
    }

    void writeLine(const Note &note, const Line &line) {
        const Desk &desk = *note.desk;
        const Price &price = *line.price;
        const double tax = rounded(line.cant * line.precio * (1 - note.percent / 100.0) *
                                   price.porcentajeiva / (100 + price.porcentajeiva));
        line_(desk.caja, note.nota, price.codigo, price.tipoProd, price.cveProd,
              static_cast<double>(line.cant), line.precio, note.percent, note.percent, price.prog,
              " ", kFund, "", price.subsubcta, kSource, price.tipodeiva, price.porcentajeiva, tax,
              price.clasificacioniva, price.claveprodserv,
              price.porcentajeiva > 0 ? "Tasa" : "Exento");
        if (!note.expediente.empty()) {
            charge_(note.expediente, price.codigo, price.tipoProd, price.cveProd, desk.caja,
                    note.nota, note.moment.day, price.descr, static_cast<double>(line.cant),
                    line.precio, note.matricula, desk.origen2(), note.area);
        }
    }

    static constexpr const char *kReason = "EL PACIENTE NO ACUDIO";

    Attachments attachments_;
    BulkStatement head_;
    BulkStatement clinicSide_;
    BulkStatement payment_;
    BulkStatement sale_;
    BulkStatement part_;
    BulkStatement method_;
    BulkStatement line_;
    BulkStatement charge_;
    BulkStatement admission_;
    BulkStatement patient_;
    BulkStatement history_;
    BulkStatement handedOver_;

    friend class RoutineWriter;
};

std::string clockText(Moment moment) {
    return "execute block as begin rdb$set_context('USER_SESSION', 'AHORA', cast(dateadd(" +
           std::to_string(moment.second) + " second to cast(dateadd(" +
           std::to_string(moment.day.number) +
           " day to date '2000-01-01') as timestamp)) as varchar(24))); end";
}

class RoutineWriter final : public Writer {
public:
    RoutineWriter(BulkDatabase &clinic, BulkDatabase &finance)
        : clinic_(clinic),
          finance_(finance),
          attachments_(clinic),
          head_(clinic, call("kdregistra_pago_odo_p", 29)),
          admission_(clinic, call("kdregistra_admision_p", 16)),
          patient_(clinic, call("kdregistra_datosgenerales_p", 30)),
          history_(clinic, call("kdregistra_antecedentes_p", clinicalHistoryColumns().size())),
          method_(clinic, call("kdregistra_metodopago_p", 12)),
          line_(clinic, call("kdregistra_spinsdetalle_p", 15)),
          charge_(clinic, call("kdregistra_historico_odo_p", 13)),
          tax_(clinic, call("kdregistraiva", 2)),
          handedOver_(finance, call("inserta_vw_recibopago", 2)),
          cancel_(clinic,
                  "update registrovtas set status = 'CA', observ = ?, fecha_cancel = ? where "
                  "num_caja = ? and nota_vta = ?") {}

    void write(const Admission &made) override {
        clinic_.run(clockText(made.moment));
        admission_(made.folio, made.caja, made.nota, "N", Null(), "", Null(), "", made.status, "",
                   "", "", Null(), "", "", made.centro);
        const auto patient = [&](const auto &birth) {
            patient_(made.folio, paternoOf(made.name), maternoOf(made.name), givenOf(made.name),
                     made.age, made.name.woman ? "F" : "M", made.tipoPaciente, "", "", "", Null(),
                     birth, "", "", "", "", "", "", "", "", "", "", "", "", "", "", "", "", "",
                     wholeOf(made.name));
        };
        if (made.birth) {
            patient(*made.birth);
        } else {
            patient(Null());
        }
        writeEmptyHistory(history_, made.folio);
    }

    void write(const Note &note) override {
        const Desk &desk = *note.desk;
        const Tender &tender = note.tender;
        clinic_.run(clockText(note.moment));
        finance_.run(clockText(note.moment));
        head_(desk.caja, note.nota, desk.mpio(), desk.usuario, note.importe, note.service,
              note.prestacion, note.payer, note.matricula, note.alumno, note.rate, tender.pesos,
              tender.dolares, tender.cheque, tender.credito, tender.cambio, note.benefit,
              tender.numCheque, 0, note.expediente, desk.turno, desk.centro, note.prestacion,
              note.percent, note.benefit, note.area, note.paterno, note.materno, note.nombre);
        if (note.admission) {
            write(*note.admission);
        }
        if (note.method) {
            method_(desk.caja, note.nota, note.method->cve, note.method->importe, "", "", "", "",
                    "", "", note.method->moneda, note.method->tipocambio);
        } else {
            method_(desk.caja, note.nota, Null(), Null(), "", "", "", "", "", "", Null(), Null());
        }
        for (const Line &line : note.lines) {
            writeLine(note, line);
        }
        handedOver_(desk.caja, note.nota);
        tax_(desk.caja, note.nota);
        attachments_.write(note);
        if (note.cancelled) {
            cancel_(RowWriter::kReason, *note.cancelled, desk.caja, note.nota);
        }
    }

private:
    void writeLine(const Note &note, const Line &line) {
        const Desk &desk = *note.desk;
        const Price &price = *line.price;
        line_(desk.caja, note.nota, price.codigo, static_cast<double>(line.cant), line.precio,
              note.percent, note.paterno + " " + note.materno + " " + note.nombre, price.prog,
              price.subsubcta, " ", kFund, desk.origen2(), "", kSource, note.code);
        if (!note.expediente.empty()) {
            charge_(note.expediente, price.codigo, price.tipoProd, price.cveProd, desk.caja,
                    note.nota, note.moment.day, price.descr, static_cast<double>(line.cant),
                    line.precio, note.matricula, desk.origen2(), note.area);
        }
    }

    BulkDatabase &clinic_;
    BulkDatabase &finance_;
    Attachments attachments_;
    BulkStatement head_;
    BulkStatement admission_;
    BulkStatement patient_;
    BulkStatement history_;
    BulkStatement method_;
    BulkStatement line_;
    BulkStatement charge_;
    BulkStatement tax_;
    BulkStatement handedOver_;
    BulkStatement cancel_;
};

}  // namespace

std::unique_ptr<Writer> makeRowWriter(BulkDatabase &clinic, BulkDatabase &finance) {
    return std::make_unique<RowWriter>(clinic, finance);
}

std::unique_ptr<Writer> makeRoutineWriter(BulkDatabase &clinic, BulkDatabase &finance) {
    return std::make_unique<RoutineWriter>(clinic, finance);
}

void writePeople(const School &school, BulkDatabase &clinic, BulkDatabase &finance,
                 BulkDatabase &students) {
    BulkStatement desk(clinic, "datoscaja",
                       "num_caja, nota_vta, nombre, origen, autoriza, prog_pol, serie, serien, "
                       "correoto, bancomn, bancodll, tipopaquete, campus, sistemaid, tipoliza, "
                       "fechapaquete, paqueteid, pk_tipo_caja");
    BulkStatement cashier(clinic, "controlusuarios",
                          "usuario, pass, nombre, nombrecorto, acceso, centro, turno, autoriza, "
                          "campus, num_caja, origen, mpo, usuarioid");
    // The rights are those of the cashiers who are there.
    BulkStatement rights(clinic,
                         "update or insert into usuarios_m (usuario, origen, centro, acceso, a3, "
                         "e1, e2, e3, e4, e6, e8, e9) values (?, ?, ?, 'CA', 'S', 'S', 'S', 'S', "
                         "'S', 'S', 'S', 'S') matching (usuario)");
    BulkStatement login(finance, "cg_usuario", "app_login, mpo");
    for (const Desk &each : school.desks()) {
        if (each.usuario.rfind("caja", 0) != 0 || each.usuario.rfind("cajero", 0) == 0) {
            continue;  // stands in the example school
        }
        const std::string number = std::to_string(each.caja);
        desk(each.caja, 1, "CAJA " + number, "INGRESOS CAJA " + number, "admin",
             each.valleNorte() ? 12510 : 980, "A", "NA", "", each.bancomn, each.bancodll, 1,
             each.campus, each.sistemaid, 1, dayOf(2024, 1, 2), each.paqueteid, 0);
        cashier(each.usuario, each.usuario, "CAJERO DE LA CAJA " + number, "CAJERO " + number, "CA",
                each.centro, each.turno, "admin", each.campus, number, each.origen,
                each.valleNorte() ? 1 : 2, Null());
        rights(each.usuario, each.origen, each.centro);
        std::string capitals = each.usuario;
        for (char &letter : capitals) {
            letter =
                static_cast<char>(letter >= 'a' && letter <= 'z' ? letter - 'a' + 'A' : letter);
        }
        login(capitals, each.valleNorte() ? "1" : "2");
    }

    BulkStatement ofClinics(clinic, "listalumnos",
                            "matricula, nombre, semestre, fecha, grupo, centro, trabajos, status");
    BulkStatement roll(students, "padron",
                       "matricula, programa_clave, nombre_nom, nombre_paterno, nombre_materno, "
                       "plan_estudio, programa_estudio, unidad_clave, unidad_desc, "
                       "vigencia_clave, vigencia_desc");
    for (std::size_t at = 0; at < school.students().size(); ++at) {
        const Name &name = school.students()[at];
        const int matricula = School::matriculaOf(at);
        const bool costaSur = at % 5 == 0;
        const bool enrolled = at + 800 > school.students().size();
        if (enrolled) {
            ofClinics(matricula, wholeOf(name), "8", dayOf(2026, 8, 10), "A",
                      costaSur ? "03" : "01", 0, "N");
        }
        roll(matricula, 1, givenOf(name), paternoOf(name), maternoOf(name), "2018-2",
             "CIRUJANO DENTISTA", costaSur ? 240 : 220,
             costaSur ? "FACULTAD DE ODONTOLOGIA COSTA SUR" : "FACULTAD DE ODONTOLOGIA VALLE NORTE",
             enrolled ? 1 : 2, enrolled ? "ACTIVO" : "BAJA TEMPORAL");
    }
    students.commit();
    finance.commit();
    clinic.commit();
}

void writeCounters(const School &school, BulkDatabase &clinic) {
    BulkStatement desk(clinic, "update datoscaja set nota_vta = ? where num_caja = ?");
    for (const Desk &each : school.desks()) {
        desk(each.nextNote, each.caja);
    }
    BulkStatement dossier(clinic,
                          "update or insert into controlexpedientes (campus, num_expediente) "
                          "values (?, ?) matching (campus)");
    for (const auto &[campus, number] : school.nextDossier()) {
        dossier(campus, number);
    }
    BulkStatement folio(clinic, "update control set folioad = ? where llave = '1'");
    folio(school.nextFolio());
    clinic.run(
        "execute block as declare n integer; begin "
        "select coalesce(max(consec), 0) from estadocuenta into n; "
        "execute statement 'set generator sq_estadocuenta to ' || n; "
        "select coalesce(max(consec), 0) from prestamo_exp into n; "
        "execute statement 'set generator sq_prestamo_exp to ' || n; end");
    clinic.commit();
}

}  // namespace kaldo::volume
