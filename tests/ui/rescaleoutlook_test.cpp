// The rescale is known before it is run.
#include <QLabel>
#include <QMenu>
#include <QPushButton>

#include "ui/uifixture.h"

namespace veneerer {
namespace {

class Outlook : public test::UiFixture {
protected:
  void SetUp() override {
    UiFixture::SetUp();
    form4().Text1[0].setText("800");
    form4().Text1[1].setText("600");
    form1().place(0, 0, 15 * 804, 15 * 600 + 500);
  }
  std::string told() { return widget<QLabel>("rescaleFactors").text().toStdString(); }
  QMenu& sizes() {
    QMenu& menu = *widget<QPushButton>("evenScale").menu();
    Q_EMIT menu.aboutToShow();
    return menu;
  }
  QStringList entries() {
    QStringList texts;
    for (const QAction* action : sizes().actions())
      if (action->isEnabled() && !action->isSeparator()) texts << action->text();
    return texts;
  }
  void fill(const QString& entry) {
    for (QAction* action : sizes().actions())
      if (action->text() == entry) return action->trigger();
    ADD_FAILURE() << entry.toStdString();
  }
  std::string size() { return (form6().Text7->text() + 'x' + form6().Text8->text()).toStdString(); }
};

TEST_F(Outlook, FollowsWhatIsTyped) {
  EXPECT_EQ(told(), "Factors: none for this size");
  auto& width = widget<QLineEdit>("Form6.Text7");
  QTest::keyClicks(&width, "1608");
  QTest::keyClicks(&widget<QLineEdit>("Form6.Text8"), "380");
  EXPECT_EQ(told(), "Width × 2, height × 0.6, fonts × 1.2; 800 x 600 to 1600 x 360");
  form4().Text1[0].setText("");
  form1().place(0, 0, 15 * 1608, 15 * 600 + 500);
  EXPECT_EQ(told(), "Width × 1, height × 0.6, fonts × 0.8");
}

TEST_F(Outlook, FillsInAnEvenScaleAndNoMore) {
  const int steps = designer->history().stack().count();
  const int notes = static_cast<int>(state().notes.texts().size());
  EXPECT_EQ(entries(), (QStringList{"To 640 x 480 (× 0.8)", "To 1024 x 768 (× 1.28)", "To 1280 x 960 (× 1.6)",
                                    "To 1600 x 1200 (× 2)"}));
  fill("To 1024 x 768 (× 1.28)");
  EXPECT_EQ(size(), "1029x811");
  EXPECT_EQ(told(), "Width × 1.28, height × 1.281, fonts × 1.3; 800 x 600 to 1024 x 768");
  designer->type(*form6().Text7, "402");
  fill("Height as the &Width");
  EXPECT_EQ(size(), "402x317");
  designer->type(*form6().Text8, "1267");
  fill("Width as the &Height");
  EXPECT_EQ(size(), "1608x1267");
  EXPECT_EQ(form1().width(), 15 * 804) << "the command waits";
  EXPECT_EQ(designer->history().stack().count(), steps);
  EXPECT_EQ(state().notes.texts().size(), notes);
}

}  // namespace
}  // namespace veneerer
