// rooms: census qt support store
// The windows of a census of 100,000 persons: a group whose list offers 5,000 collaborators.

#include <QApplication>

#include "benches/Bench.h"
#include "benches/PeopleWorld.h"
#include "qt/FormDialog.h"

namespace {

using namespace fidaleon;

double showGroup(bench::PeopleWorld& world) {
  return bench::milliseconds(3, [&] {
    bench::NewGroup group(world);
    qt::FormDialog window(group.dialog);
    group.dialog.mstGrupo.userSelect(frmActividadGrupos::TAB_COLABORADORES);
    window.show();
    window.flush();
    QCoreApplication::processEvents();
    window.grab();
  });
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  bench::PeopleWorld world(bench::PERSONS);
  bench::within("ventana de un grupo con 5.000 colaboradores", showGroup(world), 300);
}
