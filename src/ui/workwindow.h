// Shows how far something long has come, and lets the operator give it up.
#pragma once

#include <QElapsedTimer>
#include <QProgressDialog>

#include "exchange/longwork.h"

namespace veneerer {

/// Comes up when the work takes longer than a moment, and takes all input while it is open.
class WorkWindow : public QProgressDialog {
public:
  /// The title says what is done.
  WorkWindow(const QString& title, QWidget* owner);

  /// Tells of a step, and lets pending events run. False once the operator has given the work up.
  bool tell(int done, int total, const QString& file);

private:
  QElapsedTimer age_;
  QElapsedTimer sinceEvents_;
};

}  // namespace veneerer
