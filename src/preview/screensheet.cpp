#include "preview/screensheet.h"

#include <QFontMetrics>
#include <QPainter>
#include <algorithm>

#include "canvas/screens.h"
#include "painting/canvassize.h"
#include "preview/eachscreen.h"
#include "preview/screenpicture.h"

namespace veneerer {

namespace {

constexpr int kColumns = 8;
constexpr int kGap = 16;          // between the screens and around them, pixels
constexpr int kName = 24;         // the height of a name, pixels
constexpr int kLetters = 14;      // the height of its letters' font, pixels
constexpr int kLeastWidth = 120;  // of a column, so that the names of narrow screens can be read
constexpr QColor kGround(236, 238, 241);
constexpr QColor kInk(32, 36, 42);

/// Where the screens and their names go.
struct SheetPlan {
  explicit SheetPlan(QSize canvas)
      : shown(reducedTo(canvas, kMostSheetSide)),
        cell(std::max(shown.width(), kLeastWidth), shown.height() + kName) {}

  QSize size() const {
    const int rows = (static_cast<int>(kScreenEntries.size()) + kColumns - 1) / kColumns;
    return {kGap + kColumns * (cell.width() + kGap), kGap + rows * (cell.height() + kGap)};
  }
  QRect cellOf(int entry) const {
    const int column = entry % kColumns;
    const int row = entry / kColumns;
    return {QPoint(kGap + column * (cell.width() + kGap), kGap + row * (cell.height() + kGap)), cell};
  }

  QSize shown;  ///< of a screen, pixels
  QSize cell;   ///< with its name, pixels
};

void paintName(QPainter& painter, const QRect& cell, const QString& name) {
  const QRect place(cell.left(), cell.bottom() + 1 - kName, cell.width(), kName);
  const QString shown = painter.fontMetrics().elidedText(name, Qt::ElideRight, place.width());
  painter.drawText(place, Qt::AlignHCenter | Qt::AlignBottom, shown);
}

}  // namespace

QImage screenSheet(State& state, const Screen& screen, Progress* progress) {
  const SheetPlan plan(canvasSize(state.form1, screen).pixels);
  QImage sheet(plan.size(), QImage::Format_RGB32);
  sheet.fill(kGround);
  QPainter painter(&sheet);
  QFont font = painter.font();
  font.setPixelSize(kLetters);
  painter.setFont(font);
  painter.setPen(kInk);
  forEachScreen(state, screen, progress, [&](int entry, const QImage& image) {
    const QRect cell = plan.cellOf(entry);
    const int left = cell.left() + (cell.width() - plan.shown.width()) / 2;
    painter.drawImage(QPoint(left, cell.top()),
                      image.scaled(plan.shown, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    paintName(painter, cell, screenTitle(entry));
  });
  return sheet;
}

}  // namespace veneerer
