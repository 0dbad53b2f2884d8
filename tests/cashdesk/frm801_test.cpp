#include "cashdesk/frm801_incomplete_receipts.h"

#include <gtest/gtest.h>

#include <QLabel>

#include <memory>

#include "data/database_error.h"
#include "tests/support/accessibility.h"
#include "tests/support/keys.h"
#include "tests/support/test_station.h"

namespace kaldo::test {
namespace {

const QString kSound = "La información se encuentra registrada correctamente";
const QString kCounter = "Se corrigió el consecutivo de notas, vuelva a intentar";
const QString kRemoved =
    "La última nota se encontró registrada de manera incompleta, vuelva a captarla";
const QString kMoved =
    "Otra estación registró una nota de esta caja mientras tanto. No se modificó nada; revise el "
    "último folio y vuelva a intentar.";
const QString kBusy =
    "Otra estación está trabajando con la última nota de esta caja. No se modificó nada; espere "
    "un momento y vuelva a intentar.";

/// Does something once, after a statement.
class After final : public Seam {
public:
    After(QString statement, std::function<void()> act)
        : statement_(std::move(statement)), act_(std::move(act)) {}
    void afterExecution(const Execution &execution) override {
        if (act_ && execution.name == statement_) {
            std::exchange(act_, {})();
        }
    }

private:
    QString statement_;
    std::function<void()> act_;
};

/// Fails one statement once, by its name: a read at once, a write at its commit.
class FailOnce final : public Seam {
public:
    explicit FailOnce(QString statement) : statement_(std::move(statement)) {}
    void beforeExecution(const Execution &execution) override {
        if (!execution.writes) {
            fail(execution);
        }
    }
    void beforeCommit(const Execution &execution) override { fail(execution); }
    void afterExecution(const Execution &execution) override {
        // The hold on the desk isn't told by any step.
        if (execution.writes && !execution.name.endsWith("Caja")) {
            written += execution.name;
        }
    }

    QStringList written;

private:
    void fail(const Execution &execution) {
        if (!failed_ && execution.name == statement_) {
            failed_ = true;
            throw DatabaseError("fallo de prueba", {});
        }
    }

    QString statement_;
    bool failed_ = false;
};

class FRM801Test : public ::testing::Test {
protected:
    FRM801Test() : dialog(station.context) {
        station.logIn("cajero1");
        dialog.ensureBuilt();
    }

    /// What showing the dialog does, without its event loop.
    void open() {
        dialog.activated();
        showActive(&dialog);
    }
    void process() { press(Qt::Key_Return); }
    QString shownFolio() const { return child<QLabel>(&dialog, "UltimoFolio")->text(); }

    void setCounter(int nota) {
        station.caja.UDatosCaja.execute({{"nota", nota}, {"caja", station.session.NumCaja}});
    }
    int counter() {
        return valueOf(station.clinic(), "select nota_vta from datoscaja where num_caja=1").toInt();
    }
    int rows(const QString &table, int nota) {
        return valueOf(station.clinic(),
                       "select count(*) from " + table + " where num_caja=1 and nota_vta=:n",
                       {{"n", nota}})
            .toInt();
    }
    int inFinance(int nota) {
        return valueOf(station.conexion.FBFinanzas,
                       "select count(*) from recibopago where num_caja=1 and nota_vta=:n",
                       {{"n", nota}})
            .toInt();
    }
    /// The rows of a note in every table that a note writes to.
    int rowsOfNote(int nota) {
        int sum = inFinance(nota);
        for (const QString table :
             {"registrovtas", "pagos_odontologia", "formapago", "vtascontado", "detallepago",
              "metodopagonota", "detallevtas", "historicoodontologia", "admision", "expedientes"}) {
            sum += rows(table, nota);
        }
        return sum;
    }

