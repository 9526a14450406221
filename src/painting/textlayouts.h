// Text that is laid out once and painted many times: on a canvas full of labels, text is most of the paint.
#pragma once

#include <QCache>
#include <QGlyphRun>
#include <QList>
#include <QPainter>
#include <QString>

#include "elements/label.h"

namespace veneerer {

/// What a text's layout depends on.
struct TextRequest {
  QString text;
  QString fontName;
  int fontPixels = 0;  ///< height of the font, pixels
  int fontFlags = 0;   ///< see fontFlags()
  int width = 0;       ///< where lines are broken, pixels
  int height = 0;      ///< what comes below isn't laid out, pixels
  int alignment = 0;   ///< 0 left, 1 right, 2 centre

  bool operator==(const TextRequest&) const = default;
};

size_t qHash(const TextRequest& request, size_t seed = 0);

/// Bold, italic, underline and strikethrough as one number.
int fontFlags(const FontChoice& font);
/// The same for an element with the six font properties.
int fontFlags(const Element& element);

struct LaidOutText {
  QList<QGlyphRun> runs;  ///< with their own places; the origin is the top left of the first line
  QList<QRectF> rules;    ///< underlines and strikethroughs, in whole pixels down
  QRectF ink;             ///< what the glyphs and the rules can touch
  double width = 0;       ///< of the widest line, pixels
  double height = 0;      ///< of all lines, pixels

  void draw(QPainter& painter, QPointF at) const;
};

class TextLayouts {
public:
  TextLayouts();

  /// The layout of the text, broken between words. It stays valid until the next call. Texts are cut after
  /// 1024 characters, and what lies far outside the width and height is left out.
  const LaidOutText& of(TextRequest request);

private:
  QCache<TextRequest, LaidOutText> made_;
};

}  // namespace veneerer
