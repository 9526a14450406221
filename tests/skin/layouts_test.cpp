// Walks over all layouts: what no example would find.
//
// The outlines say which elements a file holds, in which groups of fields, in which order, and where it may
// end. Reader and writer walk the same rows, so a row in a wrong place comes back whole from a save and a
// load and only shows here. A line of an outline is the number of its first line in the file, one element or
// several of one family, and what stands there for each of them:
//   ?  the file may end ahead of it        ~  held back until the image      ^  applied above -1 only
//   @  needs this version                  !  a step follows
//   <- written from another element, or written and read by no one
#include <gtest/gtest.h>

#include "records/coverfile.h"
#include "records/layoutwriter.h"
#include "skin/catalogue.h"
#include "support/files.h"

namespace veneerer {
namespace {

using Words = QStringList;

/// One element, or a run of one family, with what stands for each.
struct Unit {
  QString owner;
  int first = -1;
  int last = -1;
  Words words;
  std::size_t line = 0;
  QString source = {};  ///< of what is written, where it isn't what the reader fills

  QString text() const {
    QString place;
    if (first >= 0) place = QStringLiteral("(%1)").arg(first);
    if (first < last) place = QStringLiteral("(%1-%2)").arg(first).arg(last);
    place += source;
    if (!owner.isEmpty()) place += ": ";
    return QStringLiteral("%1 ").arg(line, 6) + owner + place + words.join(", ") + u'\n';
  }
};

struct Group {
  const char* name;
  Words words;
};

const Words kColours = {"BackColor", "ForeColor"};
const Words kPlace = {"Top", "Left", "Height", "Width"};
const Words kStyle = Words{"ButtonStyle"} + kColours + Words{"GradientColor", "GradientMode"};
const Words kWhole = {"Width as a whole, scaled", "Height as a whole, scaled", "Left as a whole, scaled",
                      "Top as a whole, scaled"};
const Group kGroups[] = {
    {"ButtonRecord", Words{"Caption", "ButtonShape~"} + kStyle},
    {"plain ButtonRecord", Words{"Caption", "ButtonShape"} + kStyle},
    {"GeometryQuad", {"Height", "Width", "Top", "Left"}},
    {"LabelRecord", kColours + kPlace + Words{"FontName", "FontSize"}},
    {"colours", kColours},
    {"PlaceQuad", kPlace},
    {"cover place", kWhole},
};

/// Puts the group's name in the place of its words. Only its first word may be one ahead of which the file
/// can end.
void fold(Words& words, const Group& group) {
  for (qsizetype at = 0; at + group.words.size() <= words.size(); ++at) {
    Words run = words.mid(at, group.words.size());
    const QString end = run.first().startsWith(u'?') ? QStringLiteral("?") : QString();
    const QString step = run.last().endsWith(u'!') ? QStringLiteral("!") : QString();
    run.first().remove(0, end.size());
    run.last().chop(step.size());
    if (run != group.words) continue;
    words.remove(at, group.words.size());
    words.insert(at, end + QLatin1String(group.name) + step);
  }
}

/// The element's name; those of the canvas stand without their window.
QString nameOf(const Element& element) {
  QString name = element.key();
  return name.startsWith("Form1.") ? name.mid(6) : name;
}

QString familyOf(const Element& element) {
  return nameOf(element).section(u'(', 0, 0);
}

class Outline {
public:
  Outline(State& state, const Layout& layout) : state_(state), layout_(layout) {
    for (std::size_t i = 0; i < layout.size(); ++i) add(i);
  }

  QString text() {
    QString text = QStringLiteral("%1, %2 lines\n").arg(layout_.fileName()).arg(layout_.lineCount());
    for (const Unit& unit : runs()) text += unit.text();
    if (!layout_.endSteps().empty())
      text += QStringLiteral("at the end: %1\n").arg(layout_.endSteps().size());
    return text;
  }

private:
  static Unit unitOf(const Element& element, const QString& word) {
    return {familyOf(element), element.index(), element.index(), {word}};
  }

  Unit unitAt(std::size_t i) const {
    const Row& row = layout_.rows()[i];
    if (const Field* field = row.field()) return unitOf(*field->into.element, wordOf(*field));
    if (const Reference* reference = row.reference()) return unitOf(*reference);
    if (const Counter* counter = row.counter())
      return {QLatin1String(counter->name),
              -1,
              -1,
              {counter->kept ? QStringLiteral("count") : QString::number(counter->newest)}};
    const Literal& literal = *row.literal();
    const QString text = u'"' + literal.text + u'"';
    if (literal.captionOf) return unitOf(*literal.captionOf, text + " Caption");
    // label_align.ini heads each value with the label's own name.
    const Field* next = i + 1 < layout_.size() ? layout_.rows()[i + 1].field() : nullptr;
    if (next && nameOf(*next->into.element) == QString(literal.text).remove(u' '))
      return unitOf(*next->into.element, "name");
    return {{}, -1, -1, {text}};
  }

