#include "looks/styles.h"

#include "forms/counts.h"

namespace veneerer::looks {

namespace {

constexpr int kAlbumView = 8;  // row of the default home screens
constexpr int kTenAlbums = 9;  // row of the other albums; any above it would hide them

}  // namespace

void chooseStyles(Form4& form4, const Look& look, const design::Plan& plan) {
  form4.Text1[0].setText(QString::number(plan.width));
  form4.Text1[1].setText(QString::number(plan.height));
  form4.Combo1->setText(QStringLiteral("20"));
  form4.Combo7->setText(QString::number(kGenres));
  const Choices choices = choicesFor(look, plan);
  form4.Combo2->select(choices.jumpToLetter);
  form4.Combo5->select(choices.genre);
  form4.Combo6->select(choices.navigation);
  form4.Combo9->select(kAlbumView);
  form4.Combo10->select(choices.player);
  form4.Combo11->select(choices.genre == 0 ? 0 : 1);
  form4.Combo12->select(kTenAlbums);
  form4.Check10->setValue(1);
}

}  // namespace veneerer::looks
