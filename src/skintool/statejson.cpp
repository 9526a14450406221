#include "skintool/statejson.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <map>
#include <optional>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include "elements/family.h"
#include "skintool/jsonwriter.h"

namespace veneerer {

namespace {

using P = Property;

constexpr P kPlace[] = {P::Left, P::Top, P::Width, P::Height, P::Visible, P::ToolTipText};
constexpr P kLabel[] = {P::Caption,    P::BackColor,     P::ForeColor,        P::BackStyle,
                        P::Alignment,  P::FontName,      P::FontSize,         P::FontBold,
                        P::FontItalic, P::FontUnderline, P::FontStrikethrough};
constexpr P kButton[] = {P::Caption,       P::ButtonShape,  P::ButtonStyle, P::BackColor, P::ForeColor,
                         P::GradientColor, P::GradientMode, P::PictureSize, P::Picture};
constexpr P kPictureBox[] = {P::BackColor, P::ForeColor, P::Picture};
constexpr P kPicture[] = {P::Picture};
constexpr P kRows[] = {P::Text, P::ListIndex, P::List};
constexpr P kText[] = {P::Text};
constexpr P kState[] = {P::Value};

std::span<const P> ownProperties(Kind kind) {
  switch (kind) {
    case Kind::Label:
      return kLabel;
    case Kind::Button:
      return kButton;
    case Kind::PictureBox:
      return kPictureBox;
    case Kind::Window:
    case Kind::ImageBox:
    case Kind::AnimatedFrame:
    case Kind::AlphaImage:
      return kPicture;
    case Kind::ComboBox:
    case Kind::ListBox:
    case Kind::FileList:
    case Kind::FolderList:
      return kRows;
    case Kind::TextBox:
      return kText;
    case Kind::CheckBox:
    case Kind::OptionButton:
      return kState;
    case Kind::CommandButton:
    case Kind::ImageSlot:
    case Kind::CoverIndex:
      return {};
  }
  return {};
}

QString pictureName(const Picture& picture, const QString& skinPath) {
  if (picture.isNull()) return {};
  if (picture.isDrawn()) return QStringLiteral("(drawn)");
  const QString path = QDir::cleanPath(QFileInfo(picture.path()).absoluteFilePath());
  return path.startsWith(skinPath + u'/') ? path.mid(skinPath.size()) : path;
}

using KeyedElement = std::pair<QString, const Element*>;

std::vector<KeyedElement> elementsByKey(State& state) {
  std::vector<KeyedElement> elements;
  for (const Window* window : state.windows()) {
    elements.emplace_back(window->key(), window);
    for (const Family* family : window->families())
      for (const Element* element : family->members()) elements.emplace_back(element->key(), element);
  }
  std::ranges::sort(elements, {}, &KeyedElement::first);
  return elements;
}

/// The members of an element's object by their names: its properties, and, without one, what holds it.
using Members = std::map<std::string_view, std::optional<P>>;

Members membersOf(Kind kind) {
  Members members{{"Container", {}}};
  for (const std::span<const P> properties : {std::span<const P>(kPlace), ownProperties(kind)})
    for (const P property : properties) members.emplace(propertyName(property).data(), property);
  return members;
}

class StatePrinter {
public:
  StatePrinter(std::FILE* out, Designer& designer)
      : json_(out),
        state_(designer.state()),
        history_(designer.history()),
        skinPath_(QDir::cleanPath(QFileInfo(designer.skinFolder().path()).absoluteFilePath())) {}

  void print(const QList<ScriptedDialogs::Message>& messages) {
    json_.open('{');
    putElements();
    putGlobals();
    putMessages(messages);
    json_.name("notes");
    json_.texts(state_.notes.texts());
    putTables();
    json_.close('}');
    json_.finish();
  }

private:
  void putElements() {
    json_.name("elements");
    json_.open('{');
    for (const auto& [key, element] : elementsByKey(state_)) {
      json_.anyName(key);
      putElement(*element);
    }
    json_.close('}');
  }

  void putElement(const Element& element) {
    Members& members = members_[element.kind()];
    if (members.empty()) members = membersOf(element.kind());
    json_.open('{');
    for (const auto& [name, property] : members) {
      json_.name(name);
      if (property)
        putValue(element.get(*property));
      else
        json_.text(element.container() ? element.container()->key() : QString());
    }
    json_.close('}');
  }

  void putValue(const Value& value) {
    if (const auto* truth = std::get_if<bool>(&value)) return json_.truth(*truth);
    if (const auto* whole = std::get_if<std::int32_t>(&value)) return json_.whole(*whole);
    if (const auto* colour = std::get_if<Colour>(&value)) return json_.whole(colour->number());
    if (const auto* single = std::get_if<float>(&value)) return json_.single(*single);
    if (const auto* text = std::get_if<QString>(&value)) return json_.text(*text);
    if (const auto* list = std::get_if<QStringList>(&value)) return json_.texts(*list);
    json_.text(pictureName(std::get<Picture>(value), skinPath_));
  }

  void putGlobals() {
    const Globals& globals = state_.globals;
    json_.name("globals");
    json_.open('{');
    json_.name("CoverScale");
    json_.single(globals.CoverScale);
    json_.name("CurrentColour");
    json_.whole(globals.CurrentColour.number());
    json_.name("DragAnchorX");
    json_.single(globals.DragAnchorX);
    json_.name("DragAnchorY");
    json_.single(globals.DragAnchorY);
    json_.name("ElementIndex");
    json_.whole(globals.ElementIndex);
    json_.name("LastCoverIndex");
    json_.whole(globals.LastCoverIndex->value());
    json_.name("Modified");
    json_.truth(history_.isModified());
    json_.name("SectionNumber");
    json_.whole(globals.SectionNumber);
    json_.close('}');
  }

  void putMessages(const QList<ScriptedDialogs::Message>& messages) {
    json_.name("messages");
    json_.open('[');
    for (const ScriptedDialogs::Message& message : messages) {
      json_.open('{');
      json_.name("answer");
      json_.text(message.answer);
      json_.name("text");
      json_.text(message.text);
      json_.name("title");
      json_.text(message.title);
      json_.close('}');
    }
    json_.close(']');
  }

  void putTables() {
    std::vector<const Family*> tables(state_.names.families().begin(), state_.names.families().end());
    std::ranges::sort(tables, {}, &Family::name);
    json_.name("tables");
    json_.open('{');
    for (const Family* table : tables) {
      QStringList names;
      for (const Element* name : table->members()) names << name->as<StoredValue>(P::Name).text();
      json_.anyName(table->name());
      if (table->isArray())
        json_.texts(names);
      else
        json_.text(names.first());
    }
    json_.close('}');
  }

  JsonWriter json_;
  State& state_;
  const History& history_;
  QString skinPath_;
  std::map<Kind, Members> members_;
};

}  // namespace

void printState(std::FILE* out, Designer& designer, const QList<ScriptedDialogs::Message>& messages) {
  designer.fillFonts();
  StatePrinter(out, designer).print(messages);
}

}  // namespace veneerer
