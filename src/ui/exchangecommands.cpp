#include "ui/exchangecommands.h"

#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <optional>

#include "elements/printable.h"
#include "exchange/skincopy.h"
#include "exchange/skinpacking.h"
#include "exchange/skinunpacking.h"
#include "ui/newskindialog.h"
#include "ui/targetdialog.h"
#include "ui/texts.h"
#include "ui/workwindow.h"

namespace veneerer {

namespace {

constexpr int kDialogWidth = 420;  // pixels

QString archives() {
  return UiTexts::tr("Zip Archives (*.zip)");
}

/// Where a command runs.
struct Place {
  Operator& hands;
  QWidget& owner;

  QString skin() const { return hands.skinFolder().path(); }
  QString skinName() const { return QFileInfo(skin()).fileName(); }
  QString root() const { return QFileInfo(skin()).path(); }
  void say(const QString& note) const { hands.state().notes.say(note); }
};

/// Runs work that tells its steps to a window. False when it failed, which a box has told, or was given up.
bool run(const Place& place, const QString& title, const std::function<void(const GoOn&)>& work) {
  WorkWindow window(title, &place.owner);
  try {
    place.hands.run([&] {
      work([&](int done, int total, const QString& file) { return window.tell(done, total, file); });
    });
    return true;
  } catch (const GivenUp&) {
    place.say(UiTexts::tr("Cancelled; nothing is left of it."));
  } catch (const ExchangeError& error) {
    window.reset();
    place.hands.dialogs().inform(title, QString::fromUtf8(error.what()));
  }
  return false;
}

/// That name, or the first such one with a number that nothing bears.
QString freeName(const Place& place, const QString& name) {
  QString free = name;
  for (int i = 2; QFileInfo::exists(place.root() + u'/' + free); ++i) free = name + u' ' + QString::number(i);
  return free;
}

/// Why no Skin can have that name, empty when one can.
QString faultOfName(const Place& place, const QString& name) {
  if (name.isEmpty() || name.startsWith(u'.') || name.contains(u'/') || name.contains(u'\\'))
    return UiTexts::tr("A Skin's name has no slash in it and doesn't begin with a point.");
  if (QFileInfo::exists(place.root() + u'/' + name))
    return shownText(UiTexts::tr("%1: a Skin of this name is there already.").arg(name));
  return {};
}

/// What the operator types; nothing on cancel.
std::optional<QString> askName(const Place& place, const QString& title) {
  QInputDialog dialog(&place.owner);
  dialog.setObjectName(QStringLiteral("nameOfSkin"));
  dialog.setWindowTitle(title);
  dialog.setLabelText(UiTexts::tr("Name of the new Skin:"));
  dialog.setTextValue(freeName(place, UiTexts::tr("%1 copy").arg(place.skinName())));
  dialog.resize(kDialogWidth, dialog.sizeHint().height());
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return dialog.textValue().trimmed();
}

void copyAsNew(const Place& place) {
  copyAsNewSkin(
      place.hands, place.owner, UiTexts::tr("Copy as New Skin"),
      [&](const QString& folder, const GoOn& goOn) {
        return leftOutNote(copySkin(place.hands.state(), place.hands.disk(), place.skin(), folder, goOn));
      });
}

void newSkin(const Place& place) {
  const QString title = UiTexts::tr("New Skin");
  NewSkinDialog dialog(
      freeName(place, title), [&place](const QString& name) { return faultOfName(place, name); },
      &place.owner);
  if (dialog.exec() != QDialog::Accepted) return;
  const QString name = dialog.name();
  const looks::Wish wish = dialog.wish();
  QStringList notes;
  const bool isDone = run(place, title, [&](const GoOn& goOn) {
    notes = looks::makeSkin(place.hands.disk(), place.root() + u'/' + name, wish, goOn);
  });
  if (!isDone) return;
  place.hands.openSkin(name);
  notes.prepend(UiTexts::tr("%1 is a new Skin, and in hand.").arg(name));
  place.say(notes.join(u' '));
}

void exportSkin(const Place& place) {
  const QString title = UiTexts::tr("Export Skin");
  const QString file = chooseTarget(
      {title, archives(), QStringLiteral("zip"), place.skinName() + QStringLiteral(".zip")}, &place.owner);
  if (file.isEmpty()) return;
  QList<LeftOut> leftOut;
  const bool isDone = run(place, title, [&](const GoOn& goOn) {
    leftOut = packSkin(place.hands.disk(), place.skin(), file, goOn);
  });
  if (!isDone) return;
  const QString unsaved =
      place.hands.history().isModified() ? UiTexts::tr(" What isn't saved isn't in it.") : QString();
  place.say(UiTexts::tr("%1 holds the Skin.").arg(file) + unsaved + leftOutNote(leftOut));
}

QString importTitle() {
  return UiTexts::tr("Import Skin");
}

void importSkin(const Place& place) {
  const QString file = QFileDialog::getOpenFileName(&place.owner, importTitle(), QDir::homePath(), archives(),
                                                    nullptr, QFileDialog::ReadOnly);
  if (!file.isEmpty()) importArchive(place.hands, place.owner, file);
}

}  // namespace

QString leftOutNote(const QList<LeftOut>& leftOut) {
  if (leftOut.isEmpty()) return {};
  return UiTexts::tr(" Left out: %1 of it, the first is %2, %3.")
      .arg(leftOut.size())
      .arg(leftOut.first().name, leftOut.first().reason);
}

bool copyAsNewSkin(Operator& hands, QWidget& owner, const QString& title,
                   const std::function<QString(const QString& folder, const GoOn& goOn)>& make) {
  const Place place{hands, owner};
  const std::optional<QString> name = askName(place, title);
  if (!name) return false;
  const QString fault = faultOfName(place, *name);
  if (!fault.isEmpty()) {
    hands.dialogs().inform(title, fault);
    return false;
  }
  QString note;
  const bool isDone =
      run(place, title, [&](const GoOn& goOn) { note = make(place.root() + u'/' + *name, goOn); });
  if (!isDone) return false;
  hands.goOnWithCopy(*name);
  place.say(UiTexts::tr("%1 is a new Skin, and in hand.").arg(*name) + note);
  return true;
}

void importArchive(Operator& hands, QWidget& owner, const QString& file) {
  const Place place{hands, owner};
  QString name;
  const bool isDone = run(place, importTitle(), [&](const GoOn& goOn) {
    name = unpackSkin(place.hands.disk(), file, place.root(), goOn);
  });
  if (!isDone) return;
  place.hands.listSkins();
  place.say(UiTexts::tr("%1 is among the Skins now.").arg(name));
}

void addExchangeCommands(QMenu& menu, Operator& hands, QWidget& owner) {
  struct Entry {
    const char* text;
    const char* tip;
    void (*act)(const Place& place);
  };
  menu.addSeparator();
  for (const Entry& entry :
       {Entry{QT_TRANSLATE_NOOP("Ui", "New S&kin..."),
              QT_TRANSLATE_NOOP("Ui", "Draw a whole new Skin of a look, a size and three colours"), newSkin},
        {QT_TRANSLATE_NOOP("Ui", "Copy as &New Skin..."),
         QT_TRANSLATE_NOOP("Ui", "Make a new Skin of this one as it is now, and go on with that"), copyAsNew},
        {QT_TRANSLATE_NOOP("Ui", "&Export..."),
         QT_TRANSLATE_NOOP("Ui", "Pack the Skin as it was saved into one file"), exportSkin},
        {QT_TRANSLATE_NOOP("Ui", "&Import..."),
         QT_TRANSLATE_NOOP("Ui", "Put the Skin of such a file among the others"), importSkin}}) {
    QAction* action = menu.addAction(UiTexts::tr(entry.text));
    action->setStatusTip(UiTexts::tr(entry.tip));
    QObject::connect(action, &QAction::triggered, &owner,
                     [place = Place{hands, owner}, act = entry.act] { act(place); });
  }
}

}  // namespace veneerer
