#pragma once

#include <QFont>
#include <QHash>
#include <QString>
#include <QStringList>

namespace fidaleon::paper {

/// Makes stored text fit for paper: without control characters, and only of what some font of this
/// computer can draw as a letter. Needs a QGuiApplication.
class Printable {
 public:
  explicit Printable(const QStringList& families);

  struct Text {
    QString text;
    bool lost = false;  // something stands as "?" now
  };
  /// A letter of a rare form becomes the plain one; pictures, and letters without a font, become
  /// "?", one for each run of them.
  Text of(const QString& stored);

 private:
  QString shown(char32_t sign);
  QString asked(char32_t sign) const;
  bool isDrawn(char32_t sign) const;

  QFont font_;
  QHash<char32_t, QString> known_;  // empty: cannot be drawn
};

/// The words of a column's name, for a user who is told of it: "PoblacionNac" is "población de
/// nacimiento".
QString fieldName(const QString& column);

}  // namespace fidaleon::paper
