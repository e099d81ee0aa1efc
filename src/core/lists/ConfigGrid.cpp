#include "core/contract/CcNodos.h"
#include "core/lists/Rejilla.h"
#include "core/lists/cIListas.h"

namespace fidaleon {

namespace {

bool falta(const std::string& ancho) {
  return ancho.empty() || ancho == "-1";
}

}  // namespace

std::string cIListas::ruta(const char* camino) const {
  return contexto_.seccion(camino);
}

void cIListas::configurar(forms::Grid& grid, const Rejilla& rejilla) {
  const int columnas = static_cast<int>(rejilla.columnas.size());
  grid.setColumns(columnas);
  for (int c = 0; c < columnas; ++c) {
    const Rejilla::Columna& columna = rejilla.columnas[static_cast<std::size_t>(c)];
    const std::string clave = std::to_string(c);
    if (columna.ancho && falta(contexto_.leerAjuste(rejilla.camino, clave)))
      contexto_.guardarAjuste(rejilla.camino, clave, std::to_string(*columna.ancho));
    grid.setHeader(c, columna.cabecera);
  }
  contexto_.entorno.support.create_cIListas()->ConfigGrid(grid, ruta(rejilla.camino));
}

void cIListas::ConfigGridPropiedadesLibro(forms::Grid& rejilla) {
  configurar(rejilla, rejillaPropiedadesLibro());
}

void cIListas::ConfigGridPropiedadesLibroMatrimonio(forms::Grid& rejilla) {
  configurar(rejilla, rejillaPropiedadesLibroMatrimonio());
}

void cIListas::ConfigGridBuscaPadres(forms::Grid& rejilla) {
  configurar(rejilla, rejillaBuscaPadres());
}

void cIListas::ConfigGridBuscaPadresConfirmacion(forms::Grid& rejilla) {
  configurar(rejilla, rejillaBuscaConfirmacion());
}

void cIListas::ConfigGridBuscaPadresMatrimonio(forms::Grid& rejilla) {
  configurar(rejilla, rejillaBuscaMatrimonio());
}

void cIListas::ConfigGridBuscaPadresDefuncion(forms::Grid& rejilla) {
  configurar(rejilla, rejillaBuscaDefuncion());
}

void cIListas::ConfigGridMensajes(forms::Grid& rejilla, const std::string& bandeja) {
  configurar(rejilla, rejillaMensajes(bandeja == CcNodos::BANDEJAENTRADA));
}

}  // namespace fidaleon
