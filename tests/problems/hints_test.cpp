// Hints of single elements on the built-in design, which has none of its own.
#include "problems/hints.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "design/design.h"
#include "support/pictures.h"

namespace veneerer {
namespace {

using Change = std::function<void(Button&, Label&)>;

class HintsTest : public testing::Test {
protected:
  HintsTest() {
    applyBuiltInDesign(state);
    // On a screen that isn't the one shown.
    for (Element* element : std::initializer_list<Element*>{&button, &label, &box})
      element->setContainer(state.form1.Picture1[6]);
    box.setVisible(false);
    button.place(1500, 1500, 1500, 750);
    button.setCaption(QStringLiteral("Play"));
    button.set(Property::FontSize, 8.0f);
    button.setForeColor(0xFFFFFF);
    button.setBackColor(0);
    button.setGradientMode(0);
    button.setPicture({});
    label.place(1500, 3000, 3000, 600);
    label.setCaption(QStringLiteral("Title"));
    label.setFont({QStringLiteral("Arial"), 10});
    label.setForeColor(0xFFFFFF);
    label.setBackColor(0);
    label.setOpaque(true);
  }

  QStringList of(const Element& element) {
    Hints hints(state, Screen());
    QStringList told;
    for (const Hint& hint : hints.atOnce(element) + hints.byGround(element))
      told << QString::fromLatin1(propertyName(hint.property)) + QStringLiteral(": ") + hint.text;
    return told;
  }

  Picture picture(int width, int height, Qt::GlobalColor colour) {
    const QString path = folder.path() + QStringLiteral("/%1.png").arg(++pictures);
    test::writePicture(path, width, height, colour);
    return state.pictures.load(path);
  }

  QTemporaryDir folder;
  int pictures = 0;
  State state;
  Button& button = state.form1.lvButtons_H24[0];
  Label& label = state.form1.Label24[0];
  PictureBox& box = state.form1.Picture7[0];
};

TEST_F(HintsTest, TellTheFaultAndNothingNearIt) {
  const struct {
    const char* said;  ///< how the one hint begins; empty where there is none
    std::function<void()> change;
  } cases[] = {
      {"", [] {}},
      {"Width: the button is 31 pixels wide, a finger needs 32", [&] { button.setWidth(31 * 15); }},
      {"", [&] { button.setWidth(32 * 15); }},
      {"Caption: the caption \"Play Options\" doesn't fit: it needs ",
       [&] { button.setCaption(QStringLiteral("Play Options")); }},
      {"", [&] { button.setWidth(1500); }},
      {"Left: it lies partly outside Form1.Picture1(6)", [&] { button.setLeft(-15); }},
      {"Left: it lies wholly outside Form1.Picture1(6)", [&] { button.setLeft(-1500); }},
      {"", [&] { button.setLeft(0); }},
      {"Picture: its picture is 41 x 50 pixels, the element 100 x 50",
       [&] { button.setPicture(picture(41, 50, Qt::black)); }},
      {"", [&] { button.setPicture(picture(51, 99, Qt::black)); }},
      // The letters are judged against the picture, not the colour that it covers.
      {"ForeColor: the caption \"Play Options\" has a contrast of 1.0 to what lies beneath, 4.5 is the least",
       [&] {
         button.setPicture(picture(100, 50, Qt::white));
         button.setPictureSize(PictureSize::Stretched);
       }},
  };
  for (const auto& c : cases) {
    c.change();
    const QStringList told = of(button);
    EXPECT_TRUE(*c.said ? told.size() == 1 && told[0].startsWith(QLatin1String(c.said)) : told.isEmpty())
        << c.said << " but\n"
        << told.join(u'\n').toStdString();
  }
}

TEST_F(HintsTest, JudgeALabelByItsFontAndItsGround) {
  const auto expect = [&](const char* said) { EXPECT_EQ(of(label).join(u'\n').toStdString(), said); };
  expect("");
  label.setFontName(QStringLiteral("No Such Letters"));
  expect("FontName: this machine has no font \"No Such Letters\"");
  label.setFontName(QStringLiteral("times new roman"));
  expect("");
  // A grey that large letters can be read on.
  label.setBackColor(0x808080);
  expect("ForeColor: the caption \"Title\" has a contrast of 3.9 to what lies beneath, 4.5 is the least");
  label.setFont({QStringLiteral("Arial"), 14, true});
  expect("");
  label.setFont({QStringLiteral("Arial"), 17});
  EXPECT_EQ(of(label).size(), 1);
  label.setFont({QStringLiteral("Arial"), 18});
  expect("");
  // See-through, it stands on what its screen shows there; what lies above it doesn't count.
  label.setOpaque(false);
  state.form1.Picture1[6].setPicture(picture(1200, 900, Qt::white));
  EXPECT_EQ(of(label).size(), 1);
  box.setBackColor(0);
  box.setVisible(true);
  box.place(1400, 2900, 3200, 500);
  EXPECT_EQ(of(label).size(), 1);
  box.stackBelow(label);
  expect("");
}

TEST_F(HintsTest, TellWhatIsHiddenAndSpareWhatIsNeverSeen) {
  box.setVisible(true);
  box.place(1500, 1500, 1500, 735);
  box.bringToFront();
  EXPECT_EQ(of(button), QStringList());
  box.setHeight(750);
  EXPECT_EQ(of(button).join(u'\n').toStdString(), "Left: Form1.Picture7(0) hides all of it");
  box.stackBelow(button);
  EXPECT_EQ(of(button), QStringList());
  button.setWidth(15);
  EXPECT_NE(of(button), QStringList());
  button.setVisible(false);
  EXPECT_EQ(of(button), QStringList());
}

TEST_F(HintsTest, KnowNoGroundThatWouldTakeTooMuchToPaint) {
  const QRectF part(300, 300, 60, 20);
  PictureSamples none(0);
  Ground ground(state, none, PixelScale());
  label.setOpaque(false);
  EXPECT_TRUE(ground.luminance(label, part));
  EXPECT_FALSE(ground.luminance(label, part.translated(1e30, 0)));
  EXPECT_TRUE(ground.luminance(label, QRectF(0, 0, 9e5, 9e5))) << "a large ground is painted small";
  state.form1.Picture1[6].setPicture(picture(1200, 900, Qt::white));
  EXPECT_FALSE(ground.luminance(label, part));
  state.form1.Picture1[6].setPicture({});
  for (Element* key : state.form1.lvButtons_H38.members()) {
    key->setContainer(state.form1.Picture1[6]);
    key->place(0, 0, 12000, 9000);
    key->setVisible(true);
  }
  label.bringToFront();
  EXPECT_FALSE(ground.luminance(label, part));
}

}  // namespace
}  // namespace veneerer
