#pragma once
// A parish of 100,000 persons, 5,000 of them collaborators.

#include <cstdio>

#include "benches/People.h"
#include "benches/World.h"
#include "census/activities/frmActividadGrupos.h"

namespace fidaleon::bench {

struct PeopleWorld : World {
  explicit PeopleWorld(int persons) { fillCensus(*connection, persons); }
};

/// A new group that offers all collaborators; loaded.
struct NewGroup {
  explicit NewGroup(PeopleWorld& world) : dialog(world.contexto) {
    dialog.conBaseDatos = world.connection.get();
    dialog.colGrupos = &groups;
    dialog.Operacion = FDAPI::cCOperacion::ANADIR;
    dialog.Load();
    const int expected = PERSONS / EVERY_COLLABORATOR;
    if (dialog.lstColaboradores[frmActividadGrupos::DISPONIBLES].listCount() != expected)
      std::printf("faltan colaboradores\n");
  }
  ~NewGroup() { dialog.Unload(); }

  ColeccionGrupos groups;
  frmActividadGrupos dialog;
};

}  // namespace fidaleon::bench
