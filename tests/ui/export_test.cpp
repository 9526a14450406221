// What leaves the windows: the page and the picture of a screen.
#include <QClipboard>
#include <QFileDialog>
#include <QMessageBox>

#include "canvas/screens.h"
#include "preview/screenpicture.h"
#include "preview/webpage.h"
#include "ui/modal.h"
#include "ui/uifixture.h"

namespace veneerer {
namespace {

class Exporting : public test::UiFixture {
protected:
  /// The dialog that asks where to is answered with that file, empty for Cancel.
  void exportTo(const QString& file) {
    const test::OnModal<QFileDialog> answering([&](QFileDialog& dialog) {
      offered = QFileInfo(dialog.selectedFiles().value(0)).fileName();
      if (file.isEmpty()) return dialog.reject();
      dialog.findChild<QLineEdit*>()->setText(file);
      static_cast<QDialog&>(dialog).accept();
    });
    trigger("Export as &Web Page...");
    EXPECT_TRUE(answering.came());
  }
  QString target(const QString& name) const { return root.filePath(name); }

  QString offered;
};

TEST_F(Exporting, WritesThePageThatTheBatchToolWrites) {
  form1().place(0, 0, 15 * 200, 15 * 100);
  const int notes = static_cast<int>(state().notes.texts().size());
  exportTo({});
  EXPECT_EQ(offered, "S.html");
  EXPECT_EQ(world.disk.operations, 0) << "cancelled";
  exportTo(target("page"));
  EXPECT_TRUE(test::bytesOf(target("page.html")) == webPage(state(), world.platform.screen, "S"));
  EXPECT_EQ(state().notes.texts().mid(notes), QStringList("The web page page.html is written."));

  world.disk.failAt(1);
  exportTo(target("other.html"));
  EXPECT_FALSE(QFile::exists(target("other.html")));
  EXPECT_TRUE(world.dialogs.messages.last().text.startsWith("Nothing is written. "));
  EXPECT_EQ(designer->history().stack().count(), 0);
}

TEST_F(Exporting, CopiesTheScreenWithoutOutlines) {
  designer->choose(*form6().Combo6, 4);
  designer->click(form1().lvButtons_H37[0]);
  trigger("&Copy This Screen");
  CanvasPainter painter;
  EXPECT_TRUE(QApplication::clipboard()->image().convertToFormat(QImage::Format_RGB32) ==
              screenPicture(state(), world.platform.screen, painter, 4));
}

TEST_F(Exporting, WaitsForPicturesThatArentDecodedYet) {
  QImage large(2400, 1600, QImage::Format_RGB32);
  large.fill(Qt::red);
  const QString file = target("large.png");
  ASSERT_TRUE(large.save(file));
  PictureBox& queue = form1().Picture1[4];
  queue.setPicture(state().pictures.load(file));
  designer->choose(*form6().Combo6, 4);
  trigger("&Copy This Screen");
  const QPoint corner(static_cast<int>(queue.left() / 15) + 2, static_cast<int>(queue.top() / 15) + 2);
  EXPECT_EQ(QApplication::clipboard()->image().pixelColor(corner), QColor(Qt::red));
}

}  // namespace
}  // namespace veneerer
