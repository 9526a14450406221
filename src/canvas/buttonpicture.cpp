#include "canvas/buttonpicture.h"

#include "canvas/texts.h"
#include "platform/skinfolder.h"

namespace veneerer {

namespace {

void give(State& state, Element& element, const Picture& picture, const QString& reference) {
  element.set(Property::Picture, picture);
  if (ImageSlot* name = state.names.of(element)) name->setValue(reference);
}

}  // namespace

bool takesChosenPicture(const State& state, const Element& element) {
  return (&element.window() == &state.form1 && element.kind() == Kind::Button) ||
         element.family() == &state.form1.Picture17;
}

void choosePicture(State& state, const Platform& platform, Element& element) {
  const QString path = platform.dialogs.chooseFile(QString::fromLatin1(kButtonPictures));
  if (path.isEmpty()) {
    give(state, element, Picture(), QString());
    return;
  }
  const Picture picture = state.pictures.load(path);
  if (decodeAside(platform, picture).isNull()) {
    platform.dialogs.inform(CanvasTexts::tr("Image"),
                            CanvasTexts::tr("The image can't be read: %1").arg(path));
    return;
  }
  give(state, element, picture, u'\\' + bareFileName(path));
  if (element.kind() == Kind::Button) cast<Button>(element).setPictureSize(PictureSize::Stretched);
}

}  // namespace veneerer
