#include "census/search/BuscaCoincidencias.h"

#include "census/search/frmPadronBusqueda.h"
#include "core/statements/Citas.h"

namespace fidaleon {

BuscaCoincidencias::BuscaCoincidencias(Contexto& contexto, forms::TextBox& nombre,
                                       forms::TextBox& primerApellido,
                                       forms::TextBox& segundoApellido, FDAPI::cCOrigen origen)
    : contexto_(contexto),
      nombre_(nombre),
      primerApellido_(primerApellido),
      segundoApellido_(segundoApellido),
      origen_(origen) {}

std::int32_t BuscaCoincidencias::alSalir(FDAPI::Conexion& conexion, std::int32_t otra,
                                         bool blnSeleccionar) {
  if (!cambiado_ || !completo()) return 0;
  cambiado_ = false;
  store::Recordset encontrados = conexion.Execute(sentencia(otra));
  if (encontrados.EOF_()) return 0;
  frmPadronBusqueda lista(contexto_);
  lista.conBaseDatos = &conexion;
  lista.registros = &encontrados;
  lista.Origen = origen_;
  lista.blnSeleccionar = blnSeleccionar;
  lista.Nombre = nombre_.text();
  lista.PrimerApellido = primerApellido_.text();
  lista.SegundoApellido = segundoApellido_.text();
  lista.Show();
  return lista.lngSeleccionado;
}

bool BuscaCoincidencias::completo() const {
  return !nombre_.text().empty() && !primerApellido_.text().empty() &&
         !segundoApellido_.text().empty();
}

std::string BuscaCoincidencias::sentencia(std::int32_t otra) const {
  const std::string iguales = "SELECT * FROM Padron WHERE Nombre=" + entreComillas(nombre_.text()) +
                              " AND PrimerApellido=" + entreComillas(primerApellido_.text()) +
                              " AND SegundoApellido=" + entreComillas(segundoApellido_.text());
  return otra == 0 ? iguales : iguales + " AND IDPadron <> " + std::to_string(otra);
}

}  // namespace fidaleon