  Unit unitOf(const Reference& reference) const {
    if (reference.button) {
      EXPECT_EQ(reference.into, state_.names.of(*reference.button));
      const char* word = reference.keepsPictureWhenEmpty ? "image unless empty" : "image";
      return unitOf(*reference.button, QLatin1String(word));
    }
    const int index = reference.into->index();
    Unit unit{reference.into->family()->name(), index, index, {}};
    Words boxes;
    for (const Element* box : reference.boxes)
      if (box)
        boxes.append(box->index() == unit.first ? familyOf(*box) + QStringLiteral("(i)") : nameOf(*box));
    unit.words.append(boxes.isEmpty() ? QStringLiteral("kept")
                                      : QStringLiteral("shown in ") + boxes.join(" and "));
    return unit;
  }

  QString wordOf(const Field& field) const {
    QString word = propertyName(field.into.property);
    if (field.kind == ValueKind::NumberText) word += " as a number";
    if (field.kind == ValueKind::Whole) word += " as a whole";
    if (field.scale == &state_.globals.CoverScale) word += ", scaled";
    if (field.isHeldBack) word += u'~';
    if (field.aboveMinusOneOnly) word += u'^';
    return word;
  }

  QString sourceOf(const Row& row) const {
    const Element* from = nullptr;
    if (row.field() && row.field()->from.element != row.field()->into.element)
      from = row.field()->from.element;
    if (row.reference() && row.reference()->from != row.reference()->into)
      for (const Element* button : row.reference()->button->family()->members())
        if (state_.names.of(*button) == row.reference()->from) from = button;
    if (row.isWrittenOnly) return " <- no one reads it";
    return from ? QStringLiteral(" <- ") + nameOf(*from) : QString();
  }

  static bool isSameOwner(const Unit& left, const Unit& right) {
    return left.owner == right.owner && left.source == right.source;
  }

  /// Adds the row to the unit of the row before, when it is of the same element, else as a unit of its own.
  void add(std::size_t i) {
    const Row& row = layout_.rows()[i];
    Unit unit = unitAt(i);
    unit.line = i + 1;
    unit.source = sourceOf(row);
    QString& word = unit.words.first();
    if (row.startsBlock && row.isOptional) word.prepend(u'?');
    if (row.least != Row::kAlways) word += QStringLiteral("@%1").arg(row.least);
    if (layout_.stepAfter(i)) word += u'!';
    const bool continues =
        !units_.empty() && isSameOwner(units_.back(), unit) && units_.back().first == unit.first;
    if (continues)
      units_.back().words += unit.words;
    else
      units_.push_back(unit);
  }

  /// The units with their groups named, each run of one family in one.
  std::vector<Unit> runs() {
    std::vector<Unit> runs;
    for (Unit& unit : units_) {
      for (const Group& group : kGroups) fold(unit.words, group);
      const Unit* last = runs.empty() ? nullptr : &runs.back();
      if (last && isSameOwner(*last, unit) && last->last + 1 == unit.first && last->words == unit.words)
        runs.back().last = unit.last;
      else
        runs.push_back(unit);
    }
    return runs;
  }

  State& state_;
  const Layout& layout_;
  std::vector<Unit> units_;
};

class Layouts : public testing::Test {
protected:
  Layouts() {
    for (const SaveEntry& entry : saveOrder()) layouts.push_back(entry.layout(state));
    layouts.push_back(coverFile(state, "any.cov", 27));
  }

  State state;
  std::vector<Layout> layouts;
};

/// True where the reader doesn't take exactly what the writer wrote.
bool isOdd(const Row& row) {
  if (row.isWrittenOnly) return true;
  if (const Reference* reference = row.reference()) return reference->into != reference->from;
  const Field* field = row.field();
  return field &&
         (field->into.element != field->from.element || field->into.property != field->from.property);
}

TEST_F(Layouts, HaveOneLineForEachRowAndAReasonForEachOddOne) {
  for (const Layout& layout : layouts) {
    const std::string name = layout.fileName().toStdString();
    EXPECT_EQ(composeRecords(layout).count("\r\n"), layout.lineCount()) << name;
    int line = 0;
    for (const Row& row : layout.rows()) EXPECT_EQ(isOdd(row), row.why != nullptr) << name << ":" << ++line;
  }
}

TEST_F(Layouts, HaveTheOutlinesOfTheFormat) {
  const QString told = test::bytesOf(VENEERER_SOURCE_DIR "/tests/skin/outlines.txt");
  QHash<QString, QString> expected;
  for (const QString& text : told.split("\n\n"))
    expected.insert(text.section(u',', 0, 0), text.trimmed() + u'\n');
  for (const Layout& layout : layouts)
    EXPECT_EQ(Outline(state, layout).text().toStdString(), expected.take(layout.fileName()).toStdString());
  EXPECT_TRUE(expected.isEmpty());
}

}  // namespace
}  // namespace veneerer
