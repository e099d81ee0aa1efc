#include "paper/Expansion.h"

#include <QDate>
#include <QLocale>
#include <QRegularExpression>
#include <algorithm>

#include "paper/Error.h"

namespace fidaleon::paper {
namespace {

constexpr std::size_t kNoRow = static_cast<std::size_t>(-1);
constexpr qsizetype kSeam = 60;  // of the words before a value, what a join looks at

QString letterOf(const QString& text) {
  const QString first = text.trimmed().normalized(QString::NormalizationForm_C).left(1).toUpper();
  if (first == QStringLiteral("Ñ")) return first;
  return first.normalized(QString::NormalizationForm_D).left(1);
}

QString weekdayOf(const QString& text, const QString& language) {
  const QDate date = QDate::fromString(text.trimmed(), QStringLiteral("dd/MM/yyyy"));
  return date.isValid() ? QLocale(language).dayName(date.dayOfWeek()) : QString();
}

QString filtered(QString value, const std::vector<Filter>& filters, const QString& language) {
  for (const Filter filter : filters) switch (filter) {
      case Filter::Apostrophes:
        value.replace(QLatin1String("''"), QLatin1String("'"));
        break;
      case Filter::Unfilled:
        value = withoutFilling(value).toString();
        break;
      case Filter::Upper:
        value = value.toUpper();
        break;
      case Filter::Capital:
        value = value.left(1).toUpper() + value.mid(1);
        break;
      case Filter::Letter:
        value = letterOf(value);
        break;
      case Filter::Weekday:
        value = weekdayOf(value, language);
        break;
    }
  return value;
}

/// Catalan is set with the typographic apostrophe, as the words of the templates are.
QString withApostrophes(QString text, const QString& language) {
  if (language != QLatin1String("ca") || !text.contains(QLatin1Char('\''))) return text;
  for (qsizetype i = 1; i + 1 < text.size(); ++i)
    if (text[i] == QLatin1Char('\'') && text[i - 1].isLetter() && text[i + 1].isLetter())
      text[i] = QChar(0x2019);
  return text;
}

/// What is not known within a value: a person of whom the surname alone is.
QString withStrokes(const QString& text) {
  if (!text.contains(QLatin1String("---"))) return text;
  static const QRegularExpression unknown(QStringLiteral("(?<!\\S)---(?!\\S)"));
  return QString(text).replace(unknown, QStringLiteral("———"));
}

class Expander {
 public:
  explicit Expander(const Source& source) : source_(source) {}

  Expanded run(const std::vector<Inline>& inlines) {
    add(inlines, {});
    while (out_.text.endsWith(QLatin1Char(' '))) cutTo(out_.text.size() - 1);
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
        face = {face.bold || item.bold, face.italic || item.italic,
                face.smallCaps || item.smallCaps};
        return item.clause ? addClause(item, face) : add(item.children, face);
    }
  }

  void addClause(const Inline& item, Face face) {
    const Expanded before = out_;
    out_.anyValue = false;
    add(item.children, face);
    if (!out_.anyValue) out_ = before;
  }

  /// A piece that was left out must leave neither two blanks behind, nor one before a comma, nor a
  /// comma before the first thing said.
  void addTemplateText(const QString& words, Face face) {
    const bool first = out_.text.isEmpty() || out_.text.endsWith(QLatin1String(": "));
    const QString text = first && words.startsWith(QLatin1String(", ")) ? words.mid(2) : words;
    const bool afterBlank = out_.text.endsWith(QLatin1Char(' '));
    const bool startsLine =
        out_.text.isEmpty() || afterBlank || out_.text.endsWith(QChar(QChar::LineSeparator));
    if (afterBlank && !text.isEmpty() && QStringLiteral(",.;:)").contains(text.front()))
      cutTo(out_.text.size() - 1);
    append(startsLine && text.startsWith(QLatin1Char(' ')) ? text.mid(1) : text, face);
  }

