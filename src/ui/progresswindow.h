// The small window that shows how far something long has come.
#pragma once

#include <QDialog>

class QLabel;
class QProgressBar;

namespace veneerer {

/// Takes all input while it is open, and no operator can close it: it goes with what it tells of.
class ProgressWindow : public QDialog {
public:
  ProgressWindow();

  /// Shows step done of total and the text, plain, and lets pending events run.
  void tell(int done, int total, const QString& what);

  void reject() override {}

private:
  QLabel* what_;
  QProgressBar* bar_;
};

}  // namespace veneerer
