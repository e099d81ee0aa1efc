// The card of an office, and the choice of one.

#include "census/Manos.h"
#include "census/activities/frmCargo.h"

namespace fidaleon::tests::CargoTest {

constexpr const char *ACEPTAR = "cmdCargo(0)", *AGREGAR = "cmdCargo(2)", *NOMBRE = "txtCargo(0)",
                     *LISTA = "cboCargo";

struct Cargos : En<GruposWorld> {
  /// The office chosen, and its name behind it.
  std::string elegir(Act act) {
    espera("frmCargo", std::move(act));
    frmCargo dialogo(contexto);
    dialogo.conBaseDatos = &con();
    dialogo.Origen = cCOrigen::ACTIVIDAD;
    dialogo.Show();
    return texto(dialogo.lngCargo) + dialogo.strCargo;
  }
};

TEST_F(Cargos, NameThatIsTaken_IsRefusedButForItself) {
  for (const std::int32_t id : {monitor, 0}) {
    espera("frmCargo", [&](FormDriver& d) {
      EXPECT_FALSE(d.visible(LISTA));
      poner(d, NOMBRE, "CATEQUISTA");
      rehusa(d, ACEPTAR, "¡Ya existe un cargo con este nombre!", NOMBRE);
      poner(d, NOMBRE, id ? " MONITOR " : "Director", "txtCargo(1)", "Lleva el \"coro\"");
      d.click(ACEPTAR);
    });
    id ? censo::EditaCargo(contexto, con(), id) : censo::NuevoCargo(contexto, con());
  }
  EXPECT_EQ(filas("SELECT * FROM Cargo"),
            "1|Catequista|/2|MONITOR|Lleva el ''coro''/3|Director|Lleva el ''coro''");
}

TEST_F(Cargos, Chosen_IsTheOneOfTheListOrTheOneAddedOrNone) {
  const std::string elegido = elegir([&](FormDriver& d) {
    EXPECT_EQ(d.caption(), "Asignar cargo");
    EXPECT_EQ(d.get<forms::ComboBox>(LISTA).label()->caption(),
              "Seleccione un cargo para el/los colaboradores:");
    EXPECT_FALSE(d.visible(NOMBRE));
    EXPECT_EQ(lineas(d, LISTA), "Catequista|Monitor");
    poner(d, LISTA, "Monitor");
    d.click(ACEPTAR);
  });
  const std::string agregado = elegir([&](FormDriver& d) {
    poner(d, LISTA, "Monitor");
    cierra("frmCargo");
    d.click(AGREGAR);
    EXPECT_EQ(d.text(LISTA), "Monitor") << "nothing added, nothing changed";
    contesta("frmCargo", ACEPTAR, NOMBRE, "Ayudante");
    d.click(AGREGAR);
    d.click(ACEPTAR);
  });
  EXPECT_EQ(elegido + agregado, "2Monitor3Ayudante");
  EXPECT_EQ(elegir(pone(ACEPTAR)) + elegir(pone("cmdCargo(1)", LISTA, "Monitor")), "00");
}

}  // namespace fidaleon::tests::CargoTest
