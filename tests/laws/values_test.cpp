// Values in record files: what comes back of them.
#include <bit>
#include <cmath>

#include "elements/numbers.h"
#include "laws/law.h"
#include "problems/textdamage.h"
#include "records/layoutreader.h"
#include "records/layoutwriter.h"
#include "records/recorderror.h"

namespace veneerer {
namespace {

// The text has 7 digits, a Single up to 9.
TEST(Values, ASingleSettlesAtOnceAndNearby) {
  test::tryLaw(2000, [] {
    const auto number = std::bit_cast<float>(*rc::gen::arbitrary<std::uint32_t>());
    RC_PRE(std::isfinite(number));
    const QString text = singleText(number);
    const float back = leadingSingle(text);
    RC_ASSERT(singleText(back) == text);
    RC_ASSERT(std::abs(double(back) - double(number)) <= std::abs(double(number)) * 6e-7 + 1e-44);
  });
}

TEST(Values, ANumberOfSevenDigitsComesBackExactly) {
  test::tryLaw(1000, [] {
    const int digits = *rc::gen::inRange(-9'999'999, 10'000'000);
    const int places = *rc::gen::inRange(0, 12);
    const auto number = static_cast<float>(digits / std::pow(10.0, places));
    RC_ASSERT(leadingSingle(singleText(number)) == number);
  });
}

/// What the grammar, the code page and the eye make something of, and what they don't.
QString anyText() {
  static const QString kCharacters = QStringLiteral("aZ09 \t\",#.-+:\\/\r\n\x1a'&|") +
                                     QStringLiteral("\u00e9\u20ac\u2013\u0081\u00a0\u0416\u4e2d");
  const auto places = *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, int(kCharacters.size())));
  QString text;
  for (const int place : places) text += kCharacters[place];
  return text;
}

class SavedTexts : public testing::Test {
protected:
  /// Whether the caption and the number behind it come back from a file that holds them.
  bool comesBack(const QString& text) {
    Label& label = state.form1.Label1[0];
    Layout layout(state, "any.ini");
    layout.field(ValueKind::Text, label, Property::Caption);
    layout.field(ValueKind::Single, label, Property::Left);
    label.setCaption(text);
    label.setLeft(12.5f);
    const QByteArray bytes = composeRecords(layout);
    label.setCaption(QStringLiteral("other"));
    label.setLeft(0);
    const Screen screen;
    const SkinFolder folder{QString()};
    Loading loading{state, folder, screen};
    try {
      readRecords(layout, bytes, loading);
    } catch (const RecordError&) {
      return false;
    }
    return label.caption() == text && label.left() == 12.5f;
  }
  State state;
};

TEST_F(SavedTexts, ComeBackExactlyWhenNoCheckTellsOtherwise) {
  test::tryLaw(2000, [&] {
    const QString text = anyText();
    const QString damage = textDamage(QStringLiteral("caption"), text);
    RC_ASSERT(comesBack(text) == damage.isEmpty());
  });
}

}  // namespace
}  // namespace veneerer
