// Form6, "Tools": the fields and commands that act on the current Section.
#pragma once

#include <QWidget>

#include "ui/bindings.h"

namespace veneerer {

/// Fields that don't reach the element in hand are grey; they can be typed into all the same, since the
/// global commands take what stands there.
class ToolsWindow : public QWidget {
public:
  explicit ToolsWindow(const Ui& ui);

protected:
  void paintEvent(QPaintEvent* event) override;

private:
  void greyOut();

  Operator& hands_;
  bool fontsAsked_ = false;
};

}  // namespace veneerer
