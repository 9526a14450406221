#include "manualpictures/film.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QSlider>
#include <QTreeWidget>

#include "manualpictures/realwindows.h"

namespace veneerer::test {

namespace {

constexpr QSize kSize{1280, 700};
constexpr int kStrip = 44;  // pixels below the window, for the words
// Hundredths of a second.
constexpr int kStep = 12;
constexpr int kLook = 150;

/// In pixels, its tip at the origin.
QPolygonF pointer() {
  return {{{0, 0}, {0, 21}, {5, 16.5}, {8.5, 24}, {12, 22.5}, {8.6, 15}, {15, 15}}};
}

class Film : public RealWindows {
public:
  Film(const QString& programFolder, const QString& target) : RealWindows(programFolder, target, kSize) {}

  void shoot() {
    look();
    drag();
    nameAnew();
    takeBack();
    recolour();
    goOn();
    compare();
  }

private:
  void frame(int duration) {
    QTest::qWait(120);
    QPixmap picture(kSize + QSize(0, kStrip));
    QPainter painter(&picture);
    painter.drawPixmap(0, 0, window().grab());
    for (QWidget* each : QApplication::topLevelWidgets())
      if (each->isVisible() && qobject_cast<QDialog*>(each)) paintDialog(painter, *each);
    paintPointer(painter);
    paintWords(painter);
    painter.end();
    write(picture, QStringLiteral("%1-%2").arg(frames_++, 3, 10, QLatin1Char('0')).arg(duration));
  }

  void paintDialog(QPainter& painter, QWidget& dialog) {
    const QRect place(window().mapFromGlobal(dialog.mapToGlobal(QPoint())), dialog.size());
    painter.drawPixmap(place.topLeft(), dialog.grab());
    painter.setPen(Qt::darkGray);
    painter.drawRect(place.adjusted(-1, -1, 0, 0));
  }

  void paintPointer(QPainter& painter) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(hand_);
    painter.setPen(QPen(Qt::white, 1.5));
    painter.setBrush(Qt::black);
    painter.drawPolygon(pointer());
    painter.restore();
  }

  void paintWords(QPainter& painter) {
    QFont font = painter.font();
    font.setPixelSize(22);
    painter.setFont(font);
    painter.setPen(Qt::white);
    const QRect strip(0, kSize.height(), kSize.width(), kStrip);
    painter.fillRect(strip, QColor(24, 26, 30));
    painter.drawText(strip, Qt::AlignCenter, words_);
  }

  /// Leads the pointer there in a few frames.
  void lead(const QWidget& at, QPoint place) {
    const QPointF from = hand_;
    const QPointF to = window().mapFromGlobal(at.mapToGlobal(place));
    for (int i = 1; i <= 4; ++i) {
      hand_ = from + (to - from) * (i / 4.0);
      frame(kStep);
    }
  }

  void look() {
    showScreen(15);
    panel("Form6");
    hand_ = QPointF(kSize.width() / 2.0, kSize.height() / 2.0);
    words_ = "A Skin of the jukebox: every screen is live on one canvas";
    frame(kLook);
  }

  void drag() {
    words_ = "Drag anything: lines tell what it lines up with";
    Element& dragged = state().form1.lvButtons_H41[2];
    const QPoint from = middleOf(dragged);
    lead(canvas(), from);
    QTest::mousePress(&canvas(), Qt::LeftButton, {}, from);
    for (const QPoint& by : {QPoint(3, -4), {6, -10}, {12, -18}, {18, -24}, {22, -28}}) {
      QTest::mouseMove(&canvas(), from + by);
      hand_ = QPointF(window().mapFromGlobal(canvas().mapToGlobal(from + by)));
      frame(kStep);
    }
    frame(kLook / 2);
    QTest::mouseRelease(&canvas(), Qt::LeftButton, {}, from + QPoint(22, -28));
    frame(kLook / 2);
  }

  void nameAnew() {
    words_ = "Give it other words, colours, fonts and pictures";
    auto& field = widget<QLineEdit>("Form6.Text1");
    lead(field, field.rect().center());
    const QString words = "Up next";
    for (int length = 1; length <= words.size(); length += 2) {
      type("Form6.Text1", words.left(length));
      frame(kStep);
    }
    frame(kLook / 2);
  }

  void takeBack() {
    words_ = "Undo every step, exactly";
    panel("history");
    frame(kLook / 2);
    while (designer().history().undo()) frame(2 * kStep);
    frame(kLook / 2);
  }

  void recolour() {
    words_ = "Recolour the whole Skin and see it at once";
    panel("Form6");
    trigger("Rec&olour...");
    auto& dialog = widget<QDialog>("recolour");
    dialog.resize(dialog.width(), 520);
    dialog.move(window().mapToGlobal(QPoint(kSize.width() - dialog.width() - 8, 120)));
    frame(kLook / 2);
    auto& hue = *dialog.findChild<QSlider*>("hue");
    for (int turn = 15; turn <= 150; turn += 15) {
      hue.setValue(turn);
      hand_ = QPointF(window().mapFromGlobal(hue.mapToGlobal(
          QPoint(hue.width() * (turn - hue.minimum()) / (hue.maximum() - hue.minimum()), hue.height() / 2))));
      frame(kStep);
    }
    frame(kLook);
    dialog.accept();
  }

  void goOn() {
    words_ = "Each of its screens follows";
    for (const int entry : {9, 3, 12}) {
      showScreen(entry);
      frame(kLook / 2);
    }
  }

  void compare() {
    words_ = "Before saving, see each line of each file that would change";
    QWidget& all = *panel("compare").widget();
    for (QAbstractButton* button : all.findChildren<QAbstractButton*>())
      if (button->text() == "&Compare") button->click();
    frame(2 * kLook);
  }

  int frames_ = 0;
  QString words_;
  QPointF hand_;  ///< the pointer's place in the window
};

}  // namespace

void shootFilm(const QString& programFolder, const QString& target) {
  Film(programFolder, target).shoot();
}

}  // namespace veneerer::test
