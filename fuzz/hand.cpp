#include "fuzz/hand.h"

#include <algorithm>

#include "canvas/screens.h"
#include "editing/setting.h"
#include "elements/require.h"
#include "painting/canvassize.h"
#include "painting/hittest.h"
#include "preview/screenpicture.h"
#include "problems/problemswatch.h"

namespace veneerer::fuzz {

namespace {

constexpr qint64 kMostPaintedPixels = 2 * 1024 * 1024;  // larger canvases take too long

constexpr const char* kTexts[] = {"",
                                  "0",
                                  "-1",
                                  "150",
                                  "1200",
                                  "-30",
                                  "1e30",
                                  "Two||lines",
                                  "#102030",
                                  "&H80000005",
                                  "Rock, Pop",
                                  "\"quoted\"",
                                  "  007",
                                  "10.50",
                                  "mine.cov",
                                  "2147483648",
                                  "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x8E\xB5",
                                  "#TRUE#",
                                  "a\nb",
                                  "R&B <b>x</b>"};

constexpr const char* kPictures[] = {"feed.jpg",  "genre.gif", "next.png",    "Menu.bmp", "star 0.png",
                                     "missing.x", "top10.gif", "../main.ini", ""};

constexpr float kTwips[] = {0, 1, 15, 150, 300, 1500, 9000, 32767, 1e6F, 1e12F, 3e38F, .5F};

}  // namespace

// Drags, clicks and typing come more often than the rest.
const Hand::Action Hand::kActions[] = {
    &Hand::drag,        &Hand::clickCanvas, &Hand::actInTools, &Hand::act,        &Hand::nudge,
    &Hand::size,        &Hand::resize,      &Hand::set,        &Hand::recolour,   &Hand::copyLook,
    &Hand::arrange,     &Hand::takeLook,    &Hand::drop,       &Hand::readAnew,   &Hand::openOther,
    &Hand::save,        &Hand::mend,        &Hand::undo,       &Hand::paint,      &Hand::drag,
    &Hand::clickCanvas, &Hand::actInTools,  &Hand::act,        &Hand::actInTools,
};

void Hand::play() {
  while (!choices_.atEnd()) {
    (this->*choices_.of(kActions))();
    answerDialogs();
  }
}

// No answer is left for a later action.
void Hand::answerDialogs() {
  world_.dialogs.answers.clear();
  world_.dialogs.colours.clear();
  world_.dialogs.fonts.clear();
  world_.dialogs.files.clear();
}

Element& Hand::member(const Window& window) {
  return *choices_.of(choices_.of(window.families())->members());
}

std::vector<Element*> Hand::severalMembers() {
  std::vector<Element*> members;
  for (int count = choices_.number(6); count > 0; --count) {
    Element& element = member(world_.state().form1);
    if (std::ranges::find(members, &element) == members.end()) members.push_back(&element);
  }
  return members;
}

float Hand::twips() {
  const float twips = choices_.of(kTwips);
  return choices_.truth() ? -twips : twips;
}

Hand::Place Hand::place() {
  return {twips(), twips()};
}

MouseButton Hand::button() {
  return static_cast<MouseButton>(choices_.number(4));
}

Colour Hand::colour() {
  const int number = choices_.number(65536) * 32749;
  return choices_.truth() ? -number : number;
}

QString Hand::text() {
  return QString::fromUtf8(choices_.of(kTexts));
}

QString Hand::picture() {
  const QString folder = World::skin(choices_.truth() ? QStringLiteral("T") : QStringLiteral("S"));
  return folder + QStringLiteral("/images/") + QString::fromLatin1(choices_.of(kPictures));
}

void Hand::drag() {
  Element& element = member(world_.state().form1);
  const Place from = place();
  designer_.press(element, from.x, from.y, button());
  for (int moves = choices_.number(3); moves > 0; --moves) {
    const Place to = place();
    designer_.move(element, to.x, to.y, button());
  }
  if (choices_.truth()) designer_.click(element);
}

void Hand::clickCanvas() {
  world_.dialogs.files.enqueue(picture());
  designer_.click(member(world_.state().form1));
}

void Hand::act() {
  Window* const windows[] = {&world_.state().form2, &world_.state().form4, &world_.state().form5};
  use(member(*choices_.of(windows)));
}

void Hand::actInTools() {
  use(member(world_.state().form6));
}

void Hand::use(Element& element) {
  for (int i = 0; i < 2; ++i) world_.dialogs.answers.enqueue(choices_.truth());
  world_.dialogs.files.enqueue(picture());
  world_.dialogs.colours.enqueue(colour().plain());
  world_.dialogs.fonts.enqueue(
      FontChoice{QStringLiteral("DejaVu Sans"), twips() / 20, choices_.truth(), false, false, false});
  if (auto* list = dynamic_cast<RowList*>(&element); list && choices_.byte() % 8 != 0) {
    designer_.choose(*list, choices_.number(std::size_t(list->list().size()) + 1) - 1);
  } else if (element.kind() == Kind::TextBox || element.kind() == Kind::ComboBox) {
    designer_.type(element, text());
  } else if (element.kind() == Kind::CheckBox) {
    designer_.tick(cast<CheckBox>(element), choices_.number(2));
  } else if (element.kind() == Kind::OptionButton) {
    designer_.select(cast<OptionButton>(element));
  } else {
    designer_.click(element);
  }
}

void Hand::nudge() {
  Element& element = member(world_.state().form1);
  const int across = choices_.byte() - 128;
  designer_.nudge(element, across, choices_.byte() - 128);
}

void Hand::size() {
  const auto side = [&]() { return choices_.truth() ? std::optional(twips()) : std::nullopt; };
  const std::optional<float> width = side();
  designer_.sizeInHand(width, side());
}

void Hand::resize() {
  const float width = twips();
  designer_.resizeCanvas(width, twips());
}

Value Hand::value(Property property) {
  switch (propertyType(property)) {
    case ValueType::Truth:
      return choices_.truth();
    case ValueType::Whole:
      return std::int32_t{choices_.byte() - 2};
    case ValueType::Single:
      return twips();
    case ValueType::Texts:
      return QStringList{text(), text()};
    case ValueType::Picture:
      return world_.state().pictures.load(picture());
    case ValueType::Stored:
      return StoredValue(text());
    case ValueType::Colour:
      return colour();
    default:
      return text();
  }
}

// What the inspector offers.
void Hand::set() {
  constexpr Property kProperties[] = {
      Property::Left,          Property::Top,          Property::Width,       Property::Height,
      Property::Visible,       Property::Caption,      Property::BackColor,   Property::ForeColor,
      Property::BackStyle,     Property::Alignment,    Property::FontName,    Property::FontSize,
      Property::FontBold,      Property::FontItalic,   Property::ButtonShape, Property::ButtonStyle,
      Property::GradientColor, Property::GradientMode, Property::PictureSize, Property::Picture};
  const Property property = choices_.of(kProperties);
  const std::vector<Element*> elements = severalMembers();
  designer_.setProperty(elements, property, value(property));
}

void Hand::recolour() {
  Dress dress;
  for (Element* element : severalMembers())
    if (element->has(Property::BackColor))
      dress.put(*element, Property::BackColor, Colour(choices_.byte() * 65793));
  painter_.setDress(dress);
  paint();
  painter_.setDress({});
  designer_.recolour(dress);
}

void Hand::copyLook() {
  const Element& from = member(world_.state().form1);
  designer_.pasteLook(lookOf(from), severalMembers());
}

void Hand::arrange() {
  designer_.overlay().select(severalMembers());
  switch (choices_.number(3)) {
    case 0:
      return designer_.align(static_cast<AlignTo>(choices_.number(6)));
    case 1:
      return designer_.distribute(static_cast<Along>(choices_.number(2)));
    default:
      return designer_.makeSameSize(static_cast<Sides>(choices_.number(3)));
  }
}

void Hand::takeLook() {
  designer_.takeLook(QStringLiteral("T"), choices_.truth() ? LookPart::Whole : LookPart::ColoursAndFonts);
}

void Hand::drop() {
  Window* const windows[] = {&world_.state().form1, &world_.state().form5};
  Element& element = member(*choices_.of(windows));
  const QString path = picture();
  const bool isTaken = designer_.takesPicture(element, path);
  const int steps = designer_.history().stack().count();
  designer_.drop(element, path);
  require(isTaken || designer_.history().stack().count() == steps, "what isn't taken makes no step");
}

// Another program wrote a picture.
void Hand::readAnew() {
  designer_.readAnew({picture()});
  designer_.fillFonts();
  designer_.history().settle();
}

void Hand::openOther() {
  const QString name = choices_.truth() ? QStringLiteral("T") : QStringLiteral("S");
  if (choices_.truth())
    designer_.openSkin(name);
  else
    designer_.reload(name);
}

void Hand::save() {
  for (int i = 0; i < 2; ++i) world_.dialogs.answers.enqueue(choices_.truth());
  designer_.save();
}

// A finding with a remedy is mended, once.
void Hand::mend() {
  ProblemsWatch watch(world_.state(), designer_.skinFolder(), world_.platform.screen, {}, kTouchPixels,
                      ProblemsWatch::Depth::Warnings);
  while (watch.work(1000)) {
  }
  Remedies remedies;
  for (const Finding& finding : watch.findings()) remedies << finding.remedies;
  if (!remedies.isEmpty()) designer_.apply(choices_.of(remedies));
}

void Hand::undo() {
  for (int steps = choices_.number(4); steps > 0; --steps) designer_.history().undo();
  for (int steps = choices_.number(3); steps > 0; --steps) designer_.history().redo();
}

void Hand::paint() {
  const State& state = world_.state();
  const Screen& screen = world_.platform.screen;
  const QSize size = canvasSize(state.form1, screen).pixels;
  if (qint64{size.width()} * size.height() <= kMostPaintedPixels)
    canvasPicture(state.form1, screen, painter_);
  const QImage sketch =
      screenSketch(world_.state(), screen, painter_, choices_.number(kScreenEntries.size()), 120);
  require(sketch.width() <= 120 && sketch.height() <= 120, "a sketch is as small as it is to be");
  const float x = twips();
  HitTest(painter_.cutOuts()).elementAt(state.form1, x, twips());
}

}  // namespace veneerer::fuzz
