#include "window/help/HelpPage.h"

#include <QAbstractTextDocumentLayout>
#include <QEvent>
#include <QFileInfo>
#include <QImageReader>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextFragment>
#include <QTextTable>
#include <algorithm>

#include "qt/Appearance.h"

namespace fidaleon::app {
namespace {

constexpr double LINE_PERCENT = 125;
constexpr int CELL_PADDING = 5;

bool isHeading(const QTextBlock& block) {
  return block.blockFormat().headingLevel() > 0;
}

/// Room between the lines, and tables that can be told from the text.
void dressTable(QTextTable& table, const QColor& line) {
  QTextTableFormat format = table.format();
  format.setBorder(1);
  format.setBorderBrush(line);
  format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
  format.setBorderCollapse(true);
  format.setCellPadding(CELL_PADDING);
  format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
  table.setFormat(format);
}

}  // namespace

QString folded(const QString& text) {
  QString plain(text.size(), u' ');
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QString parts = text.at(i).decomposition();
    plain[i] = (parts.isEmpty() ? text.at(i) : parts.at(0)).toCaseFolded();
  }
  return plain;
}

HelpPage::HelpPage(const Manual& manual, QWidget* parent) : QTextBrowser(parent), manual_(manual) {
  setAccessibleName(tr("Texto del manual"));
  setOpenExternalLinks(false);
  setFrameShape(QFrame::NoFrame);
  document()->setDocumentMargin(18);
}

void HelpPage::show(const Place& place) {
  QUrl url = QUrl::fromLocalFile(
      QString::fromStdString((manual_.directory() / place.file).lexically_normal().string()));
  if (!place.heading.empty()) url.setFragment(QString::fromStdString(place.heading));
  setSource(url);
  // Asked for again from further down.
  if (url == source()) jumpTo(QString::fromStdString(place.heading));
}

Place HelpPage::place() const {
  const int top = cursorForPosition({0, fontMetrics().height()}).position();
  Place at{source().fileName().toStdString(), {}};
  for (QTextBlock b = document()->begin(); b.isValid() && b.position() <= top; b = b.next())
    if (isHeading(b)) at.heading = b.text().toStdString();
  return at;
}

// Anything but a chapter is not opened: there may be no network, and a priest who reads in peace
// is not sent elsewhere.
void HelpPage::doSetSource(const QUrl& url, QTextDocument::ResourceType type) {
  const QUrl whole = source().isEmpty() ? url : source().resolved(url);
  if (!whole.isLocalFile() || !manual_.find({whole.fileName().toStdString(), {}})) return;
  QTextBrowser::doSetSource(whole, type);
  dress();
  jumpTo(whole.fragment());
}

// Pictures of the manual are read; nothing is fetched from elsewhere.
QVariant HelpPage::loadResource(int type, const QUrl& url) {
  if (!source().resolved(url).isLocalFile()) return {};
  return QTextBrowser::loadResource(type, url);
}

QTextBlock HelpPage::blockOf(const std::string& heading) const {
  for (QTextBlock b = document()->begin(); b.isValid(); b = b.next())
    if (isHeading(b) && sameHeading(b.text().toStdString(), heading)) return b;
  return {};
}

void HelpPage::jumpTo(const QString& heading) {
  const QTextBlock block = heading.isEmpty() ? document()->begin() : blockOf(heading.toStdString());
  if (!block.isValid()) return;
  setTextCursor(QTextCursor(block));
  const QRectF at = document()->documentLayout()->blockBoundingRect(block);
  verticalScrollBar()->setValue(heading.isEmpty() ? 0 : static_cast<int>(at.top()) - 8);
}

void HelpPage::dress() {
  QTextCursor all(document());
  all.select(QTextCursor::Document);
  QTextBlockFormat lines;
  lines.setLineHeight(LINE_PERCENT, QTextBlockFormat::ProportionalHeight);
  all.mergeBlockFormat(lines);
  for (QTextFrame* frame : document()->rootFrame()->childFrames())
    if (auto* table = qobject_cast<QTextTable*>(frame))
      dressTable(*table, qt::legible(palette()).color(QPalette::Mid));
  fitPictures();
}

// As wide as the page lets them be, and no larger than they are.
void HelpPage::fitPictures() {
  const double room = viewport()->width() - 2 * document()->documentMargin();
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
    for (auto part = block.begin(); !part.atEnd(); ++part) {
      QTextImageFormat picture = part.fragment().charFormat().toImageFormat();
      if (!picture.isValid()) continue;
      const QString file = source().resolved(QUrl(picture.name())).toLocalFile();
      if (file.isEmpty()) continue;  // of no chapter that stands in a file
      const QSize natural = QImageReader(file).size();
      if (natural.isEmpty()) continue;
      const double width = std::min<double>(natural.width(), std::max(100.0, room));
      if (qFuzzyCompare(picture.width(), width)) continue;
      picture.setWidth(width);
      picture.setHeight(natural.height() * width / natural.width());
      QTextCursor cursor(document());
      cursor.setPosition(part.fragment().position());
      cursor.setPosition(part.fragment().position() + part.fragment().length(),
                         QTextCursor::KeepAnchor);
      cursor.setCharFormat(picture);
      break;  // the block has other fragments now
    }
  }
}

void HelpPage::mark(const QString& words) {
  QList<QTextEdit::ExtraSelection> marks;
  const QStringList wanted = folded(words).split(' ', Qt::SkipEmptyParts);
  QTextCharFormat under;
  under.setBackground(qt::isDark(palette()) ? QColor(112, 92, 20) : QColor(255, 236, 150));
  for (QTextBlock b = document()->begin(); b.isValid(); b = b.next()) {
    const QString text = folded(b.text());
    for (const QString& word : wanted) {
      for (qsizetype at = text.indexOf(word); at >= 0; at = text.indexOf(word, at + 1)) {
        QTextCursor cursor(b);
        cursor.setPosition(b.position() + static_cast<int>(at));
        cursor.setPosition(cursor.position() + static_cast<int>(word.size()),
                           QTextCursor::KeepAnchor);
        marks.append({cursor, under});
      }
    }
  }
  setExtraSelections(marks);
}

void HelpPage::resizeEvent(QResizeEvent* event) {
  QTextBrowser::resizeEvent(event);
  fitPictures();
}

// Colours and letters are set when a chapter is read.
void HelpPage::changeEvent(QEvent* event) {
  QTextBrowser::changeEvent(event);
  const bool looks = event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange;
  if (!looks || source().isEmpty()) return;
  const int at = verticalScrollBar()->value();
  reload();
  dress();
  verticalScrollBar()->setValue(at);
}

}  // namespace fidaleon::app