    /// A note as its routines leave it, with the hand-over to finance.
    void registerNote(int nota, const QString &tipoServ) { registerNote(station, nota, tipoServ); }
    void registerNote(TestStation &by, int nota, const QString &tipoServ) {
        DMIngresosCaja &caja = by.caja;
        const QString expediente = tipoServ == "ADMISION" ? QString() : QString("99999/24");
        Parameters payment{
            {"p_numcaja", 1},       {"p_notavta", nota},      {"p_usuario", "cajero1"},
            {"p_importe", 150.0},   {"p_tiposerv", tipoServ}, {"p_paciente", "OLIVAS MEZA ANA"},
            {"p_tipocambio", 19.5}, {"p_pesos", 150.0},       {"p_expediente", expediente}};
        for (const QString amount :
             {"p_dolares", "p_cheque", "p_credito", "p_cambio", "p_imprestacion", "p_impdscto"}) {
            payment.append({amount, 0.0});
        }
        caja.registra_pago_odontologia_p.execute(payment);
        caja.sp_registrametodopago.execute({{"caja", 1}, {"nota", nota}, {"cve", "01"}});
        caja.spinsdetalle.execute({{"p_caja", 1},
                                   {"p_notavta", nota},
                                   {"p_codigo", 1001},
                                   {"p_cant", 1.0},
                                   {"p_precio", 150.0}});
        by.finanzas.inserta_vw_recibopago.execute({{"v_caja", 1}, {"v_nota", nota}});
    }
    /// The admission of a note; its folio.
    int registerAdmission(int nota) {
        station.odonto.FolioAdm();
        const int folio = station.odonto.FolioAdmision;
        station.odonto.registra_admision_p.execute({{"p_folio", folio},
                                                    {"p_numcaja", 1},
                                                    {"p_notavta", nota},
                                                    {"p_tipoadmision", "N"},
                                                    {"p_status", "PD"},
                                                    {"p_centro", "01"}});
        run(station.clinic(), "insert into datosgenerales (folio, paterno) values (:f, 'OLIVAS')",
            {{"f", folio}});
        run(station.clinic(), "insert into antecedentes (folio) values (:f)", {{"f", folio}});
        return folio;
    }
    int ofFolio(const QString &table, int folio) {
        return valueOf(station.clinic(), "select count(*) from " + table + " where folio=:f",
                       {{"f", folio}})
            .toInt();
    }

