// Shows a page of the manual.
#pragma once

#include <QImage>
#include <QMap>
#include <QTextBrowser>
#include <functional>

namespace veneerer {

/// Pictures are made as narrow as the view is, and never wider than they are.
class HelpBrowser : public QTextBrowser {
  Q_OBJECT

public:
  HelpBrowser();

  /// Shows that page of the manual, from its beginning.
  void showPage(const QString& page);
  /// The name of the page that is shown; empty ahead of the first.
  QString page() const;
  /// Marks these words wherever they stand on the page, and shows the first one.
  void mark(const QStringList& words);

  /// To a page where it was left.
  void backward() override;
  void forward() override;

protected:
  void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;
  QVariant loadResource(int type, const QUrl& name) override;
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

private:
  void turnTo(const std::function<void()>& load);
  QImage fitted(const QImage& picture) const;

  /// How far each page was scrolled, pixels: the toolkit scrolls to its own mark ahead of the layout.
  QMap<QUrl, int> leftAt_;
  QMap<QUrl, QImage> pictures_;  ///< of the page, in their own size
};

}  // namespace veneerer
