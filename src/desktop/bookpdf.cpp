#include "desktop/bookpdf.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPdfWriter>
#include <QSaveFile>
#include <QTextBlock>
#include <QTextDocument>
#include <QUrl>
#include <algorithm>
#include <cmath>
#include <vector>

#include "chronicle/book.h"
#include "desktop/drawn/drawn.h"
#include "desktop/pieces.h"
#include "records/fields/charset.h"

// The chronicle on paper: the same pages as in HTML, with pictures that are drawn here and numbers
// in place of links.

namespace grapplemont::desktop {

namespace {

constexpr int kSharp = 3;  // dots a unit of a picture
constexpr QSize kSign(80, 80), kPlate(140, 70), kChart(460, 120);

QSize SizeOf(const Figure& figure) {
  return figure.Is == Figure::Kind::Crest   ? kSign
         : figure.Is == Figure::Kind::Plate ? kPlate
                                            : kChart;
}

void DrawValues(QPainter& painter, const QRectF& room, const Figure& figure) {
  const auto [least, most] = std::ranges::minmax(figure.Values);
  const bool bars = figure.Is == Figure::Kind::Bars;
  const double low = bars ? 0 : least, span = most > low ? most - low : 1;
  const auto count = static_cast<double>(figure.Values.size());
  const QRectF field = room.adjusted(44, 6, -6, -20);
  const double step = field.width() / (bars ? count : std::max(1.0, count - 1));
  QPainterPath line;
  for (std::size_t i = 0; i < figure.Values.size(); ++i) {
    const double x = field.left() + static_cast<double>(i) * step;
    const double y = field.bottom() - (figure.Values[i] - low) / span * field.height();
    if (bars)
      painter.fillRect(QRectF(x, y, step * 0.8, field.bottom() - y), QColor(0x3C6BAA));
    else
      i == 0 ? line.moveTo(x, y) : line.lineTo(x, y);
  }
  painter.setPen(QPen(QColor(0x3C6BAA), 1.6));
  painter.drawPath(line);
  painter.setPen(Qt::black);
  const auto write = [&](const QRectF& where, int how, const QString& words) {
    painter.drawText(where, how, words);
  };
  write({0, field.top() - 6, 40, 16}, Qt::AlignRight, QString::number(most));
  write({0, field.bottom() - 10, 40, 16}, Qt::AlignRight, QString::number(low));
  if (figure.Captions.size() != 2) return;
  const QRectF below(field.left(), field.bottom() + 2, field.width(), 16);
  write(below, Qt::AlignLeft, Shown(figure.Captions[0]));
  write(below, Qt::AlignRight, Shown(figure.Captions[1]));
}

QImage ImageOf(const Figure& figure) {
  const QSize size = SizeOf(figure);
  QImage image(size * kSharp, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(kSharp, kSharp);
  const QRectF room(QPointF(0, 0), QSizeF(size));
  if (figure.Is == Figure::Kind::Crest)
    DrawCrest(painter, room, {figure.Number, figure.Words, figure.Level});
  else if (figure.Is == Figure::Kind::Plate)
    DrawPlate(painter, room, {figure.Number, figure.Words, figure.Level, figure.Several, false});
  else
    DrawValues(painter, room, figure);
  return image;
}

/// On which page each chapter begins; they are in the order of their anchors.
std::vector<int> PagesOf(const QTextDocument& document) {
  std::vector<int> pages;
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
    for (auto part = block.begin(); !part.atEnd(); ++part)
      for (const QString& name : part.fragment().charFormat().anchorNames())
        if (name.startsWith('c')) {
          const double top = document.documentLayout()->blockBoundingRect(block).top();
          pages.push_back(static_cast<int>(top / document.pageSize().height()) + 1);
        }
  return pages;
}

constexpr int kFoot = 32;  // of a page, for its number

/// Every page, and its number at the foot.
void Print(const QTextDocument& document, QPdfWriter& paper) {
  const QSizeF page = document.pageSize();
  QPainter painter(&paper);
  QAbstractTextDocumentLayout::PaintContext look;
  look.palette.setColor(QPalette::Text, Qt::black);
  for (int number = 1; number <= document.pageCount(); ++number) {
    if (number > 1) paper.newPage();
    const double top = (number - 1) * page.height();
    look.clip = QRectF(QPointF(0, top), page);
    painter.save();
    painter.translate(0, -top);
    painter.setClipRect(look.clip);
    document.documentLayout()->draw(&painter, look);
    painter.restore();
    painter.setFont(document.defaultFont());
    painter.drawText(QRectF(0, page.height(), page.width(), kFoot),
                     Qt::AlignHCenter | Qt::AlignBottom, QString::number(number));
  }
}

}  // namespace

std::string WriteBookPdf(const World& world, const std::string& file, int voice) {
  const WorldBook book = WriteBook(Archive(world), voice);
  QTextDocument document;
  document.setDefaultFont(QFont("Georgia", 10));
  int pictures = 0;
  BookForm form;
  form.Printed = true;
  form.Picture = [&](const Figure& figure) {
    const QString name = QString("figure:%1").arg(++pictures);
    document.addResource(QTextDocument::ImageResource, QUrl(name), ImageOf(figure));
    const QSize size = SizeOf(figure);
    return QString("<img src=\"%1\" width=\"%2\" height=\"%3\">")
        .arg(name)
        .arg(size.width())
        .arg(size.height())
        .toStdString();
  };
  QSaveFile out(QString::fromStdString(file));
  const auto failed = [&] {
    return "Could not write " + ForScreen(file) + ": " + Keep(out.errorString()).Text + ".";
  };
  if (!out.open(QIODevice::WriteOnly)) return failed();
  QPdfWriter paper(&out);
  paper.setPageSize(QPageSize(QPageSize::A4));
  paper.setResolution(96);
  paper.setTitle(Shown(book.Title));
  document.setPageSize(paper.pageLayout().paintRectPixels(96).size() - QSize(0, kFoot));
  document.documentLayout()->setPaintDevice(&paper);
  const auto lay = [&] {
    pictures = 0;
    document.setHtml(QString::fromStdString(HtmlOf(world, book, form)));
  };
  lay();
  form.Pages = PagesOf(document);
  lay();
  Print(document, paper);
  return out.commit() ? std::string() : failed();
}

}  // namespace grapplemont::desktop
