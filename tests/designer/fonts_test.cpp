// The list of fonts: what the machine has and what the Skin names.
#include "designer/skinfixture.h"
#include "tools/fontlist.h"

namespace veneerer {
namespace {

class Fonts : public test::SkinFixture {
protected:
  const QStringList& rows() { return state().form6.List1->list(); }
};

TEST_F(Fonts, StandOnceAndWithoutAFoundry) {
  start();
  form1().Label16[0].setFontName("Quill Gothic");
  form1().Label16[1].setFontName("quill gothic");
  form1().Label16[2].setFontName(QString());
  designer->fillFonts();
  ASSERT_GT(rows().size(), 2);
  EXPECT_FALSE(rows().contains(""));
  EXPECT_EQ(rows().filter("Quill Gothic", Qt::CaseInsensitive).size(), 1);
  for (qsizetype i = 1; i < rows().size(); ++i)
    EXPECT_LT(rows()[i - 1].toCaseFolded(), rows()[i].toCaseFolded()) << rows()[i].toStdString();
  EXPECT_TRUE(rows().filter("]").isEmpty()) << rows().join(u'\n').toStdString();
}

TEST_F(Fonts, FollowASkinThatIsLoadedLater) {
  start();
  makeSkin("T");
  Label& label = form1().Label16[0];
  const QString before = label.fontName();
  label.setFontName("Quill Gothic");
  designer->saveTo(SkinFolder(world.platform.folder, "T"));
  label.setFontName(before);
  designer->fillFonts();
  EXPECT_FALSE(rows().contains("Quill Gothic"));
  state().form6.List1->select(1);
  const QString chosen = state().form6.List1->text();
  designer->reload("T");
  EXPECT_TRUE(rows().contains("Quill Gothic"));
  EXPECT_EQ(state().form6.List1->text(), chosen);
  EXPECT_EQ(rows().value(state().form6.List1->listIndex()), chosen);
}

TEST(FontNames, LoseTheFoundryAlone) {
  const auto bare = [](const char* family) {
    return withoutFoundry(QString::fromLatin1(family)).toStdString();
  };
  EXPECT_EQ(bare("C059 [UKWN]"), "C059");
  EXPECT_EQ(bare("Nimbus Sans"), "Nimbus Sans");
  EXPECT_EQ(bare("[odd]"), "[odd]");
  EXPECT_EQ(bare("Odd [one] Sans"), "Odd [one] Sans");
}

}  // namespace
}  // namespace veneerer
