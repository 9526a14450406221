// The real dialogs, with the operator's hands in them.
#include <QCheckBox>
#include <QFontDialog>
#include <QListView>

#include "ui/fontdialog.h"
#include "ui/modal.h"
#include "ui/uifixture.h"

namespace veneerer {
namespace {

/// A font that no machine has, in a size that the dialog doesn't offer.
FontChoice oddFont() {
  return {QStringLiteral("Quill Gothic"), 10.6f, true, false, false, true};
}

std::optional<FontChoice> answer(std::function<void(QFontDialog&)> operate) {
  const test::OnModal<QFontDialog> operation([&](QFontDialog& dialog) {
    operate(dialog);
    dialog.accept();
  });
  return runFontDialog(oddFont(), nullptr);
}

void expectSame(const std::optional<FontChoice>& font, const FontChoice& expected) {
  ASSERT_TRUE(font);
  EXPECT_EQ(font->name.toStdString(), expected.name.toStdString());
  EXPECT_EQ(font->size, expected.size);
  EXPECT_EQ(font->bold, expected.bold);
  EXPECT_EQ(font->italic, expected.italic);
  EXPECT_EQ(font->underline, expected.underline);
  EXPECT_EQ(font->strikethrough, expected.strikethrough);
}

TEST(FontDialog, GivesBackWhatNobodyTouched) {
  expectSame(answer([](QFontDialog&) {}), oddFont());
}

TEST(FontDialog, ChangesOneThingAlone) {
  FontChoice underlined = oddFont();
  underlined.underline = true;
  expectSame(answer([](QFontDialog& dialog) {
               for (QCheckBox* box : dialog.findChildren<QCheckBox*>())
                 if (!box->isChecked()) box->click();
             }),
             underlined);
  FontChoice larger = oddFont();
  larger.size = 15;
  expectSame(answer([](QFontDialog& dialog) {
               for (QLineEdit* field : dialog.findChildren<QLineEdit*>())
                 if (field->validator() && field->isVisible()) {
                   field->selectAll();
                   QTest::keyClicks(field, QStringLiteral("15"));
                 }
             }),
             larger);
}

TEST(FontDialog, TakesAnotherFamilyWithoutItsFoundry) {
  QString chosen;
  const auto font = answer([&](QFontDialog& dialog) {
    auto* families = dialog.findChildren<QListView*>().first();
    QModelIndex row = families->model()->index(0, 0);
    // One with a foundry where the machine has one.
    for (int i = 0; i < families->model()->rowCount(); ++i)
      if (const QModelIndex odd = families->model()->index(i, 0); odd.data().toString().endsWith(u']'))
        row = odd;
    families->setCurrentIndex(row);
    chosen = row.data().toString().section(QStringLiteral(" ["), 0, 0);
  });
  ASSERT_TRUE(font);
  EXPECT_EQ(font->name.toStdString(), chosen.toStdString());
  EXPECT_EQ(font->size, oddFont().size);
  EXPECT_TRUE(font->strikethrough && !font->underline);
}

TEST(FontDialog, CancelGivesNothing) {
  const test::OnModal<QFontDialog> operation([](QFontDialog& dialog) { dialog.reject(); });
  EXPECT_FALSE(runFontDialog(oddFont(), nullptr));
}

}  // namespace
}  // namespace veneerer
