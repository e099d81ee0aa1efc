// rooms: census qt support store
// The windows of a census of 100,000 persons: a group whose list offers 5,000 collaborators.

#include <QApplication>

#include "benches/Bench.h"
#include "benches/PeopleWorld.h"
#include "census/activities/frmActividadGrupos.h"
#include "qt/FormDialog.h"

namespace {

using namespace fidaleon;

double showGroup(bench::PeopleWorld& world) {
  ColeccionGrupos groups;
  return bench::milliseconds(3, [&] {
    frmActividadGrupos dialog(world.contexto);
    dialog.conBaseDatos = world.connection.get();
    dialog.colGrupos = &groups;
    dialog.Operacion = FDAPI::cCOperacion::ANADIR;
    dialog.Load();
    qt::FormDialog window(dialog);
    dialog.mstGrupo.userSelect(frmActividadGrupos::TAB_COLABORADORES);
    window.show();
    window.flush();
    QCoreApplication::processEvents();
    window.grab();
    dialog.Unload();
  });
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  bench::PeopleWorld world(bench::PERSONS);
  bench::within("ventana de un grupo con 5.000 colaboradores", showGroup(world), 300);
}
