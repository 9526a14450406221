#include "ui/helpbrowser.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QTextCursor>
#include <QTextTable>

#include "help/manual.h"

namespace veneerer {

namespace {

const QString kFolder = QStringLiteral("qrc:/manual/");
constexpr int kPageMargin = 12;  // pixels, as the two below
constexpr int kCellPadding = 4;
constexpr int kTableGap = 12;

const QString kSuffix = QStringLiteral(".md");

// Elsewhere these go over the elements of the canvas.
bool leadsBackOrForward(const QKeyEvent& event) {
  return event.modifiers() == Qt::AltModifier &&
         (event.key() == Qt::Key_Left || event.key() == Qt::Key_Right);
}

// The toolkit's own are hard to read: two lines around each cell, and no room in it.
void layOutTables(const QTextDocument& document) {
  for (QTextFrame* frame : document.rootFrame()->childFrames()) {
    auto* table = qobject_cast<QTextTable*>(frame);
    if (!table) continue;
    QTextTableFormat format = table->format();
    format.setBorderCollapse(true);
    format.setCellSpacing(0);
    format.setCellPadding(kCellPadding);
    format.setBottomMargin(kTableGap);
    table->setFormat(format);
  }
}

}  // namespace

HelpBrowser::HelpBrowser() {
  setObjectName(QStringLiteral("page"));
  setOpenExternalLinks(false);
  setMinimumWidth(fontMetrics().averageCharWidth() * 40);
}

void HelpBrowser::showPage(const QString& page) {
  setSource(QUrl(kFolder + page + kSuffix));
}

QString HelpBrowser::page() const {
  const QString name = source().fileName();
  return name.endsWith(kSuffix) ? name.chopped(kSuffix.size()) : QString();
}

void HelpBrowser::mark(const QStringList& words) {
  QList<QTextEdit::ExtraSelection> marks;
  QTextCursor first;
  for (const QString& word : words)
    for (QTextCursor at = document()->find(word); !at.isNull(); at = document()->find(word, at)) {
      if (first.isNull() || at.position() < first.position()) first = at;
      QTextEdit::ExtraSelection& mark = marks.emplaceBack();
      mark.cursor = at;
      mark.format.setBackground(palette().highlight());
      mark.format.setForeground(palette().highlightedText());
    }
  setExtraSelections(marks);
  if (first.isNull()) return;
  first.clearSelection();
  setTextCursor(first);
}

void HelpBrowser::doSetSource(const QUrl& name, QTextDocument::ResourceType type) {
  turnTo([&] { QTextBrowser::doSetSource(name, type); });
}

void HelpBrowser::backward() {
  turnTo([this] { QTextBrowser::backward(); });
  verticalScrollBar()->setValue(leftAt_.value(source()));
}

void HelpBrowser::forward() {
  turnTo([this] { QTextBrowser::forward(); });
  verticalScrollBar()->setValue(leftAt_.value(source()));
}

void HelpBrowser::turnTo(const std::function<void()>& load) {
  leftAt_.insert(source(), verticalScrollBar()->value());
  // The whole page is laid out at once: after each cell of a long table it would take half a minute. The
  // tables are there when the change is complete.
  QTextCursor page(document());
  page.beginEditBlock();
  load();
  page.endEditBlock();
  page.beginEditBlock();
  document()->setDocumentMargin(kPageMargin);
  layOutTables(*document());
  page.endEditBlock();
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
  // A page of any language links to others, and to pictures, as if all were English.
  const QUrl own(QStringLiteral("qrc") + manualFile(name.toString().mid(kFolder.size())));
  const QVariant loaded = QTextBrowser::loadResource(type, name.toString().startsWith(kFolder) ? own : name);
  if (type == QTextDocument::MarkdownResource) pictures_.clear();
  if (type != QTextDocument::ImageResource) return loaded;
  return fitted(*pictures_.insert(name, QImage::fromData(loaded.toByteArray())));
}

QImage HelpBrowser::fitted(const QImage& picture) const {
  const int room = viewport()->width() - 2 * static_cast<int>(document()->documentMargin());
  const int width = std::min(picture.width(), std::max(1, room));
  QImage small =
      picture.scaledToWidth(static_cast<int>(width * devicePixelRatioF()), Qt::SmoothTransformation);
  small.setDevicePixelRatio(devicePixelRatioF());
  return small;
}

bool HelpBrowser::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && leadsBackOrForward(*static_cast<QKeyEvent*>(event))) {
    event->accept();
    return true;
  }
  return QTextBrowser::event(event);
}

void HelpBrowser::resizeEvent(QResizeEvent* event) {
  for (auto picture = pictures_.cbegin(); picture != pictures_.cend(); ++picture)
    document()->addResource(QTextDocument::ImageResource, picture.key(), fitted(*picture));
  if (!pictures_.isEmpty()) document()->markContentsDirty(0, document()->characterCount());
  QTextBrowser::resizeEvent(event);
}

}  // namespace veneerer
