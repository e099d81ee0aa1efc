#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "census/activities/cPadronActividad.h"
#include "core/lists/DialogoConMemoria.h"

namespace fidaleon {

/// A group that a collaborator works in, and the office they have in it. Works on the collection of
/// the caller and stores nothing of it; activities, groups and offices that are added from here are
/// stored. Set the public fields, then Show(). The caller holds the locks.
class frmColaboradorActividad : public DialogoConMemoria {
 public:
  explicit frmColaboradorActividad(Contexto& contexto);

  /// ANADIR or EDITAR.
  FDAPI::cCOperacion Operacion{};
  /// ACTIVIDAD when the collaborator was reached from an activity: neither activities nor offices
  /// can be added then.
  FDAPI::cCOrigen Origen = FDAPI::cCOrigen::PRINCIPAL;
  /// The collaborator, 0 for one who is not stored yet.
  std::int32_t IDPadron = 0;
  /// Not owned; must be set before the dialog loads. A new one is put behind the others.
  std::vector<cPadronActividad>* colActividades = nullptr;
  /// Of the one to be edited.
  std::size_t posicion = 0;
  /// Called when names that the caller may show could have changed, while the dialog is open.
  std::function<void()> refrescar;

  /// What the caller's grid shows of it: group, office, activity, room, day, hour. Empty when the
  /// dialog was cancelled.
  std::vector<std::string> celdas;

  bool takesFormer() const override { return Operacion == FDAPI::cCOperacion::ANADIR; }

  enum Lista { ACTIVIDAD, GRUPO, CARGO };
  enum Boton { ACEPTAR = 0, CANCELAR = 1 };

  forms::ControlArray<forms::ComboBox> cboColaboraAct;  // item data: keys
  forms::ControlArray<forms::Button> cmdAgregar;        // by Lista
  forms::ControlArray<forms::Button> cmdColaboraAct;

 protected:
  void Form_Load() override;

 private:
  using Claves = std::set<std::int64_t>;
  void crearLista(Lista lista, const char* etiqueta, const char* boton);
  void Cargar_Listas(Lista lista);
  void Cargar_Datos();
  void cboActividad_Click();
  void cmdAgregar_Click(Lista lista);
  void agregar(Lista lista);
  void recargar();
  void elegirNueva(Lista lista, const Claves& antes);
  Claves claves(Lista lista) const;
  std::int32_t clave(Lista lista) const;
  void aceptar();
  bool faltaAlguna();
  bool yaEnElGrupo() const;
  void guardar();
};

}  // namespace fidaleon
