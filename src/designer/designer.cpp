#include "designer/designer.h"

#include <algorithm>

#include "canvas/canvasinput.h"
#include "canvas/sections.h"
#include "design/design.h"
#include "designer/droppedpicture.h"
#include "designer/looktaking.h"
#include "designer/picturesanew.h"
#include "designer/refusalnotes.h"
#include "designer/texts.h"
#include "elements/numbers.h"
#include "elements/printable.h"
#include "elements/require.h"
#include "forms/currentskin.h"
#include "history/stepname.h"
#include "panels/coverlayout.h"
#include "panels/skinproperties.h"
#include "panels/textureviewer.h"
#include "platform/program.h"
#include "problems/applyremedy.h"
#include "records/writefiles.h"
#include "skin/skinloader.h"
#include "skin/skinsaver.h"
#include "skin/startup.h"
#include "tools/colourtools.h"
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

/// Whether one of those elements holds it.
bool standsWithin(const Element& element, const std::vector<Element*>& elements) {
  const Element* container = element.container();
  while (container && std::ranges::find(elements, container) == elements.end())
    container = container->container();
  return container != nullptr;
}

/// The steps of the remedies, by their kind.
constexpr const char* kRemedyNames[] = {
    QT_TRANSLATE_NOOP("Designer", "Use Another Picture"),
    QT_TRANSLATE_NOOP("Designer", "Copy Picture into the Skin (its file stays)"),
    QT_TRANSLATE_NOOP("Designer", "Mend Caption"),
    QT_TRANSLATE_NOOP("Designer", "Set Shape to 0"),
    QT_TRANSLATE_NOOP("Designer", "Set Resolution"),
    QT_TRANSLATE_NOOP("Designer", "Copy Twin (its file stays)")};

/// The name of a step that has written files as well, which no undo brings back.
QString writing(const QString& name) {
  return DesignerTexts::tr("%1 (its files stay)").arg(name);
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
    const QString name = state->form3.List1->text();
    loadAs(name, [&] { chooseSkin(*state, name, loader); });
  }

  void reload() {
    loadAs(state->form4.Combo3->text(), [&] { loader.reload(); });
  }

  void loadAs(const QString& name, const std::function<void()>& load) {
    const QString refusal = isLoaded() ? loader.refusal(SkinFolder(platform.folder, name)) : QString();
    if (!refusal.isEmpty()) return stay(refusal);
    const bool isFirst = !isLoaded();
    const QString before = loadedSkin;
    {
      const History::Action action(history, DesignerTexts::tr("Skin %1").arg(shownText(name)));
      load();
      hasLoaded();
      if (before != loadedSkin) state->globals.SkinBefore->setText(before);
      history.markClean();
    }
    if (isFirst) history.start();
  }

  /// The Skin in hand isn't lost for one that can't be read.
  void stay(const QString& refusal) {
    state->form4.Combo3->setText(loadedSkin);
    platform.dialogs.inform(programTitle(), DesignerTexts::tr("Nothing is loaded. %1").arg(refusal));
  }

  void hasLoaded() {
    loadedSkin = state->form4.Combo3->text();
    followFonts();
  }

  bool isLoaded() const { return !loadedSkin.isEmpty(); }

  /// The list of fonts, once there is one, knows the families of the Skin that is loaded.
  void followFonts() {
    if (!state->form6.List1->list().isEmpty()) listFonts(*state);
  }

  void save() {
    const SkinFolder skin = skinFolder();
    WrittenFiles written;
    const auto saveAll = [&] { written = saveRecords(*state, platform.disk, skin); };
    const auto saveCovers = [&] { covers.offerSave(skin); };
    if (!writeOrTell(platform.dialogs, QStringLiteral("Save Skin"), saveAll)) return;
    history.markClean();
    writeOrTell(platform.dialogs, QStringLiteral("Save Cover File"), saveCovers,
                DesignerTexts::tr("The record files are saved, the cover layout isn't. "));
    // Behind the question of the covers, whose answer would end it at once.
    sayWritten(state->notes, skin.path(), written);
  }

  /// The commands that do nothing but write files, and list them anew.
  bool isSave(const Element& element) const {
    return &element == &*state->form4.Command4 || &element == &*state->form4.Command1 ||
           &element == &*state->form2.Command1;
  }

  QString nameOf(const Element& element) const {
    const QString name = actionName(*state, element);
    const bool writes = &element == &*state->form6.Command10 || &element == &*state->form5.Command1;
    return writes ? writing(name) : name;
  }

  void click(Element& element) {
    const RefusalNotes::Command command(refusals);
    state->board.click(element);
  }

  SkinFolder skinFolder() const { return currentSkinFolder(*state, platform.folder); }

  Platform& platform;
  std::unique_ptr<State> state = makeState();
  RefusalNotes refusals{*state};
  SkinProperties properties{*state, platform.screen};
  CoverLayouts covers{*state, platform, properties};
  TextureViewer textures{*state, platform};
  CanvasInput canvas{*state, platform};
  ToolsPalette tools{*state, platform, platform.progress};
  SkinLoader loader{*state, platform, covers};
  History history{*state, [this] {
                    canvas.refill();
                    loadedSkin = state->form4.Combo3->text();
                  }};
  OverlaySelection overlay;
  const char gesture = 0;  ///< its address is what a press, its moves and its click join
  QString loadedSkin;      ///< its name; empty before the first load, which is no step
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

