// What could be done about a finding, each with its button.
#pragma once

#include <QWidget>
#include <functional>

#include "problems/remedy.h"

namespace veneerer {

class RemedyButtons : public QWidget {
public:
  /// The function does what the operator chose.
  explicit RemedyButtons(std::function<void(const Remedy&)> apply);

  /// Without remedies it takes no room.
  void show(const Remedies& remedies);

private:
  QWidget* makeRow(const Remedy& remedy);

  std::function<void(const Remedy&)> apply_;
};

}  // namespace veneerer
