#include "registers/common/ListasDeLibro.h"

#include <set>

#include "core/statements/Sentencia.h"
#include "registers/common/NuevaInstitucion.h"
#include "text/Utf8.h"

namespace fidaleon {

using FDAPI::cCRegistry;

ListasDeLibro::ListasDeLibro(Contexto& contexto, const Sacramento& sacramento,
                             forms::ComboBox& institucion, forms::ComboBox& libro)
    : contexto_(contexto), sacramento_(sacramento), institucion_(institucion), libro_(libro) {}

void ListasDeLibro::cargarInstituciones(std::int32_t id) {
  contexto_.entorno.support.create_cIListas()->fillInstituciones(institucion_, id, *conexion_);
}

void ListasDeLibro::CargarComboLibrosNuevos() {
  cargarLibros("nuevo=true");
  // A closed book takes no more entries, and who adds them holds the open ones only.
  std::set<std::int64_t> abiertos;
  store::Recordset filas = conexion_->Execute(
      sentencia(sacramento_,
                "SELECT {IDLibro} FROM {Libros} WHERE  Nuevo = True AND Cerrado = "
                "False"));
  for (; !filas.EOF_(); filas.MoveNext()) abiertos.insert(filas.integer(sacramento_.claveLibro));
  for (int i = libro_.listCount() - 1; i >= 0; --i)
    if (!abiertos.contains(libro_.itemData(i))) libro_.removeItem(i);
}

void ListasDeLibro::CargarComboLibrosAntiguos() {
  cargarLibros("nuevo=false");
}

void ListasDeLibro::cargarLibros(const std::string& condicion) {
  libro_.clear();
  if (institucion_.listIndex() < 0) return;
  store::Recordset filas =
      conexion_->Execute(std::string("SELECT Nombre, ") + sacramento_.claveLibro + " FROM " +
                         text::lower(sacramento_.tablaLibros) + " WHERE " + condicion +
                         " AND codinstitucion=" + std::to_string(institucion_.data()));
  for (; !filas.EOF_(); filas.MoveNext())
    libro_.addItem(filas.text("Nombre"), filas.integer(sacramento_.claveLibro));
}

void ListasDeLibro::fijarLibro(std::int32_t id, const std::string& nombre) {
  libro_.clear();
  libro_.addItem(nombre, id);
  libro_.setListIndex(0);
}

void ListasDeLibro::elegirUltimaInstitucion() {
  institucion_.selectText(
      contexto_.leerAjuste(cCRegistry::ultimos, cCRegistry::ultimos_Institucion));
}

void ListasDeLibro::guardarUltimaInstitucion() {
  contexto_.guardarAjuste(cCRegistry::ultimos, cCRegistry::ultimos_Institucion,
                          institucion_.text());
}

void ListasDeLibro::agregarInstitucion() {
  const std::int32_t agregada = nuevaInstitucion(contexto_, *conexion_);
  if (agregada == 0) return;
  cargarInstituciones(0);
  institucion_.selectData(agregada);
}

void ListasDeLibro::elegirAgregado(const std::string& libro, std::int64_t elegido) {
  int fila = libro_.listCount() - 1;
  while (fila >= 0 && libro_.list(fila) != libro) --fila;
  if (fila < 0) {
    libro_.selectData(elegido);
    return;
  }
  if (!libros_) libros_.emplace(contexto_, *conexion_);
  libros_->registroPorClave(sacramento_.tablaLibros, sacramento_.claveLibro,
                            static_cast<std::int32_t>(libro_.itemData(fila)));
  if (libros_->efectuar()) libro_.setListIndex(fila);
}

}  // namespace fidaleon