bool Designer::startUp(const QString& skinName) {
  const bool isLoaded = veneerer::startUp(*parts_->state, parts_->platform, parts_->loader, skinName);
  if (!isLoaded) return false;
  parts_->hasLoaded();
  parts_->history.start();
  return true;
}

void Designer::openSkin(const QString& skinName) {
  listSkins();
  parts_->loadAs(skinName, [&] { chooseSkin(*parts_->state, skinName, parts_->loader); });
}

void Designer::listSkins() {
  // The list follows the disk.
  const History::Pause pause(parts_->history);
  veneerer::listSkins(*parts_->state, parts_->platform);
}

void Designer::reload(const QString& skinName) {
  const History::Action action(parts_->history);
  parts_->state->form4.Combo3->setText(skinName);
  parts_->reload();
}

void Designer::goOnWithCopy(const QString& skinName) {
  listSkins();
  const History::Action action(parts_->history);
  const SkinFolder before = skinFolder();
  TextBox& skinBefore = *state().globals.SkinBefore;
  const QString earlier = skinBefore.text();
  reload(skinName);
  // Nothing is left behind from another Skin: the copy has all of it.
  skinBefore.setText(earlier);
  showOfCopy(state(), before, skinFolder());
}

void Designer::save() {
  parts_->save();
}

void Designer::saveTo(const SkinFolder& folder) {
  const WrittenFiles written = saveRecords(*parts_->state, parts_->platform.disk, folder);
  parts_->covers.offerSave(folder);
  sayWritten(parts_->state->notes, folder.path(), written);
}

void Designer::fillFonts() {
  if (parts_->state->form6.List1->list().isEmpty()) listFonts(*parts_->state);
}

void Designer::click(Element& element) {
  if (parts_->isSave(element)) {
    const History::Pause pause(parts_->history);
    return parts_->click(element);
  }
  const bool isOnCanvas = &element.window() == &parts_->state->form1;
  const History::Action action(parts_->history, parts_->nameOf(element),
                               isOnCanvas ? &parts_->gesture : nullptr);
  parts_->click(element);
}

void Designer::press(Element& element, float x, float y, MouseButton button) {
  if (&element.window() != &parts_->state->form1) return;
  parts_->history.settle();
  const History::Action action(parts_->history, {}, &parts_->gesture);
  parts_->canvas.press(element, x, y, button);
}

void Designer::move(Element& element, float x, float y, MouseButton button) {
  if (&element.window() != &parts_->state->form1) return;
  const History::Action action(parts_->history, {}, &parts_->gesture);
  parts_->canvas.move(element, x, y, button);
}

void Designer::nudge(Element& element, int dxPixels, int dyPixels) {
  nudge(std::vector<Element*>{&element}, dxPixels, dyPixels);
}

void Designer::nudge(const std::vector<Element*>& elements, int dxPixels, int dyPixels) {
  if (elements.empty()) return;
  const Screen& screen = parts_->platform.screen;
  const auto x = static_cast<float>(dxPixels * screen.twipsPerPixelX());
  const auto y = static_cast<float>(dyPixels * screen.twipsPerPixelY());
  const History::Action action(parts_->history, {}, elements.front());
  for (Element* element : elements) {
    if (&element->window() != &parts_->state->form1 || standsWithin(*element, elements)) continue;
    parts_->canvas.press(*element, 0, 0, MouseButton::Left);
    parts_->canvas.move(*element, x, y, MouseButton::Left);
  }
}

void Designer::sizeInHand(std::optional<float> width, std::optional<float> height) {
  Element* element = currentElement(*parts_->state, ToolField::Size);
  if (!element) return;
  Array<TextBox>& fields = parts_->state->form6.Text3;
  const History::Action action(parts_->history, {}, &fields);
  // A text that stands in its field already would be no change.
  parts_->canvas.refill();
  if (height) fields[0].setText(singleText(*height));
  if (width) fields[1].setText(singleText(*width));
}

void Designer::type(Element& field, const QString& text) {
  const History::Action action(parts_->history, actionName(*parts_->state, field), &field);
  field.set(Property::Text, text);
}

