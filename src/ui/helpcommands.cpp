#include "ui/helpcommands.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QTimer>

#include "ui/helptopics.h"
#include "ui/helpwindow.h"
#include "ui/texts.h"

namespace veneerer {

namespace {

/// Keeps the manual's window where it can be used: in front of the dialog that takes all input, else of the
/// main window.
class Help : public QObject {
public:
  explicit Help(QWidget& main) : QObject(&main), main_(main) { qApp->installEventFilter(this); }

  void openContents() { window().openPage(kManualIndex); }
  void openSearch() { window().openSearch(); }
  void openHere() { openFor(QApplication::focusWidget()); }

protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::KeyPress) return isAnswered(*object, *static_cast<QKeyEvent*>(event));
    if (event->type() == QEvent::Hide && !event->spontaneous() && isOwner(*object)) leaveOwner();
    return false;
  }

private:
  void openFor(const QWidget* widget) { window().openPage(helpPage(widget)); }

  HelpWindow& window() {
    QWidget* owner = QApplication::activeModalWidget();
    if (!owner) owner = &main_;
    if (!window_) window_ = new HelpWindow(owner);
    window_->belongTo(*owner);
    return *window_;
  }

  // The shortcut of the menu, which comes first, is dead while a dialog takes all input.
  bool isAnswered(const QObject& receiver, const QKeyEvent& event) {
    const bool isIt = event.key() == Qt::Key_F1 && event.modifiers() == Qt::NoModifier;
    if (!isIt || !receiver.isWidgetType() || QApplication::activePopupWidget()) return false;
    openFor(static_cast<const QWidget*>(&receiver));
    return true;
  }

  bool isOwner(const QObject& object) const {
    return window_ && &object != &main_ && &object == window_->parentWidget();
  }

  // A dialog may take with it what belongs to it. Below it there may be another one.
  void leaveOwner() {
    window_->belongTo(main_);
    QTimer::singleShot(0, this, [this] {
      if (window_ && window_->isVisible()) window();
    });
  }

  QWidget& main_;
  QPointer<HelpWindow> window_;
};

}  // namespace

void addHelpCommands(QMenu& menu, QWidget& window) {
  struct Entry {
    const char* text;
    const char* tip;
    QKeySequence keys;
    void (Help::*act)();
  };
  auto* help = new Help(window);
  for (const Entry& entry : {Entry{QT_TRANSLATE_NOOP("Ui", "&Contents"),
                                   QT_TRANSLATE_NOOP("Ui", "Open the manual at its list of all pages"),
                                   {},
                                   &Help::openContents},
                             {QT_TRANSLATE_NOOP("Ui", "&Help Here"),
                              QT_TRANSLATE_NOOP("Ui", "Open the manual at the page about what has the focus"),
                              Qt::Key_F1, &Help::openHere},
                             {QT_TRANSLATE_NOOP("Ui", "&Search..."),
                              QT_TRANSLATE_NOOP("Ui", "Look for words in all pages of the manual"),
                              {},
                              &Help::openSearch}}) {
    QAction* action = menu.addAction(UiTexts::tr(entry.text));
    action->setShortcut(entry.keys);
    action->setShortcutContext(Qt::ApplicationShortcut);
    action->setStatusTip(UiTexts::tr(entry.tip));
    QObject::connect(action, &QAction::triggered, help, entry.act);
  }
}

}  // namespace veneerer
