// The writer of JSON, held against the toolkit's.
#include "skintool/jsonwriter.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <charconv>
#include <functional>
#include <limits>

#include "support/files.h"

namespace veneerer {
namespace {

QByteArray written(const std::function<void(JsonWriter&)>& write) {
  std::FILE* file = std::tmpfile();
  JsonWriter json(file);
  write(json);
  json.finish();
  return test::drained(file);
}

std::string byQt(const QJsonObject& object) {
  return QJsonDocument(object).toJson().toStdString();
}

TEST(JsonWriter, WritesSinglesAsTheToolkitWritesTheirShortestForm) {
  const QList<float> singles{0,
                             -0.0F,
                             1,
                             -15,
                             12060,
                             0.1F,
                             -8.25F,
                             1.0F / 3,
                             0.001F,
                             0.00099F,
                             1e-5F,
                             999999.94F,
                             1e6F,
                             -1234567,
                             16777216,
                             1e9F,
                             3e9F,
                             2e15F,
                             1.5e16F,
                             1e20F,
                             1e-30F,
                             1e-45F,
                             std::numeric_limits<float>::max(),
                             std::numeric_limits<float>::infinity()};
  QJsonArray expected;
  for (const float single : singles) {
    char digits[64];
    const auto end = std::to_chars(digits, digits + sizeof digits, single).ptr;
    double number = 0;
    std::from_chars(digits, end, number);
    expected.append(number);
  }
  const QByteArray json = written([&](JsonWriter& writer) {
    writer.open('{');
    writer.name("Singles");
    writer.open('[');
    for (const float single : singles) writer.single(single);
    writer.close(']');
    writer.close('}');
  });
  EXPECT_EQ(json.toStdString(), byQt({{"Singles", expected}}));
}

TEST(JsonWriter, WritesTextsAndBracketsAsTheToolkitDoes) {
  const QString odd = QStringLiteral("a \"b\" \\ / \b\f\n\r\t\u0001 \u00e9 \U0001F3B5 ") + QChar(0xD800);
  const QString longText = QStringLiteral("0123456789").repeated(20'000);
  const QStringList texts{"", "plain", odd, longText};
  const QByteArray json = written([&](JsonWriter& writer) {
    writer.open('{');
    writer.name("Empty");
    writer.texts({});
    writer.name("None");
    writer.open('{');
    writer.close('}');
    writer.name("Texts");
    writer.texts(texts);
    writer.name("Truth");
    writer.truth(true);
    writer.name("Whole");
    writer.whole(std::numeric_limits<int>::min());
    writer.anyName(QStringLiteral("\u00fc\n"));
    writer.text(odd);
    writer.close('}');
  });
  EXPECT_EQ(json.toStdString(), byQt({{"Empty", QJsonArray()},
                                      {"None", QJsonObject()},
                                      {"Texts", QJsonArray::fromStringList(texts)},
                                      {"Truth", true},
                                      {"Whole", std::numeric_limits<int>::min()},
                                      {QStringLiteral("\u00fc\n"), odd}}));
}

TEST(JsonWriter, TellsThatItsOutputIsFull) {
  std::FILE* full = std::fopen("/dev/full", "w");
  ASSERT_NE(full, nullptr);
  JsonWriter json(full);
  json.text("lost");
  EXPECT_THROW(json.finish(), std::runtime_error);
  std::fclose(full);
}

}  // namespace
}  // namespace veneerer
