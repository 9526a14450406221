// Lets go of pictures of screens that aren't looked at any more.
#pragma once

#include <QObject>
#include <functional>

#include "elements/stage.h"
#include "ui/operator.h"

namespace veneerer {

/// With each screen that is chosen, the pictures of the screens before the last are let go as far as they
/// take more than a few screens do.
class PicturesInSight : public QObject {
public:
  /// Of the operator's state, which must outlive this. The function is called after each look: what was let
  /// go may be asked for again.
  PicturesInSight(Operator& hands, std::function<void()> looked);

  /// Another screen is looked at than the canvas shows: what stands on that stage.
  void lookAt(const Stage& stage);
  /// While every screen is to be seen at once, nothing is let go ahead of the budget.
  void setAllSeen(bool allSeen) { isAllSeen_ = allSeen; }

private:
  void changed(const Change& change);
  void lookAtCanvas();

  State& state_;
  const Screen& screen_;
  std::function<void()> looked_;
  Attachment watching_;
  bool isTurning_ = false;  ///< another screen has been chosen in this pass through the loop
  bool isAllSeen_ = false;  ///< see setAllSeen()
};

}  // namespace veneerer
