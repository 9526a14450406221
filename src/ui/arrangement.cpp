#include "ui/arrangement.h"

#include <QMap>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QStyle>
#include <QTabBar>
#include <QTimer>
#include <algorithm>
#include <numeric>

namespace veneerer {

namespace {

// What a window's frame adds to it, about; the real one is known only when it is too late. Pixels.
constexpr QSize kFrame(4, 30);

// A canvas that is narrower than this isn't worth having two columns beside it. Pixels.
constexpr int kNarrowestCanvas = 640;
// Nor is one that is shown smaller than this.
constexpr double kWorthwhile = 0.85;

// The row of tabs above the panels and a panel's own title, about. Pixels.
constexpr int kTabs = 56;

int barsOf(const QMainWindow& window) {
  return window.menuBar()->sizeHint().height() + window.statusBar()->sizeHint().height();
}

// A panel that is higher than the window scrolls, and its bar takes room as well.
QList<int> widthsOf(const QMainWindow& window, const QList<QDockWidget*>& panels, int height) {
  QList<int> widths;
  for (const QDockWidget* panel : panels) {
    const QSize whole = panel->sizeHint();
    const bool scrolls = whole.height() + kTabs > height - barsOf(window);
    widths.append(whole.width() + (scrolls ? window.style()->pixelMetric(QStyle::PM_ScrollBarExtent) : 0));
  }
  return widths;
}

void dock(QMainWindow& window, const QList<QDockWidget*>& panels, const QList<int>& columns) {
  for (QDockWidget* panel : panels) {
    panel->setFloating(false);
    window.removeDockWidget(panel);
  }
  for (qsizetype i = 0; i < panels.size(); ++i) {
    const bool isTab = i > 0 && columns[i] == columns[i - 1];
    if (i == 0)
      window.addDockWidget(Qt::RightDockWidgetArea, panels[i]);
    else if (isTab)
      window.tabifyDockWidget(panels[i - 1], panels[i]);
    else
      window.splitDockWidget(panels[i - 1], panels[i], Qt::Horizontal);
  }
}

// The panel that stands first in its column is the one that shows.
void raiseFirst(const QList<QDockWidget*>& panels, const QList<int>& columns) {
  for (qsizetype i = 0; i < panels.size(); ++i)
    if (i == 0 || columns[i] != columns[i - 1]) panels[i]->raise();
}

// The size that the window needs for the canvas and all columns.
QSize wholeSize(const QMainWindow& window, const QList<QDockWidget*>& panels, const QList<int>& widths,
                const QList<int>& columns, QSize canvas) {
  const int gap = window.style()->pixelMetric(QStyle::PM_DockWidgetSeparatorExtent);
  QMap<int, int> widest;
  int height = canvas.height();
  for (qsizetype i = 0; i < panels.size(); ++i) {
    widest[columns[i]] = std::max(widest[columns[i]], widths[i] + gap);
    height = std::max(height, panels[i]->sizeHint().height() + kTabs);
  }
  const auto all = widest.values();
  return QSize(std::accumulate(all.begin(), all.end(), canvas.width()), height + barsOf(window));
}

// One open panel stands for its column.
void giveWidths(QMainWindow& window, const QList<QDockWidget*>& panels, const QList<int>& widths,
                const QList<int>& columns) {
  QMap<int, std::pair<QDockWidget*, int>> widest;
  for (qsizetype i = 0; i < panels.size(); ++i) {
    auto& [panel, width] = widest[columns[i]];
    if (!panel && !panels[i]->isHidden()) panel = panels[i];
    width = std::max(width, widths[i]);
  }
  QList<QDockWidget*> standing;
  QList<int> given;
  for (const auto& [panel, width] : widest)
    if (panel) {
      standing.append(panel);
      given.append(width);
    }
  window.resizeDocks(standing, given, Qt::Horizontal);
}

// The row of tabs comes and goes with the panels; its texts are to be read.
void showWholeTitles(const QMainWindow& window) {
  for (QTabBar* tabs : window.findChildren<QTabBar*>(QString(), Qt::FindDirectChildrenOnly))
    tabs->setElideMode(Qt::ElideNone);
}

}  // namespace

QList<int> columnsOf(const QList<int>& widths, int room) {
  QList<int> columns;
  int column = 0;
  int used = 0;
  for (qsizetype i = 0; i < widths.size(); ++i) {
    if (i > 0 && used + widths[i] <= room) ++column;
    if (i == 0 || column != columns.last()) used += widths[i];
    // The first that has no room closes the last column: those behind it are its tabs.
    if (i > 0 && column == columns.last()) room = 0;
    columns.append(column);
  }
  return columns;
}

void arrangePanels(QMainWindow& window, const QList<QDockWidget*>& panels, QSize canvas) {
  const QSize available = window.screen()->availableGeometry().size() - kFrame;
  const QList<int> widths = widthsOf(window, panels, available.height());
  const int least = std::max(static_cast<int>(canvas.width() * kWorthwhile), kNarrowestCanvas);
  const QList<int> columns = columnsOf(widths, available.width() - least);
  QList<bool> isOpen;
  for (const QDockWidget* panel : panels) isOpen.append(!panel->isHidden());
  dock(window, panels, columns);
  for (qsizetype i = 0; i < panels.size(); ++i) panels[i]->setVisible(isOpen[i]);
  raiseFirst(panels, columns);
  window.resize(wholeSize(window, panels, widths, columns, canvas).boundedTo(available));
  // The layout knows the new size only when all this has been told to it.
  QTimer::singleShot(0, &window, [&window, panels, widths, columns] {
    showWholeTitles(window);
    giveWidths(window, panels, widths, columns);
  });
}

}  // namespace veneerer
