#pragma once

#include "app/screen.h"
#include "shell/clinic_setup.h"

class QGroupBox;
class QLabel;
class QStackedWidget;

namespace kaldo {

namespace form {
class Item;
}

class Button;
class CheckField;
class Choice;
class FRM000;
class LineField;
class NumberField;
class TextField;
class TwoLists;

/// Fills an empty clinic with what the other screens need: a city, a care centre, a cash desk, a
/// cashier, the sales areas and their ages. Three pages; the areas are written as they are chosen,
/// all else at the end.
class FRMInicioFirebird final : public Dialog {
    Q_OBJECT

public:
    FRMInicioFirebird(Context &context, FRM000 &main);

    void activated() override;
    void reject() override;

protected:
    void build() override;

private:
    enum Page { Data, Areas, Finish };

    /// The fields of an age group.
    struct Ages {
        QString area;  ///< the sales area that asks for them, by its name
        QGroupBox *group = nullptr;
        NumberField *lowest = nullptr;
        NumberField *highest = nullptr;
        int tipoProd = 0;  ///< 0 while none is chosen, and the group is hidden
    };

    /// A line of what has to be done, with a mark once it is.
    struct Tick {
        QLabel *mark = nullptr;
        QLabel *text = nullptr;
    };

    form::Item dataPage();
    form::Item cityGroup();
    form::Item centreGroup();
    form::Item deskGroup();
    form::Item cashierGroup();
    form::Item areasPage();
    form::Item finishPage();
    form::Item agesGroup(Ages &ages, const QString &name, int highestDigits, const QString &advice);
    form::Item finishGroup();
    form::Item buttons();

    void clearFields();
    void showStep(int step);
    void showPage(Page page);
    void goOn();
    void goBack();
    QWidget *firstToMend() const;
    void enterAreas();
    void enterFinish();
    void showAges(Ages &ages);
    void checkAges(const Ages &ages);

    bool cityComplete() const;
    bool centreComplete() const;
    bool deskComplete() const;
    bool cashierComplete() const;
    bool agesComplete() const;
    int addedAreas() const;
    int ageRanges() const;
    void updateTicks();
    void lockWritten();

    SetupValues values() const;
    void terminarProceso();
    void writeStation();
    void offerPriceList();

    FRM000 &main_;
    ClinicSetup setup_;
    Ages children_;
    Ages adults_;

    QStackedWidget *pages_ = nullptr;
    QLabel *step_ = nullptr;
    QGroupBox *ciudad_ = nullptr;
    QGroupBox *centro_ = nullptr;
    QGroupBox *caja_ = nullptr;
    QGroupBox *usuario_ = nullptr;
    Choice *ComboBox0_ = nullptr;
    TextField *Edit1_ = nullptr;
    Choice *ComboBox1_ = nullptr;
    QWidget *panelCampus_ = nullptr;
    Choice *ComboBox2_ = nullptr;
    TextField *Edit2_ = nullptr;
    TextField *Edit3_ = nullptr;
    TextField *Edit3a_ = nullptr;
    TextField *Edit3b_ = nullptr;
    TextField *Edit3c_ = nullptr;
    NumberField *Edit4_ = nullptr;
    TextField *Edit5_ = nullptr;
    TextField *Edit6_ = nullptr;
    TextField *Edit7_ = nullptr;
    TextField *Edit7a_ = nullptr;

    TwoLists *areas_ = nullptr;
    QLabel *agregadas_ = nullptr;

    Tick ticks_[6];
    CheckField *universal_ = nullptr;
    Button *terminar_ = nullptr;
    Button *anterior_ = nullptr;
    Button *siguiente_ = nullptr;
};

}  // namespace kaldo