  /// What is not known prints nothing, or what the template has for it.
  void addValue(const Inline& item, Face face) {
    askedValue_ = true;
    const QString& value = source_.value(item.column, item.ofLastRow);
    const bool known = !isBlankValue(value);
    out_.anyValue = out_.anyValue || known;
    const ReportTemplate& t = source_.binding->layout();
    const QString shown =
        known ? withApostrophes(withStrokes(filtered(value, item.filters, t.language)), t.language)
              : item.otherwise;
    if (!shown.isEmpty()) append(joined(shown, t), face);
  }

  QString joined(const QString& value, const ReportTemplate& t) {
    if (t.joins.empty() || out_.text.isEmpty() || !t.anyJoin.match(value).hasMatch()) return value;
    for (const Join& join : t.joins) {
      const auto begin = join.value.match(value);
      if (!begin.hasMatch()) continue;
      const qsizetype from = std::max<qsizetype>(0, out_.text.size() - kSeam);
      const auto seam = join.before.match(out_.text.mid(from));
      if (!seam.hasMatch()) continue;
      if (join.put) {
        cutTo(from + seam.capturedStart());
        out_.text += *join.put;
      }
      return join.cut ? value.mid(begin.capturedLength()) : value;
    }
    return value;
  }

  void cutTo(qsizetype length) {
    out_.text.truncate(length);
    QList<Stretch>& s = out_.stretches;
    while (!s.isEmpty() && s.last().start >= length) s.removeLast();
    if (!s.isEmpty()) s.last().length = std::min(s.last().length, length - s.last().start);
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

Binding::Binding(const ReportTemplate& t, const Rows& rows, const GivenValues& given) : t_(&t) {
  for (const QString& column : t.columns) places_.push_back(placeOf(column, rows, given));
}

Binding::Place Binding::placeOf(const QString& column, const Rows& rows, const GivenValues& given) {
  if (!column.startsWith(QLatin1Char('@'))) {
    const int position = rows.position(column);
    if (position >= 0) return {Place::Kind::Row, position};
    throw Error(ErrorKind::MissingColumn,
                QStringLiteral("La plantilla «%1» pide la columna «%2», que la tabla %3 no tiene.")
                    .arg(t_->name, column, t_->table)
                    .toStdString());
  }
  const QString name = column.mid(1);
  if (name == QLatin1String("Marca")) return {Place::Kind::Mark, 0};
  if (name == QLatin1String("Fila")) return {Place::Kind::RowNumber, 0};
  if (const auto found = given.find(name); found != given.end()) {
    given_.push_back(found->second);
    return {Place::Kind::Given, static_cast<int>(given_.size()) - 1};
  }
  for (const Formula& formula : t_->formulas)
    if (formula.name.compare(name, Qt::CaseInsensitive) == 0) {
      computed_.resize(computed_.size() + 2, {&formula.text, kNoRow, {}});
      return {Place::Kind::Formula, static_cast<int>(computed_.size()) - 2};
    }
  given_.emplace_back();
  return {Place::Kind::Given, static_cast<int>(given_.size()) - 1};
}

const QString& Binding::value(int column, const Source& source, bool ofLastRow) const {
  const Place place = places_[static_cast<std::size_t>(column)];
  switch (place.kind) {
    case Place::Kind::Row:
      return source.rows->value(ofLastRow ? source.lastRow : source.row, place.index);
    case Place::Kind::Mark:
      return source.mark;
    case Place::Kind::RowNumber:
      return rowNumber_ = QString::number((ofLastRow ? source.lastRow : source.row) + 1);
    case Place::Kind::Formula:
      return computed(place.index, source, ofLastRow);
    case Place::Kind::Given:
      break;
  }
  return given_[static_cast<std::size_t>(place.index)];
}

void Binding::forget() {
  for (Computed& memo : computed_) memo.row = kNoRow;
}

const QString& Binding::computed(int index, const Source& source, bool ofLastRow) const {
  Computed& memo = computed_[static_cast<std::size_t>(index) + (ofLastRow ? 1 : 0)];
  Source one = source;
  one.row = one.lastRow = ofLastRow ? source.lastRow : source.row;
  if (memo.row != one.row) {
    memo.text = expand(*memo.formula, one).text;
    memo.row = one.row;
  }
  return memo.text;
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
