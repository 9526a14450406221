// The remaining kinds of element: pictures, lists, text fields, boxes and command buttons.
#pragma once

#include "elements/backstyle.h"
#include "elements/element.h"

namespace veneerer {

/// A picture that holds other elements; every screen is one.
class PictureBox : public Element {
public:
  PictureBox(Window& window, Family* family, int index) : Element(Kind::PictureBox, window, family, index) {}

  const Picture& picture() const { return as<Picture>(Property::Picture); }
  Colour backColor() const { return as<Colour>(Property::BackColor); }
  Colour foreColor() const { return as<Colour>(Property::ForeColor); }
  /// One that isn't opaque shows what lies beneath it in the place of its back colour.
  BackStyle backStyle() const { return static_cast<BackStyle>(as<std::int32_t>(Property::BackStyle)); }
  void setBackStyle(BackStyle style) { set(Property::BackStyle, static_cast<std::int32_t>(style)); }
  void setPicture(const Picture& picture) { set(Property::Picture, picture); }
  void setBackColor(Colour colour) { set(Property::BackColor, colour); }
  void setForeColor(Colour colour) { set(Property::ForeColor, colour); }
  /// 0 for none, 1 for a single line.
  void setBorderStyle(int style) { set(Property::BorderStyle, style); }
};

/// A picture without children, shown in its own size or stretched to the element.
class ImageBox : public Element {
public:
  ImageBox(Window& window, Family* family, int index) : Element(Kind::ImageBox, window, family, index) {}

  const Picture& picture() const { return as<Picture>(Property::Picture); }
  void setPicture(const Picture& picture) { set(Property::Picture, picture); }
  void setStretch(bool stretch) { set(Property::Stretch, stretch); }
};

/// ucAniGIF: an animated picture.
class AnimatedFrame : public Element {
public:
  AnimatedFrame(Window& window, Family* family, int index)
      : Element(Kind::AnimatedFrame, window, family, index) {}

  const Picture& picture() const { return as<Picture>(Property::Picture); }
  void setPicture(const Picture& picture) { set(Property::Picture, picture); }
};

/// aicAlphaImage: a picture that blends over what is under it.
class AlphaImage : public Element {
public:
  AlphaImage(Window& window, Family* family, int index) : Element(Kind::AlphaImage, window, family, index) {}

  const Picture& picture() const { return as<Picture>(Property::Picture); }
  void setPicture(const Picture& picture) { set(Property::Picture, picture); }
};

/// A list of rows with at most one chosen: combo boxes, list boxes, file and folder lists.
class RowList : public Element {
public:
  const QString& text() const { return as<QString>(Property::Text); }
  int listIndex() const { return as<std::int32_t>(Property::ListIndex); }
  const QStringList& list() const { return as<QStringList>(Property::List); }

  /// Chooses a row, or none with -1, and shows its text. Gives a ListIndex notice even when the row is the
  /// same as before: setting a row always counts as the operator's selection. The text that it brings is no
  /// change of the text and gives no notice. A row outside the list is refused. A plain set of the property
  /// does the same.
  bool select(int row) { return set(Property::ListIndex, row); }
  bool hasRow(int row) const { return row >= -1 && row < list().size(); }

  /// Shows a text; the row becomes that of the entry with exactly this text, or none. It is no selection: the
  /// only notice is that of Text, when the text differs from the one before.
  void setText(const QString& text) { set(Property::Text, text); }

  /// Replaces the rows; none is chosen and no text shown afterwards. Always gives a List notice and no other.
  void setRows(const QStringList& rows);
  void addRow(const QString& row);

  QString rangeFault(Property property, const Value& value) const override;

protected:
  using Element::Element;
  bool isEvent(Property property) const override;
  void stored(Property property) override;
};

class ComboBox : public RowList {
public:
  ComboBox(Window& window, Family* family, int index) : RowList(Kind::ComboBox, window, family, index) {}
};

class ListBox : public RowList {
public:
  ListBox(Window& window, Family* family, int index) : RowList(Kind::ListBox, window, family, index) {}
};

/// A list of the files of one folder, by their names.
class FileList : public RowList {
public:
  FileList(Window& window, Family* family, int index) : RowList(Kind::FileList, window, family, index) {}
};

/// A list of the sub-folders of one folder, by their paths.
class FolderList : public RowList {
public:
  FolderList(Window& window, Family* family, int index) : RowList(Kind::FolderList, window, family, index) {}
};

class TextBox : public Element {
public:
  TextBox(Window& window, Family* family, int index) : Element(Kind::TextBox, window, family, index) {}

  const QString& text() const { return as<QString>(Property::Text); }
  void setText(const QString& text) { set(Property::Text, text); }
};

/// A check box or an option button: a caption and a state.
class CheckBox : public Element {
public:
  CheckBox(Window& window, Family* family, int index) : Element(Kind::CheckBox, window, family, index) {}

  const QString& caption() const { return as<QString>(Property::Caption); }
  void setCaption(const QString& text) { set(Property::Caption, text); }
  /// 0 not ticked, 1 ticked, 2 neither; any other is refused.
  int value() const { return as<std::int32_t>(Property::Value); }
  void setValue(int value) { set(Property::Value, value); }
  bool isTicked() const { return value() == 1; }

  QString rangeFault(Property property, const Value& value) const override;
};

/// One choice of a group: the members of its family.
class OptionButton : public Element {
public:
  OptionButton(Window& window, Family* family, int index)
      : Element(Kind::OptionButton, window, family, index) {}

  const QString& caption() const { return as<QString>(Property::Caption); }
  void setCaption(const QString& text) { set(Property::Caption, text); }
  bool isSelected() const { return as<std::int32_t>(Property::Value) == 1; }
  /// Selects this option and releases the others of the family.
  void select();
};

class CommandButton : public Element {
public:
  CommandButton(Window& window, Family* family, int index)
      : Element(Kind::CommandButton, window, family, index) {}

  const QString& caption() const { return as<QString>(Property::Caption); }
  void setCaption(const QString& text) { set(Property::Caption, text); }
};

}  // namespace veneerer
