#include "registers/repair/PartidaPorFichas.h"

namespace fidaleon {

namespace {

constexpr FichaDePartida DE_BAUTISMO[] = {
    {"bautizado", "Bautismo_Hijo", "CodBautismo", "IDBautismo"},
    {"padre", "Bautismo_Padres", "IDPadres", "CodPadres"},
    {"madre", "Bautismo_Madres", "IDMadres", "CodMadres"},
    {"matrimonio de los padres", "Bautismo_Matrimonio", "IDMatrimonio", "CodMatrimonio"},
};

constexpr PartidaPorFichas TODAS[] = {
    {BAUTISMO, "Bautismo", "FechaBautismo", DE_BAUTISMO, &cBaseDatos::BorrarPartidaBautismo},
};

}  // namespace

std::span<const PartidaPorFichas> partidasPorFichas() {
  return TODAS;
}

}  // namespace fidaleon
