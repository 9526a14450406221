#include "comparison/differencewords.h"

#include "comparison/texts.h"
#include "elements/printable.h"

namespace veneerer {

namespace {

/// Code points of a line that are shown; no image reference of use is longer.
constexpr int kMostShown = 260;

QString nameOf(LineEnd end) {
  switch (end) {
    case LineEnd::None:
      return ComparisonTexts::tr("no line end");
    case LineEnd::Return:
      return QStringLiteral("CR");
    case LineEnd::Feed:
      return QStringLiteral("LF");
    case LineEnd::ReturnFeed:
      break;
  }
  return QStringLiteral("CR LF");
}

bool isReference(const Difference& difference) {
  return difference.property == Property::Picture || difference.property == Property::Name;
}

/// The text of a line without the quotes of the record grammar.
QString unquoted(const QString& line) {
  const QString text = line.trimmed();
  const bool isQuoted = text.size() > 1 && text.startsWith(u'"') && text.endsWith(u'"');
  return isQuoted ? text.sliced(1, text.size() - 2) : text;
}

}  // namespace

QString lineWords(const std::optional<TextLine>& line, const std::optional<TextLine>& other) {
  if (!line) return ComparisonTexts::tr("(no line)");
  const QString text = line->text.trimmed();
  const bool isPlain = !text.isEmpty() && (!other || text != other->text.trimmed());
  if (isPlain) return excerpt(text, kMostShown);
  const QString quoted = u'"' + excerpt(line->text, kMostShown) + u'"';
  const bool isSameText = other && line->text == other->text;
  return isSameText ? quoted + u' ' + nameOf(line->end) : quoted;
}

QString picturePath(const Difference& difference, const std::optional<TextLine>& side,
                    const SkinFolder& folder) {
  if (difference.kind != Difference::Kind::Line) return folder.file(difference.file);
  return side && isReference(difference) ? folder.resolve(unquoted(side->text)) : QString();
}

}  // namespace veneerer
