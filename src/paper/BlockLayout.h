#pragma once

#include <span>
#include <vector>

#include "paper/Expansion.h"
#include "paper/Fragment.h"
#include "paper/Template.h"
#include "paper/TextSetter.h"

namespace fidaleon::paper {

/// Turns blocks of a template and a row into pieces of a page.
class BlockLayout {
 public:
  /// `scale` makes type and spaces smaller. The template must outlive the layout.
  BlockLayout(const ReportTemplate& t, qreal scale = 1);

  /// Null when no block has anything to print. Width and height in dots.
  FragmentPtr layOut(std::span<const Block> blocks, const Source& source, qreal width,
                     bool keep = false) const;

 private:
  void add(const Block& block, const Source& source, qreal width,
           std::vector<FragmentPtr>& out) const;
  FragmentPtr paragraph(const Block& block, const Source& source, qreal width) const;
  FragmentPtr group(const Block& block, const Source& source, qreal width) const;
  FragmentPtr columns(const Block& block, const Source& source, qreal width) const;
  FragmentPtr box(const Block& block, const Source& source, qreal width) const;
  FragmentPtr stretched(const Block& column, const Source& source, qreal width,
                        qreal tallest) const;
  FragmentPtr field(const Block& block, const Source& source, qreal width) const;
  FragmentPtr writeLines(const Block& block, qreal width, qreal height) const;
  void addSpace(qreal millimetres, std::vector<FragmentPtr>& out) const;

  const ReportTemplate& template_;
  qreal scale_;
  TextSetter text_;
};

}  // namespace fidaleon::paper
