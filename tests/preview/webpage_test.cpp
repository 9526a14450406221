// The web page of a Skin, read as a browser reads it.
#include "preview/webpage.h"

#include <QCryptographicHash>
#include <QImage>
#include <QRegularExpression>
#include <QSet>

#include "canvas/screens.h"
#include "preview/previewfixture.h"
#include "preview/screenpicture.h"

namespace veneerer {
namespace {

class WebPage : public test::PreviewFixture {
protected:
  void SetUp() override {
    // Small pictures are soon encoded.
    state.form1.setWidth(15 * 300);
    state.form1.setHeight(15 * 200);
  }
  QString page(const QString& skin = "S") { return QString::fromUtf8(webPage(state, screen, skin)); }

  static QStringList found(const QString& text, const char* pattern) {
    QStringList all;
    static const auto options = QRegularExpression::DotMatchesEverythingOption;
    for (const auto& match : QRegularExpression(pattern, options).globalMatch(text)) all << match.captured(1);
    return all;
  }
};

TEST_F(WebPage, LeadsToScreensThatItHolds) {
  const QString text = page();
  const QStringList sections = found(text, "<section id=\"([^\"]*)\"");
  const QStringList links = found(text, "href=\"#([^\"]*)\"");
  EXPECT_EQ(sections.size(), 32);
  const QSet<QString> ids(sections.begin(), sections.end());
  EXPECT_EQ(ids.size(), 32);
  EXPECT_GT(links.size(), 32 * 3);
  for (const QString& link : links) EXPECT_TRUE(ids.contains(link)) << link.toStdString();
  EXPECT_EQ(found(text, "href=\"([^#])"), QStringList()) << "nothing leads out of the page";
  // Each screen's heading names it, and each picture and each area has words.
  EXPECT_EQ(found(text, "aria-labelledby=\"([^\"]*)\""), found(text, "<h2 id=\"([^\"]*)\""));
  EXPECT_EQ(found(text, "<img [^>]*alt=\"([^\"]+)\"").size(), 32);
  EXPECT_EQ(found(text, "<a href=\"#[^\"]*\" (style)"), QStringList());
}

TEST_F(WebPage, HoldsEachScreensPictureAndLoadsNothing) {
  const QString text = page();
  const QStringList pictures = found(text, "src=\"([^\"]*)\"");
  ASSERT_EQ(pictures.size(), 32);
  CanvasPainter painter;
  for (const int entry : {0, 4, 31}) {
    const QByteArray png = QByteArray::fromBase64(pictures[entry].section(',', 1).toLatin1());
    EXPECT_TRUE(QImage::fromData(png, "PNG").convertToFormat(QImage::Format_RGB32) ==
                screenPicture(state, screen, painter, entry))
        << entry;
  }
  for (const QString& picture : pictures) EXPECT_TRUE(picture.startsWith("data:image/png;base64,"));
  EXPECT_FALSE(text.contains("http:") || text.contains("https:") || text.contains("url("));
}

TEST_F(WebPage, RunsItsOwnScriptAlone) {
  const QString text = page();
  const QStringList scripts = found(text, "<script>(.*?)</script>");
  ASSERT_EQ(scripts.size(), 1);
  const QByteArray hash =
      QCryptographicHash::hash(scripts[0].toUtf8(), QCryptographicHash::Sha256).toBase64();
  EXPECT_TRUE(text.contains("script-src 'sha256-" + QString::fromLatin1(hash) + "';"));
}

TEST_F(WebPage, ShowsAStrangersTextsAsTheyStand) {
  state.form1.lvButtons_H1[0].setCaption("\"><script>alert(1)</script><b a='%1 %2&amp;\u202e");
  const QString text = page("</title><img src=x onerror=alert(2)>%3");
  EXPECT_EQ(text.count("<script>"), 1);
  EXPECT_FALSE(text.contains("<b a") || text.contains("<img src=x"));
  EXPECT_TRUE(
      text.contains("aria-label=\"&quot;&gt;&lt;script&gt;alert(1)&lt;/script&gt;&lt;b a='%1 %2&amp;amp;?"));
  EXPECT_TRUE(text.contains("<h1>&lt;/title&gt;&lt;img src=x onerror=alert(2)&gt;%3</h1>"));
  EXPECT_FALSE(text.contains(QChar(0x202e)));
}

TEST_F(WebPage, MakesHugeScreensSmaller) {
  state.form1.setWidth(15.0f * 4000);
  state.form1.setHeight(15.0f * 100);
  EXPECT_EQ(found(page(), "<img width=\"(1920\" height=\"48)\"").size(), 32);
}

}  // namespace
}  // namespace veneerer
