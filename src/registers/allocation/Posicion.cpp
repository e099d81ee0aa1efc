#include "registers/allocation/Posicion.h"

#include <algorithm>

#include "text/Numbers.h"

namespace fidaleon {

namespace {

constexpr std::size_t MAX_DIGITOS = 18;  // of 64 bits

}  // namespace

bool esNumeroDePartida(const std::string& numero) {
  const std::size_t digitos = std::min(numero.find_first_not_of("0123456789"), numero.size());
  if (digitos == numero.size()) return true;
  const char letra = numero.back();
  const bool esLetra = (letra >= 'a' && letra <= 'z') || (letra >= 'A' && letra <= 'Z');
  return digitos != 0 && digitos + 1 == numero.size() && esLetra;
}

std::int64_t valNumero(const std::string& numero) {
  if (text::isNumeric(numero)) return static_cast<std::int64_t>(text::Val(numero));
  const std::size_t digitos = numero.find_first_not_of("0123456789");
  return static_cast<std::int64_t>(text::Val(numero.substr(0, std::min(digitos, MAX_DIGITOS))));
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
