// A sentence below a field while something is typed into it.
#pragma once

#include <QLabel>
#include <QLineEdit>

namespace veneerer {

/// While a caption that a record file can't hold stands in the field and the operator types there, one
/// sentence below it tells what would come back. It takes nothing's place in the layout, and no input.
class FieldNote : public QLabel {
public:
  explicit FieldNote(QLineEdit& field);

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  void tell(const QString& caption);
  void placeBelow();

  QLineEdit& field_;
};

}  // namespace veneerer
