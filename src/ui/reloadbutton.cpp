#include "ui/reloadbutton.h"

#include "ui/binding.h"
#include "ui/texts.h"

namespace veneerer {

namespace {

QString said(const QStringList& names) {
  if (names.size() == 1) return UiTexts::tr("Another program changed %1.").arg(names.first());
  return UiTexts::tr("Another program changed %1 record files: %2.")
      .arg(names.size())
      .arg(names.join(QStringLiteral(", ")));
}

}  // namespace

ReloadButton::ReloadButton(Operator& hands, DiskFollower& disk) : hands_(hands) {
  setText(UiTexts::tr("Reload"));
  setAutoRaise(true);
  setFocusPolicy(Qt::TabFocus);
  hide();
  connect(&disk, &DiskFollower::recordsChanged, this, &ReloadButton::offer);
  connect(this, &QToolButton::clicked, this, [this] {
    hide();
    hands_.reload();
  });
  connect(&hands.history().stack(), &QUndoStack::cleanChanged, this, [this](bool isClean) {
    if (isClean) hide();
  });
  new Watch(*hands.state().form4.Combo3, this, [this] { hide(); });
}

void ReloadButton::offer(const QStringList& names) {
  setToolTip(said(names) + UiTexts::tr(" Reload reads the Skin again, one step of undo."));
  setAccessibleName(toolTip());
  show();
  hands_.state().notes.say(said(names));
}

}  // namespace veneerer
