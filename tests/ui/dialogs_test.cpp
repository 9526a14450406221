// The real dialogs, with the operator's hands in them.
#include <sys/stat.h>

#include <QCheckBox>
#include <QFileDialog>
#include <QFontDialog>
#include <QListView>
#include <QMessageBox>
#include <QSettings>

#include "elements/numbers.h"
#include "support/pictures.h"
#include "ui/fontdialog.h"
#include "ui/modal.h"
#include "ui/picturepreview.h"
#include "ui/qtplatform.h"
#include "ui/uifixture.h"

namespace veneerer {
namespace {

/// A font that no machine has, in a size that the dialog doesn't offer.
FontChoice oddFont() {
  return {"Quill Gothic", 10.6f, true, false, false, true};
}

std::optional<FontChoice> answer(std::function<void(QFontDialog&)> operate) {
  const test::OnModal<QFontDialog> operation([&](QFontDialog& dialog) {
    operate(dialog);
    dialog.accept();
  });
  return runFontDialog(oddFont(), nullptr);
}

std::string told(const std::optional<FontChoice>& font) {
  if (!font) return "none";
  const char* const names[] = {" bold", " italic", " underline", " strikethrough"};
  const bool holds[] = {font->bold, font->italic, font->underline, font->strikethrough};
  QString text = font->name + ' ' + singleText(font->size);
  for (int i = 0; i < 4; ++i) text += holds[i] ? names[i] : "";
  return text.toStdString();
}

TEST(FontDialog, GivesBackWhatNobodyTouchedAndChangesOneThingAlone) {
  EXPECT_EQ(told(answer([](QFontDialog&) {})), "Quill Gothic 10.6 bold strikethrough");
  EXPECT_EQ(told(answer([](QFontDialog& dialog) {
              for (QCheckBox* box : dialog.findChildren<QCheckBox*>())
                if (!box->isChecked()) box->click();
            })),
            "Quill Gothic 10.6 bold underline strikethrough");
  EXPECT_EQ(told(answer([](QFontDialog& dialog) {
              for (QLineEdit* field : dialog.findChildren<QLineEdit*>())
                if (field->validator() && field->isVisible()) {
                  field->selectAll();
                  QTest::keyClicks(field, "15");
                }
            })),
            "Quill Gothic 15 bold strikethrough");
}

TEST(FontDialog, TakesAnotherFamilyWithoutItsFoundry) {
  QString chosen;
  auto font = answer([&](QFontDialog& dialog) {
    auto* families = dialog.findChildren<QListView*>().first();
    QModelIndex row = families->model()->index(0, 0);
    // One with a foundry where the machine has one.
    for (int i = 0; i < families->model()->rowCount(); ++i)
      if (const QModelIndex odd = families->model()->index(i, 0); odd.data().toString().endsWith(u']'))
        row = odd;
    families->setCurrentIndex(row);
    chosen = row.data().toString().section(" [", 0, 0);
  });
  ASSERT_TRUE(font);
  font->bold = font->italic = false;  // the family decides
  EXPECT_EQ(told(font), chosen.toStdString() + " 10.6 strikethrough");
}

TEST(FontDialog, CancelGivesNothing) {
  const test::OnModal<QFontDialog> operation([](QFontDialog& dialog) { dialog.reject(); });
  EXPECT_FALSE(runFontDialog(oddFont(), nullptr));
}

class PictureDialog : public testing::Test {
protected:
  PictureDialog() {
    // The toolkit's dialog keeps its last places.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, root.filePath("settings"));
    for (const char* folder : {"S/Images/more", "T", "elsewhere"})
      QDir(root.path()).mkpath(QLatin1String(folder));
    for (const char* file : {"S/Images/more/a.bmp", "elsewhere/b.bmp"})
      test::writePicture(at(file), 40, 20, Qt::red);
    dialogs.setSkin([this] { return SkinFolder(at(skin)); });
  }
  QString at(const char* name) const { return root.filePath(QLatin1String(name)); }

  /// The folder that the dialog opens in, when the operator chooses that file; none cancels.
  std::string openedFor(const char* file) {
    QString folder;
    const test::OnModal<QFileDialog> operation([&](QFileDialog& dialog) {
      folder = dialog.directory().path();
      if (!file) return static_cast<QDialog&>(dialog).reject();
      auto* name = dialog.findChild<QLineEdit*>();
      name->setText(at(file));
      QTest::keyClick(name, Qt::Key_Return);
    });
    const QString chosen = dialogs.chooseFile("Image Files|*.bmp;*.jpg");
    EXPECT_EQ(chosen.toStdString(), (file ? at(file) : QString()).toStdString());
    return QDir(root.path()).relativeFilePath(folder).toStdString();
  }

