#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

#include "core/contract/Contexto.h"
#include "forms/Form.h"

namespace fidaleon {

/// Two open lists of a dialog and the four buttons that move lines between them; the key of a line
/// is its item data. A double click moves that line alone. Lists and buttons are the dialog's; this
/// makes the buttons and must live as long as they do. Lines may be put into the lists directly or,
/// so that one that comes back finds its old place, with llenar().
class ListaDoble {
 public:
  using Claves = std::vector<std::int64_t>;
  struct Elemento {
    std::int64_t clave;
    std::string texto;
  };
  /// What the user reads. A message left empty is a beep.
  struct Textos {
    const char* todas = "todas";  // "todos" for men and mixed company
    std::array<const char*, 4> ayudas{"Agrega lo marcado", "Agrega todo lo de la lista",
                                      "Quita lo marcado", "Quita todo lo de la lista"};
    const char* nadaMarcado = "¡Debe seleccionar algun elemento de la lista!";
    const char* nadaQueElegir = "";  // the list to choose from is empty
    const char* nadaQueQuitar = "";
    // What errors are reported under, beside the name of the dialog.
    const char* alMoverMarcados = "ListarSeleccionados";
    const char* alMoverTodos = "ListarTodosSeleccionados";
  };
  /// Indices of the buttons in `mover`.
  enum Movimiento { ELEGIR, ELEGIR_TODAS, QUITAR, QUITAR_TODAS };

  ListaDoble(Contexto& contexto, forms::Form& formulario, forms::ListBox& disponibles,
             forms::ListBox& seleccionadas, forms::ControlArray<forms::Button>& mover,
             Textos textos);
  ListaDoble(const ListaDoble&) = delete;
  ListaDoble& operator=(const ListaDoble&) = delete;

  /// The lists side by side with the buttons between them.
  forms::LayoutNode disposicion() const;
  /// Puts these lines in place of all there are, each key once; what was marked stays marked. The
  /// order of `orden` is the one that the available lines keep; those whose keys are in `elegidas`
  /// go to the selected ones, in that order.
  void llenar(std::vector<Elemento> orden, const Claves& elegidas = {});
  void vaciar() { llenar({}); }
  Claves seleccionadas() const;

  /// Asked before lines go to the selected list; false leaves them where they are.
  std::function<bool(const Claves& claves)> antesDeElegir;
  /// Told when lines have gone back.
  std::function<void(const Claves& claves)> quitados;
  /// What stands behind the text of a selected line and goes when it goes back. Asked again each
  /// time, so it has to give the same as long as the line stays.
  std::function<std::string(std::int64_t clave)> anotacion;

 private:
  void mover(Movimiento movimiento);
  void moverUna(forms::ListBox& de);
  /// Is there something to move? If not, the user knows.
  bool comprobarSeleccion(const forms::ListBox& de, bool marcadas);
  void rehusar(const char* mensaje);
  void pasar(forms::ListBox& de, const std::vector<int>& filas);
  void devolver(std::vector<Elemento> vuelven);
  void poner(forms::ListBox& lista, const std::vector<Elemento>& elementos);
  void agregar(forms::ListBox& lista, const std::vector<Elemento>& elementos);
  /// Without what stands behind the texts.
  std::vector<Elemento> elementos(const forms::ListBox& lista) const;

  Contexto& contexto_;
  forms::Form& formulario_;
  forms::ListBox& disponibles_;
  forms::ListBox& seleccionadas_;
  forms::ControlArray<forms::Button>& mover_;
  Textos textos_;
  std::unordered_map<std::int64_t, std::size_t> lugares_;
};

}  // namespace fidaleon
