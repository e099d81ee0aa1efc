#include "documents/NotificacionSinLibro.h"

#include "core/statements/Citas.h"
#include "documents/TextRules.h"
#include "store/Transaction.h"
#include "text/LongDate.h"

namespace fidaleon::documents {

namespace {

struct Lugar {
  std::string provincia = BLANK;
  std::string poblacion = BLANK;
};

Lugar lugar(FDAPI::Conexion& conexion, std::int32_t codigo) {
  if (codigo == 0) return {};
  const store::Recordset fila = conexion.Execute(
      "SELECT * FROM Municipio,Provincia WHERE IDMunicipio=" + std::to_string(codigo) +
      " AND Municipio.CodProvincia=Provincia.IDProvincia");
  if (fila.EOF_()) return {};
  return {fila.text("Provincia.Nombre"), fila.text("Municipio.Nombre")};
}

std::string larga(const std::string& guardada) {
  const auto fecha = text::parseStored(guardada);
  return fecha ? text::toLong(*fecha) : BLANK;
}

struct Celda {
  const char* columna;
  std::string valor;
};

std::vector<Celda> fila(const cConfirmacion& n, const Lugar& parroquia, const Lugar& bautismo,
                        const std::string& hoy) {
  return {{"Nombre", n.Nombre},
          {"PrimerApellido", n.PrimerApellido},
          {"SegundoApellido", n.SegundoApellido},
          {"InstitucionNombre", n.Parroquia},
          {"InstitucionTipo", n.InstitucionTipo},
          {"InstitucionPoblacion", parroquia.poblacion},
          {"InstitucionProvincia", parroquia.provincia},
          {"InstitucionDiocesis", n.DiocesisParr},
          {"InstitucionDomicilio", n.Domicilio},
          {"LibroBaut", n.LibroBaut},
          {"FolioBaut", std::to_string(n.FolioBaut)},
          {"NumeroBaut", n.NumeroBaut},
          {"Padrino", n.Padrino},
          {"Ministro", n.MinistroPrinc},
          {"FechaConfirmacionLarga", larga(n.FechaConfirmacion)},
          {"FechaBautLarga", larga(n.FechaBaut)},
          {"ParroquiaBaut", n.ParroquiaBaut},
          {"ProvinciaBaut", bautismo.provincia},
          {"PoblacionBaut", bautismo.poblacion},
          {"FechaSistemaLarga", larga(hoy)},
          {"DireccionBaut", n.DireccionBaut},
          {"Edad", n.FechaNac}};
}

}  // namespace

void escribirNotificacion(FDAPI::Conexion& conBaseDatos, FDAPI::Conexion& conInformes,
                          const cConfirmacion& notificacion, const std::string& hoy) {
  const Lugar bautismo = lugar(conBaseDatos, notificacion.CodMunicipioBaut);
  const Lugar parroquia = lugar(conBaseDatos, notificacion.CodMunicipioParr);
  store::Transaction transaccion(conInformes);
  std::string columnas;
  std::string valores;
  for (const Celda& celda : fila(notificacion, parroquia, bautismo, hoy)) {
    columnas += (columnas.empty() ? "" : ", ") + std::string(celda.columna);
    if (!valores.empty()) valores += ',';
    citarEn(valores, celda.valor);
  }
  conInformes.Execute("INSERT INTO Documentos_Confirmacion (" + columnas + ") VALUES (" + valores +
                      ")");
  transaccion.commit();
}

std::vector<std::string> columnasNotificacion() {
  std::vector<std::string> nombres;
  for (const Celda& celda : fila({}, {}, {}, {})) nombres.emplace_back(celda.columna);
  return nombres;
}

}  // namespace fidaleon::documents
