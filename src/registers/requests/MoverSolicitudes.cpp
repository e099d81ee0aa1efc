// Moving the chosen requests into the book, each on the next position.

#include "core/contract/SesionBloqueos.h"
#include "core/statements/Sentencia.h"
#include "registers/requests/frmSolicitudes.h"
#include "text/Numbers.h"

namespace fidaleon {

using store::Recordset;

void frmSolicitudes::cmdBoton_Click(Boton boton) {
  if (boton == CANCELAR) return Unload();
  procedimiento("cmdBoton_Click", [this] { aceptar(); });
}

void frmSolicitudes::aceptar() {
  if (cboInstitucion.listIndex() < 0)
    return forms::warn(ui(), "¡Debe seleccionar una Institución!");
  if (lstSolicitudes[SELECCIONADOS].listCount() == 0)
    return forms::warn(ui(), "¡Debe seleccionar al menos una solicitud!");
  const auto libroAbierto = [this] {
    return conBaseDatos->Execute(
        sentencia("SELECT {IDLibro}, CodFormato FROM {Libros} WHERE Nuevo = True AND "
                  "Cerrado=False AND CodInstitucion = ") +
        institucion());
  };
  const auto avisarSinLibro = [this] {
    forms::warn(ui(), "¡No tiene ningún libro nuevo abierto!", forms::MsgIcon::Information);
  };
  const Recordset fila = libroAbierto();
  if (fila.EOF_()) return avisarSinLibro();
  const Sacramento& s = origen_->sacramento;
  const Libro libro{static_cast<std::int32_t>(fila.integer(s.claveLibro)), fila.text("CodFormato")};
  // A list of the book that is open elsewhere has its own idea of the next position, and a request
  // being corrected elsewhere would be stored as a request again.
  SesionBloqueos sesion(contexto_, *conBaseDatos);
  sesion.registroPorClave(s.tablaLibros, s.claveLibro, libro.id);
  sesion.tabla(s.tablaPartidas);
  if (!sesion.efectuar()) return;
  // Another workstation may have closed it before the lock was had.
  const Recordset ahora = libroAbierto();
  if (ahora.EOF_() || ahora.integer(s.claveLibro) != libro.id) return avisarSinLibro();
  moverAlLibro(libro);
}

/// What has been moved leaves the list, so that after a failure the rest can be tried again.
void frmSolicitudes::moverAlLibro(const Libro& libro) {
  const forms::Hourglass reloj(ui());
  forms::ListBox& lista = lstSolicitudes[SELECCIONADOS];
  while (lista.listCount() != 0) {
    if (!pasar(lista.itemData(0), libro)) return;
    lista.removeItem(0);
  }
  Unload();
}

bool frmSolicitudes::pasar(std::int64_t solicitud, const Libro& libro) {
  const std::string clave = std::to_string(solicitud);
  const std::string id = std::to_string(libro.id);
  if (conBaseDatos
          ->Execute(sentencia("SELECT {IDPartida} FROM {Partidas} WHERE CodLibro = 0 AND "
                              "{IDPartida} = ") +
                    clave)
          .EOF_()) {
    forms::warn(ui(), "¡La solicitud de " + lstSolicitudes[SELECCIONADOS].list(0) +
                          " ya no existe o ya está en un libro!");
    return true;
  }
  Recordset partidas = conBaseDatos->Execute(
      sentencia("SELECT {IDPartida}, Folio, Numero FROM {Partidas} WHERE CodLibro = ") + id +
      " ORDER BY Folio");
  if (partidas.EOF_()) {
    lngFolio_ = 1;
    strNumero_ = "1";
  } else {
    partidas.MoveLast();
    const std::int64_t ultimoFolio = partidas.integer("Folio");
    partidas.Close();  // an open one keeps all its rows over the next change
    if (!CalcularFolioyNumero(libro, ultimoFolio)) return false;
  }
  conBaseDatos->Execute(sentencia("UPDATE {Partidas} SET InstitucionSolicitud = 0, CodLibro = ") +
                        id + ", Folio = " + std::to_string(lngFolio_) + ", Numero = " +
                        entreComillas(strNumero_) + sentencia(" WHERE {IDPartida} = ") + clave);
  pasadas.push_back({lstSolicitudes[SELECCIONADOS].list(0), lngFolio_, strNumero_});
  return true;
}

bool frmSolicitudes::CalcularFolioyNumero(const Libro& libro, std::int64_t ultimoFolio) {
  return procedimiento(origen_->nombreCalculo, [&] {
    const std::string id = std::to_string(libro.id);
    const std::int64_t porFolio =
        conBaseDatos
            ->Execute("SELECT Partidas_Folio FROM Libros_Formato WHERE IDFormato = " +
                      libro.codFormato)
            .integer("Partidas_Folio");
    const bool cabeOtra =
        porFolio != 1 &&
        conBaseDatos
                ->Execute(sentencia("SELECT {IDPartida} FROM {Partidas} WHERE Folio = ") +
                          std::to_string(ultimoFolio) + " AND CodLibro = " + id +
                          " ORDER BY Val(Numero)")
                .RecordCount() == 1;
    lngFolio_ = cabeOtra ? ultimoFolio : ultimoFolio + 1;
    if (pasaLimiteDeFolios()) return;
    const Recordset mayor = conBaseDatos->Execute(
        sentencia("SELECT MAX(CInt(Numero)) FROM {Partidas} WHERE CodLibro = ") + id);
    strNumero_ = std::to_string(mayor.Fields(0).Value().integer() + 1);
  });
}

/// Never bites: it compares the values of two names, not of what they name, and both are 0. Books
/// have been filled past the limit this way, and must go on to be.
bool frmSolicitudes::pasaLimiteDeFolios() {
  contexto_.leerAjuste(FDAPI::cCRegistry::documentos, FDAPI::cCRegistry::DOCUMENTOS_MAXPAGLIBRO);
  if (text::Val("strFoliosTotales") >= text::Val("mlngfolio")) return false;
  forms::warn(ui(),
              "¡Ha llegado al límite de folios que puede tener el libro y no puede introducir más "
              "partidas en el!");
  return true;
}

}  // namespace fidaleon
