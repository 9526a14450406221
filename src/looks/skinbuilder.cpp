#include "looks/skinbuilder.h"

#include <QHash>
#include <algorithm>
#include <cmath>
#include <iterator>

#include "design/design.h"
#include "design/screens.h"
#include "files/newfolder.h"
#include "forms/counts.h"
#include "images/pictureencoding.h"
#include "looks/artist.h"
#include "looks/backdrops.h"
#include "looks/faces.h"
#include "looks/looks.h"
#include "looks/palette.h"
#include "looks/pictures.h"
#include "looks/plans.h"
#include "looks/styles.h"
#include "looks/texts.h"
#include "painting/buttonlayout.h"
#include "painting/pixels.h"
#include "painting/textlayouts.h"
#include "records/coverfile.h"
#include "records/layoutwriter.h"
#include "records/recordfiles.h"
#include "skin/lists.h"
#include "skin/skinsaver.h"

namespace veneerer::looks {

namespace {

// The pictures of the screens that skin.ini names by the screen's own number.
struct Backdrop {
  int screen;
  const char* file;
};
constexpr Backdrop kBackdrops[] = {
    {1, "history.jpg"}, {2, "top20.jpg"},    {3, "search.jpg"},  {4, "queue.jpg"},  {5, "options.jpg"},
    {6, "decades.jpg"}, {7, "playlist.jpg"}, {8, "playing.jpg"}, {9, "albums.jpg"}, {10, "tracks.jpg"},
};

// The other screens' pictures, each with a name of its own.
struct NamedBackdrop {
  int screen;
  ImageNameSlot ImageNames::*name;
  const char* file;
};
constexpr NamedBackdrop kNamedBackdrops[] = {
    {11, &ImageNames::SearchResultsName, "results.jpg"},
    {12, &ImageNames::JumpToLetterName, "letters.jpg"},
    {13, &ImageNames::GenreName, "genres.jpg"},
    {14, &ImageNames::SearchChoiceName, "choice.jpg"},
    {15, &ImageNames::PlayOptionsName, "playoptions.jpg"},
    {16, &ImageNames::PinScreenName, "pin.jpg"},
    {17, &ImageNames::DecadesYearName, "years.jpg"},
    {18, &ImageNames::DecadesSelectorName, "charts.jpg"},
    {19, &ImageNames::DecadesMonthName, "months.jpg"},
    {20, &ImageNames::PlaylistLoadName, "load.jpg"},
    {21, &ImageNames::PlaylistSaveName, "save.jpg"},
    {22, &ImageNames::NoSearchName, "nosearch.jpg"},
    {23, &ImageNames::RequestName, "request.jpg"},
    {24, &ImageNames::LoginName, "login.jpg"},
    {25, &ImageNames::MemberHomeName, "member.jpg"},
    {27, &ImageNames::CollectionsName, "collections.jpg"},
    {28, &ImageNames::ConfirmationName, "confirm.jpg"},
    {29, &ImageNames::FreeCreditName, "credit.jpg"},
};

constexpr const char* kMenuPictures[] = {
    "menu_history.png", "menu_search.png",      "menu_queue.png",   "menu_top20.png",  "menu_options.png",
    "menu_decades.png", "menu_playlist.png",    "menu_genres.png",  "menu_albums.png", "menu_playing.png",
    "menu_member.png",  "menu_collections.png", "menu_request.png", "menu_popup.png"};
constexpr const char* kTransportPictures[] = {"previous.png", "pause.png", "next.png"};

constexpr int kStarWidth = 160;
constexpr int kStarHeight = 32;
constexpr int kLargestFrame = 420;
constexpr int kFrameCount = 8;

QString imageFile(const char* name) {
  return QString::fromLatin1(name);
}

class Builder {
public:
  explicit Builder(const Wish& wish, const GoOn& goOn)
      : look_(*wish.look),
        plan_(planOf(look_, wish.size, wish.font)),
        scheme_(schemeOf(look_, wish.colours)),
        artist_(look_, plan_, scheme_),
        goOn_(goOn) {}

  MadeSkin build() {
    compose();
    choose();
    drawFrame();
    drawScreens();
    drawPanels();
    drawButtons();
    saveCovers();
    std::vector<NewFile> files = composedRecords(state_);
    addOtherCase(files);
    std::ranges::move(pictures_.files, std::back_inserter(files));
    std::ranges::move(covers_, std::back_inserter(files));
    return {std::move(files), scheme_.notes};
  }

private:
  // Where case counts, this screen is read under another name than it is written.
  void addOtherCase(std::vector<NewFile>& files) {
    const Layout choice = searchChoiceFile(state_);
    files.push_back({choice.fileName(), composeRecords(choice)});
  }

