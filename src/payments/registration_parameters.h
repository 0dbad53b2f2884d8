#pragma once

#include "data/parameters.h"
#include "data/session.h"
#include "payments/note_draft.h"
#include "payments/payment.h"

#include <QDate>
#include <QString>

#include <stdexcept>

namespace kaldo {

/// A typed text that a routine needs as a number is none. what() is Spanish, for the user.
class NotANumber : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The session's share in a registration.
struct RegistrationContext {
    int numCaja = 0;
    QString usuario;
    QString turno;
    QString centro;
    QString origen2;  ///< campus code of two characters
    QString mpioNota;
    QDate today;
    MethodOfPayment ultimoMetodo;
};

// Each function gives the parameters of one routine by name, in the routine's order. Texts that the
// program composes are cut to the parameter's width; what was typed is as wide as its field. A
// parameter that is left out keeps what it was last given.

/// The municipality letter of a note: 'M' for campus "2", 'T' for "3"; any other campus leaves what
/// stood before.
QString mpioOf(const QString &campus, const QString &before);

/// A student number: 0 without a student. Throws NotANumber.
int matriculaNumber(const NoteDraft &draft);

/// Throws NotANumber for a student number or a programme that no routine would take, so that it is
/// told before anything is paid or written.
void checkNumbers(const NoteDraft &draft);

/// An advance was taken: an amount above zero that is not the whole subtotal.
bool advanceTaken(const NoteDraft &draft, const Payment &payment);

/// What the note charges: the advance where one was taken, else the subtotal of its lines.
double importeOfNote(const NoteDraft &draft, const Payment &payment);

/// The pesos kept: net of the change while there are more of them than change.
double pesosKept(const Payment &payment);

/// KDREGISTRA_PAGO_ODO_P. Throws NotANumber.
Parameters noteParameters(const NoteDraft &draft, const Payment &payment,
                          const RegistrationContext &context);

/// Whether this note creates an admission.
bool createsAdmission(const NoteDraft &draft);
NewAdmission newAdmission(const NoteDraft &draft, const RegistrationContext &context, int folio);

/// One method per note: card beats pesos beats dollars. A note paid by none of them keeps the last.
MethodOfPayment methodOfPayment(const Payment &payment, const MethodOfPayment &last);

/// KDREGISTRA_METODOPAGO_P.
Parameters methodOfPaymentParameters(const NoteDraft &draft, const Payment &payment,
                                     const RegistrationContext &context);

/// KDREGISTRA_SPINSDETALLE_P. On a laboratory note that is not paid whole, the line's share of the
/// advance is its price. Throws NotANumber for a programme that is none.
Parameters lineParameters(const NoteDraft &draft, const Payment &payment,
                          const RegistrationContext &context, const NoteLine &line);

/// KDREGISTRA_HISTORICO_ODO_P, for notes on a dossier: quantity and price are always the line's.
Parameters historyParameters(const NoteDraft &draft, const RegistrationContext &context,
                             const NoteLine &line);

/// INSERTA_VW_RECIBOPAGO
Parameters financeParameters(const NoteDraft &draft, const RegistrationContext &context);
/// KDREGISTRAIVA
Parameters taxParameters(const NoteDraft &draft, const RegistrationContext &context);

}  // namespace kaldo
