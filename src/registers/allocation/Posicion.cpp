#include "registers/allocation/Posicion.h"

#include <limits>
#include <stdexcept>

#include "text/Numbers.h"
#include "text/Utf8.h"

namespace fidaleon {

std::int64_t valNumero(const std::string& numero) {
  if (text::isNumeric(numero)) return static_cast<std::int64_t>(text::Val(numero));
  const std::size_t n = text::length(numero);
  const std::string digitos = text::left(numero, n == 0 ? 0 : n - 1);
  if (!text::isNumeric(digitos))
    throw std::range_error("El número de partida «" + numero + "» no se puede leer.");
  const double valor = text::Val(digitos);
  if (valor > std::numeric_limits<std::int16_t>::max())
    throw std::range_error("El número de partida «" + numero + "» es demasiado grande.");
  return static_cast<std::int64_t>(valor);
}

bool haySalto(const Sacramento& sacramento, const Posicion& anterior, const Posicion& siguiente) {
  const std::int64_t avance = valNumero(siguiente.numero) - valNumero(anterior.numero);
  if (sacramento.byte == MATRIMONIO.byte) return avance != 1;
  return siguiente.folio - std::int64_t{anterior.folio} > 1 || avance > 1;
}

std::string mensajeSalto(const Sacramento& sacramento, const Posicion& siguiente) {
  const char* corte = sacramento.byte == MATRIMONIO.byte ? "" : "\n";
  return std::string("¡Se ha producido un salto, la siguiente partida a introducir es ") + corte +
         "la correspondiente al folio " + std::to_string(siguiente.folio) + ", número " +
         siguiente.numero + "!";
}

}  // namespace fidaleon