  void compose() {
    applyBuiltInDesign(state_);
    fillFirstLists(state_);
    fillOtherLists(state_);
    design::Composer composer(state_, plan_, scheme_.theme);
    design::composeCanvas(composer);
    composeSamples();
  }

  void composeSamples() {
    const design::Theme& theme = scheme_.theme;
    Form6& tools = state_.form6;
    tools.Label5->setBackColor(theme.screen.back);
    tools.Label5->setForeColor(theme.screen.body);
    tools.Picture1->setBackColor(theme.wideKey.back);
    const design::ButtonLook* looks[] = {&theme.plain, &theme.primary};
    for (int i = 0; i < 2; ++i) {
      Button& sample = tools.lvButtons_H5[i];
      sample.setButtonShape(looks[i]->shape);
      sample.setButtonStyle(looks[i]->style);
      sample.setBackColor(looks[i]->back);
      sample.setForeColor(looks[i]->fore);
      sample.setGradientColor(looks[i]->gradient);
      sample.setGradientMode(looks[i]->mode);
    }
  }

  void choose() {
    chooseStyles(state_.form4, look_, plan_);
    for (const Family* family : state_.form2.families())
      for (Element* element : family->members())
        if (element->kind() == Kind::CheckBox) cast<CheckBox>(*element).setValue(1);
  }

  void drawFrame() {
    Form1& f = state_.form1;
    ImageTable& names = state_.names.ImageName;
    step(QStringLiteral("backdrop.jpg"));
    names[0].setValue(pictures_.add(QStringLiteral("backdrop.jpg"), artist_.backdrop()));
    names[13].setValue(pictures_.add(QStringLiteral("Player.bmp"), artist_.bar(sizeOf(f.Picture2[1]))));
    names[14].setValue(pictures_.add(QStringLiteral("logo.jpg"), artist_.logo(sizeOf(f.Picture2[2]))));
    pictures_.add(QStringLiteral("Menu.bmp"), artist_.bar(sizeOf(f.Picture2[0])));
    pictures_.add(QStringLiteral("Menupopup.bmp"), artist_.popup(sizeOf(*f.Picture23)));
    pictures_.add(QStringLiteral("slider_back.bmp"), artist_.track(sizeOf(*f.Picture6)));
    pictures_.add(QStringLiteral("progress_slider_back.bmp"), artist_.track(sizeOf(*f.Picture18)));
    state_.names.MainPanelName->setValue(
        pictures_.add(QStringLiteral("stage.jpg"), artist_.stage(sizeOf(f.Picture2[12]))));
  }

  void drawScreens() {
    const int header = headerHeight();
    for (const Backdrop& b : kBackdrops) {
      step(imageFile(b.file));
      state_.names.ImageName[b.screen].setValue(
          pictures_.add(imageFile(b.file), drawBackdrop(artist_, state_, b.screen, header)));
    }
    state_.names.ImageName[11].setValue(state_.names.ImageName[9].value());
    for (const NamedBackdrop& b : kNamedBackdrops) {
      step(imageFile(b.file));
      QImage screen = drawBackdrop(artist_, state_, b.screen, header);
      if (b.screen == kMemberHome) artist_.backWhiteText(screen, design::boxOf(*state_.form1.Label57));
      (state_.names.*b.name)->setValue(pictures_.add(imageFile(b.file), screen));
    }
  }

  void drawPanels() {
    Form1& f = state_.form1;
    pictures_.add(QStringLiteral("top10.gif"),
                  artist_.banner(sizeOf(f.Picture2[8]), QStringLiteral("TOP 20")));
    pictures_.add(QStringLiteral("genre.gif"),
                  artist_.banner(sizeOf(f.Picture2[9]), QStringLiteral("GENRES")));
    pictures_.add(QStringLiteral("now playing.gif"),
                  artist_.banner(sizeOf(f.Picture3[3]), QStringLiteral("NOW PLAYING")));
    pictures_.add(QStringLiteral("tracklist.gif"), artist_.cover(sizeOf(f.Picture2[10]).width()));
    pictures_.add(QStringLiteral("alternate_track.bmp"), artist_.card(sizeOf(*f.Picture28), Icon::Note));
    pictures_.add(QStringLiteral("online_search.bmp"), artist_.card(sizeOf(*f.Picture29), Icon::Magnifier));
    state_.names.NowPlayingPanelName->setValue(
        pictures_.add(QStringLiteral("playing_panel.jpg"), artist_.card(sizeOf(*f.Picture17), Icon::None)));
    state_.names.FeedPanelName->setValue(
        pictures_.add(QStringLiteral("feed.jpg"), artist_.card(sizeOf(f.Picture2[15]), Icon::None)));
    pictures_.add(QStringLiteral("ImageNotFound.jpg"), artist_.cover(coverSide()));
    pictures_.add(QStringLiteral("star 0.png"), artist_.stars(starSize()));
    drawCoverFrame();
  }

