#pragma once

class QWidget;

namespace lyrebrook {

class Form;

/// Which form is the active one of the program, and in which order the visible ones were before. A form becomes active
/// when it is shown, when the user turns to its window, or when the active one hides or goes and it was the last before
/// that. Message boxes, dialogs and other programs are no forms: they neither take activity nor give it back.
class ActiveForm {
  public:
    /// Runs `Form_Activate`, unless the form is the active one already.
    static void activate(Form& form);
    /// The form is hidden or unloaded.
    static void leave(Form& form);
    /// The window system gave the focus to the form's window, and everything else that it had to tell was heard.
    static void windowActivated(Form& form);
    /// The form is being destroyed.
    static void forget(Form& form);
    /// Window of the active form, null when there is none: what dialogs stand in front of.
    static QWidget* window();

  private:
    /// Asks the window system for what is so already. Until it agrees, what it says of other forms is out of date.
    static void request(Form& form);
};

}  // namespace lyrebrook
