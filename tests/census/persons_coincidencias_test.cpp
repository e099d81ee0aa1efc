#include "census/persons_PadronWorld.h"

namespace fidaleon::tests {
namespace {

using ::testing::Contains;

TEST(NuevoEmpadronado, SameNameChosenInTheList_EditsThatPersonInstead) {
  PadronWorld w;
  const std::int32_t id = w.persona("Elena", "Sanz", "Mora");
  w.user.expectForm("frmPadron", [&](FormDriver& u) {
    w.user.expectForm("frmPadronBusqueda", [](FormDriver& lista) {
      lista.row("msgBusquedaPadron", 1);
      lista.click("cmdBotones(1)");
    });
    w.user.expectForm("frmPadron", [&](FormDriver& otra) {
      EXPECT_EQ(otra.caption(), "Propiedades del empadronado Elena Sanz Mora");
      EXPECT_FALSE(w.libre("Padron"));
      otra.type(txt(Padron::Direccion), "Plaza, 1");
      otra.click(boton(Padron::ACEPTAR));
    });
    rellenarMinimo(u);
    u.click(boton(Padron::ACEPTAR));
    EXPECT_TRUE(u.closed());
  });
  censo::NuevoEmpadronado(w.contexto, w.con());
  EXPECT_SCRIPT_DONE(w.user);
  EXPECT_EQ(w.count("Padron"), 1);
  EXPECT_EQ(w.value("SELECT Direccion FROM Padron WHERE IDPadron=" + std::to_string(id)),
            "Plaza, 1");
  EXPECT_TRUE(w.libre("Padron"));
}

TEST(NuevoEmpadronado, SameNameLeftAside_IsSearchedAgainOnlyWhenItChanges) {
  PadronWorld w;
  w.persona("Elena", "Sanz", "Mora");
  w.alta([&](FormDriver& u) {
    rellenarMinimo(u);
    w.user.expectForm("frmPadronBusqueda", [](FormDriver& lista) { lista.escape(); });
    u.focus(txt(Padron::Direccion));
    EXPECT_EQ(u.text(txt(Padron::Nombre)), "Elena");
    u.focus(txt(Padron::Nombre));
    u.focus(txt(Padron::Direccion));
    u.type(txt(Padron::Nombre), "Elen");
    u.focus(txt(Padron::Direccion));
    u.type(txt(Padron::Nombre), "Elena");
    // Somebody who gives up is not asked any more.
    u.click(boton(Padron::CANCELAR));
  });
  EXPECT_EQ(w.count("Padron"), 1);
}

TEST(NuevoEmpadronado, SearchButton_HandsOverThePersonFound) {
  PadronWorld w;
  w.persona("Elena", "Sanz", "Mora", "12345678-Z");
  w.user.expectForm("frmPadron", [&](FormDriver& u) {
    w.user.expectForm("frmPadronImportar", [&](FormDriver& busca) {
      w.user.expectForm("frmPadronBusqueda", [](FormDriver& lista) {
        lista.row("msgBusquedaPadron", 1);
        lista.click("cmdBotones(1)");
      });
      w.user.expectForm("frmPadron", [](FormDriver& otra) { otra.escape(); });
      busca.type("txtDNI", "12345678");
      busca.click("cmdPadronImportar(0)");
    });
    u.click(boton(Padron::BUSCAR));
    EXPECT_TRUE(u.closed());
  });
  censo::NuevoEmpadronado(w.contexto, w.con());
  EXPECT_SCRIPT_DONE(w.user);
  EXPECT_EQ(w.count("Padron"), 1);
}

TEST(NuevoEmpadronado, DNIOfAnother_IsToldOnLeavingAndRefusedAtTheEnd) {
  PadronWorld w;
  w.persona("Rosa", "Gil", "Gil", "12345678-Z");
  w.alta([&](FormDriver& u) {
    rellenarMinimo(u);
    u.type(txt(Padron::NIF), "12345678");
    u.type(txt(Padron::LetraNIF), "Z");
    w.user.expectForm("frmMensaje", [](FormDriver& m) { m.escape(); });
    u.tab(MST, Padron::TAB_NOTAS);
    EXPECT_EQ(u.text(txt(Padron::Nombre)), "Elena");
    w.user.expectMessage("¡El DNI introducido coincide con el de un empadronado!");
    u.click(boton(Padron::ACEPTAR));
    EXPECT_EQ(u.focused(), txt(Padron::NIF));
    EXPECT_EQ(u.get<forms::TabStrip>(MST).tab(), Padron::TAB_DATOS);
    u.escape();
  });
  EXPECT_EQ(w.count("Padron"), 1);
}

TEST(NuevoEmpadronado, DNIOfAnotherImported_GoesOnWithTheirDataAndStoresNothingYet) {
  PadronWorld w;
  const std::int32_t id = w.persona("Rosa", "Gil", "Gil", "12345678-Z");
  w.nota(id, "Enferma");
  const auto& ejecutado = w.fallos().executed();
  w.alta([&](FormDriver& u) {
    rellenarMinimo(u);
    u.tab(MST, Padron::TAB_NOTAS);
    w.user.expectForm("frmPadronNotas", [](FormDriver& n) {
      n.type("txtTitulo", "De Elena");
      n.enter();
    });
    u.click(botonNota(Padron::AGREGAR));
    u.tab(MST, Padron::TAB_DATOS);
    u.type(txt(Padron::NIF), "12345678");
    u.type(txt(Padron::LetraNIF), "Z");
    w.user.expectForm("frmMensaje", [](FormDriver& m) { m.click("cmdMensaje(1)"); });
    u.click(boton(Padron::ACEPTAR));
    EXPECT_FALSE(u.closed());
    EXPECT_EQ(u.caption(), "Propiedades del empadronado Rosa Gil Gil");
    EXPECT_THAT(ejecutado, Contains("SELECT Nombre,PrimerApellido,SegundoApellido FROM Padron "
                                    "WHERE IDPadron=?"));
    EXPECT_EQ(u.text(txt(Padron::Nombre)), "Rosa");
    EXPECT_EQ(u.focused(), txt(Padron::Nombre));
    EXPECT_FALSE(u.visible(boton(Padron::BUSCAR)));
    u.tab(MST, Padron::TAB_NOTAS);
    EXPECT_EQ(u.get<forms::Grid>("msgNotas").rowCount(), 1);
    EXPECT_EQ(u.get<forms::Grid>("msgNotas").cell(1, 0), "Enferma");
    u.tab(MST, Padron::TAB_DATOS);
    u.type(txt(Padron::Nombre), "Rosa María");
    u.click(boton(Padron::ACEPTAR));
  });
  EXPECT_EQ(w.fila("SELECT IDPadron,Nombre,DNI FROM Padron"), "1|Rosa María|12345678-Z");
  EXPECT_EQ(w.count("Padron"), 1);
  EXPECT_EQ(w.count("Padron_NotasPersonales"), 1);
}

TEST(NuevoEmpadronado, ImportFails_NeverMixesTwoPersons) {
  for (const char* parte : {"SELECT * FROM Padron_Comunion", "FROM Municipio WHERE IDMunicipio"}) {
    PadronWorld w;
    w.persona("Rosa", "Gil", "Gil", "12345678-Z");
    w.con().Execute("UPDATE Padron SET CodMunicipio=" +
                    std::to_string(w.municipio("Illescas", "Toledo")));
    const std::string antes = w.fila("SELECT * FROM Padron");
    w.alta([&](FormDriver& u) {
      rellenarMinimo(u);
      u.type(txt(Padron::NIF), "12345678");
      u.type(txt(Padron::LetraNIF), "Z");
      w.fallos().failOn(parte);
      w.user.expectForm("frmMensaje", [](FormDriver& m) { m.click("cmdMensaje(1)"); });
      w.user.answerAnything(Answer::Ok);
      u.click(boton(Padron::ACEPTAR));
      EXPECT_EQ(w.fallos().pending(), 0u) << parte;
      if (u.closed()) return;
      EXPECT_EQ(u.caption(), "Agregar empadronado");
      EXPECT_EQ(u.text(txt(Padron::Nombre)), "Elena");
      u.click(boton(Padron::CANCELAR));
    });
    EXPECT_EQ(w.fila("SELECT * FROM Padron"), antes);
    EXPECT_EQ(w.count("Padron"), 1);
  }
}

}  // namespace
}  // namespace fidaleon::tests
