// The note of a save in the status line.
#include "ui/savednote.h"

#include <gtest/gtest.h>

#include "ui/statusline.h"
#include "ui/uifixture.h"

namespace veneerer {
namespace {

TEST(SavedNote, TellsWhereAndWhen) {
  const QTime time(9, 5, 30);
  EXPECT_EQ(shownNote("Saved in S: 59 files, 3 changed.", NoteKind::Saved, "/a/S", time),
            "Saved in S: 59 files, 3 changed. (09:05:30, /a/S)");
  EXPECT_EQ(shownNote("Saved in S is its name.", NoteKind::Plain, "/a/S", time), "Saved in S is its name.");
}

class SavedNoteInTheWindow : public test::UiFixture {};

TEST_F(SavedNoteInTheWindow, StandsInTheStatusLineWithTheFolder) {
  designer->click(*form4().Command4);
  const auto* status =
      dynamic_cast<StatusLine*>(widget<QMainWindow>("Form1").findChild<QStatusBar*>()->findChild<QLabel*>());
  ASSERT_TRUE(status);
  EXPECT_TRUE(status->text().startsWith("Saved in S: 59 files, 59 changed. ("));
  EXPECT_TRUE(status->text().contains(path({}).chopped(1))) << status->text().toStdString();
}

}  // namespace
}  // namespace veneerer
