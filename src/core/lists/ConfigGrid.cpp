#include "core/contract/CcNodos.h"
#include "core/dialogs/Guard.h"
#include "core/lists/Rejilla.h"
#include "core/lists/cIListas.h"

namespace fidaleon {

namespace {

bool falta(const std::string& ancho) {
  return ancho.empty() || ancho == "-1";
}

}  // namespace

void cIListas::SaveGrid(const forms::Grid& rejilla, const Rejilla& descripcion) {
  contexto_.entorno.support.create_cIListas()->SaveGrid(rejilla, ruta(descripcion.camino));
}

std::string cIListas::ruta(const char* camino) const {
  return contexto_.seccion(camino);
}

void cIListas::ConfigGrid(forms::Grid& grid, const Rejilla& rejilla, const char* procedimiento,
                          const char* objeto) {
  guarded(contexto_, objeto, procedimiento, [&] {
    const int columnas = static_cast<int>(rejilla.columnas.size());
    grid.setColumns(columnas);
    for (int c = 0; c < columnas; ++c)
      grid.setHeader(c, rejilla.columnas[static_cast<std::size_t>(c)].cabecera);
    aplicarAnchos(grid, rejilla);
  });
}

void cIListas::aplicarAnchos(forms::Grid& grid, const Rejilla& rejilla) {
  for (std::size_t c = 0; c < rejilla.columnas.size(); ++c) {
    const std::optional<int> ancho = rejilla.columnas[c].ancho;
    const std::string clave = std::to_string(c);
    if (ancho && falta(contexto_.leerAjuste(rejilla.camino, clave)))
      contexto_.guardarAjuste(rejilla.camino, clave, std::to_string(*ancho));
  }
  contexto_.entorno.support.create_cIListas()->ConfigGrid(grid, ruta(rejilla.camino));
}

void cIListas::ConfigGridPropiedadesLibro(forms::Grid& rejilla) {
  ConfigGrid(rejilla, rejillaPropiedadesLibro(), "ConfigGridPropiedadesLibro()");
}

void cIListas::ConfigGridPropiedadesLibroMatrimonio(forms::Grid& rejilla) {
  ConfigGrid(rejilla, rejillaPropiedadesLibroMatrimonio(),
             "ConfigGridPropiedadesLibroMatrimonio()");
}

void cIListas::ConfigGridBuscaPadres(forms::Grid& rejilla) {
  ConfigGrid(rejilla, rejillaBuscaPadres(), "ConfigGridBuscaPadres()");
}

void cIListas::ConfigGridBuscaPadresConfirmacion(forms::Grid& rejilla) {
  ConfigGrid(rejilla, rejillaBuscaConfirmacion(), "ConfigGridBuscaPadresConfirmacion()");
}

void cIListas::ConfigGridBuscaPadresMatrimonio(forms::Grid& rejilla) {
  ConfigGrid(rejilla, rejillaBuscaMatrimonio(), "ConfigGridBuscaPadresMatrimonio()");
}

void cIListas::ConfigGridBuscaPadresDefuncion(forms::Grid& rejilla) {
  ConfigGrid(rejilla, rejillaBuscaDefuncion(), "ConfigGridBuscaPadresDefuncion()");
}

void cIListas::ConfigGridMensajes(forms::Grid& rejilla, const std::string& bandeja) {
  ConfigGrid(rejilla, rejillaMensajes(bandeja == CcNodos::BANDEJAENTRADA), "ConfigGridMensajes()");
}

}  // namespace fidaleon
