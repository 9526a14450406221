#include "looks/palette.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "looks/texts.h"
#include "painting/buttonface.h"

namespace veneerer::looks {

namespace {

// A little above what is asked for: pictures lose some of it when they are packed.
constexpr double kSafe = 4.7;
// Of a ground to the side that its texts stand on.
constexpr double kGroundContrast = 5.2;
constexpr int kSteps = 64;

QColor mix(const QColor& a, const QColor& b, double share) {
  const auto part = [share](int x, int y) { return static_cast<int>(std::lround(x + (y - x) * share)); };
  return QColor(part(a.red(), b.red()), part(a.green(), b.green()), part(a.blue(), b.blue()));
}

double worst(const QColor& ink, std::span<const QColor> grounds) {
  double least = 21;
  for (const QColor& ground : grounds) least = std::min(least, contrastOf(ink, ground));
  return least;
}

/// The nearest colour on the way to the other side on which that pole has the contrast.
QColor setOff(const QColor& ground, const QColor& pole, const QColor& away, double least) {
  for (int i = 0; i < kSteps; ++i) {
    const QColor moved = mix(ground, away, static_cast<double>(i) / kSteps);
    if (contrastOf(pole, moved) >= least) return moved;
  }
  return away;
}

/// The side, white or black, that the texts on a ground are on.
struct Side {
  QColor pole;
  QColor away;

  bool isLight() const { return pole == Qt::white; }
};

Side sideOf(const QColor& ground) {
  const bool isLight = contrastOf(Qt::white, ground) >= contrastOf(Qt::black, ground);
  return isLight ? Side{Qt::white, Qt::black} : Side{Qt::black, Qt::white};
}

/// The texts' own side where they can stand on the ground.
Side sideOf(const QColor& ground, const QColor& text) {
  if (contrastOf(text, ground) < kLeastContrast) return sideOf(ground);
  const bool isLight = luminanceOf(text.rgb()) > luminanceOf(ground.rgb());
  return isLight ? Side{Qt::white, Qt::black} : Side{Qt::black, Qt::white};
}

/// A ground that is drawn: both ends of its gradient and the pattern on it.
struct Surface {
  Side side;
  QColor top, end, motif;

  std::vector<QColor> grounds() const {
    return {top, end, mix(top, motif, kMotifShare), mix(end, motif, kMotifShare)};
  }
};

Surface surfaceOf(const QColor& top, const QColor& end, const QColor& pattern, const Side& side) {
  Surface made{side, setOff(top, side.pole, side.away, kGroundContrast),
               setOff(end, side.pole, side.away, kGroundContrast), pattern};
  // A pattern that would come too near to the texts lies on the other side instead.
  if (worst(side.pole, made.grounds()) < kGroundContrast) made.motif = side.away;
  return made;
}

/// The inks of a ground: as light as the pole, as the text, quieter, and coloured.
design::Ground inksOn(const QColor& back, std::span<const QColor> grounds, const Side& side,
                      const QColor& text, const QColor& accent) {
  const auto ink = [&](const QColor& wished) { return Colour::of(legible(wished, grounds, kSafe)); };
  return {Colour::of(back), ink(mix(text, side.pole, 0.6)), ink(text), ink(mix(text, back, 0.26)),
          ink(accent)};
}

design::Ground inksOn(const Surface& surface, const QColor& text, const QColor& accent) {
  const std::vector<QColor> grounds = surface.grounds();
  return inksOn(surface.top, grounds, surface.side, text, accent);
}

QString hex(const QColor& colour) {
  return colour.name().toUpper();
}

/// A strong colour from the other side of the circle; that of a grey is a grey.
QColor across(const QColor& accent) {
  const int hue = accent.hsvHue() < 0 ? 0 : (accent.hsvHue() + 192) % 360;
  return QColor::fromHsv(hue, std::min(accent.hsvSaturation(), 225), 186);
}

class Mixer {
public:
  Mixer(const Look& look, const Colours& given) : look_(look), given_(given) {}

