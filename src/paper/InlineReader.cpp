#include "paper/InlineReader.h"

#include <QHash>

namespace fidaleon::paper {
namespace {

QString collapsed(const QString& text) {
  static const QRegularExpression blanks(QStringLiteral("[ \\t\\r\\n]+"));
  return QString(text).replace(blanks, QStringLiteral(" "));
}

Inline placeholder(const XmlNode& node, const QString& inside, QStringList& columns) {
  static const QHash<QString, Filter> filters{{QString(), Filter::None},
                                              {QStringLiteral("upper"), Filter::Upper},
                                              {QStringLiteral("capital"), Filter::Capital},
                                              {QStringLiteral("dashes"), Filter::Dashes}};
  Inline item;
  const QString name = inside.section(QLatin1Char('|'), 0, 0).trimmed();
  QStringList rest = inside.split(QLatin1Char('|')).mid(1);
  for (QString& word : rest) word = word.trimmed();
  item.ofLastRow = rest.removeAll(QStringLiteral("last")) > 0;
  const auto filter = filters.find(rest.join(QLatin1Char('|')));
  if (name.isEmpty() || filter == filters.end())
    failAt(node, QStringLiteral("no se entiende «{{%1}}»").arg(inside));
  if (name == QLatin1String("@Pagina")) {
    item.kind = Inline::Kind::PageNumber;
  } else if (name == QLatin1String("@Paginas")) {
    item.kind = Inline::Kind::PageTotal;
  } else {
    item.kind = Inline::Kind::Value;
    item.column = columnIndex(name, columns);
    item.filter = *filter;
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
    out.push_back(placeholder(node, match.captured(1), columns));
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

Inline readGroup(const XmlNode& node, QStringList& columns) {
  Inline group;
  group.kind = Inline::Kind::Group;
  group.bold = node.name == QLatin1String("b");
  group.italic = node.name == QLatin1String("i");
  group.smallCaps = node.name == QLatin1String("sc");
  const bool asks = node.name == QLatin1String("if");
  const bool denies = node.name == QLatin1String("unless");
  const bool changes = node.name == QLatin1String("change");
  if (!changes && !group.bold && !group.italic && !group.smallCaps && !asks && !denies)
    failUnknown(node);
  if (asks || denies) {
    refuseAttributes(node, {"column", "matches"});
    const QString column = node.attributes.value(QStringLiteral("column"));
    if (column.isEmpty()) failAt(node, QStringLiteral("falta el atributo «column»"));
    group.condition = readCondition(node,
                                    {asks ? column : QString(), denies ? column : QString(),
                                     node.attributes.value(QStringLiteral("matches"))},
                                    columns);
  } else if (changes) {
    refuseAttributes(node, {"column"});
    group.condition.emplace();
    group.condition->changes = true;
    group.condition->columns.push_back(
        columnIndex(node.attributes.value(QStringLiteral("column")), columns));
  } else {
    refuseAttributes(node, {});
  }
  group.children = readInlines(node, columns);
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

std::vector<Inline> readInlines(const XmlNode& node, QStringList& columns) {
  std::vector<Inline> out;
  for (const XmlNode& child : node.children) {
    if (child.name.isEmpty()) {
      addText(child, columns, out);
    } else if (child.name == QLatin1String("br")) {
      Inline item;
      item.kind = Inline::Kind::Break;
      out.push_back(std::move(item));
    } else {
      out.push_back(readGroup(child, columns));
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
  if (!text.pattern.isEmpty()) {
    condition.pattern.emplace(text.pattern, QRegularExpression::CaseInsensitiveOption |
                                                QRegularExpression::UseUnicodePropertiesOption);
    if (!condition.pattern->isValid())
      failAt(node, QStringLiteral("«matches» no se entiende: %1").arg(text.pattern));
  }
  return condition;
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
