#include "paper/BlockLayout.h"

#include <QFontMetricsF>
#include <QTextLayout>
#include <algorithm>

#include "paper/Fragments.h"
#include "paper/Units.h"

namespace fidaleon::paper {
namespace {

constexpr qreal kSlightestSpacing = 1.0 / 64;  // dots: the least that the toolkit keeps
constexpr qreal kFieldGap = 1.5;               // millimetres between label and value
constexpr qreal kFieldDrop = 0.5;              // between value and line
constexpr qreal kFieldLine = 0.1;

}  // namespace

BlockLayout::BlockLayout(const ReportTemplate& t, qreal scale) : template_(t), scale_(scale) {}

FragmentPtr BlockLayout::layOut(const std::vector<Block>& blocks, const Source& source, qreal width,
                                bool keep) const {
  std::vector<FragmentPtr> out;
  for (const Block& block : blocks) add(block, source, width, out);
  if (out.empty()) return nullptr;
  if (out.size() == 1 && !keep) return out.front();
  return std::make_shared<StackFragment>(std::move(out), keep);
}

void BlockLayout::add(const Block& block, const Source& source, qreal width,
                      std::vector<FragmentPtr>& out) const {
  if (block.condition && !holds(*block.condition, source)) return;
  FragmentPtr made;
  switch (block.kind) {
    case Block::Kind::Space:
      return addSpace(block.height, out);
    case Block::Kind::Paragraph:
      made = paragraph(expand(block.text, source), block.style, width);
      break;
    case Block::Kind::Group:
      made = layOut(block.children, source, width, block.keep);
      break;
    case Block::Kind::Columns:
      made = columns(block, source, width);
      break;
    case Block::Kind::Box:
      made = box(block, source, width);
      break;
    case Block::Kind::Field:
      made = field(block, source, width);
      break;
    case Block::Kind::Rule:
      made = std::make_shared<RuleFragment>(width, dotsOfMillimetres(block.thickness));
      break;
  }
  if (!made) return;
  addSpace(block.style.before, out);
  out.push_back(std::move(made));
  addSpace(block.style.after, out);
}

void BlockLayout::addSpace(qreal millimetres, std::vector<FragmentPtr>& out) const {
  if (millimetres > 0)
    out.push_back(std::make_shared<SpaceFragment>(dotsOfMillimetres(millimetres) * scale_));
}

FragmentPtr BlockLayout::columns(const Block& block, const Source& source, qreal width) const {
  const qreal gap = dotsOfMillimetres(block.gap);
  qreal left =
      width - gap * static_cast<qreal>(std::max<std::size_t>(block.children.size(), 1) - 1);
  int sharing = 0;
  for (const Block& c : block.children) {
    left -= dotsOfMillimetres(c.width);
    if (c.width <= 0) ++sharing;
  }
  const qreal share = sharing > 0 ? std::max<qreal>(left / sharing, dotsOfMillimetres(5)) : 0;
  std::vector<ColumnsFragment::Column> made;
  qreal x = 0;
  for (const Block& c : block.children) {
    const qreal w = c.width > 0 ? dotsOfMillimetres(c.width) : share;
    const bool shown = !c.condition || holds(*c.condition, source);
    made.push_back({x, shown ? layOut(c.children, source, w, c.keep) : nullptr});
    x += w + gap;
  }
  const bool any = std::any_of(made.begin(), made.end(), [](const auto& c) { return !!c.content; });
  if (!any) return nullptr;
  const qreal divider = block.divider ? dotsOfMillimetres(block.thickness) : 0;
  return std::make_shared<ColumnsFragment>(std::move(made),
                                           ColumnsFragment::Look{divider, gap, block.keep});
}

FragmentPtr BlockLayout::box(const Block& block, const Source& source, qreal width) const {
  BoxFragment::Look look;
  look.width = width;
  look.leastHeight = dotsOfMillimetres(block.height);
  look.padding = dotsOfMillimetres(block.padding);
  look.thickness = dotsOfMillimetres(block.thickness);
  look.dashed = block.dashed;
  look.keep = block.keep;
  return std::make_shared<BoxFragment>(layOut(block.children, source, width - 2 * look.padding),
                                       look);
}

FragmentPtr BlockLayout::field(const Block& block, const Source& source, qreal width) const {
  const Expanded label = expand(block.label, source);
  const QFontMetricsF labelMetrics(font(block.labelStyle, {}));
  const QFontMetricsF valueMetrics(font(block.style, {}));
  const qreal gap = dotsOfMillimetres(kFieldGap);
  qreal labelWidth = dotsOfMillimetres(block.width);
  if (labelWidth <= 0 && !label.text.isEmpty())
    labelWidth = labelMetrics.horizontalAdvance(label.text) + dotsOfPoints(1);
  const qreal x = labelWidth > 0 ? labelWidth + gap : 0;

  // All the leading goes above the value, so that it stands on its line.
  const qreal above = valueMetrics.height() * (block.style.leading - 1);
  std::vector<FragmentPtr> left;
  left.push_back(std::make_shared<SpaceFragment>(
      std::max<qreal>(0, above + valueMetrics.ascent() - labelMetrics.ascent())));
  TextStyle labelStyle = block.labelStyle;
  labelStyle.align = Qt::AlignLeft;
  if (FragmentPtr p = paragraph(label, labelStyle, std::max(labelWidth, gap))) left.push_back(p);

  Expanded value = expand(block.text, source);
  if (value.text.isEmpty() || (block.writeIn && !value.anyValue))
    value = {QStringLiteral(" "), {}, false};
  TextStyle valueStyle = block.style;
  valueStyle.leading = 1;
  std::vector<FragmentPtr> right{std::make_shared<SpaceFragment>(above)};
  if (FragmentPtr p = paragraph(value, valueStyle, width - x)) right.push_back(p);
  right.push_back(std::make_shared<SpaceFragment>(dotsOfMillimetres(kFieldDrop)));
  right.push_back(std::make_shared<RuleFragment>(width - x, dotsOfMillimetres(kFieldLine),
                                                 RuleFragment::Ink::Grey));

  std::vector<ColumnsFragment::Column> made{
      {0, std::make_shared<StackFragment>(std::move(left), false)},
      {x, std::make_shared<StackFragment>(std::move(right), false)}};
  return std::make_shared<ColumnsFragment>(std::move(made), ColumnsFragment::Look{});
}

FragmentPtr BlockLayout::paragraph(const Expanded& expanded, const TextStyle& style,
                                   qreal width) const {
  if (expanded.text.isEmpty()) return nullptr;
  auto layout = std::make_shared<QTextLayout>(expanded.text, font(style, {}));
  QTextOption option(style.align);
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  option.setUseDesignMetrics(true);
  layout->setTextOption(option);
  QList<QTextLayout::FormatRange> formats;
  for (const Stretch& s : expanded.stretches) {
    QTextLayout::FormatRange range;
    range.start = static_cast<int>(s.start);
    range.length = static_cast<int>(s.length);
    range.format.setFont(font(style, s.face));
    formats.append(range);
  }
  if (!formats.isEmpty()) layout->setFormats(formats);
  layout->beginLayout();
  const qreal indent = dotsOfMillimetres(style.indent) * scale_;
  for (QTextLine line = layout->createLine(); line.isValid(); line = layout->createLine()) {
    const qreal in = line.lineNumber() == 0 ? indent : 0;
    line.setLineWidth(width - in);
    line.setPosition({in, 0});
  }
  layout->endLayout();
  const int lines = layout->lineCount();
  return std::make_shared<TextFragment>(std::move(layout), 0, lines, style.leading);
}

const QFont& BlockLayout::font(const TextStyle& style, const Face& face) const {
  const bool bold = style.bold || face.bold;
  const bool italic = style.italic || face.italic;
  const bool smallCaps = style.smallCaps || face.smallCaps;
  const int size = qRound(dotsOfPoints(style.size) * scale_);
  const FontKey key{size, bold, italic, smallCaps, qRound(style.tracking * 10)};
  const auto found = fonts_.find(key);
  if (found != fonts_.end()) return found->second;
  QFont f;
  f.setFamilies(template_.fonts);
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
