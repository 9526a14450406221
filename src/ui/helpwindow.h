// The window of the manual.
#pragma once

#include <QDialog>
#include <QLineEdit>
#include <QTreeWidget>

#include "help/manual.h"
#include "ui/helpbrowser.h"

namespace veneerer {

/// The contents, or what a search found, stand beside the page. Escape closes it.
class HelpWindow : public QDialog {
  Q_OBJECT

public:
  explicit HelpWindow(QWidget* owner);

  /// Shows that page, and brings the window to the front.
  void openPage(const QString& page);
  /// The next word that is typed is searched for.
  void openSearch();
  /// From now on it stands in front of that window, and can be used while that one takes all input.
  void belongTo(QWidget& owner);

protected:
  void changeEvent(QEvent* event) override;

private:
  QLayout* makeSide();
  QLayout* makePage();
  QLayout* makeWays();
  void listContents();
  void listHits(const QString& words);
  void search(const QString& words);
  void choose(const QTreeWidgetItem* row);
  void pageChanged();
  void come();
  void makeHintReadable();

  Manual manual_;
  QLineEdit* words_;
  QTreeWidget* list_;
  HelpBrowser* browser_;
};

}  // namespace veneerer
