// The dialogs that look for a person and show them.

#include "census/CensoWorld.h"
#include "census/search/BuscaCoincidencias.h"
#include "census/search/frmMensaje.h"
#include "census/search/frmPadronBusqueda.h"
#include "census/search/frmPadronDetalles.h"
#include "census/search/frmPadronImportar.h"
#include "store/FailingEngine.h"

namespace fidaleon::tests {
namespace {

using FDAPI::cCOrigen;
using forms::FormDriver;
using store::FailingEngine;
using ::testing::AllOf;
using ::testing::Contains;
using ::testing::HasSubstr;

constexpr const char* SELECCIONAR = "cmdBotones(1)";
constexpr const char* CANCELAR_LISTA = "cmdBotones(2)";

struct BusquedaWorld : CensoWorld {
  BusquedaWorld() {
    ana = persona("Ana", "Gómez", "Ruiz", "12345678-Z");
    otraAna = persona("Ana", "Gómez", "Ruiz");
    luis = persona("Luis", "Gómez", "Sanz", "00000001-R");
  }

  std::int32_t buscar(const std::string& condicion, forms::ScriptedUser::Act act,
                      bool blnSeleccionar = true) {
    store::Recordset rs = con().Execute("SELECT * FROM Padron" + condicion);
    frmPadronBusqueda lista(contexto);
    lista.conBaseDatos = &con();
    lista.registros = &rs;
    lista.Origen = cCOrigen::PADRON;
    lista.blnSeleccionar = blnSeleccionar;
    user.expectForm("frmPadronBusqueda", std::move(act));
    lista.Show();
    return lista.lngSeleccionado;
  }
  std::int32_t importar(cCOrigen origen, forms::ScriptedUser::Act act) {
    frmPadronImportar dialogo(contexto);
    dialogo.conBaseDatos = &con();
    dialogo.Origen = origen;
    user.expectForm("frmPadronImportar", std::move(act));
    dialogo.Show();
    return dialogo.lngSeleccionado;
  }
  void verDetalles(std::int32_t id, forms::ScriptedUser::Act act) {
    frmPadronDetalles detalle(contexto);
    detalle.conBaseDatos = &con();
    detalle.IDPadron = id;
    user.expectForm("frmPadronDetalles", std::move(act));
    detalle.Show();
  }
  void actualizar(const std::string& sentencia) { con().Execute(sentencia); }

