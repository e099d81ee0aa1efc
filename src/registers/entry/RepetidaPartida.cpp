// Is the entry being accepted in a book already, and which books are looked in.

#include "core/statements/Sentencia.h"
#include "registers/common/Guiones.h"
#include "registers/entry/frmPartida.h"

namespace fidaleon {

using FDAPI::cCOperacion;

namespace {

/// "codlibro=1 OR codlibro=2" of the keys in the first column.
std::string condicionDeLibros(store::Recordset filas) {
  std::string libros;
  for (; !filas.EOF_(); filas.MoveNext())
    libros += (libros.empty() ? "codlibro=" : " OR codlibro=") + filas.Fields(0).Value().text();
  return libros;
}

}  // namespace

bool frmPartida::ComprobarDatosBaseDatos() {
  const bool seMira =
      !esSolicitud() || variante_.dondeRepetida == VariantePartida::DondeRepetida::EnSuInstitucion;
  if (!seMira || !repetida()) return true;
  return forms::ask(ui(), "La partida de " + quienes() +
                              " ya existe en el libro correspondiente, ¿Quiere continuar?");
}

std::string frmPartida::quienes() const {
  std::string nombres;
  for (const Persona& p : personas_) {
    nombres += nombres.empty() ? "" : " y de";
    for (const forms::TextBox* campo : {p.nombre, p.primero, p.segundo})
      nombres += (nombres.empty() ? "" : " ") + nombreGuardado(campo->text());
  }
  return nombres;
}

/// The date of the book that is chosen, as a statement.
std::string frmPartida::fechaDeEsteLibro() const {
  return sentencia(sacramento(), "(SELECT fechacreacion FROM {Libros} WHERE nombre=") +
         entreComillas(libro().text()) +
         " AND codinstitucion=" + std::to_string(institucion().data()) + ")";
}

std::string frmPartida::librosDondeRepetida() const {
  const std::string clave = sentencia(sacramento(), "SELECT {idlibro} FROM {Libros} WHERE ");
  if (variante_.dondeRepetida == VariantePartida::DondeRepetida::EnTodas)
    return condicionDeLibros(conBaseDatos->Execute(
        clave + "(nuevo=true AND cerrado=false) OR (nuevo=false AND fechacreacion<=" +
        fechaDeEsteLibro() + ")"));
  const std::string suya = " AND codinstitucion=" + std::to_string(institucion().data());
  const bool antiguo =
      Operacion == cCOperacion::ANTIGUA || (Operacion == cCOperacion::EDITAR && !libroNuevo_);
  const std::string cuales = esSolicitud() ? "nuevo=true AND cerrado=false"
                             : antiguo     ? "nuevo=false AND fechacreacion<=" + fechaDeEsteLibro()
                                           : "nuevo=true";
  return condicionDeLibros(conBaseDatos->Execute(clave + cuales + suya));
}

}  // namespace fidaleon
