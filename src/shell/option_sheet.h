#pragma once

#include <functional>
#include <vector>

#include "data/options.h"
#include "shell/hour_field.h"
#include "toolkit/forms/form.h"

namespace kaldo {

/// The widgets of a form that stand for options: an edit buffer between what lives and what is
/// typed. Each is named once, in the form's own expression:
///
///     sheet.option(text(nullptr, "Ciudad", "Ciudad").width(20), &Options::Ciudad)
///
/// The widgets outlive the sheet's use.
class OptionSheet {
public:
    using Show = std::function<void(const Options &)>;
    using Take = std::function<void(Options *)>;

    template <typename W, typename V>
    form::WidgetItem<W> option(form::WidgetItem<W> item, V Options::*member) {
        return item.with([this, member](W *widget) { bind(widget, member); });
    }
    /// For what is no plain value of one widget.
    void bind(Show show, Take take) {
        shows_.push_back(std::move(show));
        takes_.push_back(std::move(take));
    }

    void show(const Options &options) const {
        for (const Show &show : shows_) {
            show(options);
        }
    }
    void take(Options *options) const {
        for (const Take &take : takes_) {
            take(options);
        }
    }
    /// The fields whose text may be none that can be taken.
    const std::vector<LineField *> &strictFields() const { return strict_; }

private:
    void bind(TextField *field, QString Options::*member);
    void bind(DateField *field, QString Options::*member);
    void bind(NumberField *field, int Options::*member);
    void bind(HourField *field, QTime Options::*member);
    void bind(CheckField *box, bool Options::*member);
    void bind(Button *button, bool Options::*member);
    void bind(Choice *list, int Options::*member);
    void bind(RadioGroup *group, int Options::*member);
    void bind(RadioGroup *group, Sector Options::*member);

    std::vector<Show> shows_;
    std::vector<Take> takes_;
    std::vector<LineField *> strict_;
};

}  // namespace kaldo
