#pragma once

#include <memory>

#include "platform/forms/Form.h"

namespace lyrebrook {

/// The place of a form's global instance: empty until the form is first used and again after it was unloaded.
class FormSlot {
  public:
    FormSlot();
    FormSlot(const FormSlot&) = delete;
    FormSlot& operator=(const FormSlot&) = delete;
    virtual ~FormSlot();

    void Show();
    void Hide();
    /// Runs `Form_Unload` and empties the slot. Nothing happens when no form is loaded, or while it is being unloaded.
    void Unload();
    /// Like a call of any procedure: makes the form and runs `Form_Load`, if there is none.
    void Load() { form(); }
    bool isLoaded() const { return form_ != nullptr; }

    /// Takes away all forms without a word to them. For the very end, while the `QApplication` still lives.
    static void discardAll();

  protected:
    virtual std::unique_ptr<Form> make() const = 0;
    /// The form, freshly loaded if need be. When its own `Form_Load` unloads it, the one that was.
    Form& form();

  private:
    void bury();

    std::unique_ptr<Form> form_;
    bool unloading_ = false;
};

/// While one is alive, no unloaded form is destroyed: something of it may be on the stack.
class FormsInUse {
  public:
    FormsInUse();
    FormsInUse(const FormsInUse&) = delete;
    FormsInUse& operator=(const FormsInUse&) = delete;
    ~FormsInUse();
};

/// The global instance of a form: `frmX->procedure()` makes and loads the form on first use.
template <class F>
class FormInstance final : public FormSlot {
  public:
    class Call {
      public:
        explicit Call(F& form) : form_(form) {}
        F* operator->() const { return &form_; }

      private:
        FormsInUse inUse_;
        F& form_;
    };

    /// Keeps the form in memory until the end of the call, even if the call unloads it.
    Call operator->() { return Call(static_cast<F&>(form())); }
    F& operator*() { return static_cast<F&>(form()); }

  protected:
    std::unique_ptr<Form> make() const override { return std::make_unique<F>(); }
};

}  // namespace lyrebrook
