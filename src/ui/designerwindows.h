// All windows of a designer, each tied to its element.
#pragma once

#include "ui/canvaswindow.h"
#include "ui/chooserwindow.h"
#include "ui/diskfollower.h"
#include "ui/splashwindow.h"
#include "ui/windowbinding.h"

namespace veneerer {

class DesignerWindows {
public:
  /// The windows come up when their elements are made visible. The designer must outlive them.
  explicit DesignerWindows(Designer& designer);

private:
  WindowBinding* bind(Window& element, QWidget& widget, OnClose onClose);
  void bindCanvas(State& state);
  void addPanel(Window& element, QWidget* content, const QString& menuText, Qt::Key key);
  void addPanel(const char* name, QWidget* content, const QString& menuText, Qt::Key key);
  void addHistory();

  Operator hands_;
  PictureFetcher pictures_;
  DiskFollower disk_;
  Ui ui_;
  SplashWindow splash_;
  ChooserWindow chooser_;
  CanvasWindow canvas_;
};

}  // namespace veneerer
