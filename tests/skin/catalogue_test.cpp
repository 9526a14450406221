// The orders of a Skin's files, each spelt out whole in orders.txt.
#include "skin/catalogue.h"

#include <gtest/gtest.h>

#include "support/files.h"

namespace veneerer {
namespace {

class Catalogue : public testing::Test {
protected:
  std::string nameOf(MakeLayout layout) { return layout(state).fileName().toStdString(); }

  /// The lines of orders.txt that stand under a heading.
  static std::string told(const QString& heading) {
    const QString orders = test::bytesOf(VENEERER_SOURCE_DIR "/tests/skin/orders.txt");
    return orders.section(heading + ":\n", 1).section("\n\n", 0, 0).trimmed().toStdString() + '\n';
  }

  State state;
};

TEST_F(Catalogue, AFullLoadReadsTheseFilesUnderTheseTexts) {
  std::string walked;
  std::string shown;
  for (const LoadEntry& entry : loadOrder()) {
    if (entry.splash) shown = entry.splash;
    walked += nameOf(entry.layout) + "  " + shown + '\n';
  }
  EXPECT_EQ(walked, told("A full load reads under these texts"));
}

TEST_F(Catalogue, AReloadReadsTheseFiles) {
  std::string walked;
  for (const MakeLayout layout : reloadOrder()) walked += nameOf(layout) + '\n';
  EXPECT_EQ(walked, told("A reload reads"));
}

// search_choice.ini is read under its own name; what is written as search_Choice.ini is another file where
// case counts.
TEST_F(Catalogue, ASaveWritesTheseFilesAndOfThemNoLoadReadsTheTwinsAndTheFileWithoutEffect) {
  std::string written;
  std::string unread;
  for (const SaveEntry& entry : saveOrder()) {
    written += savedName(entry, entry.layout(state)).toStdString() + '\n';
    if (!isLoaded(entry)) unread += nameOf(entry.layout) + '\n';
  }
  EXPECT_EQ(written, told("A save writes"));
  EXPECT_EQ(unread, told("A save writes what no load reads"));
}

}  // namespace
}  // namespace veneerer
