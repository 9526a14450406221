// The designer's real windows, and the hands of a script on them.
#pragma once

#include <QDockWidget>
#include <QMainWindow>
#include <QPixmap>
#include <QtTest>
#include <functional>
#include <memory>
#include <stdexcept>

#include "designer/designer.h"
#include "support/scriptedplatform.h"
#include "ui/canvaswidget.h"
#include "ui/designerwindows.h"
#include "ui/modal.h"

namespace veneerer::test {

constexpr int kRest = 400;  // ms, in which windows are laid out and painted

/// At work on a Skin that comes with the program. What isn't there ends in std::logic_error.
class RealWindows {
public:
  /// The folder holds "Skins" and "images", pictures go to the target's folder. The size is that of the main
  /// window, in pixels.
  RealWindows(const QString& programFolder, const QString& target, QSize size);

protected:
  template <class W>
  W& widget(const QString& name) {
    for (QWidget* each : QApplication::allWidgets())
      if (auto* found = dynamic_cast<W*>(each); found && found->objectName() == name) return *found;
    throw std::logic_error("no widget " + name.toStdString());
  }
  QMainWindow& window() { return widget<QMainWindow>("Form1"); }
  CanvasWidget& canvas() { return widget<CanvasWidget>("canvas"); }
  State& state() { return designer_->state(); }
  Designer& designer() { return *designer_; }

  /// Writes a PNG file of that name.
  void write(const QPixmap& picture, const QString& name);

  void trigger(const QString& entry);
  /// Does something with the modal dialog that an entry of the menus opens, then rejects it.
  void inDialog(const QString& entry, const QString& name, const std::function<void(QDialog&)>& work);
  /// Brings the panel to the front.
  QDockWidget& panel(const QString& name);
  /// By its place in the list of screens.
  void showScreen(int entry);
  QPoint middleOf(const Element& element) { return canvas().placeOf(element).center(); }
  void click(const Element& element, Qt::KeyboardModifiers keys = {});
  void type(const QString& field, const QString& text);

private:
  ScriptedPlatform world_;
  QString target_;
  std::unique_ptr<Designer> designer_;
  std::unique_ptr<DesignerWindows> windows_;
};

}  // namespace veneerer::test
