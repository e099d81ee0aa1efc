// What the cards of the census have in common: people, collaborators, activities, offices, tasks.

#include <array>

#include "census/Manos.h"
#include "support/Mantenimiento.h"

namespace fidaleon::tests::FichasTest {

using support::Catalogo;

enum Clase { EMPADRONADO_, COLABORADOR_, ACTIVIDAD_, CARGO_, TAREA_ };

/// What the bar of a card that can only be looked at offers.
constexpr const char* REINTENTAR = "cmdReintentar";
constexpr const char* SE_PERDERA =
    "Lo que ha escrito en esta ventana no se ha guardado y se perderá.\n¿Desea cerrarla de todos "
    "modos?";

struct Ficha {
  Clase clase;
  const char *formulario, *tabla, *clave, *boton, *tituloAlta, *tituloEdicion;
  /// Tables held while it is open, besides its own (new) or its record.
  std::vector<const char*> compartidas;
  /// Fields that must not be empty or blank, in the order in which they are asked for: the field,
  /// what fills it, what is told meanwhile.
  std::vector<std::array<const char*, 3>> exigidos;
  const char* nombre;

  std::string aceptar() const { return control(boton, 0); }
  std::string cancelar() const { return control(boton, 1); }
  /// A task is not looked at while another works on it, and others may add theirs.
  bool compartida() const { return clase == TAREA_; }
  Campos minimo(const std::string& conNombre) const {
    Campos todos;
    for (const auto& [campo, valor, falta] : exigidos)
      todos.emplace_back(campo, campo == std::string(nombre) ? conNombre : valor);
    return todos;
  }
};

const Ficha FICHAS[] = {
    Ficha(EMPADRONADO_, "frmPadron", "Padron", "IDPadron", "cmdPadron", "Agregar empadronado",
          "Propiedades del empadronado Rosa Gil Mas", {"Institucion", "Provincia", "Municipio"},
          {{"cboPadron(12)", "San Ginés", "¡Debe seleccionar una Institución para el empadronado!"},
           {"txtPadron(0)", "Elena", "¡Debe insertar el nombre del empadronado!"},
           {"txtPadron(1)", "Sanz", "¡Debe insertar el primer apellido del empadronado!"},
           {"txtPadron(2)", "Mora", "¡Debe insertar el segundo apellido del empadronado!"}},
          "txtPadron(0)"),
    Ficha(COLABORADOR_, "frmColaborador", "Padron", "IDPadron", "cmdColaborador",
          "Agregar colaborador", "Propiedades del colaborador Rosa Gil Ruiz",
          {"Provincia", "Municipio"},
          {{"txtColaborador(0)", "Elena", "¡Debe insertar nombre del colaborador!"},
           {"txtColaborador(1)", "Sanz", "¡Debe insertar el primer apellido del colaborador!"},
           {"txtColaborador(2)", "Mora", "¡Debe insertar el segundo apellido del colaborador!"}},
          "txtColaborador(0)"),
    Ficha(ACTIVIDAD_, "frmActividad", "Actividad", "IDActividad", "cmdActividad",
          "Agregar actividad", "Propiedades de la actividad Catequesis", {"Institucion"},
          {{"txtActividad(0)", "Teatro", "¡Debe introducir el nombre de la actividad!"},
           {"cboInstitucion", "San Ginés", "¡Debe seleccionar una Institución!"}},
          "txtActividad(0)"),
    Ficha(CARGO_, "frmCargo", "Cargo", "IDCargo", "cmdCargo", "Agregar cargo",
          "Propiedades del cargo Catequista", {},
          {{"txtCargo(0)", "Director", "¡Debe introducir el nombre del cargo!"}}, "txtCargo(0)"),
    Ficha(TAREA_, "frmTarea", "Tareas", "IDTarea", "cmdBoton", "Agregar tarea",
          "Propiedades de la tarea", {},
          {{"txtHoraInicio", "18:00", "Falta rellenar el campo «HORA DE INICIO»."},
           {"txtNombre", "Ensayo", "Falta rellenar el campo «TAREA»."}},
          "txtNombre"),
};

struct FichasWorld : GruposWorld {
  explicit FichasWorld(const Ficha& cual = ::testing::TestWithParam<Ficha>::GetParam()) : f(cual) {}

