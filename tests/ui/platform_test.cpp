// The real settings store and the words of the real dialogs.
#include <gtest/gtest.h>

#include <QLabel>
#include <QProgressBar>
#include <QSettings>
#include <QTemporaryDir>

#include "support/pictures.h"
#include "ui/qtplatform.h"
#include "uifixture.h"

namespace veneerer {
namespace {

TEST(Settings, AreReadFromTheUsersFileAndNeverWritten) {
  const QTemporaryDir folder;
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
  const auto skin = [] { return IniSettings().value("Settings", "Skin", "none").toStdString(); };
  const QString file = folder.filePath("V-Quill 8.ini");
  EXPECT_EQ(skin(), "none");
  EXPECT_FALSE(QFile::exists(file));
  test::writeBytes(file, "[Settings]\nSkin=Black_and_Blue_gif_V8.0(800x600)\n");
  EXPECT_EQ(skin(), "Black_and_Blue_gif_V8.0(800x600)");
  test::writeBytes(file, "[Settings]\nSkin=Neon, wide\n");
  EXPECT_EQ(skin(), "Neon, wide");
}

TEST(Dialogs, FiltersTakeTheToolkitsForm) {
  const auto form = [](const char* filter) {
    return dialogFilter(QString::fromLatin1(filter)).toStdString();
  };
  EXPECT_EQ(form("Image Files|*.bmp;*.jpg;*.gif"), "Image Files (*.bmp *.jpg *.gif)");
  EXPECT_EQ(form("GIF Files|*.gif|All|*.*"), "GIF Files (*.gif);;All (*.*)");
  EXPECT_EQ(form("odd"), "");
}

/// Sees every bar that is painted, and at which step.
class PaintedBars : public QObject {
public:
  PaintedBars() { qApp->installEventFilter(this); }
  bool eventFilter(QObject* object, QEvent* event) override {
    auto* bar = qobject_cast<QProgressBar*>(object);
    if (bar && event->type() == QEvent::Paint && bar->isVisible()) {
      last = bar;
      if (!steps.contains(bar->value())) steps.append(bar->value());
    }
    return false;
  }
  QPointer<QProgressBar> last;
  QList<int> steps;
};

TEST(Progress, IsPaintedAtEveryStepAndCannotBeClosed) {
  PaintedBars bars;
  QtProgress progress;
  progress.step(0, 3, "<b>one</b> \\a.bmp");
  ASSERT_TRUE(bars.last);
  QWidget* window = bars.last->window();
  const auto* what = window->findChild<QLabel*>();
  EXPECT_EQ(what->text().toStdString(), "<b>one</b> \\a.bmp");
  EXPECT_EQ(what->textFormat(), Qt::PlainText);
  window->close();
  QTest::keyClick(window, Qt::Key_Escape);
  EXPECT_TRUE(window->isVisible());
  progress.step(1, 3, "two");
  progress.step(2, 3, "three");
  EXPECT_EQ(bars.steps, (QList<int>{0, 1, 2}));
  progress.step(3, 3, QString());
  EXPECT_TRUE(bars.last.isNull());
}

}  // namespace
}  // namespace veneerer
