// The canvas: every screen of the jukebox at once, as live elements. Members carry the names of the record
// format. Their order is the window's own order, in which a rescale walks them.
#pragma once

#include "elements/button.h"
#include "elements/controls.h"
#include "elements/family.h"
#include "elements/label.h"
#include "elements/window.h"
#include "forms/counts.h"

namespace veneerer {

class Form1 : public Window {
public:
  explicit Form1(Switchboard& board) : Window(board, "Form1") {}

  // Panels and pictures. Picture1 are the screens in the order of the Edit Section list; Picture12(0) and
  // Picture23 are the two screens beside them.
  Array<PictureBox> Picture1{*this, "Picture1", 30};
  Array<PictureBox> Picture2{*this, "Picture2", 16};
  Array<PictureBox> Picture3{*this, "Picture3", 4};
  Single<PictureBox> Picture4{*this, "Picture4"};
  Array<PictureBox> Picture5{*this, "Picture5", 9};
  Single<PictureBox> Picture6{*this, "Picture6"};
  Array<PictureBox> Picture7{*this, "Picture7", 7};
  Single<PictureBox> Picture8{*this, "Picture8"};
  Single<PictureBox> Picture9{*this, "Picture9"};
  Array<PictureBox> Picture10{*this, "Picture10", 5};
  Array<PictureBox> Picture11{*this, "Picture11", 10};
  Array<PictureBox> Picture12{*this, "Picture12", 1};
  Array<PictureBox> Picture13{*this, "Picture13", 2};
  Array<PictureBox> Picture14{*this, "Picture14", kOtherAlbums};
  Array<PictureBox> Picture15{*this, "Picture15", 11};
  Array<PictureBox> Picture16{*this, "Picture16", 6};
  Single<PictureBox> Picture17{*this, "Picture17"};
  Single<PictureBox> Picture18{*this, "Picture18"};
  Array<PictureBox> Picture19{*this, "Picture19", 10};
  Array<PictureBox> Picture20{*this, "Picture20", kGenres};
  Single<PictureBox> Picture21{*this, "Picture21"};
  Single<PictureBox> Picture22{*this, "Picture22"};
  Single<PictureBox> Picture23{*this, "Picture23"};
  Single<PictureBox> Picture24{*this, "Picture24"};
  Array<PictureBox> Picture25{*this, "Picture25", 5};
  Array<PictureBox> Picture26{*this, "Picture26", kThumbnailsPerGenre* kGenres};
  Array<PictureBox> Picture27{*this, "Picture27", 12};
  Single<PictureBox> Picture28{*this, "Picture28"};
  Single<PictureBox> Picture29{*this, "Picture29"};
  Array<PictureBox> Picture30{*this, "Picture30", 9};
  Array<PictureBox> Picture31{*this, "Picture31", 8};
  Single<PictureBox> Picture32{*this, "Picture32"};
  Single<PictureBox> Picture33{*this, "Picture33"};

  // Image1 is the hidden source of the image resampling, Image2 are the album covers; 28 is the featured
  // album.
  Single<ImageBox> Image1{*this, "Image1"};
  Array<ImageBox> Image2{*this, "Image2", 30};
  Array<AnimatedFrame> ucAniGIF1{*this, "ucAniGIF1", 30};
  Array<AlphaImage> aicAlphaImage1{*this, "aicAlphaImage1", 21};