  std::int32_t ana = 0;
  std::int32_t otraAna = 0;
  std::int32_t luis = 0;
};

std::vector<std::string> fila(FormDriver& u, int numero) {
  const auto& rejilla = u.get<forms::Grid>("msgBusquedaPadron");
  std::vector<std::string> celdas;
  for (int c = 0; c < rejilla.columns(); ++c) celdas.push_back(rejilla.cell(numero, c));
  return celdas;
}

void cerrarDetalles(FormDriver& u) {
  u.click("cmdAceptar");
}

TEST(FrmPadronBusqueda, Rows_ShowThoseFoundUnderTheirHeaders) {
  BusquedaWorld w;
  w.buscar(" WHERE Nombre=\"Ana\" ORDER BY IDPadron", [](FormDriver& u) {
    EXPECT_EQ(u.caption(), "DETALLES");
    const auto& rejilla = u.get<forms::Grid>("msgBusquedaPadron");
    EXPECT_EQ(rejilla.rowCount(), 2);
    EXPECT_THAT(fila(u, 0),
                ::testing::ElementsAre("Nombre", "Apellidos", "D.N.I.", "Dirección", "Teléfono"));
    EXPECT_THAT(fila(u, 1), ::testing::ElementsAre("Ana", "Gómez Ruiz", "12345678-Z",
                                                   "Calle Mayor, 3", "915550101"));
    const int anchos[] = {1250, 2300, 1150, 1500};
    for (int c = 0; c < 4; ++c) EXPECT_EQ(rejilla.columnWidth(c), anchos[c]);
    EXPECT_FALSE(u.visible("lblBuscado"));
    u.get<forms::Grid>("msgBusquedaPadron").setColumnWidth(1, 3000);
    u.click(CANCELAR_LISTA);
  });
  w.buscar("", [](FormDriver& u) {
    EXPECT_EQ(u.get<forms::Grid>("msgBusquedaPadron").columnWidth(1), 3000);
    u.escape();
  });
  EXPECT_EQ(w.contexto.leerAjuste("Grids\\PadronBusqueda\\PadronBusqueda", "1"), "3000");
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmPadronBusqueda, WidthsThatCannotBeKept_AreToldUnderTheDialog) {
  struct SoloLectura : support::MemorySettings {
    void write(const std::string&, const std::string&, const std::string&,
               const std::string&) override {
      throw std::runtime_error("El disco está lleno.");
    }
  } ajustes;
  BusquedaWorld w;
  Entorno entorno{w.user, w.host, ajustes, w.clock, {}};
  Contexto contexto(entorno);
  store::Recordset rs = w.con().Execute("SELECT * FROM Padron");
  frmPadronBusqueda lista(contexto);
  lista.conBaseDatos = &w.con();
  lista.registros = &rs;
  w.user.answerAnything(forms::Answer::Ok);
  w.user.expectForm("frmPadronBusqueda", [](FormDriver& u) {
    EXPECT_EQ(u.get<forms::Grid>("msgBusquedaPadron").rowCount(), 3);
    u.escape();
  });
  lista.Show();
  EXPECT_THAT(w.user.messages().at(0).text,
              HasSubstr("FidaleonNucleo / frmPadronBusqueda / ConfigGridBusqueda"));
}

TEST(FrmPadronBusqueda, DetailsByButtonDoubleClickAndEnter_ShowTheRowAndChooseNobody) {
  BusquedaWorld w;
  const std::int32_t elegido = w.buscar(" ORDER BY IDPadron", [&](FormDriver& u) {
    const auto muestra = [&](const char* nombre) {
      w.user.expectForm("frmPadronDetalles", [=](FormDriver& d) {
        EXPECT_EQ(d.text("txtDetalle(0)"), nombre);
        cerrarDetalles(d);
      });
    };
    muestra("Gómez Ruiz,  Ana");
    u.click("cmdBotones(0)");
    muestra("Gómez Sanz,  Luis");
    u.doubleClick("msgBusquedaPadron", 3);
    muestra("Gómez Sanz,  Luis");
    u.enter();
    EXPECT_EQ(u.focused(), "msgBusquedaPadron");
    u.click(CANCELAR_LISTA);
  });
  EXPECT_EQ(elegido, 0);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmPadronBusqueda, Selected_HandsTheKeyOverAndCloses) {
  BusquedaWorld w;
  const std::int32_t elegido = w.buscar(" ORDER BY IDPadron", [](FormDriver& u) {
    u.row("msgBusquedaPadron", 3);
    u.click(SELECCIONAR);
  });
  EXPECT_EQ(elegido, w.luis);
  EXPECT_EQ(w.user.hourglassDepth(), 0);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmPadronBusqueda, WhileEditingOrWithoutRows_NobodyCanBeSelected) {
  BusquedaWorld w;
  w.buscar(
      "",
      [](FormDriver& u) {
        EXPECT_FALSE(u.enabled(SELECCIONAR));
        EXPECT_TRUE(u.enabled("cmdBotones(0)"));
        u.click(CANCELAR_LISTA);
      },
      false);
  w.buscar(" WHERE Nombre=\"Nadie\"", [](FormDriver& u) {
    EXPECT_FALSE(u.enabled(SELECCIONAR));
    EXPECT_FALSE(u.enabled("cmdBotones(0)"));
    u.enter();
    u.click(CANCELAR_LISTA);
  });
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmPadronBusqueda, TwoThousandRows_ComeInWithOneNotice) {
  BusquedaWorld w;
  struct : forms::FormObserver {
    void controlChanged(forms::Control&, forms::Change what) override {
      avisos += what == forms::Change::Grid;
    }
    void focusChanged(forms::Control*) override {}
    void captionChanged() override {}
    void unloaded() override {}
    int avisos = 0;
  } observador;
  w.con().BeginTrans();
  for (int i = 0; i < 2000; ++i)
    w.actualizar(
        "INSERT INTO Padron (Nombre,PrimerApellido,SegundoApellido) VALUES "
        "(\"Eva\",\"Sanz\",\"Gil\")");
  w.con().CommitTrans();
  store::Recordset rs = w.con().Execute("SELECT * FROM Padron WHERE Nombre=\"Eva\"");
  frmPadronBusqueda lista(w.contexto);
  lista.conBaseDatos = &w.con();
  lista.registros = &rs;
  lista.setObserver(&observador);
  lista.Load();
  EXPECT_EQ(lista.msgBusquedaPadron.rowCount(), 2000);
  EXPECT_LT(observador.avisos, 30);
  lista.setObserver(nullptr);
}

TEST(FrmPadronBusqueda, PersonGoneOrStoreFailing_IsToldAndTheListStays) {
  BusquedaWorld w;
  FailingEngine* fallos = FailingEngine::wrap(w.con());
  w.user.answerAnything(forms::Answer::Ok);
  const std::int32_t elegido = w.buscar(" ORDER BY IDPadron", [&](FormDriver& u) {
    fallos->failOn("SELECT * FROM Padron WHERE IDPadron");
    u.click("cmdBotones(0)");
    w.actualizar("DELETE * FROM Padron WHERE IDPadron=" + std::to_string(w.luis));
    u.doubleClick("msgBusquedaPadron", 3);
    ASSERT_EQ(w.user.messages().size(), 2u);
    EXPECT_THAT(w.user.messages()[0].text,
                HasSubstr("frmPadronDetalles / CargaDetallesEmpadronado"));
    EXPECT_THAT(w.user.messages()[1].text, HasSubstr("Esta persona ya no existe."));
    u.row("msgBusquedaPadron", 2);
    u.click(SELECCIONAR);
  });
  EXPECT_EQ(elegido, w.otraAna);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmPadronBusqueda, RecordSetThatCannotBeRead_IsToldAndTheListCanBeClosed) {
  BusquedaWorld w;
  store::Recordset sinClave = w.con().Execute("SELECT Nombre FROM Padron");
  frmPadronBusqueda lista(w.contexto);
  lista.conBaseDatos = &w.con();
  lista.registros = &sinClave;
  w.user.answerAnything(forms::Answer::Ok);
  w.user.expectForm("frmPadronBusqueda", [&](FormDriver& u) {
    EXPECT_FALSE(u.enabled(SELECCIONAR));
    u.click(CANCELAR_LISTA);
  });
  lista.Show();
  ASSERT_EQ(w.user.messages().size(), 1u);
  EXPECT_THAT(w.user.messages()[0].text, HasSubstr("frmPadronBusqueda / CargaGridBusqueda"));
  EXPECT_EQ(w.user.hourglassDepth(), 0);
  EXPECT_SCRIPT_DONE(w.user);
}

std::vector<std::string> detalles(FormDriver& u) {
  std::vector<std::string> lineas;
  for (int linea = frmPadronDetalles::NOMBRE; linea <= frmPadronDetalles::LUGAR_NACIMIENTO; ++linea)
    lineas.push_back(u.text("txtDetalle(" + std::to_string(linea) + ")"));
  return lineas;
}

TEST(FrmPadronDetalles, Person_IsShownWithPlacesInstitutionAndBirth) {
  BusquedaWorld w;
  const std::string getafe = std::to_string(w.municipio("Getafe", "Madrid"));
  const std::string ronda = std::to_string(w.municipio("Ronda", "Málaga"));
  const std::string ana = std::to_string(w.ana);
  w.actualizar("UPDATE Padron SET CodMunicipio=" + getafe +
               ",EstadoCivil=\"Casada\",[Profesion/Colegio]=\"Maestra\",PosicionFamiliar=\"Madre\" "
               "WHERE IDPadron=" +
               ana);
  w.actualizar("UPDATE Padron_Nacimiento SET CodMunicipioNac=" + ronda + " WHERE CodPadron=" + ana);
  w.verDetalles(w.ana, [](FormDriver& u) {
    EXPECT_EQ(u.caption(), "Detalles de la persona");
    EXPECT_THAT(detalles(u),
                ::testing::ElementsAre("Gómez Ruiz,  Ana", "12345678-Z", "Casada",
                                       "Calle Mayor, 3  //  Getafe (Madrid)", "915550101",
                                       "Maestra", "San Ginés", "Madre", "15/03/1970", "Luis",
                                       "Carmen", "Ronda (Málaga)"));
    EXPECT_TRUE(u.locked("txtDetalle(0)"));
    EXPECT_EQ(u.text("lbltxtDetalle(3)"), "DIRECCION  //   POBLACION (Provincia):");
    u.enter();
  });
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmPadronDetalles, EmptyValues_ShowDashes) {
  BusquedaWorld w;
  w.actualizar(
      "INSERT INTO Padron (Nombre,PrimerApellido,SegundoApellido) VALUES "
      "(\"Eva\",\"Sanz\",\"Gil\")");
  const std::int32_t eva = std::stoi(w.value("SELECT MAX(IDPadron) AS ID FROM Padron"));
  const auto comprueba = [](FormDriver& u) {
    EXPECT_THAT(detalles(u),
                ::testing::ElementsAre("Sanz Gil,  Eva", "---", "---", "---  //  ---", "---", "---",
                                       "---", "---", "---", "---", "---", "---"));
    u.escape();
  };
  w.verDetalles(eva, comprueba);
  w.actualizar(
      "INSERT INTO Padron_Nacimiento (CodPadron,FechaNacimiento,CodMunicipioNac,"
      "NombrePadre,NombreMadre) VALUES (" +
      std::to_string(eva) + ",\"\",98765,\"\",\"\")");
  w.verDetalles(eva, comprueba);
  EXPECT_SCRIPT_DONE(w.user);
}

struct MensajeWorld : BusquedaWorld {
  bool mostrar(cCOrigen origen, forms::ScriptedUser::Act act) {
    frmMensaje mensaje(contexto);
    mensaje.conBaseDatos = &con();
    mensaje.Origen = origen;
    mensaje.IDPadron = ana;
    user.expectForm("frmMensaje", std::move(act));
    mensaje.Show();
    return mensaje.blnImportar;
  }
};

TEST(FrmMensaje, DetailsThenImport_StaysForTheOneAndClosesForTheOther) {
  MensajeWorld w;
  const bool importar = w.mostrar(cCOrigen::PADRON, [&](FormDriver& u) {
    EXPECT_EQ(u.caption(), "Coincidencia de empadronado");
    EXPECT_EQ(u.text("lblMensaje"),
              "Se ha encontrado un empadronado con el mismo DNI que el que se pretende introducir. "
              "  Puede usted hacer click sobre el botón \"Detalles\" para ver los datos del "
              "empadronado  o por  el  contrario  puede  hacer click sobre el botón \"Importar\" "
              "para seleccionar sus datos.");
    w.user.expectForm("frmPadronDetalles", [](FormDriver& d) {
      EXPECT_EQ(d.text("txtDetalle(1)"), "12345678-Z");
      cerrarDetalles(d);
    });
    u.click("cmdMensaje(0)");
    EXPECT_FALSE(u.closed());
    u.click("cmdMensaje(1)");
  });
  EXPECT_TRUE(importar);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmMensaje, CancelledOrForACollaborator_ImportsNobody) {
  MensajeWorld w;
  EXPECT_FALSE(w.mostrar(cCOrigen::PADRON, [](FormDriver& u) { u.click("cmdMensaje(2)"); }));
  EXPECT_FALSE(w.mostrar(cCOrigen::COLABORADOR, [](FormDriver& u) {
    EXPECT_FALSE(u.enabled("cmdMensaje(0)"));
    EXPECT_FALSE(u.enabled("cmdMensaje(1)"));
    u.enter();
    u.escape();
  }));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmPadronImportar, NothingTypedOrNobodyFound_IsToldAndStays) {
  BusquedaWorld w;
  w.importar(cCOrigen::PADRON, [&](FormDriver& u) {
    EXPECT_EQ(u.caption(), "Importar");
    w.user.expectMessage("¡Debe introducir datos en algún campo!");
    u.enter();
    EXPECT_EQ(u.focused(), "txtNombre");
    // Nothing is trimmed.
    w.user.expectMessage("¡No se han encontrado coincidencias!");
    u.type("txtNombre", "Ana ");
    u.click("cmdPadronImportar(0)");
    u.click("cmdPadronImportar(1)");
  });
  EXPECT_EQ(w.user.beeps(), 2);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmPadronImportar, AllFields_AreJoinedInOneStatement) {
  BusquedaWorld w;
  FailingEngine* motor = FailingEngine::wrap(w.con());
  const std::int32_t elegido = w.importar(cCOrigen::PADRON, [&](FormDriver& u) {
    u.type("txtNombre", "Ana");
    u.type("txtPrimerApellido", "Gómez");
    u.type("txtSegundoApellido", "Ruiz");
    u.type("txtDNI", "12x34567890");
    EXPECT_EQ(u.text("txtDNI"), "12345678");
    w.user.expectForm("frmPadronBusqueda", [&](FormDriver& l) {
      EXPECT_EQ(l.get<forms::Grid>("msgBusquedaPadron").rowCount(), 1);
      EXPECT_EQ(l.text("lblBuscado"), "Ana Gómez Ruiz");
      EXPECT_EQ(dynamic_cast<frmPadronBusqueda&>(l.form()).Origen, cCOrigen::PADRON);
      l.click(SELECCIONAR);
    });
    u.click("cmdPadronImportar(0)");
    EXPECT_TRUE(u.closed());
  });
  EXPECT_EQ(elegido, w.ana);
  EXPECT_THAT(motor->executed(), Contains(HasSubstr("Nombre=? AND PrimerApellido=? AND "
                                                    "SegundoApellido=? AND DNI=?")));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmPadronImportar, DigitsAlone_AreSearchedWithTheirLetter) {
  BusquedaWorld w;
  const std::int32_t elegido = w.importar(cCOrigen::PADRON, [&](FormDriver& u) {
    u.type("txtDNI", "1");
    w.user.expectForm("frmPadronBusqueda", [&](FormDriver& l) {
      EXPECT_EQ(l.get<forms::Grid>("msgBusquedaPadron").rowKey(1), w.luis);
      l.click(CANCELAR_LISTA);
    });
    u.enter();
    EXPECT_TRUE(u.closed());
  });
  EXPECT_EQ(elegido, 0);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmPadronImportar, ForACollaborator_SearchesByNameAlone) {
  BusquedaWorld w;
  w.importar(cCOrigen::COLABORADOR, [&](FormDriver& u) {
    EXPECT_FALSE(u.enabled("txtDNI"));
    u.type("txtPrimerApellido", "gómez");
    w.user.expectForm("frmPadronBusqueda", [&](FormDriver& l) {
      EXPECT_EQ(l.get<forms::Grid>("msgBusquedaPadron").rowCount(), 3);
      EXPECT_EQ(dynamic_cast<frmPadronBusqueda&>(l.form()).Origen, cCOrigen::COLABORADOR);
      l.click(CANCELAR_LISTA);
    });
    u.enter();
  });
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmPadronImportar, QuotesAndApostrophes_AreSearchedAsTheyAreStored) {
  BusquedaWorld w;
  const std::int32_t maria = w.persona("María ''Mari''", "O'Shea", "Gil");
  const std::int32_t elegido = w.importar(cCOrigen::PADRON, [&](FormDriver& u) {
    u.paste("txtNombre", "María \"Mari\"");
    u.type("txtPrimerApellido", "O'Shea");
    w.user.expectForm("frmPadronBusqueda", [](FormDriver& l) { l.click(SELECCIONAR); });
    u.enter();
  });
  EXPECT_EQ(elegido, maria);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmPadronImportar, StoreFailing_IsReportedAndTheSearchCanBeTriedAgain) {
  BusquedaWorld w;
  FailingEngine* fallos = FailingEngine::wrap(w.con());
  fallos->failOn("SELECT * FROM Padron WHERE");
  w.user.answerAnything(forms::Answer::Ok);
  const std::int32_t elegido = w.importar(cCOrigen::PADRON, [&](FormDriver& u) {
    u.type("txtNombre", "Luis");
    u.enter();
    ASSERT_EQ(w.user.messages().size(), 1u);
    EXPECT_THAT(w.user.messages()[0].text,
                HasSubstr("frmPadronImportar / cmdPadronImportar_Click("));
    w.user.expectForm("frmPadronBusqueda", [](FormDriver& l) { l.click(SELECCIONAR); });
    u.enter();
  });
  EXPECT_EQ(elegido, w.luis);
  EXPECT_SCRIPT_DONE(w.user);
}

/// Three name fields that look for coincidences as the cards of people do.
struct FormNombres : forms::Form {
  FormNombres(Contexto& contexto, cCOrigen origen)
      : Form(contexto.ui(), "frmNombres"),
        nombre(*this, "nombre"),
        primero(*this, "primero"),
        segundo(*this, "segundo"),
        busca(contexto, nombre, primero, segundo, origen) {
    for (forms::TextBox* campo : {&nombre, &primero, &segundo})
      campo->onChange = [this] { busca.nombreCambiado(); };
  }
  void poner(const char* n, const char* p, const char* s) {
    nombre.setText(n);
    primero.setText(p);
    segundo.setText(s);
  }
  forms::TextBox nombre, primero, segundo;
  BuscaCoincidencias busca;
};

TEST(BuscaCoincidencias, SameName_IsShownOncePerChange) {
  BusquedaWorld w;
  FormNombres form(w.contexto, cCOrigen::PADRON);
  form.poner("Ana", "Gómez", "");
  EXPECT_EQ(form.busca.alSalir(w.con(), 0, true), 0);
  form.segundo.setText("Ruiz");
  w.user.expectForm("frmPadronBusqueda", [](FormDriver& u) {
    EXPECT_EQ(u.get<forms::Grid>("msgBusquedaPadron").rowCount(), 2);
    u.click(CANCELAR_LISTA);
  });
  EXPECT_EQ(form.busca.alSalir(w.con(), 0, true), 0);
  EXPECT_EQ(form.busca.alSalir(w.con(), 0, true), 0);
  form.busca.nombreCambiado();
  w.user.expectForm("frmPadronBusqueda", [](FormDriver& u) {
    u.row("msgBusquedaPadron", 1);
    u.click(SELECCIONAR);
  });
  EXPECT_EQ(form.busca.alSalir(w.con(), 0, true), w.ana);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(BuscaCoincidencias, PersonBeingEdited_IsLeftOutAndNobodyTakesTheirPlace) {
  BusquedaWorld w;
  FormNombres form(w.contexto, cCOrigen::COLABORADOR);
  form.poner("Ana", "Gómez", "Ruiz");
  w.user.expectForm("frmPadronBusqueda", [&](FormDriver& u) {
    EXPECT_EQ(u.get<forms::Grid>("msgBusquedaPadron").rowCount(), 1);
    EXPECT_EQ(u.get<forms::Grid>("msgBusquedaPadron").rowKey(1), w.otraAna);
    EXPECT_FALSE(u.enabled(SELECCIONAR));
    u.click(CANCELAR_LISTA);
  });
  EXPECT_EQ(form.busca.alSalir(w.con(), w.ana, false), 0);
  form.poner("Luis", "Gómez", "Sanz");
  EXPECT_EQ(form.busca.alSalir(w.con(), w.luis, false), 0);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(BuscaCoincidencias, NameOfOldDataWithAQuote_IsSearchedAsItIsStoredNow) {
  BusquedaWorld w;
  w.con().Execute("UPDATE Padron SET Nombre=\"Ana ''la Nena''\" WHERE IDPadron=" +
                  std::to_string(w.ana));
  FormNombres form(w.contexto, cCOrigen::PADRON);
  form.poner("Ana \"la Nena\"", "Gómez", "Ruiz");
  w.user.expectForm("frmPadronBusqueda", [](FormDriver& u) {
    EXPECT_EQ(u.get<forms::Grid>("msgBusquedaPadron").rowCount(), 1);
    u.click(CANCELAR_LISTA);
  });
  EXPECT_EQ(form.busca.alSalir(w.con(), 0, true), 0);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(BuscaCoincidencias, StoreFailing_ThrowsAndDoesNotNagOnTheNextField) {
  BusquedaWorld w;
  FormNombres form(w.contexto, cCOrigen::PADRON);
  form.poner("Ana", "Gómez", "Ruiz");
  FailingEngine::wrap(w.con())->failAlwaysOn("FROM Padron");
  EXPECT_THROW(form.busca.alSalir(w.con(), 0, true), store::Error);
  EXPECT_EQ(form.busca.alSalir(w.con(), 0, true), 0);
  EXPECT_SCRIPT_DONE(w.user);
}

}  // namespace
}  // namespace fidaleon::tests
