// What belongs to the Skin as a whole rather than to one screen.
//
// main.ini isn't the file of the Main Screen: it places the frames and the containers of the screens 0 to 13;
// all later containers stand in their own screens' files. font.ini and key_highlight.ini hold no font and no
// key, only the colours of two samples on Form6.
#include "elements/numbers.h"
#include "elements/printable.h"
#include "forms/windowframe.h"
#include "records/recorderror.h"
#include "records/recordfiles.h"

namespace veneerer {

namespace {

// The backdrop of row i: its thumbnail and the screen behind it. Rows 11 and 13 reach no canvas element, row
// 12 is shown by no thumbnail and on another screen, row 13 has no thumbnail of its own.
std::vector<Element*> backdropBoxes(State& state, int i) {
  std::vector<Element*> boxes;
  if (i != 12 && i != 13) boxes.push_back(&state.form5.Image1[i]);
  if (i == 0) boxes.push_back(&state.form1);
  if (i > 0 && i < 11) boxes.push_back(&state.form1.Picture1[i]);
  if (i == 12) boxes.push_back(&state.form1.Picture1[14]);
  return boxes;
}

void showCount(const Family& family, int count) {
  for (Element* member : family.members())
    if (member->index() < kTracks) member->setVisible(member->index() < count);
}

void showTrackRows(Loading& loading) {
  Form1& form1 = loading.state.form1;
  const int count = leadingWhole(loading.state.form4.Combo1->text());
  for (const Family* family : std::initializer_list<const Family*>{&form1.Label1, &form1.Label3,
                                                                   &form1.Label60, &form1.aicAlphaImage1})
    showCount(*family, count);
}

// Fixed pictures that come from no record.
void fillPlaceholders(Loading& loading) {
  State& state = loading.state;
  for (int i = 0; i < kCovers; ++i)
    loading.show(QStringLiteral("\\images\\ImageNotFound.jpg"), state.form1.Image2[i]);
  loading.show(QStringLiteral("\\images\\slider_back.bmp"), *state.form1.Picture6);
  loading.show(QStringLiteral("\\images\\progress_slider_back.bmp"), *state.form1.Picture18);
  loading.show(QStringLiteral("\\images\\menu.bmp"), *state.form5.Image6);
  loading.show(QStringLiteral("\\images\\player.bmp"), *state.form5.Image3);
}

/// The canvas window's width (0) or height (1) in twips for the Skin's own, widened by that many pixels.
float windowSide(const Loading& loading, Axis axis, int surplus) {
  const TextBox& field = loading.state.form4.Text1[static_cast<int>(axis)];
  const auto twips = PixelsToTwips(loading.screen, leadingNumber(field.text()) + surplus, axis);
  if (!twips)
    throw RecordError(QStringLiteral("resolution.ini"), 4 + static_cast<int>(axis), field.key(),
                      QStringLiteral("Text"),
                      QStringLiteral("%1 pixels are out of range").arg(excerpt(field.text())),
                      {loading.folder.path(), field.text()});
  return static_cast<float>(*twips);
}

}  // namespace

Layout skinFile(State& state) {
  ImageTable& names = state.names.ImageName;
  Layout file(state, "skin.ini");
  file.resumeOnError();
  file.literal("Merlane Skins File V2.4");
  file.literal("----------------------");
  for (int i = 0; i < 14; ++i) {
    file.labelLine("", state.form5.Label3[i]);
    file.reference(names[i], backdropBoxes(state, i));
  }
  // Entries 12 and 13 stand here a second time: on reading, these later lines win.
  file.literal("Album Frame");
  file.reference(names[12], {&*state.form5.Image2});
  file.literal("Player Contols");
  file.reference(names[13], {&*state.form5.Image3, &state.form1.Picture2[1]});
  file.literal("Logo");
  file.reference(names[14], {&*state.form5.Image4, &state.form1.Picture2[2]});
  file.literal("Number of tracks shown");
  file.field(ValueKind::Text, *state.form4.Combo1, Property::Text);
  file.then(showTrackRows);
  file.optionalFromHere();
  file.literal("Genre Icons");
  file.literal("NULL");
  file.block();
  file.literal("Default Home Screen");
  file.listIndex(*state.form4.Combo9);
  file.atEnd(fillPlaceholders);
  return file;
}

Layout resolutionFile(State& state) {
  Layout file(state, "resolution.ini");
  file.literal("Merlane Skins File V2");
  file.literal("----------------------");
  file.literal("Resolution");
  file.field(ValueKind::Text, state.form4.Text1[0], Property::Text);
  file.field(ValueKind::Text, state.form4.Text1[1], Property::Text);
  file.atEnd([](Loading& loading) {
    loading.state.form1.setWidth(windowSide(loading, Axis::X, kFramePixels));
    loading.state.form1.setHeight(windowSide(loading, Axis::Y, 0) + kFrameTwips);
  });
  return file;
}

// Picture2(8) to (11) are left out: their own screens' files hold them.
Layout mainFile(State& state) {
  Form1& form1 = state.form1;
  Layout file(state, "main.ini");
  file.places(form1.Picture2, 0, 7);
  file.places(form1.Picture1, 0, 13);
  file.labels(form1.Label4, 0, 4);
  file.labels(form1.Label27, 0, 1);
  file.optionalFromHere();
  file.labelRecord(*form1.Label41);
  file.labels(form1.Label27, 2, 2);
  file.places(form1.Picture2, 12, 13);
  file.labels(form1.Label4, 5, 5);
  file.reference(*state.names.MainPanelName, {&form1.Picture2[12]});
  return file;
}

Layout fontFile(State& state) {
  Layout file(state, "font.ini");
  file.colours(*state.form6.Label5);
  return file;
}

Layout keyHighlightFile(State& state) {
  Layout file(state, "key_highlight.ini");
  file.field(ValueKind::Colour, *state.form6.Picture1, Property::BackColor);
  return file;
}

}  // namespace veneerer
