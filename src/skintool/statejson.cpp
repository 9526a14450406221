#include "skintool/statejson.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <charconv>
#include <map>
#include <span>
#include <utility>

#include "elements/family.h"
#include "skintool/output.h"

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

// The double whose shortest form is the Single's shortest form, so that the text brings the same Single back.
double asShortestDouble(float number) {
  char text[64];
  const auto end = std::to_chars(text, text + sizeof text, number).ptr;
  double shortest = 0;
  std::from_chars(text, end, shortest);
  return shortest;
}

QString pictureName(const Picture& picture, const QString& skinPath) {
  if (picture.isNull()) return {};
  if (picture.isDrawn()) return QStringLiteral("(drawn)");
  const QString path = QDir::cleanPath(QFileInfo(picture.path()).absoluteFilePath());
  return path.startsWith(skinPath + u'/') ? path.mid(skinPath.size()) : path;
}

QJsonValue asJson(const Value& value, const QString& skinPath) {
  if (const auto* truth = std::get_if<bool>(&value)) return *truth;
  if (const auto* whole = std::get_if<std::int32_t>(&value)) return *whole;
  if (const auto* colour = std::get_if<Colour>(&value)) return colour->number();
  if (const auto* single = std::get_if<float>(&value)) return asShortestDouble(*single);
  if (const auto* text = std::get_if<QString>(&value)) return *text;
  if (const auto* list = std::get_if<QStringList>(&value)) return QJsonArray::fromStringList(*list);
  return pictureName(std::get<Picture>(value), skinPath);
}

QJsonObject elementAsJson(const Element& element, const QString& skinPath) {
  QJsonObject object;
  object.insert(u"Container", element.container() ? element.container()->key() : QString());
  for (std::span<const P> properties : {std::span<const P>(kPlace), ownProperties(element.kind())})
    for (P property : properties)
      object.insert(propertyName(property), asJson(element.get(property), skinPath));
  return object;
}

std::map<QString, const Element*> elementsByKey(State& state) {
  std::map<QString, const Element*> elements;
  for (Window* window : state.windows()) {
    elements.emplace(window->key(), window);
    for (const Family* family : window->families())
      for (const Element* element : family->members()) elements.emplace(element->key(), element);
  }
  return elements;
}

/// The lines of an object without the braces around them.
QByteArray linesOf(const QJsonObject& object) {
  QByteArray lines = QJsonDocument(object).toJson();
  lines.chop(3);
  return lines.remove(0, 2);
}

void putIndented(std::FILE* out, QByteArrayView lines) {
  while (!lines.isEmpty()) {
    const qsizetype end = lines.indexOf('\n');
    const qsizetype size = end < 0 ? lines.size() : end + 1;
    put(out, "    ");
    putJson(out, lines.first(size));
    lines = lines.sliced(size);
  }
}

void putElements(std::FILE* out, State& state, const QString& skinPath) {
  const char* ahead = "    \"elements\": {\n";
  for (const auto& [key, element] : elementsByKey(state)) {
    put(out, std::exchange(ahead, ",\n"));
    putIndented(out, linesOf({{key, elementAsJson(*element, skinPath)}}));
  }
  put(out, "\n    },\n");
}

QJsonObject globalsAsJson(const Globals& globals, const History& history) {
  return {{QStringLiteral("Modified"), history.isModified()},
          {QStringLiteral("SectionNumber"), globals.SectionNumber},
          {QStringLiteral("ElementIndex"), globals.ElementIndex},
          {QStringLiteral("DragAnchorX"), asShortestDouble(globals.DragAnchorX)},
          {QStringLiteral("DragAnchorY"), asShortestDouble(globals.DragAnchorY)},
          {QStringLiteral("CurrentColour"), globals.CurrentColour.number()},
          {QStringLiteral("LastCoverIndex"), globals.LastCoverIndex->value()},
          {QStringLiteral("CoverScale"), asShortestDouble(globals.CoverScale)}};
}

QJsonObject tablesAsJson(const ImageNames& names) {
  QJsonObject tables;
  for (const Family* table : names.families()) {
    QJsonArray entries;
    for (const Element* name : table->members()) entries.append(name->as<StoredValue>(Property::Name).text());
    tables.insert(table->name(), table->isArray() ? QJsonValue(entries) : entries.first());
  }
  return tables;
}

QJsonArray messagesAsJson(const QList<ScriptedDialogs::Message>& messages) {
  QJsonArray array;
  for (const ScriptedDialogs::Message& message : messages)
    array.append(QJsonObject{{QStringLiteral("title"), message.title},
                             {QStringLiteral("text"), message.text},
                             {QStringLiteral("answer"), message.answer}});
  return array;
}

}  // namespace

void printState(std::FILE* out, Designer& designer, const QList<ScriptedDialogs::Message>& messages) {
  State& state = designer.state();
  designer.fillFonts();
  const SkinFolder skin = designer.skinFolder();
  const QString skinPath = QDir::cleanPath(QFileInfo(skin.path()).absoluteFilePath());
  put(out, "{\n");
  putElements(out, state, skinPath);
  putJson(out, linesOf({{QStringLiteral("globals"), globalsAsJson(state.globals, designer.history())},
                        {QStringLiteral("messages"), messagesAsJson(messages)},
                        {QStringLiteral("notes"), QJsonArray::fromStringList(state.notes.texts())},
                        {QStringLiteral("tables"), tablesAsJson(state.names)}}));
  print(out, "\n}\n");
}

}  // namespace veneerer
