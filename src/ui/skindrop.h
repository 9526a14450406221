// A Skin's archive dropped on a window.
#pragma once

#include <QWidget>

#include "ui/operator.h"

namespace veneerer {

/// A single zip archive dropped on the window, or on what of it takes no drops itself, is imported as by the
/// menu. Everything else is left to others. Belongs to the window; the hands must outlive it.
class SkinDrop : public QObject {
public:
  SkinDrop(Operator& hands, QWidget& window);

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  Operator& hands_;
  QWidget& window_;
};

}  // namespace veneerer
