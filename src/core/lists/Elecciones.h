#pragma once

#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "core/contract/Contexto.h"
#include "forms/Controls.h"

namespace fidaleon {

/// What was chosen in a list of a dialog and is stored by its key, so that it has to exist when the
/// dialog is accepted.
struct Eleccion {
  forms::ListControl* lista;  // item data: the key
  const char* tabla;
  const char* clave;
  const char* que;                // "la institución"
  std::function<void()> renovar;  // reads the list anew and leaves none chosen
};

/// All such lists of a dialog, which owns them.
class Elecciones {
 public:
  Elecciones(Contexto& contexto, FDAPI::Conexion& conexion)
      : contexto_(contexto), conexion_(conexion) {}

  void vigilar(Eleccion eleccion) { elecciones_.push_back(std::move(eleccion)); }

  /// False when something that is chosen has been deleted meanwhile. The user is then told what,
  /// its lists are read anew so that another can be chosen (a locked one stays as it is), and the
  /// first of them gets the focus; nothing else in the dialog changes.
  bool siguen() const;

 private:
  std::vector<const Eleccion*> perdidas() const;
  std::set<std::int64_t> existentes(const Eleccion& de) const;

  Contexto& contexto_;
  FDAPI::Conexion& conexion_;
  std::vector<Eleccion> elecciones_;
};

/// Tells the user what another desk has deleted ("el libro «2003/01»"), and that what was typed is
/// still there.
void avisarEliminados(forms::UserInterface& ui, const std::vector<std::string>& cuales,
                      bool puedeElegirOtro);

}  // namespace fidaleon
