#include "records/layoutreader.h"

#include <QFile>
#include <QFileInfo>
#include <cmath>
#include <limits>

#include "elements/numbers.h"
#include "elements/printable.h"
#include "records/recorderror.h"
#include "records/recordreader.h"

namespace veneerer {

namespace {

/// Far more than any record file has; a stranger's may be endless.
constexpr qint64 kMostBytes = 16 * 1024 * 1024;

/// What is wrong with one value; the walk adds the place.
struct BadValue {
  QString what;
};

/// A number that its field can't hold.
struct OutOfRange {};

QString asText(const RecordValue& value) {
  if (const auto* text = std::get_if<QString>(&value)) return *text;
  if (const auto* number = std::get_if<double>(&value)) return plainNumber(*number);
  if (const auto* truth = std::get_if<bool>(&value))
    return *truth ? QStringLiteral("True") : QStringLiteral("False");
  if (const auto* odd = std::get_if<OddValue>(&value))
    throw BadValue{QStringLiteral("%1 is a value that no field takes").arg(excerpt(odd->text))};
  return {};
}

double asNumber(const RecordValue& value) {
  if (std::holds_alternative<std::monostate>(value)) return 0;
  if (const auto* number = std::get_if<double>(&value)) return *number;
  if (const auto* truth = std::get_if<bool>(&value)) return *truth ? -1 : 0;
  const QString text = excerpt(asText(value));
  throw BadValue{QStringLiteral("a number is due here, but \"%1\" stands in its place").arg(text)};
}

float asSingle(double number) {
  if (!(std::abs(number) <= std::numeric_limits<float>::max())) throw OutOfRange();
  return static_cast<float>(number);
}

std::int32_t asWhole(double number, RowKind kind) {
  const std::optional<std::int32_t> whole = toWhole(number);
  const bool fits = whole && (kind != RowKind::Integer || (*whole >= -32768 && *whole <= 32767));
  if (!fits) throw OutOfRange();
  return *whole;
}

StoredValue asStored(const RecordValue& value) {
  if (const auto* number = std::get_if<double>(&value)) return StoredValue(*number);
  return StoredValue(asText(value));
}

class Walk {
public:
  Walk(const Layout& layout, const QByteArray& bytes, Loading& loading, OnFailure policy)
      : layout_(layout), reader_(bytes), loading_(loading), policy_(policy) {}

  void run() {
    const std::vector<Row>& rows = layout_.rows();
    for (std::size_t i = 0; i < rows.size(); ++i) {
      const Row& row = rows[i];
      if (row.isWrittenOnly || (row.needsVersion2 && version_ != 2)) {
        loading_.lines.push_back(0);
        continue;
      }
      if (row.startsBlock && row.isOptional && reader_.atEnd()) return;
      loading_.lines.push_back(reader_.line());
      if (!step(row)) continue;
      if (const Layout::Step* then = layout_.stepAfter(i)) (*then)(loading_);
    }
  }

private:
  /// Reads one row. False when its value failed and the layout goes on all the same.
  bool step(const Row& row) {
    const int line = reader_.line();
    try {
      if (reader_.atEnd()) throw BadValue{QStringLiteral("the file ends where a value is due")};
      take(row);
      return true;
    } catch (const OutOfRange&) {
      const QString number = excerpt(reader_.lastText().trimmed());
      return fail(row, line, QStringLiteral("the number %1 is out of the field's range").arg(number));
    } catch (const BadValue& bad) {
      return fail(row, line, bad.what);
    }
  }

  /// False where the layout goes on all the same.
  bool fail(const Row& row, int line, const QString& what) const {
    if (policy_ == OnFailure::Resume) return false;
    const bool hasElement = row.into.element != nullptr;
    throw RecordError(layout_.fileName(), line, elementOf(row), hasElement ? fieldOf(row) : QString(), what);
  }

  static QString elementOf(const Row& row) {
    if (row.into.element) return row.into.element->key();
    if (row.kind == RowKind::Global) return QStringLiteral("LastCoverIndex");
    return row.kind == RowKind::Stored ? QStringLiteral("image reference") : QStringLiteral("label line");
  }

  static QString fieldOf(const Row& row) { return propertyName(row.into.property); }

  void take(const Row& row) {
    switch (row.kind) {
      case RowKind::Literal:
      case RowKind::LabelLine:
        reader_.readValue();
        return;
      case RowKind::Version:
        takeVersion(reader_.readValue());
        return;
      case RowKind::FontSize:
        row.into.element->set(row.into.property, asSingle(leadingNumber(reader_.readLine())));
        return;
      case RowKind::Global:
        *row.global = asWhole(asNumber(reader_.readValue()), RowKind::Integer);
        return;
      case RowKind::Stored:
        takeReference(row, asStored(reader_.readValue()));
        return;
      case RowKind::HeldShape:
        heldShape_ = asWhole(asNumber(reader_.readValue()), row.kind);
        row.into.element->set(row.into.property, 0);
        return;
      case RowKind::Text:
      case RowKind::NumberText:
      case RowKind::Integer:
      case RowKind::Long:
      case RowKind::Single:
      case RowKind::Whole:
        assign(row, reader_.readValue());
        return;
    }
  }

