#pragma once

#include <optional>

#include "shell/frm000_main_window.h"

class QLabel;

namespace kaldo {

class Button;
class CheckField;
class FRMInicioFirebird;
class FRMPass;
class TextField;
class UpdateCheck;

/// The door: checks a user, fills the session, sets the rights and the rate.
class FRMAcceso final : public Dialog {
    Q_OBJECT

public:
    FRMAcceso(Context &context, FRM000 &main, FRMPass &password, UpdateCheck &update,
              FRMInicioFirebird &wizard);

    /// The work of its creation: on a consultation station with its own user the login is done
    /// without the screen, and what has to be told waits for the run loop.
    void formCreate();
    /// The first screen of a run, which can only be left by a login or with the application.
    void openAtStart();
    /// The menu entry: a new login replaces the session, a window closed without one leaves it.
    void openFromMenu();

    void activated() override;
    void reject() override;

protected:
    void build() override;
    void done(int result) override;

private:
    void BitBtn1Click();
    void BitBtn2Click();
    void BitBtn3Click();
    void BitBtn4Click();
    void CheckBox1Click();
    void offerPasswordChange();

    bool hasUnattendedUser() const;
    /// True when the user stands in session; else what is wrong has been told.
    bool logIn(const QString &code, const QString &password);
    /// Where a login was begun and not done, what stood before it stands again.
    void takeBack();
    void refuseWrongPassword();
    void fillSession(const QString &code);
    void loadRate();
    bool enterDesk(const QString &code);
    void findCentre();
    void lookForUpdate();
    void offerWizard();

    FRM000 &main_;
    FRMPass &password_;
    UpdateCheck &update_;
    FRMInicioFirebird &wizard_;
    /// While a login has filled the session and not come to its end: what stood before.
    std::optional<FRM000::Standing> before_;
    int failures_ = 0;
    bool fromMenu_ = false;

    TextField *Edit1_ = nullptr;
    TextField *Edit2_ = nullptr;
    CheckField *CheckBox1_ = nullptr;
    Button *BitBtn1_ = nullptr;
    Button *BitBtn2_ = nullptr;
    Button *BitBtn3_ = nullptr;
    Button *BitBtn4_ = nullptr;
    QLabel *Label1_ = nullptr;
    QLabel *Label2_ = nullptr;
    QLabel *Image1_ = nullptr;
};

}  // namespace kaldo
