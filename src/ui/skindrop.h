// A Skin dropped on a window, as a folder or as an archive.
#pragma once

#include <QWidget>

#include "ui/operator.h"

namespace veneerer {

/// Takes what is dropped on the window, or on what of it takes no drops itself: a single zip archive is
/// imported as by the menu; a single folder is opened when it is a Skin of the program's folder, and of any
/// other a note tells what to do. Everything else is left to others. Belongs to the window; the hands must
/// outlive it.
class SkinDrop : public QObject {
public:
  SkinDrop(Operator& hands, QWidget& window);

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  void take(const QString& path);
  void open(const QString& folder);

  Operator& hands_;
  QWidget& window_;
};

}  // namespace veneerer
