#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "core/contract/Contexto.h"
#include "forms/Controls.h"

namespace fidaleon {

/// What acceptance asks about the dates of an entry. Nothing is refused: the user may keep whatever
/// stands there.
class RevisionFechas {
 public:
  explicit RevisionFechas(Contexto& contexto) : contexto_(contexto) {}
  RevisionFechas(const RevisionFechas&) = delete;
  RevisionFechas& operator=(const RevisionFechas&) = delete;

  enum class Hoy {
    NORMAL,  // the date is often that of today
    DUDOSO,  // it hardly ever is: asked about when it is today's and nobody touched it
    NUNCA,   // it never is: an entry begins without it
    FUTURO,  // it may also lie ahead
  };
  /// `nombre` as in "fecha de nacimiento". Takes the field's onChange and onKeyPress.
  void vigilar(forms::DateField& campo, std::string nombre, Hoy hoy);
  /// The first of the two cannot be the later one. Both must be watched.
  void enEsteOrden(const forms::DateField& primero, const forms::DateField& despues);
  void permitirFuturo(const forms::DateField& campo);

  /// Puts today where nobody has put a date; it counts as untouched.
  void proponerHoy(const forms::DateField& campo, Hoy hoy);
  /// Puts today, or nothing, into all fields but those that stay; they count as untouched from now
  /// on.
  void empezar(bool conHoy, const std::function<bool(const forms::Control&)>& queda = {});
  /// Asks. False when the user wants to look at them again; the focus stands on the first one. What
  /// has been asked once is not asked again while it stays.
  bool aceptar();

 private:
  struct Fecha {
    forms::DateField* campo;
    std::string nombre;
    Hoy hoy;
    bool futuro;
    bool tocada = false;
  };
  struct Orden {
    const Fecha* primero;
    const Fecha* despues;
  };
  struct Reparos {
    std::string texto;
    const Fecha* primera = nullptr;
  };
  Fecha& de(const forms::DateField& campo);
  bool aceptarHoy();
  bool aceptarImposibles();
  Reparos imposibles() const;
  bool irA(const Fecha& fecha);

  Contexto& contexto_;
  std::deque<Fecha> fechas_;
  std::vector<Orden> ordenes_;
  std::string reparosDichos_;
};

}  // namespace fidaleon
