#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "design/design.h"
#include "problems/problemswatch.h"
#include "problems/skinhints.h"
#include "support/pictures.h"

namespace veneerer {
namespace {

class WatchTest : public testing::Test {
protected:
  WatchTest() {
    applyBuiltInDesign(state);
    // Room for its widest screens.
    state.form1.setWidth(12510);
    state.form1.setHeight(14000);
    state.form4.Text1[0].setText(QStringLiteral("834"));
    state.form4.Text1[1].setText(QStringLiteral("933"));
    QDir(root.path()).mkpath(QStringLiteral("images"));
  }
  void workAll(ProblemsWatch& watch) {
    while (watch.work(50)) {
    }
  }
  static std::string texts(const Findings& findings) {
    QStringList lines;
    for (const Finding& f : findings)
      lines << QStringLiteral("%1:%2 %3 %4").arg(f.file).arg(f.line).arg(f.element, f.text);
    return lines.join(u'\n').toStdString();
  }

  QTemporaryDir root;
  SkinFolder folder{root.path()};
  State state;
  Button& key = state.form1.lvButtons_H6[3];
};

TEST_F(WatchTest, FindsInTheEndWhatAJudgementOfTheWholeSkinFinds) {
  test::writeBytes(root.path() + QStringLiteral("/images/forgotten.bmp"), "BM");
  key.setWidth(15 * 20);
  key.setForeColor(key.backColor());
  state.form1.Label16[2].setLeft(-300);
  ProblemsWatch watch(state, folder, Screen());
  EXPECT_TRUE(watch.work(1));
  workAll(watch);
  const Findings whole = skinHints(state, folder, Screen(), writtenPlaces(state));
  EXPECT_EQ(texts(watch.findings()), texts(whole));
  EXPECT_GE(whole.size(), 4);
  EXPECT_EQ(whole.last().file, QStringLiteral("images/forgotten.bmp"));
}

TEST_F(WatchTest, JudgesOneElementAtOnceAndItsScreenLater) {
  ProblemsWatch watch(state, folder, Screen());
  workAll(watch);
  ASSERT_EQ(texts(watch.findings()), "");
  key.setCaption(QStringLiteral("Rock, Pop"));
  watch.judge(key);
  Findings findings = watch.findings();
  ASSERT_FALSE(findings.isEmpty());
  EXPECT_EQ(findings.first().remedies.size(), 2);
  findings.first().remedies.clear();
  EXPECT_EQ(findings.first(), (Finding{FindingKind::Warning, QStringLiteral("search.ini"), 41,
                                       QStringLiteral("a comma cuts the caption \"Rock, Pop\""), key.key(),
                                       Property::Caption}));
  key.setCaption(QStringLiteral("D"));
  watch.judge(key);
  EXPECT_EQ(texts(watch.findings()), "");

  PictureBox& box = state.form1.Picture27[0];
  box.setContainer(*key.container());
  box.place(key.left(), key.top(), key.width(), key.height());
  box.setVisible(true);
  watch.judge(box);
  EXPECT_EQ(texts(watch.of(key)), "");
  workAll(watch);
  ASSERT_EQ(watch.of(key).size(), 1) << texts(watch.findings());
  EXPECT_EQ(watch.of(key)[0].text, key.key() + QStringLiteral(": Form1.Picture27(0) hides all of it"));
}

TEST_F(WatchTest, FollowsTheLinesOfACoverFile) {
  ProblemsWatch watch(state, folder, Screen(), QStringLiteral("Ten.cov"));
  Label& title = state.form1.Label9[0];
  title.setFontName(QStringLiteral("Arial, bold"));
  watch.judge(title);
  const auto line = [&] {
    const Findings findings = watch.of(title);
    return findings.isEmpty() || findings[0].file != u"Ten.cov" ? 0 : findings[0].line;
  };
  const int before = line();
  state.globals.LastCoverIndex->setValue(state.globals.LastCoverIndex->value() - 1);
  watch.judge(*state.globals.LastCoverIndex);
  workAll(watch);
  // Each cover has four lines in each of the four lists that come before.
  EXPECT_EQ(line(), before - 16);
}

TEST_F(WatchTest, TellsOfAReferenceWithoutAFileByItsButton) {
  ProblemsWatch watch(state, folder, Screen());
  ImageSlot& name = *state.names.of(key);
  name.setValue(QStringLiteral("\\images\\gone.bmp"));
  watch.judge(name);
  workAll(watch);
  const Findings findings = watch.of(name);
  ASSERT_EQ(findings.size(), 1);
  EXPECT_EQ(texts(findings),
            "search.ini:52 Form1.lvButtons_H6(3) the image \"\\images\\gone.bmp\" is missing");
}

}  // namespace
}  // namespace veneerer
