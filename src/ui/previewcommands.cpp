#include "ui/previewcommands.h"

#include <QApplication>
#include <QClipboard>
#include <QFileInfo>

#include "preview/screenpicture.h"
#include "preview/webpage.h"
#include "records/writefiles.h"
#include "ui/targetdialog.h"
#include "ui/texts.h"

namespace veneerer {

namespace {

QString exportTitle() {
  return UiTexts::tr("Export as Web Page");
}

void writePage(const Ui& ui, const QFileInfo& file, const QString& skinName) {
  State& state = ui.hands.state();
  const Platform& platform = ui.hands.platform();
  // All pictures are to be seen, however long that takes.
  const PictureFetcher::Rest onTheSpot(ui.pictures);
  const QByteArray page = webPage(state, platform.screen, skinName, platform.progress);
  writeFiles(platform.disk, file.path(), {{file.fileName(), page}});
}

void exportPage(const Ui& ui) {
  const QString skinName = ui.hands.state().form4.Combo3->text();
  const QString path = chooseTarget({exportTitle(), UiTexts::tr("Web Pages (*.html)"), QStringLiteral("html"),
                                     skinName + QStringLiteral(".html")},
                                    QApplication::activeWindow());
  if (path.isEmpty()) return;
  const QFileInfo file(path);
  // No file of the Skin is at stake: a failure ends the export, not the program.
  try {
    ui.hands.run([&] { writePage(ui, file, skinName); });
    ui.hands.state().notes.say(UiTexts::tr("The web page %1 is written.").arg(file.fileName()));
  } catch (const RecordError& error) {
    ui.hands.dialogs().inform(exportTitle(), UiTexts::tr("Nothing is written. %1").arg(error.message()));
  }
}

void copyScreen(const Ui& ui) {
  const PictureFetcher::Rest onTheSpot(ui.pictures);
  CanvasPainter painter;
  QApplication::clipboard()->setImage(canvasPicture(ui.hands.state().form1, ui.hands.screen(), painter));
  ui.hands.state().notes.say(UiTexts::tr("The screen is on the clipboard."));
}

}  // namespace

void addPreviewCommands(QMenu& file, const Ui& ui) {
  QAction* action = file.addAction(UiTexts::tr("Export as &Web Page..."));
  action->setStatusTip(UiTexts::tr("Write one page with all screens, to be looked at in a browser"));
  QObject::connect(action, &QAction::triggered, action, [ui] { exportPage(ui); });
}

void addCopyScreen(QMenu& edit, const Ui& ui) {
  QAction* action = edit.addAction(UiTexts::tr("&Copy This Screen"));
  action->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+C")));
  action->setShortcutContext(Qt::ApplicationShortcut);
  action->setStatusTip(UiTexts::tr("Put a picture of the canvas on the clipboard"));
  QObject::connect(action, &QAction::triggered, action, [ui] { copyScreen(ui); });
}

}  // namespace veneerer
