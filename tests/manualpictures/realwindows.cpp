#include "manualpictures/realwindows.h"

#include <QDialog>
#include <QLineEdit>

#include "ui/qtplatform.h"

namespace veneerer::test {

RealWindows::RealWindows(const QString& programFolder, const QString& target, QSize size)
    : world_(ScriptedDialogs::Unexpected::Agree), target_(target) {
  world_.platform.folder.path = programFolder;
  world_.settings.values.insert("Settings/Skin", "Copper_Lounge(1024x768)");
  world_.platform.screen = primaryScreen();
  designer_ = std::make_unique<Designer>(world_.platform);
  windows_ = std::make_unique<DesignerWindows>(*designer_);
  designer_->startUp();
  window().resize(size);
  QTest::qWait(2000);
}

void RealWindows::write(const QPixmap& picture, const QString& name) {
  if (!picture.save(target_ + '/' + name + ".png"))
    throw std::runtime_error("can't write " + name.toStdString());
}

void RealWindows::trigger(const QString& entry) {
  for (QAction* action : window().findChildren<QAction*>())
    if (action->text() == entry) return action->trigger();
  throw std::logic_error("no entry " + entry.toStdString());
}

void RealWindows::inDialog(const QString& entry, const QString& name,
                           const std::function<void(QDialog&)>& work) {
  const OnModal<QDialog> operation([&](QDialog& dialog) {
    if (dialog.objectName() != name) throw std::logic_error("another dialog than " + name.toStdString());
    work(dialog);
    dialog.reject();
  });
  trigger(entry);
}

QDockWidget& RealWindows::panel(const QString& name) {
  auto& dock = widget<QDockWidget>(name);
  dock.show();
  dock.raise();
  QTest::qWait(kRest);
  return dock;
}

void RealWindows::showScreen(int entry) {
  state().form6.Combo6->select(entry);
  QTest::qWait(kRest);
}

void RealWindows::click(const Element& element, Qt::KeyboardModifiers keys) {
  QTest::mouseClick(&canvas(), Qt::LeftButton, keys, middleOf(element));
}

void RealWindows::type(const QString& field, const QString& text) {
  auto& line = widget<QLineEdit>(field);
  line.window()->activateWindow();
  line.setFocus();
  line.selectAll();
  QTest::keyClicks(&line, text);
}

}  // namespace veneerer::test
