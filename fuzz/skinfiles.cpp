#include "fuzz/skinfiles.h"

#include <QFileInfo>
#include <QImage>

#include "looks/gifwriter.h"

namespace veneerer::fuzz {

namespace {

constexpr int kMostSide = 60;  // pixels

QString skinsFolder() {
  return QStringLiteral(VENEERER_SOURCE_DIR "/Skins/");
}

void writeSmall(const QString& from, const QString& to) {
  const QImage whole(from);
  const QSize size = whole.size().scaled(kMostSide, kMostSide, Qt::KeepAspectRatio).boundedTo(whole.size());
  const QImage image = whole.scaled(size.expandedTo(QSize(1, 1)));
  if (to.endsWith(u".gif", Qt::CaseInsensitive))
    test::writeBytes(to, looks::gifFile({image.convertToFormat(QImage::Format_Indexed8)}));
  else
    image.save(to);
}

}  // namespace

test::Files shippedFiles(const QStringList& patterns, qsizetype mostBytes) {
  test::Files files = test::filesBelow(skinsFolder(), patterns);
  files.removeIf([&](const auto& file) { return file.value().size() > mostBytes; });
  return files;
}

void makeSmallSkin(const QString& shipped, const QString& folder) {
  const QString from = skinsFolder() + shipped;
  for (const QString& name : QDir(from).entryList(QDir::Files))
    test::writeBytes(folder + u'/' + name, test::bytesOf(from + u'/' + name));
  QDir().mkpath(folder + QStringLiteral("/images"));
  for (const QString& name : QDir(from + QStringLiteral("/images")).entryList(QDir::Files))
    writeSmall(from + QStringLiteral("/images/") + name, folder + QStringLiteral("/images/") + name);
}

void copyFolder(const QString& from, const QString& to) {
  QDir(to).removeRecursively();
  const test::Files files = test::filesBelow(from);
  for (auto file = files.begin(); file != files.end(); ++file)
    test::writeBytes(to + u'/' + file.key(), *file);
}

}  // namespace veneerer::fuzz
