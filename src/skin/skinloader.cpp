#include "skin/skinloader.h"

#include "files/plainfile.h"
#include "forms/currentskin.h"
#include "platform/program.h"
#include "records/layoutreader.h"
#include "records/recorderror.h"
#include "skin/texts.h"

namespace veneerer {

SkinLoader::SkinLoader(State& state, const Platform& platform, CoverLayouts& covers)
    : state_(state), platform_(platform), covers_(covers) {}

SkinFolder SkinLoader::folder() const {
  return currentSkinFolder(state_, platform_.folder);
}

void SkinLoader::load() {
  const SkinFolder skin = folder();
  covers_.listFiles();
  if (!covers_.firstFile().isEmpty()) covers_.load(skin.file(covers_.firstFile()));
  loadStars(skin);
  for (const LoadEntry& entry : loadOrder()) {
    if (entry.splash) tell(entry.splash);
    read(entry.layout, skin);
  }
  tell("Loading...(MENU IMAGES)");
  showMenuPictures(skin);
  tellWhatNoSaveCanWrite(skin);
  state_.form1.Picture1[0].setVisible(true);
  showWindows();
}

QString SkinLoader::refusal(const SkinFolder& skin) const {
  for (const LoadEntry& entry : loadOrder()) {
    const Layout layout = entry.layout(state_);
    const QString& name = layout.fileName();
    const QString fault = faultInside(skin.path(), skin.file(name), kMostRecordBytes);
    if (!layout.isEmpty() && !fault.isEmpty()) return RecordError(name, 0, {}, {}, fault).message();
  }
  return {};
}

void SkinLoader::reload() {
  const SkinFolder skin = folder();
  for (const MakeLayout layout : reloadOrder()) read(layout, skin);
  showMenuPictures(skin);
  tellWhatNoSaveCanWrite(skin);
  covers_.listFiles();
}

void SkinLoader::read(MakeLayout makeLayout, const SkinFolder& skin) {
  Loading loading{state_, skin, platform_.screen};
  const Layout layout = makeLayout(state_);
  const QString failure = readRecordFile(layout, skin.file(layout.fileName()), loading);
  if (!failure.isEmpty()) platform_.dialogs.inform(programTitle(), failure);
}

// What stands in the way of the files that a load reads ends the load. The others are only ever written.
void SkinLoader::tellWhatNoSaveCanWrite(const SkinFolder& skin) {
  for (const SaveEntry& entry : saveOrder()) {
    if (isLoaded(entry)) continue;
    const QString name = savedName(entry, entry.layout(state_));
    const QString fault = faultInside(skin.path(), skin.file(name), kMostRecordBytes);
    if (!fault.isEmpty()) state_.notes.say(SkinTexts::tr("No save can write %1: %2.").arg(name, fault));
  }
}

// A Skin without a star of its own takes the one beside the program.
void SkinLoader::loadStars(const SkinFolder& skin) {
  QString path = skin.resolve(QStringLiteral("\\images\\star 0.png"));
  if (path.isEmpty())
    path = SkinFolder(platform_.folder.path).resolve(QStringLiteral("\\images\\star 0.png"));
  const Picture star = state_.pictures.load(path);
  if (star.isNull()) return;
  for (Element* element : state_.form1.aicAlphaImage1.members()) element->set(Property::Picture, star);
}

void SkinLoader::showMenuPictures(const SkinFolder& skin) {
  const Loading loading{state_, skin, platform_.screen};
  loading.show(QStringLiteral("\\images\\Menu.bmp"), state_.form1.Picture2[0]);
  loading.show(QStringLiteral("\\images\\Menupopup.bmp"), *state_.form1.Picture23);
}

void SkinLoader::showWindows() {
  for (Window* window : std::initializer_list<Window*>{&state_.form4, &state_.form5, &state_.form6,
                                                       &state_.form1, &state_.form2})
    window->setVisible(true);
  state_.frmSplash.setVisible(false);
}

void SkinLoader::tell(const char* progress) {
  state_.frmSplash.Label3->setCaption(QString::fromLatin1(progress));
}

}  // namespace veneerer
