#include "ui/problemscount.h"

#include <QStyle>

#include "ui/texts.h"

namespace veneerer {

ProblemsCount::ProblemsCount(const ProblemsPanel& panel) {
  setAutoRaise(true);
  setFocusPolicy(Qt::TabFocus);
  setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  setToolTip(UiTexts::tr("What is wrong or risky in this Skin, hints apart; a click shows all of it"));
  connect(&panel, &ProblemsPanel::counted, this, &ProblemsCount::tell);
  connect(this, &QToolButton::clicked, this, [dock = panel.parentWidget()] {
    dock->show();
    dock->raise();
    dock->activateWindow();
  });
  // It comes once there was time to judge; the canvas isn't to jump by it.
  tell(1);
  setMinimumHeight(sizeHint().height());
  hide();
}

void ProblemsCount::tell(int problems) {
  setIcon(problems > 0 ? style()->standardIcon(QStyle::SP_MessageBoxWarning) : QIcon());
  setText(problems == 0   ? UiTexts::tr("No problems")
          : problems == 1 ? UiTexts::tr("1 problem")
                          : UiTexts::tr("%1 problems").arg(problems));
  show();
}

}  // namespace veneerer
