#include "paper/TextSetter.h"

#include <QFontMetricsF>
#include <QTextLayout>
#include <algorithm>

#include "paper/Fragments.h"
#include "paper/Units.h"

namespace fidaleon::paper {
namespace {

constexpr qreal kSlightestSpacing = 1.0 / 64;  // dots: the least that the toolkit keeps
constexpr qsizetype kShortText = 40;
constexpr qsizetype kShelfRoom = 500;

}  // namespace

FragmentPtr TextSetter::paragraph(const Expanded& text, const TextStyle& style, qreal width) const {
  if (text.text.isEmpty()) return nullptr;
  if (text.text.size() > kShortText || !text.stretches.isEmpty()) return set(text, style, width);
  Shelf& shelf = shelves_[{&style, width}];
  const auto found = shelf.texts.constFind(text.text);
  if (found != shelf.texts.constEnd()) return *found;
  if (shelf.texts.size() >= kShelfRoom) shelf.texts.clear();
  return *shelf.texts.insert(text.text, set(text, style, width));
}

FragmentPtr TextSetter::set(const Expanded& text, const TextStyle& style, qreal width) const {
  const QString shown = style.oneLine ? elided(text.text, style, width) : text.text;
  auto layout = std::make_shared<QTextLayout>(shown, font(style, {}));
  QTextOption option(style.align);
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  option.setUseDesignMetrics(true);
  layout->setTextOption(option);
  layout->setCacheEnabled(true);  // so that painting shapes no word again
  QList<QTextLayout::FormatRange> formats;
  for (const Stretch& s : text.stretches) {
    QTextLayout::FormatRange range;
    range.start = static_cast<int>(s.start);
    range.length = static_cast<int>(std::min(s.length, shown.size() - s.start));
    range.format.setFont(font(style, s.face));
    if (range.length > 0) formats.append(range);
  }
  if (!formats.isEmpty()) layout->setFormats(formats);
  layout->beginLayout();
  const qreal first = dotsOfMillimetres(style.indent) * scale_;
  const qreal others = dotsOfMillimetres(style.hang) * scale_;
  for (QTextLine line = layout->createLine(); line.isValid(); line = layout->createLine()) {
    const qreal in = line.lineNumber() == 0 ? first : others;
    line.setLineWidth(width - in);
    line.setPosition({in, 0});
    if (style.oneLine) break;
  }
  layout->endLayout();
  const int lines = layout->lineCount();
  if (style.leader)
    return std::make_shared<LeaderFragment>(std::move(layout), lines, style.leading, width);
  return std::make_shared<TextFragment>(std::move(layout), 0, lines, style.leading);
}

QString TextSetter::elided(const QString& text, const TextStyle& style, qreal width) const {
  QString line = text;
  line.replace(QChar(QChar::LineSeparator), QLatin1Char(' '));
  return QFontMetricsF(font(style, {})).elidedText(line, Qt::ElideRight, width);
}

const QFont& TextSetter::font(const TextStyle& style, const Face& face) const {
  const bool bold = style.bold || face.bold;
  const bool italic = style.italic || face.italic;
  const bool smallCaps = style.smallCaps || face.smallCaps;
  const int size = qRound(dotsOfPoints(style.size) * scale_);
  const FontKey key{size, bold, italic, smallCaps, qRound(style.tracking * 10)};
  const auto found = fonts_.find(key);
  if (found != fonts_.end()) return found->second;
  QFont f;
  f.setFamilies(families_);
  f.setPixelSize(std::max(size, 10));
  f.setBold(bold);
  f.setItalic(italic);
  if (smallCaps) f.setCapitalization(QFont::SmallCaps);
  // Spacing of any width also keeps "fi" from becoming one glyph, which names copied out of a
  // PDF could not be found by.
  if (style.tracking > 0)
    f.setLetterSpacing(QFont::PercentageSpacing, 100 + style.tracking);
  else
    f.setLetterSpacing(QFont::AbsoluteSpacing, kSlightestSpacing);
  f.setHintingPreference(QFont::PreferNoHinting);
  f.setStyleStrategy(QFont::PreferOutline);
  return fonts_.emplace(key, f).first->second;
}

}  // namespace fidaleon::paper
