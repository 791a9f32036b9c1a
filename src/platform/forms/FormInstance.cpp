#include "platform/forms/FormInstance.h"

#include <QCoreApplication>
#include <QMetaObject>
#include <vector>

namespace lyrebrook {
namespace {

std::vector<FormSlot*>& allSlots() {
    static std::vector<FormSlot*> all;
    return all;
}

/// Unloaded forms that may still be on the stack: in a handler of theirs, in a procedure of theirs, or, for Qt's own
/// calls, until the event loop is back in charge.
struct Graveyard {
    std::vector<std::unique_ptr<Form>> forms;
    int uses = 0;
    bool scheduled = false;

    void schedule() {
        if (forms.empty() || scheduled) return;
        scheduled = true;
        QMetaObject::invokeMethod(
            qApp, [this] { clear(); }, Qt::QueuedConnection);
    }

    void clear() {
        scheduled = false;
        if (uses == 0) std::exchange(forms, {}).clear();
    }
};

Graveyard& graveyard() {
    static Graveyard graveyard;
    return graveyard;
}

class Flag {
  public:
    explicit Flag(bool& flag) : flag_(flag) { flag_ = true; }
    Flag(const Flag&) = delete;
    Flag& operator=(const Flag&) = delete;
    ~Flag() { flag_ = false; }

  private:
    bool& flag_;
};

}  // namespace

FormsInUse::FormsInUse() {
    ++graveyard().uses;
}

FormsInUse::~FormsInUse() {
    --graveyard().uses;
    graveyard().schedule();
}

FormSlot::FormSlot() {
    allSlots().push_back(this);
}

FormSlot::~FormSlot() {
    std::erase(allSlots(), this);
}

void FormSlot::Show() {
    const FormsInUse inUse;
    form().Show();
}

void FormSlot::Hide() {
    if (form_) form_->Hide();
}

void FormSlot::Unload() {
    if (!form_ || unloading_) return;
    const FormsInUse inUse;
    {
        const Flag unloading(unloading_);
        form_->Form_Unload();
    }
    bury();
}

Form& FormSlot::form() {
    if (form_) return *form_;
    const FormsInUse inUse;
    form_ = make();
    Form& made = *form_;
    made.slot_ = this;
    try {
        made.Form_Load();
    } catch (...) {
        if (form_.get() == &made) bury();
        throw;
    }
    return made;
}

void FormSlot::bury() {
    Form& gone = *form_;
    graveyard().forms.push_back(std::move(form_));
    gone.bury();
}

void FormSlot::discardAll() {
    for (FormSlot* slot : allSlots()) {
        if (slot->form_) slot->form_->life_->loaded = false;
        slot->form_.reset();
    }
    graveyard().forms.clear();
}

}  // namespace lyrebrook