  QTemporaryDir root;
  QtDialogs dialogs;
  const char* skin = "S";
};

TEST_F(PictureDialog, OpensInTheSkinOrWhereItWasLastWithinIt) {
  EXPECT_EQ(openedFor(nullptr), "S/Images");
  EXPECT_EQ(openedFor("S/Images/more/a.bmp"), "S/Images");
  EXPECT_EQ(openedFor("elsewhere/b.bmp"), "S/Images/more");
  EXPECT_EQ(openedFor(nullptr), "S/Images");
  openedFor("S/Images/more/a.bmp");
  skin = "T";
  EXPECT_EQ(openedFor(nullptr), "T") << "it has no images, and the other Skin's are none of its own";
  skin = "gone";
  EXPECT_EQ(openedFor(nullptr), ".");
}

TEST_F(PictureDialog, ShowsThePictureInSmall) {
  QSize shown;
  const test::OnModal<QFileDialog> operation([&](QFileDialog& dialog) {
    auto* preview = dialog.findChild<PicturePreview*>();
    ASSERT_TRUE(preview);
    preview->showFile(at("elsewhere/b.bmp"));
    const auto picture = [&] { return preview->findChild<QLabel*>()->pixmap(); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return !picture().isNull(); }, 60'000));
    shown = picture().size();
    preview->showFile(at("elsewhere"));
    EXPECT_TRUE(picture().isNull());
    dialog.reject();
  });
  dialogs.chooseFile("Image Files|*.bmp;*.jpg");
  EXPECT_EQ(shown, QSize(40, 20));
}

TEST_F(PictureDialog, TheSketchIsSmallAndBearsHostileFiles) {
  test::writePicture(at("wide.jpg"), 400, 100, Qt::green);
  const Sketch wide = sketchOf(at("wide.jpg"), QSize(200, 200));
  EXPECT_EQ(wide.size, QSize(400, 100));
  EXPECT_EQ(wide.image.size(), QSize(200, 50));
  test::writeBytes(at("bad.jpg"), "no picture at all");
  EXPECT_FALSE(sketchOf(at("bad.jpg"), QSize(200, 200)).size.isValid());
  // More pixels than any screen's picture has, in a small file.
  QImage(7200, 7200, QImage::Format_Mono).save(at("huge.png"));
  const Sketch huge = sketchOf(at("huge.png"), QSize(200, 200));
  EXPECT_EQ(huge.size, QSize(7200, 7200));
  EXPECT_TRUE(huge.image.isNull());
  // Opening a pipe would wait for somebody to write into it.
  ASSERT_EQ(mkfifo(qPrintable(at("pipe.bmp")), 0600), 0);
  EXPECT_FALSE(sketchOf(at("pipe.bmp"), QSize(200, 200)).size.isValid());
}

TEST(Boxes, ShowAStrangersTextAsItStandsAndNoMoreOfItThanCanBeRead) {
  QString text;
  Qt::TextFormat format = Qt::AutoText;
  const test::OnModal<QMessageBox> operation([&](QMessageBox& box) {
    text = box.text();
    format = box.textFormat();
    box.accept();
  });
  QtDialogs().inform("Image", "<b>R&B</b>\u202e" + QString(2000, u'x'));
  EXPECT_EQ(text, "<b>R&B</b>?" + QString(988, u'x') + QChar(0x2026));
  EXPECT_EQ(format, Qt::PlainText);
}

class Questions : public test::UiFixture {};

TEST_F(Questions, LeaveTheSplashInSight) {
  state().frmSplash.setVisible(true);
  const QRect splash = widget<QWidget>("frmSplash").frameGeometry();
  QRect box;
  const test::OnModal<QMessageBox> operation([&](QMessageBox& question) {
    box = question.frameGeometry();
    question.accept();
  });
  QtDialogs().ask("Load Current Skin", "Do you?");
  EXPECT_TRUE(operation.came());
  EXPECT_FALSE(box.intersects(splash));
  EXPECT_TRUE(QGuiApplication::primaryScreen()->availableGeometry().contains(box));
}

}  // namespace
}  // namespace veneerer
