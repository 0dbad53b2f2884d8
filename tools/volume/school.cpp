#include "tools/volume/school.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <numeric>
#include <stdexcept>

namespace kaldo::volume {

namespace {

constexpr int kOpens = 8 * 3600;
constexpr int kOpenSeconds = 12 * 3600;
constexpr int kFirstDossierOfYear = 101;  ///< the example school has the first ones
constexpr int kPlainPatient = 1;
constexpr int kEmployee = 2;
constexpr int kTaxUnits = 10'000;

// The sales areas of Valle Norte; those of Costa Sur lie 50 higher.
constexpr int kAreaAdmission = 1;
constexpr int kAreaDossier = 2;
constexpr int kAreaChildren = 3;
constexpr int kAreaAdults = 4;
constexpr int kAreaOthers = 5;
constexpr int kAreaPublic = 6;
constexpr int kAreaLaboratory = 7;
constexpr int kAreaStudents = 8;
constexpr int kAreaAccount = 22;
constexpr std::array<int, 5> kSpecialities = {14, 15, 16, 17, 18};

const std::chrono::sys_days kDayZero =
    std::chrono::sys_days(std::chrono::year(2000) / std::chrono::January / 1);
/// The last day of the school: fixed, so that a seed means the same rows on any day.
const Day kLastDay = dayOf(2026, 10, 31);

double rounded(double amount) {
    return std::round(amount * kTaxUnits) / kTaxUnits;
}

bool isSunday(Day day) {
    return std::chrono::weekday(kDayZero + std::chrono::days(day.number)) == std::chrono::Sunday;
}

int integerOf(const std::string &text, int otherwise = 0) {
    return text.empty() ? otherwise : std::stoi(text);
}

double numberOf(const std::string &text) {
    return text.empty() ? 0 : std::stod(text);
}

std::string dossierNumber(int counter, int year) {
    std::string digits = std::to_string(counter);
    digits.insert(0, digits.size() < 5 ? 5 - digits.size() : 0, '0');
    return digits + "/" + std::to_string(year).substr(2);
}

}  // namespace

int yearOf(Day day) {
    return static_cast<int>(
        std::chrono::year_month_day(kDayZero + std::chrono::days(day.number)).year());
}

Day dayOf(int year, int month, int day) {
    const std::chrono::sys_days sys = std::chrono::year(year) /
                                      std::chrono::month(static_cast<unsigned>(month)) /
                                      std::chrono::day(static_cast<unsigned>(day));
    return {static_cast<int>(
        (sys - std::chrono::sys_days(std::chrono::year(2000) / std::chrono::January / 1)).count())};
}

School::School(Size size, std::uint64_t seed, BulkDatabase &clinic)
    : size_(size),
      dice_(seed),
      first_{kLastDay.number - static_cast<int>(size.years * 365.25)},
      today_{first_.number - 1} {
    readCatalogues(clinic);
    makeDesks(clinic);
    for (int n = 0; n < size_.students; ++n) {
        students_.push_back(anyName(dice_));
    }
}

void School::readCatalogues(BulkDatabase &clinic) {
    for (const auto &row : clinic.rows(
             "select codigo, tipo_prod, cve_prod, descr, menudeo, prog, subsubcta, tipodeiva, "
             "porcentajeiva, clasificacioniva, claveprodserv from listaprecios where vigente = 'S' "
             "order by codigo")) {
        Price price{std::stoi(row[0]),
                    std::stoi(row[1]),
                    integerOf(row[2]),
                    row[3],
                    numberOf(row[4]),
                    integerOf(row[5]),
                    integerOf(row[6]),
                    row[7],
                    numberOf(row[8]),
                    integerOf(row[9]),
                    row[10]};
        prices_[price.tipoProd].push_back(std::move(price));
    }
    for (const auto &row : clinic.rows(
             "select centro, tipo_prod, area from areatencion order by centro, tipo_prod, area")) {
        places_[row[0] + "/" + row[1]].push_back(row[2]);
    }
    for (const auto &row : clinic.rows("select tipo_prod, descr from areaventa")) {
        areaNames_[std::stoi(row[0])] = row[1];
    }
    nextFolio_ = std::stoi(clinic.rows("select folioad from control where llave = '1'")[0][0]);
    if (prices_[kAreaAdults].empty() || prices_[kAreaAdults + 50].empty()) {
        throw std::runtime_error("the volume stands on the example school's catalogues");
    }
}

void School::makeDesks(BulkDatabase &clinic) {
    for (const auto &row : clinic.rows(
             "select d.num_caja, d.nota_vta, d.campus, u.centro, u.origen, u.usuario, u.turno, "
             "d.bancomn, d.bancodll, d.sistemaid, d.paqueteid from datoscaja d join "
             "controlusuarios u on u.num_caja = cast(d.num_caja as varchar(10)) and u.acceso = "
             "'CA' and u.turno <> 'VE' order by d.num_caja")) {
        if (row[1] != "1") {
            throw std::runtime_error("this installation has notes already");
        }
        desks_.push_back({std::stoi(row[0]), 1, row[2], row[3], row[4], row[5], row[6],
                          integerOf(row[7]), integerOf(row[8]), integerOf(row[9]), row[10]});
    }
    const std::vector<Desk> models = desks_;
    for (int caja = 1; static_cast<int>(desks_.size()) < size_.desks; ++caja) {
        const auto known = [caja](const Desk &desk) { return desk.caja == caja; };
        if (std::none_of(desks_.begin(), desks_.end(), known)) {
            Desk desk = models[static_cast<std::size_t>(caja) % models.size()];
            desk.caja = caja;
            desk.usuario = "caja" + std::to_string(caja);
            desk.turno = "CO";
            desks_.push_back(desk);
        }
    }
    std::sort(desks_.begin(), desks_.end(),
              [](const Desk &left, const Desk &right) { return left.caja < right.caja; });
    // The first desk takes one note out of five, the last ones some each day.
    for (std::size_t at = 0; at < desks_.size(); ++at) {
        const int share = 1000 / static_cast<int>(at + 1);
        deskShares_.push_back(share + (deskShares_.empty() ? 0 : deskShares_.back()));
    }
}

void School::liveDay(Writer &writer) {
    ++today_.number;
    if (yearOf(today_) != year_) {
        beginYear(yearOf(today_));
    }
    if (isSunday(today_)) {
        return;
    }
    const int days = kLastDay.number - first_.number;
    const int passed = today_.number - first_.number + 1;
    const auto due = [&](int whole) {
        return passed >= days ? whole
                              : static_cast<int>(static_cast<std::int64_t>(whole) * passed / days);
    };
    const int notes = due(size_.notes) - written_;
    for (int n = 0; n < notes; ++n) {
        second_ = kOpens + static_cast<int>(static_cast<std::int64_t>(kOpenSeconds) * n / notes);
        for (; admittedWithout_ < due(size_.admissionsWithoutNote()) && n % 20 == 0;
             ++admittedWithout_) {
            const Desk &desk = anyDesk();
            const Admission made = admission(desk);
            writer.write(made);
            if (made.status == "AU") {
                campusOf(desk).waiting.push_back(made);
            }
        }
        Desk &desk = anyDesk();
        writer.write(note(desk));
        ++desk.nextNote;
        ++written_;
    }
}

void School::beginYear(int year) {
    year_ = year;
    rate_ = rounded(11 + 0.4 * (year - 2006) + dice_.below(10000) / 10000.0);
    for (const char *campus : {"VAN", "COS"}) {
        nextDossier_[campus] = kFirstDossierOfYear;
    }
}

Desk &School::anyDesk() {
    const int at = dice_.below(deskShares_.back());
    const auto found = std::upper_bound(deskShares_.begin(), deskShares_.end(), at);
    return desks_[static_cast<std::size_t>(found - deskShares_.begin())];
}

Note School::begin(Desk &desk) {
    Note note;
    note.desk = &desk;
    note.nota = desk.nextNote;
    note.moment = {today_, second_};
    note.rate = rate_;
    return note;
}

Note School::note(Desk &desk) {
    Note made = begin(desk);
    const Campus &campus = campusOf(desk);
    const int kind = dice_.below(100);
    if (kind < 20 || campus.waiting.empty()) {
        admit(made);
    } else if (kind < 35 || campus.patients.empty()) {
        openDossier(made);
    } else if (kind < 40 && !campus.accounts.empty()) {
        payAccount(made);
    } else if (kind < 45 && desk.valleNorte()) {
        laboratory(made);
    } else if (kind < 53 && desk.centro == "02") {
        treat(made, true);
    } else if (kind < 91) {
        treat(made, false);
    } else if (kind < 95) {
        chargeStudent(made);
    } else {
        chargeAnybody(made, kind < 97);
    }
    const bool reversible = !made.admission && !made.dossier && !made.account && !made.instalment;
    if (reversible && dice_.percent(2)) {
        made.cancelled = Moment{today_, std::min(second_ + 600, kOpens + kOpenSeconds)};
    }
    return made;
}

Admission School::admission(const Desk &desk) {
    Admission made;
    made.folio = nextFolio_++;
    made.moment = {today_, second_};
    made.centro = desk.centro;
    made.name = anyName(dice_);
    made.status = dice_.percent(88) ? "AU" : "PD";
    if (made.status == "AU") {
        const int days = dice_.percent(22) ? dice_.between(2 * 365, 13 * 365)
                                           : dice_.between(14 * 366, 85 * 365);
        made.birth = Day{today_.number - days};
        made.age = static_cast<int>(days / 365.25);
        made.tipoPaciente = made.age <= 13 ? "I" : "A";
    }
    return made;
}

void School::admit(Note &note) {
    note.service = "ADMISION";
    note.code = "AD";
    Admission made = admission(*note.desk);
    made.caja = note.desk->caja;
    made.nota = note.nota;
    note.paterno = paternoOf(made.name);
    note.materno = maternoOf(made.name);
    note.nombre = givenOf(made.name);
    note.payer = wholeOf(made.name);
    addLines(note, area(*note.desk, kAreaAdmission), 1);
    pay(note, subtotal(note));
    if (made.status == "AU") {
        campusOf(*note.desk).waiting.push_back(made);
    }
    note.admission = std::move(made);
}

void School::openDossier(Note &note) {
    note.service = "APERTURA DE EXPEDIENTE";
    note.code = "AE";
    Campus &campus = campusOf(*note.desk);
    // Mostly somebody admitted lately.
    const int back = dice_.nearZero(static_cast<int>(campus.waiting.size()));
    const std::size_t at = campus.waiting.size() - 1 - static_cast<std::size_t>(back);
    const Admission admission = campus.waiting[at];
    campus.waiting[at] = campus.waiting.back();
    campus.waiting.pop_back();

    Patient patient;
    patient.name = admission.name;
    patient.dossier = {dossierNumber(nextDossier_[note.desk->origen]++, year_),
                       admission.folio,
                       dice_.percent(4) ? kEmployee : kPlainPatient,
                       admission.centro,
                       note.desk->origen,
                       admission.name};
    if (dice_.percent(60)) {
        patient.student =
            static_cast<int>(static_cast<std::int64_t>(students_.size()) * written_ / size_.notes);
    }
    chargePatient(note, patient);
    note.prestacion = kPlainPatient;
    note.dossier = patient.dossier;
    addLines(note, area(*note.desk, kAreaDossier), 1);
    pay(note, subtotal(note));
    campus.patients.push_back(std::move(patient));
}

std::size_t School::anyPatient(const Campus &campus) {
    // Mostly those of the last months.
    return campus.patients.size() - 1 -
           static_cast<std::size_t>(dice_.nearZero(static_cast<int>(campus.patients.size())));
}

void School::chargePatient(Note &note, const Patient &patient) {
    note.expediente = patient.dossier.number;
    note.paterno = paternoOf(patient.name);
    note.materno = maternoOf(patient.name);
    note.nombre = givenOf(patient.name);
    note.payer = wholeOf(patient.name);
    note.prestacion = patient.dossier.prestacion;
    if (patient.student >= 0) {
        const auto student = static_cast<std::size_t>(patient.student);
        note.matricula = matriculaOf(student);
        note.alumno = wholeOf(students_[student]);
    }
}

void School::treat(Note &note, bool speciality) {
    note.service = speciality ? "ESPECIALIDADES" : "SERVICIOS DE CLINICA";
    note.code = speciality ? "ES" : "AP";
    const Campus &campus = campusOf(*note.desk);
    const Patient &patient = campus.patients[anyPatient(campus)];
    chargePatient(note, patient);
    const int tipoProd = speciality
                             ? kSpecialities[static_cast<std::size_t>(
                                   dice_.below(static_cast<int>(kSpecialities.size())))]
                             : area(*note.desk, dice_.percent(20) ? kAreaChildren : kAreaAdults);
    const auto place = places_.find(note.desk->centro + "/" + std::to_string(tipoProd));
    if (place != places_.end()) {
        note.area = place->second[static_cast<std::size_t>(
            dice_.below(static_cast<int>(place->second.size())))];
    }
    addLines(note, tipoProd, dice_.between(2, 8));
    const double whole = subtotal(note);
    if (note.prestacion == kEmployee) {
        note.percent = 50;
        note.benefit = rounded(whole * note.percent / 100);
    }
    pay(note, rounded(whole - note.benefit));
    if (patient.student >= 0 && dice_.percent(5)) {
        note.loan = Loan{today_, {}};
        if (today_.number < kLastDay.number - 30 && dice_.percent(99)) {
            note.loan->returned = Day{today_.number + dice_.between(1, 14)};
        }
    }
}

void School::laboratory(Note &note) {
    note.service = "LABORATORIOS EXTERNOS";
    note.code = "LE";
    Campus &campus = campusOf(*note.desk);
    const std::size_t at = anyPatient(campus);
    chargePatient(note, campus.patients[at]);
    note.prestacion = kPlainPatient;
    addLines(note, kAreaLaboratory, dice_.between(1, 3));
    const double whole = subtotal(note);
    const double paid = rounded(std::floor(whole / 2));
    Account account{whole, paid, note.lines.front().price->descr, areaNames_[kAreaLaboratory]};
    pay(note, paid);
    campus.accounts.push_back({note.recibo(), at, rounded(whole - paid)});
    note.account = std::move(account);
}

void School::payAccount(Note &note) {
    note.service = "ABONO A CUENTA";
    note.code = "AB";
    Campus &campus = campusOf(*note.desk);
    const std::size_t at =
        campus.accounts.size() - 1 -
        static_cast<std::size_t>(dice_.nearZero(static_cast<int>(campus.accounts.size())));
    OpenAccount &account = campus.accounts[at];
    chargePatient(note, campus.patients[account.patient]);
    note.prestacion = kPlainPatient;
    const double amount =
        account.saldo <= 300 ? account.saldo : rounded(std::floor(account.saldo / 2));
    note.instalment = Instalment{account.recibo, account.saldo, amount};
    addLines(note, kAreaAccount, 1);
    note.lines.front().precio = amount;
    pay(note, amount);
    account.saldo = rounded(account.saldo - amount);
    if (account.saldo <= 0) {
        account = campus.accounts.back();
        campus.accounts.pop_back();
    }
}

void School::chargeStudent(Note &note) {
    note.service = "ALUMNOS";
    note.code = "AL";
    const auto student = static_cast<std::size_t>(dice_.below(static_cast<int>(students_.size())));
    note.matricula = matriculaOf(student);
    note.alumno = wholeOf(students_[student]);
    note.payer = note.alumno;
    note.nombre = note.alumno;
    addLines(note, area(*note.desk, kAreaStudents), dice_.between(1, 3));
    pay(note, subtotal(note));
}

void School::chargeAnybody(Note &note, bool others) {
    note.service = others ? "OTROS" : "PUBLICO GENERAL";
    note.code = others ? "OT" : "PG";
    const Name name = anyName(dice_);
    note.paterno = paternoOf(name);
    note.materno = maternoOf(name);
    note.nombre = givenOf(name);
    note.payer = wholeOf(name);
    addLines(note, area(*note.desk, others ? kAreaOthers : kAreaPublic), dice_.between(1, 3));
    pay(note, subtotal(note));
}

void School::addLines(Note &note, int tipoProd, int count) {
    const std::vector<Price> &prices = prices_.at(tipoProd);
    const int known = static_cast<int>(prices.size());
    // Neighbours from a place on: no item twice, and many notes with the same items.
    const int from = dice_.below(known);
    for (int n = 0; n < std::min(count, known); ++n) {
        const Price &price = prices[static_cast<std::size_t>((from + n) % known)];
        const double precio = price.menudeo > 0 ? price.menudeo : 50;
        note.lines.push_back({&price, dice_.percent(85) ? 1 : dice_.between(2, 4), precio});
    }
}

double School::subtotal(const Note &note) const {
    return rounded(std::accumulate(
        note.lines.begin(), note.lines.end(), 0.0,
        [](double sum, const Line &line) { return sum + line.cant * line.precio; }));
}

void School::pay(Note &note, double due) {
    note.importe = due;
    Tender &tender = note.tender;
    const int way = dice_.below(100);
    if (way < 84) {
        tender.pesos = due;
        tender.cambio = rounded(std::ceil(due / 50) * 50 - due);
        note.method = Method{"01", due, "MXN", 0};
    } else if (way < 95) {
        tender.credito = due;
        note.method = Method{way < 90 ? "04" : "28", due, "MXN", 0};
    } else if (way < 99) {
        tender.dolares = std::ceil(due / rate_);
        tender.cambio = rounded(tender.dolares * rate_ - due);
        note.method = Method{"01", tender.dolares * rate_ - tender.cambio, "USD", rate_};
    } else {
        tender.cheque = due;
        tender.numCheque = std::to_string(dice_.between(1000, 9999));
    }
}

}  // namespace kaldo::volume