  Array<Button> lvButtons_H1{*this, "lvButtons_H1", 14};
  Array<Button> lvButtons_H2{*this, "lvButtons_H2", 6};
  Array<Button> lvButtons_H3{*this, "lvButtons_H3", 3};
  Array<Button> lvButtons_H4{*this, "lvButtons_H4", 8};
  Array<Button> lvButtons_H5{*this, "lvButtons_H5", 2};
  Array<Button> lvButtons_H6{*this, "lvButtons_H6", 28};
  Array<Button> lvButtons_H7{*this, "lvButtons_H7", 4};
  Array<Button> lvButtons_H8{*this, "lvButtons_H8", 3};
  Single<Button> lvButtons_H9{*this, "lvButtons_H9"};
  Array<Button> lvButtons_H10{*this, "lvButtons_H10", 2};
  Single<Button> lvButtons_H11{*this, "lvButtons_H11"};
  Array<Button> lvButtons_H12{*this, "lvButtons_H12", {0, 1, 2, 3, 4, 7}};
  Array<Button> lvButtons_H13{*this, "lvButtons_H13", 2};
  Single<Button> lvButtons_H14{*this, "lvButtons_H14"};
  Single<Button> lvButtons_H15{*this, "lvButtons_H15"};
  Array<Button> lvButtons_H16{*this, "lvButtons_H16", 2};
  Array<Button> lvButtons_H17{*this, "lvButtons_H17", 2};
  Array<Button> lvButtons_H18{*this, "lvButtons_H18", 2};
  Single<Button> lvButtons_H19{*this, "lvButtons_H19"};
  Single<Button> lvButtons_H20{*this, "lvButtons_H20"};
  Single<Button> lvButtons_H21{*this, "lvButtons_H21"};
  Array<Button> lvButtons_H22{*this, "lvButtons_H22", 26};
  Array<Button> lvButtons_H23{*this, "lvButtons_H23", 2};
  Array<Button> lvButtons_H24{*this, "lvButtons_H24", 8};
  Array<Button> lvButtons_H25{*this, "lvButtons_H25", 3};
  Array<Button> lvButtons_H26{*this, "lvButtons_H26", 5};
  Single<Button> lvButtons_H27{*this, "lvButtons_H27"};
  Array<Button> lvButtons_H28{*this, "lvButtons_H28", 5};
  Array<Button> lvButtons_H29{*this, "lvButtons_H29", 3};
  Array<Button> lvButtons_H30{*this, "lvButtons_H30", 13};
  Single<Button> lvButtons_H31{*this, "lvButtons_H31"};
  Single<Button> lvButtons_H32{*this, "lvButtons_H32"};
  Single<Button> lvButtons_H33{*this, "lvButtons_H33"};
  Array<Button> lvButtons_H34{*this, "lvButtons_H34", 2};
  Array<Button> lvButtons_H35{*this, "lvButtons_H35", 31};
  Array<Button> lvButtons_H36{*this, "lvButtons_H36", 10};
  Array<Button> lvButtons_H37{*this, "lvButtons_H37", 8};
  Array<Button> lvButtons_H38{*this, "lvButtons_H38", 27};
  Array<Button> lvButtons_H39{*this, "lvButtons_H39", 10};
  Single<Button> lvButtons_H40{*this, "lvButtons_H40"};
  Array<Button> lvButtons_H41{*this, "lvButtons_H41", 8};
  Array<Button> lvButtons_H42{*this, "lvButtons_H42", 4};
  Array<Button> lvButtons_H43{*this, "lvButtons_H43", 11};
  Array<Button> lvButtons_H44{*this, "lvButtons_H44", 67};
  Single<Button> lvButtons_H45{*this, "lvButtons_H45"};
  Array<Button> lvButtons_H46{*this, "lvButtons_H46", 3};
  Single<Button> lvButtons_H47{*this, "lvButtons_H47"};
  Array<Button> lvButtons_H48{*this, "lvButtons_H48", 12};
  Array<Button> lvButtons_H49{*this, "lvButtons_H49", 9};
  Single<Button> lvButtons_H50{*this, "lvButtons_H50"};
  Array<Button> lvButtons_H51{*this, "lvButtons_H51", 40};
  Array<Button> lvButtons_H52{*this, "lvButtons_H52", 3};
  Array<Button> lvButtons_H53{*this, "lvButtons_H53", 9};
  Array<Button> lvButtons_H54{*this, "lvButtons_H54", 14};
  Array<Button> lvButtons_H55{*this, "lvButtons_H55", 2};
  Array<Button> lvButtons_H56{*this, "lvButtons_H56", 40};
  Array<Button> lvButtons_H57{*this, "lvButtons_H57", 6};
  Array<Button> lvButtons_H58{*this, "lvButtons_H58", 40};
  Array<Button> lvButtons_H59{*this, "lvButtons_H59", 2};
  Array<Button> lvButtons_H60{*this, "lvButtons_H60", 55};
  Array<Button> lvButtons_H61{*this, "lvButtons_H61", 3};
  Array<Button> lvButtons_H62{*this, "lvButtons_H62", 28};

