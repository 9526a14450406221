// What one record file holds, line by line. The list of lines is the knowledge of a file: the reader walks
// it, the writer walks it, the line checker walks it, and the source of a layout reads like the file's table.
//
// A layout names the very elements of one State, so it is made per State and lives no longer than it.
#pragma once

#include <QString>
#include <array>
#include <functional>
#include <span>
#include <vector>

#include "elements/label.h"
#include "forms/state.h"
#include "platform/skinfolder.h"

namespace veneerer {

/// How one value stands on its line.
enum class RowKind : std::uint8_t {
  Literal,    ///< a fixed text; read and dropped
  LabelLine,  ///< a prefix and an element's caption, for a human reader; read and dropped
  Version,    ///< the number of a VersionTag; read leniently
  Text,
  NumberText,  ///< a Text that the reader takes as a number
  Integer,     ///< 16 bit
  Long,        ///< 32 bit
  Single,
  Whole,      ///< a Single whose fraction is dropped on writing
  FontSize,   ///< a Single of whole points, read as a whole line
  HeldShape,  ///< ButtonShape: kept aside on reading while the shape is 0, until the image row applies it
  Stored,     ///< an image reference, kept as read
  Global,     ///< an Integer of the state that no element holds
};

/// A property of one element.
struct Slot {
  Element* element = nullptr;
  Property property = Property::Left;
};

/// What a stored image reference is shown in.
struct Shown {
  Button* button = nullptr;         ///< by the image rule: picture, then held shape, then PictureSize 3
  std::array<Element*, 3> boxes{};  ///< loaded into each when the file exists; unused ones are null
};

/// One line of a record file.
struct Row {
  RowKind kind = RowKind::Literal;
  Slot into;                          ///< what the reader fills; no element: the value is dropped
  Slot from;                          ///< what the writer takes; the same as into in nearly every row
  StoredValue* storedInto = nullptr;  ///< Stored: where the reader keeps the reference
  StoredValue* storedFrom = nullptr;  ///< Stored: where the writer takes it
  int* global = nullptr;              ///< Global
  Shown shown;                        ///< Stored
  QString text;                       ///< Literal, and the prefix of a LabelLine
  std::int32_t number = 0;            ///< Version
  bool startsBlock = false;           ///< the file may end ahead of this row, once it has become optional
  bool isOptional = false;
  bool aboveMinusOneOnly = false;   ///< the value is applied only when greater than -1
  bool needsVersion2 = false;       ///< absent from a file whose VersionTag isn't 2
  bool isWrittenOnly = false;       ///< the reader never takes this line
  bool skipEmptyReference = false;  ///< Stored on a button: an empty reference leaves the picture alone
  const char* why = nullptr;        ///< the reason, where reader and writer differ
};

/// What a loader does when a value fails.
enum class OnFailure {
  Fatal,   ///< RecordError
  Resume,  ///< the failing step is passed over and the next one runs
  Report,  ///< the rest of the file is left out, with a message box
};

/// What the steps of a loader need to know.
struct Loading {
  State& state;
  const SkinFolder& folder;
  const Screen& screen;
  /// For each row of the layout the line on which its value stood, 0 where it was passed over. Shorter than
  /// the layout when an optional tail was left out.
  std::vector<int> lines = {};

  /// Loads the file that the reference names into the element; leaves it alone when there is none.
  void show(const QString& reference, Element& element) const;
};

class Layout {
public:
  using Step = std::function<void(Loading&)>;

  Layout(State& state, const QString& fileName) : state_(state), fileName_(fileName) {}
  Layout(State& state, const char* fileName) : Layout(state, QString::fromLatin1(fileName)) {}

  const QString& fileName() const { return fileName_; }
  const std::vector<Row>& rows() const { return rows_; }
  OnFailure onFailure() const { return onFailure_; }
  const QString& failureMessage() const { return failureMessage_; }

  // Single lines. Each continues the current block.
  void literal(const char* text);
  void labelLine(const char* prefix, const Element& captionOf);
  void labelLine(const QString& prefix, const Element& captionOf);
  void value(RowKind kind, Element& element, Property property);
  /// "INI Version" and the number.
  void versionTag(int number);
  /// An image reference; each of at most three boxes shows the file when it exists.
  void reference(StoredValue& kept, const std::vector<Element*>& boxes = {});
  /// A row of the layout as it stands, for the places where reader and writer differ.
  Row& add(Row row);

