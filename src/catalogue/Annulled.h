#pragma once

#include <QString>
#include <cstdint>
#include <map>
#include <vector>

#include "paper/Row.h"
#include "store/Connection.h"

namespace fidaleon::app {

/// The word that is printed across an annulled entry.
QString annulledMark(bool catalan = false);

/// Which printed rows belong to annulled entries: the rows themselves do not say so, and are known
/// by their place in the book.
class Annulled {
 public:
  /// Of one baptism book, or of all when `book` is 0. Throws store::Error.
  explicit Annulled(store::Connection& parish, std::int32_t book = 0,
                    QString word = annulledMark());

  /// The word, or nothing. A place that an annulled entry shares with a valid one, as the books of
  /// old allow, is told apart by the name of the child.
  QString mark(const paper::Row& row) const;
  std::size_t places() const { return places_.size(); }

 private:
  struct Place {
    bool shared = false;
    std::vector<QString> children;
  };
  bool isShared(store::Connection& parish, const store::Recordset& entry) const;

  bool allBooks_;
  QString word_;
  std::map<QString, Place> places_;
};

}  // namespace fidaleon::app
