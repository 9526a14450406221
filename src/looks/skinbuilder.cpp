#include "looks/skinbuilder.h"

#include "design/design.h"
#include "design/screens.h"
#include "forms/counts.h"
#include "looks/artist.h"
#include "looks/pictures.h"
#include "records/coverfile.h"
#include "records/layoutwriter.h"
#include "records/recordfiles.h"
#include "records/writefiles.h"
#include "skin/lists.h"
#include "skin/skinsaver.h"

namespace veneerer::looks {

namespace {

// The pictures of the screens that skin.ini names by the screen's own number.
struct Backdrop {
  int screen;
  const char* file;
  Icon icon;
};
constexpr Backdrop kBackdrops[] = {
    {1, "history.jpg", Icon::Clock}, {2, "top20.jpg", Icon::Podium},    {3, "search.jpg", Icon::Magnifier},
    {4, "queue.jpg", Icon::Queue},   {5, "options.jpg", Icon::Sliders}, {6, "decades.jpg", Icon::Calendar},
    {7, "playlist.jpg", Icon::Note}, {8, "playing.jpg", Icon::Play},    {9, "albums.jpg", Icon::None},
    {10, "tracks.jpg", Icon::Disc},
};

// The other screens' pictures, each with a name of its own.
struct NamedBackdrop {
  int screen;
  ImageNameSlot ImageNames::*name;
  const char* file;
  Icon icon;
  bool header;
};
constexpr NamedBackdrop kNamedBackdrops[] = {
    {11, &ImageNames::SearchResultsName, "results.jpg", Icon::Magnifier, true},
    {12, &ImageNames::JumpToLetterName, "letters.jpg", Icon::None, false},
    {13, &ImageNames::GenreName, "genres.jpg", Icon::None, true},
    {14, &ImageNames::SearchChoiceName, "choice.jpg", Icon::None, false},
    {15, &ImageNames::PlayOptionsName, "playoptions.jpg", Icon::None, false},
    {16, &ImageNames::PinScreenName, "pin.jpg", Icon::Lock, false},
    {17, &ImageNames::DecadesYearName, "years.jpg", Icon::None, false},
    {18, &ImageNames::DecadesSelectorName, "charts.jpg", Icon::None, false},
    {19, &ImageNames::DecadesMonthName, "months.jpg", Icon::None, false},
    {20, &ImageNames::PlaylistLoadName, "load.jpg", Icon::Note, false},
    {21, &ImageNames::PlaylistSaveName, "save.jpg", Icon::None, false},
    {22, &ImageNames::NoSearchName, "nosearch.jpg", Icon::None, false},
    {23, &ImageNames::RequestName, "request.jpg", Icon::None, false},
    {24, &ImageNames::LoginName, "login.jpg", Icon::None, false},
    {25, &ImageNames::MemberHomeName, "member.jpg", Icon::None, true},
    {27, &ImageNames::CollectionsName, "collections.jpg", Icon::None, false},
    {28, &ImageNames::ConfirmationName, "confirm.jpg", Icon::Check, false},
    {29, &ImageNames::FreeCreditName, "credit.jpg", Icon::None, false},
};

struct MenuPicture {
  const char* file;
  Icon icon;
};
constexpr MenuPicture kMenuPictures[] = {
    {"menu_history.png", Icon::Clock},   {"menu_search.png", Icon::Magnifier},
    {"menu_queue.png", Icon::Queue},     {"menu_top20.png", Icon::Podium},
    {"menu_options.png", Icon::Sliders}, {"menu_decades.png", Icon::Calendar},
    {"menu_playlist.png", Icon::Note},   {"menu_genres.png", Icon::Tiles},
    {"menu_albums.png", Icon::Disc},     {"menu_playing.png", Icon::Play},
    {"menu_member.png", Icon::Person},   {"menu_collections.png", Icon::Stack},
    {"menu_request.png", Icon::Plus},    {"menu_popup.png", Icon::Dots},
};
constexpr MenuPicture kTransportPictures[] = {
    {"previous.png", Icon::Previous}, {"pause.png", Icon::Pause}, {"next.png", Icon::Next}};

constexpr int kStarWidth = 160;
constexpr int kStarHeight = 32;
constexpr int kCoverSide = 300;
constexpr int kFrameSide = 160;
constexpr int kFrameCount = 8;

QSize sizeOf(const Element& element) {
  const design::Box box = design::boxOf(element);
  return {box.w, box.h};
}

QString imageFile(const char* name) {
  return QString::fromLatin1(name);
}

class Builder {
public:
  Builder(const QString& folder, const Look& look, Disk& disk)
      : look_(look),
        artist_(look),
        folder_(folder + QStringLiteral("/Skins/") + QString::fromLatin1(look.name)),
        disk_(disk),
        pictures_(folder_.path() + QStringLiteral("/images"), disk) {}

  void build() {
    compose();
    choose();
    drawFrame();
    drawScreens();
    drawPanels();
    drawButtons();
    save();
  }

private:
  void compose() {
    applyBuiltInDesign(state_);
    fillFirstLists(state_);
    fillOtherLists(state_);
    design::Composer composer(state_, look_.plan, look_.theme);
    design::composeCanvas(composer);
    composeSamples();
  }

  void composeSamples() {
    const design::Theme& theme = look_.theme;
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
    Form4& f = state_.form4;
    f.Text1[0].setText(QString::number(look_.plan.width));
    f.Text1[1].setText(QString::number(look_.plan.height));
    f.Combo1->setText(QStringLiteral("20"));
    f.Combo7->setText(QString::number(kGenres));
    f.Combo2->select(look_.choices.jumpToLetter);
    f.Combo5->select(look_.choices.genre);
    f.Combo6->select(look_.choices.navigation);
    f.Combo9->select(kAlbumView);
    f.Combo10->select(look_.choices.player);
    f.Combo11->select(look_.choices.genre == 0 ? 0 : 1);
    f.Combo12->select(kTenAlbums);
    f.Check10->setValue(1);
    for (const Family* family : state_.form2.families())
      for (Element* element : family->members())
        if (element->kind() == Kind::CheckBox) cast<CheckBox>(*element).setValue(1);
  }

