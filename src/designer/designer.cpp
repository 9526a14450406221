#include "designer/designer.h"

#include "canvas/canvasinput.h"
#include "design/design.h"
#include "designer/refusalnotes.h"
#include "forms/currentskin.h"
#include "panels/coverlayout.h"
#include "panels/skinproperties.h"
#include "panels/textureviewer.h"
#include "records/writefiles.h"
#include "skin/skinloader.h"
#include "skin/skinsaver.h"
#include "skin/startup.h"
#include "tools/fontlist.h"
#include "tools/toolspalette.h"

namespace veneerer {

namespace {

// The design comes before anything listens: giving an element its first values is no choice of the
// operator's.
std::unique_ptr<State> makeState() {
  auto state = std::make_unique<State>();
  applyBuiltInDesign(*state);
  for (Window* window : state->windows()) window->setVisible(false);
  return state;
}

}  // namespace

struct Designer::Parts {
  explicit Parts(Platform& world) : platform(world) {
    Switchboard& board = state->board;
    attachments = {
        board.onClick(*state->form4.Command4, [this](Element&) { save(); }),
        board.onClick(*state->form2.Command1,
                      [this](Element&) { saveLockedButtons(*state, platform, skinFolder()); }),
        board.onChange(*state->form4.Combo3, Property::ListIndex, [this](Element&) { otherSkinChosen(); }),
        board.onChange(*state->form3.List1, Property::ListIndex, [this](Element&) { firstSkinChosen(); })};
  }

  void otherSkinChosen() {
    if (state->form4.Combo3->listIndex() >= 0) reload();
  }

  void firstSkinChosen() {
    if (state->form3.List1->listIndex() < 0) return;
    chooseSkin(*state, state->form3.List1->text(), loader);
    followFonts();
  }

  void reload() {
    loader.reload();
    followFonts();
  }

  /// The list of fonts, once there is one, knows the families of the Skin that is loaded.
  void followFonts() {
    if (!state->form6.List1->list().isEmpty()) listFonts(*state);
  }

  void save() {
    const SkinFolder skin = skinFolder();
    const auto saveAll = [&] { saveRecords(*state, platform.disk, skin); };
    const auto saveCovers = [&] { covers.offerSave(skin); };
    if (writeOrTell(platform.dialogs, QStringLiteral("Save Skin"), saveAll))
      writeOrTell(platform.dialogs, QStringLiteral("Save Cover File"), saveCovers);
  }

  SkinFolder skinFolder() const { return currentSkinFolder(*state, platform.folder); }

  Platform& platform;
  std::unique_ptr<State> state = makeState();
  RefusalNotes refusals{*state};
  SkinProperties properties{*state, platform.screen};
  CoverLayouts covers{*state, platform, properties};
  TextureViewer textures{*state, platform};
  CanvasInput canvas{*state, platform.dialogs};
  ToolsPalette tools{*state, platform, platform.progress};
  SkinLoader loader{*state, platform, covers};
  std::vector<Attachment> attachments;
};

Designer::Designer(Platform& platform) : parts_(std::make_unique<Parts>(platform)) {}

Designer::~Designer() = default;

State& Designer::state() {
  return *parts_->state;
}

const Platform& Designer::platform() const {
  return parts_->platform;
}

SkinFolder Designer::skinFolder() const {
  return parts_->skinFolder();
}

bool Designer::startUp() {
  const bool isLoaded = veneerer::startUp(*parts_->state, parts_->platform, parts_->loader);
  parts_->followFonts();
  return isLoaded;
}

void Designer::openChooser() {
  veneerer::openChooser(*parts_->state, parts_->platform);
}

void Designer::reload(const QString& skinName) {
  parts_->state->form4.Combo3->setText(skinName);
  parts_->reload();
}

void Designer::save() {
  parts_->save();
}

void Designer::saveTo(const SkinFolder& folder) {
  saveRecords(*parts_->state, parts_->platform.disk, folder);
  parts_->covers.offerSave(folder);
}

void Designer::fillFonts() {
  if (parts_->state->form6.List1->list().isEmpty()) listFonts(*parts_->state);
}

void Designer::click(Element& element) {
  const RefusalNotes::Command command(parts_->refusals);
  parts_->state->board.click(element);
}

void Designer::press(Element& element, float x, float y, MouseButton button) {
  if (&element.window() == &parts_->state->form1) parts_->canvas.press(element, x, y, button);
}

void Designer::move(Element& element, float x, float y, MouseButton button) {
  if (&element.window() == &parts_->state->form1) parts_->canvas.move(element, x, y, button);
}

void Designer::doubleClick(Element& element) {
  parts_->state->board.doubleClick(element);
}

void Designer::resizeCanvas(float width, float height) {
  parts_->state->form1.setWidth(width);
  parts_->state->form1.setHeight(height);
}

}  // namespace veneerer