  Scheme mixed() {
    mixGround();
    mixBars();
    mixPlates();
    mixButtons();
    mixPictures();
    return std::move(scheme_);
  }

private:
  void mixGround() {
    side_ = sideOf(given_.ground, given_.text);
    const QColor ground = setOff(given_.ground, side_.pole, side_.away, kGroundContrast);
    if (ground != given_.ground)
      tellMoved(LookTexts::tr("The ground colour %1 becomes %2: no text could be read on it."), given_.ground,
                ground);
    const double depth = look_.motif == Motif::Plain ? 0 : side_.isLight() ? 0.28 : 0.35;
    screen_ = surfaceOf(ground, mix(ground, side_.away, depth), given_.accent, side_);
    const std::vector<QColor> grounds = screen_.grounds();
    text_ = legible(given_.text, grounds, kSafe);
    if (text_ != given_.text)
      tellMoved(LookTexts::tr("The text colour %1 becomes %2: it could not be read on the ground."),
                given_.text, text_);
    scheme_.theme.screen = inksOn(screen_, text_, given_.accent);
  }

  void tellMoved(const QString& note, const QColor& from, const QColor& to) {
    scheme_.notes << note.arg(hex(from), hex(to));
  }

  /// The colour of a thing of that tone before it is fitted to its letters.
  QColor toned(Tone tone) const {
    const QColor& ground = screen_.top;
    switch (tone) {
      case Tone::Ground:
        return mix(mix(ground, side_.away, 0.3), given_.accent, 0.06);
      case Tone::Raised:
        return side_.isLight() ? mix(mix(ground, side_.pole, 0.1), given_.accent, 0.14)
                               : mix(mix(ground, side_.away, 0.75), given_.accent, 0.03);
      case Tone::Accent:
        return given_.accent;
      case Tone::Second:
        return across(given_.accent);
      case Tone::Paper:
        return text_;
    }
    return ground;
  }

  /// A strong colour is rather deepened than lettered otherwise than all the rest.
  Side sideOfTone(Tone tone, const QColor& colour) const {
    constexpr double kNear = 2.6;
    const bool isOfGround = tone == Tone::Ground || tone == Tone::Raised;
    const bool isStrong = tone == Tone::Accent || tone == Tone::Second;
    if (isOfGround) return side_;
    if (isStrong && contrastOf(Qt::white, colour) >= kNear) return {Qt::white, Qt::black};
    return sideOf(colour);
  }

  void mixBars() {
    const QColor bar = toned(look_.bars);
    const Side side = sideOfTone(look_.bars, bar);
    const double depth = look_.motif == Motif::Plain ? 0 : 0.22;
    bar_ = surfaceOf(bar, mix(bar, side.away, depth), given_.accent, side);
    const QColor text = look_.bars == Tone::Accent ? mix(text_, side.pole, 0.85) : text_;
    scheme_.theme.bar = scheme_.theme.header = inksOn(bar_, text, given_.accent);
  }

  /// The ground of rows, fields and cards.
  design::Ground plate(const QColor& back, const Side& side, const QColor& text) const {
    const QColor made = setOff(back, side.pole, side.away, kGroundContrast);
    return inksOn(made, std::span(&made, 1), side, text, given_.accent);
  }

  void mixPlates() {
    design::Theme& theme = scheme_.theme;
    theme.row = plate(toned(Tone::Raised), side_, text_);
    const QColor field =
        look_.fields == Tone::Raised ? mix(toned(Tone::Raised), side_.pole, 0.07) : toned(look_.fields);
    const Side ofField = look_.fields == Tone::Paper ? sideOf(field) : side_;
    const QColor ink = look_.fields == Tone::Paper ? screen_.end : text_;
    theme.field = plate(field, ofField, ink);
    const QColor card = mix(toned(Tone::Raised), given_.accent, 0.05);
    card_ = surfaceOf(card, mix(card, side_.away, 0.25), given_.accent, side_);
    theme.card = inksOn(card_, text_, given_.accent);
    theme.track = Colour::of(mix(toned(Tone::Ground), side_.pole, 0.18));
  }

