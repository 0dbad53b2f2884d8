#include "tools/demo/road.h"

#include <stdexcept>

namespace kaldo {

namespace {

const QString kNote = QStringLiteral("FRM401");
const QString kPayment = QStringLiteral("FRM401_3");
const QString kRegistered = QStringLiteral("La información ha sido registrada correctamente");

void logIn(KeyScript &script, const QString &user, const QString &password) {
    script.at(QStringLiteral("FRMAcceso"), QStringLiteral("Edit1"))
        .picture(QStringLiteral("login"))
        .type(user)
        .enter()
        .at(QStringLiteral("FRMAcceso"), QStringLiteral("Edit2"))
        .type(password)
        .enter()
        .at(QStringLiteral("FRM000"))
        .picture(QStringLiteral("main-window"));
}

/// "Tipo de Servicio" by the first letters of its row, and the sales area by the beginning of its
/// name.
void chooseService(KeyScript &script, const QString &letters, const QString &area) {
    script.at(kNote, QStringLiteral("ComboBox1"))
        .type(letters)
        .enter()
        .at(kNote, QStringLiteral("ComboBox2"))
        .type(area)
        .enter();
}

void addLine(KeyScript &script, const QString &key, const QString &quantity) {
    script.at(kNote, QStringLiteral("AgregarRegistro"))
        .enter()
        .at(kNote, QStringLiteral("Detalle"))
        .type(key)
        .enter()
        .enter()
        .type(quantity)
        .enter()
        .at(kNote, QStringLiteral("AgregarRegistro"));
}

void openPayment(KeyScript &script, const QString &pictureName) {
    script.picture(pictureName).alt('r').at(kPayment, QStringLiteral("CEdit4"));
}

/// The accepted payment, the box that tells of it, and the next fresh note.
void accept(KeyScript &script, const QString &pictureName) {
    script.at(kPayment, QStringLiteral("ImprimirRecibo"))
        .picture(pictureName)
        .enter()
        .atBox(kRegistered)
        .enter()
        .at(kNote, QStringLiteral("ComboBox1"));
}

void payInPesos(KeyScript &script, const QString &pesos, const QString &pictureName) {
    script.type(pesos).enter();
    accept(script, pictureName);
}

void admissionInThreeTenders(KeyScript &script) {
    chooseService(script, QStringLiteral("AD"), QStringLiteral("ADMISION"));
    script.at(kNote, QStringLiteral("Paterno"))
        .type(QStringLiteral("garcía"))
        .enter()
        .type(QStringLiteral("núñez"))
        .enter()
        .type(QStringLiteral("maría fernanda"))
        .enter();
    addLine(script, QStringLiteral("1"), QStringLiteral("1"));
    openPayment(script, QStringLiteral("admission-note"));
    script.press(Qt::Key_Up)
        .press(Qt::Key_Up)
        .at(kPayment, QStringLiteral("CEdit2"))
        .type(QStringLiteral("5"))
        .atBox(QStringLiteral("Seleccione un tipo de tarjeta"))
        .enter()
        .at(kPayment, QStringLiteral("RadioGroup2"))
        .enter()
        .at(kPayment, QStringLiteral("CEdit2"))
        .type(QStringLiteral("50"))
        .enter()
        .at(kPayment, QStringLiteral("CEdit3"))
        .type(QStringLiteral("3"))
        .enter()
        .at(kPayment, QStringLiteral("CEdit4"))
        .type(QStringLiteral("100"))
        .enter();
    accept(script, QStringLiteral("admission-payment"));
}

void studentNote(KeyScript &script) {
    chooseService(script, QStringLiteral("AL"), QStringLiteral("ALUMNOS"));
    script.at(kNote, QStringLiteral("Matricula")).type(QStringLiteral("1100001")).enter();
    addLine(script, QStringLiteral("9"), QStringLiteral("2"));
    addLine(script, QStringLiteral("10"), QStringLiteral("1"));
    openPayment(script, QStringLiteral("student-note"));
    payInPesos(script, QStringLiteral("200"), QStringLiteral("student-payment"));
}

void dossierNote(KeyScript &script) {
    chooseService(script, QStringLiteral("AP"), QStringLiteral("ADULTOS"));
    script.at(kNote, QStringLiteral("ComboBox3"))
        .type(QStringLiteral("CLINICA DE ADULTOS I"))
        .enter()
        .at(kNote, QStringLiteral("Edit2"))
        .type(QStringLiteral("1/24"))
        .enter()
        .atBox(QStringLiteral("Desea usar la información seleccionada de"))
        .picture(QStringLiteral("dossier-question"))
        .enter()
        .at(kNote, QStringLiteral("Matricula"))
        .type(QStringLiteral("1100002"))
        .enter();
    addLine(script, QStringLiteral("4"), QStringLiteral("2"));
    openPayment(script, QStringLiteral("dossier-note"));
    payInPesos(script, QStringLiteral("300"), QStringLiteral("dossier-payment"));
}

void writePublicNote(KeyScript &script, const QString &key) {
    chooseService(script, QStringLiteral("PG"), QStringLiteral("PUBLICO GENERAL"));
    script.at(kNote, QStringLiteral("Paterno"))
        .type(QStringLiteral("ochoa"))
        .enter()
        .type(QStringLiteral("rivas"))
        .enter()
        .type(QStringLiteral("julián"))
        .enter();
    addLine(script, key, QStringLiteral("1"));
}

void chequeNote(KeyScript &script) {
    writePublicNote(script, QStringLiteral("1"));
    openPayment(script, QStringLiteral("cheque-note"));
    script.press(Qt::Key_Tab, Qt::ShiftModifier)
        .press(Qt::Key_Tab, Qt::ShiftModifier)
        .press(Qt::Key_Tab, Qt::ShiftModifier)
        .at(kPayment, QStringLiteral("RadioGroup1"))
        .press(Qt::Key_Right)
        .at(kPayment, QStringLiteral("Edit1"))
        .type(QStringLiteral("banco del puerto"))
        .enter()
        .type(QStringLiteral("00123456"))
        .enter()
        .type(QStringLiteral("771"))
        .enter()
        .at(kPayment, QStringLiteral("CEdit5"))
        .type(QStringLiteral("180"))
        .enter();
    accept(script, QStringLiteral("cheque-payment"));
}

void noteThatFails(KeyScript &script, BreakingSeam &seam) {
    writePublicNote(script, QStringLiteral("2"));
    openPayment(script, QStringLiteral("failing-note"));
    script.type(QStringLiteral("500"))
        .enter()
        .at(kPayment, QStringLiteral("ImprimirRecibo"))
        .call([&seam] { seam.breakNext(QStringLiteral("registraiva")); })
        .enter()
        .atBox(QStringLiteral("Ocurrió un error al tratar de registrar la información."))
        .picture(QStringLiteral("failed-note"))
        .enter()
        .at(kNote, QStringLiteral("ComboBox1"));
}

void repair(KeyScript &script) {
    script.menu(QStringLiteral("Funciones Especiales"))
        .choose(QStringLiteral("Recibos Incompletos"))
        .at(QStringLiteral("FRM801"))
        .picture(QStringLiteral("incomplete-receipts"))
        .alt('p')
        .atBox(QStringLiteral("La última nota se encontró registrada de manera incompleta"))
        .picture(QStringLiteral("incomplete-removed"))
        .enter()
        .at(QStringLiteral("FRM801"))
        .press(Qt::Key_Escape);
}

void noteAgain(KeyScript &script) {
    script.press(Qt::Key_G, Qt::ControlModifier);
    writePublicNote(script, QStringLiteral("2"));
    openPayment(script, QStringLiteral("note-again"));
    payInPesos(script, QStringLiteral("500"), QStringLiteral("note-again-payment"));
}

void saveReport(KeyScript &script, const QString &pdf, const QString &pictureName) {
    script.at(QStringLiteral("PreviewWindow"))
        .picture(pictureName)
        .press(Qt::Key_S, Qt::ControlModifier)
        .at(QStringLiteral("QFileDialog"))
        .press(Qt::Key_A, Qt::ControlModifier)
        .type(pdf)
        .enter()
        .at(QStringLiteral("PreviewWindow"))
        .press(Qt::Key_Escape);
}

void cashCut(KeyScript &script, const QString &pdfFolder) {
    script.menu(QStringLiteral("Caja"))
        .choose(QStringLiteral("Corte de Caja"))
        .at(QStringLiteral("FRM405"))
        .picture(QStringLiteral("cash-cut"))
        .alt('g');
    saveReport(script, pdfFolder + QStringLiteral("/cut-receipts.pdf"),
               QStringLiteral("cut-receipts"));
    saveReport(script, pdfFolder + QStringLiteral("/cut-summary.pdf"),
               QStringLiteral("cut-summary"));
    saveReport(script, pdfFolder + QStringLiteral("/cut-banks.pdf"), QStringLiteral("cut-banks"));
}

void leave(KeyScript &script) {
    script.at(QStringLiteral("FRM405"))
        .press(Qt::Key_F4, Qt::AltModifier)
        .atBox(QStringLiteral("¿Desea salir de KALDO?"))
        .enter();
}

}  // namespace

void BreakingSeam::beforeExecution(const Execution &execution) {
    if (execution.name == name_) {
        name_.clear();
        throw std::runtime_error("Falla provocada para la demostración.");
    }
}

void writeRoad(KeyScript &script, BreakingSeam &seam, const QString &pdfFolder) {
    script.at(QStringLiteral("FRMInicio")).picture(QStringLiteral("splash"));
    logIn(script, QStringLiteral("cajero1"), QStringLiteral("caja1"));
    script.press(Qt::Key_G, Qt::ControlModifier)
        .at(kNote, QStringLiteral("ComboBox1"))
        .picture(QStringLiteral("fresh-note"));
    admissionInThreeTenders(script);
    studentNote(script);
    dossierNote(script);
    chequeNote(script);
    noteThatFails(script, seam);
    repair(script);
    noteAgain(script);
    cashCut(script, pdfFolder);
    leave(script);
}

}  // namespace kaldo
