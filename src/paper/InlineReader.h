#pragma once

#include <QStringList>
#include <optional>
#include <vector>

#include "paper/Template.h"
#include "paper/XmlTree.h"

namespace fidaleon::paper {

/// The running text of an element: its text with {{Column}} place-holders, b, i, sc, br, if,
/// unless, change, clause, m and f. Columns that the template does not know yet are added to it.
/// Throws Error(BrokenTemplate).
std::vector<Inline> readInlines(const XmlNode& node, ReportTemplate& t);

/// The condition of the attributes if, unless and matches; empty when none is given.
struct ConditionText {
  QString ifColumns;
  QString unlessColumns;
  QString pattern;
};
std::optional<Condition> readCondition(const XmlNode& node, const ConditionText& text,
                                       QStringList& columns);
/// A regular expression of an attribute: case does not count, letters are those of Unicode.
QRegularExpression readPattern(const XmlNode& node, const char* attribute, const QString& pattern);

/// Where a column stands in `columns`, to which it is added if it is not yet there.
int columnIndex(QString name, QStringList& columns);

/// Text of blanks only: what stands between the elements of a file.
bool isBlankText(const XmlNode& node);

[[noreturn]] void failUnknown(const XmlNode& node);

}  // namespace fidaleon::paper
