#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "documents/DocumentRow.h"

namespace fidaleon::documents {

/// An entry whose fields stand in several record sets, each of which may have come back empty.
/// A column asks for those of a part by its name ("Institucion.Parroco"), and for the principal
/// ones by theirs alone. What is in no table, or stands for it, is given as a fact.
class FilaCompuesta : public FieldSource {
 public:
  /// `principal` stands on the entry; it must outlive this object.
  explicit FilaCompuesta(const store::Recordset& principal) : principal_(principal) {}

  /// A part that has no record is "---" in all its columns. One of the same name is replaced.
  void ponerParte(std::string_view nombre, store::Recordset registro);
  void ponerDato(std::string_view campo, std::string valor);
  void quitarDatos() { datos_.clear(); }
  /// False for a part that came back empty.
  bool tiene(std::string_view parte) const;

  std::string text(std::string_view campo) const override;
  /// 0 where there is nothing.
  std::int64_t integer(std::string_view campo) const override;

 private:
  /// Where the field stands, and its name there; null for a part that came back empty.
  std::pair<const store::Recordset*, std::string_view> origen(std::string_view campo) const;
  const store::Recordset* parte(std::string_view nombre) const;

  const store::Recordset& principal_;
  std::vector<std::pair<std::string, store::Recordset>> partes_;
  std::map<std::string, std::string, std::less<>> datos_;
};

}  // namespace fidaleon::documents
