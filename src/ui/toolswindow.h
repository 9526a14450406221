// Form6, "Tools": the fields and commands that act on the current Section.
#pragma once

#include <QLabel>
#include <QList>
#include <QTimer>
#include <QWidget>
#include <optional>

#include "ui/bindings.h"

namespace veneerer {

/// Fields that don't reach the element in hand are grey; they can be typed into all the same, since the
/// global commands take what stands there. Tool tips tell what a control does for the element in hand, or why
/// it does nothing; they follow when the hand rests, well before one can show.
class ToolsWindow : public QWidget {
public:
  explicit ToolsWindow(const Ui& ui);

protected:
  void paintEvent(QPaintEvent* event) override;

private:
  struct Control {
    const Element* element;
    QWidget* widget;
    QLabel* label;  ///< null when there is none
  };

  void followHand();
  void greyOut();
  void showTips();
  void findControls();

  Operator& hands_;
  QList<Control> controls_;
  QTimer telling_;               ///< the hand has rested: the tool tips follow
  std::optional<QString> told_;  ///< the element that the tool tips are about
  bool fontsAsked_ = false;
};

}  // namespace veneerer
