#include "platform/forms/ActiveForm.h"

#include <algorithm>
#include <vector>

#include "platform/forms/Form.h"

namespace lyrebrook {
namespace {

struct Order {
    std::vector<Form*> forms;  // the active one last
    Form* active = nullptr;
    Form* awaited = nullptr;  // asked of the window system, not seen yet
};

Order& order() {
    static Order order;
    return order;
}

void moveToEnd(Form& form) {
    std::erase(order().forms, &form);
    order().forms.push_back(&form);
}

}  // namespace

void ActiveForm::activate(Form& form) {
    request(form);
    if (order().active == &form) return;
    moveToEnd(form);
    order().active = &form;
    form.Form_Activate();
}

void ActiveForm::leave(Form& form) {
    const bool wasActive = order().active == &form;
    forget(form);
    if (wasActive && !order().forms.empty()) activate(*order().forms.back());
}

void ActiveForm::windowActivated(Form& form) {
    if (order().awaited && order().awaited != &form) return;
    order().awaited = nullptr;
    if (form.Visible() && form.window().isActiveWindow()) activate(form);
}

void ActiveForm::forget(Form& form) {
    std::erase(order().forms, &form);
    if (order().active == &form) order().active = nullptr;
    if (order().awaited == &form) order().awaited = nullptr;
}

QWidget* ActiveForm::window() {
    return order().active ? &order().active->window() : nullptr;
}

void ActiveForm::request(Form& form) {
    if (form.window().isActiveWindow()) {
        order().awaited = nullptr;
        return;
    }
    order().awaited = &form;
    form.window().raise();
    form.window().activateWindow();
}

}  // namespace lyrebrook
