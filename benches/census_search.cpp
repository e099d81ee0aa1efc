// rooms: census support store
// Looking for persons among 100,000 of them: on leaving a name, by DNI, and in the search dialog;
// and how that grows from 10,000.

#include "benches/Bench.h"
#include "benches/PeopleWorld.h"
#include "census/search/BuscaCoincidencias.h"
#include "census/search/frmPadronImportar.h"

namespace {

using namespace fidaleon;

class Names : public forms::Form {
 public:
  explicit Names(Contexto& contexto)
      : Form(contexto.ui(), "Names"),
        nombre(*this, "nombre"),
        primero(*this, "primero"),
        segundo(*this, "segundo"),
        busca(contexto, nombre, primero, segundo, FDAPI::cCOrigen::PADRON) {}
  forms::TextBox nombre, primero, segundo;
  BuscaCoincidencias busca;
};

void leave(Names& names, bench::PeopleWorld& world) {
  names.busca.nombreCambiado();
  names.busca.alSalir(*world.connection, 0, true);
}

/// Somebody who is not there: the usual case, and nothing is shown.
double onLeavingAName(bench::PeopleWorld& world) {
  Names names(world.contexto);
  names.nombre.setText(bench::givenName(0));
  names.primero.setText(bench::surname(1));
  names.segundo.setText(bench::surname(5));
  world.user.expectForm("frmPadronBusqueda", [](forms::FormDriver& list) { list.close(); });
  leave(names, world);
  for (const std::string& problem : world.user.problems()) std::printf("%s\n", problem.c_str());
  names.nombre.setText("Leonor");
  return bench::milliseconds(5,
                             [&] {
                               for (int i = 0; i < 100; ++i) leave(names, world);
                             }) /
         100;
}

/// The dialog from accepting it until the list of those found stands.
double search(bench::PeopleWorld& world, const char* field, const std::string& text) {
  return bench::milliseconds(3, [&] {
    world.user.expectForm("frmPadronImportar", [&](forms::FormDriver& d) {
      world.user.expectForm("frmPadronBusqueda", [](forms::FormDriver& list) { list.close(); });
      d.type(field, text);
      d.click("cmdPadronImportar(0)");
    });
    frmPadronImportar dialog(world.contexto);
    dialog.conBaseDatos = world.connection.get();
    dialog.Origen = FDAPI::cCOrigen::PADRON;
    dialog.Show();
    for (const std::string& problem : world.user.problems()) std::printf("%s\n", problem.c_str());
  });
}

}  // namespace

int main() {
  bench::PeopleWorld small(bench::PERSONS / 10);
  bench::PeopleWorld big(bench::PERSONS);
  const double few = onLeavingAName(small);
  const double many = onLeavingAName(big);
  bench::within("buscar coincidencias al dejar un nombre, 100.000 personas", many, 10);
  bench::growth("lo mismo, 100.000 frente a 10.000 personas", many, few, 2);
  bench::within("buscar por un primer apellido y mostrar los 334 encontrados",
                search(big, "txtPrimerApellido", "Muñoz Calvo"), 100);
  bench::within("buscar por un segundo apellido solo",
                search(big, "txtSegundoApellido", "Muñoz Calvo"), 100);
  bench::within("buscar por el nombre y mostrar los 6.250 encontrados",
                search(big, "txtNombre", "Begoña"), 300);
  bench::within("abrir un grupo con 5.000 colaboradores",
                bench::milliseconds(3, [&] { bench::NewGroup group(big); }), 100);
}
