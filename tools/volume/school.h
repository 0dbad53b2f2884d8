#pragma once

#include <array>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tools/volume/bulk_database.h"
#include "tools/volume/dice.h"
#include "tools/volume/names.h"

namespace kaldo::volume {

/// An item of the price list.
struct Price {
    int codigo = 0;
    int tipoProd = 0;
    int cveProd = 0;
    std::string descr;
    double menudeo = 0;
    int prog = 0;
    int subsubcta = 0;
    std::string tipodeiva;
    double porcentajeiva = 0;
    int clasificacioniva = 0;
    std::string claveprodserv;
};

struct Desk {
    int caja = 0;
    int nextNote = 1;
    std::string campus;  ///< '2' Valle Norte, '3' Costa Sur
    std::string centro;
    std::string origen;  ///< of the cashier: VAN, COS
    std::string usuario;
    std::string turno;
    int bancomn = 0;
    int bancodll = 0;
    int sistemaid = 0;
    std::string paqueteid;

    bool valleNorte() const { return campus == "2"; }
    std::string mpio() const { return valleNorte() ? "M" : "T"; }
    std::string origen2() const { return valleNorte() ? "VN" : "CS"; }
};

struct Line {
    const Price *price = nullptr;
    int cant = 1;
    double precio = 0;
};

/// An admission with the patient's data; `caja` 0: made without a note.
struct Admission {
    int folio = 0;
    int caja = 0;
    int nota = 0;
    Moment moment;
    std::string status;
    std::string centro;
    Name name;
    std::optional<Day> birth;
    int age = 0;
    std::string tipoPaciente;
};

struct Dossier {
    std::string number;
    int folio = 0;
    int prestacion = 1;
    std::string centro;
    std::string campus;
    Name name;
};

/// An account that a note opens.
struct Account {
    double importe = 0;
    double paid = 0;
    std::string treatment;
    std::string service;  ///< the sales area of the first line
};

/// What a note pays on an account.
struct Instalment {
    std::string account;
    double before = 0;
    double amount = 0;
};

struct Loan {
    Day lent;
    std::optional<Day> returned;
};

struct Tender {
    double pesos = 0;  ///< kept, without the change
    double dolares = 0;
    double cheque = 0;
    double credito = 0;
    double cambio = 0;
    std::string numCheque;
};

/// The fiscal method of payment; none for a cheque and for a note that a benefit covers.
struct Method {
    std::string cve;
    double importe = 0;
    std::string moneda;
    double tipocambio = 0;
};

struct Note {
    const Desk *desk = nullptr;
    int nota = 0;
    Moment moment;
    std::string service;  ///< the words of "Tipo de Servicio"
    std::string code;     ///< its two letters
    int prestacion = 1;
    int percent = 0;
    double benefit = 0;
    double importe = 0;
    double rate = 0;
    std::string payer;
    std::string paterno, materno, nombre;
    int matricula = 0;
    std::string alumno;
    std::string expediente;
    std::string area;
    Tender tender;
    std::optional<Method> method;
    std::vector<Line> lines;
    std::optional<Admission> admission;
    std::optional<Dossier> dossier;
    std::optional<Account> account;
    std::optional<Instalment> instalment;
    std::optional<Loan> loan;
    std::optional<Moment> cancelled;

    std::string recibo() const { return std::to_string(desk->caja) + "-" + std::to_string(nota); }
};

/// Who writes down what happens.
class Writer {
public:
    virtual ~Writer() = default;
    virtual void write(const Note &note) = 0;
    virtual void write(const Admission &admission) = 0;
};

/// What a school of this size has.
struct Size {
    int notes = 2'000'000;
    int desks = 50;
    int students = 4'000;
    int years = 20;

    /// Admissions made without a note, and the shares of the kinds of notes, follow from `notes`.
    int admissionsWithoutNote() const { return notes / 20; }
};

/// Twenty years of a dental school, day by day: the same for the same seed, size and catalogues.
class School {
public:
    School(Size size, std::uint64_t seed, BulkDatabase &clinic);

    const std::vector<Desk> &desks() const { return desks_; }
    const std::vector<Name> &students() const { return students_; }
    static int matriculaOf(std::size_t student) { return 1'200'001 + static_cast<int>(student); }
    int nextFolio() const { return nextFolio_; }
    /// The next free dossier number of a campus.
    const std::map<std::string, int> &nextDossier() const { return nextDossier_; }

    /// Lives all days, in order; calls `dayDone` with the notes written so far.
    template <typename DayDone>
    void live(Writer &writer, DayDone dayDone) {
        while (written_ < size_.notes) {
            liveDay(writer);
            dayDone(written_);
        }
    }

private:
    struct Patient {
        Dossier dossier;
        Name name;
        int student = -1;
    };
    struct OpenAccount {
        std::string recibo;
        std::size_t patient = 0;
        double saldo = 0;
    };
    struct Campus {
        std::vector<Admission> waiting;  ///< authorised, without a dossier
        std::vector<Patient> patients;
        std::vector<OpenAccount> accounts;
    };

    void readCatalogues(BulkDatabase &clinic);
    void makeDesks(BulkDatabase &clinic);

    void liveDay(Writer &writer);
    void beginYear(int year);
    Desk &anyDesk();
    Note begin(Desk &desk);
    Campus &campusOf(const Desk &desk) { return campuses_[desk.valleNorte() ? 0 : 1]; }
    int area(const Desk &desk, int ofValleNorte) const {
        return desk.valleNorte() ? ofValleNorte : ofValleNorte + 50;
    }

    Note note(Desk &desk);
    void admit(Note &note);
    void openDossier(Note &note);
    void treat(Note &note, bool speciality);
    void laboratory(Note &note);
    void payAccount(Note &note);
    void chargeStudent(Note &note);
    void chargeAnybody(Note &note, bool others);

    Admission admission(const Desk &desk);
    std::size_t anyPatient(const Campus &campus);
    void chargePatient(Note &note, const Patient &patient);
    void addLines(Note &note, int tipoProd, int count);
    void pay(Note &note, double due);
    double subtotal(const Note &note) const;

    Size size_;
    Dice dice_;
    std::map<int, std::vector<Price>> prices_;
    std::map<std::string, std::vector<std::string>> places_;  ///< by centre and area
    std::map<int, std::string> areaNames_;
    std::vector<Desk> desks_;
    std::vector<int> deskShares_;
    std::vector<Name> students_;
    std::array<Campus, 2> campuses_;
    std::map<std::string, int> nextDossier_;
    int nextFolio_ = 1;
    int written_ = 0;
    int admittedWithout_ = 0;
    Day first_;
    Day today_;
    int year_ = 0;
    int second_ = 0;
    double rate_ = 0;
};

/// The year of a day.
int yearOf(Day day);
Day dayOf(int year, int month, int day);

}  // namespace kaldo::volume
