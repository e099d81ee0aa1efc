#pragma once
// Texts on their way between the forms (UTF-8, code points) and the toolkit (UTF-16).

#include <QString>
#include <string>

namespace fidaleon::qt {

inline QString toQt(const std::string& s) {
  return QString::fromUtf8(s.data(), s.size());
}
inline std::string fromQt(const QString& s) {
  return s.toStdString();
}

/// A caption without its mnemonic mark; "&&" is a plain "&".
QString plainCaption(const std::string& caption);
/// The caption with its mark before the given letter, found without regard to case and accents;
/// without any mark when the letter is 0 or does not occur.
QString markedCaption(const std::string& caption, char32_t mnemonic);

/// Code points before a position in a text, and back.
int codePoints(const QString& text, int position);
int utf16Position(const QString& text, int codePoints);

}  // namespace fidaleon::qt
