#pragma once

#include <optional>
#include <string>
#include <vector>

namespace fidaleon {

/// How a grid of the library looks before anybody has changed it.
struct Rejilla {
  struct Columna {
    const char* cabecera;
    std::optional<int> ancho = {};  // twips; none: as the grid has it
  };
  const char* camino;  // of its widths in the settings
  std::vector<Columna> columnas;
};

const Rejilla& rejillaPropiedadesLibro();
const Rejilla& rejillaPropiedadesLibroMatrimonio();
const Rejilla& rejillaBuscaPadres();
const Rejilla& rejillaBuscaConfirmacion();
const Rejilla& rejillaBuscaMatrimonio();
const Rejilla& rejillaBuscaDefuncion();
/// The inbox shows when a message was sent, the other trays to whom.
const Rejilla& rejillaMensajes(bool entrada);

}  // namespace fidaleon
