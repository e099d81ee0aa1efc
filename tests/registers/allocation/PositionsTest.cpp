#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "forms/Form.h"
#include "registers/allocation/ActualizacionFormato.h"
#include "registers/allocation/PosicionLibre.h"
#include "registers/allocation/PosicionPartida.h"
#include "store/FailingEngine.h"
#include "support/TestWorld.h"

namespace fidaleon {

void PrintTo(const Posicion& p, std::ostream* out);

namespace {

using FDAPI::cCOrigen;
using ::testing::HasSubstr;

/// A book of one sacrament and the entries in it.
class ConLibro : public ::testing::TestWithParam<std::size_t> {
 protected:
  const Sacramento& s = SACRAMENTOS.at(GetParam());
  tests::TestWorld mundo;
  std::int32_t sanJuan = mundo.institucion("San Juan");
  std::int32_t libro = 0;

  void crear(int formato, bool nuevo = false) {
    mundo.con().Execute(std::string("INSERT into ") + s.tablaLibros +
                        " (codinstitucion, codFormato, codTipoNombre, nombre, fechacreacion, "
                        "Nuevo, Cerrado, NumeroSiguiente, FolioSiguiente) values (" +
                        std::to_string(sanJuan) + ", " + std::to_string(formato) +
                        ", 4, \"El libro\", \"20200101\", " + (nuevo ? "1" : "0") + ", 0, 1, 1)");
    libro = std::stoi(
        mundo.value(std::string("SELECT MAX(") + s.claveLibro + ") AS ID FROM " + s.tablaLibros));
  }
  /// "1/1 1/2" become entries; a book of its own number keeps them apart from others.
  void partidas(const std::string& texto) {
    std::istringstream in(texto);
    for (std::string p; in >> p;)
      mundo.con().Execute(std::string("INSERT INTO ") + s.tablaPartidas +
                          " (codlibro, folio, numero) VALUES (" + std::to_string(libro) + ", " +
                          p.substr(0, p.find('/')) + ", \"" + p.substr(p.find('/') + 1) + "\")");
  }
  void contadores(const std::string& p) {
    mundo.con().Execute(std::string("UPDATE ") + s.tablaLibros +
                        " SET FolioSiguiente=" + p.substr(0, p.find('/')) + ", NumeroSiguiente=\"" +
                        p.substr(p.find('/') + 1) + "\"");
  }
  std::string contadores() {
    const store::Recordset fila =
        mundo.con().Execute(std::string("SELECT * FROM ") + s.tablaLibros);
    return fila.text("FolioSiguiente") + "/" + fila.text("NumeroSiguiente");
  }
  std::string actualizar() {
    salto = false;
    actualizacionFormato(mundo.con(), s, libro, salto);
    return contadores();
  }
  std::string libre(std::optional<double> limite = {}) {
    const auto p = primeraPosicionLibre(mundo.con(), s, sanJuan, "El libro", limite);
    return p ? std::to_string(p->posicion.folio) + "/" + p->posicion.numero : "ninguna";
  }
  bool salto = false;
};

std::string palabra(const ::testing::TestParamInfo<std::size_t>& p) {
  return SACRAMENTOS.at(p.param).palabra;
}

class Contadores : public ConLibro {};
INSTANTIATE_TEST_SUITE_P(Sacramentos, Contadores, ::testing::Range<std::size_t>(0, 4), palabra);

TEST_P(Contadores, folioOfFour_isFilledBeforeTheNext) {
  crear(1);
  partidas("1/1");
  // The number of a folio begun is that of the folio before, moved past those taken.
  EXPECT_EQ(actualizar(), "1/2");
  EXPECT_FALSE(salto);
  partidas("1/2 1/3 1/4");
  EXPECT_EQ(actualizar(), "2/5");
  EXPECT_FALSE(salto) << "the folio that was being filled is full";
}

TEST_P(Contadores, emptyFolioInBetween_isNext) {
  crear(1);
  partidas("1/1 1/2 1/3 1/4 3/9 3/10 3/11 3/12");
  EXPECT_EQ(actualizar(), "2/5");
}

TEST_P(Contadores, folioOfTwo_offersTheNumberEvenWhenItIsTaken) {
  crear(2);
  partidas("1/1 1/2 2/3");
  EXPECT_EQ(actualizar(), "2/3");
}

TEST_P(Contadores, firstFolioEmpty_countsFromNothing) {
  crear(4);
  partidas("2/7 2/8");
  EXPECT_EQ(actualizar(), "1/1");
}

TEST_P(Contadores, oneEntryPerFolio_goesOnBehindTheFirstRun) {
  crear(3);
  partidas("3/1 4/2 7/5");
  contadores("5/3");
  EXPECT_EQ(actualizar(), "5/3");
  EXPECT_FALSE(salto);
  partidas("5/3 6/4");
  EXPECT_EQ(actualizar(), "8/6");
  EXPECT_TRUE(salto) << "the counters stood on folio 5";
}

TEST_P(Contadores, jump_isTheFolioThatTheCountersDidNotLeadTo) {
  crear(2);
  partidas("1/1 1/2 2/3 2/4");
  contadores("2/4");
  EXPECT_EQ(actualizar(), "3/5");
  EXPECT_FALSE(salto);
  contadores("7/1");
  actualizar();
  EXPECT_TRUE(salto);
}

TEST_P(Contadores, emptyBookOrUnknownFormat_keepsItsCounters) {
  crear(2);
  contadores("6/8");
  EXPECT_EQ(actualizar(), "6/8");
  mundo.con().Execute(std::string("UPDATE ") + s.tablaLibros + " SET CodFormato=9");
  partidas("1/1");
  EXPECT_EQ(actualizar(), "6/8");
}

class Subida : public ConLibro {};
INSTANTIATE_TEST_SUITE_P(Sacramentos, Subida, ::testing::Range<std::size_t>(0, 4), palabra);

TEST_P(Subida, afterADeletion_climbsToTheFirstFreePosition) {
  crear(1);
  partidas("1/1 1/2 1/3 1/4 2/5 2/6 2/6a 2/7 3/8");
  EXPECT_EQ(libre(), "3/9");
  EXPECT_EQ(contadores(), "3/9");
  partidas("3/9 3/12bis");
  EXPECT_EQ(libre(), "3/13");
}

TEST_P(Subida, tooManySteps_giveUpAndKeepWhatWasClimbed) {
  crear(3);
  std::string todas;
  for (int i = 1; i <= 20; ++i) todas += std::to_string(i) + "/" + std::to_string(i) + " ";
  partidas(todas);
  EXPECT_EQ(libre(2), "ninguna");
  EXPECT_EQ(contadores(), "10/10") << "twice four steps and the one that exceeded them";
  EXPECT_EQ(libre(2), "ninguna");
  EXPECT_EQ(libre(2), "21/21") << "the counters go on from where they stood";
}

TEST_P(Subida, capacityThatIsNotHandled_givesUpAtOnce) {
  crear(2);
  mundo.con().Execute("UPDATE Libros_Formato SET Partidas_Folio=3 WHERE IDFormato=2");
  partidas("1/1");
  EXPECT_EQ(libre(), "ninguna");
}

TEST_P(Subida, storeThatFailsHalfWay_leavesTheCountersAsLastWritten) {
  crear(3);
  partidas("1/1 2/2 3/3 4/4");
  auto* fallos = store::FailingEngine::wrap(mundo.con());
  fallos->failOn("update libro", store::ErrorKind::Busy, 3);
  EXPECT_THROW(libre(), store::Error);
  EXPECT_EQ(contadores(), "3/3");
  EXPECT_FALSE(mundo.con().inTransaction());
}

/// The part of an entry dialog that the routines work on.
struct Dialogo : forms::Form {
  explicit Dialogo(forms::UserInterface& ui)
      : Form(ui, "dialogo"),
        institucion(*this, "cboBautismo(22)"),
        libro(*this, "cboBautismo(23)"),
        folio(*this, "txtLibro(1)"),
        numero(*this, "txtLibro(2)"),
        pestanas(*this, "mstBautismo", {"Libro", "Niño"}),
        aviso(*this, "lblNumeroRepetido") {
    setLayout(forms::tabs(pestanas, {forms::page({forms::item(institucion), forms::item(libro),
                                                  forms::item(folio), forms::item(numero)}),
                                     forms::page({})}));
  }
  forms::ComboBox institucion;
  forms::ComboBox libro;
  forms::TextBox folio;
  forms::TextBox numero;
  forms::TabStrip pestanas;
  forms::Label aviso;
};

class EnDialogo : public ConLibro {
 protected:
  Dialogo dialogo{mundo.user};
  std::vector<Posicion> lista;
  PosicionPartida posicion{mundo.contexto,
                           s,
                           {dialogo.institucion, dialogo.libro, dialogo.folio, dialogo.numero,
                            dialogo.pestanas, dialogo.aviso, [this] { return lista; }}};

