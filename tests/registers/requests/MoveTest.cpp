// Moving requests of baptism into a book.

#include "registers/BaptismWorld.h"
#include "registers/requests/frmSolicitudes.h"

namespace fidaleon::tests {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class MovedRequests : public BaptismWorld {
 protected:
  std::int32_t request(const std::string& name, std::int32_t institution) {
    cBautismo b = record(name, 0, 0, "---");
    b.CodInstitucionBautismo = static_cast<std::uint8_t>(institution);
    b.Operacion = cCOperacion::ANADIRSOLICITUD;
    return store(b);
  }
  void open(forms::ScriptedUser::Act act) {
    w.user.expectForm("frmSolicitudes", std::move(act));
    frmSolicitudes dialog(w.contexto);
    dialog.conBaseDatos = &w.con();
    dialog.Origen = cCOrigen::LISTAPARTIDASBAUTISMO;
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
  /// "folio/number name" of the book, in the order of the keys.
  std::vector<std::string> inBook(std::int32_t libro) {
    std::vector<std::string> rows;
    for (auto rs = w.con().Execute(
             "SELECT Folio, Numero, Nombre FROM Bautismo, Bautismo_Hijo WHERE CodBautismo = "
             "IDBautismo AND CodLibro = " +
             std::to_string(libro) + " ORDER BY IDBautismo");
         !rs.EOF_(); rs.MoveNext())
      rows.push_back(rs.text("Folio") + "/" + rs.text("Numero") + " " + rs.text("Nombre"));
    return rows;
  }
};

TEST_F(MovedRequests, ThreeOfFour_TakeTheNextPositionsAndKeepTheirKeys) {
  const std::int32_t libro = book("Libro 1", true, 3);
  const std::int32_t luis = request("Luis", parish);
  for (const char* name : {"Eva", "Ana", "Blas"}) request(name, parish);
  request("De otra", w.institucion("Santa Ana", town));
  open([&](FormDriver& d) {
    EXPECT_EQ(d.caption(), "Solicitudes de bautismo");
    choose(d);
    EXPECT_THAT(lines(d, "lstSolicitudes(0)"),
                ElementsAre("Luis García Pérez", "Eva García Pérez", "Ana García Pérez",
                            "Blas García Pérez"));
    mark(d, "lstSolicitudes(0)", {0, 2});
    d.click("cmdMover(0)");
    d.click("cmdMover(1)");
    mark(d, "lstSolicitudes(1)", {2});
    d.click("cmdMover(2)");
    EXPECT_THAT(lines(d, "lstSolicitudes(0)"), ElementsAre("Eva García Pérez"));
    d.click("cmdBoton(0)");
    EXPECT_TRUE(d.closed());
  });
  EXPECT_THAT(inBook(libro), ElementsAre("1/1 Luis", "2/2 Ana", "3/3 Blas"));
  EXPECT_EQ(column(luis, "InstitucionSolicitud"), "0");
  EXPECT_EQ(column(luis, "codlibro"), std::to_string(libro));
  EXPECT_EQ(w.count("bautismo WHERE codlibro=0"), 2);
  EXPECT_EQ(w.count("bautismo_padres"), 5) << "no rows are made";
  EXPECT_EQ(w.user.hourglassDepth(), 0);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(MovedRequests, Positions_FollowTheLastRowOfTheLastFolio) {
  // Capacity four: a folio with one entry takes a second, one with any other count none.
  const std::int32_t libro = book("Libro 1", true, 1);
  store(record("Primero", libro, 3, "12"));
  store(record("Segundo", libro, 2, "40"));
  for (const char* name : {"Luis", "Eva"}) request(name, parish);
  w.con().Execute("UPDATE Libro_Bautismo SET FolioSiguiente=9");
  w.settings.write("Fidaleon", "ana\\Castellano\\documentos", "DOCUMENTOS_MAXPAGLIBRO", "1");
  open(moveAll);
  EXPECT_THAT(inBook(libro), ElementsAre("3/12 Primero", "2/40 Segundo", "3/41 Luis", "4/42 Eva"));
  EXPECT_EQ(column(libro, "FolioSiguiente", "Libro_Bautismo", "IDLibroBautismo"), "9");
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(MovedRequests, InstitutionsWithoutBookOrRequests_AreRefused) {
  book("Viejo", false, 1);
  request("Luis", parish);
  const std::int32_t other = w.institucion("Santa Ana", town);
  w.con().Execute(
      "INSERT INTO Libro_Bautismo (codinstitucion, codFormato, codTipoNombre, nombre, "
      "fechacreacion, Nuevo, Cerrado, NumeroSiguiente, FolioSiguiente) VALUES (" +
      std::to_string(other) + ", 3, 4, \"L\", \"20200101\", 1, 0, 1, 1)");
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
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(MovedRequests, NothingChosenOrBookClosed_MovesNothing) {
  book("Cerrado", true, 3, "19900101", true);
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
  EXPECT_EQ(w.count("bautismo WHERE codlibro=0"), 1);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(MovedRequests, Details_ShowTheFamilyOfTheMarkedRequest) {
  book("Libro 1", true, 3);
  cBautismo b = record("Luis", 0, 0, "---");
  b.CodInstitucionBautismo = static_cast<std::uint8_t>(parish);
  b.Operacion = cCOperacion::ANADIRSOLICITUD;
  b.FechaMatrMatrimonio = "19980606";
  store(b);
  open([&](FormDriver& d) {
    choose(d);
    d.click("cmdDetalles");  // none marked
    mark(d, "lstSolicitudes(0)", {0});
    const auto look = [](FormDriver& details) {
      EXPECT_EQ(details.caption(), "Detalles de la solicitud de bautismo.");
      EXPECT_EQ(details.text("lblDetalle(2)"), "Abuelos paternos:");
      EXPECT_EQ(details.text("txtDetalle(4)"), "Se casaron el día 06/06/1998 en San Juan");
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
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(MovedRequests, FailureInTheMiddle_KeepsWhatWasMovedAndOffersTheRest) {
  const std::int32_t libro = book("Libro 1", true, 3);
  for (const char* name : {"Luis", "Eva", "Ana"}) request(name, parish);
  auto* faults = store::FailingEngine::wrap(w.con());
  w.user.answerAnything(Answer::Ok);
  open([&](FormDriver& d) {
    faults->failOn("SELECT IDLibroBautismo, CodFormato", store::ErrorKind::Busy, 2);
    moveAll(d);
    EXPECT_THAT(inBook(libro), IsEmpty()) << "whether it is open is asked again under the lock";
    faults->failOn("UPDATE Bautismo SET InstitucionSolicitud", store::ErrorKind::Busy, 2);
    d.click("cmdBoton(0)");
    EXPECT_THAT(w.user.messages().back().text, HasSubstr("cmdBoton_Click"));
    EXPECT_THAT(inBook(libro), ElementsAre("1/1 Luis"));
    EXPECT_THAT(lines(d, "lstSolicitudes(1)"), ElementsAre("Eva García Pérez", "Ana García Pérez"));
    faults->failOn("MAX(CInt(Numero))");
    d.click("cmdBoton(0)");
    EXPECT_THAT(w.user.messages().back().text, HasSubstr("CalcularFolioyNumeroBautismo"));
    d.click("cmdBoton(0)");
    EXPECT_TRUE(d.closed());
  });
  EXPECT_THAT(inBook(libro), ElementsAre("1/1 Luis", "2/2 Eva", "3/3 Ana"));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(MovedRequests, MovedMeanwhileByAnother_KeepsItsPosition) {
  const std::int32_t libro = book("Libro 1", true, 3);
  const std::int32_t luis = request("Luis", parish);
  request("Eva", parish);
  open([&](FormDriver& d) {
    choose(d);
    d.click("cmdMover(1)");
    w.con().Execute("UPDATE Bautismo SET CodLibro=" + std::to_string(libro) +
                    ", Folio=7, Numero=\"7\" WHERE IDBautismo=" + std::to_string(luis));
    w.user.expectMessage("¡La solicitud de Luis García Pérez ya no existe o ya está en un libro!");
    d.click("cmdBoton(0)");
    EXPECT_TRUE(d.closed());
  });
  EXPECT_THAT(inBook(libro), ElementsAre("7/7 Luis", "8/8 Eva"));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(MovedRequests, BookOpenElsewhere_NothingIsMoved) {
  const std::int32_t libro = book("Libro 1", true, 3);
  request("Luis", parish);
  const auto other = w.otherSession();
  FDAPI::DefinicionBloqueo held;
  held.strTabla = "Libro_Bautismo";
  held.strRegistro = std::to_string(libro);
  held.conBd = &w.con();
  other->DefinirBloqueo(held);
  ASSERT_EQ(other->lngEfectuarBloqueos(), 0);
  w.user.answerAnything(Answer::Ok);
  open([&](FormDriver& d) {
    moveAll(d);
    EXPECT_EQ(w.user.messages().size(), 1u);
    EXPECT_FALSE(d.closed());
    d.click("cmdBoton(1)");
  });
  EXPECT_THAT(inBook(libro), IsEmpty());
  EXPECT_SCRIPT_DONE(w.user);
}

}  // namespace fidaleon::tests