  // Field groups.
  /// Caption, shape, style, four colours and the gradient mode; the shape is held until the image row.
  void buttonRecord(Button& button);
  /// The same with the shape applied as it is read, for files that hold no image.
  void plainButtonRecord(Button& button);
  /// Height, Width, Top, Left.
  void geometryQuad(Element& element);
  /// Top, Left, Height, Width.
  void placeQuad(Element& element);
  /// BackColor, ForeColor.
  void colours(Element& element);
  /// BackColor, ForeColor, Top, Left, Height, Width, font name, font size.
  void labelRecord(Label& label);
  void global(int& number);
  void alignment(Label& label) { value(RowKind::Integer, label, Property::Alignment); }
  void listIndex(RowList& list) { value(RowKind::Integer, list, Property::ListIndex); }
  void checkValue(CheckBox& box) { value(RowKind::Integer, box, Property::Value); }
  /// The reference of a button's picture, with the image rule.
  void buttonImage(Button& button);

  // Blocks: the units ahead of which an optional tail may end.
  void block() { nextStartsBlock_ = true; }
  /// From here on the file may end ahead of any block.
  void optionalFromHere() {
    isOptional_ = true;
    block();
  }
  /// buttonRecord, geometryQuad and buttonImage, each a block of its own.
  void geometryButton(Button& button);
  /// buttonRecord, placeQuad and buttonImage, each a block of its own.
  void placedButton(Button& button);

  // Counted loops over an array, one block for each index from first to last.
  /// body is called once per member.
  template <class T, class Body>
  void each(Array<T>& array, int first, int last, Body body) {
    for (int i = first; i <= last; ++i) {
      block();
      body(array[i]);
    }
    block();
  }
  void geometryButtons(Array<Button>& array, int first, int last);
  void placedButtons(Array<Button>& array, int first, int last);
  void geometryButtons(Array<Button>& array, int first, int last, const char* labelPrefix);
  void placedButtons(Array<Button>& array, int first, int last, const char* labelPrefix);
  void geometryImages(Array<Button>& array, int first, int last);
  void placeImages(Array<Button>& array, int first, int last);
  void labels(Array<Label>& array, int first, int last);
  void alignedLabels(Array<Label>& array, int first, int last);
  template <class T>
  void places(Array<T>& array, int first, int last) {
    each(array, first, last, [this](T& member) { placeQuad(member); });
  }

  // Marks on what has been added since from (see size()).
  int lineCount() const { return static_cast<int>(rows_.size()); }
  std::size_t size() const { return rows_.size(); }
  /// No line at all: a file that is named and neither read, written nor removed.
  bool isEmpty() const { return rows_.empty(); }
  void applyAboveMinusOneOnly(std::size_t from, std::initializer_list<Property> properties);
  void needVersion2(std::size_t row) { rows_[row].needsVersion2 = true; }
  /// The writer takes these lines from another button of the same fields than the reader fills.
  void writeFrom(std::size_t from, Button& button, StoredValue& kept, const char* why);
  /// The writer writes these lines and no reader ever takes them.
  void writtenOnly(std::size_t from, const char* why);

  /// The last row added, to mark it.
  Row& last() { return rows_.back(); }

  // Steps beside the lines.
  /// Runs once the last row added so far has been read.
  void then(Step step);
  /// Runs after the last line, or where an optional tail ended.
  void atEnd(Step step) { endSteps_.push_back(std::move(step)); }

  void resumeOnError() { onFailure_ = OnFailure::Resume; }
  void reportFailure(const char* message) {
    onFailure_ = OnFailure::Report;
    failureMessage_ = QString::fromLatin1(message);
  }

  /// The step that follows the row of that index, null when there is none.
  const Step* stepAfter(std::size_t row) const;
  const std::vector<Step>& endSteps() const { return endSteps_; }

private:
  struct RowStep {
    std::size_t row;
    Step step;
  };

  State& state_;
  QString fileName_;
  std::vector<Row> rows_;
  std::vector<RowStep> steps_;
  std::vector<Step> endSteps_;
  OnFailure onFailure_ = OnFailure::Fatal;
  QString failureMessage_;
  bool nextStartsBlock_ = true;
  bool isOptional_ = false;
};

}  // namespace veneerer
