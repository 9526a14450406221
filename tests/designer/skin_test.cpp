// Whole Skins: start-up, load, reload, save.
#include <gtest/gtest.h>

#include <QFileInfo>

#include "designer/skinfixture.h"
#include "skin/catalogue.h"

namespace veneerer {
namespace {

using Skin = test::SkinFixture;

TEST_F(Skin, TheSplashTellsWhatAFullLoadReadsAndAReloadTellsNothing) {
  QStringList told;
  const Attachment watching = state().board.watch([&](const Change& change) {
    const Element& label = *state().frmSplash.Label3;
    if (&change.element == &label) told.append(label.as<QString>(Property::Caption));
  });
  start();
  QStringList expected = {"Reading Skin List...", "Setting Up Veneerer..."};
  for (const LoadEntry& entry : loadOrder()) {
    const QString text = QString::fromLatin1(entry.splash ? entry.splash : "");
    if (!text.isEmpty() && text != expected.last()) expected.append(text);
  }
  expected.append("Loading...(MENU IMAGES)");
  EXPECT_EQ(told.join(u'\n').toStdString(), expected.join(u'\n').toStdString());
  told.clear();
  designer->reload("S");
  EXPECT_TRUE(told.isEmpty());
}

TEST_F(Skin, TheWindowsComeUpInTheirOrderAndTheSplashGoesLast) {
  QStringList told;
  const Attachment watching = state().board.watch([&](const Change& change) {
    if (change.property == Property::Visible && !change.element.family())
      told.append(change.element.key() + (change.element.isVisible() ? u'+' : u'-'));
  });
  start();
  EXPECT_EQ(told.join(u' ').toStdString(), "frmSplash+ Form4+ Form5+ Form6+ Form1+ Form2+ frmSplash-");
  told.clear();
  state().form4.setVisible(false);
  designer->openSkin("S");
  EXPECT_EQ(told.join(u' ').toStdString(), "Form4- Form4+")
      << "the canvas stays; a full load shows the windows";
}

TEST_F(Skin, ANamedOneIsLoadedWithoutAQuestion) {
  makeSkin("Other");
  EXPECT_TRUE(designer->startUp("Other"));
  EXPECT_EQ(form4().Combo3->text().toStdString(), "Other");
  EXPECT_TRUE(form1().isVisible());
  EXPECT_TRUE(world.dialogs.messages.isEmpty());
}

TEST_F(Skin, TheFileWithoutEffectIsNeitherReadNorWritten) {
  // Larger than any record file may be: opening it would fail.
  constexpr qint64 kSize = 17 * 1024 * 1024;
  write("back.ini", {});
  ASSERT_TRUE(QFile(path("back.ini")).resize(kSize));
  start();
  designer->reload("S");
  designer->saveTo(SkinFolder(root.path() + "/Skins/S"));
  EXPECT_EQ(QFileInfo(path("back.ini")).size(), kSize);
}

TEST_F(Skin, StartsFromTheSettingsAndFallsBackToTheDefault) {
  world.settings.values.insert("Settings/Skin", "Gone");
  start();
  EXPECT_EQ(form4().Combo3->text().toStdString(), "Black_and_Blue_gif_V8.0(800x600)");
  EXPECT_EQ(world.dialogs.messages.first().title.toStdString(), "Load Current Skin");
  EXPECT_EQ(form4().Combo12->list().first().toStdString(), " 1 Albums");
  EXPECT_EQ(state().form6.Combo1->list().last().toStdString(), "Style  8");
  EXPECT_EQ(form1().Picture20[3].toolTipText().toStdString(), "Genre Icon  3");
}

TEST_F(Skin, CancelShowsTheChooserAndLoadsNothingUntilAnEntryIsChosen) {
  makeSkin("Other");
  world.dialogs.answers.enqueue(false);
  EXPECT_FALSE(designer->startUp());
  EXPECT_TRUE(state().form3.isVisible());
  EXPECT_FALSE(form1().isVisible());
  EXPECT_TRUE(form4().Combo3->text() == u"S") << "the list of Skins leaves the name alone";
  EXPECT_EQ(state().form3.List1->list(), (QStringList{"Other", "S"}));
  EXPECT_EQ(form4().Combo3->list(), state().form3.List1->list());
  state().form3.List1->select(0);
  EXPECT_TRUE(form1().isVisible());
  EXPECT_EQ(form4().Combo3->text().toStdString(), "Other");
}

TEST_F(Skin, SaveWritesExactlyTheCatalogueAndComesBackByteForByte) {
  start();
  form4().Combo7->setText("12");
  form1().Label16[3].setBackColor(static_cast<std::int32_t>(0x8000000F));
  form1().Label16[3].setLeft(0.5f);
  form1().Label16[3].setTop(-0.25f);
  form1().Label16[3].setWidth(1.234567e-2f);
  form1().lvButtons_H1[2].setCaption("H\u00f6rproben");
  state().names.ofButtons(form1().lvButtons_H1)[2].setValue(QString("\\images\\gone.bmp"));
  world.dialogs.answers.enqueue(false);
  designer->save();
  EXPECT_EQ(files().size(), 59);
  EXPECT_EQ(world.dialogs.messages.last().text.toStdString(), "Do you want to save the COVER Layout Too?");

  const test::Files saved = test::filesBelow(path({}));
  designer = std::make_unique<Designer>(world.platform);
  start();
  EXPECT_EQ(form1().Label16[3].top(), -0.25f);
  world.dialogs.answers.enqueue(false);
  designer->save();
  EXPECT_TRUE(test::filesBelow(path({})) == saved);
}

}  // namespace
}  // namespace veneerer
