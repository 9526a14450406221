#include "panels/textureviewer.h"

#include "elements/numbers.h"
#include "forms/currentskin.h"
#include "panels/grab.h"
#include "panels/texts.h"
#include "panels/textureslots.h"

namespace veneerer {

TextureViewer::TextureViewer(State& state, const Platform& platform) : state_(state), platform_(platform) {
  Switchboard& board = state.board;
  Form5& form5 = state.form5;
  const auto frame = [this](Element&) { chooseFrame(); };
  attachments_ = {board.onChange(*form5.Combo1, Property::ListIndex, [this](Element&) { showFrame(); }),
                  board.onClick(*form5.Command1, [this](Element&) { grabPlayerAndMenu(state_, platform_); }),
                  board.onClick(*form5.Command2, [this](Element&) { copyFrameToAll(); }),
                  board.onClick(*form5.Image16, frame), board.onClick(*form5.ucAniGIF1, frame)};
  for (const Family* family : form5.families())
    if (family->members().front()->kind() == Kind::ImageBox && family != &form5.Image16)
      attachments_.push_back(board.onClick(*family, [this](Element& e) { chooseTexture(e); }));
}

Picture TextureViewer::ask(const QString& filter, QString& name) const {
  const QString path = platform_.dialogs.chooseFile(filter);
  if (path.isEmpty()) return {};
  const Picture picture = state_.pictures.load(path);
  if (decodeAside(platform_, picture).isNull()) {
    platform_.dialogs.inform(
        QStringLiteral("Texture Viewer"),
        PanelTexts::tr("\"%1\" is no picture that can be shown.").arg(bareFileName(path)));
    return {};
  }
  name = u'\\' + bareFileName(path);
  return picture;
}

void TextureViewer::chooseTexture(Element& thumbnail) {
  const TextureSlot slot = textureSlot(state_, thumbnail);
  if (!slot.name) return;
  QString name;
  const Picture picture = ask(textureFilter(state_, thumbnail), name);
  if (picture.isNull()) return;
  thumbnail.set(Property::Picture, picture);
  for (Element* element : slot.canvas) element->set(Property::Picture, picture);
  slot.name->setValue(name);
}

void TextureViewer::chooseFrame() {
  const int row = state_.form5.Combo1->listIndex();
  if (row < 0 || row >= state_.names.AlbumFrameName.bound()) return;
  QString name;
  const Picture picture = ask(textureFilter(state_, *state_.form5.ucAniGIF1), name);
  if (picture.isNull()) return;
  state_.form1.ucAniGIF1[row].setPicture(picture);
  state_.form5.ucAniGIF1->setPicture(picture);
  state_.names.AlbumFrameName[row].setValue(name);
}

void TextureViewer::copyFrameToAll() {
  ImageTable& names = state_.names.AlbumFrameName;
  const int row = state_.form5.Combo1->listIndex();
  if (row < 0 || row >= names.bound()) return;
  const SkinFolder folder = currentSkinFolder(state_, platform_.folder);
  const QString path = folder.resolve(names[row].text());
  for (int i = 0; i < names.bound(); ++i) {
    if (i == row) continue;
    names[i].setValue(names[row].value());
    if (!path.isEmpty()) state_.form1.ucAniGIF1[i].setPicture(state_.pictures.load(path));
  }
}

// The caption names the list's position, which counts from 0.
void TextureViewer::showFrame() {
  const int row = state_.form5.Combo1->listIndex();
  if (row < 0 || row >= state_.names.AlbumFrameName.bound()) return;
  state_.form5.Label3[27].setCaption(QStringLiteral("Album Frame ") + signedNumber(row));
  state_.form5.ucAniGIF1->setPicture(state_.form1.ucAniGIF1[row].picture());
}

}  // namespace veneerer