    TestStation station;
    FRM801 dialog;
};

TEST_F(FRM801Test, ASoundDeskIsLeftAlone) {
    open();
    EXPECT_EQ(shownFolio(), "0");
    picture(&dialog, "frm801");
    checkAccessibility(dialog);
    station.messages.expectInformation(kSound);
    process();
    EXPECT_EQ(counter(), 1);

    setCounter(0);
    open();
    process();
    EXPECT_EQ(counter(), 0) << "a desk without notes at 0 has nothing to remove";

    registerNote(1, "OTROS SERVICIOS");
    registerNote(2, "OTROS SERVICIOS");
    setCounter(3);
    open();
    EXPECT_EQ(shownFolio(), "2");
    station.messages.expectInformation(kSound);
    process();
    EXPECT_EQ(counter(), 3);
    EXPECT_EQ(rows("registrovtas", 2), 1);
}

TEST_F(FRM801Test, ACounterAheadOrFarBehindIsSetBehindTheLastNote) {
    for (int nota = 1; nota <= 4; ++nota) {
        registerNote(nota, "OTROS SERVICIOS");
    }
    for (const int wrong : {9, 2, -1, 2147483647}) {
        setCounter(wrong);
        open();
        station.messages.expectInformation(kCounter);
        process();
        EXPECT_EQ(counter(), 5) << wrong;
    }
    EXPECT_EQ(rows("registrovtas", 4), 1);
    EXPECT_EQ(valueOf(station.clinic(), "select nota_vta from datoscaja where num_caja=12"), 1);
}

TEST_F(FRM801Test, AHalfWrittenAdmissionIsRemovedWithAllThatItOpened) {
    registerNote(1, "ADMISION");
    const int kept = registerAdmission(1);
    const int before = rowsOfNote(1);
    registerNote(2, "ADMISION");
    const int folio = registerAdmission(2);
    setCounter(2);
    open();
    EXPECT_EQ(shownFolio(), "2");
    station.messages.expectInformation(kRemoved);
    process();

    EXPECT_EQ(rowsOfNote(2), 0);
    for (const QString table : {"admision", "datosgenerales", "antecedentes"}) {
        EXPECT_EQ(ofFolio(table, folio), 0) << table.toStdString();
        EXPECT_EQ(ofFolio(table, kept), 1) << table.toStdString();
    }
    EXPECT_EQ(rowsOfNote(1), before);
    EXPECT_EQ(counter(), 2);
    EXPECT_EQ(shownFolio(), "1");

    registerNote(2, "ADMISION");
    EXPECT_EQ(rows("registrovtas", 2), 1) << "the number is used again";
}

TEST_F(FRM801Test, ADossierGoesWithItsNoteAndOnlyWithANoteThatOpenedIt) {
    const auto openDossier = [this](int nota) {
        run(station.clinic(),
            "insert into expedientes (campus, expediente, num_caja, nota_vta, centro, status) "
            "values ('VAN', '99999/24', 1, :n, '01', 'AU')",
            {{"n", nota}});
    };
    registerNote(1, "APERTURA DE EXPEDIENTE");
    openDossier(1);
    setCounter(1);
    open();
    station.messages.expectInformation(kRemoved);
    process();
    EXPECT_EQ(rowsOfNote(1), 0);

    registerNote(1, "OTROS SERVICIOS");
    openDossier(1);
    open();
    station.messages.expectInformation(kRemoved);
    process();
    EXPECT_EQ(rowsOfNote(1), 1) << "the dossier";
}

TEST_F(FRM801Test, ANoteOfAnAccountingEntryIsNeverTouchedAndNothingIsSaid) {
    registerNote(1, "OTROS SERVICIOS");
    run(station.clinic(), "update registrovtas set polizaid=7 where num_caja=1");
    open();
    const int before = rowsOfNote(1);
    process();
    EXPECT_EQ(rowsOfNote(1), before);
    EXPECT_EQ(counter(), 1);
}

TEST_F(FRM801Test, AnyStepMayFailAndTheNextPressDoesTheRest) {
    const QStringList steps{"BorrarDetalleVtas", "BorrarAdmision", "SP550", "BorrarPago",
                            "FolioNota"};
    for (const QString &step : steps) {
        registerNote(1, "ADMISION");
        const int folio = registerAdmission(1);
        setCounter(1);
        open();
        FailOnce seam(step);
        station.conexion.setSeam(&seam);
        if (step == "FolioNota") {
            station.messages.expectInformation(kRemoved);
        }
        station.messages.expectError("fallo de prueba");
        process();
        EXPECT_EQ(seam.written, steps.first(steps.indexOf(step))) << step.toStdString();

        // From SP550 on the note is gone, and pressing again only takes it out of finance.
        const bool gone = steps.indexOf(step) > steps.indexOf("SP550");
        if (!gone) {
            station.messages.expectInformation(kRemoved);
        }
        process();
        station.conexion.setSeam(nullptr);
        EXPECT_EQ(ofFolio("admision", folio), 0) << step.toStdString();
        EXPECT_EQ(rowsOfNote(1), 0) << step.toStdString();
        EXPECT_EQ(counter(), 1);
        station.messages.verify();
    }
}

TEST_F(FRM801Test, TheNoteIsTheOneOfTheActivation) {
    registerNote(1, "OTROS SERVICIOS");
    setCounter(2);
    open();
    registerNote(2, "OTROS SERVICIOS");
    station.messages.expectInformation(kSound);
    process();
    EXPECT_EQ(rows("registrovtas", 2), 1);
    station.messages.expectInformation(kRemoved);
    open();
    process();
    EXPECT_EQ(rowsOfNote(2), 0);
}

TEST_F(FRM801Test, WhatAnotherStationRegistersIsNeverTouched) {
    TestStation other(station.installation->root());
    other.logIn("cajero1");
    const QString service = "OTROS SERVICIOS";
    const auto processed = [&](const QString &told) {
        station.messages.expect(
            told == kMoved || told == kBusy ? MessageKind::Warning : MessageKind::Information,
            told);
        process();
        station.messages.verify();
    };
    // A whole note since the screen was opened.
    open();
    registerNote(other, 1, service);
    setCounter(2);
    const int whole = rowsOfNote(1);
    processed(kMoved);
    EXPECT_EQ(counter(), 2);
    EXPECT_EQ(rowsOfNote(1), whole);
    EXPECT_EQ(shownFolio(), "1");
    processed(kSound);

    // A note that it writes at this moment; one that it has given up, or died over.
    for (const bool dies : {false, true}) {
        registerNote(other, 2, service);
        open();
        processed(kBusy);
        EXPECT_EQ(rowsOfNote(2), whole);
        if (dies) {
            other.conexion.FBOdonto.close();
        } else {
            other.caja.LiberaCaja.execute({{"num_caja", 1}});
        }
        processed(kRemoved);
        EXPECT_EQ(rowsOfNote(2), 0);
    }

    // The number that the repair gave back, used while its box still stands.
    registerNote(2, service);
    open();
    After seam("LiberaCaja", [&] {
        registerNote(other, 2, service);
        setCounter(3);
    });
    station.clinic().setSeam(&seam);
    processed(kRemoved);
    station.clinic().setSeam(nullptr);
    EXPECT_EQ(counter(), 3);
    EXPECT_EQ(rowsOfNote(2), whole);
    EXPECT_EQ(shownFolio(), "2");
}

TEST_F(FRM801Test, ANumberThatCouldNotBeReadIsReadBeforeAnythingIsRepaired) {
    registerNote(1, "OTROS SERVICIOS");
    setCounter(2);
    open();
    registerNote(2, "OTROS SERVICIOS");
    setCounter(3);
    FailOnce seam("UltimaNota");
    station.conexion.setSeam(&seam);
    EXPECT_THROW(dialog.activated(), DatabaseError);
    station.conexion.setSeam(nullptr);
    EXPECT_EQ(shownFolio(), "");
    station.messages.expectInformation(kSound);
    process();
    EXPECT_EQ(shownFolio(), "2");
    EXPECT_EQ(counter(), 3);
}

TEST_F(FRM801Test, TheOtherBranchLeavesFinanceAlone) {
    registerNote(1, "OTROS SERVICIOS");
    station.session.ClienteSql = QString("Informix");
    open();
    station.messages.expectInformation(kRemoved);
    process();
    EXPECT_EQ(rows("registrovtas", 1), 0);
    EXPECT_EQ(inFinance(1), 1);
}

}  // namespace
}  // namespace kaldo::test
