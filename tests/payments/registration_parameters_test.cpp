#include "payments/registration_parameters.h"
#include "people/clinical_history.h"
#include "tests/payments/sample_note.h"

#include <gtest/gtest.h>

namespace kaldo {
namespace {

using test::noteDraft;
using test::noteLine;
using test::paidWith;

RegistrationContext context() {
    return {4, "RMORALES", "MA", "01", "1", "", QDate(2026, 11, 22), {}};
}

QVariant valueOf(const Parameters &parameters, const char *name) {
    for (const auto &[key, value] : parameters) {
        if (key.compare(QLatin1String(name), Qt::CaseInsensitive) == 0) {
            return value;
        }
    }
    ADD_FAILURE() << "no parameter " << name;
    return {};
}

QString noteText(const NoteDraft &draft, const char *name) {
    return valueOf(noteParameters(draft, paidWith(draft, 0, 0, 500), context()), name).toString();
}

TEST(Registration, TheNoteIsHandedOverWhole) {
    const NoteDraft draft = noteDraft("AD - ADMISION", {noteLine(2, 250.25)});
    const Payment payment = paidWith(draft, 100, 10, 300);  // 585.00 for 500.50
    const Parameters note = noteParameters(draft, payment, context());
    ASSERT_EQ(note.size(), 29);
    EXPECT_EQ(note.first().first, "P_NUMCAJA");
    EXPECT_EQ(note.last().first, "P_NOMBRE");
    EXPECT_EQ(valueOf(note, "P_NOTAVTA"), 1532);
    EXPECT_EQ(valueOf(note, "P_IMPORTE"), 500.5);
    EXPECT_EQ(valueOf(note, "P_TIPOSERV"), "ADMISION");
    EXPECT_EQ(valueOf(note, "P_PACIENTE"), "LÓPEZ MARTÍNEZ ANA");
    EXPECT_EQ(valueOf(note, "P_MATRICULA"), 0);
    EXPECT_EQ(valueOf(note, "P_CAMBIO"), 84.5);
    EXPECT_EQ(valueOf(note, "P_PESOS"), 215.5);
    EXPECT_EQ(valueOf(note, "P_DOLARES"), 10.0);
    EXPECT_EQ(valueOf(note, "P_CREDITO"), 100.0);
    EXPECT_EQ(valueOf(note, "P_TIPOCAMBIO"), 18.5);
    EXPECT_EQ(valueOf(note, "P_TIPOCTE"), 1);
    for (const auto &[name, value] : note) {
        EXPECT_TRUE(value.isValid()) << name.toStdString();
    }
}

TEST(Registration, ComposedTextsAreCutToTheirParameter) {
    NoteDraft draft = noteDraft("EX - EXAMENES DE ESPECIALIDADES", {noteLine(1, 500)});
    EXPECT_EQ(noteText(draft, "P_TIPOSERV"), "EXAMENES DE ESPECIALIDADE");
    draft.payer.paterno = QString(40, 'P');
    draft.payer.materno = QString(40, 'M');
    EXPECT_EQ(noteText(draft, "P_PACIENTE").size(), 80);
    EXPECT_EQ(noteText(draft, "P_PATERNO").size(), 40);
}

TEST(Registration, TheNoteCarriesWhoPays) {
    NoteDraft draft = noteDraft("VA - VARIOS", {noteLine(1, 500)});
    draft.payer.matricula = "";
    EXPECT_EQ(noteText(draft, "P_PACIENTE"), "LÓPEZ MARTÍNEZ ANA");
    draft.payer.matricula = "20231234";
    draft.payer.alumno = " RUIZ SOTO EVA ";
    EXPECT_EQ(noteText(draft, "P_PACIENTE"), "RUIZ SOTO EVA");
    EXPECT_EQ(noteText(draft, "P_NOMBRE"), " RUIZ SOTO EVA ");
    EXPECT_EQ(noteText(draft, "P_MATRICULA"), "20231234");
    draft.payer.noEmpleado = "77";
    draft.payer.nombreEmpleado = "SAENZ LEAL OMAR ";
    EXPECT_EQ(noteText(draft, "P_PACIENTE"), "SAENZ LEAL OMAR");
    EXPECT_EQ(noteText(draft, "P_NOMBRE"), "SAENZ LEAL OMAR ");
    for (const char *service : {"AE", "AP", "ES", "LE"}) {
        draft.service.tipoServ = service;
        draft.payer.expediente = "00015/23";
        EXPECT_EQ(noteText(draft, "P_PACIENTE"), "LÓPEZ MARTÍNEZ ANA") << service;
        EXPECT_EQ(noteText(draft, "P_NOMBRE"), "ANA") << service;
    }
    draft.payer.matricula = "12-";
    EXPECT_THROW(noteText(draft, "P_MATRICULA"), NotANumber);
}

TEST(Registration, ChargesTheAdvanceWhereOneWasTaken) {
    const NoteDraft draft = noteDraft("AP - SERVICIOS DE CLINICA", {noteLine(1, 1000)}, 0, "S");
    Payment payment = openPayment(draft, 18.5);
    EXPECT_FALSE(advanceTaken(draft, payment));
    EXPECT_EQ(importeOfNote(draft, payment), 1000);
    // An advance of 300 makes both totals 300.
    NoteDraft advanced = draft;
    advanced.amounts.importeTotal = payment.importeTotal = payment.cantidadAnticipo = 300;
    EXPECT_TRUE(advanceTaken(advanced, payment));
    EXPECT_EQ(importeOfNote(advanced, payment), 300);

    const NoteDraft covered = noteDraft("OT - OTROS", {noteLine(1, 1000)}, 100);
    EXPECT_EQ(importeOfNote(covered, openPayment(covered, 18.5)), 1000);
}

TEST(Registration, KeepsPesosNetOnlyOfASmallerChange) {
    Payment payment;
    payment.cambio = 600;
    payment.pesos = 500;
    EXPECT_EQ(pesosKept(payment), 500);
    payment.pesos = 600;
    EXPECT_EQ(pesosKept(payment), 600);
    payment.pesos = 700;
    EXPECT_EQ(pesosKept(payment), 100);
    payment.pesos = 0;
    EXPECT_EQ(pesosKept(payment), 0);
}

TEST(Registration, BenefitComesFromTheDialogOnADossier) {
    NoteDraft draft = noteDraft("AP - SERVICIOS DE CLINICA", {noteLine(1, 1000)}, 30);
    Payment payment = openPayment(draft, 18.5);
    payment.prestacion = 120;  // of an advance of 400
    EXPECT_EQ(valueOf(noteParameters(draft, payment, context()), "P_IMPRESTACION"), 300.0);
    draft.payer.prestacionExpediente = 2;
    EXPECT_EQ(valueOf(noteParameters(draft, payment, context()), "P_IMPRESTACION"), 120.0);
    EXPECT_EQ(valueOf(noteParameters(draft, payment, context()), "P_IMPDSCTO"), 120.0);
}

TEST(Registration, OnlyAnAdmissionNoteCreatesOne) {
    int creating = 0;
    for (const QString &row : serviceTypeRows(false)) {
        creating += createsAdmission(noteDraft(row, {})) ? 1 : 0;
    }
    EXPECT_EQ(creating, 1);
    NoteDraft draft = noteDraft("AD - ADMISION", {noteLine(1, 80)});
    EXPECT_TRUE(createsAdmission(draft));

    Parameters admission = admissionParameters(newAdmission(draft, context(), 345));
    EXPECT_EQ(admission.size(), 16);
    EXPECT_EQ(valueOf(admission, "P_STATUS"), "PD");
    for (const char *null : {"P_MATRICULA", "P_CANALIZADOA", "P_NIVELGLUCOSA"}) {
        EXPECT_FALSE(valueOf(admission, null).isValid()) << null;
    }
    EXPECT_TRUE(valueOf(admission, "P_ALUMNO").isValid());

    Parameters general = generalDataParameters(newAdmission(draft, context(), 345));
    EXPECT_EQ(general.size(), 30);
    EXPECT_EQ(valueOf(general, "EDAD"), 0);
    EXPECT_EQ(valueOf(general, "TIPOPACIENTE"), "");
    EXPECT_FALSE(valueOf(general, "FECHA_NAC").isValid());
    EXPECT_EQ(valueOf(general, "NOMBRE"), "LÓPEZ MARTÍNEZ ANA");

    draft.payer.nacimiento = Birth{QDate(2018, 4, 30), 8, "I"};
    draft.payer.sexo = Sex::Masculino;
    general = generalDataParameters(newAdmission(draft, context(), 345));
    EXPECT_EQ(valueOf(admissionParameters(newAdmission(draft, context(), 345)), "P_STATUS"), "AU");
    EXPECT_EQ(valueOf(general, "EDAD"), 8);
    EXPECT_EQ(valueOf(general, "TIPOPACIENTE"), "I");
    EXPECT_EQ(valueOf(general, "FECHA_NAC").toDate(), QDate(2018, 4, 30));
    EXPECT_EQ(valueOf(general, "SEXO"), "M");
    EXPECT_FALSE(valueOf(general, "COD_POSTAL").isValid());
}

TEST(Registration, ANewAdmissionHasAnEmptyHistory) {
    const Parameters history = emptyClinicalHistory(345);
    ASSERT_EQ(history.size(), 97);
    EXPECT_EQ(history.first().second, 345);
    int answers = 0;
    int nulls = 0;
    for (const auto &[name, value] : history) {
        answers += value == QVariant("N") ? 1 : 0;
        nulls += value.isValid() ? 0 : 1;
    }
    EXPECT_EQ(nulls, 1);
    EXPECT_EQ(answers, 62);
    EXPECT_FALSE(valueOf(history, "nivelglucosa").isValid());
    EXPECT_EQ(valueOf(history, "linealba"), "N");
    EXPECT_EQ(valueOf(history, "tama7oaumentado"), "N");
    EXPECT_EQ(valueOf(history, "alimento"), "");
}

TEST(Registration, OneMethodOfPaymentPerNote) {
    const NoteDraft draft = noteDraft("OT - OTROS", {noteLine(1, 500)});
    const auto method = [&](double card, double dollars, double pesos) {
        return methodOfPaymentParameters(draft, paidWith(draft, card, dollars, pesos), context());
    };
    Parameters sent = method(0, 30, 0);  // 555.00
    EXPECT_EQ(valueOf(sent, "CVE"), "01");
    EXPECT_EQ(valueOf(sent, "IMPORTE"), 500.0);
    EXPECT_EQ(valueOf(sent, "MONEDA"), "USD");
    EXPECT_EQ(valueOf(sent, "TIPOCAMBIO"), 18.5);
    sent = method(0, 10, 400);  // 585.00
    EXPECT_EQ(valueOf(sent, "IMPORTE"), 315.0);
    EXPECT_EQ(valueOf(sent, "MONEDA"), "MXN");
    EXPECT_EQ(valueOf(sent, "TIPOCAMBIO"), 0.0);
    sent = method(200, 10, 400);
    EXPECT_EQ(valueOf(sent, "CVE"), "04");
    EXPECT_EQ(valueOf(sent, "IMPORTE"), 200.0);
    Payment debit = paidWith(draft, 500, 0, 0);
    debit.tipoDeTarjeta = CardKind::Debito;
    EXPECT_EQ(valueOf(methodOfPaymentParameters(draft, debit, context()), "CVE"), "28");

    sent = method(0, 0, 0);  // a cheque, or nothing to pay: what stood stays
    EXPECT_FALSE(valueOf(sent, "CVE").isValid());
    RegistrationContext later = context();
    later.ultimoMetodo = methodOfPayment(debit, {});
    sent = methodOfPaymentParameters(draft, paidWith(draft, 0, 0, 0), later);
    EXPECT_EQ(valueOf(sent, "CVE"), "28");
    EXPECT_EQ(valueOf(sent, "IMPORTE"), 500.0);
    EXPECT_EQ(valueOf(sent, "NOTA"), 1532);
    EXPECT_EQ(valueOf(sent, "CTADESTINO"), "");
}

TEST(Registration, LinesAndHistory) {
    NoteDraft draft = noteDraft("LE - LABORATORIOS EXTERNOS", {noteLine(3, 100), noteLine(1, 50)});
    draft.payer.expediente = "00015/23";
    draft.payer.matricula = "20231234";
    draft.service.lugarArea = "07";
    draft.lines[0].porcentaje = 120;
    Payment payment = paidWith(draft, 0, 0, 350);
    const NoteLine &line = draft.lines.first();
    Parameters sent = lineParameters(draft, payment, context(), line);
    EXPECT_EQ(sent.size(), 15);
    EXPECT_EQ(valueOf(sent, "P_CANT"), 3.0);
    EXPECT_EQ(valueOf(sent, "P_PRECIO"), 100.0);
    EXPECT_EQ(valueOf(sent, "P_PROG"), 123);
    EXPECT_EQ(valueOf(sent, "P_DESADIC"), " ");
    EXPECT_EQ(valueOf(sent, "P_FONDO"), "11");
    EXPECT_EQ(valueOf(sent, "P_FTEFTO"), 1400);
    EXPECT_EQ(valueOf(sent, "P_AREACTR"), "LE");

    payment.importeAPagar = 140;  // an advance: the share is the price
    sent = lineParameters(draft, payment, context(), line);
    EXPECT_EQ(valueOf(sent, "P_CANT"), 1.0);
    EXPECT_EQ(valueOf(sent, "P_PRECIO"), 120.0);
    draft.service.row = "AP - SERVICIOS DE CLINICA";
    EXPECT_EQ(valueOf(lineParameters(draft, payment, context(), line), "P_PRECIO"), 100.0);

    const Parameters history = historyParameters(draft, context(), line);
    EXPECT_EQ(history.size(), 13);
    EXPECT_EQ(valueOf(history, "P_CANT"), 3.0);
    EXPECT_EQ(valueOf(history, "P_MATRICULA"), 20231234);
    EXPECT_EQ(valueOf(history, "P_AREACTR"), "07");
    NoteLine keyless = line;
    keyless.cveProd.reset();
    EXPECT_FALSE(valueOf(historyParameters(draft, context(), keyless), "P_CVE_PROD").isValid());
    NoteLine broken = line;
    broken.prog = "A1";
    EXPECT_THROW(lineParameters(draft, payment, context(), broken), NotANumber);
}

TEST(Registration, MunicipalityLetterStaysForOtherCampuses) {
    EXPECT_EQ(mpioOf("2", ""), "M");
    EXPECT_EQ(mpioOf("3", "M"), "T");
    EXPECT_EQ(mpioOf("1", "M"), "M");
    EXPECT_EQ(mpioOf("1", ""), "");
}

}  // namespace
}  // namespace kaldo
