#include "paper/SortOrder.h"

#include <algorithm>
#include <numeric>

#include "paper/Error.h"
#include "text/Dates.h"
#include "text/Numbers.h"
#include "text/Utf8.h"

namespace fidaleon::paper {
namespace {

struct Term {
  const Formula* formula = nullptr;
  bool descending = false;
};

struct Key {
  double number = 0;
  std::string text;
};

[[noreturn]] void fail(const QString& message) {
  throw Error(ErrorKind::BadOrder, message.toStdString());
}

std::vector<Term> parse(const ReportTemplate& t, const QString& order) {
  static const QRegularExpression shape(QStringLiteral("^\\s*([+-]?)\\{@([^{}]+)\\}\\s*$"));
  std::vector<Term> terms;
  for (const QString& item : order.split(QLatin1Char(','))) {
    const auto match = shape.match(item);
    if (!match.hasMatch())
      fail(QStringLiteral("No se entiende el orden pedido para el documento: «%1».").arg(order));
    const auto found = std::find_if(t.formulas.begin(), t.formulas.end(), [&](const Formula& f) {
      return f.name.compare(match.captured(2), Qt::CaseInsensitive) == 0;
    });
    if (found == t.formulas.end())
      fail(QStringLiteral("La plantilla «%1» no define el campo de orden «%2».")
               .arg(t.name, match.captured(2)));
    terms.push_back({&*found, match.captured(1) == QLatin1String("-")});
  }
  return terms;
}

Key keyOf(const Formula& formula, const Source& source) {
  const std::string text = expand(formula.text, source).text.toStdString();
  switch (formula.as) {
    case Formula::As::Number:
      return {text::Val(text), text};
    case Formula::As::Date: {
      const auto date = text::parseShort(text);
      return {0, date ? text::toStored(*date) : std::string()};
    }
    case Formula::As::Text:
      break;
  }
  return {0, text};
}

int compareKeys(const Key& a, const Key& b) {
  if (a.number != b.number) return a.number < b.number ? -1 : 1;
  return text::compare(a.text, b.text);
}

}  // namespace

void sortRows(Rows& rows, const ReportTemplate& t, const Binding& binding,
              const std::string& order) {
  const QString wanted = QString::fromStdString(order).trimmed();
  if (wanted.isEmpty()) return;
  const std::vector<Term> terms = parse(t, wanted);
  std::vector<std::vector<Key>> keys(rows.size());
  for (std::size_t i = 0; i < rows.size(); ++i)
    for (const Term& term : terms) keys[i].push_back(keyOf(*term.formula, {&rows, &binding, i, i}));
  std::vector<std::size_t> places(rows.size());
  std::iota(places.begin(), places.end(), std::size_t{0});
  std::stable_sort(places.begin(), places.end(), [&](std::size_t a, std::size_t b) {
    for (std::size_t k = 0; k < terms.size(); ++k) {
      const int c = compareKeys(keys[a][k], keys[b][k]);
      if (c != 0) return terms[k].descending ? c > 0 : c < 0;
    }
    return false;
  });
  rows.arrange(places);
}

}  // namespace fidaleon::paper
