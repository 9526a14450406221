#include "ui/operator.h"

#include <QScopedValueRollback>
#include <chrono>

#include "canvas/screens.h"
#include "canvas/sections.h"
#include "records/coverfile.h"

namespace veneerer {

Operator::Operator(Designer& designer) : designer_(designer) {
  rest_.setSingleShot(true);
  rest_.setInterval(std::chrono::seconds(2));
  connect(&rest_, &QTimer::timeout, this, &Operator::release);
  coversWatching_ =
      state().board.watch(*state().globals.LastCoverIndex, [this](const Change&) { places_.reset(); });
  designer.overlay().setListener([this] { Q_EMIT selected(); });
  connect(&designer.history().stack(), &QUndoStack::indexChanged, this, &Operator::acted);
  // Ahead of all windows, which show what is selected.
  connect(this, &Operator::acted, this, [this] {
    overlay().keepOnly([this](const Element& element) { return isOnShownScreen(state(), element); });
  });
}

const RecordPlaces& Operator::places() {
  if (!places_) places_ = writtenPlaces(state(), coverFileName(state().form4.Text2->text()));
  return *places_;
}

Operator::~Operator() {
  designer_.overlay().setListener({});
}

template <class Action>
void Operator::act(Action action) {
  {
    const QScopedValueRollback<bool> acting(isActing_, true);
    action();
  }
  Q_EMIT acted();
}

void Operator::run(const std::function<void()>& command) {
  act(command);
}

void Operator::click(Element& element) {
  act([&] {
    designer_.click(element);
    if (currentElement(state()) == &element) overlay().clear();
  });
}

void Operator::press(Element& element, float x, float y, MouseButton button) {
  act([&] {
    if (button == MouseButton::Left) overlay().clear();
    designer_.press(element, x, y, button);
  });
}

void Operator::move(Element& element, float x, float y, MouseButton button) {
  act([&] { designer_.move(element, x, y, button); });
}

void Operator::nudge(const std::vector<Element*>& elements, int dxPixels, int dyPixels) {
  designer_.nudge(elements, dxPixels, dyPixels);
  Q_EMIT acted();
}

void Operator::sizeInHand(std::optional<float> width, std::optional<float> height) {
  designer_.sizeInHand(width, height);
  Q_EMIT acted();
}

void Operator::resizeCanvas(float width, float height) {
  designer_.resizeCanvas(width, height);
  Q_EMIT acted();
}

void Operator::type(Element& field, const QString& text) {
  act([&] { designer_.type(field, text); });
  rest_.start();
}

void Operator::choose(RowList& list, int row) {
  act([&] { designer_.choose(list, row); });
}

void Operator::chooseTwice(RowList& list, int row) {
  act([&] { designer_.chooseTwice(list, row); });
}

void Operator::tick(CheckBox& box, int value) {
  act([&] { designer_.tick(box, value); });
}

void Operator::set(const std::vector<Element*>& elements, Property property, const Value& value) {
  act([&] { designer_.setProperty(elements, property, value); });
}

void Operator::recolour(const Dress& dress) {
  act([&] { designer_.recolour(dress); });
}

void Operator::pasteLook(const CopiedLook& look, const std::vector<Element*>& to) {
  act([&] { designer_.pasteLook(look, to); });
}

void Operator::giveColour(Element& swatch, Colour colour) {
  act([&] { designer_.giveColour(swatch, colour); });
}

void Operator::takeLook(const QString& skinName, LookPart part) {
  act([&] { designer_.takeLook(skinName, part); });
}

void Operator::align(AlignTo line) {
  act([&] { designer_.align(line); });
}

void Operator::distribute(Along along) {
  act([&] { designer_.distribute(along); });
}

void Operator::makeSameSize(Sides sides) {
  act([&] { designer_.makeSameSize(sides); });
}

void Operator::openSkin(const QString& name) {
  act([&] { designer_.openSkin(name); });
}

QImage Operator::decoded(const QString& path) {
  QImage image;
  act([&] { image = decodeAside(designer_.platform(), state().pictures.load(path)); });
  return image;
}

void Operator::listSkins() {
  designer_.listSkins();
}

void Operator::goOnWithCopy(const QString& skinName) {
  act([&] { designer_.goOnWithCopy(skinName); });
}

void Operator::apply(const Remedy& remedy) {
  act([&] { designer_.apply(remedy); });
}

void Operator::drop(Element& element, const QString& path) {
  act([&] { designer_.drop(element, path); });
}

void Operator::readAnew(const QSet<QString>& paths) {
  designer_.readAnew(paths);
}

void Operator::reload() {
  act([&] { designer_.reload(state().form4.Combo3->text()); });
}

void Operator::fillFonts() {
  designer_.fillFonts();
}

}  // namespace veneerer
