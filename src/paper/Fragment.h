#pragma once

#include <QPointF>
#include <memory>

class QPainter;

namespace fidaleon::paper {

class Fragment;
using FragmentPtr = std::shared_ptr<const Fragment>;

/// A piece of a page, laid out for a width: it knows its height, paints itself and can be cut.
/// All in dots. Never changes once made, so its parts may share it.
class Fragment : public std::enable_shared_from_this<Fragment> {
 public:
  virtual ~Fragment() = default;

  struct Parts {
    FragmentPtr head;  // null when nothing of it fits
    FragmentPtr rest;  // null when all of it fits
  };

  virtual qreal height() const = 0;
  virtual void paint(QPainter& painter, QPointF topLeft) const = 0;
  /// Cuts at a height. With `must` (an empty page) the head is never null, so that cutting goes
  /// on to an end even where a piece is taller than a page. A piece that knows no cut stays whole.
  virtual Parts split(qreal available, bool must) const;
  /// Empty space, which is dropped at the top of a page.
  virtual bool isSpace() const { return false; }
  /// A heading: never the last thing on a page that goes on.
  virtual bool staysWithNext() const { return false; }
  /// How far down a mark may be painted across it.
  virtual qreal markedHeight() const { return height(); }
  /// Without the space that it begins with; null when it is nothing else.
  virtual FragmentPtr withoutLeadingSpace() const;
};

}  // namespace fidaleon::paper
