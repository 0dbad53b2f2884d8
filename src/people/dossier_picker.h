#pragma once

#include <QObject>

#include <functional>
#include <optional>

#include "data/named_query.h"
#include "toolkit/forms/form.h"

namespace kaldo {

/// "Consultar Expedientes F5": a button that opens a list of dossiers beside a number field, the
/// list itself, and the button that filters it by column. The list gives back a dossier number.
class DossierPicker final : public QObject {
    Q_OBJECT

public:
    /// The values that the list opens with; unset where it can't be opened, which was told.
    using Ask = std::function<std::optional<Parameters>()>;

    /// `dossiers` outlives the picker.
    DossierPicker(NamedQuery &dossiers, Ask ask);

    /// The pieces, for the row of the number field.
    form::Item items();
    /// To be called once the form is built: `number` is the field that the focus goes back to.
    void attach(LineField *number);

    /// As the button: opens the list, or hides it when it is shown. Nothing while disabled.
    void toggle() { consultar_->click(); }
    void hide();
    void setEnabled(bool enabled);

signals:
    void picked(const QString &expediente);
    /// The list was left by Escape.
    void cancelled();

private:
    void open();
    void alternarFiltro();

    NamedQuery &dossiers_;
    Ask ask_;
    LineField *number_ = nullptr;
    IconButton *consultar_ = nullptr;
    IconButton *filtro_ = nullptr;
    LookupField *lista_ = nullptr;
};

}  // namespace kaldo
