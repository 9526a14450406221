// The live element: the unit that a record line, a tool and the canvas work on. Elements are the document:
// there is nothing between them and the files.
//
// An Element holds its properties as a small table of values, laid out by its kind. Subclasses (label.h,
// button.h, controls.h) give them typed names and the rules of their kind; they hold no data of their own.
#pragma once

#include <QString>
#include <vector>

#include "elements/property.h"
#include "elements/require.h"
#include "elements/switchboard.h"
#include "elements/value.h"

namespace veneerer {

class Family;
class Window;

enum class Kind : std::uint8_t {
  Window,
  Label,
  Button,
  PictureBox,
  ImageBox,
  AnimatedFrame,
  AlphaImage,
  ComboBox,
  ListBox,
  FileList,
  FolderList,
  TextBox,
  CheckBox,
  OptionButton,
  CommandButton,
  ImageSlot,
  CoverIndex,
};

class Element {
public:
  Element(const Element&) = delete;
  Element& operator=(const Element&) = delete;
  virtual ~Element() = default;

  Kind kind() const { return kind_; }
  Window& window() const { return window_; }
  /// Null for a window.
  Family* family() const { return family_; }
  /// The index within the array, -1 for a single control.
  int index() const { return index_; }
  /// The element's name among all windows: "Form1.Label16(3)".
  QString key() const;

  bool has(Property property) const { return offset(property) >= 0; }

  /// The value of a property that this kind has; any other is an error of the program.
  const Value& get(Property property) const;

  /// The one gate for change: compares, stores, and gives notice, of a refusal as well. Returns false when
  /// nothing changed: the value is the same as before or the element refuses it. The value's type must be the
  /// property's own.
  bool set(Property property, Value value);

  /// Puts a value back that the element had before: no rule of its kind is asked, nothing follows from it,
  /// and views alone hear of it.
  void restore(Property property, Value value);

  /// What is wrong with a value outside of the property's range, such as a row that a list doesn't have;
  /// empty for one inside. What a button refuses because of its picture or outline is no matter of range.
  virtual QString rangeFault(Property property, const Value& value) const;

  template <class T>
  const T& as(Property property) const {
    return std::get<T>(get(property));
  }

  /// Why a value would be refused, or what is remarked on it, in the words of the element; empty for a value
  /// that is taken, or passed over, without a word.
  virtual QString refusal(Property property, const Value& value) const;

  float left() const { return as<float>(Property::Left); }
  float top() const { return as<float>(Property::Top); }
  float width() const { return as<float>(Property::Width); }
  float height() const { return as<float>(Property::Height); }
  bool isVisible() const { return as<bool>(Property::Visible); }
  const QString& toolTipText() const { return as<QString>(Property::ToolTipText); }
  void setLeft(float twips) { set(Property::Left, twips); }
  void setTop(float twips) { set(Property::Top, twips); }
  void setWidth(float twips) { set(Property::Width, twips); }
  void setHeight(float twips) { set(Property::Height, twips); }
  void setVisible(bool visible) { set(Property::Visible, visible); }
  void setToolTipText(const QString& text) { set(Property::ToolTipText, text); }
  /// Left, Top, Width and Height at once, in twips.
  void place(float left, float top, float width, float height);

  /// What holds the element: a picture box or the window; null for a window itself.
  Element* container() const { return container_; }
  /// Moves the element into another container, on top of what is there.
  void setContainer(Element& container);
  /// The elements inside, from the bottom of the stacking order to its top.
  const std::vector<Element*>& children() const { return children_; }
  void bringToFront();
  void sendToBack();
  /// The place among the container's children, from 0 at the bottom; -1 without a container.
  int stackOrder() const;
  /// Moves the element to that place.
  void setStackOrder(int place);
  /// Moves the element directly above, or below, another one of the same container.
  void stackAbove(Element& sibling);
  void stackBelow(Element& sibling);

protected:
  Element(Kind kind, Window& window, Family* family, int index);

  /// A kind's own rule for a value; false refuses it, which leaves the property as it was. By default the
  /// range decides.
  virtual bool accepts(Property property, const Value& value) const;
  /// True where setting the property is an event of its own, told even when the value is the same as before.
  virtual bool isEvent(Property property) const;
  /// A kind's own consequence of an accepted value, run before the notice is given.
  virtual void stored(Property property);

  /// Stores without comparing or giving notice; the recorder alone hears of it.
  void store(Property property, Value value);
  void notify(Property property, const Value& oldValue);

private:
  void restack(Element& sibling, int shift);
  /// What was there before.
  Value replace(Property property, Value value);
  int offset(Property property) const;

  Kind kind_;
  int index_;
  Window& window_;
  Family* family_;
  Element* container_ = nullptr;
  std::vector<Element*> children_;
  std::vector<Value> values_;
};

/// The element as the kind that it is known to be; any other kind is an error of the program.
template <class T>
T& cast(Element& element) {
  auto* found = dynamic_cast<T*>(&element);
  require(found != nullptr, "the element is of another kind");
  return *found;
}
template <class T>
const T& cast(const Element& element) {
  return cast<T>(const_cast<Element&>(element));
}

}  // namespace veneerer
