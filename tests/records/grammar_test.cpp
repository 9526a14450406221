// The grammar of values: texts in, values out, and back.
#include <gtest/gtest.h>

#include "elements/numbers.h"
#include "records/codepage.h"
#include "records/recordreader.h"
#include "records/recordwriter.h"

namespace veneerer {
namespace {

std::string describe(const RecordValue& value) {
  if (const auto* text = std::get_if<QString>(&value)) return "text:" + text->toStdString();
  if (const auto* number = std::get_if<double>(&value)) return "number:" + plainNumber(*number).toStdString();
  if (const auto* truth = std::get_if<bool>(&value)) return *truth ? "true" : "false";
  return std::holds_alternative<OddValue>(value) ? "odd" : "empty";
}

std::string readAll(const char* bytes) {
  RecordReader reader{QByteArray(bytes)};
  std::string values;
  while (!reader.atEnd()) values += (values.empty() ? "" : "|") + describe(reader.readValue());
  return values;
}

TEST(RecordReader, TakesValuesByTheRulesOfTheGrammar) {
  const struct {
    const char* bytes;
    const char* values;
  } cases[] = {
      {"Menu\r\n", "text:Menu"},
      {"\r\n\r\nA\r\n", "empty|empty|text:A"},
      {"  \t lead\r\ntail  \r\n", "text:lead|text:tail  "},
      {"a,b\r\nc\r\n", "text:a|text:b|text:c"},
      {"a,\r\nb", "text:a|empty|text:b"},
      {" 2 \r\n-2147483633 \r\n .5 \r\n-.25 \r\n", "number:2|number:-2147483633|number:.5|number:-.25"},
      {"007\r\n1.50\r\n1D2\r\n+3\r\n.\r\n-\r\n1e\r\n",
       "number:7|number:1.5|number:100|number:3|text:.|text:-|text:1e"},
      {"0x10\r\n&H10\r\ninf\r\n1 2\r\n1,000\r\n", "text:0x10|text:&H10|text:inf|text:1 2|number:1|number:0"},
      {"\"a,b\r\nc\" junk,next\r\n", "text:a,b\r\nc|text:next"},
      {"a\"b\"\r\n\"open", "text:a\"b\"|text:open"},
      {"\"12\"\r\n", "text:12"},
      {"#TRUE#\r\n#FALSE#\r\n#NULL#\r\n#ERROR 5#\r\n#1999-12-31#\r\n#1\r\n",
       "true|false|odd|odd|odd|text:#1"},
      {"a\rb\nc\r\n\x1A", "text:a|text:b|text:c"},
  };
  for (const auto& c : cases) EXPECT_EQ(readAll(c.bytes), c.values) << c.bytes;
}

TEST(RecordReader, CountsLinesAndGivesTheRestOfALineRaw) {
  RecordReader reader{QByteArray("a,b\r\n\"x\r\ny\"\r\n 12,5 pt\r\nlast")};
  reader.readValue();
  EXPECT_EQ(reader.line(), 1);
  reader.readValue();
  EXPECT_EQ(reader.line(), 2);
  reader.readValue();
  EXPECT_EQ(reader.line(), 4);
  EXPECT_EQ(reader.readLine().toStdString(), " 12,5 pt");
  EXPECT_EQ(reader.line(), 5);
}

TEST(RecordWriter, KeepsTheSignColumnAndTheTrailingBlank) {
  RecordWriter out;
  out.writeWhole(2);
  out.writeWhole(-2147483633);
  out.writeSingle(0.5f);
  out.writeSingle(-0.25f);
  out.writeSingle(1.234567e-2f);
  out.writeText("caf\u00e9 \u20ac \u4e2d");
  out.writeText(QString());
  out.writeStored(StoredValue("\\images\\a.bmp"));
  out.writeStored(StoredValue(7.0));
  out.writeStored(StoredValue());
  EXPECT_EQ(out.bytes(),
            QByteArray(" 2 \r\n-2147483633 \r\n .5 \r\n-.25 \r\n 1.234567E-02 \r\ncaf\xe9 \x80 ?\r\n\r\n"
                       "\\images\\a.bmp\r\n 7 \r\n\r\n"));
}

TEST(CodePage, GivesEveryByteBack) {
  QByteArray all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  EXPECT_EQ(toCodePage(fromCodePage(std::string_view(all.constData(), 256))), all);
}

}  // namespace
}  // namespace veneerer
