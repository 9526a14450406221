// The rescale: elements by the change of the window's size, backdrops on disk.
#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QTemporaryDir>
#include <set>

#include "support/fulldisk.h"
#include "tools/rescalefactors.h"
#include "tools/rescaletables.h"
#include "toolsfixture.h"

namespace veneerer {

class RescaleTest : public ToolsTest {
protected:
  RescaleTest() {
    world.platform.folder.path = program.path();
    EXPECT_TRUE(QDir().mkpath(skin() + QStringLiteral("/images")));
    form1.place(0, 0, 15360, 11520);
    form6.Check2->setValue(1);
    form4.Combo3->setText(QStringLiteral("Blue"));
  }

  QString skin() const { return program.filePath(QStringLiteral("Skins/Blue")); }
  QString file(const char* name) const { return skin() + QLatin1String(name); }
  void paint(const char* name, QColor colour = Qt::red) {
    QImage image(40, 30, QImage::Format_RGB32);
    image.fill(colour);
    EXPECT_TRUE(image.save(file(name), "BMP"));
  }
  static QByteArray bytes(const QString& path) {
    QFile in(path);
    return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
  }
  void rescale(const char* width, const char* height) {
    type(*form6.Text7, width);
    type(*form6.Text8, height);
    state.board.click(*form6.Command10);
  }