  /// New for 0.
  void abrir(std::int32_t id) {
    auto& [x, c] = aqui_;
    support::Mantenimiento catalogos(x, c);
    switch (f.clase) {
      case EMPADRONADO_:
        return id ? censo::EditaEmpadronado(x, c, id) : censo::NuevoEmpadronado(x, c);
      case COLABORADOR_:
        return id ? censo::EditaColaborador(x, c, id) : censo::NuevoColaborador(x, c);
      case ACTIVIDAD_:
        return id ? censo::EditaActividad(x, c, id) : censo::NuevaActividad(x, c);
      case CARGO_:
        return id ? censo::EditaCargo(x, c, id) : censo::NuevoCargo(x, c);
      case TAREA_:
        id ? catalogos.propiedades(Catalogo::Tarea, id) : catalogos.agregar(Catalogo::Tarea);
    }
  }
  void abrir(std::int32_t id, Act act) {
    user.expectForm(f.formulario, std::move(act));
    abrir(id);
  }
  /// The first of two records that others hang on; the rest hangs on the second.
  std::int32_t guardada() {
    if (f.clase == ACTIVIDAD_) return catequesis;
    if (f.clase == CARGO_) return catequista;
    const std::int32_t illescas = municipio("Illescas", "Toledo");
    grupo(catequesis, "Tercero");
    const bool tarea_ = f.clase == TAREA_, padron = f.clase == EMPADRONADO_;
    const std::int32_t id = tarea_   ? tarea("Coro")
                            : padron ? persona("Rosa", "Gil", "Mas")
                                     : colaborador("Rosa", "Gil");
    const std::int32_t otra = tarea_ ? tarea("Otra") : persona("Otra", "Gil", "Mas");
    for (const std::int32_t suya : {id, otra, id})
      padron   ? nota(suya, suya == id ? "Suya" + texto(count("Padron_NotasPersonales")) : "Otra")
      : tarea_ ? 0
               : miembro(suya, count("Padron_Actividad") < 4 ? primero : segundo, catequista);
    ejecutar("UPDATE Padron SET CodMunicipio=" + texto(illescas));
    return id;
  }
  /// Rows of other tables that a new card brings with it.
  void acompañar(FormDriver& u) {
    if (f.clase == EMPADRONADO_) {
      poner(u, "txtPadron(3)", "12345678", "txtPadron(4)", "Z");
      for (const char* titulo : {"Una", "Dos"}) nota(u, titulo, 0);
    } else if (f.clase == COLABORADOR_) {
      for (const char* suyo : {"Primero", "Segundo"}) membresia(u, suyo, 0);
    } else if (f.clase == ACTIVIDAD_) {
      grupo(u, "Jóvenes", 0);
    }
  }
  /// One of those that are stored changed, one removed and one added.
  void retocar(FormDriver& u) {
    if (f.clase == EMPADRONADO_) {
      u.tab("mstPadron", 5);
      u.row("msgNotas", 1);
      u.click("cmdNotas(2)");
      EXPECT_EQ(u.get<forms::Grid>("msgNotas").row(), 1) << "the next one is chosen";
      nota(u, "Cambiada", 1);
      nota(u, "Nueva", 0);
    } else if (f.clase == COLABORADOR_) {
      u.tab("mstColaborador", 4);
      u.row("msgActividades", 1);
      u.click("cmdActividad(2)");
      EXPECT_EQ(u.get<forms::Grid>("msgActividades").row(), 1) << "the next one is chosen";
      membresia(u, "Segundo", 1);
      membresia(u, "Tercero", 0);
    } else if (f.clase == ACTIVIDAD_) {
      u.tab("mstActividad", 1);
      u.row("msgGrupos", 1);
      u.click("cmdActividad(4)");
      EXPECT_EQ(u.get<forms::Grid>("msgGrupos").row(), 1) << "the next one is chosen";
      grupo(u, "Cambiado", 1);
      grupo(u, "Nuevo", 0);
    }
  }

