#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/dialogs/Dialogo.h"
#include "documents/Duplicada.h"

namespace fidaleon {

/// Asks for institution, year and order, and writes one row for each entry of a sacrament that the
/// year has in all books of the institution, annulled ones too, for the duplicate that goes to the
/// diocese. Set the public fields, then Show(); afterwards strOrden says in which order the rows
/// are to be printed. It is set also when the year has no entries, and empty when cancelled.
///
/// Its bar and the host's progress display follow the rows; stopped there, all of them are taken
/// back and the dialog stays.
///
/// An error while rows are being written leaves the transaction on conInformes open, with some of
/// the rows in it; the loader of marriages takes its own back. The dialog stays, and takes them
/// back before it tries again; once it has been closed, that is for the owner of the connection to
/// do.
class frmInfDuplicadas : public Dialogo {
 public:
  explicit frmInfDuplicadas(Contexto& contexto);

  /// Not owned; must be set before the dialog loads.
  FDAPI::Conexion* conBaseDatos = nullptr;
  FDAPI::Conexion* conInformes = nullptr;
  /// One that documents::duplicadaDeNodo knows.
  std::string strNodo;

  /// "+{@FechaBautismo},+{@Folio},+{@Numero}" and its like.
  std::string strOrden;

  enum Boton { ACEPTAR = 0, CANCELAR = 1 };

  forms::ComboBox cboInstitucion;
  forms::TextBox adtpAno;
  forms::ComboBox cboOrden;
  forms::Progress abpProgreso;
  forms::ControlArray<forms::Button> cmdBoton;

 protected:
  void Form_Load() override;

 private:
  void cargar();
  void aceptar();
  void cancelar();
  /// The year as typed; nothing unless it has four digits.
  std::optional<std::int32_t> ano() const;
  void imprimir(const documents::OrdenDuplicada& orden, std::int32_t ano,
                std::int32_t idInstitucion);
  /// False when an error, which has been told, has taken the rows back.
  bool escribirODeshacer(store::Recordset& entries, std::int32_t idInstitucion);
  bool escribir(store::Recordset& entries, std::int32_t idInstitucion);
  void escribirFilas(store::Recordset& entries, std::int32_t idInstitucion,
                     FDAPI::cProgreso& progreso);
  void empezarTransaccion();
  void terminarTransaccion();

  const documents::Duplicada* duplicada_ = nullptr;
  bool transaccionAbierta_ = false;
};

}  // namespace fidaleon
