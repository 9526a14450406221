#include "design/toolwindows.h"

#include <span>

#include "design/theme.h"
#include "platform/program.h"

namespace veneerer::design {

namespace {

using Texts = std::span<const char* const>;

constexpr const char* kMiscAndPlay[] = {"Show Slider Bubble",
                                        "Show Ratings Thumbs",
                                        "Show Credits Display",
                                        "Show Now Playing",
                                        "Show Time && Date",
                                        "Add Entire Album First",
                                        "Add To Playlist",
                                        "Download Track",
                                        "Burn CD",
                                        "Add Album To Playlist",
                                        "Add Album",
                                        "Add to Queue",
                                        "Play Next",
                                        "Play It NOW"};
constexpr const char* kMenuBar[] = {
    "My V-Quill",     "Pop Up Menu",   "Player Position", "Player Buttons",
    "Volume Buttons", "Volume Slider", "Show Menu Bar",   "Show Player Controls",
    "Genres",         "Playlist",      "Decades",         "Options",
    "Queue",          "Search",        "Top 20",          "History"};
constexpr const char* kTabBoxes[] = {"SPIN on THIS", "Newly Added", "Most Played",
                                     "Karaoke Tab",  "Video Tab",   "Audio Tab"};

// Entries 9 and 10 stand the other way round than the slots above them; skin.ini is written from this order.
constexpr const char* kTextureCaptions[] = {
    "Album View",    "History Image",  "Top20 Image",    "Search Image",      "Queue Image",
    "Options Image", "Decades Image",  "Playlist Image", "Now Playing Image", "Track Listing",
    "NULL",          "Album Backdrop", "Search Choice",  "Album Frame",       "Player Image",
    "Logo Image",    "Menu Image",     "Search Results", "Jump To Letter",    "Genre Selection",
    "Play Options",  "Pin Screen",     "Decades YEAR",   "Chart Selection",   "Decades MONTH",
    "Playlist Load", "Playlist Save",  "Album Frame X",  "No Search Results", "Request Track",
    "My Login",      "My V-Quill",     "Collections",    "Confimation"};

template <class T>
void caption(Array<T>& family, Texts texts) {
  for (std::size_t i = 0; i < texts.size(); ++i)
    family[static_cast<int>(i)].setCaption(QString::fromLatin1(texts[i]));
}

// The controls of a tool window lie on the window itself.
void contain(Window& window) {
  for (Family* family : window.families())
    for (Element* element : family->members()) element->setContainer(window);
}

void sample(Label& label, const char* text) {
  label.setCaption(QString::fromLatin1(text));
  label.setBackColor(rgb(10, 14, 22));
  label.setForeColor(rgb(255, 255, 255));
}

void sample(Button& button, const char* text) {
  const ButtonLook& look = blackAndBlue().plain;
  button.setCaption(QString::fromLatin1(text));
  button.setBackColor(look.back);
  button.setForeColor(look.fore);
  button.setGradientColor(look.gradient);
  button.setGradientMode(look.mode);
}

void composeForm2(Form2& f) {
  f.setCaption(QStringLiteral("Button Settings"));
  caption(f.Check1, kMiscAndPlay);
  caption(f.Check2, kMenuBar);
  caption(f.Check3, kTabBoxes);
  f.Command1->setCaption(QStringLiteral("Save BUTTONS.INI"));
}

void composeForm4(Form4& f) {
  f.setCaption(QStringLiteral("File Controls/Settings"));
  f.Check1->setCaption(QStringLiteral("Text only list of albums"));
  f.Check2->setCaption(QStringLiteral("Keep QUEUE Shown"));
  f.Check3->setCaption(QStringLiteral("Transparent Artist/Album Labels"));
  f.Check4->setCaption(QStringLiteral("Enable Cover Reflections"));
  f.Check5->setCaption(QStringLiteral("Use Album Frame Image"));
  f.Check6->setCaption(QStringLiteral("Show Album Date and Genre"));
  f.Check7->setCaption(QStringLiteral("Use Featured Album"));
  f.Check8->setCaption(QStringLiteral("Keep Now Playing Screen Shown"));
  f.Check9->setCaption(QStringLiteral("Keep Collections Shown"));
  f.Check10->setCaption(QStringLiteral("Show Album Names on Quickjump"));
  f.Check11->setCaption(QStringLiteral("Coverflow Navigation Style"));
  f.Check12->setCaption(QStringLiteral("Keep Genre/Filter Screen Shown"));
  f.Command1->setCaption(QStringLiteral("Save Cover File"));
  f.Command4->setCaption(QStringLiteral("Save Skin"));
  f.Text1[0].setText(QStringLiteral("800"));
  f.Text1[1].setText(QStringLiteral("600"));
}

void composeForm5(Form5& f) {
  f.setCaption(QStringLiteral("Texture Viewer"));
  caption(f.Label3, kTextureCaptions);
  f.Command1->setCaption(QStringLiteral("Grab Player And Menu Image"));
  f.Command2->setCaption(QStringLiteral("Copy To All"));
}

void composeSamples(Form6& f) {
  sample(*f.Label5, "Font Colour Sample");
  sample(f.Label6[0], "Artist Name");
  sample(f.Label6[1], "Album Name");
  sample(*f.Label7, "AaBbCc 123");
  sample(f.lvButtons_H5[0], "General Button");
  sample(f.lvButtons_H5[1], "Play Now");
  f.Picture1->setBackColor(rgb(0, 120, 215));
  f.Picture2->setBackColor(0);
}

void composeForm6(Form6& f) {
  f.setCaption(QStringLiteral("Tools"));
  caption(f.Option1, std::to_array<const char*>({"Fore Colour", "Back Colour", "Gradient Colour"}));
  f.Option1[0].select();
  f.Check1->setCaption(QStringLiteral("Show Label Background (Album Cover)"));
  f.Check2->setCaption(QStringLiteral("Resize Backdrop Images"));
  caption(f.Command1, std::to_array<const char*>(
                          {"Copy Font Size To All Labels", "GLOBAL Copy Font Size To All Labels"}));
  caption(f.Command2, std::to_array<const char*>({"Copy Colours", "Global Copy Colours"}));
  f.Command3->setCaption(QStringLiteral("Copy Styles To All Buttons"));
  caption(f.Command4, std::to_array<const char*>(
                          {"Copy Font Type To All Labels", "GLOBAL Copy Font Type To All Labels"}));
  f.Command5->setCaption(QStringLiteral("Make Buttons Same Size"));
  caption(f.Command6, std::to_array<const char*>({"Shift X", "Shift Y"}));
  f.Command7->setCaption(QStringLiteral("Clear Button Images"));
  caption(f.Command8, std::to_array<const char*>({"Align X", "Align Y"}));
  caption(f.Command9, std::to_array<const char*>({"Space X", "Space Y"}));
  f.Command10->setCaption(QStringLiteral("Rescale SKIN"));
  f.Command11->setCaption(QStringLiteral("Copy Alignment to All Labels"));
  f.Command12->setCaption(QStringLiteral("Make Buttons Same Place"));
  f.Command13->setCaption(QStringLiteral("Snap To Grid"));
  f.Command14->setCaption(QStringLiteral("Change Font"));
  for (Array<TextBox>* steps : {&f.Text5, &f.Text6, &f.Text10})
    for (int i = 0; i < 2; ++i) (*steps)[i].setText(QStringLiteral("1"));
  composeSamples(f);
}

void composeSplash(Splash& f) {
  f.Label1->setCaption(QStringLiteral("Powered By Merlane Jukebox"));
  f.Label2->setCaption(QStringLiteral("Warning: This program is used at your own risk."));
  f.Label3->setCaption(QStringLiteral("Loading..."));
  f.lblProductName->setCaption(programTitle());
  f.lblPlatform->setCaption(QStringLiteral("V-Quill Skin Designer"));
  f.lblVersion->setCaption(QStringLiteral("Version 3.0"));
}

}  // namespace

void composeToolWindows(State& state) {
  state.form1.setCaption(programTitle());
  for (Window* window : state.windows())
    if (window != &state.form1) contain(*window);
  composeForm2(state.form2);
  state.form3.setCaption(QStringLiteral("Choose A Skin"));
  state.form3.Command1->setCaption(QStringLiteral("New Skin"));
  composeForm4(state.form4);
  composeForm5(state.form5);
  composeForm6(state.form6);
  composeSplash(state.frmSplash);
  for (Window* window : state.windows()) window->setVisible(false);
}

}  // namespace veneerer::design
