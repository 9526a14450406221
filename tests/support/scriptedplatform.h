// A world for tests: dialogs with answers queued ahead, settings from a map, a disk that can fail, a screen
// and a folder of choice.
#pragma once

#include <QMap>

#include "platform/scripteddialogs.h"
#include "support/failingdisk.h"

namespace veneerer::test {

class MapSettings : public Settings {
public:
  QMap<QString, QString> values;  ///< by "section/key"
  QString value(const QString& section, const QString& key, const QString& defaultValue) const override {
    return values.value(section + QLatin1Char('/') + key, defaultValue);
  }
};

struct ScriptedPlatform {
  explicit ScriptedPlatform(ScriptedDialogs::Unexpected unexpected = ScriptedDialogs::Unexpected::Cancel)
      : dialogs(unexpected) {}

  ScriptedDialogs dialogs;
  MapSettings settings;
  FailingDisk disk;
  Platform platform{dialogs, settings, disk, Screen(), ProgramFolder()};
};

}  // namespace veneerer::test
