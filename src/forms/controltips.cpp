#include "forms/controltips.h"

#include <algorithm>

#include "elements/family.h"
#include "elements/window.h"
#include "forms/texts.h"

namespace veneerer {

namespace {

struct Tip {
  const char16_t* control;  ///< a control's key, or that of a whole family
  const char* text;
};

constexpr Tip kTips[] = {
    {u"Form2.Check1",
     QT_TRANSLATE_NOOP("Forms", "Whether the jukebox offers this; nothing changes on the canvas")},
    {u"Form2.Check2",
     QT_TRANSLATE_NOOP("Forms",
                       "Whether the jukebox has this in its menu bar; nothing changes on the canvas")},
    {u"Form2.Check3",
     QT_TRANSLATE_NOOP("Forms", "Whether the jukebox has this tab; nothing changes on the canvas")},
    {u"Form2.Command1", QT_TRANSLATE_NOOP("Forms", "Write these choices to the Skin's folder at once")},

    {u"Form3.List1", QT_TRANSLATE_NOOP("Forms", "Click a Skin to load it")},
    {u"Form3.Dir1", QT_TRANSLATE_NOOP("Forms", "The folders of the Skins; a click there loads nothing")},
    {u"Form3.Text1", QT_TRANSLATE_NOOP("Forms", "Has no effect")},
    {u"Form3.Command1", QT_TRANSLATE_NOOP("Forms", "Has no effect")},

    {u"Form4.Combo1", QT_TRANSLATE_NOOP("Forms", "How many rows the track list shows")},
    {u"Form4.Combo2", QT_TRANSLATE_NOOP("Forms", "Which buttons or slider lead to a letter of the albums")},
    {u"Form4.Combo3", QT_TRANSLATE_NOOP("Forms", "The Skin that is loaded; choosing another one loads it")},
    {u"Form4.Combo4", QT_TRANSLATE_NOOP("Forms", "How many album covers are shown")},
    {u"Form4.Combo5", QT_TRANSLATE_NOOP("Forms", "Whether the genres have icons or thumbnails")},
    {u"Form4.Combo6", QT_TRANSLATE_NOOP("Forms", "Which screen has the buttons that turn the pages")},
    {u"Form4.Combo7", QT_TRANSLATE_NOOP("Forms", "How many genres are shown")},
    {u"Form4.Combo8",
     QT_TRANSLATE_NOOP("Forms",
                       "Has no effect and isn't saved; the screen that counts is Default HOME Screen")},
    {u"Form4.Combo9", QT_TRANSLATE_NOOP("Forms", "The screen that the jukebox goes back to")},
    {u"Form4.Combo10", QT_TRANSLATE_NOOP("Forms", "Whether the player pops up, and whether it has buttons")},
    {u"Form4.Combo11",
     QT_TRANSLATE_NOOP("Forms",
                       "How the jukebox leads to a genre's letter; on the canvas Genre Style decides")},
    {u"Form4.Combo12",
     QT_TRANSLATE_NOOP(
         "Forms", "How many other albums the track listing shows; row 10 changes nothing on the canvas")},
    {u"Form4.Check1",
     QT_TRANSLATE_NOOP("Forms",
                       "Albums as texts without covers; choose the number of covers anew to see it")},
    {u"Form4.Check2", QT_TRANSLATE_NOOP("Forms", "For the jukebox; nothing changes on the canvas")},
    {u"Form4.Check3",
     QT_TRANSLATE_NOOP("Forms",
                       "Covers' captions without a ground; seen when the cover file is loaded again")},
    {u"Form4.Check4", QT_TRANSLATE_NOOP("Forms", "For the jukebox; nothing changes on the canvas")},
    {u"Form4.Check5",
     QT_TRANSLATE_NOOP("Forms", "A frame around each cover; seen when the cover file is loaded again")},
    {u"Form4.Check6", QT_TRANSLATE_NOOP("Forms", "Show the year and the genre at each cover")},
    {u"Form4.Check7", QT_TRANSLATE_NOOP("Forms", "Show the featured album")},
    {u"Form4.Check8", QT_TRANSLATE_NOOP("Forms", "For the jukebox; nothing changes on the canvas")},
    {u"Form4.Check9", QT_TRANSLATE_NOOP("Forms", "The collections stay up when another screen is chosen")},
    {u"Form4.Check10", QT_TRANSLATE_NOOP("Forms", "Show names under the other albums of the track listing")},
    {u"Form4.Check11", QT_TRANSLATE_NOOP("Forms", "For the jukebox; nothing changes on the canvas")},
    {u"Form4.Check12",
     QT_TRANSLATE_NOOP("Forms", "The genre selection stays up when another screen is chosen")},
    {u"Form4.Text1", QT_TRANSLATE_NOOP("Forms", "Pixels; sizes the canvas window and moves no element")},
    {u"Form4.Text2", QT_TRANSLATE_NOOP("Forms", "The name that the cover layout is saved under")},
    {u"Form4.File1",
     QT_TRANSLATE_NOOP("Forms", "Click to load a cover layout; double-click to load it without a question")},
    {u"Form4.Command1", QT_TRANSLATE_NOOP("Forms", "Write the cover layout under this name at once")},
    {u"Form4.Command4", QT_TRANSLATE_NOOP("Forms", "Write the record files of the Skin")},

    {u"Form5.Image1", QT_TRANSLATE_NOOP("Forms", "Choose the picture of this screen")},
    {u"Form5.Image1(11)",
     QT_TRANSLATE_NOOP("Forms", "Choose the backdrop of the albums; the canvas doesn't show it")},
    {u"Form5.Image2",
     QT_TRANSLATE_NOOP("Forms", "Choose the frame of the albums; the canvas doesn't show it")},
    {u"Form5.Image3", QT_TRANSLATE_NOOP("Forms", "Choose the picture of the player")},
    {u"Form5.Image4", QT_TRANSLATE_NOOP("Forms", "Choose the picture of the logo")},
    {u"Form5.Image5", QT_TRANSLATE_NOOP("Forms", "Choose the picture of this screen")},
    {u"Form5.Image6",
     QT_TRANSLATE_NOOP("Forms", "The picture of the menu; it can't be chosen here, only grabbed")},
    {u"Form5.Image7", QT_TRANSLATE_NOOP("Forms", "Choose the picture of this screen")},
    {u"Form5.Image8", QT_TRANSLATE_NOOP("Forms", "Choose the picture of this screen")},
    {u"Form5.Image9", QT_TRANSLATE_NOOP("Forms", "Choose the picture of this screen")},
    {u"Form5.Image10", QT_TRANSLATE_NOOP("Forms", "Choose the picture of this screen")},
    {u"Form5.Image11", QT_TRANSLATE_NOOP("Forms", "Choose the picture of this screen")},
    {u"Form5.Image12", QT_TRANSLATE_NOOP("Forms", "Choose the picture of this screen")},
    {u"Form5.Image13", QT_TRANSLATE_NOOP("Forms", "Choose the picture of this screen")},
    {u"Form5.Image14", QT_TRANSLATE_NOOP("Forms", "Choose the picture of this screen")},
    {u"Form5.Image15", QT_TRANSLATE_NOOP("Forms", "Choose the picture of this screen")},
    {u"Form5.Image16",
     QT_TRANSLATE_NOOP("Forms", "Choose the picture of the frame whose number stands below")},
    {u"Form5.Image17", QT_TRANSLATE_NOOP("Forms", "Choose the picture of this screen")},
    {u"Form5.Image18", QT_TRANSLATE_NOOP("Forms", "Choose the picture of this screen")},
    {u"Form5.Image19", QT_TRANSLATE_NOOP("Forms", "Choose the picture of this screen")},
    {u"Form5.Image20", QT_TRANSLATE_NOOP("Forms", "Choose the picture of this screen")},
    {u"Form5.Image21", QT_TRANSLATE_NOOP("Forms", "Choose the picture of this screen")},
    {u"Form5.Image22", QT_TRANSLATE_NOOP("Forms", "Choose the picture of this screen")},
    {u"Form5.Combo1",
     QT_TRANSLATE_NOOP("Forms", "The album frame that is shown here and gets the next picture")},
    {u"Form5.ucAniGIF1", QT_TRANSLATE_NOOP("Forms", "Choose the picture of this album frame")},
    {u"Form5.Command1",
     QT_TRANSLATE_NOOP("Forms", "Cut the pictures of the player and the menu out of the backdrop")},
    {u"Form5.Command2", QT_TRANSLATE_NOOP("Forms", "Give the picture of this frame to all album frames")},

    {u"Form6.Text1", QT_TRANSLATE_NOOP("Forms", "Caption of %1")},
    {u"Form6.Text2", QT_TRANSLATE_NOOP("Forms",
                                       "Colour of %1: a number, &H and hexadecimal digits, or # and six of "
                                       "them, whose pairs are read in the "
                                       "order first, third, second: #112233 is blue 11, green 33, red 22")},
    {u"Form6.Text3(0)", QT_TRANSLATE_NOOP("Forms", "Height of %1, in twips: 1440 to the inch")},
    {u"Form6.Text3(1)", QT_TRANSLATE_NOOP("Forms", "Width of %1, in twips: 1440 to the inch")},
    {u"Form6.Text4", QT_TRANSLATE_NOOP("Forms", "Font size of %1, in points")},
    {u"Form6.Text5(0)", QT_TRANSLATE_NOOP("Forms", "By how much Shift X moves, in twips")},
    {u"Form6.Text5(1)", QT_TRANSLATE_NOOP("Forms", "By how much Shift Y moves, in twips")},
    {u"Form6.Text6(0)", QT_TRANSLATE_NOOP("Forms", "The gap for Space X and Space Y, in twips")},
    {u"Form6.Text6(1)", QT_TRANSLATE_NOOP("Forms", "Has no effect: Space Y takes X Space as well")},
    {u"Form6.Text7", QT_TRANSLATE_NOOP("Forms", "The width that the Skin is rescaled to, in pixels")},
    {u"Form6.Text8", QT_TRANSLATE_NOOP("Forms", "The height that the Skin is rescaled to, in pixels")},
    {u"Form6.Text9(0)", QT_TRANSLATE_NOOP("Forms", "Top of %1, in twips: 1440 to the inch")},
    {u"Form6.Text9(1)", QT_TRANSLATE_NOOP("Forms", "Left of %1, in twips: 1440 to the inch")},
    {u"Form6.Text10(0)", QT_TRANSLATE_NOOP("Forms", "The step of Snap To Grid across, in twips")},
    {u"Form6.Text10(1)", QT_TRANSLATE_NOOP("Forms", "The step of Snap To Grid down, in twips")},
    {u"Form6.Combo1", QT_TRANSLATE_NOOP("Forms", "Shape of %1")},
    {u"Form6.Combo2", QT_TRANSLATE_NOOP("Forms", "Style of %1")},
    {u"Form6.Combo4", QT_TRANSLATE_NOOP("Forms", "Gradient of %1; Copy Colours copies it too")},
    {u"Form6.Combo5", QT_TRANSLATE_NOOP("Forms", "Alignment of %1")},
    {u"Form6.Combo6", QT_TRANSLATE_NOOP("Forms", "The screen that the canvas shows")},
    {u"Form6.List1", QT_TRANSLATE_NOOP("Forms", "Font of %1")},
    {u"Form6.Option1(0)", QT_TRANSLATE_NOOP("Forms", "Work on the colour of texts")},
    {u"Form6.Option1(1)", QT_TRANSLATE_NOOP("Forms", "Work on the colour of grounds")},
    {u"Form6.Option1(2)", QT_TRANSLATE_NOOP("Forms", "Work on the second colour of buttons")},
    {u"Form6.Picture1",
     QT_TRANSLATE_NOOP("Forms", "Click to choose the colour of what a key has highlighted")},
    {u"Form6.Picture2", QT_TRANSLATE_NOOP("Forms", "Click to choose the colour of %1")},
    {u"Form6.Label5", QT_TRANSLATE_NOOP("Forms", "Click to take this sample in hand")},
    {u"Form6.Label6", QT_TRANSLATE_NOOP("Forms", "Click to take this sample in hand")},
    {u"Form6.Label7", QT_TRANSLATE_NOOP("Forms", "Shows the font")},
    {u"Form6.lvButtons_H5", QT_TRANSLATE_NOOP("Forms", "Click to take this sample in hand")},
    {u"Form6.Check1", QT_TRANSLATE_NOOP("Forms", "Whether the captions of the album covers have a ground")},
    {u"Form6.Check2",
     QT_TRANSLATE_NOOP("Forms", "The rescale also resamples the pictures of the Skin, in their files")},
    {u"Form6.Command1(0)",
     QT_TRANSLATE_NOOP("Forms", "Give this font size to the other %2 of the family of what is in hand")},
    {u"Form6.Command1(1)",
     QT_TRANSLATE_NOOP("Forms", "Give this font size to all labels of all screens that take it")},
    {u"Form6.Command2(0)",
     QT_TRANSLATE_NOOP("Forms", "Give the chosen colour to all %2 of the family of what is in hand")},
    {u"Form6.Command2(1)",
     QT_TRANSLATE_NOOP("Forms", "Give the chosen colour to all elements of all screens that take it")},
    {u"Form6.Command3",
     QT_TRANSLATE_NOOP("Forms", "Give shape and style to all %2 of the family of what is in hand")},
    {u"Form6.Command4(0)",
     QT_TRANSLATE_NOOP("Forms", "Give this font to the other %2 of the family of what is in hand")},
    {u"Form6.Command4(1)",
     QT_TRANSLATE_NOOP("Forms", "Give this font to all labels of all screens that take it")},
    {u"Form6.Command5",
     QT_TRANSLATE_NOOP("Forms", "Give this height and width to all %2 of the family of what is in hand")},
    {u"Form6.Command6(0)",
     QT_TRANSLATE_NOOP("Forms", "Move all %2 of the family of what is in hand across by X Shift")},
    {u"Form6.Command6(1)",
     QT_TRANSLATE_NOOP("Forms", "Move all %2 of the family of what is in hand down by Y Shift")},
    {u"Form6.Command7",
     QT_TRANSLATE_NOOP("Forms", "Take their pictures from all %2 of the family of what is in hand")},
    {u"Form6.Command8(0)",
     QT_TRANSLATE_NOOP("Forms", "Give its left edge to all %2 of the family of what is in hand")},
    {u"Form6.Command8(1)",
     QT_TRANSLATE_NOOP("Forms", "Give its top edge to all %2 of the family of what is in hand")},
    {u"Form6.Command9(0)",
     QT_TRANSLATE_NOOP("Forms",
                       "Set all %2 of the family of what is in hand side by side with X Space between")},
    {u"Form6.Command9(1)",
     QT_TRANSLATE_NOOP(
         "Forms", "Set all %2 of the family of what is in hand one below the other with X Space between")},
    {u"Form6.Command10", QT_TRANSLATE_NOOP("Forms", "Give the whole Skin this width and height")},
    {u"Form6.Command11",
     QT_TRANSLATE_NOOP("Forms", "Give this alignment to all %2 of the family of what is in hand")},
    {u"Form6.Command12", QT_TRANSLATE_NOOP("Forms", "Give this top and left to the first twelve screens")},
    {u"Form6.Command13",
     QT_TRANSLATE_NOOP("Forms",
                       "Set all %2 of the family of what is in hand onto the grid of X Grid and Y Grid")},
    {u"Form6.Command14", QT_TRANSLATE_NOOP("Forms", "Choose font, size and effects of %1")},
};

const Tip* tipOf(const QString& control) {
  const auto found = std::ranges::find_if(kTips, [&](const Tip& tip) { return control == tip.control; });
  return found == std::end(kTips) ? nullptr : found;
}

}  // namespace

QString controlTip(const Element& control) {
  if (!control.family()) return {};
  const Tip* tip = tipOf(control.key());
  if (!tip) tip = tipOf(control.window().name() + u'.' + control.family()->name());
  return tip ? FormTexts::tr(tip->text) : QString();
}

}  // namespace veneerer
