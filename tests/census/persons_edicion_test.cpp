#include <array>

#include "census/persons_PadronWorld.h"

namespace fidaleon::tests {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

TEST(EditaEmpadronado, Opened_ShowsWhatIsStored) {
  PadronWorld w;
  const std::int32_t illescas = w.municipio("Illescas", "Toledo");
  const std::int32_t id = w.persona("Rosa", "Gil", "Mas", "01234567-L");
  w.con().Execute("UPDATE Padron SET Sexo='Mujer',CodMunicipio=" + std::to_string(illescas));
  w.con().Execute("UPDATE Padron_Defuncion SET Pagado=TRUE");
  const auto& ejecutado = w.fallos().executed();
  for (const bool pesetas : {false, true}) {
    w.config.TrabajarConPesetas = pesetas;
    w.editar(id, [&](FormDriver& u) {
      EXPECT_EQ(u.caption(), "Propiedades del empadronado Rosa Gil Mas");
      EXPECT_FALSE(u.visible(boton(Padron::BUSCAR)));
      EXPECT_EQ(u.text(cbo(Padron::Institucion)), "San Ginés");
      EXPECT_EQ(u.text(txt(Padron::NIF)), "01234567");
      EXPECT_EQ(u.text(txt(Padron::LetraNIF)), "L");
      EXPECT_EQ(u.text(cbo(Padron::Sexo)), "Mujer");
      EXPECT_EQ(u.text(cbo(Padron::ProvinciaDireccion)), "Toledo");
      EXPECT_EQ(u.text(cbo(Padron::ProvinciaDireccion + 1)), "Illescas");
      EXPECT_THAT(ejecutado, Contains("SELECT * FROM Municipio WHERE IDMunicipio=?"));
      EXPECT_EQ(u.text(fecha(Padron::FechaNacimiento)), "15/03/1970");
      EXPECT_EQ(u.text(cbo(Padron::ProvinciaNac)), "");
      EXPECT_EQ(u.text(txt(Padron::AñoComunion)), "1979");
      EXPECT_EQ(u.text(txt(Padron::ImporteNicho)), pesetas ? "1.000" : "6,01");
      EXPECT_EQ(u.text(cbo(Padron::Pagado)), "Sí");
      u.escape();
    });
  }
}

TEST(EditaEmpadronado, DNIAndSexOfAnotherForm_StayUntilTheyAreChanged) {
  const std::array<const char*, 3> FORMAS[] = {
      {"-A", "", ""}, {"12345678Z", "1234567", "Z"}, {"X1234567-L", "X1234567", "L"}};
  for (const auto& [guardado, cifras, letra] : FORMAS) {
    PadronWorld w;
    const std::int32_t id = w.persona("Rosa", "Gil", "Mas", guardado);
    w.con().Execute("UPDATE Padron SET Sexo='V'");
    w.editar(id, [&, esperadas = cifras, suya = letra](FormDriver& u) {
      EXPECT_EQ(u.text(txt(Padron::NIF)), esperadas);
      EXPECT_EQ(u.text(txt(Padron::LetraNIF)), suya);
      EXPECT_EQ(u.text(cbo(Padron::Sexo)), "");
      for (const Padron::Texto campo : {Padron::NIF, Padron::LetraNIF}) u.focus(txt(campo));
      u.click(boton(Padron::ACEPTAR));
    });
    EXPECT_EQ(w.fila("SELECT DNI,Sexo FROM Padron"), std::string(guardado) + "|V");
    w.editar(id, [](FormDriver& u) {
      u.type(txt(Padron::NIF), "12345678");
      u.type(txt(Padron::LetraNIF), "Z");
      u.choose(cbo(Padron::Sexo), "Mujer");
      u.click(boton(Padron::ACEPTAR));
    });
    EXPECT_EQ(w.fila("SELECT DNI,Sexo FROM Padron"), "12345678-Z|Mujer");
  }
}

TEST(EditaEmpadronado, StoredTextThatIsNoDate_StaysUntilADateIsTyped) {
  PadronWorld w;
  const std::int32_t id = w.persona("Rosa", "Gil", "Mas");
  w.con().Execute("UPDATE Padron_Nacimiento SET FechaNacimiento='1970'");
  w.editar(id, [](FormDriver& u) {
    u.tab(MST, Padron::TAB_NACIMIENTO);
    EXPECT_EQ(u.text(fecha(Padron::FechaNacimiento)), "");
    u.type(fecha(Padron::FechaBautizo), "");
    u.click(boton(Padron::ACEPTAR));
  });
  EXPECT_EQ(w.value("SELECT FechaNacimiento FROM Padron_Nacimiento"), "1970");
  EXPECT_EQ(w.value("SELECT FechaBautizo FROM Padron_Bautismo"), "");
  w.editar(id, [](FormDriver& u) {
    u.tab(MST, Padron::TAB_NACIMIENTO);
    u.type(fecha(Padron::FechaNacimiento), "15/03/1970");
    u.click(boton(Padron::ACEPTAR));
  });
  EXPECT_EQ(w.value("SELECT FechaNacimiento FROM Padron_Nacimiento"), "19700315");
}

TEST(EditaEmpadronado, Accepted_WritesEachTableAndLeavesTheCollaboratorsSide) {
  PadronWorld w;
  const std::int32_t id = w.persona("Rosa", "Gil", "Mas", "", {COLABORADOR});
  const std::int32_t otra = w.persona("Ana", "Gil", "Mas");
  w.con().Execute("UPDATE Padron SET Cumpleaños='15/03',AñoNacimiento='1970' WHERE IDPadron=" +
                  std::to_string(id));
  const std::string intacta = w.fila("SELECT * FROM Padron WHERE IDPadron=2");
  w.fallos();
  w.editar(id, [&](FormDriver& u) {
    u.type(txt(Padron::NIF), "12345678");
    u.type(txt(Padron::LetraNIF), "z");
    u.tab(MST, Padron::TAB_DEFUNCION);
    u.type(txt(Padron::ImporteNicho), "250");
    w.escrito();
    u.click(boton(Padron::ACEPTAR));
  });
  EXPECT_THAT(w.escrito(),
              ElementsAre("UPDATE Padron", "UPDATE Padron_Nacimiento", "UPDATE Padron_Bautismo",
                          "UPDATE Padron_Comunion", "UPDATE Padron_Confirmacion",
                          "UPDATE Padron_Matrimonio", "UPDATE Padron_Defuncion",
                          "INSERT INTO Padron_TipoPersona"));
  EXPECT_EQ(w.fila("SELECT DNI,Cumpleaños,AñoNacimiento FROM Padron WHERE IDPadron=1"),
            "12345678-Z|15/03|1970");
  EXPECT_EQ(w.fila("SELECT ImporteEur,Importe FROM Padron_Defuncion WHERE CodPadron=1"),
            "250,00|41.596");
  EXPECT_EQ(w.satelite("Bautismo", id), "1|19700410|0|San Ginés|Arenal, 13");
  EXPECT_EQ(w.count("Padron_TipoPersona WHERE CodPadron=1"), 2);
  EXPECT_EQ(w.fila("SELECT * FROM Padron WHERE IDPadron=2"), intacta);
  EXPECT_EQ(
      w.value("SELECT ImporteEur FROM Padron_Defuncion WHERE CodPadron=" + std::to_string(otra)),
      "6,01");
  EXPECT_TRUE(w.libre("Padron"));
}

TEST(EditaEmpadronado, PersonWithoutRowsInTheOtherTables_GetsThem) {
  PadronWorld w;
  const std::int32_t id = w.persona("Rosa", "Gil", "Mas");
  for (const char* tabla : {"Nacimiento", "Bautismo", "Comunion", "Confirmacion", "Matrimonio",
                            "Defuncion", "TipoPersona"})
    w.con().Execute(std::string("DELETE * FROM Padron_") + tabla);
  w.editar(id, [&](FormDriver& u) {
    u.tab(MST, Padron::TAB_SACRAMENTOS);
    u.type(txt(Padron::ParroquiaCom), "San Blas");
    u.click(boton(Padron::ACEPTAR));
  });
  EXPECT_EQ(w.satelite("Comunion", id), "1||San Blas");
  EXPECT_EQ(w.fila("SELECT ImporteEur,Importe FROM Padron_Defuncion"), "0,00|0");
  EXPECT_EQ(w.satelite("TipoPersona", id), "1|2");
}

TEST(EditaEmpadronado, DNIOfAnother_IsToldButNotTheirOwn) {
  PadronWorld w;
  w.persona("Ana", "Gil", "Mas", "12345678-Z");
  const std::int32_t id = w.persona("Rosa", "Gil", "Mas", "01234567-L");
  w.editar(id, [&](FormDriver& u) {
    u.type(txt(Padron::NIF), "1234567");
    u.focus(txt(Padron::LetraNIF));
    u.focus(txt(Padron::Direccion));
    u.type(txt(Padron::NIF), "12345678");
    u.type(txt(Padron::LetraNIF), "Z");
    w.user.expectMessage("¡Ya existe una persona con este DNI!");
    u.focus(txt(Padron::Direccion));
    EXPECT_EQ(w.user.beeps(), 1);
    u.type(txt(Padron::NIF), "1");
    u.type(txt(Padron::LetraNIF), "Z");
    u.type(txt(Padron::NIF), "12345678");
    w.user.expectMessage("¡Ya existe una persona con este DNI!");
    u.focus(txt(Padron::Direccion));
    u.escape();
  });
  EXPECT_EQ(w.value("SELECT DNI FROM Padron WHERE IDPadron=2"), "01234567-L");
}

struct NotasWorld : PadronWorld {
  NotasWorld() {
    id = persona("Rosa", "Gil", "Mas");
    nota(id, "Vieja", "Primera línea\r\nSegunda");
    nota(id, "Otra", std::string(150, 'x'));
  }
  void conNota(FormDriver& u, Padron::BotonNota cual, const char* titulo) {
    user.expectForm("frmPadronNotas", [titulo](FormDriver& n) {
      n.type("txtTitulo", titulo);
      n.enter();
    });
    u.click(botonNota(cual));
  }
  std::string todas() {
    std::string lista;
    auto rs = con().Execute("SELECT IDNota,Nombre FROM Padron_NotasPersonales ORDER BY IDNota");
    for (; !rs.EOF_(); rs.MoveNext()) lista += rs.text("IDNota") + rs.text("Nombre") + " ";
    return lista;
  }
  std::int32_t id = 0;
};

TEST(EditaEmpadronado, NotesAddedChangedAndRemoved_AreStoredOnAccepting) {
  NotasWorld w;
  w.editar(w.id, [&](FormDriver& u) {
    auto& rejilla = u.get<forms::Grid>("msgNotas");
    u.tab(MST, Padron::TAB_NOTAS);
    EXPECT_EQ(rejilla.header(0) + "|" + rejilla.header(1), "Nombre|Descripción");
    EXPECT_EQ(rejilla.columnWidth(0), 2250);
    EXPECT_EQ(rejilla.cell(1, 1), "Primera línea Segunda");
    EXPECT_TRUE(rejilla.cell(2, 1).ends_with("x ... "));
    u.click(botonNota(Padron::MODIFICAR));
    u.click(botonNota(Padron::QUITAR));
    EXPECT_EQ(w.user.beeps(), 2) << "no row is chosen";
    w.conNota(u, Padron::AGREGAR, "Nueva");
    w.conNota(u, Padron::AGREGAR, "Pasajera");
    u.row("msgNotas", 4);
    u.click(botonNota(Padron::QUITAR));
    u.row("msgNotas", 3);
    w.conNota(u, Padron::MODIFICAR, "Nueva cambiada");
    u.row("msgNotas", 1);
    u.click(botonNota(Padron::QUITAR));
    EXPECT_EQ(rejilla.rowCount(), 2);
    w.user.expectForm("frmPadronNotas", [](FormDriver& n) {
      EXPECT_EQ(n.caption(), "Propiedades nota personal Otra");
      n.type("txtTitulo", "Vieja");
      n.enter();
    });
    u.doubleClick("msgNotas", 1);
    EXPECT_EQ(w.todas(), "1Vieja 2Otra ");
    u.click(boton(Padron::ACEPTAR));
  });
  EXPECT_EQ(w.todas(), "2Vieja 3Nueva cambiada ");
}

TEST(EditaEmpadronado, Cancelled_LeavesPersonAndNotesAsTheyWere) {
  NotasWorld w;
  w.editar(w.id, [&](FormDriver& u) {
    u.type(txt(Padron::Nombre), "Otro");
    u.tab(MST, Padron::TAB_NOTAS);
    u.row("msgNotas", 1);
    u.click(botonNota(Padron::QUITAR));
    w.conNota(u, Padron::AGREGAR, "Nueva");
    u.escape();
  });
  EXPECT_EQ(w.todas(), "1Vieja 2Otra ");
  EXPECT_EQ(w.value("SELECT Nombre FROM Padron"), "Rosa");
}

TEST(EditaEmpadronado, StoreFailsAmongTheNotes_AcceptingAgainStoresEachOnce) {
  for (const char* parte :
       {"DELETE * FROM Padron_Notas", "UPDATE Padron_Notas", "INSERT INTO Padron_Notas",
        "SELECT MAX(IDNota)", "SELECT * FROM [Padron_TipoPersona]"}) {
    NotasWorld w;
    w.editar(w.id, [&](FormDriver& u) {
      u.tab(MST, Padron::TAB_NOTAS);
      u.row("msgNotas", 1);
      u.click(botonNota(Padron::QUITAR));
      u.row("msgNotas", 1);
      w.conNota(u, Padron::MODIFICAR, "Otra cambiada");
      w.conNota(u, Padron::AGREGAR, "Nueva");
      w.fallos().failOn(parte);
      w.user.answerAnything(Answer::Ok);
      u.click(boton(Padron::ACEPTAR));
      EXPECT_EQ(w.user.messages().size(), 1u) << parte;
      EXPECT_THAT(w.user.messages()[0].text, HasSubstr("frmPadron / EditarEmpadronado"));
      EXPECT_FALSE(u.closed());
      u.row("msgNotas", 2);
      w.conNota(u, Padron::MODIFICAR, "Nueva cambiada");
      u.click(boton(Padron::ACEPTAR));
    });
    EXPECT_EQ(w.todas(), "2Otra cambiada 3Nueva cambiada ") << parte;
  }
}

TEST(EditaEmpadronado, ColumnWidthsOfTheNotes_AreKept) {
  NotasWorld w;
  w.editar(w.id, [](FormDriver& u) {
    u.get<forms::Grid>("msgNotas").setColumnWidth(1, 5555);
    u.escape();
  });
  w.editar(w.id, [](FormDriver& u) {
    EXPECT_EQ(u.get<forms::Grid>("msgNotas").columnWidth(1), 5555);
    u.escape();
  });
}

TEST(EditaEmpadronado, InUseElsewhere_CanOnlyBeLookedAt) {
  NotasWorld w;
  w.con().Execute("UPDATE Padron SET CodInstitucionEmpadronado=0");
  const auto otra = w.otroUsaRegistro("Padron", w.id);
  w.user.answerAnything(Answer::Ok);
  w.editar(w.id, [&](FormDriver& u) {
    EXPECT_EQ(w.user.messages().size(), 1u);
    for (const Padron::Boton cual : {Padron::ACEPTAR, Padron::BUSCAR})
      EXPECT_FALSE(u.enabled(boton(cual)));
    EXPECT_FALSE(u.enabled(botonNota(Padron::QUITAR)));
    EXPECT_TRUE(u.locked(txt(Padron::Nombre)));
    EXPECT_TRUE(u.locked(cbo(Padron::ProvinciaDireccion)));
    u.tab(MST, Padron::TAB_NOTAS);
    EXPECT_EQ(u.get<forms::TabStrip>(MST).tab(), Padron::TAB_NOTAS);
    u.doubleClick("msgNotas", 1);
    u.enter();
    EXPECT_FALSE(u.closed());
    u.click(boton(Padron::CANCELAR));
  });
  EXPECT_EQ(w.user.messages().size(), 1u);
}

TEST(EditaEmpadronado, GoneOrCatalogueInUse_DoesNotOpen) {
  PadronWorld w;
  const std::int32_t id = w.persona("Rosa", "Gil", "Mas");
  w.user.answerAnything(Answer::Ok);
  censo::EditaEmpadronado(w.contexto, w.con(), id + 1);
  EXPECT_EQ(w.user.messages().size(), 1u);
  const auto otra = w.otroUsaTabla("Municipio");
  censo::EditaEmpadronado(w.contexto, w.con(), id);
  EXPECT_EQ(w.user.messages().size(), 2u);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(EditaEmpadronado, TableCannotBeRead_TellsItAndDoesNotOpen) {
  for (const char* parte : {"SELECT * FROM Padron WHERE", "SELECT * FROM Padron_Matrimonio",
                            "SELECT * FROM Padron_NotasPersonales", "WHERE CodProvincia"}) {
    PadronWorld w;
    const std::int32_t id = w.persona("Rosa", "Gil", "Mas");
    w.con().Execute("UPDATE Padron SET CodMunicipio=" +
                    std::to_string(w.municipio("Illescas", "Toledo")));
    w.fallos().failOn(parte);
    w.user.answerAnything(Answer::Ok);
    censo::EditaEmpadronado(w.contexto, w.con(), id);
    EXPECT_EQ(w.fallos().pending(), 0u) << parte;
    EXPECT_GE(w.user.messages().size(), 1u) << parte;
    EXPECT_SCRIPT_DONE(w.user);
    EXPECT_TRUE(w.libre("Padron"));
  }
}

}  // namespace
}  // namespace fidaleon::tests
