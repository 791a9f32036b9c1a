#pragma once

#include <QListWidget>
#include <functional>

namespace lyrebrook {

/// Qt's list, told apart by what the user did with it: picked a line (also the same one again), or opened one by double
/// click or Enter. What code does to the list calls neither. A line that is cut is shown whole by a tool tip.
class ListView final : public QListWidget {
  public:
    explicit ListView(QWidget* container);

    /// The selected line, -1 for none.
    int selectedLine() const;

    std::function<void()> picked;
    std::function<void()> opened;
    bool enterOpens = false;

  protected:
    bool viewportEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    bool pressed_ = false;
};

}  // namespace lyrebrook
