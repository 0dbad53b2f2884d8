#pragma once

#include <QTime>

#include "toolkit/forms/complaint.h"
#include "toolkit/forms/line_field.h"

namespace kaldo {

/// An hour of the day, hh:mm:ss; a text that is none keeps the focus and is told beside the field.
class HourField final : public MaskedField {
public:
    explicit HourField(QWidget *parent = nullptr) : MaskedField(parent) {
        setMask(QStringLiteral("  :  :  "));
    }

    /// Invalid for an empty field and for a text that is no hour.
    QTime time() const { return QTime::fromString(maskedText(), QStringLiteral("HH:mm:ss")); }
    void setTime(const QTime &time) {
        setMaskedText(time.isValid() ? time.toString(QStringLiteral("HH:mm:ss")) : QString());
    }
    bool commit() override {
        if (maskedText().isEmpty() || time().isValid()) {
            return true;
        }
        complain(this, QStringLiteral("La hora debe estar entre 00:00:00 y 23:59:59."));
        return false;
    }
};

}  // namespace kaldo