  void drawFrame() {
    Form1& f = state_.form1;
    ImageTable& names = state_.names.ImageName;
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
    for (const Backdrop& b : kBackdrops)
      state_.names.ImageName[b.screen].setValue(pictures_.add(
          imageFile(b.file), artist_.screen(sizeOf(state_.form1.Picture1[b.screen]), header, b.icon)));
    state_.names.ImageName[11].setValue(state_.names.ImageName[9].value());
    for (const NamedBackdrop& b : kNamedBackdrops)
      (state_.names.*b.name)
          ->setValue(pictures_.add(imageFile(b.file), artist_.screen(sizeOf(state_.form1.Picture1[b.screen]),
                                                                     b.header ? header : 0, b.icon)));
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
    pictures_.add(QStringLiteral("ImageNotFound.jpg"), artist_.cover(kCoverSide));
    pictures_.add(QStringLiteral("star 0.png"), artist_.stars({kStarWidth, kStarHeight}));
    drawCoverFrame();
  }

  void drawCoverFrame() {
    const QString name =
        pictures_.addGif(QStringLiteral("frame.gif"), artist_.coverFrame(kFrameSide, kFrameCount), {12, 0});
    state_.names.ImageName[12].setValue(name);
    for (int i = 0; i < state_.names.AlbumFrameName.bound(); ++i)
      state_.names.AlbumFrameName[i].setValue(name);
  }

  void drawButtons() {
    Form1& f = state_.form1;
    ImageTable& menu = state_.names.ofButtons(f.lvButtons_H1);
    for (int i = 0; i < 14; ++i) {
      Button& button = f.lvButtons_H1[i];
      const QStringList caption = button.caption().split(QStringLiteral("||"));
      menu[i].setValue(pictures_.add(imageFile(kMenuPictures[i].file),
                                     artist_.menuFace(sizeOf(button), kMenuPictures[i].icon, caption)));
      // An empty first line keeps the caption clear of the icon above it.
      if (look_.menuIcons == IconPlace::Above) button.setCaption(QStringLiteral("||") + button.caption());
      if (look_.menuIcons == IconPlace::Lettered) button.setCaption(QString());
    }
    ImageTable& transport = state_.names.ofButtons(f.lvButtons_H2);
    for (int i = 0; i < 3; ++i) {
      transport[i].setValue(
          pictures_.add(imageFile(kTransportPictures[i].file),
                        artist_.iconFace(sizeOf(f.lvButtons_H2[i]), kTransportPictures[i].icon)));
      f.lvButtons_H2[i].setCaption(QString());
    }
    drawPrize();
  }

  // The outline of this button is its picture's.
  void drawPrize() {
    Button& button = state_.form1.lvButtons_H57[5];
    const QString name = pictures_.add(QStringLiteral("prize.png"), artist_.prize(sizeOf(button).width()));
    state_.names.ofButtons(state_.form1.lvButtons_H57)[5].setValue(name);
    button.setPicture(state_.pictures.load(folder_.resolve(name)));
    button.setButtonShape(Button::kFirstCustomShape);
  }

  void save() {
    for (const NamedCovers& covers : look_.covers) saveCovers(covers);
    saveRecords(state_, disk_, folder_);
    // Where case counts, this screen is read under another name than it is written.
    const Layout choice = searchChoiceFile(state_);
    write(choice.fileName(), composeRecords(choice));
  }

  void saveCovers(const NamedCovers& covers) {
    design::Composer composer(state_, look_.plan, look_.theme);
    design::composeCovers(composer, design::coverArea(composer), covers.layout);
    state_.globals.LastCoverIndex->setValue(covers.layout.count - 1);
    Form4& f = state_.form4;
    f.Check3->setValue(covers.seeThrough ? 1 : 0);
    f.Check5->setValue(covers.frames ? 1 : 0);
    f.Check6->setValue(covers.layout.dates ? 1 : 0);
    f.Check7->setValue(covers.layout.featured ? 1 : 0);
    f.Check11->setValue(covers.layout.overlapping ? 1 : 0);
    const QString name = imageFile(covers.file);
    write(name, composeRecords(coverFile(state_, name, covers.layout.count - 1)));
  }

  void write(const QString& name, const QByteArray& bytes) {
    writeFiles(disk_, folder_.path(), {{name, bytes}});
  }

  int headerHeight() {
    const design::Composer composer(state_, look_.plan, look_.theme);
    return design::partsOf(composer, state_.form1.Picture1[1]).header.bottom() + composer.px(1);
  }

  static constexpr int kAlbumView = 8;  // row of the default home screens
  static constexpr int kTenAlbums = 9;  // row of the other albums; any above it would hide them

  const Look& look_;
  Artist artist_;
  SkinFolder folder_;
  Disk& disk_;
  Pictures pictures_;
  State state_;
};

}  // namespace

void buildSkin(const QString& folder, const Look& look, Disk& disk) {
  Builder(folder, look, disk).build();
}

void buildProgramImages(const QString& folder, const Look& look, Disk& disk) {
  const Pictures pictures(folder + QStringLiteral("/images"), disk);
  pictures.add(QStringLiteral("star 0.png"), Artist(look).stars({kStarWidth, kStarHeight}));
}

}  // namespace veneerer::looks
