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

/// Lines first to last of a paragraph, a line taking `leading` times its natural height.
class TextFragment : public Fragment {
 public:
  TextFragment(std::shared_ptr<const QTextLayout> layout, int first, int last, qreal leading);
  qreal height() const override;
  void paint(QPainter& painter, QPointF topLeft) const override;
  Parts split(qreal available, bool must) const override;

 private:
  qreal heightOf(int line) const;
  FragmentPtr part(int first, int last) const;

  std::shared_ptr<const QTextLayout> layout_;
  int first_;
  int last_;  // one past the end
  qreal leading_;
};

/// Pieces one below the other.
class StackFragment : public Fragment {
 public:
  StackFragment(std::vector<FragmentPtr> children, bool keep);
  qreal height() const override { return height_; }
  void paint(QPainter& painter, QPointF topLeft) const override;
  Parts split(qreal available, bool must) const override;

 private:
  std::vector<FragmentPtr> children_;
  bool keep_;
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
