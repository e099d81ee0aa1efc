#include "core/contract/EnSacramento.h"

#include "text/Utf8.h"

namespace fidaleon {

namespace {

std::string conPalabra(std::string sql, std::string_view de, std::string_view a) {
  sql = text::replaceAll(sql, de, a);
  return text::replaceAll(sql, text::lower(de), text::lower(a));
}

}  // namespace

std::string enSacramento(const Sacramento& sacramento, std::string_view enBautismo) {
  std::string sql(enBautismo);
  if (sacramento.byte == BAUTISMO.byte) return sql;
  // The key of an entry need not bear the sacrament's word, so it goes first.
  sql = conPalabra(std::move(sql), BAUTISMO.clavePartida, sacramento.clavePartida);
  return conPalabra(std::move(sql), BAUTISMO.palabra, sacramento.palabra);
}

}  // namespace fidaleon
