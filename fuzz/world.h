// A designer without windows on two small Skins, for runs of random actions.
#pragma once

#include <memory>
#include <vector>

#include "designer/designer.h"
#include "files/replacefiles.h"
#include "fuzz/guardeddisk.h"
#include "support/scriptedplatform.h"

namespace veneerer::fuzz {

class World {
public:
  /// Loads the Skin S; the other one is T. The folder is that of all worlds, so there is one at a time.
  explicit World(ScriptedDialogs::Unexpected unexpected);
  /// Puts the folder back into its first state.
  ~World();
  World(const World&) = delete;
  World& operator=(const World&) = delete;

  State& state() { return designer->state(); }
  /// The folder that holds "Skins".
  static QString root();
  static QString skin(const QString& name) { return root() + QStringLiteral("/Skins/") + name; }
  /// Whether that Skin can be loaded into a designer of its own, whose record files are appended.
  static bool loads(const QString& name, std::vector<NewFile>& records);

  ScriptedDialogs dialogs;
  test::MapSettings settings;
  GuardedDisk disk{root()};
  Platform platform{dialogs, settings, disk, Screen(), {root()}};
  std::unique_ptr<Designer> designer;
};

}  // namespace veneerer::fuzz
