#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <map>
#include <vector>

#include "core/facade/Documentos.h"
#include "paper/Row.h"
#include "store/Connection.h"

namespace fidaleon::app {

/// The word that is printed across an annulled entry.
QString annulledMark(bool catalan = false);

bool isAnnulled(store::Connection& parish, const Sacramento& sacrament, std::int32_t entry);

/// Which printed rows belong to annulled entries: the rows themselves do not say so, and are known
/// by their place in the book.
class Annulled {
 public:
  /// Of one book of the sacrament, or of all when `book` is 0. Throws store::Error.
  Annulled(store::Connection& parish, const Sacramento& sacrament, std::int32_t book = 0,
           QString word = annulledMark());

  /// The word, or nothing. A place that an annulled entry shares with a valid one, as the books of
  /// old allow, is told apart by the name of the person.
  QString mark(const paper::Row& row) const;
  /// What the rows must have for that, whether or not the template prints it.
  QStringList columns() const;
  std::size_t places() const { return places_.size(); }

 private:
  struct Place {
    bool shared = false;
    std::vector<QString> persons;
  };

  const FilasDocumento& columns_;
  bool allBooks_;
  QString word_;
  std::map<QString, Place> places_;
};

}  // namespace fidaleon::app
