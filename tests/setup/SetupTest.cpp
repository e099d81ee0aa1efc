// The data that an institution must have, and the keepers of its archive.

#include "census/Manos.h"
#include "registers/Rows.h"
#include "setup/frmDatosSetup.h"
#include "setup/frmEncargado.h"

namespace fidaleon::tests::SetupTest {

constexpr const char *PARROCO = "txtDatos(0)", *ENCARGADO = "txtDatos(1)",
                     *DIOCESIS = "txtDatos(2)", *VICARIA = "txtDatos(3)",
                     *INSTITUCION = "cboInstitucion", *ACEPTAR = "cmdBoton(0)",
                     *CANCELAR = "cmdBoton(1)", *KEEPER = "cboEncargado", *FECHA = "adtpFecha",
                     *ALTA = "cmdAgregarEncargado";

struct DatosSetup : En<ManosWorld> {
  std::int32_t vacia(const std::string& nombre) {
    const std::int32_t id = institucion(nombre);
    ejecutar("UPDATE Institucion SET Parroco='',Diocesis='',Vicaria=NULL WHERE IDInstitucion=" +
             texto(id));
    return id;
  }
  bool abrir(Act act) {
    frmDatosSetup dialogo(contexto);
    dialogo.conBaseDatos = &con();
    if (act) espera("frmDatosSetup", std::move(act));
    dialogo.Show();
    return dialogo.blnResultado;
  }
  void sale(FormDriver& u, Answer respuesta) {
    user.expectMessage(
        "¡No ha rellenado todos los datos!\nEs necesario que complete todos los datos para poder "
        "continuar ejecutando la aplicación.\n¿Está seguro de querer salir?",
        respuesta);
    u.click(CANCELAR);
    EXPECT_EQ(u.closed(), respuesta == Answer::Yes);
  }
  std::string datos(std::int32_t id) {
    return filas("SELECT Parroco,Diocesis,Vicaria FROM Institucion WHERE IDInstitucion=" +
                 texto(id)) +
           "|" +
           filas("SELECT Nombre FROM Institucion_Encargado WHERE CodInstitucion=" + texto(id));
  }
};

const Campos LLENA = campos(PARROCO, "Pedro O'Donnell", ENCARGADO, "Rosa Gil", DIOCESIS, "Getafe",
                            VICARIA, "Centro");

TEST_F(DatosSetup, OneOfTheThreeIsThere_IsNotShownAndTrue) {
  for (const char* dato : {"Parroco", "Diocesis", "Vicaria"}) {
    ejecutar("UPDATE Institucion SET Parroco='',Diocesis='',Vicaria=NULL");
    ejecutar(std::string("UPDATE Institucion SET ") + dato + "='Algo'");
    EXPECT_TRUE(abrir({}));
  }
}

TEST_F(DatosSetup, TwoInstitutions_AreFilledInOneGoAndCancellingAsks) {
  const std::int32_t una = vacia("San José"), otra = vacia("Santa Ana");
  ejecutar("INSERT INTO Institucion_Encargado (CodInstitucion, Nombre) VALUES (3, \"Juan Mas\")");
  for (const bool acepta : {false, true})
    EXPECT_EQ(acepta, abrir([&](FormDriver& u) {
                EXPECT_EQ(u.caption(), "Datos necesarios para el Módulo de Gestión Parroquial");
                EXPECT_EQ(lineas(u, INSTITUCION), "San José|Santa Ana");
                EXPECT_EQ(u.text(INSTITUCION), "San José");
                poner(u, LLENA);
                u.choose(INSTITUCION, "Santa Ana");
                comprobar(u, PARROCO, "", ENCARGADO, "Juan Mas");
                poner(u, PARROCO, "Luis \"el Cura\"", DIOCESIS, "Toledo", VICARIA, "Norte",
                      ENCARGADO, "Eva Sol");
                for (const char* cual : {"San José", "Santa Ana"}) u.choose(INSTITUCION, cual);
                comprobar(u, ENCARGADO, "Eva Sol");
                u.choose(INSTITUCION, "San José");
                comprobar(u, LLENA);
                if (acepta) return u.click(ACEPTAR);
                sale(u, Answer::No);
                EXPECT_EQ(user.messages()[0].icon, forms::MsgIcon::Question);
                comprobar(u, LLENA);
                sale(u, Answer::Yes);
                EXPECT_EQ(datos(una), "|||");
              }));
  EXPECT_EQ(datos(una), "Pedro O'Donnell|Getafe|Centro|Rosa Gil");
  EXPECT_EQ(datos(otra), "Luis ''el Cura''|Toledo|Norte|Juan Mas");
}

TEST_F(DatosSetup, ValueMissingOrBlank_TellsWhichAndGoesThere) {
  vacia("San José");
  vacia("Santa Ana");
  EXPECT_TRUE(abrir([&](FormDriver& u) {
    poner(u, LLENA);
    const auto falta = [&](const char* campo, const char* mensaje) {
      for (const char* vacio : {"", "  "}) {
        poner(u, campo, vacio);
        u.choose(INSTITUCION, "San José");
        rehusa(u, ACEPTAR, mensaje, campo);
        EXPECT_EQ(u.text(INSTITUCION), "Santa Ana");
      }
      poner(u, campo, "Algo");
    };
    u.choose(INSTITUCION, "Santa Ana");
    falta(PARROCO, "¡Tiene que introducir un nombre para el Párroco!");
    falta(ENCARGADO, "¡Tiene que introducir el nombre para el Encargado del archivo!");
    falta(DIOCESIS, "¡Tiene que introducir el nombre de la Diócesis!");
    falta(VICARIA, "¡Tiene que introducir el nombre de la Vicaría!");
    EXPECT_EQ(filas("SELECT Parroco FROM Institucion WHERE Nombre='San José'"), "");
    u.click(ACEPTAR);
  }));
}

TEST_F(DatosSetup, StoreFails_IsReportedAndTheFieldsStay) {
  const std::int32_t id = vacia("San José");
  fallos().failOn("INSERT INTO Institucion_Encargado", store::ErrorKind::DiskFull);
  user.answerAnything(Answer::Ok);
  EXPECT_TRUE(abrir([&](FormDriver& u) {
    poner(u, LLENA);
    u.click(ACEPTAR);
    EXPECT_THAT(user.messages().at(0).text, HasSubstr("FidaleonNucleo / frmDatosSetup"));
    comprobar(u, LLENA);
    u.click(ACEPTAR);
  }));
  EXPECT_EQ(datos(id), "Pedro O'Donnell|Getafe|Centro|Rosa Gil");
}

constexpr const char* TABLA = "Institucion_Encargado";

struct Encargados : En<ManosWorld> {
  Encargados() {
    enLibro(BAUTISMO);
    for (const char* nombre : {"Pedro Ruiz", "Rosa Gil"})
      ejecutar(std::string("INSERT INTO Institucion_Encargado (CodInstitucion, Nombre) VALUES (1, "
                           "\"") +
               nombre + "\")");
    ejecutar("UPDATE Ultimos SET Encargado=\"Rosa Gil\"");
  }
  /// The only entry of a register, in a book of the parish.
  void enLibro(const Sacramento& s) {
    insertEntry(*this, s, {"Eva", insertBook(*this, s, parroquia), 1, "1"});
  }
  /// "keeper|date|institution" that come out; without hands when nothing opens.
  std::string abrir(Act act, const char* sacramento = "Bautismo") {
    frmEncargado dialogo(contexto);
    dialogo.conBaseDatos = &con();
    dialogo.Sacramento = sacramento;
    dialogo.IDPartida = 1;
    if (act) espera("frmEncargado", std::move(act));
    dialogo.Show();
    return dialogo.strEncargado + "|" + dialogo.strFecha + "|" + texto(dialogo.lngInstitucion);
  }
  void agregar(FormDriver& u, std::optional<std::string> nombre, bool repetido = false) {
    user.expectInput(
        "Especifique el nombre de la persona encargada del archivo parroquial.\n"
        "Advertencia: Longitud máxima 120 caracteres.",
        std::move(nombre));
    if (repetido) user.expectMessage("¡El encargado ya existe en la base de datos!");
    u.click(ALTA);
  }
};

TEST_F(Encargados, Opened_ShowsInstitutionKeepersLastKeeperAndToday) {
  EXPECT_EQ(abrir([&](FormDriver& u) {
              EXPECT_EQ(u.caption(), "Selección de encargado");
              EXPECT_EQ(lineas(u, KEEPER), "Pedro Ruiz|Rosa Gil");
              comprobar(u, "lblInstitucion", "San Ginés", KEEPER, "Rosa Gil", FECHA, "22/11/2026",
                        ALTA, "Agregar encargado");
              EXPECT_EQ(u.focused(), KEEPER);
              EXPECT_FALSE(isFree("Institucion"));
              poner(u, KEEPER, "Pedro Ruiz", FECHA, "");
              user.expectMessage("Falta rellenar el campo «FECHA DE IMPRESION DEL DOCUMENTO».");
              u.click(ACEPTAR);
              EXPECT_EQ(u.focused(), FECHA);
              poner(u, FECHA, "03/11/2026");
              u.click(ACEPTAR);
            }),
            "Pedro Ruiz|20261103|1");
  for (const bool cerrar : {false, true})
    EXPECT_EQ(abrir([&](FormDriver& u) {
                poner(u, FECHA, "03/11/2026");
                cerrar ? u.close() : u.click(CANCELAR);
              }),
              "|20261122|1");
}

TEST_F(Encargados, EntryOfDeathOrWithoutBook_IsFoundByItsOwnKeyOrNotOpened) {
  enLibro(DEFUNCION);
  EXPECT_EQ(abrir([](FormDriver& u) { u.click(ACEPTAR); }, "Defuncion"), "Rosa Gil|20261122|1");
  ejecutar("UPDATE Bautismo SET CodLibro=0");
  user.answerAnything(Answer::Ok);
  EXPECT_EQ(abrir({}), "|20261122|0");
  EXPECT_THAT(user.messages().at(0).text,
              ::testing::MatchesRegex("Ha ocurrido el error nº .*\n Descripción: .+"));
}

TEST_F(Encargados, KeeperAdded_IsStoredChosenAndTheTableGivenBack) {
  std::string largo;
  for (int i = 0; i < 120; ++i) largo += "ñ";
  const std::string salida = abrir([&](FormDriver& u) {
    agregar(u, std::nullopt);
    agregar(u, "   ");
    EXPECT_EQ(u.text(KEEPER), "Rosa Gil");
    agregar(u, largo + "más");
    EXPECT_EQ(lineas(u, KEEPER), "Pedro Ruiz|Rosa Gil|" + largo) << "no more letters are kept";
    for (const std::string& otra : {std::string("rosa gil"), largo + "x"}) {
      agregar(u, otra, true);
      EXPECT_EQ(u.text(KEEPER), largo);
    }
    agregar(u, std::string(118, 'o') + "\"z");
    EXPECT_EQ(u.text(KEEPER), std::string(118, 'o') + "'z") << "no letter gives way to a quote";
    agregar(u, " José \"Pepe\" D'Ors ");
    EXPECT_EQ(u.text(KEEPER), "José ''Pepe'' D'Ors");
    agregar(u, "josé  ''pepe'' d'ors", true);
    u.choose(KEEPER, largo);
    EXPECT_TRUE(isFree(TABLA, 0, true));
    u.click(ACEPTAR);
  });
  EXPECT_EQ(salida, largo + "|20261122|1");
  EXPECT_EQ(count(TABLA), 5);
}

TEST_F(Encargados, InstitutionOrKeepersInUse_CanBeChosenButNotAdded) {
  user.answerAnything(Answer::Ok);
  for (const char* tabla : {TABLA, "Institucion"}) {
    const bool compartida = tabla == std::string(TABLA);
    const auto otro = otherHolds(tabla, 0, compartida);
    const std::size_t antes = user.messages().size();
    const std::string salida = abrir([&](FormDriver& u) {
      EXPECT_EQ(u.enabled(ALTA), compartida);
      if (u.enabled(ALTA)) u.click(ALTA);  // no prompt comes
      EXPECT_EQ(u.enabled(ALTA), compartida);
      poner(u, KEEPER, "Pedro Ruiz");
      u.click(ACEPTAR);
    });
    EXPECT_EQ(salida, "Pedro Ruiz|20261122|1");
    EXPECT_EQ(user.messages().size(), antes + 1);
  }
}

}  // namespace fidaleon::tests::SetupTest
