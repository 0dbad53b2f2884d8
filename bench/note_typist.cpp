#include "bench/note_typist.h"

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <stdexcept>

#include "payments/service_types.h"
#include "tests/support/keys.h"

namespace kaldo::bench {

namespace {

using test::keyTarget;
using test::press;
using test::settle;
using test::typeText;

const QString kStudent = QStringLiteral("1100001");

/// The focus must be where a cashier would expect it.
void expectFocus(const char *name) {
    settle();
    for (const QWidget *at = keyTarget(); at != nullptr; at = at->parentWidget()) {
        if (at->objectName() == QLatin1String(name)) {
            return;
        }
    }
    throw std::runtime_error(std::string("the focus is not in ") + name + " but in " +
                             keyTarget()->objectName().toStdString());
}

void enter(const QString &text = {}) {
    typeText(text);
    press(Qt::Key_Return);
}

/// A list picks the row that begins with the text.
void pick(const char *name, const QString &text) {
    expectFocus(name);
    press(Qt::Key_Return);
    enter(text);
}

/// By the arrow keys: letters seek together while they follow each other as fast as here.
void chooseService(const QString &row) {
    expectFocus("ComboBox1");
    for (qsizetype at = serviceTypeRows(false).indexOf(row); at >= 0; --at) {
        press(Qt::Key_Down);
    }
    press(Qt::Key_Return);
}

/// A name that nobody has yet, in letters.
QString nameOf(int number) {
    QString letters;
    for (int rest = number; letters.size() < 4; rest /= 20) {
        letters += QChar(u'A' + rest % 20);
    }
    return QStringLiteral("PRUEBA ") + letters;
}

}  // namespace

NoteTypist::NoteTypist(BenchStation &station)
    : station_(station),
      formaPago_(station.context()),
      alumnos_(station.context()),
      screen_(station.context(), formaPago_, alumnos_) {
    screen_.resize(1000, 640);
    test::showActive(&screen_);
    screen_.open();
    settle();
}

void NoteTypist::typeAdmission() {
    chooseService(QStringLiteral("AD - ADMISION"));
    pick("ComboBox2", QStringLiteral("ADMISION"));
    expectFocus("Paterno");
    enter(nameOf(notes_));
    enter(QStringLiteral("DE LA BANCA"));
    enter(QStringLiteral("ANA MARIA"));
    typeLine(QStringLiteral("1"));
}

void NoteTypist::typeStudentNote() {
    chooseService(QStringLiteral("AL - ALUMNOS"));
    pick("ComboBox2", QStringLiteral("ALUMNOS"));
    expectFocus("Matricula");
    enter(kStudent);
    typeLine(QStringLiteral("1"));
    typeLine(QStringLiteral("2"));
}

void NoteTypist::chooseClinicOfAdults() {
    chooseService(QStringLiteral("AP - SERVICIOS DE CLINICA"));
    pick("ComboBox2", QStringLiteral("ADULTOS"));
    expectFocus("ComboBox3");
    press(Qt::Key_Return);
    typeText(QStringLiteral("CLINICA INTEGRAL"));
}

void NoteTypist::beginLineOfDossier(const QString &expediente) {
    expectFocus("Edit2");
    enter(expediente);
    expectFocus("Matricula");
    enter(kStudent);
    expectFocus("AgregarRegistro");
    press(Qt::Key_Return);
    expectFocus("Detalle");
}

void NoteTypist::typeLine(const QString &clave) {
    expectFocus("AgregarRegistro");
    press(Qt::Key_Return);
    expectFocus("Detalle");
    enter(clave);
    enter();
    enter(QStringLiteral("2"));
    expectFocus("AgregarRegistro");
}

void NoteTypist::payAndAccept(Timed *timed, const std::function<void()> &beforeEnter) {
    expectFocus("CEdit4");
    enter(QStringLiteral("5000"));
    expectFocus("ImprimirRecibo");
    timed->typing = station_.recorder.take();
    if (beforeEnter) {
        beforeEnter();
    }
    timed->milliseconds = milliseconds();
    QTest::keyClick(keyTarget(), Qt::Key_Return);
}

NoteTypist::Timed NoteTypist::registerNote(NoteKind kind,
                                           const std::function<void()> &beforeEnter) {
    ++notes_;
    if (kind == NoteKind::Admission) {
        typeAdmission();
    } else {
        typeStudentNote();
    }
    // By Enter and not by its letter, which a button answers after a tenth of a second only: the
    // stroke comes back when the handler has.
    test::child<QWidget>(&screen_, QStringLiteral("Registrar"))->setFocus();
    expectFocus("Registrar");
    Timed timed;
    std::exception_ptr failure;
    QTimer::singleShot(0, &screen_, [&] {
        try {
            payAndAccept(&timed, beforeEnter);
        } catch (...) {
            failure = std::current_exception();
            QApplication::closeAllWindows();
        }
    });
    const int boxes = station_.messages.shown();
    QTest::keyClick(keyTarget(), Qt::Key_Return);
    const double ended = milliseconds();
    if (failure) {
        std::rethrow_exception(failure);
    }
    timed.milliseconds = ended - timed.milliseconds;
    timed.registering = station_.recorder.take();
    if (station_.messages.shown() != boxes + 1) {
        throw std::runtime_error("the note was not registered");
    }
    // What a window manager does when a dialog has closed.
    test::showActive(&screen_);
    const double painting = milliseconds();
    screen_.repaint();
    timed.repaint = milliseconds() - painting;
    return timed;
}

}  // namespace kaldo::bench
