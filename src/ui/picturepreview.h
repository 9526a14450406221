// A picture file in small, for the file dialog.
#pragma once

#include <QFutureWatcher>
#include <QImage>
#include <QLabel>

namespace veneerer {

/// A picture of a file, reduced, with the size that it has in the file.
struct Sketch {
  QImage image;  ///< null where the file can't be shown
  QSize size;    ///< pixels, invalid where the file is no picture
};

/// Reads a picture no larger than that, pixels. What would take more memory than any screen's picture isn't
/// decoded at all, and nothing but a plain file is opened.
Sketch sketchOf(const QString& path, QSize largest);

/// Decodes on another thread, so that neither a large file nor a slow disk keeps the operator waiting.
class PicturePreview : public QWidget {
  Q_OBJECT

public:
  explicit PicturePreview(QWidget* parent = nullptr);

  /// Shows that file in place of the one before; an empty path or a folder shows nothing.
  void showFile(const QString& path);

private:
  void fetched();

  QLabel* picture_;
  QLabel* text_;
  QFutureWatcher<Sketch> watcher_;
};

}  // namespace veneerer
