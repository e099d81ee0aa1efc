// Moving requests into a book, in every register that has any.

#include "core/contract/FDAPI.h"
#include "registers/Rows.h"
#include "registers/requests/EliminarSolicitud.h"
#include "registers/requests/frmSolicitudes.h"
#include "store/FailingEngine.h"
#include "store/schema/Schema.h"

namespace fidaleon::tests {

struct Requests {
  const Sacramento& s;
  cCOrigen origin;
  const char* caption;
  const char* detailsCaption;
  int line;  // of the details, and what stands there
  const char* label;
  const char* text;
  const char* bride = "";
};

class MovedRequests : public ::testing::TestWithParam<Requests> {
 protected:
  std::int32_t book(bool isNew, int format, bool closed = false) {
    return insertBook(w, s, parish, {"Libro 1", isNew, format, closed});
  }
  std::int32_t request(const std::string& name, std::int32_t institution) {
    return insertEntry(w, s, {name, 0, 0, "---", institution, {}});
  }
  static std::string listed(const std::string& name) {
    return name + " García Pérez" + GetParam().bride;
  }
  /// In the tables of the register.
  std::string sql(const PlantillaSql& text) const { return sentencia(s, text); }
  void open(Act act, std::int32_t chosen = 0) {
    w.user.expectForm("frmSolicitudes", std::move(act));
    frmSolicitudes dialog(w.contexto);
    dialog.conBaseDatos = &w.con();
    dialog.Origen = GetParam().origin;
    dialog.elegida = chosen;
    dialog.Show();
  }
  static void choose(FormDriver& d) {
    d.choose("cboInstitucion", "San Pedro");
    d.tab("mstSolicitudes", 1);
  }
  static std::vector<std::string> lines(FormDriver& d, const char* list) {
    auto& box = d.get<forms::ListBox>(list);
    std::vector<std::string> all;
    for (int i = 0; i < box.listCount(); ++i) all.push_back(box.list(i));
    return all;
  }
  static void mark(FormDriver& d, const char* list, std::initializer_list<int> rows) {
    d.focus(list);
    auto& box = d.get<forms::ListBox>(list);
    for (int i = 0; i < box.listCount(); ++i) box.setSelected(i, false);
    for (const int row : rows) box.setSelected(row, true);
  }
  static void moveAll(FormDriver& d) {
    choose(d);
    d.click("cmdMover(1)");
    d.click("cmdBoton(0)");
  }
  /// "folio/number" of the book, in the order of the keys.
  std::vector<std::string> inBook(std::int32_t libro) {
    std::vector<std::string> rows;
    for (auto rs = w.con().Execute(sql("SELECT Folio, Numero FROM {Partidas} WHERE CodLibro = ") +
                                   std::to_string(libro) + sql(" ORDER BY {IDPartida}"));
         !rs.EOF_(); rs.MoveNext())
      rows.push_back(rs.text("Folio") + "/" + rs.text("Numero"));
    return rows;
  }
  std::int64_t outside() { return w.count(sql("{Partidas} WHERE codlibro=0")); }

