#include "skintool/rawlines.h"

#include "elements/numbers.h"
#include "records/recordreader.h"
#include "records/recordvalue.h"

namespace veneerer {

RawLines::RawLines(QByteArray bytes) : bytes_(std::move(bytes)) {
  RecordReader reader(bytes_);
  while (!reader.atEnd()) lines_.append(reader.readLine());
}

QString captionDamage(const QString& caption) {
  if (caption.contains(u',')) return QStringLiteral("a comma cuts the caption \"%1\"").arg(caption);
  const QString bare = caption.trimmed();
  if (bare.startsWith(u'"')) return QStringLiteral("the caption %1 loses its quotes").arg(caption);
  double number = 0;
  if (parseNumber(bare, number)) {
    const QString plain = plainNumber(number);
    return plain == caption ? QString()
                            : QStringLiteral("the caption \"%1\" comes back as \"%2\"").arg(caption, plain);
  }
  if (!caption.isEmpty() && caption[0].isSpace())
    return QStringLiteral("the caption \"%1\" loses its leading blanks").arg(caption);
  return {};
}

}  // namespace veneerer
