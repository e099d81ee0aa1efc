#pragma once

#include <QTextLayout>
#include <vector>

#include "paper/Fragment.h"

namespace fidaleon::paper {

class SpaceFragment : public Fragment {
 public:
  explicit SpaceFragment(qreal height) : height_(height) {}
  qreal height() const override { return height_; }
  void paint(QPainter&, QPointF) const override {}
  bool isSpace() const override { return true; }
  FragmentPtr withoutLeadingSpace() const override { return nullptr; }

 private:
  qreal height_;
};

/// A horizontal line.
class RuleFragment : public Fragment {
 public:
  enum class Ink { Black, Grey };
  RuleFragment(qreal width, qreal thickness, Ink ink = Ink::Black)
      : width_(width), thickness_(thickness), ink_(ink) {}
  qreal height() const override { return thickness_; }
  void paint(QPainter& painter, QPointF topLeft) const override;

 private:
  qreal width_;
  qreal thickness_;
  Ink ink_;
};

/// A cross that widens towards its ends, in the middle: drawn, since few fonts have one, and a
/// second font only for it makes each document larger and later.
class CrossFragment : public Fragment {
 public:
  CrossFragment(qreal width, qreal height) : width_(width), height_(height) {}
  qreal height() const override { return height_; }
  void paint(QPainter& painter, QPointF topLeft) const override;

 private:
  qreal width_;
  qreal height_;
};

/// Lines first to last of a paragraph, a line taking `leading` times its natural height.
class TextFragment : public Fragment {
 public:
  TextFragment(std::shared_ptr<const QTextLayout> layout, int first, int last, qreal leading);
  qreal height() const override;
  void paint(QPainter& painter, QPointF topLeft) const override;
  Parts split(qreal available, bool must) const override;

 protected:
  const QTextLayout& layout() const { return *layout_; }
  qreal heightOf(int line) const;

 private:
  FragmentPtr part(int first, int last) const;

  std::shared_ptr<const QTextLayout> layout_;
  int first_;
  int last_;  // one past the end
  qreal leading_;
};

/// A paragraph whose last line runs on in dots to the edge; it is not cut.
class LeaderFragment : public TextFragment {
 public:
  LeaderFragment(std::shared_ptr<const QTextLayout> layout, int lines, qreal leading, qreal width)
      : TextFragment(std::move(layout), 0, lines, leading), width_(width) {}
  void paint(QPainter& painter, QPointF topLeft) const override;
  Parts split(qreal available, bool must) const override {
    return Fragment::split(available, must);
  }

 private:
  qreal width_;
};

/// Dotted lines to write on by hand.
class WriteLinesFragment : public Fragment {
 public:
  WriteLinesFragment(qreal width, qreal height, qreal spacing)
      : width_(width), height_(height), spacing_(spacing) {}
  qreal height() const override { return height_; }
  void paint(QPainter& painter, QPointF topLeft) const override;
  Parts split(qreal available, bool must) const override;

 private:
  qreal width_;
  qreal height_;
  qreal spacing_;
};

/// Pieces one below the other.
class StackFragment : public Fragment {
 public:
  struct Look {
    bool keep = false;      // not cut in two
    bool withNext = false;  // a heading
    bool clear = false;     // no mark is painted across it
  };
  StackFragment(std::vector<FragmentPtr> children, Look look);
  StackFragment(std::vector<FragmentPtr> children, bool keep)
      : StackFragment(std::move(children), Look{keep, false, false}) {}
  qreal height() const override { return height_; }
  void paint(QPainter& painter, QPointF topLeft) const override;
  Parts split(qreal available, bool must) const override;
  bool staysWithNext() const override { return look_.withNext; }
  qreal markedHeight() const override;
  FragmentPtr withoutLeadingSpace() const override;

 private:
  std::vector<FragmentPtr> children_;
  Look look_;
  qreal height_;
};

/// Pieces side by side, with a line between them if asked for.
class ColumnsFragment : public Fragment {
 public:
  struct Column {
    qreal x;
    FragmentPtr content;
  };
  struct Look {
    qreal dividerThickness = 0;  // 0: none
    qreal gap = 0;
    bool keep = false;
    bool atFoot = false;  // each piece stands at the foot of the tallest
  };
  ColumnsFragment(std::vector<Column> columns, Look look);
  qreal height() const override { return height_; }
  void paint(QPainter& painter, QPointF topLeft) const override;
  Parts split(qreal available, bool must) const override;

 private:
  std::vector<Column> columns_;
  Look look_;
  qreal height_;
};

/// A frame around a piece.
class BoxFragment : public Fragment {
 public:
  struct Look {
    qreal width = 0;
    qreal leastHeight = 0;
    qreal padding = 0;
    qreal thickness = 0;
    bool dashed = false;
    bool keep = false;
  };
  BoxFragment(FragmentPtr content, Look look);
  qreal height() const override;
  void paint(QPainter& painter, QPointF topLeft) const override;
  Parts split(qreal available, bool must) const override;

 private:
  FragmentPtr content_;
  Look look_;
};

}  // namespace fidaleon::paper