  // The stars of a track and those of the song that plays are one picture.
  QSize starSize() {
    const QSize small = sizeOf(state_.form1.aicAlphaImage1[0]);
    const QSize large = sizeOf(state_.form1.aicAlphaImage1[20]);
    return {static_cast<int>(std::sqrt(small.width() * large.width())),
            static_cast<int>(std::sqrt(small.height() * large.height()))};
  }

  void drawCoverFrame() {
    const QString name =
        pictures_.addGif(QStringLiteral("frame.gif"),
                         artist_.coverFrame(std::min(coverSide(), kLargestFrame), kFrameCount), {12, 0});
    state_.names.ImageName[12].setValue(name);
    for (int i = 0; i < state_.names.AlbumFrameName.bound(); ++i)
      state_.names.AlbumFrameName[i].setValue(name);
  }

  void drawButtons() {
    Form1& f = state_.form1;
    step(QStringLiteral("menu_history.png"));
    for (int i = 0; i < 14; ++i) {
      Button& button = f.lvButtons_H1[i];
      name(button, pictures_.add(imageFile(kMenuPictures[i]), drawMenuFace(artist_, button, i)));
    }
    for (int i = 0; i < 3; ++i) {
      Button& button = f.lvButtons_H2[i];
      name(button, pictures_.add(imageFile(kTransportPictures[i]), drawTransportFace(artist_, button, i)));
    }
    drawPrize();
    letterCaptions();
  }

  // What the picture says takes the place of the caption.
  void name(Button& button, const QString& picture) {
    state_.names.of(button)->setValue(picture);
    button.setCaption(QString());
  }

  // A button's letters have one size in all Skins. Where that is too large for it, or too small for the
  // screen, they become a picture.
  void letterCaptions() {
    TextLayouts texts;
    for (Family* family : state_.form1.families())
      for (Element* element : family->members())
        if (element->kind() == Kind::Button && isRecorded(*element)) letter(cast<Button>(*element), texts);
  }

  bool isRecorded(const Element& element) const {
    const Form1& f = state_.form1;
    const Family* family = element.family();
    if (family == &f.lvButtons_H20 || family == &f.lvButtons_H55 || family == &f.lvButtons_H57)
      return family == &f.lvButtons_H57 && element.index() < 5;
    if (family == &f.lvButtons_H42) return element.index() < 3;
    return family != &f.lvButtons_H49 || element.index() < 7;
  }

  void letter(Button& button, TextLayouts& texts) {
    constexpr double kTooSmall = 1.3;
    if (button.caption().isEmpty()) return;
    const bool isFitting = fits(button, texts);
    if (isFitting && plan_.textScale < kTooSmall) return;
    step(QStringLiteral("lettering"));
    const double points = static_cast<double>(button.as<float>(Property::FontSize));
    const QString lettered = QStringLiteral("%1 %2 %3 %4 %5")
                                 .arg(sizeOf(button).width())
                                 .arg(sizeOf(button).height())
                                 .arg(button.foreColor().number())
                                 .arg(points)
                                 .arg(button.caption());
    auto known = letterings_.constFind(lettered);
    if (known == letterings_.constEnd()) known = letterings_.insert(lettered, draw(button, points));
    name(button, *known);
  }

  QString draw(const Button& button, double points) {
    const QString file =
        QStringLiteral("caption %1.png").arg(letterings_.size() + 1, 3, 10, QLatin1Char('0'));
    return pictures_.add(
        file, artist_.captionFace(sizeOf(button), linesOf(button), points, button.foreColor().toQColor()));
  }

