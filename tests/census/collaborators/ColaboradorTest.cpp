// The card of a collaborator.

#include "census/Manos.h"
#include "census/collaborators/frmColaborador.h"

namespace fidaleon::tests::ColaboradorTest {

using C = frmColaborador;

std::string t(C::Texto indice) {
  return control("txtColaborador", indice);
}
const std::string ACEPTAR = control("cmdColaborador", 0), CANCELAR = control("cmdColaborador", 1);
constexpr const char* FECHA_BAUTIZO = "adtpFechaBautizo";

const Campos MINIMO =
    campos(t(C::Nombre), "Ana", t(C::PrimerApellido), "Gil", t(C::SegundoApellido), "Sanz");
const Campos DATOS = campos(
    t(C::Direccion), "Arenal, 13", "cboColaborador(0)", "Toledo", "cboColaborador(1)", "Illescas",
    t(C::CPostal), "28013", t(C::Telefono), "915550101", t(C::Telefono2), "600100200",
    t(C::CorreoElectronico), "ana.gil@correo.es", t(C::ProfesionColegio), "Maestra",
    t(C::Comentarios), "Canta", t(C::Cumpleaños), "29/02", t(C::AñoNacimiento), "1996",
    t(C::NombrePadre), "Luis", t(C::NombreMadre), "Rosa", FECHA_BAUTIZO, "10/04/1996",
    t(C::ParroquiaBaut), "San Juan", t(C::DireccionParrBaut), "Plaza, 1", "cboColaborador(2)",
    "Ávila", "cboColaborador(3)", "Arévalo", t(C::Observaciones), "Ninguna");

struct Colaboradores : En<ManosWorld> {
  std::int32_t illescas = municipio("Illescas", "Toledo"), arevalo = municipio("Arévalo", "Ávila");
  std::string nacimiento(const std::string& datos = "FechaNacimiento") {
    return filas("SELECT Cumpleaños,AñoNacimiento," + datos + " FROM Padron,Padron_Nacimiento");
  }
  void acepta(std::int32_t id, const Campos& cambios) {
    editaColaborador(id, [&](FormDriver& u) {
      poner(u, cambios);
      u.click(ACEPTAR);
      EXPECT_TRUE(u.closed());
    });
  }
  void lista(Act act) { espera("frmPadronBusqueda", std::move(act)); }
};

TEST_F(Colaboradores, AllTyped_FillsARowInEachTableAndIsShownAgain) {
  altaColaborador([&](FormDriver& u) {
    EXPECT_EQ(u.focused(), t(C::Nombre));
    poner(u, MINIMO);
    poner(u, DATOS);
    u.click(ACEPTAR);
  });
  EXPECT_EQ(filas("SELECT * FROM Padron"),
            "1|Ana|Gil|Sanz||Arenal, 13|1|28013|915550101|600100200|ana.gil@correo.es|||Maestra||"
            "Canta|Ninguna|0||29/02|1996");
  EXPECT_EQ(satelite("Nacimiento", 1), "1|19960229|0|Luis|Rosa");
  EXPECT_EQ(satelite("Bautismo", 1), "1|19960410|2|San Juan|Plaza, 1");
  EXPECT_EQ(satelite("Comunion", 1) + satelite("Confirmacion", 1), "1||1||0||");
  EXPECT_EQ(satelite("Matrimonio", 1) + satelite("TipoPersona", 1), "1||0||1|3");
  EXPECT_EQ(filas("SELECT Importe,Nicho FROM Padron_Defuncion WHERE ImporteEur IS NULL"), "0|");
  const std::string antes = censo();
  editaColaborador(1, [&](FormDriver& u) {
    comprobar(u, MINIMO);
    comprobar(u, DATOS);
    u.click(ACEPTAR);
  });
  EXPECT_EQ(censo(), antes);
}

TEST_F(Colaboradores, BirthdayAndYearThatMakeNoDate_AreRefusedAtAcceptance) {
  altaColaborador([&](FormDriver& u) {
    poner(u, MINIMO);
    poner(u, t(C::Cumpleaños), "3");
    rehusa(u, ACEPTAR, "«3» no es un día del año. Escriba el cumpleaños como día/mes: 03/05.",
           t(C::Cumpleaños));
    poner(u, t(C::Cumpleaños), "2902", t(C::AñoNacimiento), "2003", t(C::Direccion), "");
    rehusa(u, ACEPTAR, "¡El 29/02/2003 no existe! Revise el cumpleaños o el año de nacimiento.",
           t(C::AñoNacimiento));
    poner(u, t(C::AñoNacimiento), "75");
    rehusa(u, ACEPTAR, "¡El año de nacimiento debe tener cuatro cifras!", t(C::AñoNacimiento));
    poner(u, t(C::AñoNacimiento), "");
    u.click(ACEPTAR);
  });
  EXPECT_EQ(nacimiento(), "29/02||");
}

TEST_F(Colaboradores, BirthDate_FollowsBirthdayAndYearButOtherDatesStay) {
  const std::int32_t id = colaborador("Ana", "Gil");
  const auto tras = [&](const char* cumpleaños, const char* año) {
    acepta(id, campos(t(C::Cumpleaños), cumpleaños, t(C::AñoNacimiento), año));
    return nacimiento();
  };
  EXPECT_EQ(tras("0305", ""), "03/05||19700315") << "that of the census";
  EXPECT_EQ(tras("0305", "1971"), "03/05|1971|19710503");
  EXPECT_EQ(tras("0405", "1971"), "04/05|1971|19710504");
  // Put right in the census meanwhile: nobody has touched it here.
  ejecutar("UPDATE Padron_Nacimiento SET FechaNacimiento='19710604'");
  EXPECT_EQ(tras("0405", "1971"), "04/05|1971|19710604");
  EXPECT_EQ(tras("0405", ""), "04/05||19710604");
  EXPECT_EQ(tras("0405", "1971"), "04/05|1971|19710504");
  EXPECT_EQ(tras("0405", ""), "04/05||");
}

TEST_F(Colaboradores, OddOldValuesOrRowsMissing_SurviveAnAcceptance) {
  const std::int32_t id = colaborador("Ana", "Gil");
  ejecutar("UPDATE Padron SET Cumpleaños='mayo', AñoNacimiento='70'");
  ejecutar("UPDATE Padron_Bautismo SET FechaBautizo='1970'");
  acepta(id, campos(t(C::Direccion), "Otra, 1"));
  EXPECT_EQ(filas("SELECT Direccion FROM Padron"), "Otra, 1");
  EXPECT_EQ(nacimiento(), "mayo|70|19700315");
  EXPECT_EQ(satelite("Bautismo", id), "1|1970|0|San Ginés|Arenal, 13");
  quitar("Padron_Nacimiento");
  quitar("Padron_Bautismo");
  acepta(id, campos(t(C::NombreMadre), "Rosa", t(C::ParroquiaBaut), "San Juan"));
  EXPECT_EQ(nacimiento("NombreMadre"), "mayo|70|Rosa");
  EXPECT_EQ(satelite("Bautismo", id), "1||0|San Juan|");
}

TEST_F(Colaboradores, CensusPersonAccepted_GainsTheRoleOnceAndKeepsTheirData) {
  const std::int32_t id = persona("Eva", "Ríos", "Mora", "12345678-Z");
  ejecutar("UPDATE Padron SET Sexo=\"Mujer\"");
  // The number of the role is the program's, whatever the catalogue says.
  ejecutar("UPDATE Tipo_Persona SET IDTipoPersona=7 WHERE Nombre='Colaborador'");
  for (int vez = 0; vez < 2; ++vez) acepta(id, campos(t(C::Cumpleaños), "0305"));
  EXPECT_EQ(satelite("TipoPersona", id), "1|2/1|3");
  EXPECT_EQ(filas("SELECT DNI,Sexo FROM Padron") + satelite("Comunion", id),
            "12345678-Z|Mujer1|1979|San Ginés");
  EXPECT_EQ(nacimiento(), "03/05||19700315");
}

TEST_F(Colaboradores, SameName_IsOpenedInsteadOfANewOneButOnlyShownToOneWhoEdits) {
  const std::int32_t id = persona("Ana", "Gil", "Sanz"), eva = colaborador("Eva", "Gil");
  espera("frmColaborador", [&](FormDriver& u) {
    lista([](FormDriver& b) { b.click("cmdBotones(1)"); });
    espera("frmColaborador", [](FormDriver& otra) {
      EXPECT_EQ(otra.caption(), "Propiedades del colaborador Ana Gil Sanz");
      otra.click(ACEPTAR);
    });
    poner(u, MINIMO);
    u.click(ACEPTAR);
    EXPECT_TRUE(u.closed());
  });
  censo::NuevoColaborador(contexto, con());
  EXPECT_EQ(satelite("TipoPersona", id), "1|2/1|3");
  editaColaborador(eva, [&](FormDriver& u) {
    lista([](FormDriver& b) {
      EXPECT_FALSE(b.enabled("cmdBotones(1)"));
      b.close();
    });
    poner(u, t(C::SegundoApellido), "Sanz", t(C::Nombre), "Ana", t(C::Direccion), "");
    u.click(CANCELAR);
  });
}

}  // namespace fidaleon::tests::ColaboradorTest
