// The dialogs that look for a person and show them.

#include "census/Manos.h"
#include "census/search/BuscaCoincidencias.h"
#include "census/search/frmMensaje.h"
#include "census/search/frmPadronBusqueda.h"
#include "census/search/frmPadronDetalles.h"
#include "census/search/frmPadronImportar.h"

namespace fidaleon::tests::BusquedaTest {

constexpr const char *DETALLES = "cmdBotones(0)", *SELECCIONAR = "cmdBotones(1)",
                     *CANCELAR = "cmdBotones(2)", *REJILLA = "msgBusquedaPadron",
                     *BUSCAR = "cmdPadronImportar(0)";

struct Busqueda : En<ManosWorld> {
  std::int32_t ana = persona("Ana", "Gómez", "Ruiz", "12345678-Z"),
               otraAna = persona("Ana", "Gómez", "Ruiz"),
               luis = persona("Luis", "Gómez", "Sanz", "00000001-R");

  template <class Formulario>
  void mostrar(Formulario& formulario, Act act) {
    espera(formulario.name(), std::move(act));
    formulario.Show();
  }
  /// The list of those found.
  struct Lista : frmPadronBusqueda {
    Lista(Busqueda& w, const std::string& condicion)
        : frmPadronBusqueda(w.contexto),
          filas(w.con().Execute("SELECT * FROM Padron" + condicion)) {
      conBaseDatos = &w.con();
      registros = &filas;
      Origen = cCOrigen::PADRON;
    }
    store::Recordset filas;
  };
  std::int32_t buscar(const std::string& condicion, Act act, bool blnSeleccionar = true) {
    Lista lista(*this, condicion);
    lista.blnSeleccionar = blnSeleccionar;
    mostrar(lista, std::move(act));
    return lista.lngSeleccionado;
  }
  std::int32_t importar(cCOrigen origen, Act act) {
    frmPadronImportar dialogo(contexto);
    dialogo.conBaseDatos = &con();
    dialogo.Origen = origen;
    mostrar(dialogo, std::move(act));
    return dialogo.lngSeleccionado;
  }
  bool avisar(cCOrigen origen, Act act) {
    frmMensaje mensaje(contexto);
    mensaje.conBaseDatos = &con();
    mensaje.Origen = origen;
    mensaje.IDPadron = ana;
    mostrar(mensaje, std::move(act));
    return mensaje.blnImportar;
  }
  std::string detalles(std::int32_t id) {
    std::string lineas;
    frmPadronDetalles detalle(contexto);
    detalle.conBaseDatos = &con();
    detalle.IDPadron = id;
    mostrar(detalle, [&](FormDriver& u) {
      EXPECT_EQ(u.caption() + u.text("lbltxtDetalle(3)"),
                "Detalles de la personaDIRECCION  //   POBLACION (Provincia):");
      for (int i = frmPadronDetalles::NOMBRE; i <= frmPadronDetalles::LUGAR_NACIMIENTO; ++i) {
        lineas += u.text(control("txtDetalle", i)) + "|";
        EXPECT_TRUE(u.locked(control("txtDetalle", i)));
      }
      u.enter();
    });
    return lineas;
  }
  void esperaDetalles(const char* linea, const char* texto) {
    espera("frmPadronDetalles", [=](FormDriver& d) {
      EXPECT_EQ(d.text(linea), texto);
      d.click("cmdAceptar");
    });
  }
  /// The next list shows these keys; the user selects the first, or nobody.
  void lista(std::vector<std::int64_t> claves, const char* boton = SELECCIONAR) {
    espera("frmPadronBusqueda", [claves, boton](FormDriver& u) {
      const auto& rejilla = u.get<forms::Grid>(REJILLA);
      ASSERT_EQ(rejilla.rowCount(), static_cast<int>(claves.size()));
      for (std::size_t i = 0; i < claves.size(); ++i)
        EXPECT_EQ(rejilla.rowKey(static_cast<int>(i) + 1), claves[i]);
      u.click(boton);
    });
  }
};

TEST_F(Busqueda, Rows_ShowThoseFoundUnderTheirHeaders) {
  buscar(" WHERE Nombre=\"Ana\" ORDER BY IDPadron", [](FormDriver& u) {
    EXPECT_EQ(u.caption(), "DETALLES");
    auto& rejilla = u.get<forms::Grid>(REJILLA);
    EXPECT_EQ(rejilla.rowCount(), 2);
    EXPECT_EQ(celdas(u, REJILLA, 0), "Nombre|Apellidos|D.N.I.|Dirección|Teléfono");
    EXPECT_EQ(celdas(u, REJILLA, 1), "Ana|Gómez Ruiz|12345678-Z|Calle Mayor, 3|915550101");
    const int anchos[] = {1250, 2300, 1150, 1500};
    for (int c = 0; c < 4; ++c) EXPECT_EQ(rejilla.columnWidth(c), anchos[c]);
    EXPECT_FALSE(u.visible("lblBuscado"));
    rejilla.setColumnWidth(1, 3000);
    u.click(CANCELAR);
  });
  buscar("", [](FormDriver& u) {
    EXPECT_EQ(u.get<forms::Grid>(REJILLA).columnWidth(1), 3000);
    u.escape();
  });
}

TEST_F(Busqueda, DetailsOfTheRow_ChooseNobodyAndASelectedRowHandsOverItsKey) {
  for (const char* boton : {CANCELAR, SELECCIONAR}) {
    const std::int32_t elegido = buscar(" ORDER BY IDPadron", [&](FormDriver& u) {
      esperaDetalles("txtDetalle(0)", "Gómez Ruiz,  Ana");
      u.click(DETALLES);
      esperaDetalles("txtDetalle(0)", "Gómez Sanz,  Luis");
      u.doubleClick(REJILLA, 3);
      esperaDetalles("txtDetalle(0)", "Gómez Sanz,  Luis");
      u.enter();
      EXPECT_EQ(u.focused(), REJILLA);
      u.click(boton);
    });
    EXPECT_EQ(elegido, boton == CANCELAR ? 0 : luis);
  }
}

TEST_F(Busqueda, PersonGoneOrStoreFailing_IsToldAndTheListStays) {
  user.answerAnything(Answer::Ok);
  const std::int32_t elegido = buscar(" ORDER BY IDPadron", [&](FormDriver& u) {
    fallos().failOn("SELECT * FROM Padron WHERE IDPadron");
    u.click(DETALLES);
    quitar("Padron WHERE IDPadron=" + texto(luis));
    u.doubleClick(REJILLA, 3);
    EXPECT_THAT(user.messages().at(0).text, HasSubstr("frmPadronDetalles / CargaDetalles"));
    EXPECT_THAT(user.messages().at(1).text, HasSubstr("Esta persona ya no existe."));
    u.row(REJILLA, 2);
    u.click(SELECCIONAR);
  });
  EXPECT_EQ(elegido, otraAna);
}

TEST_F(Busqueda, Details_ShowPlacesInstitutionAndBirthOrDashes) {
  municipio("Getafe", "Madrid");
  municipio("Ronda", "Málaga");
  ejecutar(
      "UPDATE Padron SET EstadoCivil=\"Casada\",[Profesion/Colegio]=\"Maestra\","
      "PosicionFamiliar=\"Madre\",CodMunicipio=1");
  ejecutar("UPDATE Padron_Nacimiento SET CodMunicipioNac=2");
  EXPECT_EQ(detalles(ana),
            "Gómez Ruiz,  Ana|12345678-Z|Casada|Calle Mayor, 3  //  Getafe (Madrid)|915550101|"
            "Maestra|San Ginés|Madre|15/03/1970|Luis|Carmen|Ronda (Málaga)|");
  const char* const VACIA = "Sanz Gil,  Eva|---|---|---  //  ---|---|---|---|---|---|---|---|---|";
  ejecutar(
      "INSERT INTO Padron (Nombre,PrimerApellido,SegundoApellido) VALUES (\"Eva\",\"Sanz\","
      "\"Gil\")");
  EXPECT_EQ(detalles(4), VACIA);
  ejecutar(
      "INSERT INTO Padron_Nacimiento (CodPadron,FechaNacimiento,CodMunicipioNac,NombrePadre,"
      "NombreMadre) VALUES (4,\"\",98765,\"\",\"\")");
  EXPECT_EQ(detalles(4), VACIA);
}

TEST_F(Busqueda, NoticeOfTheSameDNI_ShowsTheDetailsAndImportsOnlyFromTheCensus) {
  EXPECT_TRUE(avisar(cCOrigen::PADRON, [&](FormDriver& u) {
    EXPECT_EQ(u.caption(), "Coincidencia de empadronado");
    EXPECT_EQ(u.text("lblMensaje"),
              "Se ha encontrado un empadronado con el mismo DNI que el que se pretende introducir. "
              "  Puede usted hacer click sobre el botón \"Detalles\" para ver los datos del "
              "empadronado  o por  el  contrario  puede  hacer click sobre el botón \"Importar\" "
              "para seleccionar sus datos.");
    esperaDetalles("txtDetalle(1)", "12345678-Z");
    u.click("cmdMensaje(0)");
    EXPECT_FALSE(u.closed());
    u.click("cmdMensaje(1)");
  }));
  EXPECT_FALSE(avisar(cCOrigen::PADRON, pone("cmdMensaje(2)")));
  EXPECT_FALSE(avisar(cCOrigen::COLABORADOR, [](FormDriver& u) {
    for (const char* boton : {"cmdMensaje(0)", "cmdMensaje(1)"}) EXPECT_FALSE(u.enabled(boton));
    u.enter();
    u.escape();
  }));
}

TEST_F(Busqueda, SearchByWhatWasTyped_FindsThoseWithAllOfIt) {
  const std::int32_t maria = persona("María ''Mari''", "O'Shea", "Gil");
  const auto busca = [&](cCOrigen origen, const Campos& tecleado,
                         const std::vector<std::int64_t>& claves) {
    const std::int32_t elegido = importar(origen, [&](FormDriver& u) {
      EXPECT_EQ(u.enabled("txtDNI"), origen == cCOrigen::PADRON);
      poner(u, tecleado);
      lista(claves);
      u.enter();
      EXPECT_TRUE(u.closed());
    });
    EXPECT_EQ(elegido, claves[0]);
  };
  busca(cCOrigen::PADRON,
        campos("txtNombre", "Ana", "txtPrimerApellido", "Gómez", "txtSegundoApellido", "Ruiz",
               "txtDNI", "12x34567890"),
        {ana});
  busca(cCOrigen::PADRON, campos("txtDNI", "1"), {luis});
  busca(cCOrigen::PADRON, campos("txtSegundoApellido", "Ruiz"), {ana, otraAna});
  busca(cCOrigen::COLABORADOR, campos("txtPrimerApellido", "gómez"), {ana, otraAna, luis});
  busca(cCOrigen::PADRON, campos("txtNombre", "María \"Mari\"", "txtPrimerApellido", "O'Shea"),
        {maria});
}

TEST_F(Busqueda, SearchInVainOrFailing_IsToldAndTheListSaysWhatWasLookedFor) {
  importar(cCOrigen::PADRON, [&](FormDriver& u) {
    EXPECT_EQ(u.caption(), "Importar");
    rehusa(u, BUSCAR, "¡Debe introducir datos en algún campo!", "txtNombre");
    poner(u, "txtNombre", "Luis ");  // nothing is trimmed
    rehusa(u, BUSCAR, "¡No se han encontrado coincidencias!", BUSCAR);
    poner(u, "txtNombre", "Luis", "txtSegundoApellido", "Sanz");
    fallos().failOn("SELECT * FROM Padron WHERE");
    user.answerAnything(Answer::Ok);
    u.enter();
    EXPECT_THAT(user.messages().back().text,
                HasSubstr("frmPadronImportar / cmdPadronImportar_Click("));
    espera("frmPadronBusqueda", [](FormDriver& b) {
      EXPECT_EQ(b.text("lblBuscado"), "Luis Sanz");
      EXPECT_EQ(dynamic_cast<frmPadronBusqueda&>(b.form()).Origen, cCOrigen::PADRON);
      b.close();
    });
    u.enter();
  });
}

/// Three name fields that look for coincidences as the cards of people do.
struct FormNombres : forms::Form {
  FormNombres(Contexto& contexto, cCOrigen origen)
      : Form(contexto.ui(), "frmNombres"), busca(contexto, nombre, primero, segundo, origen) {
    for (forms::TextBox* campo : {&nombre, &primero, &segundo})
      campo->onChange = [this] { busca.nombreCambiado(); };
  }
  void poner(const char* n, const char* p, const char* s) {
    nombre.setText(n);
    primero.setText(p);
    segundo.setText(s);
  }
  forms::TextBox nombre{*this, "nombre"}, primero{*this, "primero"}, segundo{*this, "segundo"};
  BuscaCoincidencias busca;
};

TEST_F(Busqueda, SameNameAsTyped_IsShownOncePerChange) {
  FormNombres form(contexto, cCOrigen::PADRON);
  const auto alSalir = [&] { return form.busca.alSalir(con(), 0, true); };
  form.poner("Ana", "Gómez", "");
  EXPECT_EQ(alSalir(), 0);
  form.segundo.setText("Ruiz");
  lista({ana, otraAna}, CANCELAR);
  EXPECT_EQ(alSalir(), 0);
  EXPECT_EQ(alSalir(), 0);
  form.busca.nombreCambiado();
  lista({ana, otraAna});
  EXPECT_EQ(alSalir(), ana);
  ejecutar("UPDATE Padron SET Nombre='Ana \"la Nena\"' WHERE IDPadron=" + texto(ana));
  form.nombre.setText("Ana \"la Nena\"");  // old data, as it is stored
  lista({ana}, CANCELAR);
  EXPECT_EQ(alSalir(), 0);
  form.busca.nombreCambiado();
  fallos().failOn("FROM Padron");
  EXPECT_THROW(alSalir(), store::Error);
  EXPECT_EQ(alSalir(), 0) << "does not nag on the next field";
}

TEST_F(Busqueda, PersonBeingEdited_IsLeftOutAndNobodyTakesTheirPlace) {
  FormNombres form(contexto, cCOrigen::COLABORADOR);
  form.poner("Ana", "Gómez", "Ruiz");
  espera("frmPadronBusqueda", [&](FormDriver& u) {
    EXPECT_EQ(u.get<forms::Grid>(REJILLA).rowKey(1), otraAna);
    EXPECT_EQ(u.text("lblBuscado"), "Ana Gómez Ruiz");
    EXPECT_FALSE(u.enabled(SELECCIONAR));
    u.click(CANCELAR);
  });
  EXPECT_EQ(form.busca.alSalir(con(), ana, false), 0);
  form.poner("Luis", "Gómez", "Sanz");
  EXPECT_EQ(form.busca.alSalir(con(), luis, false), 0);
}

}  // namespace fidaleon::tests::BusquedaTest
