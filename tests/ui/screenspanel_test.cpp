// The sheet of all screens beside the canvas.
#include "ui/screenspanel.h"

#include "canvas/screens.h"
#include "ui/uifixture.h"

namespace veneerer {
namespace {

class Sheet : public test::UiFixture {
protected:
  void SetUp() override {
    UiFixture::SetUp();
    QTest::keyClick(&canvas(), Qt::Key_F12);
    ASSERT_TRUE(isPainted());
  }

  QListWidget& screens() { return widget<QListWidget>("screens"); }
  ScreensPanel& panel() { return dynamic_cast<ScreensPanel&>(*screens().parentWidget()); }
  bool isPainted() {
    return QTest::qWaitFor([this] { return panel().isUpToDate(); }, 60'000);
  }
  QImage picture(int entry) { return screens().item(entry)->icon().pixmap(160, 160).toImage(); }
  QList<QImage> pictures() {
    QList<QImage> all;
    for (int entry = 0; entry < screens().count(); ++entry) all << picture(entry);
    return all;
  }
  /// The entries whose pictures differ from those.
  QList<int> differingFrom(const QList<QImage>& before) {
    QList<int> entries;
    for (int entry = 0; entry < screens().count(); ++entry)
      if (picture(entry) != before[entry]) entries << entry;
    return entries;
  }
};

TEST_F(Sheet, ChoosesTheScreenThatIsClickedAndFollowsTheCanvas) {
  ASSERT_EQ(screens().count(), 32);
  screens().scrollToItem(screens().item(4));
  QTest::mouseClick(screens().viewport(), Qt::LeftButton, {},
                    screens().visualItemRect(screens().item(4)).center());
  EXPECT_EQ(form6().Combo6->listIndex(), 4);
  EXPECT_TRUE(isScreenShown(state(), 4));
  designer->choose(*form6().Combo6, 7);
  EXPECT_EQ(screens().currentRow(), 7);
  EXPECT_EQ(designer->history().stack().count(), 0) << "choosing a screen is no step";
}

TEST_F(Sheet, PaintsWhatHasChangedAndNothingElse) {
  const QList<QImage> before = pictures();
  designer->choose(*form6().Combo6, 9);
  EXPECT_TRUE(panel().isUpToDate()) << "another screen is shown, none has changed";

  form1().Picture1[27].setBackColor(0x0000FF);
  EXPECT_FALSE(panel().isUpToDate());
  ASSERT_TRUE(isPainted());
  EXPECT_EQ(differingFrom(before), QList<int>{27});

  // From now on that screen is kept behind the others.
  form4().Check9->setValue(1);
  ASSERT_TRUE(isPainted());
  const QList<QImage> kept = pictures();
  EXPECT_GT(differingFrom(before).size(), 1);
  form1().Picture1[27].setBackColor(0x00FF00);
  ASSERT_TRUE(isPainted());
  EXPECT_GT(differingFrom(kept).size(), 1);
}

}  // namespace
}  // namespace veneerer
