#include "exchange/entrynames.h"

#include <QFile>
#include <algorithm>

#include "elements/printable.h"
#include "exchange/texts.h"

namespace veneerer {

namespace {

constexpr qsizetype kMostPartBytes = 255;
constexpr qsizetype kMostNameBytes = 2048;  // with the way to the root of Skins it stays below 4096

// A load reads one and a save writes the other, so a Skin holds both.
constexpr QLatin1String kTwins[] = {QLatin1String("search_choice.ini"), QLatin1String("search_Choice.ini")};

QString folded(const QString& name) {
  if (std::ranges::find(kTwins, name) != std::end(kTwins)) return name;
  return name.normalized(QString::NormalizationForm_C).toCaseFolded();
}

bool isAllPrintable(const QString& name) {
  return std::ranges::all_of(name.toUcs4(), [](uint c) { return isPrintable(c); });
}

bool isDrive(const QString& part) {
  return part.size() >= 2 && part[1] == u':' && part[0].isLetter();
}

QString faultOfPart(const QString& part) {
  if (part.isEmpty()) return ExchangeTexts::tr("a part of the name is empty");
  if (part == u"..") return ExchangeTexts::tr("the name leads out of its folder");
  if (part == u".") return ExchangeTexts::tr("a part of the name is a point");
  if (isDrive(part)) return ExchangeTexts::tr("the name begins with a drive");
  if (QFile::encodeName(part).size() > kMostPartBytes)
    return ExchangeTexts::tr("the name is too long for a file");
  return {};
}

QString faultOfName(const QString& entry) {
  if (!isAllPrintable(entry)) return ExchangeTexts::tr("the name holds a character that isn't printable");
  if (entry.startsWith(u'/') || entry.startsWith(u'\\'))
    return ExchangeTexts::tr("the name is an absolute path");
  if (QFile::encodeName(entry).size() > kMostNameBytes)
    return ExchangeTexts::tr("the name is too long for a file");
  return {};
}

QStringList partsOf(QString entry) {
  entry.replace(u'\\', u'/');
  if (entry.endsWith(u'/')) entry.chop(1);
  return entry.split(u'/');
}

}  // namespace

QString EntryNames::add(const QString& entry, EntryPlace& place) {
  QString fault = faultOfName(entry);
  QStringList parts = partsOf(entry);
  for (const QString& part : std::as_const(parts))
    if (fault.isEmpty()) fault = faultOfPart(part);
  place.isFolder = entry.endsWith(u'/') || entry.endsWith(u'\\');
  if (fault.isEmpty()) fault = addTop(parts, place.isFolder);
  parts.removeFirst();
  place.name = parts.join(u'/');
  const bool isBelow = fault.isEmpty() && !parts.isEmpty();
  if (isBelow) fault = addFolders(place.isFolder ? parts : parts.first(parts.size() - 1));
  return isBelow && fault.isEmpty() && !place.isFolder ? addFile(place.name) : fault;
}

QString EntryNames::addTop(const QStringList& parts, bool isFolder) {
  const QString& top = parts.first();
  if (parts.size() == 1 && !isFolder)
    return ExchangeTexts::tr("a file lies at the top, beside the Skin's folder");
  if (top.startsWith(u'.')) return ExchangeTexts::tr("a Skin's name doesn't begin with a point");
  if (skin_.isEmpty()) skin_ = top;
  return top == skin_ ? QString()
                      : ExchangeTexts::tr("there is a second folder at the top, beside %1").arg(skin_);
}

QString EntryNames::addFolders(const QStringList& parts) {
  QString name;
  for (const QString& part : parts) {
    name += name.isEmpty() ? part : u'/' + part;
    const QString key = folded(name);
    if (files_.contains(key)) return ExchangeTexts::tr("there is a file of its folder's name");
    const auto known = folders_.constFind(key);
    if (known == folders_.constEnd())
      folders_.insert(key, name);
    else if (*known != name)
      return ExchangeTexts::tr("its folder's name differs from %1 in case alone").arg(*known);
  }
  return {};
}

QString EntryNames::addFile(const QString& name) {
  const QString key = folded(name);
  if (folders_.contains(key)) return ExchangeTexts::tr("there is a folder of this name");
  if (files_.contains(key)) return ExchangeTexts::tr("there is a second file of this name, but for case");
  files_.insert(key);
  return {};
}

}  // namespace veneerer
