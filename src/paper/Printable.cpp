#include "paper/Printable.h"

#include <QGlyphRun>
#include <QRawFont>
#include <QRegularExpression>
#include <QTextLayout>
#include <algorithm>

namespace fidaleon::paper {
namespace {

constexpr char32_t kEndOfLatin = 0x250;

bool isPlain(QChar c) {
  const char16_t sign = c.unicode();
  return sign >= 0x20 && sign < kEndOfLatin && (sign < 0x7f || (sign >= 0xa0 && sign != 0xad));
}

/// Marks without a shape of their own: directions, joiners, the variants of a picture.
bool isInvisible(char32_t sign) {
  const QChar::Category category = QChar::category(sign);
  return category == QChar::Other_Control || category == QChar::Other_Format ||
         (sign >= 0xfe00 && sign <= 0xfe0f);
}

QString withoutControls(QString text) {
  text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  text.replace(QLatin1Char('\t'), QLatin1Char(' '));
  while (text.endsWith(QLatin1Char('\n'))) text.chop(1);
  text.replace(QLatin1Char('\n'), QChar(QChar::LineSeparator));
  return text;
}

const QHash<QString, QString>& wordsOfColumns() {
  static const QHash<QString, QString> words{
      {"Poblacion", "población"},  {"Direccion", "dirección"},     {"Diocesis", "diócesis"},
      {"Numero", "número"},        {"Institucion", "institución"}, {"Profesion", "profesión"},
      {"Telefono", "teléfono"},    {"Descripcion", "descripción"}, {"Nac", "de nacimiento"},
      {"Baut", "de bautismo"},     {"Matr", "de matrimonio"},      {"Hijo", "del niño o niña"},
      {"Padres", "de los padres"}, {"Padre", "del padre"},         {"Madre", "de la madre"},
      {"Padrino", "del padrino"},  {"Madrina", "de la madrina"},   {"Novio", "del novio"},
      {"Novia", "de la novia"},    {"Paterno", "paterno"},         {"Abuelo", "del abuelo"},
      {"Abuela", "de la abuela"}};
  return words;
}

}  // namespace

Printable::Printable(const QStringList& families) {
  font_.setFamilies(families);
  font_.setStyleStrategy(QFont::PreferOutline);
}

Printable::Text Printable::of(const QString& stored) {
  if (std::all_of(stored.begin(), stored.end(), isPlain))
    return {stored.isNull() ? QStringLiteral("") : stored, false};
  Text out{QStringLiteral(""), false};
  bool inRun = false;
  for (const char32_t sign : withoutControls(stored).toUcs4()) {
    const bool kept = sign == QChar::LineSeparator;
    if (!kept && isInvisible(sign)) continue;
    const QString drawn = kept ? QString(QChar(QChar::LineSeparator)) : shown(sign);
    if (!drawn.isEmpty()) {
      out.text += drawn;
    } else if (!inRun) {
      out.text += QLatin1Char('?');
      out.lost = true;
    }
    inRun = drawn.isEmpty();
  }
  return out;
}

QString Printable::shown(char32_t sign) {
  if (sign < kEndOfLatin) return QString::fromUcs4(&sign, 1);
  const auto found = known_.constFind(sign);
  return found != known_.constEnd() ? *found : *known_.insert(sign, asked(sign));
}

QString Printable::asked(char32_t sign) const {
  const QString text = QString::fromUcs4(&sign, 1);
  const bool isVariant =
      QChar::isLetterOrNumber(sign) && QChar::decompositionTag(sign) > QChar::Canonical;
  const QString plain = text.normalized(QString::NormalizationForm_KC);
  const auto signs = plain.toUcs4();
  const bool helps = plain != text && std::all_of(signs.begin(), signs.end(),
                                                  [this](char32_t s) { return isDrawn(s); });
  if (isVariant && helps) return plain;
  if (isDrawn(sign)) return text;
  return helps ? plain : QString();
}

bool Printable::isDrawn(char32_t sign) const {
  if (sign < kEndOfLatin) return true;
  switch (QChar::category(sign)) {
    case QChar::Other_PrivateUse:
    case QChar::Other_NotAssigned:
    case QChar::Other_Surrogate:
      return false;
    // A picture that only a font of pictures has comes out as a box or in colours.
    case QChar::Symbol_Other:
    case QChar::Symbol_Modifier:
      return QRawFont::fromFont(font_).supportsCharacter(sign);
    default:
      break;
  }
  QTextLayout layout(QString::fromUcs4(&sign, 1), font_);
  layout.beginLayout();
  layout.createLine();
  layout.endLayout();
  const QList<QGlyphRun> runs = layout.glyphRuns();
  return std::all_of(runs.begin(), runs.end(),
                     [](const QGlyphRun& run) { return !run.glyphIndexes().contains(0U); });
}

QString fieldName(const QString& column) {
  static const QRegularExpression word(QStringLiteral("\\p{Lu}\\p{Ll}*|\\d+"),
                                       QRegularExpression::UseUnicodePropertiesOption);
  QStringList words;
  for (auto it = word.globalMatch(column); it.hasNext();) {
    const QString part = it.next().captured();
    QString said = wordsOfColumns().value(part, part.toLower());
    if (words.isEmpty()) said.remove(QRegularExpression(QStringLiteral("^(del|de la|de los|de) ")));
    words << said;
  }
  return words.join(QLatin1Char(' '));
}

}  // namespace fidaleon::paper