  void abrir(int formato, bool nuevo, cCOrigen origen = cCOrigen::PRINCIPAL) {
    crear(formato, nuevo);
    dialogo.institucion.addItem("San Juan", sanJuan);
    dialogo.libro.addItem("El libro", libro);
    dialogo.institucion.setListIndex(0);
    dialogo.libro.setListIndex(0);
    posicion.abrir(mundo.con(), origen);
  }
  std::string campos() { return dialogo.folio.text() + "/" + dialogo.numero.text(); }
  std::string rellenar() {
    posicion.RellenarFolioyNumero();
    return campos();
  }
  void teclear(const std::string& folio, const std::string& numero) {
    dialogo.folio.setText(folio);
    dialogo.numero.setText(numero);
    dialogo.pestanas.setTab(1);
  }
  void limite(const std::string& folios) {
    mundo.settings.write("Fidaleon", "ana\\Castellano\\documentos", "DOCUMENTOS_MAXPAGLIBRO",
                         folios);
  }
};
INSTANTIATE_TEST_SUITE_P(Sacramentos, EnDialogo, ::testing::Range<std::size_t>(0, 4), palabra);

TEST_P(EnDialogo, newBook_isFilledByTheTestForOneRow) {
  abrir(2, true);
  for (const char* p : {"1/1", "1/2", "2/3", "2/4", "3/5"}) {
    EXPECT_EQ(rellenar(), p);
    partidas(p);
  }
  EXPECT_FALSE(dialogo.institucion.locked());
}

TEST_P(EnDialogo, newBookOfOnePerFolio_goesOnePerEntry) {
  abrir(3, true);
  partidas("1/1 2/2");
  mundo.con().Execute(std::string("UPDATE ") + s.tablaPartidas + " SET Anulada=1");
  EXPECT_EQ(rellenar(), "3/3") << "annulled entries keep their places";
}

TEST_P(EnDialogo, fromTheList_listsAreLockedAndTheListDecides) {
  abrir(2, false, origenLista(s));
  EXPECT_EQ(rellenar(), "1/1");
  EXPECT_TRUE(dialogo.institucion.locked());
  EXPECT_TRUE(dialogo.libro.locked());
  lista = {{1, "1"}, {1, "2"}, {2, "3"}};
  posicion.ComprobarFolioyNumeroAntiguas();
  EXPECT_EQ(campos(), "2/4");
  lista.clear();
  posicion.CalcularColeccionFolioyNumero(libro);
  EXPECT_EQ(campos(), "1/1");
}

TEST_P(EnDialogo, newBookFromTheList_goesForwardExceptInMenorca) {
  abrir(2, true, origenLista(s));
  lista = {{1, "1"}};
  posicion.CalcularColeccionFolioyNumero(libro);
  EXPECT_EQ(campos(), "2/2");
  mundo.entorno.installation.Aplicacion = FDAPI::cCAplicacion::APP_FIDALEON_MENORCA;
  posicion.CalcularColeccionFolioyNumero(libro);
  EXPECT_EQ(campos(), "1/2");
}

TEST_P(EnDialogo, pastThePageLimit_warnsShowsTheNumberAndRefuses) {
  abrir(3, true);
  partidas("1/1 2/2");
  limite("3");
  EXPECT_EQ(rellenar(), "3/3");
  EXPECT_FALSE(posicion.limiteSuperado());
  limite("2");
  dialogo.pestanas.setTab(1);
  mundo.user.expectMessage("¡Ha llegado al límite de folios establecidos para un libro!");
  EXPECT_EQ(rellenar(), "3/3");
  EXPECT_TRUE(posicion.limiteSuperado());
  EXPECT_EQ(dialogo.pestanas.tab(), 0);
  EXPECT_EQ(mundo.user.beeps(), 1);
  limite("");
  rellenar();
  EXPECT_FALSE(posicion.limiteSuperado());
  EXPECT_SCRIPT_DONE(mundo.user);
}

TEST_P(EnDialogo, fullFolio_sendsBackToTheFolio) {
  abrir(3, false);
  partidas("7/7");
  teclear("7", "8");
  mundo.user.expectMessage(
      "¡No puede introducir ninguna partida en el folio 7 porque ya tiene una partida!");
  EXPECT_FALSE(posicion.comprobarPosicionTecleada());
  EXPECT_EQ(dialogo.pestanas.tab(), 0);
  EXPECT_EQ(dialogo.activeControl(), &dialogo.folio);
  teclear("8", "7");
  EXPECT_TRUE(posicion.comprobarPosicionTecleada()) << "numbers are not looked at in this format";
  EXPECT_SCRIPT_DONE(mundo.user);
}

TEST_P(EnDialogo, takenNumber_isReplacedWhenTheUserAgrees) {
  abrir(1, false);
  partidas("3/12 3/12a");
  const std::string pregunta =
      std::string("La partida que va a introducir coincide con otra. El numero se ") +
      (GetParam() == 3 ? "reemplazara" : "reemplazará") + " por el 12b ¿Desea continuar?";
  teclear("3", "12");
  mundo.user.expectMessage(pregunta, forms::Answer::No);
  EXPECT_FALSE(posicion.comprobarPosicionTecleada());
  EXPECT_EQ(campos(), "3/12");
  EXPECT_EQ(dialogo.activeControl(), &dialogo.folio);
  teclear("3", "12a");
  mundo.user.expectMessage(pregunta, forms::Answer::Yes);
  EXPECT_TRUE(posicion.comprobarPosicionTecleada());
  EXPECT_EQ(campos(), "3/12b");
  EXPECT_EQ(dialogo.pestanas.tab(), 1);
  EXPECT_EQ(mundo.user.messages()[0].title, "Fidaleon2000");
  EXPECT_SCRIPT_DONE(mundo.user);
}

TEST_P(EnDialogo, numberThatStandsInTheBook_isSaidWithItsFolios) {
  abrir(1, false);
  partidas("3/10 5/10 4/10a");
  const auto aviso = [&](const char* numero) {
    teclear("7", numero);
    posicion.avisarNumeroRepetido(0);
    return dialogo.aviso.visible() ? dialogo.aviso.caption() : "";
  };
  EXPECT_EQ(aviso("10"), "El 10 ya está en los folios 3 y 5");
  EXPECT_EQ(aviso("10A"), "El 10A ya está en el folio 4");
  EXPECT_EQ(aviso("11"), "");
  EXPECT_EQ(aviso(""), "");
  posicion.abrir(mundo.con(), origenLista(s));
  lista = {{2, "11"}};
  EXPECT_EQ(aviso("11"), "El 11 ya está en el folio 2");
  EXPECT_EQ(aviso("10"), "") << "the list knows better than the table";
}

TEST_P(EnDialogo, freePositionOrNothingChosen_passesWithoutAWord) {
  abrir(2, false);
  partidas("1/1 2/1");
  teclear("1", "2");
  EXPECT_TRUE(posicion.comprobarPosicionTecleada());
  teclear("", "1");
  EXPECT_TRUE(posicion.comprobarPosicionTecleada());
  dialogo.libro.setListIndex(-1);
  teclear("1", "1");
  EXPECT_TRUE(posicion.comprobarPosicionTecleada());
  EXPECT_SCRIPT_DONE(mundo.user);
}

TEST_P(EnDialogo, jump_isToldOnce) {
  abrir(2, false);
  teclear("3", "6");
  posicion.avisarSalto({3, "5"});
  mundo.user.expectMessage(mensajeSalto(s, {5, "9"}));
  teclear("5", "9");
  posicion.avisarSalto({3, "5"});
  EXPECT_SCRIPT_DONE(mundo.user);
}

}  // namespace
}  // namespace fidaleon
