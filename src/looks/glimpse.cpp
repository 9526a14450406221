#include "looks/glimpse.h"

#include <QPainter>
#include <algorithm>

#include "canvas/screens.h"
#include "design/design.h"
#include "design/screens.h"
#include "forms/counts.h"
#include "looks/artist.h"
#include "looks/backdrops.h"
#include "looks/faces.h"
#include "looks/plans.h"
#include "looks/styles.h"
#include "painting/canvaspainter.h"
#include "panels/skinproperties.h"
#include "skin/lists.h"

namespace veneerer::looks {

namespace {

// From this size on the rules of the plans give the same for the same proportions, pixels.
constexpr double kWidth = 720;
constexpr double kHeight = 540;

QSize reduced(QSize size) {
  const double factor = std::min(1.0, std::max(kWidth / size.width(), kHeight / size.height()));
  return (QSizeF(size) * factor).toSize();
}

class Glimpser {
public:
  Glimpser(const Wish& wish, QSize within)
      : look_(*wish.look),
        plan_(planOf(*wish.look, reduced(wish.size), wish.font)),
        scheme_(schemeOf(*wish.look, wish.colours)),
        artist_(*wish.look, plan_, scheme_),
        layout_(wish.look->covers.begin()->layout),
        within_(within) {}

  Glimpse taken(std::span<const int> entries) {
    compose();
    drawFrame();
    Glimpse glimpse{{}, scheme_.notes};
    for (const int entry : entries) glimpse.screens << picture(entry);
    return glimpse;
  }

private:
  void compose() {
    applyBuiltInDesign(state_);
    fillFirstLists(state_);
    fillOtherLists(state_);
    const SkinProperties choices(state_, Screen());
    chooseStyles(state_.form4, look_, plan_);
    design::Composer composer(state_, plan_, scheme_.theme);
    design::composeCanvas(composer);
    design::composeCovers(composer, design::coverArea(composer), layout_);
    Form1& f = state_.form1;
    header_ = design::partsOf(composer, f.Picture1[1]).header.bottom() + 1;
    for (int i = 0; i < kCovers; ++i)
      for (Element* part : {static_cast<Element*>(&f.Image2[i]), static_cast<Element*>(&f.ucAniGIF1[i]),
                            static_cast<Element*>(&f.Label9[i]), static_cast<Element*>(&f.Label10[i])})
        part->setVisible(i < layout_.count);
  }

  void drawFrame() {
    Form1& f = state_.form1;
    show(f, artist_.backdrop());
    show(f.Picture2[12], artist_.stage(sizeOf(f.Picture2[12])));
    show(f.Picture2[2], artist_.logo(sizeOf(f.Picture2[2])));
    for (int i : {0, 1}) show(f.Picture2[i], artist_.bar(sizeOf(f.Picture2[i])));
    show(*f.Picture6, artist_.track(sizeOf(*f.Picture6)));
    show(*f.Picture18, artist_.track(sizeOf(*f.Picture18)));
    show(*f.Picture28, artist_.card(sizeOf(*f.Picture28), Icon::Note));
    for (int i = 0; i < 14; ++i) showFace(f.lvButtons_H1[i], drawMenuFace(artist_, f.lvButtons_H1[i], i));
    for (int i = 0; i < 3; ++i) showFace(f.lvButtons_H2[i], drawTransportFace(artist_, f.lvButtons_H2[i], i));
    const Picture cover = Picture::drawn(artist_.cover(sizeOf(f.Image2[0]).width()));
    QImage still = artist_.coverFrame(sizeOf(f.ucAniGIF1[0]).width(), 1).front();
    still.setColor(0, 0);  // what lets the cover show
    const Picture frame = Picture::drawn(still);
    for (int i = 0; i < layout_.count; ++i) {
      f.Image2[i].setPicture(cover);
      f.ucAniGIF1[i].setPicture(frame);
    }
  }

  static void showFace(Button& button, const QImage& face) {
    show(button, face);
    button.setCaption(QString());
  }

  template <class E>
  static void show(E& element, const QImage& image) {
    element.setPicture(Picture::drawn(image));
  }

  QImage picture(int entry) {
    if (hasBackdrop(entry)) {
      PictureBox& screen = state_.form1.Picture1[entry];
      show(screen, drawBackdrop(artist_, state_, entry, header_));
    }
    const QSize size = QSize(plan_.width, plan_.height).scaled(within_, Qt::KeepAspectRatio);
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    CanvasPainter canvas;
    canvas.setStage(stageOf(state_, entry));
    // Pictures are drawn in their own size, so it is the painter that makes all of it smaller.
    constexpr double kScale = 1.0 / design::kTwipsPerPixel;
    const double factor = static_cast<double>(size.width()) / plan_.width;
    painter.scale(factor, factor);
    canvas.paint(painter, state_.form1, QRect(0, 0, plan_.width, plan_.height), kScale, kScale);
    return image;
  }

  const Look& look_;
  design::Plan plan_;
  Scheme scheme_;
  Artist artist_;
  design::CoverLayout layout_;
  QSize within_;
  int header_ = 0;
  State state_;
};

}  // namespace

Glimpse glimpseOf(const Wish& wish, std::span<const int> entries, QSize within) {
  return Glimpser(wish, within).taken(entries);
}

}  // namespace veneerer::looks
