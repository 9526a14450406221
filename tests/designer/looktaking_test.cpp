// A screen gets the look that it has in another Skin.
#include "canvas/description.h"
#include "designer/restoredstate.h"
#include "designer/skinfixture.h"
#include "support/pictures.h"
#include "support/shippedskins.h"

namespace veneerer {
namespace {

constexpr int kSearch = 3;
constexpr int kQueue = 4;

class LookTaking : public test::SkinFixture {
protected:
  LookTaking() {
    test::copyShippedSkin("Black_and_Blue_gif_V8.0(800x600)", root.path(), "S");
    test::copyShippedSkin("Copper_Lounge(1024x768)", root.path(), "T");
    otherWorld.settings.values.insert("Settings/Skin", "T");
    otherWorld.platform.folder.path = root.path();
    otherWorld.dialogs.answers.enqueue(true);
    other = std::make_unique<Designer>(otherWorld.platform);
    other->startUp();
    start();
    show(kQueue);
  }
  void show(int entry) { designer->choose(*form6().Combo6, entry); }
  QString otherPath(const QString& name) const { return root.path() + "/Skins/T/" + name; }
  QString lastNote() { return state().notes.texts().isEmpty() ? QString() : state().notes.texts().last(); }

  /// The elements on that screen whose property isn't that of the other Skin.
  QStringList othersThan(int entry, Property property) {
    QStringList keys;
    for (const Family* family : form1().families())
      for (const Element* element : family->members())
        if (entryHolding(state(), *element) == entry && element->has(property) &&
            element->get(property) != other->state().find(element->key())->get(property))
          keys << element->key();
    return keys;
  }
  std::string namesBelow() const {
    return QStringList(test::filesBelow(path({})).keys()).join(u'\n').toStdString();
  }
  int stepCount() { return designer->history().stack().count(); }

