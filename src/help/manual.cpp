#include "help/manual.h"

#include <QFile>
#include <QRegularExpression>
#include <QStringList>
#include <QTextDocument>
#include <algorithm>

#include "help/texts.h"

namespace veneerer {

namespace {

constexpr qsizetype kAhead = 30;     // characters of an excerpt ahead of the find
constexpr qsizetype kExcerpt = 110;  // and in all

/// How well a page fits what is looked for.
struct Fit {
  int inTitle = 0;       ///< so many of the words
  qsizetype finds = 0;   ///< of all words
  qsizetype first = -1;  ///< where the earliest find begins
};

// Nothing when a word is missing.
Fit fitOf(const ManualEntry& entry, const QString& text, const QStringList& words) {
  Fit fit;
  for (const QString& word : words) {
    const bool isInTitle = entry.title.contains(word, Qt::CaseInsensitive);
    const qsizetype at = text.indexOf(word, 0, Qt::CaseInsensitive);
    if (!isInTitle && at < 0) return {};
    fit.inTitle += isInTitle ? 1 : 0;
    fit.finds += 1 + text.count(word, Qt::CaseInsensitive);
    if (at >= 0 && (fit.first < 0 || at < fit.first)) fit.first = at;
  }
  return fit;
}

// From the beginning of a word to the end of one.
QString excerptAt(const QString& text, qsizetype place) {
  qsizetype from = std::max<qsizetype>(0, place - kAhead);
  if (from > 0) from = std::min(place, text.indexOf(u' ', from) + 1);
  QString part = text.mid(from, kExcerpt);
  if (from + kExcerpt < text.size()) part = part.left(part.lastIndexOf(u' ')) + QStringLiteral(" ...");
  return from > 0 ? QStringLiteral("... ") + part : part;
}

QString plainText(const QString& markdown) {
  QTextDocument document;
  document.setMarkdown(markdown);
  QString text = document.toPlainText();
  return text.remove(QChar::ObjectReplacementCharacter).simplified();
}

}  // namespace

QString manualFile(const QString& name, const QString& folder) {
  //: The folder of the manual's pages in the language of the translation
  const QString own = folder + u'/' + HelpTexts::tr("en") + u'/' + name;
  return QFile::exists(own) ? own : folder + u'/' + name;
}

Manual::Manual(QString folder) : folder_(std::move(folder)) {
  static const QRegularExpression line(QStringLiteral(R"(^(?:## (.+)|- \[([^\]]+)\]\(([^)]+)\.md\).*)$)"),
                                       QRegularExpression::MultilineOption);
  QString group;
  for (const auto& found : line.globalMatch(text(kManualIndex))) {
    if (found.hasCaptured(3))
      contents_.append({found.captured(3), found.captured(2), group});
    else
      group = found.captured(1);
  }
}

QString Manual::title(const QString& page) const {
  const auto entry = std::ranges::find(contents_, page, &ManualEntry::page);
  return entry == contents_.end() ? HelpTexts::tr("Contents") : entry->title;
}

QString Manual::text(const QString& page) const {
  QFile file(manualFile(page + QStringLiteral(".md"), folder_));
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void Manual::readTexts() {
  for (const ManualEntry& entry : contents_) plainTexts_.insert(entry.page, plainText(text(entry.page)));
}

QList<ManualHit> Manual::search(const QString& words) {
  const QStringList wanted = words.simplified().split(u' ', Qt::SkipEmptyParts);
  if (wanted.isEmpty()) return {};
  if (plainTexts_.isEmpty()) readTexts();
  std::vector<std::pair<Fit, ManualHit>> found;
  for (const ManualEntry& entry : contents_) {
    const QString& text = plainTexts_[entry.page];
    const Fit fit = fitOf(entry, text, wanted);
    if (fit.finds == 0) continue;
    found.push_back({fit, {entry.page, entry.title, excerptAt(text, std::max<qsizetype>(0, fit.first))}});
  }
  std::ranges::stable_sort(found, std::ranges::greater(),
                           [](const auto& each) { return std::pair(each.first.inTitle, each.first.finds); });
  QList<ManualHit> hits;
  for (const auto& [fit, hit] : found) hits.append(hit);
  return hits;
}

}  // namespace veneerer
