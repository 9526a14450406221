// What each kind of element starts with: values that no record file and no design need name.
#include "elements/kinds.h"

#include <gtest/gtest.h>

#include "support/files.h"
#include "support/valuetexts.h"

namespace veneerer {
namespace {

TEST(Kinds, StartAsTheSystemsDo) {
  constexpr const char* kNames[] = {
      "Window",     "Label",        "Button",        "PictureBox", "ImageBox",   "AnimatedFrame",
      "AlphaImage", "ComboBox",     "ListBox",       "FileList",   "FolderList", "TextBox",
      "CheckBox",   "OptionButton", "CommandButton", "ImageSlot",  "CoverIndex"};
  QString told;
  for (int kind = 0; kind <= static_cast<int>(Kind::CoverIndex); ++kind) {
    QStringList values;
    for (const PropertyDefault& each : propertiesOf(static_cast<Kind>(kind)))
      values << QString(propertyName(each.property)) + ' ' + test::textOf(each.value);
    told += QString(kNames[kind]) + ": " + values.join(", ") + '\n';
  }
  EXPECT_EQ(told.toStdString(), test::bytesOf(VENEERER_SOURCE_DIR "/tests/elements/kinds.txt").toStdString());
}

}  // namespace
}  // namespace veneerer
