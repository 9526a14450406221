// All screens of the Skin at one glance.
#pragma once

#include <QListWidget>
#include <QSet>
#include <QTimer>
#include <deque>
#include <memory>

#include "painting/canvaspainter.h"
#include "ui/bindings.h"
#include "ui/picturesinsight.h"

namespace veneerer {

/// A sheet of small pictures, each with its screen's name; a click chooses the screen. They are painted only
/// while the panel is to be seen, and while the operator rests: one at a time, and the rarer the longer one
/// takes.
class ScreensPanel : public QWidget {
public:
  explicit ScreensPanel(const Ui& ui);

  /// Whether each picture shows its screen as it is.
  bool isUpToDate() const { return waiting_.empty() && changed_.isEmpty() && !isAllChanged_; }

protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

private:
  void addItems();
  void changed(const Change& change);
  void changeAll();
  void rest();
  void await();
  bool isAffected(int entry) const;
  void work();
  void paintNext();
  void makeRoomFor(QSize picture);
  void showChosen();

  Operator& hands_;
  PicturesInSight& inSight_;
  QListWidget* screens_;
  QTimer idle_;
  QSet<int> changed_;  ///< the entries of screens that something changed on
  bool isAllChanged_ = true;
  std::deque<int> waiting_;                 ///< the entries that are to be painted
  std::unique_ptr<CanvasPainter> painter_;  ///< while there is something to paint
  Attachment watching_;
};

}  // namespace veneerer
