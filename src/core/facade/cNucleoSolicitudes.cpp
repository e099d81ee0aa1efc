#include <algorithm>

#include "core/facade/Operacion.h"
#include "core/facade/cNucleo.h"
#include "core/statements/Sentencia.h"
#include "registers/requests/BloqueoSolicitud.h"
#include "registers/requests/EliminarSolicitud.h"
#include "registers/requests/frmSolicitudes.h"

namespace fidaleon {

using FDAPI::cCOperacion;

namespace {

/// Null for a node whose sacrament has no requests.
const OrigenSolicitudes* solicitudesDeNodo(const std::string& strNodo) {
  return origenSolicitudes(sacramentoDeNodo(strNodo, "Solicitudes"));
}

constexpr std::size_t MOST_TOLD = 25;

/// The place is written on the paper of the request, or said to the family that waits.
void contarPasadas(forms::UserInterface& ui, const std::vector<frmSolicitudes::Pasada>& pasadas) {
  if (pasadas.empty()) return;
  std::string texto = pasadas.size() == 1 ? "Ya está en el libro:\n" : "Ya están en el libro:\n";
  for (std::size_t i = 0; i < std::min(pasadas.size(), MOST_TOLD); ++i)
    texto += "\n" + pasadas[i].quien + ": folio " + std::to_string(pasadas[i].folio) + ", número " +
             pasadas[i].numero;
  if (pasadas.size() > MOST_TOLD)
    texto += "\n\ny otras " + std::to_string(pasadas.size() - MOST_TOLD) +
             ", que puede ver en las partidas del libro.";
  ui.msgBox(texto, forms::MsgButtons::Ok, forms::MsgIcon::Information);
}

}  // namespace

void cNucleo::NuevaSolicitud(FDAPI::Conexion& conBaseDatos, const FDAPI::cConfig& objConfig,
                             const std::string& strNodo) {
  operacion(contexto_, "NuevaSolicitud", [&] {
    InicializaConfiguracion(objConfig);
    const OrigenSolicitudes* origen = solicitudesDeNodo(strNodo);
    const auto crear = origen ? dialogoDePartida(&origen->sacramento) : nullptr;
    if (!crear) return;
    SesionBloqueos sesion(contexto_, conBaseDatos);
    sesion.tablasCompartidas({"Institucion", "Provincia", "Municipio"});
    sesion.tabla(origen->sacramento.tablaPartidas);
    if (!sesion.efectuar()) return;
    const auto dialogo = crear(contexto_);
    mostrarPartida(contexto_, *dialogo, conBaseDatos, {0, cCOperacion::ANADIRSOLICITUD, {}});
  });
}

void cNucleo::PropiedadesSolicitudes(FDAPI::Conexion& conBaseDatos, std::int32_t lngID,
                                     const FDAPI::cConfig& objConfig, const std::string& strNodo) {
  operacion(contexto_, "PropiedadesSolicitudes", [&] {
    const OrigenSolicitudes* origen = solicitudesDeNodo(strNodo);
    const auto crear = origen ? dialogoDePartida(&origen->sacramento) : nullptr;
    if (!crear) return;
    SesionBloqueos sesion(contexto_, conBaseDatos);
    sesion.tablasCompartidas({"Institucion", "Provincia", "Municipio"});
    bloquearSolicitud(sesion, origen->sacramento, lngID);
    sesion.mostrar(sesion.efectuarParaAbrir(), [&](const auto& aviso) {
      contexto_.gobjConfig = &objConfig;
      return mostrarPartida(contexto_, *crear(contexto_), conBaseDatos,
                            {lngID, cCOperacion::EDITARSOLICITUD, {}}, aviso);
    });
  });
}

void cNucleo::EliminarSolicitud(FDAPI::Conexion& conBaseDatos, std::int32_t lngID,
                                const FDAPI::cConfig&, const std::string& strNodo) {
  if (const OrigenSolicitudes* origen = solicitudesDeNodo(strNodo))
    eliminarSolicitud(contexto_, conBaseDatos, lngID, origen->sacramento);
}

void cNucleo::ImportarSolicitudes(FDAPI::Conexion& conBaseDatos, const FDAPI::cConfig& objConfig,
                                  const std::string& strNodo, std::int32_t lngElegida) {
  operacion(contexto_, "ImportarSolicitudes", [&] {
    InicializaConfiguracion(objConfig);
    const OrigenSolicitudes* origen = solicitudesDeNodo(strNodo);
    if (!origen) return;
    std::vector<frmSolicitudes::Pasada> pasadas;
    {
      SesionBloqueos sesion(contexto_, conBaseDatos);
      sesion.tablasCompartidas({"Institucion"});
      if (!sesion.efectuar()) return;
      if (conBaseDatos
              .Execute(sentencia(origen->sacramento,
                                 "SELECT {IDPartida} FROM {Partidas} WHERE CodLibro = 0"))
              .RecordCount() == 0)
        return forms::warn(contexto_.ui(), "¡No hay solicitudes para importar!");
      frmSolicitudes dialogo(contexto_);
      dialogo.conBaseDatos = &conBaseDatos;
      dialogo.Origen = origen->origen;
      dialogo.elegida = lngElegida;
      dialogo.Show();
      pasadas = std::move(dialogo.pasadas);
    }
    contarPasadas(contexto_.ui(), pasadas);
  });
}

}  // namespace fidaleon
