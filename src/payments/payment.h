#pragma once

#include "toolkit/core/money.h"

#include <QString>

namespace kaldo {

enum class PaymentKind { Efectivo, ChequeMN };
enum class CardKind { None, Debito, Credito };

/// How one note is paid: the amounts and flags of the payment dialog. Pesos unless told otherwise.
struct Payment {
    double cantidadAnticipo = 0;  ///< the part of the note that is paid today
    double importeTotal = 0;      ///< what the note charges
    double tarjetaCredito = 0;
    double dolares = 0;  ///< in dollars
    double pesos = 0;
    double cheque = 0;
    double saldo = 0;          ///< what stays owed after an advance
    double subtotal = 0;       ///< total handed over
    double importeAPagar = 0;  ///< what must be covered now
    double diferencia = 0;     ///< what is still missing
    double cambio = 0;
    double prestacion = 0;  ///< covered by the benefit

    PaymentKind tipoDePago = PaymentKind::Efectivo;
    CardKind tipoDeTarjeta = CardKind::None;
    QString banco;
    QString numCuenta;
    QString numCheque;

    bool anticipoPanelShown = false;
    bool prestacionPanelShown = false;

    double tipoCam = 0;  ///< pesos per dollar that the dialog works with
    Money dolaresEnPesos;
};

}  // namespace kaldo
