#include "core/facade/Operacion.h"
#include "core/facade/cNucleo.h"
#include "registers/repair/frmPartidasIncompletas.h"

namespace fidaleon {

void cNucleo::PartidasIncompletas(FDAPI::Conexion& conBaseDatos, const FDAPI::cConfig& objConfig) {
  operacion(contexto_, "PartidasIncompletas", [&] {
    InicializaConfiguracion(objConfig);
    frmPartidasIncompletas dialogo(contexto_);
    dialogo.conBaseDatos = &conBaseDatos;
    dialogo.abrir = [&](const PartidaIncompleta& p) {
      const std::string palabra = p.clase->sacramento.palabra;
      if (p.esLibro())
        PropiedadesLibro(conBaseDatos, p.codLibro, objConfig, "Libros" + palabra);
      else if (p.codLibro == 0)
        PropiedadesSolicitudes(conBaseDatos, p.id, objConfig, "Solicitudes" + palabra);
      else
        PropiedadesPartida(conBaseDatos, p.id, objConfig, "Partidas" + palabra);
    };
    dialogo.Show();
  });
}

std::int64_t cNucleo::CuentaPartidasIncompletas(FDAPI::Conexion& conBaseDatos) {
  std::int64_t cuantas = 0;
  operacion(contexto_, "CuentaPartidasIncompletas",
            [&] { cuantas = cuentaPartidasIncompletas(conBaseDatos); });
  return cuantas;
}

}  // namespace fidaleon
