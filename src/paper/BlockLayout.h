#pragma once

#include <QFont>
#include <map>
#include <vector>

#include "paper/Expansion.h"
#include "paper/Fragment.h"
#include "paper/Template.h"

namespace fidaleon::paper {

/// Turns blocks of a template and a row into pieces of a page.
class BlockLayout {
 public:
  /// `scale` makes type and spaces smaller. The template must outlive the layout.
  BlockLayout(const ReportTemplate& t, qreal scale = 1);

  /// Null when no block has anything to print. Width and height in dots.
  FragmentPtr layOut(const std::vector<Block>& blocks, const Source& source, qreal width,
                     bool keep = false) const;

 private:
  void add(const Block& block, const Source& source, qreal width,
           std::vector<FragmentPtr>& out) const;
  FragmentPtr columns(const Block& block, const Source& source, qreal width) const;
  FragmentPtr box(const Block& block, const Source& source, qreal width) const;
  FragmentPtr field(const Block& block, const Source& source, qreal width) const;
  FragmentPtr paragraph(const Expanded& text, const TextStyle& style, qreal width) const;
  void addSpace(qreal millimetres, std::vector<FragmentPtr>& out) const;
  const QFont& font(const TextStyle& style, const Face& face) const;

  using FontKey = std::tuple<int, bool, bool, bool, int>;
  const ReportTemplate& template_;
  qreal scale_;
  mutable std::map<FontKey, QFont> fonts_;
};

}  // namespace fidaleon::paper
