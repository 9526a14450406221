// Form6, "Tools": the fields and commands that act on the current Section.
#pragma once

#include <QWidget>

#include "ui/bindings.h"

namespace veneerer {

class ToolsWindow : public QWidget {
public:
  explicit ToolsWindow(const Ui& ui);

protected:
  void paintEvent(QPaintEvent* event) override;

private:
  Operator& hands_;
  bool fontsAsked_ = false;
};

}  // namespace veneerer
