// Offers to read the Skin again when another program has written its record files.
#pragma once

#include <QToolButton>

#include "ui/diskfollower.h"

namespace veneerer {

/// Hidden until there is something to reload; a note tells which files. A save or a load makes an end of it.
class ReloadButton : public QToolButton {
public:
  ReloadButton(Operator& hands, DiskFollower& disk);

private:
  void offer(const QStringList& names);

  Operator& hands_;
};

}  // namespace veneerer