bool Designer::choose(RowList& list, int row) {
  const History::Action action(parts_->history, actionName(*parts_->state, list));
  return list.select(row);
}

void Designer::chooseTwice(RowList& list, int row) {
  require(row >= 0 && list.hasRow(row), "a row that is there is chosen");
  const History::Action action(parts_->history, actionName(*parts_->state, list));
  list.setText(list.list().at(row));
  parts_->state->board.doubleClick(list);
}

void Designer::tick(CheckBox& box, int value) {
  const History::Action action(parts_->history, actionName(*parts_->state, box));
  box.setValue(value);
}

void Designer::select(OptionButton& option) {
  const History::Action action(parts_->history);
  option.select();
}

void Designer::resizeCanvas(float width, float height) {
  const History::Action action(parts_->history, {}, &parts_->state->form1);
  parts_->state->form1.setWidth(width);
  parts_->state->form1.setHeight(height);
}

void Designer::setProperty(const std::vector<Element*>& elements, Property property, const Value& value) {
  const History::Action action(parts_->history);
  const RefusalNotes::Command command(parts_->refusals);
  for (Element* element : elements)
    if (element->has(property)) veneerer::setProperty(*element, property, value);
}

void Designer::recolour(const Dress& dress) {
  const History::Action action(parts_->history, DesignerTexts::tr("Recolour"));
  for (const DressedColour& dressed : dress.colours()) dressed.element->set(dressed.property, dressed.colour);
}

void Designer::pasteLook(const CopiedLook& look, const std::vector<Element*>& to) {
  const History::Action action(parts_->history, DesignerTexts::tr("Paste Style"));
  const RefusalNotes::Command command(parts_->refusals);
  for (Element* element : to) giveLook(look, *element);
}

void Designer::giveColour(Element& swatch, Colour colour) {
  const History::Action action(parts_->history, parts_->nameOf(swatch));
  if (&swatch == &*state().form6.Picture1) takeHighlightColour(state(), colour);
  if (&swatch == &*state().form6.Picture2) takeColour(state(), colour);
}

void Designer::takeLook(const QString& skinName, LookPart part) {
  const std::optional<LookAtHand> found = fetchLook(*parts_->state, parts_->platform, skinName, part);
  if (!found) return;
  const QString name = DesignerTexts::tr("Look of %1").arg(shownText(skinName));
  const History::Action action(parts_->history, found->copied.names.isEmpty() ? name : writing(name));
  const RefusalNotes::Command command(parts_->refusals);
  giveLook(*parts_->state, skinFolder(), skinName, *found);
}

void Designer::align(AlignTo line) {
  const History::Action action(parts_->history, DesignerTexts::tr("Align"));
  alignElements(parts_->overlay.elements(), line);
}

void Designer::distribute(Along along) {
  const History::Action action(parts_->history, DesignerTexts::tr("Distribute"));
  distributeElements(parts_->overlay.elements(), along);
}

void Designer::makeSameSize(Sides sides) {
  const History::Action action(parts_->history, DesignerTexts::tr("Same Size"));
  veneerer::makeSameSize(parts_->overlay.elements(), sides);
}

void Designer::apply(const Remedy& remedy) {
  const History::Action action(parts_->history,
                               DesignerTexts::tr(kRemedyNames[static_cast<std::size_t>(remedy.kind)]));
  const RefusalNotes::Command command(parts_->refusals);
  try {
    applyRemedy(*parts_->state, parts_->platform.disk, skinFolder(), remedy);
  } catch (const RecordError& error) {
    return parts_->platform.dialogs.inform(DesignerTexts::tr("Problems"),
                                           DesignerTexts::tr("Nothing is changed. %1").arg(error.message()));
  }
  if (remedy.writes()) parts_->state->notes.say(DesignerTexts::tr("%1 is written.").arg(remedy.target));
}

bool Designer::takesPicture(Element& element, const QString& path) {
  return pictureTaker(state(), element, path) != nullptr;
}

void Designer::drop(Element& element, const QString& path) {
  Element* taker = pictureTaker(state(), element, path);
  if (!taker) return;
  Dialogs& dialogs = parts_->platform.dialogs;
  dialogs.giveFile(path);
  if (&taker->window() == &state().form1)
    press(*taker, 0, 0, MouseButton::Right);
  else
    click(*taker);
  // Without a frame chosen the preview asks for no file.
  dialogs.giveFile({});
  parts_->history.settle();
}

void Designer::readAnew(const QSet<QString>& paths) {
  const History::Pause pause(parts_->history);
  showAnew(state(), skinFolder(), paths);
}

OverlaySelection& Designer::overlay() {
  return parts_->overlay;
}

History& Designer::history() {
  return parts_->history;
}

}  // namespace veneerer
