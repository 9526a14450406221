#include "designer/takenlook.h"

#include <algorithm>
#include <span>

#include "canvas/description.h"
#include "files/plainfile.h"
#include "skin/catalogue.h"

namespace veneerer {

namespace {

using P = Property;

constexpr P kColoursAndFonts[] = {P::BackColor,  P::ForeColor,     P::GradientColor,
                                  P::FontName,   P::FontSize,      P::FontBold,
                                  P::FontItalic, P::FontUnderline, P::FontStrikethrough};
constexpr P kPlacesAndStyles[] = {P::Left,      P::Top,         P::Width,        P::Height,     P::BackStyle,
                                  P::Alignment, P::ButtonStyle, P::GradientMode, P::PictureSize};

class LookTaking {
public:
  LookTaking(const LookSide& from, const LookSide& into, int entry)
      : from_(from), into_(into), entry_(entry) {}

  TakenLook take(LookPart part) {
    for (const Family* family : into_.state.form1.families())
      for (Element* element : family->members())
        if (isOnScreen(*element)) takeValues(*element, part);
    if (part == LookPart::Whole) takePictures();
    return std::move(look_);
  }

private:
  bool isOnScreen(const Element& element) const { return entryHolding(into_.state, element) == entry_; }

  void takeValues(Element& element, LookPart part) {
    const Element* other = from_.state.find(element.key());
    if (!other) return;
    const std::size_t first = look_.values.size();
    takeEach(element, *other, kColoursAndFonts);
    if (part == LookPart::ColoursAndFonts) return;
    takeEach(element, *other, kPlacesAndStyles);
    if (element.has(P::ButtonShape)) takeShape(element, *other, first);
  }

  void takeEach(Element& element, const Element& other, std::span<const Property> properties) {
    for (const Property property : properties)
      if (element.has(property) && element.get(property) != other.get(property))
        look_.values.push_back({&element, property, other.get(property)});
  }

  // An outline from a picture takes no picture size, so it goes first and comes last.
  void takeShape(Element& button, const Element& other, std::size_t first) {
    const Value& shape = other.get(P::ButtonShape);
    const bool isSame = first == look_.values.size() && button.get(P::ButtonShape) == shape;
    if (isSame) return;
    look_.values.insert(look_.values.begin() + static_cast<std::ptrdiff_t>(first),
                        {&button, P::ButtonShape, 0});
    look_.shapes.push_back({&button, P::ButtonShape, shape});
  }

  void takePictures() {
    for (const SaveEntry& file : saveOrder()) {
      const Layout layout = file.layout(into_.state);
      for (const Row& row : layout.rows())
        if (const Reference* reference = row.reference()) addReference(*reference);
    }
    std::erase_if(look_.pictures, [this](TakenPicture& picture) { return !isToTake(picture); });
  }

  // What the writer takes from elsewhere wouldn't be the same after the next load.
  void addReference(const Reference& reference) {
    if (reference.into != reference.from) return;
    std::vector<Element*> shownBy;
    if (reference.button) shownBy.push_back(reference.button);
    for (Element* box : reference.boxes)
      if (box) shownBy.push_back(box);
    if (std::ranges::none_of(shownBy, [this](const Element* e) { return isOnScreen(*e); })) return;
    TakenPicture& picture = pictureOf(*reference.into);
    for (Element* element : shownBy)
      if (std::ranges::find(picture.shownBy, element) == picture.shownBy.end())
        picture.shownBy.push_back(element);
  }

  TakenPicture& pictureOf(ImageSlot& name) {
    const auto found = std::ranges::find_if(
        look_.pictures, [&](const TakenPicture& picture) { return picture.name == &name; });
    return found != look_.pictures.end() ? *found : look_.pictures.emplace_back(TakenPicture{&name, {}, {}});
  }

  /// Fills in the path. False where nothing is to be done.
  bool isToTake(TakenPicture& picture) const {
    const QString reference = nameOfOther(*picture.name).text();
    if (reference.isEmpty()) return !picture.name->isEmpty() && showsNone(picture);
    picture.path = from_.folder.resolve(reference);
    const QString own = into_.folder.resolve(picture.name->text());
    return !picture.path.isEmpty() && (own.isEmpty() || !haveSameBytes(own, picture.path));
  }

  const ImageSlot& nameOfOther(const ImageSlot& name) const {
    return cast<ImageSlot>(*from_.state.names.family(name.family()->name())->find(name.index()));
  }

  bool showsNone(const TakenPicture& picture) const {
    return std::ranges::all_of(picture.shownBy, [this](const Element* element) {
      const Element* other = from_.state.find(element->key());
      return !other || other->as<Picture>(P::Picture).isNull();
    });
  }

  LookSide from_;
  LookSide into_;
  int entry_;
  TakenLook look_;
};

}  // namespace

TakenLook lookToTake(const LookSide& from, const LookSide& into, int entry, LookPart part) {
  return LookTaking(from, into, entry).take(part);
}

}  // namespace veneerer
