// The Skin that a command line names: where it lies, and the settings that make it the current one.
#pragma once

#include <QString>

#include "platform/programplace.h"

namespace veneerer {

/// The settings of a run: the current Skin is the one on the command line.
class BatchSettings : public Settings {
public:
  explicit BatchSettings(const QString& path) : skin_(skinName(path)) {}
  QString value(const QString&, const QString&, const QString&) const override { return skin_; }

private:
  QString skin_;
};

}  // namespace veneerer
