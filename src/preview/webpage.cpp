#include "preview/webpage.h"

#include <QCryptographicHash>
#include <stdexcept>

#include "canvas/screens.h"
#include "elements/printable.h"
#include "images/pictureencoding.h"
#include "preview/eachscreen.h"
#include "preview/screenlinks.h"
#include "preview/screenpicture.h"
#include "preview/texts.h"
#include "preview/webpageparts.h"

namespace veneerer {

namespace {

constexpr int kScreens = static_cast<int>(kScreenEntries.size());

/// A stranger's text as it stands, in an element or between double quotes of an attribute.
QString html(const QString& text) {
  return printable(text).toHtmlEscaped();
}

QString anchor(int entry) {
  return QStringLiteral("screen-%1").arg(entry);
}

QString linkTo(int entry, const QString& words) {
  return QStringLiteral("<a href=\"#%1\">%2</a>").arg(anchor(entry), html(words));
}

// No other script runs, whatever a text may manage to become, and nothing is loaded.
QString policy() {
  const QByteArray hash = QCryptographicHash::hash(kPageScript, QCryptographicHash::Sha256).toBase64();
  return QStringLiteral(
             "default-src 'none'; img-src data:; style-src 'unsafe-inline'; script-src 'sha256-%1'; "
             "base-uri 'none'; form-action 'none'")
      .arg(QString::fromLatin1(hash));
}

QString head(const QString& title) {
  return QStringLiteral(
             "<!DOCTYPE html>\n<html lang=\"%4\">\n<head>\n<meta charset=\"utf-8\">\n"
             "<meta http-equiv=\"Content-Security-Policy\" content=\"%1\">\n"
             "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
             "<title>%2</title>\n<style>%3</style>\n</head>\n<body>\n")
      .arg(policy(), title, QString::fromLatin1(kPageStyle),
           //: The code of the language that the page is in
           PreviewTexts::tr("en"));
}

QString contents(const QString& title) {
  QString text = QStringLiteral("<header>\n<h1>%1</h1>\n<nav aria-label=\"%2\">\n<ul>\n")
                     .arg(title, html(PreviewTexts::tr("All screens")));
  for (int entry = 0; entry < kScreens; ++entry)
    text += QStringLiteral("<li>%1</li>\n").arg(linkTo(entry, screenTitle(entry)));
  return text + QStringLiteral("</ul>\n</nav>\n<p>%1</p>\n</header>\n<main>\n")
                    .arg(html(PreviewTexts::tr("The left and right arrow keys leaf through the screens; the "
                                               "buttons of the menu lead to theirs.")));
}

QString percent(double part) {
  return QString::number(part * 100, 'f', 3) + u'%';
}

QString area(const ScreenLink& link) {
  const QString screen = screenTitle(link.entry);
  const QString name = link.caption.isEmpty() ? screen : link.caption + QStringLiteral(": ") + screen;
  return QStringLiteral("<a href=\"#%1\" aria-label=\"%2\" title=\"%2\" ")
             .arg(anchor(link.entry), html(name)) +
         QStringLiteral("style=\"left:%1;top:%2;width:%3;height:%4\"></a>\n")
             .arg(percent(link.place.x()), percent(link.place.y()), percent(link.place.width()),
                  percent(link.place.height()));
}

QByteArray pngOf(const QImage& image) {
  const QSize size = reducedTo(image.size(), kMostPageSide);
  const QImage shown =
      size == image.size() ? image : image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  QByteArray png = encodePicture(shown, "PNG");
  if (png.isEmpty()) throw std::runtime_error("the picture of a screen can't be encoded");
  return png;
}

QByteArray pictureTag(int entry, const QImage& image) {
  const QSize size = reducedTo(image.size(), kMostPageSide);
  const QString tag =
      QStringLiteral("<img width=\"%1\" height=\"%2\" alt=\"%3\" src=\"data:image/png;base64,")
          .arg(size.width())
          .arg(size.height())
          .arg(html(PreviewTexts::tr("%1 as the jukebox shows it").arg(screenTitle(entry))));
  return tag.toUtf8() + pngOf(image).toBase64() + "\">\n";
}

// In UTF-8 from here on: there is no second copy of all pictures.
QByteArray sectionTag(int entry, const QImage& image, const std::vector<ScreenLink>& links) {
  const int before = (entry + kScreens - 1) % kScreens;
  const int behind = (entry + 1) % kScreens;
  QByteArray text = QStringLiteral(
                        "<section id=\"%1\" aria-labelledby=\"%1-title\">\n"
                        "<h2 id=\"%1-title\" tabindex=\"-1\">%2</h2>\n<div class=\"screen\">\n")
                        .arg(anchor(entry), html(screenTitle(entry)))
                        .toUtf8();
  text += pictureTag(entry, image);
  for (const ScreenLink& link : links) text += area(link).toUtf8();
  return text + QStringLiteral(
                    "</div>\n<nav aria-label=\"%1\"><ul><li>%2</li>"
                    "<li>%3</li></ul></nav>\n</section>\n")
                    .arg(html(PreviewTexts::tr("Neighbours")),
                         PreviewTexts::tr("Previous: %1").arg(linkTo(before, screenTitle(before))),
                         PreviewTexts::tr("Next: %1").arg(linkTo(behind, screenTitle(behind))))
                    .toUtf8();
}

}  // namespace

QByteArray webPage(State& state, const Screen& screen, const QString& skinName, Progress* progress) {
  const QString title = html(shownText(skinName));
  QByteArray page = (head(title) + contents(title)).toUtf8();
  forEachScreen(state, screen, progress, [&](int entry, const QImage& image) {
    page += sectionTag(entry, image, screenLinks(state, screen, entry));
  });
  return page + "</main>\n<script>" + kPageScript + "</script>\n</body>\n</html>\n";
}

}  // namespace veneerer
