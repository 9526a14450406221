#include "painting/buttonsheet.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "elements/family.h"
#include "elements/window.h"
#include "painting/buttonstyle.h"
#include "painting/canvaspainter.h"

namespace veneerer {

namespace {

// All in pixels.
constexpr QSizeF kCell(96, 34);
constexpr double kGap = 8;
constexpr double kRowLabel = 60;
constexpr double kTitle = 28;
constexpr int kShapeCount = Button::kLastShape + 1;
constexpr double kBlockWidth = kRowLabel + kGradientModeCount * (kCell.width() + kGap) + 2 * kGap;
constexpr double kBlockHeight = kTitle + kShapeCount * (kCell.height() + kGap) + kGap;
constexpr int kBlocksAcross = 2;
constexpr int kBlocksDown = kButtonStyleCount / kBlocksAcross;
constexpr int kExtraRows = 5;
constexpr QSizeF kSheet(kBlocksAcross* kBlockWidth + kGap,
                        kBlocksDown* kBlockHeight + kTitle + kExtraRows * (kCell.height() + kGap) + kGap);

constexpr std::int32_t kBack = 0xB06A32;    // blue
constexpr std::int32_t kSecond = 0x2A1408;  // deep blue
constexpr std::int32_t kFore = 0xFFFFFF;

// A ticket on white, as a skin maker would paint a custom outline.
QImage ticket() {
  QImage image(120, 48, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  QPainterPath path;
  path.addRoundedRect(QRectF(1, 1, 118, 46), 12, 12);
  QPainterPath notches;
  notches.addEllipse(QPointF(1, 24), 9, 9);
  notches.addEllipse(QPointF(119, 24), 9, 9);
  QLinearGradient gradient(0, 0, 0, 48);
  gradient.setColorAt(0, QColor(214, 92, 60));
  gradient.setColorAt(1, QColor(120, 30, 30));
  painter.fillPath(path - notches, gradient);
  return image;
}

// A note on a transparent ground.
QImage note() {
  QImage image(32, 32, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(255, 206, 84));
  painter.drawEllipse(QRectF(3, 20, 11, 9));
  painter.drawEllipse(QRectF(18, 17, 11, 9));
  painter.drawPolygon(QPolygonF() << QPointF(11, 5) << QPointF(29, 2) << QPointF(29, 22) << QPointF(26, 22)
                                  << QPointF(26, 9) << QPointF(14, 11) << QPointF(14, 25) << QPointF(11, 25));
  return image;
}

class Sheet {
public:
  explicit Sheet(double scale) : image_((kSheet * scale).toSize(), QImage::Format_RGB32) {
    image_.setDevicePixelRatio(scale);
    image_.fill(QColor(58, 62, 70));
    painter_.begin(&image_);
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(12);
    painter_.setFont(font);
  }

  QImage draw() {
    for (int style = 0; style < kButtonStyleCount; ++style) drawStyle(style);
    drawExtras(QPointF(kGap, kBlocksDown * kBlockHeight));
    painter_.end();
    return image_;
  }

private:
  void write(QRectF where, const QString& text) {
    painter_.setPen(Qt::white);
    painter_.drawText(where, Qt::AlignLeft | Qt::AlignVCenter, text);
  }

  // A button of its own for each sample, so that no sample inherits anything.
  template <class Change>
  void sample(QPointF at, const QString& caption, Change change, const ButtonState& state = {}) {
    Button button(window_, &buttons_, 0);
    button.setCaption(caption);
    button.setBackColor(kBack);
    button.setGradientColor(kSecond);
    button.setForeColor(kFore);
    button.set(Property::FontSize, 9.0f);
    change(button);
    canvas_.paintButton(painter_, button, QRectF(at, kCell), state);
  }

  void drawStyle(int style) {
    const int row = style / kBlocksAcross;
    const QPointF block(kGap + style % kBlocksAcross * kBlockWidth, row * kBlockHeight);
    write(QRectF(block, QSizeF(kBlockWidth, kTitle)), QStringLiteral("Style %1: %2, gradient modes 0 to 4")
                                                          .arg(style)
                                                          .arg(QLatin1String(buttonStyle(style).name)));
    for (int shape = 0; shape < kShapeCount; ++shape) drawShape(style, shape, block);
  }

  void drawShape(int style, int shape, QPointF block) {
    const double y = block.y() + kTitle + shape * (kCell.height() + kGap);
    write(QRectF(block.x(), y, kRowLabel, kCell.height()), QStringLiteral("Shape %1").arg(shape));
    for (int mode = 0; mode < kGradientModeCount; ++mode)
      sample(column(block.x(), mode, y), QStringLiteral("SPIN & GO"), [&](Button& button) {
        if (shape >= Button::kFirstCustomShape) button.setPicture(ticket_);
        button.setButtonShape(shape);
        button.setButtonStyle(style);
        button.setGradientMode(mode);
      });
  }

  static QPointF column(double left, int number, double y) {
    return {left + kRowLabel + number * (kCell.width() + kGap), y};
  }

  void drawExtras(QPointF at) {
    write(QRectF(at, QSizeF(kBlockWidth, kTitle)),
          QStringLiteral("Hover, pressed, disabled; picture alignments and sizes; captions"));
    constexpr int kColumns = kBlocksAcross * kGradientModeCount;
    const auto place = [&](int row, int number) {
      return column(at.x(), number, at.y() + kTitle + row * (kCell.height() + kGap));
    };
    for (int style = 0; style < kButtonStyleCount; ++style)
      drawStates(style, place(0, style), place(1, style), place(2, style));
    for (int n = 0; n < kColumns; ++n) drawPictures(n, place(3, n));
    for (int n = 0; n < kColumns; ++n) drawCaptions(n, place(4, n));
  }

  void drawStates(int style, QPointF hover, QPointF pressed, QPointF disabled) {
    const auto styled = [&](Button& button) {
      button.setButtonStyle(style);
      button.setGradientMode(2);
    };
    sample(hover, QStringLiteral("Hover"), styled, {.hover = true});
    sample(pressed, QStringLiteral("Pressed"), styled, {.hover = true, .pressed = true});
    sample(disabled, QStringLiteral("Disabled"), [&](Button& button) {
      styled(button);
      button.set(Property::Enabled, false);
    });
  }

  void drawPictures(int number, QPointF at) {
    constexpr int kAlignments = 6;
    sample(at, QStringLiteral("Note"), [&](Button& button) {
      button.setPicture(note_);
      button.set(Property::PictureAlign, std::min(number, kAlignments - 1));
      if (number >= kAlignments) button.setPictureSize(static_cast<PictureSize>(number - kAlignments + 1));
      if (number >= kAlignments) button.set(Property::PictureAlign, 0);
    });
  }

  void drawCaptions(int number, QPointF at) {
    const QString text = number < 6 ? QStringLiteral("Artist||& Title") : QStringLiteral("Latched");
    sample(at, text,
           [&](Button& button) {
             button.set(Property::CaptionStyle, number < 3 ? number : 0);
             button.set(Property::CaptionAlign, number < 6 ? (number + 2) % 3 : 2);
             button.set(Property::ShowFocusRect, number == 9);
             button.set(Property::Mode, number >= 6 ? 1 : 0);
             if (number >= 6) button.set(Property::Value, 1);
             button.setButtonStyle(number >= 6 ? (number - 6) * 2 : 0);
           },
           {.focused = true});
  }

  QImage image_;
  QPainter painter_;
  CanvasPainter canvas_;
  Switchboard board_;
  Window window_{board_, "Sheet"};
  Array<Button> buttons_{window_, "Button", 0};
  Picture ticket_ = Picture::drawn(ticket());
  Picture note_ = Picture::drawn(note());
};

}  // namespace

QImage buttonSheet(double scale) {
  return Sheet(std::clamp(scale, 1.0, 4.0)).draw();
}

}  // namespace veneerer