  void mixButtons() {
    const ButtonForms& forms = look_.buttons;
    design::Theme& theme = scheme_.theme;
    theme.menu = button(forms.menu);
    theme.transport = button(forms.transport);
    theme.plain = button(forms.plain);
    theme.primary = button(forms.primary);
    theme.tab = button(forms.tab);
    theme.key = button(forms.key);
    theme.wideKey = button(forms.wideKey);
  }

  design::ButtonLook button(const ButtonForm& form) const;

  void mixPictures() {
    const QColor accent = given_.accent;
    scheme_.palette = {.backdrop = screen_.top,
                       .backdropEnd = screen_.end,
                       .header = bar_.top,
                       .bar = bar_.top,
                       .barEnd = bar_.end,
                       .card = card_.top,
                       .cardEnd = card_.end,
                       .accent = accent,
                       .accentEnd = mix(accent, Qt::black, 0.4),
                       .motif = screen_.motif,
                       .barMotif = bar_.motif,
                       .line = mix(screen_.top, accent, look_.lines / 100.0),
                       .icon = iconInk()};
  }

  QColor iconInk() const {
    const design::ButtonLook& menu = scheme_.theme.menu;
    const QColor faces[] = {menu.back.toQColor(), menu.gradient.toQColor()};
    return legible(mix(given_.accent, menu.fore.toQColor(), 0.45), faces);
  }

  const Look& look_;
  Colours given_;
  Side side_;
  Surface screen_, bar_, card_;
  QColor text_;
  Scheme scheme_;
};

/// What the letters of a button stand on: its face without the edges, in strips from the top down.
std::vector<QColor> facesOf(const design::ButtonLook& look) {
  constexpr QSize kFace(64, 40);
  constexpr int kStrips = 4;
  const QImage face = drawFace({.size = kFace,
                                .shape = look.shape,
                                .style = look.style,
                                .gradient = look.mode,
                                .back = look.back.toQColor().rgb(),
                                .second = look.gradient.toQColor().rgb()},
                               {}, {})
                          .convertToFormat(QImage::Format_RGB32);
  std::vector<QColor> strips;
  for (int i = 0; i < kStrips; ++i)
    for (const int x : {22, 32, 42})
      strips.emplace_back(face.pixel(x, kFace.height() * (2 * i + 3) / (2 * kStrips + 4)));
  return strips;
}

// The face as it is painted has the say: its style lightens and darkens it.
design::ButtonLook Mixer::button(const ButtonForm& form) const {
  const QColor wished = toned(form.tone);
  const Side side = sideOfTone(form.tone, wished);
  const QColor fore =
      form.tone == Tone::Paper ? mix(screen_.end, side.pole, 0.3) : mix(text_, side.pole, 0.8);
  design::ButtonLook look{form.shape, form.style, {}, {}, {}, form.mode};
  for (int i = 0; i <= kSteps; ++i) {
    const QColor back = mix(wished, side.away, static_cast<double>(i) / kSteps);
    look.back = Colour::of(back);
    look.gradient = Colour::of(mix(back, Qt::black, form.depth / 100.0));
    const std::vector<QColor> faces = facesOf(look);
    const QColor ink = legible(fore, faces, kSafe);
    look.fore = Colour::of(ink);
    if (worst(ink, faces) >= kSafe) break;
  }
  return look;
}

}  // namespace

double contrastOf(const QColor& one, const QColor& other) {
  return veneerer::contrastOf(luminanceOf(one.rgb()), luminanceOf(other.rgb()));
}

QColor legible(const QColor& ink, std::span<const QColor> grounds, double least) {
  for (int i = 0; i <= kSteps; ++i)
    for (const QColor& pole : {QColor(Qt::white), QColor(Qt::black)})
      if (const QColor moved = mix(ink, pole, static_cast<double>(i) / kSteps);
          worst(moved, grounds) >= least)
        return moved;
  return worst(Qt::white, grounds) >= worst(Qt::black, grounds) ? Qt::white : Qt::black;
}

Scheme schemeOf(const Look& look, const Colours& colours) {
  return Mixer(look, colours).mixed();
}

}  // namespace veneerer::looks
