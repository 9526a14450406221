// What the rescale in "Tools" would come to, told beside its fields.
#pragma once

#include <QLabel>
#include <QMenu>

#include "ui/bindings.h"

namespace veneerer {

/// Tells the factors of the size that is typed, as it is typed, and what becomes of the Skin's resolution.
/// Below stand a menu that fills in the numbers for an even scale, and the rescale's command.
class RescaleOutlook : public QWidget {
public:
  explicit RescaleOutlook(const Ui& ui);

private:
  void tell();
  void listSizes();
  void addMatch(const QString& text, TextBox& from, Axis axis);
  void addSize(QSize resolution);
  void fill(QSize size);

  Operator& hands_;
  QLabel* factors_;
  QMenu* sizes_;
};

}  // namespace veneerer
