#include "looks/plans.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>
#include <optional>

#include "looks/texts.h"

namespace veneerer::looks {

namespace {

using design::Box;
using design::Plan;

// Lengths of a screen of 800 by 600 pixels.
constexpr double kScreenWidth = 640;
constexpr double kScreenHeight = 468;
constexpr double kSide = 160;
constexpr double kPlayer = 80;
constexpr double kStatus = 52;
constexpr double kTwoRows = 104;
constexpr double kOneRow = 72;
constexpr double kLogo = 224;

// Below this its buttons are too small for a finger.
constexpr double kLeastScale = 0.78;
constexpr double kWide = 1.7;
constexpr double kVeryWide = 2;

struct FontMeasure {
  const char* family;
  double width;  ///< of a text, Arial's is 1
  double line;   ///< ascent and descent, in sizes
};
constexpr FontMeasure kMeasures[] = {{"Arial", 1, 1.15},
                                     {"Times New Roman", 0.92, 1.15},
                                     {"Courier New", 1.24, 1.14},
                                     {"DejaVu Sans", 1.17, 1.17},
                                     {"Verdana", 1.19, 1.22}};

FontMeasure measured(const QString& family) {
  for (const FontMeasure& known : kMeasures)
    if (family == QLatin1String(known.family)) return known;
  constexpr int kPixels = 100;
  const auto metrics = [](const QString& name) {
    QFont font(name);
    font.setPixelSize(kPixels);
    return QFontMetricsF(font);
  };
  const QString text = QStringLiteral("Artist Name, Track Listing 20");
  const QFontMetricsF own = metrics(family);
  const double width = own.horizontalAdvance(text) / metrics(QStringLiteral("Arial")).horizontalAdvance(text);
  return {"", std::clamp(width, 0.5, 3.0), std::clamp(own.height() / kPixels, 1.0, 2.0)};
}

int whole(double pixels) {
  return static_cast<int>(std::lround(pixels));
}

class Planner {
public:
  explicit Planner(QSize size) : rest_{0, 0, size.width(), size.height()} {
    plan_.width = size.width();
    plan_.height = size.height();
  }

  Plan planned(Arrangement arrangement) && {
    if (plan_.height > plan_.width)
      standUpright(arrangement == Arrangement::MenuTop);
    else if (!hasRoomForRows() || arrangement == Arrangement::MenuLeft)
      putMenuAside(arrangement == Arrangement::MenuRight);
    else if (arrangement == Arrangement::MenuRight)
      putMenuAside(true);
    else
      putMenuInRows(arrangement == Arrangement::MenuTop);
    fillScreen();
    return std::move(plan_);
  }

private:
  double unitOfRows() const { return std::min(plan_.width / 898.0, plan_.height / 673.0); }
  bool hasRoomForRows() const { return unitOfRows() >= kLeastScale; }

  void standUpright(bool menuOnTop) {
    const double unit = plan_.width / kScreenWidth;
    plan_.logo = rest_.cutTop(whole(72 * unit));
    plan_.player = rest_.cutTop(whole(kPlayer * unit));
    plan_.menuColumns = 7;
    const int rows = whole(128 * unit);
    plan_.menu = menuOnTop ? rest_.cutTop(rows) : rest_.cutBottom(rows);
    plan_.status = rest_.cutBottom(whole(kStatus * unit));
  }

  void putMenuAside(bool right) {
    const double unit = std::min(plan_.width / 800.0, plan_.height / 600.0);
    const bool isVeryWide = plan_.width >= kVeryWide * plan_.height;
    const int side = whole((isVeryWide ? 1.25 : 1) * kSide * unit);
    plan_.menu = right ? rest_.cutRight(side) : rest_.cutLeft(side);
    plan_.logo = plan_.menu.cutTop(whole(kPlayer * unit));
    plan_.menuColumns = 2;
    const int player = whole(kPlayer * unit);
    plan_.player = right ? rest_.cutBottom(player) : rest_.cutTop(player);
    plan_.status = rest_.cutBottom(whole(kStatus * unit));
  }

  void putMenuInRows(bool onTop) {
    const double unit = unitOfRows();
    const bool isOneRow = plan_.width >= kWide * plan_.height;
    Box top = rest_.cutTop(whole(kPlayer * unit));
    plan_.logo = top.cutLeft(whole(kLogo * unit));
    plan_.player = top;
    plan_.menuColumns = isOneRow ? 14 : 7;
    const int rows = whole((isOneRow ? kOneRow : kTwoRows) * unit);
    plan_.menu = onTop ? rest_.cutTop(rows) : rest_.cutBottom(rows);
    plan_.status = rest_.cutBottom(whole(kStatus * unit));
  }

  // What is left of it all, and what stands in there.
  void fillScreen() {
    plan_.screen = plan_.stage = plan_.dialog = rest_;
    plan_.dialog.h += plan_.status.h;
    plan_.scale = std::min(rest_.w / kScreenWidth, rest_.h / kScreenHeight);
    const auto px = [this](double length) { return whole(length * plan_.scale); };
    plan_.confirm = rest_.centred(std::min(rest_.w, px(600)), px(220));
    const Box pin = rest_.centred(px(201), px(305));
    plan_.pin = pin.moved(rest_.right() - px(16) - pin.right(), 0);
    const Box popup = rest_.centred(px(300), std::min(px(430), rest_.h - px(20)));
    plan_.popup = popup.moved(rest_.right() - px(12) - popup.right(), 0);
    plan_.name = Box{rest_.x, rest_.y + rest_.h / 6, rest_.w, px(64)}.inset(rest_.w / 10, 0);
    plan_.namePoints = 22;
    plan_.genreBar = {rest_.x, rest_.y, rest_.w, px(60)};
  }

  Plan plan_;
  Box rest_;
};

bool hasLetterRow(const Plan& plan) {
  constexpr int kKeys = 27;
  const double width = plan.screen.w - 20 * plan.scale;
  return width / kKeys - 2 * plan.scale >= design::kFinger + 1;
}

}  // namespace

QString faultOfSize(QSize size) {
  const int w = size.width();
  const int h = size.height();
  if (w < kLeastWidth || h < kLeastHeight || w > kMostPixels || h > kMostPixels)
    return LookTexts::tr("a Skin has from 640 x 480 to 3840 x 3840 pixels");
  // Screens of 2560 or 3440 pixels across are sold as 21:9 as well.
  if ((w + 1) * 16 <= h * 9 || w * 10 > h * 24)
    return LookTexts::tr("a Skin's proportions are from 9:16 to 21:9");
  return {};
}

Plan planOf(const Look& look, QSize size, const QString& font) {
  Plan plan = Planner(size).planned(look.arrangement);
  const FontMeasure measure = measured(font);
  plan.font = font;
  plan.lineFactor = std::max(design::kLineFactor, measure.line);
  plan.textScale = plan.scale / std::max({1.0, measure.width, measure.line / design::kLineFactor});
  plan.leastPoints = 7;
  plan.trackColumns = 2;
  const Choices choices = choicesFor(look, plan);
  plan.albumCounts = choices.genre != 2;
  plan.sliderUpright = choices.jumpToLetter == 1;
  return plan;
}

Choices choicesFor(const Look& look, const Plan& plan) {
  Choices choices = look.choices;
  if (hasLetterRow(plan)) return choices;
  if (choices.jumpToLetter == 3) choices.jumpToLetter = 0;
  // Any style but the first brings a row of letters with it.
  choices.genre = 0;
  return choices;
}

}  // namespace veneerer::looks
