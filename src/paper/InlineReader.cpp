#include "paper/InlineReader.h"

#include <QHash>
#include <algorithm>

#include "documents/TextosPartida.h"

namespace fidaleon::paper {
namespace {

QString collapsed(const QString& text) {
  static const QRegularExpression blanks(QStringLiteral("[ \\t\\r\\n]+"));
  return QString(text).replace(blanks, QStringLiteral(" "));
}

void addLiteral(const XmlNode& node, const QString& text, std::vector<Inline>& out);

/// {{#28006}}: a text of the entry's wording, by its number.
QString wordingOf(const XmlNode& node, const QString& inside) {
  const QString text = QString::fromUtf8(documents::textoPartida(inside.mid(1).toInt()));
  if (text.isEmpty()) failAt(node, QStringLiteral("no hay ningún texto «%1»").arg(inside));
  return text;
}

bool readFilter(const QString& word, Inline& item) {
  static const QHash<QString, Filter> filters{{QStringLiteral("apostrophes"), Filter::Apostrophes},
                                              {QStringLiteral("unfilled"), Filter::Unfilled},
                                              {QStringLiteral("upper"), Filter::Upper},
                                              {QStringLiteral("capital"), Filter::Capital},
                                              {QStringLiteral("letter"), Filter::Letter},
                                              {QStringLiteral("weekday"), Filter::Weekday}};
  const QString otherwise = QStringLiteral("else=");
  if (word == QLatin1String("last"))
    item.ofLastRow = true;
  else if (word.startsWith(otherwise))
    item.otherwise = word.mid(otherwise.size());
  else if (const auto filter = filters.find(word); filter != filters.end())
    item.filters.push_back(*filter);
  else
    return false;
  return true;
}

Inline placeholder(const XmlNode& node, const QString& inside, QStringList& columns) {
  Inline item;
  QStringList words = inside.split(QLatin1Char('|'));
  const QString name = words.takeFirst().trimmed();
  const bool understood =
      !name.isEmpty() && std::all_of(words.begin(), words.end(), [&](const QString& word) {
        return readFilter(word.trimmed(), item);
      });
  if (!understood) failAt(node, QStringLiteral("no se entiende «{{%1}}»").arg(inside));
  if (name == QLatin1String("@Pagina")) {
    item.kind = Inline::Kind::PageNumber;
  } else if (name == QLatin1String("@Paginas")) {
    item.kind = Inline::Kind::PageTotal;
  } else {
    item.kind = Inline::Kind::Value;
    item.column = columnIndex(name, columns);
  }
  return item;
}

void addLiteral(const XmlNode& node, const QString& text, std::vector<Inline>& out) {
  if (text.contains(QLatin1String("{{")) || text.contains(QLatin1String("}}")))
    failAt(node, QStringLiteral("hay llaves sin cerrar en «%1»").arg(text.trimmed()));
  if (text.isEmpty()) return;
  Inline item;
  item.text = text;
  out.push_back(std::move(item));
}

void addText(const XmlNode& node, QStringList& columns, std::vector<Inline>& out) {
  static const QRegularExpression marks(QStringLiteral("\\{\\{([^{}]*)\\}\\}"));
  const QString text = collapsed(node.text);
  qsizetype from = 0;
  for (auto it = marks.globalMatch(text); it.hasNext();) {
    const auto match = it.next();
    addLiteral(node, text.mid(from, match.capturedStart() - from), out);
    const QString inside = match.captured(1).trimmed();
    if (inside.startsWith(QLatin1Char('#')))
      addLiteral(node, wordingOf(node, inside), out);
    else
      out.push_back(placeholder(node, inside, columns));
    from = match.capturedEnd();
  }
  addLiteral(node, text.mid(from), out);
}

void refuseAttributes(const XmlNode& node, std::initializer_list<const char*> known) {
  QMap<QString, QString> left = node.attributes;
  for (const char* name : known) left.remove(QString::fromLatin1(name));
  if (!left.isEmpty())
    failAt(node, QStringLiteral("«%1» no tiene el atributo «%2»").arg(node.name, left.firstKey()));
}

Condition changeOf(const XmlNode& node, QStringList& columns) {
  refuseAttributes(node, {"column"});
  Condition condition;
  condition.changes = true;
  condition.columns.push_back(
      columnIndex(node.attributes.value(QStringLiteral("column")), columns));
  return condition;
}

std::optional<Condition> conditionOf(const XmlNode& node, QStringList& columns) {
  refuseAttributes(node, {"column", "option", "matches"});
  const bool asks = node.name == QLatin1String("if");
  const QString option = node.attributes.value(QStringLiteral("option"));
  const QString column = option.isEmpty() ? node.attributes.value(QStringLiteral("column"))
                                          : QLatin1Char('@') + option;
  if (column.isEmpty()) failAt(node, QStringLiteral("falta el atributo «column»"));
  return readCondition(node,
                       {asks ? column : QString(), asks ? QString() : column,
                        node.attributes.value(QStringLiteral("matches"))},
                       columns);
}

Condition genderOf(const XmlNode& node, const ReportTemplate& t) {
  refuseAttributes(node, {});
  if (!t.feminine) failAt(node, QStringLiteral("falta antes el elemento «gender»"));
  Condition condition = *t.feminine;
  condition.negated = node.name == QLatin1String("m");
  return condition;
}

Inline readGroup(const XmlNode& node, ReportTemplate& t) {
  Inline group;
  group.kind = Inline::Kind::Group;
  const QString& name = node.name;
  group.bold = name == QLatin1String("b");
  group.italic = name == QLatin1String("i");
  group.smallCaps = name == QLatin1String("sc");
  group.clause = name == QLatin1String("clause");
  if (name == QLatin1String("if") || name == QLatin1String("unless"))
    group.condition = conditionOf(node, t.columns);
  else if (name == QLatin1String("change"))
    group.condition = changeOf(node, t.columns);
  else if (name == QLatin1String("m") || name == QLatin1String("f"))
    group.condition = genderOf(node, t);
  else if (group.bold || group.italic || group.smallCaps || group.clause)
    refuseAttributes(node, {});
  else
    failUnknown(node);
  group.children = readInlines(node, t);
  return group;
}

}  // namespace

int columnIndex(QString name, QStringList& columns) {
  name = name.trimmed();
  if (name.startsWith(QLatin1Char('[')) && name.endsWith(QLatin1Char(']')))
    name = name.mid(1, name.size() - 2);
  for (int i = 0; i < columns.size(); ++i)
    if (columns[i].compare(name, Qt::CaseInsensitive) == 0) return i;
  columns.append(name);
  return static_cast<int>(columns.size()) - 1;
}

std::vector<Inline> readInlines(const XmlNode& node, ReportTemplate& t) {
  std::vector<Inline> out;
  for (const XmlNode& child : node.children) {
    if (child.name.isEmpty()) {
      addText(child, t.columns, out);
    } else if (child.name == QLatin1String("br")) {
      Inline item;
      item.kind = Inline::Kind::Break;
      out.push_back(std::move(item));
    } else {
      out.push_back(readGroup(child, t));
    }
  }
  return out;
}

std::optional<Condition> readCondition(const XmlNode& node, const ConditionText& text,
                                       QStringList& columns) {
  const bool negated = !text.unlessColumns.isEmpty();
  if (negated && !text.ifColumns.isEmpty())
    failAt(node, QStringLiteral("«if» y «unless» no pueden ir juntos"));
  const QString names = negated ? text.unlessColumns : text.ifColumns;
  if (names.isEmpty()) {
    if (!text.pattern.isEmpty()) failAt(node, QStringLiteral("«matches» necesita una columna"));
    return std::nullopt;
  }
  Condition condition;
  condition.negated = negated;
  for (const QString& name : names.split(QLatin1Char(','), Qt::SkipEmptyParts))
    condition.columns.push_back(columnIndex(name, columns));
  if (!text.pattern.isEmpty()) condition.pattern = readPattern(node, "matches", text.pattern);
  return condition;
}

QRegularExpression readPattern(const XmlNode& node, const char* attribute, const QString& pattern) {
  // Templates are read anew for each document; their patterns take longest and stay the same.
  static thread_local QHash<QString, QRegularExpression> understood;
  const auto found = understood.constFind(pattern);
  if (found != understood.constEnd()) return *found;
  const QRegularExpression expression(pattern, QRegularExpression::CaseInsensitiveOption |
                                                   QRegularExpression::UseUnicodePropertiesOption);
  if (!expression.isValid())
    failAt(node, QStringLiteral("«%1» no se entiende: %2").arg(QLatin1String(attribute), pattern));
  return *understood.insert(pattern, expression);
}

bool isBlankText(const XmlNode& node) {
  return node.name.isEmpty() && node.text.trimmed().isEmpty();
}

void failUnknown(const XmlNode& node) {
  if (node.name.isEmpty())
    failAt(node, QStringLiteral("texto fuera de un párrafo: «%1»").arg(node.text.trimmed()));
  failAt(node, QStringLiteral("no se conoce el elemento «%1»").arg(node.name));
}

}  // namespace fidaleon::paper
