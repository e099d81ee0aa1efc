#pragma once

#include <QFont>
#include <QHash>
#include <QStringList>
#include <map>
#include <tuple>

#include "paper/Expansion.h"
#include "paper/Fragment.h"
#include "paper/Template.h"

namespace fidaleon::paper {

/// Breaks text into lines. Short texts that come again and again, such as labels, are set once.
class TextSetter {
 public:
  /// `scale` makes type and spaces smaller. The families must outlive the setter.
  TextSetter(const QStringList& families, qreal scale) : families_(families), scale_(scale) {}

  /// Null for an empty text. The style must outlive the setter.
  FragmentPtr paragraph(const Expanded& text, const TextStyle& style, qreal width) const;
  const QFont& font(const TextStyle& style, const Face& face) const;

 private:
  using FontKey = std::tuple<int, bool, bool, bool, int>;
  struct Shelf {
    QHash<QString, FragmentPtr> texts;
  };

  FragmentPtr set(const Expanded& text, const TextStyle& style, qreal width) const;
  QString elided(const QString& text, const TextStyle& style, qreal width) const;

  const QStringList& families_;
  qreal scale_;
  mutable std::map<FontKey, QFont> fonts_;
  mutable std::map<std::pair<const TextStyle*, qreal>, Shelf> shelves_;
};

}  // namespace fidaleon::paper
