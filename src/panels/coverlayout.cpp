#include "panels/coverlayout.h"

#include <QFileInfo>
#include <algorithm>
#include <iterator>

#include "forms/currentskin.h"
#include "panels/texts.h"
#include "records/coverfile.h"
#include "records/layoutreader.h"
#include "records/layoutwriter.h"
#include "records/recordfiles.h"
#include "records/writefiles.h"

namespace veneerer {

namespace {

constexpr char kSaveTitle[] = "Save Cover File";

/// Whether the file held a value for that box. An older file ends ahead of it.
bool wasRead(const CheckBox& box, const Layout& layout, const Loading& loading) {
  const std::vector<Row>& rows = layout.rows();
  const auto row =
      std::ranges::find_if(rows, [&](const Row& r) { return r.field() && r.field()->into.element == &box; });
  return std::distance(rows.begin(), row) < std::ssize(loading.lines);
}

}  // namespace

CoverLayouts::CoverLayouts(State& state, const Platform& platform, SkinProperties& properties)
    : state_(state), platform_(platform), properties_(properties) {
  Switchboard& board = state.board;
  attachments_ = {board.onChange(*state.form4.File1, Property::ListIndex, [this](Element&) { askToLoad(); }),
                  board.onDoubleClick(*state.form4.File1, [this](Element&) { loadChosen(); }),
                  board.onClick(*state.form4.Command1, [this](Element&) { saveNamed(); })};
}

SkinFolder CoverLayouts::folder() const {
  return currentSkinFolder(state_, platform_.folder);
}

void CoverLayouts::load(const QString& path) {
  const std::optional<QByteArray> file = recordFileIfThere(path);
  if (!file) return;
  const QByteArray& bytes = *file;
  const SkinFolder skin = folder();
  Loading loading{state_, skin, platform_.screen};
  const Layout layout = coverFile(state_, QFileInfo(path).fileName(), lastCoverOf(bytes));
  readRecords(layout, bytes, loading);
  showCount();
  if (wasRead(*state_.form4.Check5, layout, loading)) applyBoxes();
}

// Counts as a change of the text even when the number is the one shown before.
void CoverLayouts::showCount() {
  const QString count = QString::number(state_.globals.LastCoverIndex->value() + 1);
  const bool isSame = state_.form4.Combo4->text() == count;
  state_.form4.Combo4->setText(count);
  if (isSame) properties_.coverTextChanged();
}

// With the labels' box ticked the captions of the covers in use let the backdrop through; without the frames'
// box no frame of theirs is shown.
void CoverLayouts::applyBoxes() {
  Form1& form1 = state_.form1;
  const bool isOpaque = !state_.form4.Check3->isTicked();
  for (int i = 0; i <= state_.globals.LastCoverIndex->value(); ++i) {
    form1.Label9[i].setOpaque(isOpaque);
    form1.Label10[i].setOpaque(isOpaque);
    if (!state_.form4.Check5->isTicked()) form1.ucAniGIF1[i].setVisible(false);
  }
}

NewFile CoverLayouts::compose(const QString& name) {
  return {name, composeRecords(coverFile(state_, name, state_.globals.LastCoverIndex->value()))};
}

void CoverLayouts::listFiles() {
  state_.form4.File1->setRows(folder().coverFiles());
}

QString CoverLayouts::firstFile() const {
  return state_.form4.File1->list().value(0);
}

QString CoverLayouts::nameToWrite(const SkinFolder& target) const {
  const QString title = QString::fromLatin1(kSaveTitle);
  const QString name = coverFileName(state_.form4.Text2->text());
  if (name.isEmpty())
    platform_.dialogs.inform(
        title, PanelTexts::tr(
                   "In File Controls/Settings, type a plain file name that ends in .cov for the cover layout "
                   "first."));
  else if (QFileInfo::exists(target.file(name)) &&
           !platform_.dialogs.ask(title, QStringLiteral("Do You want to overwrite this cover file?")))
    return {};
  return name;
}

void CoverLayouts::write(const SkinFolder& target, std::vector<NewFile> files) {
  sayWritten(state_.notes, target.path(), writeRecordFiles(platform_.disk, target.path(), std::move(files)));
}

void CoverLayouts::saveNamed() {
  const SkinFolder target = folder();
  const QString name = nameToWrite(target);
  if (name.isEmpty()) return;
  const Layout frames = framesFile(state_);
  writeOrTell(platform_.dialogs, QString::fromLatin1(kSaveTitle), [&] {
    write(target, {compose(name), {frames.fileName(), composeRecords(frames)}});
  });
  listFiles();
}

void CoverLayouts::loadChosen() {
  const QString name = state_.form4.File1->text();
  if (name.isEmpty()) return;
  load(folder().file(name));
  state_.form4.Text2->setText(name);
}

void CoverLayouts::offerSave(const SkinFolder& target) {
  if (!platform_.dialogs.ask(QStringLiteral("Warning"),
                             QStringLiteral("Do you want to save the COVER Layout Too?")))
    return;
  const QString name = nameToWrite(target);
  if (!name.isEmpty()) write(target, {compose(name)});
  listFiles();
}

void CoverLayouts::askToLoad() {
  const QString name = state_.form4.File1->text();
  if (state_.form4.File1->listIndex() < 0) return;
  if (platform_.dialogs.ask(
          QStringLiteral("Load Cover File"),
          QStringLiteral("Are you sure you want to load COV File, existing layout will be lost.")))
    load(folder().file(name));
}

}  // namespace veneerer
