// Ties a window element to the window on the screen: whether it is shown, and its title.
#pragma once

#include <QPoint>
#include <functional>
#include <optional>

#include "elements/window.h"
#include "ui/binding.h"

namespace veneerer {

/// What the close button of a window means.
enum class OnClose { Hide, EndProgram };

class WindowBinding : public Binding {
public:
  WindowBinding(Window& element, QWidget& widget, OnClose onClose);

  /// What the title is, where it isn't the caption alone.
  void setTitle(std::function<QString()> title);

  /// Called once, before the window is shown for the first time.
  void beforeFirstShow(std::function<void()> action) { beforeFirstShow_ = std::move(action); }

  void show(Property changed) override;

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  void showOrHide();

  Window& window_;
  QWidget& widget_;
  OnClose onClose_;
  std::function<QString()> title_;
  std::function<void()> beforeFirstShow_;
  std::optional<QPoint> corner_;  ///< within the frame, when the window was last on the screen
};

}  // namespace veneerer