  test::ScriptedPlatform otherWorld;
  std::unique_ptr<Designer> other;
};

TEST_F(LookTaking, TakesTheWholeLookOfTheScreenInOneStep) {
  const test::RestoredState before(state());
  const QStringList elsewhere = othersThan(kSearch, Property::Left);
  ASSERT_FALSE(othersThan(kQueue, Property::Left).isEmpty());
  ASSERT_FALSE(elsewhere.isEmpty());
  const int steps = stepCount();
  designer->takeLook("T", LookPart::Whole);
  for (const Property property :
       {Property::Left, Property::Top, Property::Width, Property::Height, Property::BackColor,
        Property::ForeColor, Property::FontName, Property::FontSize, Property::FontBold, Property::BackStyle,
        Property::Alignment, Property::ButtonShape, Property::ButtonStyle, Property::GradientColor,
        Property::GradientMode})
    EXPECT_EQ(othersThan(kQueue, property), QStringList()) << propertyName(property).data();
  EXPECT_EQ(othersThan(kSearch, Property::Left), elsewhere) << "other screens stay";
  EXPECT_EQ(stepCount(), steps + 1);
  EXPECT_TRUE(lastNote().contains("is taken from T")) << lastNote().toStdString();
  const test::RestoredState after(state());
  designer->history().undo();
  EXPECT_EQ(before.difference(test::RestoredState(state())), "");
  designer->history().redo();
  EXPECT_EQ(after.difference(test::RestoredState(state())), "");

  designer->takeLook("T", LookPart::Whole);
  EXPECT_EQ(stepCount(), steps + 1) << "there is nothing left to take";
  EXPECT_EQ(lastNote(), "Queue Screen looks the same in T.");
}

TEST_F(LookTaking, ColoursAndFontsMoveNothing) {
  const QStringList places = othersThan(kQueue, Property::Left);
  const test::Files files = test::filesBelow(path({}));
  designer->takeLook("T", LookPart::ColoursAndFonts);
  for (const Property property : {Property::BackColor, Property::ForeColor, Property::GradientColor,
                                  Property::FontName, Property::FontSize, Property::FontItalic})
    EXPECT_EQ(othersThan(kQueue, property), QStringList()) << propertyName(property).data();
  EXPECT_EQ(othersThan(kQueue, Property::Left), places);
  EXPECT_EQ(test::filesBelow(path({})), files);
}

TEST_F(LookTaking, CopiesAPictureUnderAFreeNameThatTheNextLoadFinds) {
  const ImageSlot& name = other->state().names.ImageName[kQueue];
  const QString picture = SkinFolder(otherPath({})).resolve(name.text());
  ASSERT_FALSE(picture.isEmpty());
  const QString bare = QFileInfo(picture).fileName();
  write("images/" + bare.toUpper(), "another file of that name in other letters");
  const test::Files before = test::filesBelow(path({}));
  designer->takeLook("T", LookPart::Whole);
  const QString reference = state().names.ImageName[kQueue].text();
  const QString copy = designer->skinFolder().resolve(reference);
  EXPECT_TRUE(reference.startsWith("\\images\\"));
  EXPECT_EQ(test::bytesOf(copy), test::bytesOf(picture));
  EXPECT_TRUE(copy.contains(" 2.")) << copy.toStdString();
  EXPECT_TRUE(lastNote().contains(QFileInfo(copy).fileName())) << lastNote().toStdString();
  EXPECT_EQ(form1().Picture1[kQueue].picture().path(), copy);
  EXPECT_EQ(state().form5.Image1[kQueue].as<Picture>(Property::Picture).path(), copy);
  const test::Files after = test::filesBelow(path({}));
  for (auto file = before.cbegin(); file != before.cend(); ++file)
    EXPECT_EQ(after.value(file.key()), *file) << "nothing is overwritten";

  designer->save();
  designer->reload("S");
  EXPECT_EQ(form1().Picture1[kQueue].picture().path(), copy);

  const std::string names = namesBelow();
  state().names.ImageName[kQueue].setValue(QString());
  designer->takeLook("T", LookPart::Whole);
  EXPECT_EQ(namesBelow(), names) << "what is there already isn't copied again";
}

TEST_F(LookTaking, AFailureChangesNothing) {
  const test::Files files = test::filesBelow(path({}));
  const test::RestoredState before(state());
  const int steps = stepCount();
  QDir(path("images")).rename(path("images"), path("kept"));
  const test::Files moved = test::filesBelow(path({}));
  for (int at = 1; at <= 2; ++at) {
    world.dialogs.messages.clear();
    world.disk.failAt(at);
    designer->takeLook("T", LookPart::Whole);
    ASSERT_EQ(world.dialogs.messages.size(), 1) << at;
    EXPECT_TRUE(world.dialogs.messages.first().text.startsWith("Nothing is taken. "));
    EXPECT_EQ(test::filesBelow(path({})), moved);
    EXPECT_FALSE(QFileInfo::exists(path("images")));
  }
  world.disk.failAt(0);
  QDir(path({})).rename("kept", "images");

  test::writeBytes(otherPath("queue.ini"), "no number\r\n");
  designer->takeLook("T", LookPart::Whole);
  EXPECT_TRUE(world.dialogs.messages.last().text.startsWith("Nothing is taken. queue.ini:"));
  designer->takeLook("U", LookPart::Whole);
  EXPECT_EQ(world.dialogs.messages.last().text.toStdString(), "Nothing is taken. U: there is no such Skin");
  EXPECT_EQ(test::filesBelow(path({})), files);
  EXPECT_EQ(stepCount(), steps);
  EXPECT_EQ(before.difference(test::RestoredState(state())), "");
}

TEST_F(LookTaking, NoPictureIsCopiedThroughALinkOutOfTheSkin) {
  QDir(path("images")).removeRecursively();
  QDir(root.path()).mkpath("elsewhere");
  ASSERT_TRUE(QFile::link(root.filePath("elsewhere"), path("images")));
  designer->takeLook("T", LookPart::Whole);
  EXPECT_TRUE(world.dialogs.messages.last().text.endsWith("it is no folder of the Skin"));
  EXPECT_TRUE(QDir(root.filePath("elsewhere")).isEmpty());
}

}  // namespace
}  // namespace veneerer
