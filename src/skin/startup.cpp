#include "skin/startup.h"

#include "elements/numbers.h"
#include "platform/skinfolder.h"
#include "skin/lists.h"

namespace veneerer {

namespace {

void nameGenres(Form1& form1) {
  for (int i = 0; i < kGenres; ++i) {
    form1.Picture20[i].setToolTipText(QStringLiteral("Genre Icon ") + signedNumber(i));
    form1.Label20[i].setToolTipText(QStringLiteral("Genre Label ") + signedNumber(i));
  }
  form1.Label7[0].setCaption(QStringLiteral("Now Playing "));
}

QString currentSkin(const Platform& platform) {
  const QString fallback = QString::fromLatin1(kDefaultSkin);
  const QString name = platform.settings.value(QStringLiteral("Settings"), QStringLiteral("Skin"), fallback);
  return SkinFolder(platform.folder, name).exists() ? name : fallback;
}

bool asksToLoad(const Platform& platform) {
  return platform.dialogs.ask(QStringLiteral("Load Current Skin"),
                              QStringLiteral("Do you want to Load Current Skin ? (Cancel Starts Blank)"));
}

}  // namespace

bool startUp(State& state, const Platform& platform, SkinLoader& loader, const QString& given) {
  const auto tell = [&](const char* text) { state.frmSplash.Label3->setCaption(QString::fromLatin1(text)); };
  tell("Loading...");
  state.frmSplash.setVisible(true);
  nameGenres(state.form1);
  fillFirstLists(state);
  tell("Reading Skin List...");
  state.form4.Combo3->setText(given.isEmpty() ? currentSkin(platform) : given);
  tell("Setting Up Veneerer...");
  fillOtherLists(state);
  const bool loads = !given.isEmpty() || asksToLoad(platform);
  state.form6.Combo1->setText(state.form6.Combo1->list().first());
  state.form6.Combo2->setText(state.form6.Combo2->list().first());
  if (loads)
    loader.load();
  else
    openChooser(state, platform);
  return loads;
}

void listSkins(State& state, const Platform& platform) {
  const QString current = state.form4.Combo3->text();
  state.form4.Combo3->setRows(SkinsRoot(platform.folder).skins());
  state.form4.Combo3->setText(current);
}

void openChooser(State& state, const Platform& platform) {
  const SkinsRoot root(platform.folder);
  QStringList paths;
  for (const QString& name : root.skins()) paths.append(root.path() + u'/' + name);
  state.form3.Dir1->setRows(paths);
  state.form3.List1->setRows(root.skins());
  listSkins(state, platform);
  state.form1.setVisible(false);
  state.form3.setVisible(true);
}

void chooseSkin(State& state, const QString& name, SkinLoader& loader) {
  state.form3.setVisible(false);
  state.form4.Combo3->setText(name);
  loader.load();
}

}  // namespace veneerer
