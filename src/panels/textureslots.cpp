#include "panels/textureslots.h"

namespace veneerer {

namespace {

// Index 0 is the canvas window's own picture and Picture1(0); 11 reaches no canvas element; 12 is the search
// choice screen, whose name has a place of its own.
TextureSlot backdropSlot(State& state, int i) {
  TextureSlot slot{&state.form5.Image1[i], {}, &state.names.ImageName[i]};
  if (i == 0) slot.canvas.push_back(&state.form1);
  if (i <= 10) slot.canvas.push_back(&state.form1.Picture1[i]);
  if (i == 12) {
    slot.canvas.push_back(&state.form1.Picture1[14]);
    slot.name = &*state.names.SearchChoiceName;
  }
  return slot;
}

std::vector<TextureSlot> singleSlots(State& state) {
  Form5& f = state.form5;
  Array<PictureBox>& screen = state.form1.Picture1;
  ImageNames& n = state.names;
  return {
      {&*f.Image2, {}, &n.ImageName[12]},
      {&*f.Image3, {&state.form1.Picture2[1]}, &n.ImageName[13]},
      {&*f.Image4, {&state.form1.Picture2[2]}, &n.ImageName[14]},
      {&*f.Image7, {&screen[11]}, &*n.SearchResultsName},
      {&*f.Image5, {&screen[12]}, &*n.JumpToLetterName},
      {&*f.Image8, {&screen[13]}, &*n.GenreName},
      {&*f.Image9, {&screen[15]}, &*n.PlayOptionsName},
      {&*f.Image10, {&screen[16]}, &*n.PinScreenName},
      {&*f.Image11, {&screen[17]}, &*n.DecadesYearName},
      {&*f.Image12, {&screen[18]}, &*n.DecadesSelectorName},
      {&*f.Image13, {&screen[19]}, &*n.DecadesMonthName},
      {&*f.Image15, {&screen[20]}, &*n.PlaylistLoadName},
      {&*f.Image14, {&screen[21]}, &*n.PlaylistSaveName},
      {&*f.Image17, {&screen[22]}, &*n.NoSearchName},
      {&*f.Image18, {&screen[23]}, &*n.RequestName},
      {&*f.Image19, {&screen[24]}, &*n.LoginName},
      {&*f.Image20, {&screen[25]}, &*n.MemberHomeName},
      {&*f.Image21, {&screen[27]}, &*n.CollectionsName},
      {&*f.Image22, {&screen[28]}, &*n.ConfirmationName},
  };
}

}  // namespace

TextureSlot textureSlot(State& state, const Element& thumbnail) {
  if (thumbnail.family() == &state.form5.Image1) return backdropSlot(state, thumbnail.index());
  for (const TextureSlot& slot : singleSlots(state))
    if (slot.thumbnail == &thumbnail) return slot;
  return {nullptr, {}, nullptr};
}

QString textureFilter(State& state, const Element& thumbnail) {
  const Form5& form5 = state.form5;
  if (&thumbnail == &*form5.Image16 || &thumbnail == &*form5.ucAniGIF1)
    return QStringLiteral("GIF Files|*.gif");
  if (&thumbnail == &*form5.Image4) return QStringLiteral("Image Files|*.bmp;*.jpg;*.gif");
  return textureSlot(state, thumbnail).name ? QStringLiteral("Image Files|*.bmp;*.jpg") : QString();
}

}  // namespace veneerer
