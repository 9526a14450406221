// The problems of the Skin in hand, kept up to date while it is worked on.
#pragma once

#include <QTreeWidget>
#include <memory>

#include "problems/problemswatch.h"
#include "ui/bindings.h"

namespace veneerer {

/// Judges only while it is to be seen, what has changed first and the rest as the program has time. A click
/// on a row selects its element on the overlay, Enter and a double click go to its screen as well.
class ProblemsPanel : public QWidget {
public:
  explicit ProblemsPanel(const Ui& ui);

protected:
  void showEvent(QShowEvent* event) override;

private:
  void begin();
  void changed(const Change& change);
  void work();
  void list();
  Element* elementOf(const QTreeWidgetItem* row) const;
  void select(const QTreeWidgetItem* row);
  void goTo(const QTreeWidgetItem* row);

  Operator& hands_;
  QTreeWidget* rows_;
  QTimer idle_;
  std::unique_ptr<ProblemsWatch>
      watch_;  ///< null until the panel is first seen, and when the Skin is another
  QSet<const Element*> changed_;
  Findings listed_;
  Attachment watching_;
};

}  // namespace veneerer
