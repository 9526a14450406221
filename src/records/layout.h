// What one record file holds, line by line. The list of lines is the knowledge of a file: the reader walks
// it, the writer walks it, the line checker walks it, and the source of a layout reads like the file's table.
//
// A layout names the very elements of one State, so it is made per State and lives no longer than it.
#pragma once

#include <functional>
#include <vector>

#include "elements/label.h"
#include "records/loading.h"
#include "records/row.h"

namespace veneerer {

class Layout {
public:
  using Step = std::function<void(Loading&)>;

  Layout(State& state, const QString& fileName) : state_(state), fileName_(fileName) {}
  Layout(State& state, const char* fileName) : Layout(state, QString::fromLatin1(fileName)) {}

  const QString& fileName() const { return fileName_; }
  const std::vector<Row>& rows() const { return rows_; }
  OnFailure onFailure() const { return onFailure_; }
  const QString& failureMessage() const { return failureMessage_; }
  std::size_t size() const { return rows_.size(); }
  /// No line at all: a file that is named and neither read, written nor removed.
  bool isEmpty() const { return rows_.empty(); }
  /// How many lines a save writes.
  int lineCount() const { return static_cast<int>(rows_.size()); }

  // Single lines. Each continues the current block.
  void literal(const char* text) { literal(QString::fromLatin1(text)); }
  void literal(const QString& text);
  void labelLine(const char* prefix, const Element& captionOf);
  void labelLine(const QString& prefix, const Element& captionOf);
  /// The field that was added, to mark it.
  Field& field(ValueKind kind, Element& element, Property property);
  /// "INI Version" and the number.
  void versionTag(int number);
  /// The index of the last cover in use; name is for messages, intoRange brings what a file tells to
  /// what the state can hold.
  void counter(CoverIndex& number, const char* name, int (*intoRange)(double));
  /// An image reference; each of at most three boxes shows the file when it exists.
  void reference(ImageSlot& kept, const std::vector<Element*>& boxes = {});
  /// The reference of a button's picture, with the image rule.
  Reference& buttonImage(Button& button);

  // Field groups.
  /// Caption, shape, style, four colours and the gradient mode; the shape is held back until the image row.
  void buttonRecord(Button& button);
  /// The same with the shape applied as it is read, for files that hold no image.
  void plainButtonRecord(Button& button);
  /// Height, Width, Top, Left.
  void geometryQuad(Element& element);
  /// Top, Left, Height, Width.
  void placeQuad(Element& element);
  /// BackColor, ForeColor.
  void colours(Element& element);
  /// colours and placeQuad.
  void colouredPlace(Element& element);
  /// colouredPlace, font name, font size.
  void labelRecord(Label& label);
  void alignment(Label& label) { field(ValueKind::Integer, label, Property::Alignment); }
  void listIndex(RowList& list) { field(ValueKind::Integer, list, Property::ListIndex); }
  void checkValue(CheckBox& box) { field(ValueKind::Integer, box, Property::Value); }

  // Blocks: the units ahead of which an optional tail may end.
  void block() { nextStartsBlock_ = true; }
  /// From here on the file may end ahead of any block.
  void optionalFromHere() {
    isOptional_ = true;
    block();
  }
  /// buttonRecord, geometryQuad and buttonImage, each a block of its own; ahead of them the label line, when
  /// there is a prefix.
  Reference& geometryButton(Button& button, const char* labelPrefix = nullptr);
  /// The same with placeQuad.
  Reference& placedButton(Button& button, const char* labelPrefix = nullptr);

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
  /// A label line when there is a prefix, buttonRecord, geometryQuad, buttonImage.
  void geometryButtons(Array<Button>& array, int first, int last, const char* labelPrefix = nullptr);
  /// The same with placeQuad.
  void placedButtons(Array<Button>& array, int first, int last, const char* labelPrefix = nullptr);
  /// geometryQuad and buttonImage.
  void geometryImages(Array<Button>& array, int first, int last);
  /// placeQuad and buttonImage.
  void placeImages(Array<Button>& array, int first, int last);
  void labels(Array<Label>& array, int first, int last);
  void alignedLabels(Array<Label>& array, int first, int last);
  template <class T>
  void places(Array<T>& array, int first, int last) {
    each(array, first, last, [this](T& member) { placeQuad(member); });
  }
  void colouredPlaces(Array<PictureBox>& array, int first, int last);

  // Marks on what has been added since from (see size()).
  /// Those of these properties are applied only when greater than -1.
  void applyAboveMinusOneOnly(std::size_t from, std::initializer_list<Property> properties);
  /// Those of these properties are absent from a file whose version is lower.
  void needVersion(int version, std::size_t from, std::initializer_list<Property> properties);
  /// Every Whole is multiplied by the factor on reading.
  void scaleWholes(std::size_t from, const float& factor);
  /// The writer takes these lines from another button of the same fields than the reader fills.
  void writeFrom(std::size_t from, Button& button, ImageSlot& kept, const char* why);
  /// The writer writes these lines and no reader ever takes them.
  void writtenOnly(std::size_t from, const char* why);

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
  using Quad = void (Layout::*)(Element&);

  template <class Content>
  Content& add(Content content);
  Reference& singleButton(Button& button, const char* labelPrefix, Quad quad);
  void buttons(Array<Button>& array, int first, int last, const char* labelPrefix, Quad quad);
  void images(Array<Button>& array, int first, int last, Quad quad);
  /// The rows since from that hold one of these properties.
  std::vector<Row*> rowsOf(std::size_t from, std::initializer_list<Property> properties);

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