  Array<Label> Label1{*this, "Label1", kTracks};
  Array<Label> Label2{*this, "Label2", 11};
  Array<Label> Label3{*this, "Label3", kTracks};
  Array<Label> Label4{*this, "Label4", 6};
  Single<Label> Label5{*this, "Label5"};
  Array<Label> Label6{*this, "Label6", 2};
  Array<Label> Label7{*this, "Label7", 3};
  Array<Label> Label8{*this, "Label8", 10};
  Array<Label> Label9{*this, "Label9", 29};
  Array<Label> Label10{*this, "Label10", 29};
  Array<Label> Label11{*this, "Label11", 9};
  Single<Label> Label12{*this, "Label12"};
  Single<Label> Label13{*this, "Label13"};
  Array<Label> Label14{*this, "Label14", 7};
  Array<Label> Label15{*this, "Label15", 7};
  Array<Label> Label16{*this, "Label16", 14};
  Array<Label> Label17{*this, "Label17", 7};
  Single<Label> Label18{*this, "Label18"};
  Array<Label> Label19{*this, "Label19", 12};
  Array<Label> Label20{*this, "Label20", kGenres};
  Array<Label> Label21{*this, "Label21", 4};
  Array<Label> Label22{*this, "Label22", 2};
  Array<Label> Label23{*this, "Label23", 5};
  Array<Label> Label24{*this, "Label24", 5};
  Array<Label> Label25{*this, "Label25", 5};
  Array<Label> Label26{*this, "Label26", 5};
  Array<Label> Label27{*this, "Label27", 6};
  Array<Label> Label28{*this, "Label28", 2};
  Single<Label> Label29{*this, "Label29"};
  Array<Label> Label30{*this, "Label30", 10};
  Array<Label> Label31{*this, "Label31", 10};
  Single<Label> Label32{*this, "Label32"};
  Array<Label> Label33{*this, "Label33", 9};
  Array<Label> Label34{*this, "Label34", 3};
  Array<Label> Label35{*this, "Label35", 10};
  Array<Label> Label36{*this, "Label36", 10};
  Array<Label> Label37{*this, "Label37", 10};
  Array<Label> Label38{*this, "Label38", 6};
  Single<Label> Label39{*this, "Label39"};
  Array<Label> Label40{*this, "Label40", 7};
  Single<Label> Label41{*this, "Label41"};
  Single<Label> Label42{*this, "Label42"};
  Array<Label> Label43{*this, "Label43", 6};
  Array<Label> Label44{*this, "Label44", 11};
  Array<Label> Label45{*this, "Label45", 10};
  Single<Label> Label46{*this, "Label46"};
  Array<Label> Label47{*this, "Label47", 9};
  Array<Label> Label48{*this, "Label48", 9};
  Array<Label> Label49{*this, "Label49", 9};
  Array<Label> Label50{*this, "Label50", 9};
  Array<Label> Label51{*this, "Label51", 7};
  Single<Label> Label52{*this, "Label52"};
  Array<Label> Label53{*this, "Label53", 2};
  Single<Label> Label54{*this, "Label54"};
  Single<Label> Label55{*this, "Label55"};
  Array<Label> Label56{*this, "Label56", 2};
  Single<Label> Label57{*this, "Label57"};
  Array<Label> Label58{*this, "Label58", 19};
  Array<Label> Label59{*this, "Label59", kGenres};
  Array<Label> Label60{*this, "Label60", kTracks};
  Array<Label> Label61{*this, "Label61", 5};
  Array<Label> Label62{*this, "Label62", 29};
  Array<Label> Label63{*this, "Label63", 29};
  Array<Label> Label64{*this, "Label64", 21};
};

}  // namespace veneerer
