#pragma once

#include <array>
#include <functional>
#include <memory>

#include "bench/bench_station.h"
#include "payments/frm401_3_payment_form.h"
#include "payments/frm401_payment_note.h"
#include "people/frm_alumnos_student_choice.h"

namespace kaldo::bench {

enum class NoteKind { Admission, StudentNoteOfTwoLines };
inline constexpr std::array kNoteKinds{NoteKind::Admission, NoteKind::StudentNoteOfTwoLines};

/// A cashier at the payment note: types whole notes by key strokes, all the way through the
/// payment dialog.
class NoteTypist {
public:
    /// Shows the screen and gives it the focus.
    explicit NoteTypist(BenchStation &station);

    struct Timed {
        double milliseconds = 0;  ///< from the Enter on "&Imprimir Recibo" to the fresh screen
        double repaint = 0;       ///< painting the fresh screen, after that
        Log typing;               ///< what was executed before the Enter
        Log registering;          ///< what was executed from then on
    };

    /// `beforeEnter` runs when all is typed, just before the Enter that accepts the payment.
    Timed registerNote(NoteKind kind, const std::function<void()> &beforeEnter = {});

    /// Goes to the place of care of the adults' clinic, ready for the Enter that takes it and opens
    /// the price list.
    void chooseClinicOfAdults();
    /// From there to the "Clave" of a first line for a dossier.
    void beginLineOfDossier(const QString &expediente);

    FRM401 &screen() { return screen_; }

private:
    void typeAdmission();
    void typeStudentNote();
    void typeLine(const QString &clave);
    void payAndAccept(Timed *timed, const std::function<void()> &beforeEnter);

    BenchStation &station_;
    FRM401_3 formaPago_;
    FRMAlumnos alumnos_;
    FRM401 screen_;
    int notes_ = 0;
};

}  // namespace kaldo::bench
