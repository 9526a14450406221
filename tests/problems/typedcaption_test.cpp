// What the sentence says while a caption is typed is what a save and a load make of it.
#include "problems/typedcaption.h"

#include <gtest/gtest.h>

namespace veneerer {
namespace {

TEST(TypedCaption, TellsWhatWouldComeBackAndWhy) {
  const struct {
    QString caption;
    const char* part;
  } cases[] = {
      {QStringLiteral("Rock, Pop"), "\"Rock\" would come back: a comma"},
      {QStringLiteral("  \"Top\" 20"), "\"Top\" would come back: a double quote"},
      {QStringLiteral("  Top 20"), "\"Top 20\" would come back: blanks"},
      {QStringLiteral("007"), "\"7\" would come back: it is read as"},
      {QString(QStringLiteral("Top ") + QChar(0x2605)), "\"Top ?\" would come back: the file can't hold"},
      {QStringLiteral("#NULL#"), "no load would take"},
  };
  for (const auto& [caption, part] : cases) {
    const QString said = typedCaptionDamage(caption);
    EXPECT_TRUE(said.contains(QLatin1String(part))) << said.toStdString();
    EXPECT_TRUE(said.endsWith(u'.')) << said.toStdString();
  }
  for (const char* fine : {"", "Top 20", "Two||lines", "a \"b\" c", "Top 20 "})
    EXPECT_EQ(typedCaptionDamage(QString::fromLatin1(fine)), QString()) << fine;
}

}  // namespace
}  // namespace veneerer