  const Ficha& f;

 private:
  using CensoWorld::grupo;
  using CensoWorld::nota;
  void nota(FormDriver& u, const char* titulo, int boton) {
    verPagina(u, "msgNotas");
    contesta("frmPadronNotas", "cmdPadronNota(0)", "txtTitulo", titulo);
    u.click(control("cmdNotas", boton));
  }
  void membresia(FormDriver& u, const char* suyo, int boton) {
    verPagina(u, "msgActividades");
    contesta("frmColaboradorActividad", "cmdColaboraAct(0)", "cboColaboraAct(0)", "Catequesis",
             "cboColaboraAct(1)", suyo, "cboColaboraAct(2)", "Monitor");
    u.click(control("cmdActividad", boton));
  }
  void grupo(FormDriver& u, const char* suyo, int boton) {
    verPagina(u, "msgGrupos");
    user.expectForm("frmActividadGrupos", [this, suyo](FormDriver& g) {
      g.type("txtGrupo(0)", suyo);
      g.tab("mstGrupo", 1);
      contesta("frmCargo", "cmdCargo(0)", "cboCargo", "Monitor");
      g.click("cmdMover(1)");
      g.click("cmdGrupo(0)");
    });
    u.click(control("cmdActividad", 2 + boton));
  }
  std::pair<Contexto&, FDAPI::Conexion&> aqui_{contexto, con()};
};

class Fichas : public ::testing::TestWithParam<Ficha>, public FichasWorld {
 protected:
  Fichas() : FichasWorld(GetParam()) {}
  void TearDown() override { comprobarFinal(); }
  using FichasWorld::f;
};

TEST_P(Fichas, New_IsStoredWithTheLeastAndHoldsItsTablesMeanwhile) {
  const std::string nombres = std::string("SELECT Nombre FROM ") + f.tabla, antes = filas(nombres);
  abrir(0, [&](FormDriver& u) {
    EXPECT_EQ(u.caption(), f.tituloAlta);
    EXPECT_FALSE(isFree(f.tabla));
    for (const char* tabla : f.compartidas) EXPECT_FALSE(isFree(tabla)) << tabla;
    poner(u, f.minimo("Ana \"Anita\""));
    u.ctrlEnter();
    EXPECT_TRUE(u.closed());
  });
  EXPECT_EQ(filas(nombres), antes + (antes.empty() ? "" : "/") + "Ana ''Anita''");
}

TEST_P(Fichas, FieldMissingOrBlank_IsToldThereAndCancellingStoresNothing) {
  institucion("San Blas");
  const std::string antes = censo();
  abrir(0, [&](FormDriver& u) {
    for (const auto& [campo, valor, falta] : f.exigidos) {
      rehusa(u, f.aceptar(), falta, campo);
      if (dynamic_cast<forms::TextBox*>(u.form().find(campo))) {
        u.paste(campo, "   ");
        rehusa(u, f.aceptar(), falta, campo);
      }
      poner(u, campo, valor);
    }
    u.click(f.cancelar());
    EXPECT_TRUE(u.closed());
  });
  EXPECT_EQ(censo(), antes);
}

TEST_P(Fichas, Edited_ChangesThatRecordAloneAndOnlyOnAccepting) {
  const std::int32_t id = guardada();
  const std::string antes = censo(), de = std::string("FROM ") + f.tabla + " WHERE " + f.clave;
  const std::string otras = "SELECT * " + de + "<>" + texto(id), ajenas = filas(otras);
  for (const bool aceptar : {false, true}) {
    abrir(id, [&](FormDriver& u) {
      EXPECT_EQ(u.caption(), f.tituloEdicion);
      EXPECT_FALSE(isFree(f.tabla, id));
      EXPECT_TRUE(isFree(f.tabla, id + 1));
      for (const char* tabla : f.compartidas) EXPECT_FALSE(isFree(tabla)) << tabla;
      retocar(u);
      poner(u, f.nombre, "Eva \"la Nena\"");
      if (!aceptar) {
        user.expectMessage(SE_PERDERA, Answer::No);
        u.escape();
        EXPECT_FALSE(u.closed());
        user.expectMessage(SE_PERDERA, Answer::Yes);
      }
      aceptar ? u.click(f.aceptar()) : u.escape();
      EXPECT_TRUE(u.closed());
    });
    EXPECT_EQ(censo() == antes, !aceptar);
  }
  EXPECT_EQ(filas("SELECT Nombre " + de + "=" + texto(id)), "Eva ''la Nena''");
  EXPECT_EQ(filas(otras), ajenas);
}

TEST_P(Fichas, UsedElsewhere_CanOnlyBeLookedAtAndNoNewOneOpens) {
  const std::int32_t id = guardada();
  const std::string antes = censo();
  const auto otro = otherHolds(f.tabla, id);
  user.answerAnything(Answer::Ok);
  f.compartida() ? abrir(id) : abrir(id, [&](FormDriver& u) {
    EXPECT_EQ(u.caption(), f.tituloEdicion);
    for (const forms::Control* c : u.form().controls()) {
      const auto* campo = dynamic_cast<const forms::TextBox*>(c);
      const auto* lista = dynamic_cast<const forms::ListControl*>(c);
      EXPECT_TRUE((!campo || campo->locked()) && (!lista || lista->locked())) << c->name();
      const bool boton = dynamic_cast<const forms::Button*>(c);
      EXPECT_TRUE(!boton || c->enabled() == (c->name() == f.cancelar() || c->name() == REINTENTAR))
          << c->name();
      if (!dynamic_cast<const forms::Grid*>(c)) continue;
      verPagina(u, c->name());
      u.doubleClick(c->name(), 1);
    }
    u.enter();
    EXPECT_FALSE(u.closed());
    u.click(f.cancelar());
  });
  EXPECT_EQ(user.messages().size(), 1u);
  EXPECT_EQ(censo(), antes);
  if (f.compartida()) return;
  abrir(0);
  EXPECT_EQ(user.messages().size(), 2u);
  abrir(id, [&](FormDriver& u) {
    otro->LiberarBloqueos();
    espera(f.formulario, [&](FormDriver& libre) {
      EXPECT_TRUE(libre.enabled(f.aceptar()));
      libre.close();
    });
    u.click(REINTENTAR);
  });
}

TEST_P(Fichas, GoneOrTablesUsedElsewhere_NothingOpens) {
  user.answerAnything(Answer::Ok);
  const std::int32_t id = guardada();
  abrir(99);
  EXPECT_EQ(user.messages().size(), 1u);
  for (const char* tabla : f.compartidas) {
    const auto otro = otherHolds(tabla);
    const std::size_t antes = user.messages().size();
    abrir(0);
    abrir(id);
    EXPECT_EQ(user.messages().size(), antes + 2) << tabla;
  }
}

TEST_P(Fichas, WhereNothingCanBeLocked_CanOnlyBeLookedAtAndOneWhoIsGoneIsTold) {
  if (f.compartida()) return;
  const std::int32_t id = guardada();
  std::filesystem::remove_all(directory.path());
  user.answerAnything(Answer::Ok);
  abrir(id, [&](FormDriver& u) {
    EXPECT_FALSE(u.enabled(f.aceptar()));
    u.click(f.cancelar());
  });
  EXPECT_EQ(user.messages().size(), 1u);
  abrir(99);
  EXPECT_THAT(user.messages().back().text, HasSubstr("ya no e"));
}

/// Whether failure number `n` among the statements of opening came about: it is told or thrown, and
/// nothing opens.
bool fallaAlAbrir(const Ficha& f, bool edicion, int n) {
  FichasWorld w(f);
  const std::int32_t id = edicion ? w.guardada() : 0;
  w.user.answerAnything(Answer::Ok);
  w.mayBreakOff = true;
  w.fallos().failOn("", store::ErrorKind::Other, n);
  bool abierta = false, dicho = false;
  try {
    w.abrir(id, [&](FormDriver& u) {
      abierta = true;
      EXPECT_EQ(w.fallos().pending(), 1u) << "opened in spite of failure " << n;
      w.fallos().clear();
      u.close();
    });
  } catch (const store::Error&) {
    dicho = true;
  }
  EXPECT_TRUE(abierta || dicho || !w.user.messages().empty()) << n;
  EXPECT_TRUE(w.isFree(f.tabla)) << n;
  return !abierta;
}

enum Intento { ALTA, ALTA_Y_CANCELAR, EDICION };

/// The census after the card was accepted with failure number `n` among its statements, and then
/// accepted once more or cancelled; empty when there are not so many. 0: without a failure.
std::string guardadaConFallo(const Ficha& f, Intento intento, int n) {
  FichasWorld w(f);
  bool fallado = n == 0;
  w.user.answerAnything(Answer::Ok);
  const std::int32_t id = intento == EDICION ? w.guardada() : 0;
  const std::string antes = w.censo();
  w.abrir(id, [&](FormDriver& u) {
    w.poner(u, f.minimo("Eva"));
    id ? w.retocar(u) : w.acompañar(u);
    if (n > 0) w.fallos().failOn("", store::ErrorKind::DiskFull, n);
    u.click(f.aceptar());
    if (n > 0 && w.fallos().pending() == 0) {
      fallado = true;
      ASSERT_FALSE(u.closed()) << n;
      EXPECT_EQ(w.user.messages().size(), 1u) << n;
      EXPECT_THAT(w.user.messages().back().text, HasSubstr(f.formulario));
      // The tables of a person are written one by one.
      EXPECT_TRUE(f.clase == EMPADRONADO_ || w.censo() == antes) << n;
      u.click(intento == ALTA_Y_CANCELAR ? f.cancelar() : f.aceptar());
    }
    w.fallos().clear();
    EXPECT_TRUE(u.closed()) << n;
  });
  w.comprobarFinal();
  EXPECT_TRUE(intento != ALTA_Y_CANCELAR || n == 0 || !fallado || w.censo() == antes) << n;
  return fallado ? w.censo() : std::string();
}

class FichasConFallos : public ::testing::TestWithParam<Ficha> {};

TEST_P(FichasConFallos, AnyStatementOfOpening_IsToldAndNothingOpens) {
  for (const bool edicion : {false, true}) {
    int n = 1;
    while (fallaAlAbrir(GetParam(), edicion, n)) ++n;
    EXPECT_TRUE(n > 1 || !edicion);
  }
}

TEST_P(FichasConFallos, AnyStatementOfStoring_CanBeTakenBackOrStoredAgainAsIfNothingHadHappened) {
  for (const Intento intento : {ALTA, ALTA_Y_CANCELAR, EDICION}) {
    const std::string entera = guardadaConFallo(GetParam(), intento, 0);
    int n = 1;
    for (std::string otra; !(otra = guardadaConFallo(GetParam(), intento, n)).empty(); ++n)
      EXPECT_EQ(otra == entera, intento != ALTA_Y_CANCELAR) << n;
    EXPECT_GT(n, 1);
  }
}

std::string nombreDe(const ::testing::TestParamInfo<Ficha>& info) {
  return info.param.formulario;
}
INSTANTIATE_TEST_SUITE_P(Censo, Fichas, ::testing::ValuesIn(FICHAS), nombreDe);
INSTANTIATE_TEST_SUITE_P(Censo, FichasConFallos, ::testing::ValuesIn(FICHAS), nombreDe);

}  // namespace fidaleon::tests::FichasTest
