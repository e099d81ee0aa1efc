#include "registers/allocation/PosicionTecleada.h"

#include "registers/allocation/FormatoLibro.h"

namespace fidaleon {

namespace {

bool esDigito(char c) {
  return c >= '0' && c <= '9';
}

const char* motivoDeLleno(int partidasFolio) {
  switch (partidasFolio) {
    case 4:
      return " porque ya hay cuatro partidas en él!";
    case 2:
      return " porque ya hay 2 partidas en él!";
    default:
      return " porque ya tiene una partida!";
  }
}

/// After "z" the letters begin anew: a later one may have been freed.
char siguienteLetra(char letra) {
  if (letra == 'z' || letra == 'Z') return 'a';
  const bool esLetra = (letra >= 'a' && letra < 'z') || (letra >= 'A' && letra < 'Z');
  return esLetra ? static_cast<char>(letra + 1) : 'a';
}

}  // namespace

std::optional<std::string> rechazoFolioCompleto(std::int64_t codFormato, const std::string& folio,
                                                std::int64_t partidas) {
  const int capacidad = partidasDeFormato(codFormato);
  if (capacidad == 0 || partidas < capacidad) return std::nullopt;
  return "¡No puede introducir ninguna partida en el folio " + folio + motivoDeLleno(capacidad);
}

std::string numeroConLetra(const std::string& ocupado,
                           const std::function<bool(const std::string&)>& estaOcupado) {
  const std::size_t fin = ocupado.find_last_of("0123456789");
  const std::string digitos = fin == std::string::npos ? ocupado : ocupado.substr(0, fin + 1);
  const bool llevaLetra = !ocupado.empty() && !esDigito(ocupado.back());
  char letra = llevaLetra ? siguienteLetra(ocupado.back()) : 'a';
  const int letras = 'z' - 'a' + 1;
  for (int i = 0; i < letras && estaOcupado(digitos + letra); ++i) letra = siguienteLetra(letra);
  return digitos + letra;
}

PreguntaReemplazo preguntaReemplazo(const Sacramento& sacramento, std::int64_t codFormato,
                                    const std::string& numeroNuevo) {
  const bool cuatro = partidasDeFormato(codFormato) == 4;
  // The spelling of the question differs with the format, but not in the book of marriages, and in
  // that of the dead once more.
  const char* con = " El número se reemplazará por el ";
  if (cuatro && sacramento.byte != MATRIMONIO.byte)
    con = sacramento.byte == DEFUNCION.byte ? " El numero se reemplazara por el "
                                            : " El numero se reemplazará por el ";
  return {"La partida que va a introducir coincide con otra." + std::string(con) + numeroNuevo +
              " ¿Desea continuar?",
          cuatro ? "Fidaleon2000" : ""};
}

}  // namespace fidaleon
