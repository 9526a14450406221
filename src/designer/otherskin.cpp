#include "designer/otherskin.h"

#include "designer/designer.h"
#include "designer/texts.h"
#include "platform/scripteddialogs.h"
#include "records/recorderror.h"

namespace veneerer {

namespace {

/// Whatever is asked for, it is that Skin.
class OneSkin : public Settings {
public:
  explicit OneSkin(const QString& name) : name_(name) {}
  QString value(const QString&, const QString&, const QString&) const override { return name_; }

private:
  QString name_;
};

}  // namespace

struct OtherSkin::World {
  World(const Platform& other, const QString& name)
      : settings(name),
        platform{dialogs, settings, other.disk, other.screen, other.folder},
        designer(platform) {}

  ScriptedDialogs dialogs;
  OneSkin settings;
  Platform platform;
  Designer designer;
};

OtherSkin::OtherSkin(const Platform& platform, const QString& name) {
  if (!SkinFolder(platform.folder, name).exists())
    throw RecordError(name, 0, {}, {}, DesignerTexts::tr("there is no such Skin"));
  world_ = std::make_unique<World>(platform, name);
  world_->dialogs.answers.enqueue(true);
  world_->designer.startUp();
}

OtherSkin::~OtherSkin() = default;

State& OtherSkin::state() {
  return world_->designer.state();
}

SkinFolder OtherSkin::folder() const {
  return world_->designer.skinFolder();
}

}  // namespace veneerer
