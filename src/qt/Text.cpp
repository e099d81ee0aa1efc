#include "qt/Text.h"

#include <QList>

#include "text/Utf8.h"

namespace fidaleon::qt {

QString plainCaption(const std::string& caption) {
  const QString marked = toQt(caption);
  QString plain;
  for (int i = 0; i < marked.size(); ++i) {
    if (marked[i] == u'&' && i + 1 < marked.size()) ++i;
    plain += marked[i];
  }
  return plain;
}

namespace {

bool sameLetter(QChar c, char32_t letter) {
  const std::u32string folded = text::toUtf32(text::upper(text::searchKey(fromQt(QString(c)))));
  return folded.size() == 1 && folded.front() == letter;
}

/// Where the mark goes: the letter the caption itself marks, the start of a word, or anywhere.
int markAt(const std::string& caption, const QString& plain, char32_t mnemonic) {
  const int own = toQt(caption).indexOf(u'&');
  if (own >= 0 && own < plain.size() && sameLetter(plain[own], mnemonic)) return own;
  int anywhere = -1;
  for (int i = 0; i < plain.size(); ++i) {
    if (!sameLetter(plain[i], mnemonic)) continue;
    if (i == 0 || !plain[i - 1].isLetterOrNumber()) return i;
    if (anywhere < 0) anywhere = i;
  }
  return anywhere;
}

}  // namespace

QString markedCaption(const std::string& caption, char32_t mnemonic) {
  const QString plain = plainCaption(caption);
  const int mark = mnemonic ? markAt(caption, plain, mnemonic) : -1;
  QString marked;
  for (int i = 0; i < plain.size(); ++i) {
    if (i == mark) marked += u'&';
    if (plain[i] == u'&') marked += u'&';
    marked += plain[i];
  }
  return marked;
}

int codePoints(const QString& text, int position) {
  return static_cast<int>(QStringView(text).left(position).toUcs4().size());
}

int utf16Position(const QString& text, int codePoints) {
  int position = 0;
  for (; codePoints > 0 && position < text.size(); --codePoints)
    position += text[position].isHighSurrogate() && position + 1 < text.size() ? 2 : 1;
  return position;
}

}  // namespace fidaleon::qt
