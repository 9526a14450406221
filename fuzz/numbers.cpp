// Colour and number texts, and the values of a record file.
#include "elements/numbers.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "elements/printable.h"
#include "elements/require.h"
#include "exchange/entrynames.h"
#include "fuzz/target.h"
#include "records/codepage.h"
#include "records/coverfile.h"
#include "records/recordreader.h"
#include "records/textlines.h"
#include "tools/colourtext.h"

namespace veneerer::fuzz {

namespace {

float bitsOf(const QByteArray& input) {
  float number = 0;
  std::memcpy(&number, input.constData(), std::min<std::size_t>(sizeof number, std::size_t(input.size())));
  return number;
}

// A number's text reads as a number, which has the same text.
void writeAndRead(float number) {
  if (!std::isfinite(number)) return;
  const QString text = singleText(number);
  double read = 0;
  require(parseNumber(text, read), "a written number is read as one");
  require(leadingNumber(text) == read, "both ways of reading a number agree on a written one");
  require(singleText(static_cast<float>(read)) == text || std::abs(read) > 3.402823E+38,
          "a number that was written and read has the same text");
}

void readNumbers(const QString& text) {
  double number = 0;
  if (parseNumber(text, number)) writeAndRead(static_cast<float>(number));
  writeAndRead(leadingSingle(text));
  require(std::isfinite(leadingSingle(text)), "a Single read from a text is a number");
  plainNumber(leadingNumber(text));
  toWhole(leadingNumber(text));
  signedNumber(leadingWhole(text));
}

void readColours(const QString& text) {
  const Colour plain = typedColour(text).plain();
  require(plain.plain() == plain && !plain.isSystem(), "a plain colour is plain");
  if (!text.startsWith(u'#'))
    require(typedColour(text) == colourNumber(text), "only a # makes a typed colour another number");
}

void readTexts(const QString& text) {
  require(shownText(text).toUcs4().size() <= 1000, "no more of a text is shown than can be read");
  require(printable(printable(text)) == printable(text), "a printable text is printable");
  const QString name = coverFileName(text);
  require(!name.contains(u'/') && !name.startsWith(u'.'), "a cover file's name is a plain one");
  EntryNames names;
  EntryPlace place;
  for (const QString& each : text.split(u'\n'))
    if (names.add(each, place).isEmpty())
      require(!place.name.startsWith(u'/') && !place.name.split(u'/').contains(QStringLiteral("..")),
              "an entry's place is in the Skin's folder");
}

void readLines(const QByteArray& bytes) {
  QByteArray back;
  for (TextLines lines(bytes); !lines.atEnd();) {
    const QByteArrayView line = lines.next();
    require(!line.isEmpty(), "each line takes a byte");
    textLine(line);
    back += line.toByteArray();
  }
  require(back == bytes, "the lines are the whole file");
  require(toCodePage(fromCodePage({bytes.constData(), std::size_t(bytes.size())})) == bytes,
          "every byte survives its code page");
}

void readValues(const QByteArray& bytes) {
  RecordReader values(bytes);
  for (qsizetype count = 0; !values.atEnd(); ++count) {
    require(count <= bytes.size(), "each value takes a byte");
    values.readValue();
    values.lastText();
  }
  RecordReader lines(bytes);
  while (!lines.atEnd()) lines.readLine();
}

void run(const QByteArray& input) {
  writeAndRead(bitsOf(input));
  const QString texts[] = {QString::fromLatin1(input), QString::fromUtf8(input)};
  for (const QString& text : texts) {
    readNumbers(text);
    readColours(text);
    readTexts(text);
  }
  readLines(input);
  readValues(input);
}

QList<QByteArray> seeds() {
  return {"1234567",    ".0000001",         "1.234568E+07",
          "-1E-45",     "3.402823D+38",     "4570.0625",
          "&HFF00FF",   "&H80000005",       "#112233",
          "-1",         "#TRUE#",           "#NULL#",
          "#ERROR 7#",  "\"a, b\",\"",      " 5 \r\n\"x\"\n",
          "S/a\nS/b/c", "S\\images\\a.bmp", "a.cov",
          "2147483647", "-2147483648",      "99999999999999999999999999999999999999999"};
}

QList<QByteArray> words() {
  return {"&H",      "#",       "E+",   "D-", "E", ".",    "-",    "#TRUE#",
          "#FALSE#", "#ERROR ", "\r\n", "\"", ",", "\x1A", ".cov", "/../"};
}

}  // namespace

const Target kNumbers = {"numbers", 4096, run, seeds, words};

}  // namespace veneerer::fuzz
