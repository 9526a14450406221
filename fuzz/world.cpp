#include "fuzz/world.h"

#include <QTemporaryDir>

#include "elements/require.h"
#include "fuzz/skinfiles.h"
#include "records/recorderror.h"
#include "skin/skinsaver.h"

namespace veneerer::fuzz {

namespace {

constexpr const char* kSkins[] = {"S", "T"};

/// Holds what comes with the program in small, and the folder that runs work in.
struct Folders {
  Folders() {
    makeSmallSkin(QStringLiteral("Black_and_Blue_gif_V8.0(800x600)"), of("kept", "S"));
    makeSmallSkin(QStringLiteral("Copper_Lounge(1024x768)"), of("kept", "T"));
    reset();
  }

  QString of(const char* folder, const char* skin) const {
    return top.path() + QStringLiteral("/%1/Skins/%2").arg(QLatin1String(folder), QLatin1String(skin));
  }

  void reset() const {
    QDir(top.filePath(QStringLiteral("work"))).removeRecursively();
    for (const char* skin : kSkins) copyFolder(of("kept", skin), of("work", skin));
  }

  QTemporaryDir top;
};

const Folders& folders() {
  static const Folders made;
  return made;
}

}  // namespace

World::World(ScriptedDialogs::Unexpected unexpected) : dialogs(unexpected) {
  settings.values.insert(QStringLiteral("Settings/Skin"), QStringLiteral("S"));
  designer = std::make_unique<Designer>(platform);
  dialogs.answers.enqueue(true);
  require(designer->startUp(), "a Skin that comes with the program loads");
  // What opens another Skin lists them, which no undo takes back.
  designer->listSkins();
}

World::~World() {
  designer.reset();
  if (disk.isChanged()) folders().reset();
}

QString World::root() {
  return folders().top.filePath(QStringLiteral("work"));
}

bool World::loads(const QString& name, std::vector<NewFile>& records) {
  test::ScriptedPlatform world;
  world.platform.folder.path = root();
  Designer designer(world.platform);
  try {
    designer.startUp(name);
  } catch (const RecordError&) {
    return false;
  }
  records = composedRecords(designer.state());
  return true;
}

}  // namespace veneerer::fuzz
