#include "registers/requests/OrigenSolicitudes.h"

namespace fidaleon {

namespace {

std::string nombreDelBautizado(FDAPI::Conexion& conexion, const store::Recordset& solicitud) {
  const std::string id = solicitud.text("IDBautismo");
  const store::Recordset hijo = conexion.Execute(
      "SELECT Nombre, PrimerApellido, SegundoApellido FROM Bautismo_Hijo WHERE CodBautismo = " +
      id);
  std::string nombre;
  for (const char* columna : {"Nombre", "PrimerApellido", "SegundoApellido"}) {
    const std::string parte = hijo.EOF_() ? std::string() : hijo.text(columna);
    if (!parte.empty() && parte != "---") nombre += (nombre.empty() ? "" : " ") + parte;
  }
  return nombre.empty() ? "Solicitud " + id : nombre;
}

const OrigenSolicitudes ORIGENES[] = {
    {FDAPI::cCOrigen::LISTAPARTIDASBAUTISMO, BAUTISMO, "Solicitudes de bautismo",
     "SELECT IDBautismo FROM Bautismo WHERE CodLibro = 0",
     "SELECT IDBautismo FROM Bautismo WHERE CodLibro = 0 AND InstitucionSolicitud = ",
     nombreDelBautizado, FDAPI::cCOrigen::SOLICITUDBAUTISMO, "CalcularFolioyNumeroBautismo"},
};

}  // namespace

const OrigenSolicitudes* origenSolicitudes(FDAPI::cCOrigen origen) {
  for (const OrigenSolicitudes& o : ORIGENES)
    if (o.origen == origen) return &o;
  return nullptr;
}

const OrigenSolicitudes* origenSolicitudes(const Sacramento* sacramento) {
  for (const OrigenSolicitudes& o : ORIGENES)
    if (&o.sacramento == sacramento) return &o;
  return nullptr;
}

}  // namespace fidaleon
