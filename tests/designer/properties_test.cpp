// What the textures of Form5 reach; the choices of Form4 are told by choices_test.cpp.
#include <gtest/gtest.h>

#include "designer/skinfixture.h"
#include "panels/textureslots.h"
#include "panels/textureviewer.h"
#include "support/effects.h"
#include "tools/rescaletables.h"

namespace veneerer {
namespace {

class Properties : public test::SkinFixture {
protected:
  Properties() { start(); }
};

TEST_F(Properties, TexturesReachTheCanvasAndTheNames) {
  const QString picture = root.path() + "/back.bmp";
  QImage(8, 6, QImage::Format_RGB32).save(picture);
  world.dialogs.files << picture << QString() << root.path() << picture << picture;
  Form5& form5 = state().form5;
  designer->click(form5.Image1[12]);
  EXPECT_EQ(form1().Picture1[14].picture().path(), picture);
  EXPECT_EQ(state().names.SearchChoiceName->text().toStdString(), "\\back.bmp");
  designer->click(form5.Image1[0]);
  EXPECT_TRUE(form1().picture().isNull()) << "cancelled";
  designer->click(form5.Image1[0]);
  EXPECT_TRUE(form1().picture().isNull()) << "no picture";
  EXPECT_EQ(world.dialogs.messages.last().title.toStdString(), "Texture Viewer");
  designer->click(form5.Image1[0]);
  EXPECT_EQ(form1().picture(), form1().Picture1[0].picture());
  designer->click(*form5.Image6);
  EXPECT_EQ(world.dialogs.files.size(), 1) << "the menu's thumbnail has no action";

  // The grab cuts the panels out of that backdrop, that of the menu without a border.
  form1().Picture2[0].place(15, 30, 60, 45);
  form1().Picture2[0].setBorderStyle(1);
  form1().Picture2[1].setBorderStyle(0);
  designer->click(*form5.Command1);
  const QImage menu(path("images/Menu.bmp"));
  EXPECT_EQ(menu.size(), QSize(4, 3));
  EXPECT_EQ(form1().Picture2[0].picture().path(), path("images/Menu.bmp"));
  EXPECT_EQ(form1().Picture2[0].as<std::int32_t>(Property::BorderStyle), 0);
  EXPECT_EQ(form1().Picture2[1].as<std::int32_t>(Property::BorderStyle), 1);
  EXPECT_EQ(state().names.ImageName[13].text(), path("images/Player.bmp"));
}

// A thumbnail shows its picture, gives it to its screen and keeps its name, each in its own place.
TEST(Textures, OfEachThumbnailReachTheirOwnPlaces) {
  QTemporaryDir root;
  const QString picture = root.filePath("Skins/S/images/back.bmp");
  QDir().mkpath(QFileInfo(picture).path());
  QImage(8, 6, QImage::Format_RGB32).save(picture);
  test::ScriptedPlatform world;
  world.platform.folder.path = root.path();
  State state;
  state.form4.Combo3->setText("S");
  state.form5.Combo1->setRows({"0", "1", "2", "3"});
  state.form5.Combo1->select(2);
  const TextureViewer viewer(state, world.platform);
  test::Effects effects(state);
  QString told;
  for (const Family* family : state.form5.families())
    for (Element* thumbnail : family->members()) {
      if (thumbnail->kind() != Kind::ImageBox && thumbnail->kind() != Kind::AnimatedFrame) continue;
      world.dialogs.files.clear();
      world.dialogs.files.enqueue(picture);
      const auto changed = effects.of([&] { state.board.click(*thumbnail); },
                                      [&](const Element& element) { return &element != thumbnail; });
      const QString words = effects.told(changed);
      told += QStringLiteral("%1  %2\n").arg(thumbnail->key(), words.isEmpty() ? "nothing" : words);
    }
  test::expectParagraphs(told, VENEERER_SOURCE_DIR "/tests/designer/textures.txt");
}

TEST(Textures, ARescaleSizesEachForTheScreenThatShowsIt) {
  State state;
  std::map<const ImageSlot*, std::vector<Element*>> shownBy;
  for (const Family* family : state.form5.families())
    for (const Element* thumbnail : family->members())
      if (const TextureSlot slot = textureSlot(state, *thumbnail); slot.name)
        shownBy[slot.name] = slot.canvas;
  for (const RescaleTarget& target : kRescaleTargets) {
    const ImageSlot& name = target.name(state.names);
    // This one stands for the panel that the search results took over.
    if (&name == &state.names.ImageName[11]) continue;
    EXPECT_GT(std::ranges::count(shownBy[&name], target.family(state).find(target.index)), 0)
        << name.key().toStdString();
  }
}

}  // namespace
}  // namespace veneerer
