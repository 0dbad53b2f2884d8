#pragma once

#include "payments/note_draft.h"

#include <optional>

namespace kaldo {

/// Whether the payer who stands on the screen is the one who was accepted: nothing that names him
/// was typed over since, and where a birth is asked it is known with the sex.
bool payerComplete(const Payer &shown, const std::optional<Payer> &accepted);

/// How far a note has come.
struct NoteState {
    bool payerComplete = false;
    bool rowOpen = false;       ///< a line is open for edit
    bool conceptTaken = false;  ///< and has the concept of its key
    int lines = 0;              ///< saved ones
};

/// What can be pressed or chosen.
struct NoteButtons {
    bool service = false;  ///< the three lists of the service
    bool agregar = false;
    bool borrar = false;
    bool grabar = false;
    bool cancelar = false;
    bool registrar = false;
};
NoteButtons enabledButtons(const NoteState &state);

}  // namespace kaldo
