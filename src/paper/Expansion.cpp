#include "paper/Expansion.h"

#include <algorithm>

#include "paper/Error.h"

namespace fidaleon::paper {
namespace {

QString filtered(const QString& value, Filter filter) {
  switch (filter) {
    case Filter::Upper:
      return value.toUpper();
    case Filter::Capital:
      return value.left(1).toUpper() + value.mid(1);
    case Filter::Dashes:
      return value.trimmed().isEmpty() ? QStringLiteral("---") : value;
    case Filter::None:
      break;
  }
  return value;
}

class Expander {
 public:
  explicit Expander(const Source& source) : source_(source) {}

  Expanded run(const std::vector<Inline>& inlines) {
    add(inlines, {});
    while (out_.text.endsWith(QLatin1Char(' '))) out_.text.chop(1);
    for (Stretch& s : out_.stretches) s.length = std::min(s.length, out_.text.size() - s.start);
    out_.anyValue = out_.anyValue || !askedValue_;
    return std::move(out_);
  }

 private:
  void add(const std::vector<Inline>& inlines, Face face) {
    for (const Inline& item : inlines) add(item, face);
  }

  void add(const Inline& item, Face face) {
    switch (item.kind) {
      case Inline::Kind::Text:
        return addTemplateText(item.text, face);
      case Inline::Kind::Value:
        return addValue(item, face);
      case Inline::Kind::PageNumber:
        return append(QString::number(source_.page), face);
      case Inline::Kind::PageTotal:
        return append(QString::number(source_.pages), face);
      case Inline::Kind::Break:
        return append(QString(QChar(QChar::LineSeparator)), face);
      case Inline::Kind::Group:
        if (item.condition && !holds(*item.condition, source_)) return;
        return add(item.children, {face.bold || item.bold, face.italic || item.italic,
                                   face.smallCaps || item.smallCaps});
    }
  }

  /// A piece that was left out must not leave two blanks behind.
  void addTemplateText(const QString& text, Face face) {
    const bool startsLine = out_.text.isEmpty() || out_.text.endsWith(QLatin1Char(' ')) ||
                            out_.text.endsWith(QChar(QChar::LineSeparator));
    append(startsLine && text.startsWith(QLatin1Char(' ')) ? text.mid(1) : text, face);
  }

  void addValue(const Inline& item, Face face) {
    askedValue_ = true;
    const QString& value = source_.value(item.column, item.ofLastRow);
    if (!isBlankValue(value)) out_.anyValue = true;
    append(filtered(value, item.filter), face);
  }

  void append(const QString& text, Face face) {
    if (text.isEmpty()) return;
    if (face != Face{}) {
      QList<Stretch>& s = out_.stretches;
      if (!s.isEmpty() && s.last().face == face &&
          s.last().start + s.last().length == out_.text.size())
        s.last().length += text.size();
      else
        s.append({out_.text.size(), text.size(), face});
    }
    out_.text += text;
  }

  const Source& source_;
  Expanded out_;
  bool askedValue_ = false;
};

}  // namespace

Binding::Binding(const ReportTemplate& t, const Rows& rows, const GivenValues& given) {
  for (const QString& column : t.columns) {
    int position = rows.position(column);
    if (column == QLatin1String("@Marca")) {
      position = kMark;
    } else if (column.startsWith(QLatin1Char('@'))) {
      const auto found = given.find(column.mid(1));
      given_.push_back(found == given.end() ? QString() : found->second);
      position = kMark - static_cast<int>(given_.size());
    } else if (position < 0) {
      throw Error(
          ErrorKind::MissingColumn,
          QStringLiteral("La plantilla «%1» pide la columna «%2», que la tabla %3 no tiene.")
              .arg(t.name, column, t.table)
              .toStdString());
    }
    positions_.push_back(position);
  }
}

bool holds(const Condition& condition, const Source& source) {
  if (condition.changes)
    return std::any_of(condition.columns.begin(), condition.columns.end(), [&](int column) {
      return source.value(column) != source.value(column, true);
    });
  const bool any = std::any_of(condition.columns.begin(), condition.columns.end(), [&](int column) {
    const QString& value = source.value(column);
    return condition.pattern ? condition.pattern->match(value).hasMatch() : !isBlankValue(value);
  });
  return any != condition.negated;
}

Expanded expand(const std::vector<Inline>& inlines, const Source& source) {
  return Expander(source).run(inlines);
}

}  // namespace fidaleon::paper