  // Any second line but the number 2 means the older layout.
  void takeVersion(const RecordValue& value) {
    const auto* number = std::get_if<double>(&value);
    version_ = number && *number == 2 ? 2 : 1;
  }

  void assign(const Row& row, const RecordValue& value) {
    Element& element = *row.into.element;
    switch (row.kind) {
      case RowKind::Text:
        element.set(row.into.property, asText(value));
        return;
      case RowKind::NumberText:
        element.set(row.into.property, plainNumber(asNumber(value)));
        return;
      case RowKind::Single:
      case RowKind::Whole: {
        const float number = asSingle(asNumber(value));
        if (!row.aboveMinusOneOnly || number > -1) element.set(row.into.property, scaled(row, number));
        return;
      }
      default:
        assignWhole(row, asWhole(asNumber(value), row.kind));
    }
  }

  float scaled(const Row& row, float number) const {
    return row.kind == RowKind::Whole ? asSingle(double(number) * loading_.state.globals.CoverScale) : number;
  }

  static void assignWhole(const Row& row, std::int32_t number) {
    Element& element = *row.into.element;
    const auto check = [&](bool holds, const char* what) {
      if (!holds) throw BadValue{QString::fromLatin1(what).arg(number)};
    };
    switch (row.into.property) {
      case Property::ListIndex: {
        // Setting a row counts as a selection, also when it is the same.
        auto& list = static_cast<RowList&>(element);
        check(list.hasRow(number), "the list has no row %1");
        list.select(number);
        return;
      }
      case Property::Alignment:
        check(number >= 0 && number <= 2, "an alignment is 0, 1 or 2, not %1");
        break;
      case Property::Value:
        check(number >= 0 && number <= 2, "a check box takes 0, 1 or 2, not %1");
        break;
      default:
        break;
    }
    element.set(row.into.property, number);
  }

  void takeReference(const Row& row, const StoredValue& value) {
    *row.storedInto = value;
    if (row.shown.button) applyImageRule(row, *row.shown.button, value);
    for (Element* box : row.shown.boxes)
      if (box) loading_.show(value.text(), *box);
  }

  // The shape goes on after the picture: a custom outline is made from it and is refused without.
  void applyImageRule(const Row& row, Button& button, const StoredValue& value) {
    const QString path = loading_.folder.resolve(value.text());
    if (!path.isEmpty())
      button.setPicture(loading_.state.pictures.load(path));
    else if (!value.isEmpty() || !row.skipEmptyReference)
      button.setPicture(Picture());
    button.setButtonShape(heldShape_);
    button.setPictureSize(3);
  }

  const Layout& layout_;
  RecordReader reader_;
  Loading& loading_;
  OnFailure policy_;
  int version_ = 1;
  std::int32_t heldShape_ = 0;
};

}  // namespace

QString readRecords(const Layout& layout, const QByteArray& bytes, Loading& loading, Failures failures) {
  const OnFailure policy = failures == Failures::AllFatal ? OnFailure::Fatal : layout.onFailure();
  loading.lines.clear();
  try {
    Walk(layout, bytes, loading, policy).run();
  } catch (const RecordError&) {
    if (policy != OnFailure::Report) throw;
    return layout.failureMessage();
  }
  for (const Layout::Step& step : layout.endSteps()) step(loading);
  return {};
}

QByteArray recordFileBytes(const QString& path) {
  QFile file(path);
  const auto fail = [&](const QString& what) {
    throw RecordError(QFileInfo(path).fileName(), 0, {}, {}, what);
  };
  if (!file.open(QIODevice::ReadOnly)) fail(QStringLiteral("the file can't be read: ") + file.errorString());
  if (file.size() > kMostBytes) fail(QStringLiteral("the file is too large for a record file"));
  return file.readAll();
}

QString readRecordFile(const Layout& layout, const QString& path, Loading& loading) {
  // Only a plain file is a record file: a pipe or a device under its name could hang the program.
  if (layout.isEmpty() || !QFileInfo(path).isFile()) return {};
  try {
    return readRecords(layout, recordFileBytes(path), loading);
  } catch (const RecordError&) {
    if (layout.onFailure() == OnFailure::Report) return layout.failureMessage();
    // Under Resume no value fails the walk, so it was the file: each of its values counts as failed.
    if (layout.onFailure() == OnFailure::Resume) return readRecords(layout, {}, loading);
    throw;
  }
}

}  // namespace veneerer
