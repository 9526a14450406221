// How many problems the Skin has, at the foot of the main window.
#pragma once

#include <QToolButton>

#include "ui/problemspanel.h"

namespace veneerer {

/// A click brings the panel up.
class ProblemsCount : public QToolButton {
public:
  /// The panel lies in a dock, which must outlive the button.
  explicit ProblemsCount(const ProblemsPanel& panel);

private:
  void tell(int problems);
};

}  // namespace veneerer