  const Sacramento& s = GetParam().s;
  TestWorld w;
  std::int32_t parish = w.institucion("San Pedro", w.municipio("Alcalá de Henares", "Madrid"));
};

TEST_P(MovedRequests, ThreeOfFour_TakeTheNextPositionsAndKeepTheirKeys) {
  const std::int32_t libro = book(true, 3);
  const std::int32_t luis = request("Luis", parish);
  for (const char* name : {"Eva", "Ana", "Blas"}) request(name, parish);
  request("De otra", w.institucion("Santa Ana"));
  open([&](FormDriver& d) {
    EXPECT_EQ(d.caption(), GetParam().caption);
    choose(d);
    EXPECT_THAT(lines(d, "lstSolicitudes(0)"),
                ElementsAre(listed("Luis"), listed("Eva"), listed("Ana"), listed("Blas")));
    mark(d, "lstSolicitudes(0)", {0, 2});
    d.click("cmdMover(0)");
    d.click("cmdMover(1)");
    mark(d, "lstSolicitudes(1)", {2});
    d.click("cmdMover(2)");
    EXPECT_THAT(lines(d, "lstSolicitudes(0)"), ElementsAre(listed("Eva")));
    d.click("cmdBoton(0)");
    EXPECT_TRUE(d.closed());
  });
  EXPECT_THAT(inBook(libro), ElementsAre("1/1", "2/2", "3/3"));
  EXPECT_EQ(w.count(sql("{Partidas} WHERE InstitucionSolicitud=0 AND {IDPartida}=") +
                    std::to_string(luis) + " AND codlibro=" + std::to_string(libro)),
            1);
  EXPECT_EQ(outside(), 2);
  EXPECT_EQ(w.user.hourglassDepth(), 0);
}

TEST_P(MovedRequests, Positions_FollowTheLastRowOfTheLastFolio) {
  // Capacity four: a folio with one entry takes a second, one with any other count none.
  const std::int32_t libro = book(true, 1);
  insertEntry(w, s, {"Primero", libro, 3, "12"});
  insertEntry(w, s, {"Segundo", libro, 2, "40"});
  for (const char* name : {"Luis", "Eva"}) request(name, parish);
  w.con().Execute(sql("UPDATE {Libros} SET FolioSiguiente=9"));
  w.settings.write("Fidaleon", "ana\\Castellano\\documentos", "DOCUMENTOS_MAXPAGLIBRO", "1");
  open(moveAll);
  EXPECT_THAT(inBook(libro), ElementsAre("3/12", "2/40", "3/41", "4/42"));
  EXPECT_EQ(w.value(sql("SELECT FolioSiguiente FROM {Libros}")), "9");
}

TEST_P(MovedRequests, InstitutionsWithoutBookOrRequests_AreRefused) {
  book(false, 1);
  request("Luis", parish);
  const std::int32_t other = w.institucion("Santa Ana");
  insertBook(w, s, other);
  open([&](FormDriver& d) {
    w.user.expectMessage("¡Tiene que elegir una Institución para ver las solicitudes!");
    d.tab("mstSolicitudes", 1);
    w.user.expectMessage("¡Esta Institución no tiene un libro nuevo abierto. Elija otra!");
    d.choose("cboInstitucion", "San Pedro");
    EXPECT_EQ(d.text("cboInstitucion"), "");
    w.user.expectMessage("¡Esta Institución no tiene solicitudes para importar. Elija otra!");
    d.choose("cboInstitucion", "Santa Ana");
    w.user.expectMessage("¡Debe seleccionar una Institución!");
    d.click("cmdBoton(0)");
    d.escape();
  });
  EXPECT_EQ(w.user.beeps(), 4);
}

TEST_P(MovedRequests, NothingChosenOrBookClosed_MovesNothing) {
  book(true, 3, true);
  request("Luis", parish);
  open([&](FormDriver& d) {
    choose(d);
    w.user.expectMessage("¡Debe seleccionar al menos una solicitud!");
    d.click("cmdBoton(0)");
    d.click("cmdMover(3)");
    d.click("cmdMover(2)");
    d.click("cmdMover(0)");
    EXPECT_EQ(lines(d, "lstSolicitudes(0)").size(), 1u);
    d.click("cmdMover(1)");
    w.user.expectMessage("¡No tiene ningún libro nuevo abierto!");
    d.click("cmdBoton(0)");
    EXPECT_EQ(w.user.messages().back().icon, forms::MsgIcon::Information);
    d.click("cmdBoton(1)");
  });
  EXPECT_EQ(outside(), 1);
}

TEST_P(MovedRequests, Details_AreThoseOfTheMarkedRequest) {
  book(true, 3);
  const std::int32_t luis = request("Luis", parish);
  open(
      [&](FormDriver& d) {
        EXPECT_EQ(lines(d, "lstSolicitudes(1)").size(), 1u) << "the one chosen in the list";
        d.click("cmdBoton(1)");
      },
      luis);
  open([&](FormDriver& d) {
    choose(d);
    d.click("cmdDetalles");  // none marked
    mark(d, "lstSolicitudes(0)", {0});
    const auto look = [](FormDriver& details) {
      const std::string line = "(" + std::to_string(GetParam().line) + ")";
      EXPECT_EQ(details.caption(), GetParam().detailsCaption);
      EXPECT_EQ(details.text("lblDetalle" + line), GetParam().label);
      EXPECT_EQ(details.text("txtDetalle" + line), GetParam().text);
      details.escape();
    };
    w.user.expectForm("frmDetallePadres", look);
    d.click("cmdDetalles");
    d.click("cmdMover(0)");
    mark(d, "lstSolicitudes(1)", {0});
    w.user.expectForm("frmDetallePadres", look);
    d.click("cmdDetalles");
    d.click("cmdBoton(1)");
  });
}

TEST_P(MovedRequests, FailureInTheMiddle_KeepsWhatWasMovedAndOffersTheRest) {
  const std::int32_t libro = book(true, 3);
  for (const char* name : {"Luis", "Eva", "Ana"}) request(name, parish);
  auto* faults = store::FailingEngine::wrap(w.con());
  w.user.answerAnything(Answer::Ok);
  open([&](FormDriver& d) {
    faults->failOn(sql("SELECT {IDLibro}, CodFormato"), store::ErrorKind::Busy, 2);
    moveAll(d);
    EXPECT_THAT(inBook(libro), IsEmpty()) << "whether it is open is asked again under the lock";
    faults->failOn(sql("UPDATE {Partidas} SET InstitucionSolicitud"), store::ErrorKind::Busy, 2);
    d.click("cmdBoton(0)");
    EXPECT_THAT(w.user.messages().back().text, HasSubstr("cmdBoton_Click"));
    EXPECT_THAT(inBook(libro), ElementsAre("1/1"));
    EXPECT_THAT(lines(d, "lstSolicitudes(1)"), ElementsAre(listed("Eva"), listed("Ana")));
    faults->failOn("MAX(CInt(Numero))");
    d.click("cmdBoton(0)");
    EXPECT_THAT(w.user.messages().back().text, HasSubstr(sql("CalcularFolioyNumero{Palabra}")));
    d.click("cmdBoton(0)");
    EXPECT_TRUE(d.closed());
  });
  EXPECT_THAT(inBook(libro), ElementsAre("1/1", "2/2", "3/3"));
}

TEST_P(MovedRequests, MovedMeanwhileByAnother_KeepsItsPosition) {
  const std::int32_t libro = book(true, 3);
  const std::int32_t luis = request("Luis", parish);
  request("Eva", parish);
  open([&](FormDriver& d) {
    choose(d);
    d.click("cmdMover(1)");
    w.con().Execute(sql("UPDATE {Partidas} SET CodLibro=") + std::to_string(libro) +
                    sql(", Folio=7, Numero=\"7\" WHERE {IDPartida}=") + std::to_string(luis));
    w.user.expectMessage("¡La solicitud de " + listed("Luis") +
                         " ya no existe o ya está en un libro!");
    d.click("cmdBoton(0)");
    EXPECT_TRUE(d.closed());
  });
  EXPECT_THAT(inBook(libro), ElementsAre("7/7", "8/8"));
}

TEST_P(MovedRequests, BookOpenElsewhere_NothingIsMoved) {
  const std::int32_t libro = book(true, 3);
  request("Luis", parish);
  const auto other = w.otherHolds(s.tablaLibros, libro);
  w.user.answerAnything(Answer::Ok);
  open([&](FormDriver& d) {
    moveAll(d);
    EXPECT_EQ(w.user.messages().size(), 1u);
    EXPECT_FALSE(d.closed());
    d.click("cmdBoton(1)");
  });
  EXPECT_THAT(inBook(libro), IsEmpty());
}

TEST_P(MovedRequests, Deleted_GoesWithAllItsRowsAndTouchesNoBook) {
  book(true, 3);
  const std::int32_t luis = request("Luis", parish);
  request("Eva", parish);
  w.con().Execute(sql("UPDATE {Libros} SET FolioSiguiente=9"));
  eliminarSolicitud(w.contexto, w.con(), luis, s);
  for (const store::Table& t : w.con().schema().tables()) {
    // The answers of an examination have rows of their own, and only where there are any.
    if (!t.name().starts_with(s.tablaPartidas) || t.name().ends_with("_Cursos")) continue;
    EXPECT_EQ(w.count(t.name()), 1) << t.name();
  }
  EXPECT_EQ(w.value(sql("SELECT FolioSiguiente FROM {Libros}")), "9");
}

INSTANTIATE_TEST_SUITE_P(
    Registers, MovedRequests,
    ::testing::Values(Requests{BAUTISMO, cCOrigen::LISTAPARTIDASBAUTISMO, "Solicitudes de bautismo",
                               "Detalles de la solicitud de bautismo.", 4,
                               "Matrimonio:", "Se casaron el día 06/06/1998 en San Juan"},
                      Requests{CONFIRMACION, cCOrigen::LISTAPARTIDASCONFIRMACION,
                               "Solicitudes de confirmación",
                               "Detalles de la solicitud de confirmación.", 4,
                               "Datos del libro de bautismo:", "Aún no consta en qué libro está."},
                      Requests{MATRIMONIO, cCOrigen::LISTAPARTIDASMatrimonio,
                               "Solicitudes de matrimonio",
                               "Detalles de la solicitud de matrimonio.", 0,
                               "Nombre, DNI y fecha de nacimiento del novio:",
                               "Luis García Pérez, DNI 12345678-Z, nacido el día 01/05/1999",
                               " Y Rosa García Pérez"}),
    [](const auto& p) { return std::string(p.param.s.palabra); });

}  // namespace fidaleon::tests
