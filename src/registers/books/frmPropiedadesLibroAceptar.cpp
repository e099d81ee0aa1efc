// Accepting and cancelling the dialog of a book.

#include "core/lists/Elecciones.h"
#include "core/statements/NombreRepetido.h"
#include "core/statements/Sentencia.h"
#include "registers/books/VariantePropiedadesLibro.h"
#include "text/Utf8.h"

namespace fidaleon {

using FDAPI::cCOperacion;

namespace {

bool vacio(const std::string& texto) {
  return text::trim(texto).empty();
}

}  // namespace

void frmPropiedadesLibro::cmdBoton_Click(Boton boton) {
  procedimiento("cmdBoton_Click()", [&] { boton == ACEPTAR ? aceptar() : cancelar(); });
}

void frmPropiedadesLibro::aceptar() {
  if (hayFilas(sentencia("select * from {libros} where Cerrado=0 and Nuevo=1")))
    return forms::warn(ui(), "¡No puede haber dos libros nuevos y abiertos a la vez!");
  const std::string otros = std::to_string(institucion_) + sentencia(" AND {IDLibro}<>") + libro();
  if (hayFilas(sentencia("select * from libro_{Palabra} where Nombre=") +
               entreComillas(text::trim(txtNombreLibro.text())) + " and codInstitucion=" + otros) ||
      // Two old books may be told apart by blanks alone: what nobody renames stays acceptable.
      (txtNombreLibro.text() != nombreViejo_ &&
       hayMismoNombre(*conBaseDatos,
                      sentencia("select Nombre from libro_{Palabra} where codInstitucion=") + otros,
                      txtNombreLibro.text())))
    return forms::warn(ui(), "¡El nombre del libro introducido ya existe!");
  if (!ValidarDatos()) {
    forms::Control& campo = *campoQueFalta();
    contexto_.fidaleon()->verfalta(*campo.label());
    mstLibro.setTab(TAB_LIBRO);
    return setFocus(campo);
  }
  if (!hayFilas(sentencia("Select * from {Libros} where IdLibro{Palabra}=") + libro()))
    return avisarEliminados(ui(), {"el libro «" + nombreViejo_ + "»"}, false);
  const forms::Hourglass reloj(ui());
  if (partidas_->guardar(*conBaseDatos) && GuardarDatos()) Unload();
}

bool frmPropiedadesLibro::ValidarDatos() {
  bool completo = false;
  procedimiento("ValidarDatos()", [&] { completo = campoQueFalta() == nullptr; });
  return completo;
}

forms::Control* frmPropiedadesLibro::campoQueFalta() {
  if (vacio(txtNombreLibro.text())) return &txtNombreLibro;
  if (vacio(cboTipoNombre.text())) return &cboTipoNombre;
  if (vacio(txtFormato.text())) return &txtFormato;
  if (vacio(txtInstitucion.text())) return &txtInstitucion;
  return faltaFecha() ? &dtpFecha : nullptr;
}

/// A book that came without a date may stay so; a date that it had may not be lost.
bool frmPropiedadesLibro::faltaFecha() const {
  return !dtpFecha.valid() || (dtpFecha.stored().empty() && !fechaLeida_.empty());
}

bool frmPropiedadesLibro::GuardarDatos() {
  return procedimiento("GuardarDatos()", [this] {
    const store::Recordset fila = conBaseDatos->Execute(
        sentencia("Select * from {Libros} where IdLibro{Palabra}=") + libro());
    if (fila.flag("nuevo") && fila.flag("cerrado")) return;
    const std::string fecha = dtpFecha.stored().empty() ? fechaEnTabla_ : dtpFecha.stored();
    conBaseDatos->Execute(sentencia("Update {Libros} Set codTipoNombre= ") +
                          std::to_string(cboTipoNombre.data()) +
                          ", Nombre= " + entreComillas(text::trim(txtNombreLibro.text())) +
                          ", FechaCreacion=" + entreComillas(fecha) +
                          sentencia(" where IdLibro{Palabra}=") + libro());
  });
}

void frmPropiedadesLibro::cancelar() {
  if (hayCambios() &&
      !forms::ask(ui(),
                  "Ha realizado cambios en las partidas del libro. ¿Desea cerrar el formulario y "
                  "perder así todos los cambios realizados?"))
    return;
  Unload();
}

bool frmPropiedadesLibro::hayCambios() const {
  for (std::size_t i = 0; i < partidas_->cuenta(); ++i) {
    const PartidaEnLista partida = partidas_->partida(i);
    if (!partida.guardada) return true;
    switch (partida.Operacion) {
      case cCOperacion::ANADIR:
      case cCOperacion::ANTIGUA:
      case cCOperacion::EDITAR:
      case cCOperacion::Borrar:
        return true;
      default:
        break;
    }
  }
  return false;
}

}  // namespace fidaleon
