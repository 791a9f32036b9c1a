#include "platform/forms/Form.h"

#include <QEvent>
#include <QLayout>
#include <QWindow>

#include "platform/forms/ActiveForm.h"
#include "platform/forms/Boundary.h"
#include "platform/forms/FormInstance.h"

namespace lyrebrook {

/// Watches the form's window, and its native window for the user's turning to it.
class Form::WindowFilter final : public QObject {
  public:
    explicit WindowFilter(Form& form) : form_(form) {}

    bool eventFilter(QObject*, QEvent* event) override {
        switch (event->type()) {
            case QEvent::Close:
                event->ignore();
                handle([this] { form_.Unload(); });
                return true;
            case QEvent::WindowActivate:
                // What was asked of several windows in a row arrives in a row; only the last of it holds.
                QMetaObject::invokeMethod(
                    this, [this] { handle([this] { ActiveForm::windowActivated(form_); }); }, Qt::QueuedConnection);
                return false;
            case QEvent::MouseButtonPress:
                handle([this] { ActiveForm::activate(form_); });
                return false;
            default:
                return false;
        }
    }

  private:
    void handle(const std::function<void()>& action) {
        fromQt([&] { run(*form_.life_, action); });
    }

    Form& form_;
};

Form::Form(const QString& caption)
    : life_(std::make_shared<Life>()),
      window_(std::make_unique<QMainWindow>()),
      filter_(std::make_unique<WindowFilter>(*this)) {
    window_->setCentralWidget(new QWidget);
    window_->installEventFilter(filter_.get());
    setCaption(caption);
}

Form::~Form() {
    ActiveForm::forget(*this);
}

void Form::Show() {
    if (!life_->loaded) return;
    const FormsInUse inUse;
    window_->setWindowState(window_->windowState() & ~Qt::WindowMinimized);
    window_->show();
    window_->windowHandle()->installEventFilter(filter_.get());
    ActiveForm::activate(*this);
}

void Form::Hide() {
    const FormsInUse inUse;
    window_->hide();
    ActiveForm::leave(*this);
}

void Form::Unload() {
    if (life_->loaded) slot_->Unload();
}

bool Form::Visible() const {
    return window_->isVisible();
}

QString Form::Caption() const {
    return window_->windowTitle();
}

void Form::setCaption(const QString& caption) {
    window_->setWindowTitle(caption);
}

void Form::setMousePointer(MousePointer pointer) {
    if (pointer == MousePointer::hourglass)
        window_->setCursor(Qt::WaitCursor);
    else
        window_->unsetCursor();
}

void Form::setFixedClientSize(Twips width, Twips height) {
    content()->setFixedSize(toPixels(width), toPixels(height));
    window_->layout()->setSizeConstraint(QLayout::SetFixedSize);
}

void Form::run(const Life& life, const std::function<void()>& handler) {
    if (!life.loaded) return;
    const FormsInUse inUse;
    runHandler(handler);
}

void Form::bury() {
    life_->loaded = false;
    Hide();
}

}  // namespace lyrebrook
