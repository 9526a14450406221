// The problems of the Skin in hand, kept up to date while it is worked on.
#pragma once

#include <QTreeWidget>
#include <memory>

#include "problems/problemswatch.h"
#include "ui/bindings.h"
#include "ui/remedybuttons.h"

namespace veneerer {

/// While it is to be seen, everything is judged as the program has time, what has changed first. Else what is
/// wrong or risky is counted when the operator rests, hints left out. A click on a row goes to its element's
/// screen and selects it on the overlay; below the rows stand the remedies of the row that is chosen.
class ProblemsPanel : public QWidget {
  Q_OBJECT

public:
  explicit ProblemsPanel(const Ui& ui);

Q_SIGNALS:
  /// So many findings are no hints.
  void counted(int problems);

protected:
  void showEvent(QShowEvent* event) override;

private:
  ProblemsWatch::Depth depth() const;
  void schedule();
  void begin();
  void changed(const Change& change);
  void filesChanged(const QSet<QString>& paths);
  void work();
  bool judgeSome();
  void list();
  void fill();
  const Finding* findingOf(const QTreeWidgetItem* row) const;
  Element* elementOf(const QTreeWidgetItem* row) const;
  void goTo(const QTreeWidgetItem* row);
  void offerRemedies();
  void openMenu(QPoint place);
  void apply(const Remedy& remedy);

  Operator& hands_;
  QTreeWidget* rows_;
  RemedyButtons* remedies_;
  QTimer idle_;
  bool isBusy_ = false;                   ///< something has changed since the last look at the hidden panel
  std::unique_ptr<ProblemsWatch> watch_;  ///< null until there is a Skin, and when it is another
  QSet<const Element*> changed_;
  Findings listed_;
  Attachment watching_;
};

}  // namespace veneerer
