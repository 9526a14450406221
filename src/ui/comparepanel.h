// What a save of the Skin in hand would change, or what it and another Skin differ in.
#pragma once

#include <QComboBox>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

#include "ui/comparisonmodel.h"
#include "ui/smallpicture.h"

namespace veneerer {

/// Compares by the operator's word alone. A click on a row goes to its element's screen, selects it on the
/// overlay and shows the pictures that differ.
class ComparePanel : public QWidget {
public:
  explicit ComparePanel(const Ui& ui);

protected:
  void showEvent(QShowEvent* event) override;

private:
  void addTop(QVBoxLayout* column);
  void addRows(QVBoxLayout* column);
  void addPictures(QVBoxLayout* column);
  /// The other Skins of the root as they are now.
  void listSkins();
  void compare();
  Differences differences();
  /// The Skin to compare with; empty for the one in hand as it is on the disk.
  QString otherSkin() const { return other_->currentData().toString(); }
  void tell(const Differences& differences);
  Element* elementOf(const QModelIndex& index) const;
  void goTo(const QModelIndex& index);
  void showPictures(const Difference& difference);
  void clear();

  Operator& hands_;
  ComparisonModel model_;
  QComboBox* other_;
  QPushButton* compare_;
  QTreeView* rows_;
  QLabel* told_;
  QWidget* pictures_;
  SmallPicture* before_;
  SmallPicture* after_;
  SkinFolder folders_[2];  ///< of the sides that are listed
};

}  // namespace veneerer