  bool fits(const Button& button, TextLayouts& texts) const {
    constexpr double kPixels = 1.0 / design::kTwipsPerPixel;
    const QRectF face(0, 0, button.width() * kPixels, button.height() * kPixels);
    const QRectF room = contentsRect(button, face);
    const LaidOutText& text =
        texts.of({drawnCaption(button.caption()), button.as<QString>(Property::FontName),
                  fontPixels(button.as<float>(Property::FontSize), kPixels), fontFlags(button), kAnyWidth,
                  kAnyWidth, 0});
    return text.width <= room.width() && text.height <= room.height();
  }

  // The outline of this button is its picture's.
  void drawPrize() {
    Button& button = state_.form1.lvButtons_H57[5];
    const QImage prize = artist_.prize(sizeOf(button).width());
    state_.names.of(button)->setValue(pictures_.add(QStringLiteral("prize.png"), prize));
    button.setForeColor(Colour::of(artist_.prizeInk()));
    button.setPicture(Picture::drawn(prize));
    button.setButtonShape(Button::kFirstCustomShape);
  }

  void saveCovers() {
    for (const NamedCovers& covers : look_.covers) addCovers(covers);
  }

  void addCovers(const NamedCovers& covers) {
    placeCovers(covers.layout);
    state_.globals.LastCoverIndex->setValue(covers.layout.count - 1);
    Form4& f = state_.form4;
    f.Check3->setValue(covers.seeThrough ? 1 : 0);
    f.Check5->setValue(covers.frames ? 1 : 0);
    f.Check6->setValue(covers.layout.dates ? 1 : 0);
    f.Check11->setValue(covers.layout.overlapping ? 1 : 0);
    const QString file =
        QStringLiteral("%1 %2.cov")
            .arg(covers.layout.count)
            .arg(covers.layout.overlapping ? QStringLiteral("Coverflow") : QStringLiteral("Covers"));
    covers_.push_back({file, composeRecords(coverFile(state_, file, covers.layout.count - 1))});
  }

  void placeCovers(const design::CoverLayout& layout) {
    design::Composer composer(state_, plan_, scheme_.theme);
    design::composeCovers(composer, design::coverArea(composer), layout);
  }

  // Shown in all of the layouts, so between the sizes that it has in them.
  int coverSide() {
    double least = kMostPixels, most = 1;
    for (const NamedCovers& covers : look_.covers) {
      placeCovers(covers.layout);
      for (int i = 0; i < covers.layout.count; ++i) {
        const double side = sizeOf(state_.form1.Image2[i]).width();
        least = std::min(least, side);
        most = std::max(most, side);
      }
    }
    return static_cast<int>(std::lround(std::sqrt(least * most)));
  }

  int headerHeight() {
    const design::Composer composer(state_, plan_, scheme_.theme);
    return design::partsOf(composer, state_.form1.Picture1[1]).header.bottom() + composer.px(1);
  }

  void step(const QString& file) { tellStep(goOn_, std::min(done_++, kStepsInAll), kStepsInAll, file); }

  static constexpr int kMemberHome = 25;
  static constexpr int kAnyWidth = 4096;
  static constexpr int kStepsInAll = 40;

  const Look& look_;
  design::Plan plan_;
  Scheme scheme_;
  Artist artist_;
  const GoOn& goOn_;
  Pictures pictures_;
  State state_;
  std::vector<NewFile> covers_;
  QHash<QString, QString> letterings_;  ///< the pictures by all that they depend on
  int done_ = 0;
};

}  // namespace

Wish defaultsOf(const Look& look) {
  return {&look, look.size, look.colours, QString::fromLatin1(look.font)};
}

MadeSkin drawSkin(const Wish& wish, const GoOn& goOn) {
  return Builder(wish, goOn).build();
}

QStringList makeSkin(Disk& disk, const QString& to, const Wish& wish, const GoOn& goOn) {
  const MadeSkin made = drawSkin(wish, goOn);
  try {
    NewFolder folder(disk, to);
    for (const NewFile& file : made.files) folder.create(file.name, file.bytes);
    folder.putInPlace();
  } catch (const ReplaceError& error) {
    throw ExchangeError(LookTexts::tr("%1: no Skin is made: %2").arg(to, QString::fromUtf8(error.what())));
  }
  return made.notes;
}

QByteArray programStars() {
  const Look& look = kBlackAndBlue;
  const design::Plan plan = planOf(look, look.size, QString::fromLatin1(look.font));
  const Scheme scheme = schemeOf(look, look.colours);
  return encodePicture(Artist(look, plan, scheme).stars({kStarWidth, kStarHeight}), "png");
}

}  // namespace veneerer::looks
