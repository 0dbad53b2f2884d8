#include "shell/option_sheet.h"

namespace kaldo {

void OptionSheet::bind(TextField *field, QString Options::*member) {
    bind([=](const Options &options) { field->setText(options.*member); },
         [=](Options *options) { options->*member = field->text(); });
}

void OptionSheet::bind(DateField *field, QString Options::*member) {
    strict_.push_back(field);
    bind([=](const Options &options) { field->setDate(parseShortDate(options.*member)); },
         [=](Options *options) {
             options->*member = field->date().toString(QStringLiteral("dd/MM/yyyy"));
         });
}

void OptionSheet::bind(NumberField *field, int Options::*member) {
    strict_.push_back(field);
    bind([=](const Options &options) { field->setValue(options.*member); },
         [=](Options *options) { options->*member = static_cast<int>(field->value()); });
}

void OptionSheet::bind(HourField *field, QTime Options::*member) {
    strict_.push_back(field);
    bind([=](const Options &options) { field->setTime(options.*member); },
         [=](Options *options) { options->*member = field->time(); });
}

void OptionSheet::bind(CheckField *box, bool Options::*member) {
    bind([=](const Options &options) { box->setChecked(options.*member); },
         [=](Options *options) { options->*member = box->isChecked(); });
}

void OptionSheet::bind(Button *button, bool Options::*member) {
    bind([=](const Options &options) { button->setChecked(options.*member); },
         [=](Options *options) { options->*member = button->isChecked(); });
}

void OptionSheet::bind(Choice *list, int Options::*member) {
    bind([=](const Options &options) { list->setIndex(options.*member); },
         [=](Options *options) { options->*member = list->currentIndex(); });
}

void OptionSheet::bind(RadioGroup *group, int Options::*member) {
    bind([=](const Options &options) { group->setIndex(options.*member); },
         [=](Options *options) { options->*member = group->index(); });
}

void OptionSheet::bind(RadioGroup *group, Sector Options::*member) {
    bind([=](const Options &options) { group->setIndex(static_cast<int>(options.*member)); },
         [=](Options *options) { options->*member = static_cast<Sector>(group->index()); });
}

}  // namespace kaldo