  QTemporaryDir program;
  Form4& form4 = state.form4;
};

TEST_F(RescaleTest, TargetsHaveAnElementEach) {
  std::set<const ImageSlot*> names;
  for (const RescaleTarget& target : kRescaleTargets) {
    EXPECT_NE(target.family(state).find(target.index), nullptr);
    EXPECT_TRUE(names.insert(&target.name(state.names)).second);
  }
  EXPECT_EQ(names.size(), 25u);
}

TEST_F(RescaleTest, ElementsFollowTheWindow) {
  form6.Check2->setValue(0);
  form1.Label1[0].place(100, 200, 300, 400);
  form1.Label1[0].setFontSize(10);
  rescale("2048", "384");
  EXPECT_EQ(form1.width(), 30720);
  EXPECT_EQ(form1.height(), 5760);
  EXPECT_EQ(form1.Label1[0].left(), 200);
  EXPECT_EQ(form1.Label1[0].top(), 100);
  EXPECT_EQ(form1.Label1[0].width(), 600);
  EXPECT_EQ(form1.Label1[0].height(), 200);
  // Wider first: 10 * (2 + 1) / 2, then lower: times (1 + 0.5) / 2.
  EXPECT_EQ(form1.Label1[0].fontSize(), 11.25f);
  EXPECT_TRUE(world.dialogs.messages.isEmpty());
  EXPECT_EQ(state.notes.texts().size(), 1) << "what a rescale leaves alone";
  // Outside of the tool a change of the window's size moves nothing.
  form1.setWidth(100);
  EXPECT_EQ(form1.Label1[0].left(), 200);
}

TEST_F(RescaleTest, TheFactorsAreKnownAhead) {
  form6.Check2->setValue(0);
  form4.Text1[0].setText("800");
  form4.Text1[1].setText("600");
  form1.place(0, 0, 15 * 804, 15 * 600 + 500);
  for (const QSize screen : {QSize(1024, 768), QSize(1366, 768)}) {
    world.platform.screen.width = screen.width();
    form1.Label1[0].place(1000, 1000, 1000, 1000);
    form1.Label1[0].setFontSize(10);
    type(*form6.Text7, "1300");
    type(*form6.Text8, "500");
    const auto told = rescaleFactors(state, world.platform.screen);
    ASSERT_TRUE(told);
    state.board.click(*form6.Command10);
    EXPECT_NEAR(form1.Label1[0].left(), 1000 * told->across, 0.5);
    EXPECT_NEAR(form1.Label1[0].top(), 1000 * told->down, 0.5);
    EXPECT_NEAR(form1.Label1[0].fontSize(), 10 * told->fonts, 0.01);
  }
}

TEST_F(RescaleTest, AnEvenScaleBringsTheResolutionToItsNewSize) {
  form4.Text1[0].setText("800");
  form4.Text1[1].setText("600");
  form1.place(0, 0, 15 * 804, 15 * 600 + 500);
  EXPECT_EQ(skinResolution(state), QSize(800, 600));
  const QSize size = sizeForFactor(state, world.platform.screen, 1024.0 / 800);
  EXPECT_EQ(size, QSize(1029, 811)) << "the window is wider by four pixels and higher by 500 twips";
  EXPECT_NEAR(*factorOf(state, world.platform.screen, size.width(), Axis::X), 1.28, 0.001);
  EXPECT_NEAR(*factorOf(state, world.platform.screen, size.height(), Axis::Y), 1.28, 0.001);
  EXPECT_FALSE(factorOf(state, world.platform.screen, 0, Axis::Y));
  form1.setHeight(0);
  EXPECT_FALSE(factorOf(state, world.platform.screen, 100, Axis::Y));
  form4.Text1[1].setText("none");
  EXPECT_TRUE(skinResolution(state).isEmpty());
}

TEST_F(RescaleTest, WhatCannotBeScaledIsToldAndChangesNothing) {
  int changes = 0;
  const Attachment watching =
      state.board.watch([&](const Change& change) { changes += &change.element.window() == &form1; });
  const auto refuses = [&](const char* width, const char* height, const char* why) {
    SCOPED_TRACE(std::string(width) + " x " + height);
    changes = 0;
    world.dialogs.messages.clear();
    rescale(width, height);
    EXPECT_EQ(changes, 0);
    EXPECT_FALSE(rescaleFactors(state, world.platform.screen).has_value());
    EXPECT_TRUE(state.notes.texts().isEmpty());
    ASSERT_EQ(world.dialogs.messages.size(), 1);
    EXPECT_EQ(world.dialogs.messages[0].title, u"Rescale SKIN");
    EXPECT_TRUE(world.dialogs.messages[0].text.contains(QLatin1String(why)))
        << world.dialogs.messages[0].text.toStdString();
  };
  for (const char* nothing : {"", "0", "-5", "wide", "-99999999999"}) {
    refuses(nothing, "768", "above 0");
    refuses("1024", nothing, "above 0");
  }
  // The last of these fits into 32 bits, but not the Single that holds it.
  for (const char* huge : {"99999999999", "1E300", "143165577", "143165576"}) {
    refuses(huge, "768", "beyond 32 bits");
    refuses("1024", huge, "beyond 32 bits");
  }
  for (float side : {0.0f, 0.4f, -300.0f}) {
    form1.setHeight(side);
    refuses("1024", "768", "no size");
  }
  form1.setHeight(3e38f);
  refuses("1024", "768", "beyond 32 bits");
  world.platform.screen.width = 40'000;
  refuses("1024", "768", "screen");
}

TEST_F(RescaleTest, BackdropsTakeTheSizeOfTheirElement) {
  paint("/history.bmp");
  paint("/IMAGES.bmp", Qt::green);
  state.names.ImageName[1].setValue(QStringLiteral("\\history.bmp"));
  state.names.ImageName[2].setValue(QStringLiteral("\\missing.bmp"));
  state.names.PlaylistLoadName->setValue(QStringLiteral("\\images.bmp"));
  form1.Picture1[1].place(0, 0, 1500, 3000);
  form1.Picture1[20].place(0, 0, 600, 900);
  form1.Picture1[1].setPicture(state.pictures.load(file("/history.bmp")));
  ASSERT_EQ(form1.Picture1[1].picture().image().size(), QSize(40, 30));
  rescale("1024", "768");
  QImageReader history(file("/history.bmp"));
  history.setDecideFormatFromContent(true);
  EXPECT_EQ(history.format(), "jpeg");
  EXPECT_EQ(history.size(), QSize(100, 200));
  EXPECT_EQ(QImage(file("/IMAGES.bmp"), "JPEG").size(), QSize(40, 60));
  EXPECT_LT(qAbs(qRed(QImage(file("/history.bmp"), "JPEG").pixel(50, 50)) - 255), 4);
  EXPECT_EQ(form1.Picture1[1].picture().image().size(), QSize(100, 200));
  EXPECT_EQ(form1.Picture21->width(), 600);
  EXPECT_FALSE(form1.Picture21->isVisible());
  ASSERT_EQ(state.notes.texts().size(), 2);
  EXPECT_EQ(state.notes.texts()[0], u"2 of 3 images were resized; missing: \\missing.bmp.");
  EXPECT_TRUE(state.notes.texts()[1].startsWith("Not rescaled are: "));
  ASSERT_EQ(world.dialogs.messages.size(), 2);
  EXPECT_EQ(world.dialogs.messages[0].text, u"Now Resizing images Do not Loose Focus on main screen");
  EXPECT_EQ(world.dialogs.messages[1].text, u"Images resized");
  EXPECT_EQ(QDir(skin()).entryList(QDir::Files | QDir::Hidden).size(), 2) << "no file is left between";
}

TEST_F(RescaleTest, ProgressCannotStartASecondRescale) {
  struct Impatient : Progress {
    Rescale* tool = nullptr;
    QStringList steps;
    void step(int done, int total, const QString& what) override {
      steps.append(QStringLiteral("%1/%2 %3").arg(done).arg(total).arg(what));
      tool->run();
    }
  } progress;
  Rescale tool(state, world.platform, &progress);
  progress.tool = &tool;
  paint("/one.bmp");
  state.names.ImageName[4].setValue(QStringLiteral("\\one.bmp"));
  type(*form6.Text7, "1024");
  type(*form6.Text8, "768");
  tool.run();
  // A step that takes long is told again.
  progress.steps.removeDuplicates();
  EXPECT_EQ(progress.steps, QStringList({QStringLiteral("0/1 \\one.bmp"), QStringLiteral("1/1 ")}));
  EXPECT_EQ(world.dialogs.messages.size(), 2);
}

TEST_F(RescaleTest, OneFileOfTwoTargetsEndsAtTheLaterSize) {
  paint("/both.jpg");
  state.names.GenreName->setValue(QStringLiteral("\\both.jpg"));
  state.names.ImageName[3].setValue(QStringLiteral("\\both.jpg"));
  form1.Picture1[3].place(0, 0, 1500, 1500);
  form1.Picture1[13].place(0, 0, 300, 450);
  rescale("1024", "768");
  EXPECT_EQ(QImage(file("/both.jpg")).size(), QSize(20, 30));
}

TEST_F(RescaleTest, WhatFailsStaysAsItWasAndTheOthersGoOn) {
  paint("/good.bmp");
  paint("/flat.bmp");
  paint("/../outside.bmp");
  QFile broken(file("/broken.bmp"));
  ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
  broken.write("BM no picture");
  broken.close();
  ASSERT_TRUE(QFile::link(file("/../outside.bmp"), file("/link.bmp")));
  const char* names[] = {"\\broken.bmp", "\\flat.bmp", "\\..\\outside.bmp", "\\link.bmp", "\\good.bmp"};
  for (int i = 0; i < 5; ++i) state.names.ImageName[i].setValue(QString::fromLatin1(names[i]));
  form1.Picture1[1].setWidth(-3e38f);
  form1.Picture1[4].place(0, 0, 150, 150);
  const QByteArray outside = bytes(file("/../outside.bmp"));
  const QByteArray flat = bytes(file("/flat.bmp"));
  rescale("1024", "768");
  EXPECT_EQ(QImage(file("/good.bmp"), "JPEG").size(), QSize(10, 10));
  EXPECT_EQ(bytes(file("/broken.bmp")), "BM no picture");
  EXPECT_EQ(bytes(file("/flat.bmp")), flat);
  EXPECT_EQ(bytes(file("/../outside.bmp")), outside);
  EXPECT_EQ(world.dialogs.messages.size(), 2);
  ASSERT_EQ(state.notes.texts().size(), 2);
  const QString note = state.notes.texts().first();
  EXPECT_TRUE(note.startsWith(QStringLiteral("1 of 4 images were resized; "))) << note.toStdString();
  for (const char* reason : {"; can't be decoded: \\broken.bmp", "pixels: \\flat.bmp",
                             "; outside the Skin's folder: \\..\\outside.bmp"})
    EXPECT_TRUE(note.contains(QLatin1String(reason))) << reason << note.toStdString();
}

TEST_F(RescaleTest, OnAFullDiskNoPictureIsSpoilt) {
  state.names.ImageName[3].setValue(QStringLiteral("\\one.bmp"));
  form1.Picture1[3].place(0, 0, 300, 300);
  paint("/one.bmp");
  const QByteArray before = bytes(file("/one.bmp"));
  int told = 0;
  for (const rlim_t room : {0, 1, 300}) {
    {
      const test::FullDisk full(room);
      rescale("1024", "768");
    }
    EXPECT_EQ(bytes(file("/one.bmp")), before) << room;
    EXPECT_EQ(QDir(skin()).entryList(QDir::Files | QDir::Hidden), QStringList{"one.bmp"}) << room;
    EXPECT_EQ(state.notes.texts().filter("can't be written").size(), ++told) << room;
  }
}

TEST_F(RescaleTest, AFileThatCannotBeWrittenStaysWhole) {
  state.names.ImageName[3].setValue(QStringLiteral("\\one.bmp"));
  state.names.GenreName->setValue(QStringLiteral("\\two.bmp"));
  form1.Picture1[3].place(0, 0, 300, 300);
  form1.Picture1[13].place(0, 0, 300, 450);
  for (int at = 1; at <= 4; ++at) {
    SCOPED_TRACE(at);
    paint("/one.bmp");
    paint("/two.bmp");
    const QByteArray before = bytes(file("/one.bmp"));
    world.disk.failAt(at);
    rescale("1024", "768");
    const QImage one(file("/one.bmp"), "JPEG");
    const QImage two(file("/two.bmp"), "JPEG");
    EXPECT_EQ(one.isNull() + two.isNull(), 1);
    EXPECT_EQ(bytes(file(one.isNull() ? "/one.bmp" : "/two.bmp")), before);
    EXPECT_EQ(state.notes.texts().at(2 * at - 2).toStdString(),
              std::string("1 of 2 images were resized; can't be written (made to fail): ") +
                  (one.isNull() ? "\\one.bmp." : "\\two.bmp."));
    EXPECT_EQ(QDir(skin()).entryList(QDir::Files | QDir::Hidden).size(), 2);
  }
}

}  // namespace veneerer
