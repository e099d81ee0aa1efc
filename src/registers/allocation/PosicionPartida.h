#pragma once

#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "core/contract/Contexto.h"
#include "core/contract/Sacramento.h"
#include "forms/Controls.h"
#include "registers/allocation/Posicion.h"
#include "registers/allocation/PosicionEnLista.h"

namespace fidaleon {

/// The origin of an entry dialog that was opened from the list of a book of this sacrament.
FDAPI::cCOrigen origenLista(const Sacramento& sacramento);

/// What the position routines work on in an entry dialog. The controls are the dialog's.
struct CamposPosicion {
  forms::ListControl& institucion;
  forms::ListControl& libro;
  forms::TextBox& folio;
  forms::TextBox& numero;
  forms::TabStrip& pestanas;
  forms::Label& aviso;  // under the number
  /// Positions of the items of the book's list that are not to be deleted, without the one that
  /// is being edited. Asked for only when the dialog was opened from that list.
  std::function<const std::vector<Posicion>&()> coleccion;
};

/// Folio and number of an entry dialog: the proposals, the check of a typed position, the page
/// limit and the warning of a jump, for all four sacraments. Shows its own messages; errors are
/// thrown to the guard of the dialog's procedure.
class PosicionPartida {
 public:
  PosicionPartida(Contexto& contexto, const Sacramento& sacramento, CamposPosicion campos);

  /// To be called before the routines; the connection is not owned.
  void abrir(FDAPI::Conexion& conexion, FDAPI::cCOrigen origen);

  /// Next position of a new book, of the institution and book chosen in the lists. Locks the
  /// lists when the dialog comes from a book's list.
  void RellenarFolioyNumero();
  /// First free position of an old book. Mends the book's counters as it goes; the fields stay
  /// as they are when it gives up.
  void ComprobarFolioyNumeroAntiguas();
  /// The proposal from the items of the book's list.
  void CalcularColeccionFolioyNumero(std::int32_t libro);

  /// The check of a typed position on leaving the first tab for an old entry, against the table
  /// or, opened from a book's list, against that list. False when the dialog is to stay: it then
  /// shows its first tab, with the focus on the folio. Without an institution, a book or a folio
  /// there is nothing to check.
  bool comprobarPosicionTecleada();

  /// Says under the number on which folios of the book it stands already ("El 10 ya está en el
  /// folio 3"), or nothing. Nothing is refused: books have been kept so. `propia` is the key of the
  /// entry that is being edited, 0 for a new one.
  void avisarNumeroRepetido(std::int32_t propia);
  void quitarAviso();

  /// Folio and number as they stand in the fields.
  Posicion enCampos() const;
  /// Warns when the position in the fields is not the one that follows `anterior`.
  void avisarSalto(const Posicion& anterior);

  /// The last proposal passed the page limit: the entry must not be accepted.
  /// What stands in the fields passes the limit.
  bool pasaLimite() const;
  bool limiteSuperado() const { return limiteSuperado_; }

 private:
  struct Libro {
    std::int64_t id = 0;
    std::int64_t codFormato = 0;
  };
  std::int64_t institucionElegida() const;
  Libro libroNuevoElegido() const;
  Libro libroAntiguoElegido() const;
  Libro leerLibro(const store::Recordset& fila) const;
  void seguirA(const Libro& libro, std::int64_t folio, const std::string& numero);
  std::int64_t cuentaDelFolio(const Libro& libro, std::int64_t folio);
  bool desdeLista() const { return origen_ == origenLista(sacramento_); }
  std::int64_t partidasDelFolio(const Libro& libro, std::int64_t folio) const;
  bool ofrecerLetra(const Libro& libro);
  bool ocupado(const Libro& libro, const std::string& numero) const;
  std::set<std::int64_t> foliosCon(const std::string& numero, std::int32_t propia) const;
  bool volverAlFolio();
  void proponer(const Posicion& posicion);
  void ponerFolio(std::int64_t folio);
  std::string ajusteLimite() const;
  void comprobarLimite();
  void fijarListas();

  Contexto& contexto_;
  const Sacramento& sacramento_;
  CamposPosicion campos_;
  FDAPI::Conexion* conexion_ = nullptr;
  FDAPI::cCOrigen origen_{};
  bool limiteSuperado_ = false;
};

}  // namespace fidaleon
