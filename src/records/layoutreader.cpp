#include "records/layoutreader.h"

#include <QFileInfo>

#include "elements/printable.h"
#include "files/plainfile.h"
#include "records/fieldvalue.h"
#include "records/likelycause.h"
#include "records/linewalk.h"
#include "records/recorderror.h"
#include "records/texts.h"

namespace veneerer {

namespace {

QString elementOf(const Row& row) {
  if (const Field* field = row.field()) return field->into.element->key();
  if (const Counter* counter = row.counter()) return QString::fromLatin1(counter->name);
  return row.reference() ? RecordTexts::tr("image reference") : RecordTexts::tr("label line");
}

QString fieldOf(const Row& row) {
  return row.field() ? QString(propertyName(row.field()->into.property)) : QString();
}

class Reading {
public:
  Reading(const Layout& layout, const QByteArray& bytes, Loading& loading, OnFailure policy)
      : layout_(layout),
        bytes_(bytes),
        walk_(layout.rows()),
        reader_(bytes),
        loading_(loading),
        policy_(policy) {}

  void run() {
    std::vector<int>& lines = loading_.lines;
    while (const Row* row = walk_.next()) {
      if (row->isWrittenOnly) continue;
      lines.resize(walk_.index());
      if (row->startsBlock && row->isOptional && reader_.atEnd()) return;
      lines.push_back(reader_.line());
      if (!takeLine(*row)) continue;
      if (const Layout::Step* step = layout_.stepAfter(walk_.index())) (*step)(loading_);
    }
    lines.resize(layout_.size());
  }

private:
  /// False when the value failed and the layout goes on all the same.
  bool takeLine(const Row& row) {
    const int line = reader_.line();
    isBehindEnd_ = reader_.atEnd();
    try {
      if (isBehindEnd_) throw BadValue{RecordTexts::tr("the file ends where a value is due")};
      std::visit([this](const auto& content) { take(content); }, row.content);
      return true;
    } catch (const OutOfRange&) {
      const QString number = excerpt(reader_.lastText().trimmed());
      return fail(row, line, RecordTexts::tr("the number %1 is out of the field's range").arg(number));
    } catch (const BadValue& bad) {
      return fail(row, line, bad.what);
    }
  }

  /// False where the layout goes on all the same.
  bool fail(const Row& row, int line, const QString& what) const {
    if (policy_ == OnFailure::Resume) return false;
    throw RecordError(layout_.fileName(), line, elementOf(row), fieldOf(row), what, trace());
  }

  RecordTrace trace() const {
    const QString value = isBehindEnd_ ? QString() : reader_.lastText();
    const QString cause = likelyCause({layout_, loading_.lines, bytes_, isBehindEnd_});
    return {loading_.folder.path(), value, cause};
  }

  void take(const Literal&) { reader_.readValue(); }

  void take(const Field& field) {
    Value value = readField(reader_, field);
    if (field.aboveMinusOneOnly && std::get<float>(value) <= -1) return;
    if (field.isHeldBack) heldBack_ = std::exchange(value, Value(0));
    Element& element = *field.into.element;
    const QString fault = element.rangeFault(field.into.property, value);
    if (!fault.isEmpty()) throw BadValue{fault};
    element.set(field.into.property, std::move(value));
  }

  void take(const Reference& reference) {
    const StoredValue value = readStored(reader_);
    reference.into->setValue(value);
    if (reference.button) showOnButton(reference, value);
    for (Element* box : reference.boxes)
      if (box) loading_.show(value.text(), *box);
  }

  void take(const Counter& counter) {
    if (counter.kept) counter.kept->setValue(counter.intoRange(readNumber(reader_)));
    walk_.setCount(counter.kept ? counter.kept->value() : readVersion(counter.newest));
  }

  // Any other number, and what is no number at all, is an older version.
  int readVersion(int newest) {
    const RecordValue value = reader_.readValue();
    const auto* number = std::get_if<double>(&value);
    return number && *number == newest ? newest : newest - 1;
  }

  // The shape goes on after the picture: a custom outline is made from it and is refused without.
  void showOnButton(const Reference& reference, const StoredValue& value) {
    Button& button = *reference.button;
    const QString path = loading_.folder.resolve(value.text());
    if (!path.isEmpty())
      button.setPicture(loading_.state.pictures.load(path));
    else if (!value.isEmpty() || !reference.keepsPictureWhenEmpty)
      button.setPicture(Picture());
    button.set(Property::ButtonShape, heldBack_);
    button.setPictureSize(PictureSize::Stretched);
  }

  const Layout& layout_;
  const QByteArray& bytes_;
  LineWalk walk_;
  RecordReader reader_;
  Loading& loading_;
  OnFailure policy_;
  Value heldBack_ = 0;
  bool isBehindEnd_ = false;  ///< no value is left for the row that is read
};

}  // namespace

QString readRecords(const Layout& layout, const QByteArray& bytes, Loading& loading, Failures failures) {
  const OnFailure policy = failures == Failures::AllFatal ? OnFailure::Fatal : layout.onFailure();
  loading.lines.clear();
  const QuietRefusals quiet(loading.state.board);
  try {
    Reading(layout, bytes, loading, policy).run();
  } catch (const RecordError&) {
    if (policy != OnFailure::Report) throw;
    return layout.failureMessage();
  }
  for (const Layout::Step& step : layout.endSteps()) step(loading);
  return {};
}

std::optional<QByteArray> recordFileIfThere(const QString& path) {
  const QFileInfo info(path);
  const FileContent file = readFileInside(info.path(), path, kMostRecordBytes);
  if (file.outcome == FileContent::Outcome::Refused)
    throw RecordError(info.fileName(), 0, {}, {}, file.reason, {info.path()});
  return file.isRead() ? std::optional(file.bytes) : std::nullopt;
}

QByteArray recordFileBytes(const QString& path) {
  if (const std::optional<QByteArray> bytes = recordFileIfThere(path)) return *bytes;
  const QFileInfo info(path);
  throw RecordError(info.fileName(), 0, {}, {}, RecordTexts::tr("the file isn't there"), {info.path()});
}

QString readRecordFile(const Layout& layout, const QString& path, Loading& loading) {
  if (layout.isEmpty()) return {};
  try {
    const std::optional<QByteArray> bytes = recordFileIfThere(path);
    return bytes ? readRecords(layout, *bytes, loading) : QString();
  } catch (const RecordError&) {
    if (layout.onFailure() == OnFailure::Report) return layout.failureMessage();
    // Under Resume no value fails the walk, so it was the file: each of its values counts as failed.
    if (layout.onFailure() == OnFailure::Resume) return readRecords(layout, {}, loading);
    throw;
  }
}

}  // namespace veneerer
