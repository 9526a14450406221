// The translations, as far as a machine can judge them. That they have all texts of the sources is told by
// tools/translations.sh --check.
#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QStringList>
#include <QXmlStreamReader>

#include "support/files.h"

namespace veneerer::test {
namespace {

struct Message {
  QString source;
  QString translation;
  QString state;  ///< empty for a finished one

  std::string told() const { return (source + " -> " + translation).toStdString(); }
};

QList<Message> messagesOf(const QByteArray& file) {
  QList<Message> messages;
  QXmlStreamReader xml(file);
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement) continue;
    if (xml.name() == u"source") messages.append({xml.readElementText(), {}, {}});
    if (xml.name() != u"translation") continue;
    messages.last().state = xml.attributes().value("type").toString();
    messages.last().translation = xml.readElementText();
  }
  EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  return messages;
}

QList<Message> allMessages() {
  QList<Message> messages;
  for (const QByteArray& file : filesBelow(QStringLiteral(VENEERER_SOURCE_DIR "/translations"), {"*.ts"}))
    messages << messagesOf(file);
  return messages;
}

/// Sorted: a translation may turn their order round.
QStringList placeHolders(const QString& text) {
  static const QRegularExpression holder("%(\\d|n)");
  QStringList found;
  for (const auto& match : holder.globalMatch(text)) found << match.captured();
  found.sort();
  return found;
}

qsizetype mnemonics(QString text) {
  static const QRegularExpression mark("&\\w");
  return text.remove("&&").count(mark);
}

QString blanksAround(const QString& text) {
  static const QRegularExpression around("^(\\s*).*?(\\s*)$", QRegularExpression::DotMatchesEverythingOption);
  const auto match = around.match(text);
  return match.captured(1) + '|' + match.captured(2);
}

TEST(Translations, AreFinishedAndFit) {
  const QList<Message> messages = allMessages();
  EXPECT_GT(messages.size(), 700);
  for (const Message& each : messages) {
    EXPECT_TRUE(each.state.isEmpty() && !each.translation.isEmpty()) << each.told();
    EXPECT_EQ(placeHolders(each.translation), placeHolders(each.source)) << each.told();
    EXPECT_EQ(blanksAround(each.translation), blanksAround(each.source)) << each.told();
    // A hexadecimal number begins with such a mark, which is none.
    if (!each.source.contains("&H and")) {
      EXPECT_EQ(mnemonics(each.translation), mnemonics(each.source)) << each.told();
    }
  }
}

}  // namespace
}  // namespace veneerer::test
