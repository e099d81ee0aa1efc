#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "census/activities/cPadronActGrupos.h"
#include "core/lists/DialogoConMemoria.h"
#include "core/lists/ListaDoble.h"

namespace fidaleon {

/// A group of an activity: its data on one tab, its members on another. Set the public fields, then
/// Show(). It changes the collection when it is accepted and stores nothing.
class frmActividadGrupos : public DialogoConMemoria {
 public:
  explicit frmActividadGrupos(Contexto& contexto);

  ColeccionGrupos* colGrupos = nullptr;
  FDAPI::cCOperacion Operacion{};  // ANADIR or EDITAR
  std::int32_t IDGrupo = 0;        // with EDITAR: one of the collection
  std::int32_t IDActividad = 0;    // 0 as long as it is not stored
  /// COLABORADOR when the card of a collaborator has led here: no other can be opened then.
  FDAPI::cCOrigen Origen = FDAPI::cCOrigen::PRINCIPAL;

  bool takesFormer() const override { return Operacion == FDAPI::cCOperacion::ANADIR; }

  /// Result.
  bool blnAceptado = false;

  forms::TabStrip mstGrupo;
  forms::ControlArray<forms::TextBox> txtGrupo;
  enum Campo { NOMBRE, ANO, DIA, HORA, SALA, COMENTARIOS };
  forms::ControlArray<forms::ListBox> lstColaboradores;  // item data: key of the person
  enum Lista { DISPONIBLES, SELECCIONADAS };
  forms::ControlArray<forms::Button> cmdMover;
  forms::ControlArray<forms::Button> cmdGrupo;
  enum Boton { ACEPTAR, CANCELAR, ANADIR };
  enum Pestana { TAB_GRUPO, TAB_COLABORADORES };

 protected:
  void Form_Load() override;

 private:
  using Persona = ListaDoble::Elemento;

  void prepararControles();
  void ponerDisposicion();
  void cargar();
  void mostrarGrupo(const cPadronActGrupos& grupo);

  // Members
  std::vector<Persona> leerColaboradores();
  bool CargarDatosGrupoColaborador(const cPadronActGrupos& grupo, ListaDoble::Claves& elegidas);
  void cargarMiembro(const cPadronActividad& miembro, ListaDoble::Claves& elegidas);
  std::string nombreCargo(std::int32_t IDCargo);
  bool pedirCargo(const ListaDoble::Claves& claves);
  std::string anotacion(std::int64_t persona) const;
  void anadirColaborador();
  std::vector<cPadronActividad> miembros(const cPadronActGrupos& grupo) const;

  // Acceptance
  void cmdGrupo_Click(Boton boton);
  void aceptar();
  bool rehusar(const char* mensaje);
  bool validar();
  bool repetido(const std::string& nombre) const;
  void guardar(cPadronActGrupos& grupo);
  std::vector<forms::Field> campos(const cPadronActGrupos& grupo) const;
  const std::vector<forms::Field>& ultima() const override;

  ListaDoble listas_;
  std::vector<Persona> personas_;                        // all that the lists show
  std::map<std::int32_t, std::int32_t> cargos_;          // of the selected persons
  std::map<std::int32_t, std::int32_t> cargosAlCargar_;  // as the record had them
  std::map<std::int32_t, std::string> nombresCargo_;
  mutable std::vector<forms::Field> ultima_;
};

}  // namespace fidaleon
