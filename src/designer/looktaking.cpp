#include "designer/looktaking.h"

#include <QSet>

#include "canvas/screens.h"
#include "designer/otherskin.h"
#include "designer/texts.h"
#include "editing/setting.h"
#include "forms/currentskin.h"
#include "records/recorderror.h"

namespace veneerer {

namespace {

TakenLook lookOf(State& state, const Platform& platform, const QString& skinName, int entry, LookPart part) {
  OtherSkin other(platform, skinName);
  return lookToTake({other.state(), other.folder()}, {state, currentSkinFolder(state, platform.folder)},
                    entry, part);
}

CopiedPictures copied(const TakenLook& look, const Platform& platform, const SkinFolder& skin) {
  QStringList paths;
  for (const TakenPicture& picture : look.pictures)
    if (!picture.path.isEmpty()) paths.append(picture.path);
  return copyPictures(platform.disk, skin, paths);
}

void give(State& state, const SkinFolder& skin, const TakenPicture& taken, const QString& reference) {
  const Picture picture = reference.isEmpty() ? Picture() : state.pictures.load(skin.resolve(reference));
  for (Element* element : taken.shownBy) element->set(Property::Picture, picture);
  taken.name->setValue(reference);
}

qsizetype elementsOf(const TakenLook& look) {
  QSet<const Element*> elements;
  for (const auto* values : {&look.values, &look.shapes})
    for (const TakenValue& taken : *values) elements.insert(taken.element);
  for (const TakenPicture& taken : look.pictures) elements.insert(taken.shownBy.front());
  return elements.size();
}

}  // namespace

std::optional<LookAtHand> fetchLook(State& state, const Platform& platform, const QString& skinName,
                                    LookPart part) {
  const int entry = shownEntry(state);
  const QString screen = entry < 0 ? QString() : screenTitle(entry);
  try {
    LookAtHand found;
    if (entry >= 0) found.look = lookOf(state, platform, skinName, entry, part);
    if (found.look.isEmpty()) {
      state.notes.say(entry < 0 ? DesignerTexts::tr("No screen is shown whose look could be taken.")
                                : DesignerTexts::tr("%1 looks the same in %2.").arg(screen, skinName));
      return std::nullopt;
    }
    found.copied = copied(found.look, platform, currentSkinFolder(state, platform.folder));
    return found;
  } catch (const RecordError& error) {
    platform.dialogs.inform(DesignerTexts::tr("Take from Another Skin"),
                            DesignerTexts::tr("Nothing is taken. %1").arg(error.message()));
    return std::nullopt;
  }
}

void giveLook(State& state, const SkinFolder& skin, const QString& skinName, const LookAtHand& found) {
  for (const TakenValue& taken : found.look.values) setProperty(*taken.element, taken.property, taken.value);
  for (const TakenPicture& taken : found.look.pictures)
    give(state, skin, taken, found.copied.references.value(taken.path));
  for (const TakenValue& taken : found.look.shapes) setProperty(*taken.element, taken.property, taken.value);
  const qsizetype count = elementsOf(found.look);
  const QString elements =
      count == 1 ? DesignerTexts::tr("1 element") : DesignerTexts::tr("%1 elements").arg(count);
  const QStringList& files = found.copied.names;
  state.notes.say(files.isEmpty()
                      ? DesignerTexts::tr("The look of %1 is taken from %2.").arg(elements, skinName)
                      : DesignerTexts::tr("The look of %1 is taken from %2; copied into the Skin: %3.")
                            .arg(elements, skinName, files.join(QStringLiteral(", "))));
}

}  // namespace veneerer
