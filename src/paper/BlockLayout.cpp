#include "paper/BlockLayout.h"

#include <QFontMetricsF>
#include <algorithm>

#include "paper/Fragments.h"
#include "paper/Units.h"

namespace fidaleon::paper {
namespace {

constexpr qreal kFieldGap = 1.5;   // millimetres between label and value
constexpr qreal kFieldDrop = 0.5;  // between value and line
constexpr qreal kFieldLine = 0.1;

bool endsInWriteLines(const Block& block) {
  return !block.children.empty() && block.children.back().kind == Block::Kind::WriteLines;
}

}  // namespace

BlockLayout::BlockLayout(const ReportTemplate& t, qreal scale)
    : template_(t), scale_(scale), text_(t.fonts, scale) {}

FragmentPtr BlockLayout::layOut(std::span<const Block> blocks, const Source& source, qreal width,
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
      made = paragraph(block, source, width);
      break;
    case Block::Kind::Group:
      made = group(block, source, width);
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
    case Block::Kind::Cross:
      made = std::make_shared<CrossFragment>(width, dotsOfMillimetres(block.height) * scale_);
      break;
    case Block::Kind::WriteLines:
      made = writeLines(block, width, dotsOfMillimetres(block.height));
      break;
  }
  if (!made) return;
  addSpace(block.style.before, out);
  out.push_back(std::move(made));
  addSpace(block.style.after, out);
}

FragmentPtr BlockLayout::paragraph(const Block& block, const Source& source, qreal width) const {
  const Expanded text = expand(block.text, source);
  if (block.clause && !text.anyValue) return nullptr;
  FragmentPtr made = text_.paragraph(text, block.style, width);
  if (!made || !block.withNext) return made;
  return std::make_shared<StackFragment>(std::vector{std::move(made)},
                                         StackFragment::Look{true, true, false});
}

FragmentPtr BlockLayout::group(const Block& block, const Source& source, qreal width) const {
  FragmentPtr made = layOut(block.children, source, width, block.keep);
  if (!made || !block.clear) return made;
  return std::make_shared<StackFragment>(std::vector{std::move(made)},
                                         StackFragment::Look{block.keep, false, true});
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
  qreal tallest = 0;
  for (const auto& c : made)
    if (c.content) tallest = std::max(tallest, c.content->height());
  for (std::size_t i = 0; i < made.size(); ++i)
    if (made[i].content && endsInWriteLines(block.children[i])) {
      const Block& c = block.children[i];
      made[i].content =
          stretched(c, source, c.width > 0 ? dotsOfMillimetres(c.width) : share, tallest);
    }
  const bool any = std::any_of(made.begin(), made.end(), [](const auto& c) { return !!c.content; });
  if (!any) return nullptr;
  const qreal divider = block.divider ? dotsOfMillimetres(block.thickness) : 0;
  return std::make_shared<ColumnsFragment>(
      std::move(made), ColumnsFragment::Look{divider, gap, block.keep, block.atFoot});
}

/// The lines to write on reach down to the foot of the tallest column.
FragmentPtr BlockLayout::stretched(const Block& column, const Source& source, qreal width,
                                   qreal tallest) const {
  const std::span<const Block> above(column.children.data(), column.children.size() - 1);
  const Block& lines = column.children.back();
  std::vector<FragmentPtr> pieces;
  for (const Block& block : above) add(block, source, width, pieces);
  for (const FragmentPtr& piece : pieces) tallest -= piece->height();
  pieces.push_back(writeLines(lines, width, std::max(tallest, dotsOfMillimetres(lines.height))));
  return std::make_shared<StackFragment>(std::move(pieces), column.keep);
}

FragmentPtr BlockLayout::writeLines(const Block& block, qreal width, qreal height) const {
  return std::make_shared<WriteLinesFragment>(width, height, dotsOfMillimetres(block.gap));
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
  Expanded value = expand(block.text, source);
  if (block.clause && !value.anyValue) return nullptr;
  const Expanded label = expand(block.label, source);
  const QFontMetricsF labelMetrics(text_.font(block.labelStyle, {}));
  const QFontMetricsF valueMetrics(text_.font(block.style, {}));
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
  if (FragmentPtr p = text_.paragraph(label, block.labelStyle, std::max(labelWidth, gap)))
    left.push_back(p);

  if (value.text.isEmpty() || (block.writeIn && !value.anyValue))
    value = {QStringLiteral(" "), {}, false};
  std::vector<FragmentPtr> right{std::make_shared<SpaceFragment>(above)};
  if (FragmentPtr p = text_.paragraph(value, block.valueStyle, width - x)) right.push_back(p);
  right.push_back(std::make_shared<SpaceFragment>(dotsOfMillimetres(kFieldDrop)));
  right.push_back(std::make_shared<RuleFragment>(width - x, dotsOfMillimetres(kFieldLine),
                                                 RuleFragment::Ink::Grey));

  std::vector<ColumnsFragment::Column> made{
      {0, std::make_shared<StackFragment>(std::move(left), false)},
      {x, std::make_shared<StackFragment>(std::move(right), false)}};
  return std::make_shared<ColumnsFragment>(std::move(made), ColumnsFragment::Look{});
}

}  // namespace fidaleon::paper
