#include "cases/caseskin.h"

#include <QFileInfo>
#include <QHash>
#include <QImage>
#include <QTemporaryDir>
#include <stdexcept>

#include "skintool/batch.h"
#include "support/files.h"

namespace veneerer::test {

namespace {

// The record files of the built-in design, made once.
const Files& designFiles() {
  static const Files files = [] {
    QTemporaryDir root;
    const QString skin = root.path() + "/Skins/Design";
    const QString saved = root.path() + "/Saved";
    QDir().mkpath(skin);
    runBatch({"skintool", "save", skin, "--to", saved, "--cover", "design.cov"}, stdout, stderr);
    return filesBelow(saved);
  }();
  return files;
}

[[noreturn]] void refuse(const QString& line) {
  throw std::runtime_error("a case's Skin has no such line: " + line.toStdString());
}

class CaseSkin {
public:
  void add(const QString& line) {
    const QString verb = line.section(u' ', 0, 0);
    const QString name = line.section(u' ', 1, 1);
    const QString rest = line.section(u' ', 2);
    const QString saved = rest.isEmpty() ? name : rest;
    if (verb == u"record" && designFiles().contains(saved))
      records_.insert(name, designFiles().value(saved).split('\n'));
    else if (verb == u"line" && hasLine(name, rest.section(u' ', 0, 0).toInt()))
      records_[name][rest.section(u' ', 0, 0).toInt() - 1] = written(rest.section(u' ', 1));
    else if (verb == u"cut" && hasLine(name, rest.toInt()))
      records_[name] = records_[name].mid(0, rest.toInt()) << QByteArray();
    else if (verb == u"bytes")
      records_.insert(name, {written(rest), QByteArray()});
    else if (verb == u"picture")
      addPicture(line.mid(8));
    else
      refuse(line);
  }

  void write(const QString& folder) const {
    for (auto it = records_.begin(); it != records_.end(); ++it) {
      writeBytes(folder + '/' + it.key(), it->join('\n'));
    }
    for (auto it = pictures_.begin(); it != pictures_.end(); ++it) {
      const QString path = folder + u'/' + it.key();
      QDir().mkpath(QFileInfo(path).path());
      it->save(path, path.endsWith(".ico") ? "ICO" : "BMP");
    }
  }

private:
  bool hasLine(const QString& name, int number) const {
    return records_.contains(name) && number >= 1 && number < records_[name].size();
  }

  static QByteArray written(QString text) {
    if (text == u"\"\"") text.clear();
    return text.replace("\\s", " ").toLatin1() + '\r';
  }

  // A picture's path may hold blanks, as those of the system do.
  void addPicture(const QString& rest) {
    const QString colour = rest.section(u' ', -1);
    const QString size = rest.section(u' ', -2, -2);
    QImage image(size.section(u'x', 0, 0).toInt(), size.section(u'x', 1).toInt(), QImage::Format_RGB32);
    if (image.isNull() || !QColor::isValidColor(colour)) refuse(rest);
    image.fill(QColor(colour));
    pictures_.insert(rest.section(u' ', 0, -3), image);
  }

  QHash<QString, QByteArrayList> records_;
  QHash<QString, QImage> pictures_;
};

}  // namespace

void makeCaseSkin(const QString& text, const QString& folder) {
  CaseSkin skin;
  for (const QString& line : text.split(u'\n', Qt::SkipEmptyParts))
    if (!line.startsWith(u'#')) skin.add(line);
  skin.write(folder);
}

}  // namespace veneerer::test
