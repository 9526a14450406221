#include "comparison/linedifferences.h"

namespace veneerer {

namespace {

const LineSubject* subjectOf(int line, const RecordText& first, const RecordText& second) {
  for (const RecordText* text : {&second, &first}) {
    const auto found = text->subjects.find(line);
    if (found != text->subjects.end()) return &found->second;
  }
  return nullptr;
}

std::optional<QByteArrayView> nextOf(TextLines& lines) {
  return lines.atEnd() ? std::nullopt : std::optional(lines.next());
}

std::optional<TextLine> shown(const std::optional<QByteArrayView>& line) {
  return line ? std::optional(textLine(*line)) : std::nullopt;
}

}  // namespace

void addLineDifferences(Differences& differences, const QString& file, const RecordText& first,
                        const RecordText& second) {
  TextLines before(first.bytes);
  TextLines after(second.bytes);
  for (int line = 1; !before.atEnd() || !after.atEnd(); ++line) {
    const std::optional<QByteArrayView> left = nextOf(before);
    const std::optional<QByteArrayView> right = nextOf(after);
    if (left == right) continue;
    if (differences.size() >= kMostDifferences) return;
    Difference difference{Difference::Kind::Line, file, line};
    if (const LineSubject* subject = subjectOf(line, first, second)) {
      difference.element = subject->element;
      difference.property = subject->property;
    }
    difference.before = shown(left);
    difference.after = shown(right);
    differences.append(std::move(difference));
  }
}

}  // namespace veneerer
