// What reaches the tables of an entry, and in which words.

#include "registers/Registers.h"
#include "registers/common/EliminarPartida.h"
#include "registers/repair/PartidasIncompletas.h"
#include "store/FailingEngine.h"

namespace fidaleon::tests {

template <class R>
class RegisterStore : public ::testing::Test {
 protected:
  using Record = typename R::Record;
  using Records = std::vector<Record>;

  static Record record(const std::string& name, std::int32_t book, int folio,
                       const std::string& number) {
    return recordOf<R>(name, book, folio, number);
  }
  std::int32_t book(bool isNew) {
    return insertBook(w, R::sacrament, parish, {isNew ? "Nuevo" : "Antiguo", isNew, isNew ? 3 : 1});
  }
  bool save(Records& items) {
    bool jump = false;
    return (db.*R::save)(w.con(), items, jump);
  }
  std::int32_t saved(Record r) {
    Records items{std::move(r)};
    EXPECT_TRUE(save(items));
    return items.front().*R::store.id;
  }
  Records load(std::int32_t book) {
    Records items;
    EXPECT_TRUE((db.*R::load)(w.con(), book, items));
    return items;
  }
  std::string name(std::int32_t id) {
    const std::string who = nombrePartida(w.con(), R::sacrament, id);
    return who.substr(0, who.find(' '));
  }
  std::int64_t rows() { return w.count(R::sacrament.tablaPartidas); }
  bool wholeAndOnce() {
    for (const FilaDePartida& f : R::store.forma.filas)
      if (w.count(f.tabla) != 1) return false;
    return true;
  }

  TestWorld w;
  std::int32_t town = w.municipio("Alcalá de Henares", "Madrid");
  std::int32_t parish = w.institucion("San Pedro", town);
  cBaseDatos db{w.contexto};
};
TYPED_TEST_SUITE(RegisterStore, Registers);

TYPED_TEST(RegisterStore, List_IsOrderedByFolioAndValueAndFilledOnDemand) {
  const std::int32_t libro = this->book(false);
  this->saved(this->record("Luis", libro, 1, "10"));
  this->saved(this->record("Inés", libro, 1, "9"));
  const std::int32_t lost = this->saved(this->record("Juan", libro, 2, "11"));
  const auto& child = *TypeParam::store.propias[0];
  this->w.con().Execute("DELETE * FROM " + std::string(child.nombre) + " WHERE " +
                        child.columnas[0].nombre + "=" + std::to_string(lost));
  auto items = this->load(libro);
  ASSERT_EQ(items.size(), 2u) << "an entry that lost a row does not show";
  auto& first = items[0];
  EXPECT_EQ(first.*TypeParam::name, "Inés");
  EXPECT_EQ(first.*TypeParam::day, "19990510");
  EXPECT_TRUE(first.Estado);
  EXPECT_EQ(first.*TypeParam::store.completa, "");
  Almacen store(this->w.contexto, this->w.con(), TypeParam::store);
  ASSERT_TRUE(store.completar(libro, first.*TypeParam::store.id, first));
  const auto whole = this->record("Inés", libro, 1, "9");
  TypeParam::store.cadaTabla([&](const auto& table) {
    for (const auto& column : table.columnas)
      if (std::string(column.propiedad).starts_with("ID") ||
          std::string(column.propiedad).starts_with("Cod"))
        continue;
      else
        EXPECT_EQ(valorSQL(first, column), valorSQL(whole, column)) << column.propiedad;
  });
  EXPECT_FALSE(store.completar(libro, 99999, first));
}

TYPED_TEST(RegisterStore, Item_IsStoredOnceAndOnlyIfItsMarksSaySo) {
  const std::int32_t libro = this->book(true);
  std::vector<typename TypeParam::Record> items{this->record("Luis", libro, 1, "1"),
                                                this->record("Rosa", libro, 2, "2")};
  ponerOperacion(items[1], FDAPI::cCOperacion::Borrar);  // added and taken back before
  ASSERT_TRUE(this->save(items));
  ASSERT_TRUE(this->save(items));
  EXPECT_TRUE(this->wholeAndOnce());
  items[0].*TypeParam::name = "Inés";
  ponerOperacion(items[0], FDAPI::cCOperacion::EDITAR);
  ASSERT_TRUE(this->save(items));
  EXPECT_EQ(this->name(items[0].*TypeParam::store.id), "Inés");
  EXPECT_TRUE(this->wholeAndOnce());
  ponerOperacion(items[0], FDAPI::cCOperacion::Borrar);
  ASSERT_TRUE(this->save(items));
  for (const FilaDePartida& f : TypeParam::store.forma.filas)
    EXPECT_EQ(this->w.count(f.tabla), 0) << f.tabla;
}

// A draft may bring back the key of an entry that has been removed or completed since.
TYPED_TEST(RegisterStore, ItemWithTheKeyOfAnotherEntry_IsStoredAnewAndLeavesThatOneAlone) {
  const std::int32_t libro = this->book(true);
  const std::int32_t whole = this->saved(this->record("Rosa", libro, 1, "1"));
  for (const std::int32_t key : {whole, whole + 100}) {
    std::vector<typename TypeParam::Record> items{this->record("Luis", libro, 2, "2")};
    items[0].*TypeParam::store.id = key;
    auto dropped = items;
    EXPECT_TRUE(this->db.RetirarAMedias(this->w.con(), dropped));
    EXPECT_TRUE(this->save(items));
    EXPECT_EQ(this->name(items[0].*TypeParam::store.id), "Luis");
  }
  EXPECT_EQ(this->name(whole), "Rosa");
  EXPECT_EQ(this->rows(), 3);
}

TYPED_TEST(RegisterStore, StoringThatFailsAtAnyStep_IsReportedAndLaterEndsWithOneWholeEntry) {
  const std::int32_t libro = this->book(false);
  const std::string counters =
      sentencia(TypeParam::sacrament, "UPDATE {Libros} SET foliosiguiente");
  std::vector<std::string> steps{counters};
  for (const FilaDePartida& f : TypeParam::store.forma.filas)
    steps.push_back("INSERT INTO " + std::string(f.tabla) + " (");
  for (const std::string& step : steps) {
    this->w.user.answerAnything(Answer::Ok);
    auto* faults = store::FailingEngine::wrap(this->w.con());
    faults->failOn(step, store::ErrorKind::DiskFull);
    std::vector<typename TypeParam::Record> items{this->record("Luis", libro, 1, "1")};
    EXPECT_FALSE(this->save(items)) << step;
    const char* procedure = step == counters ? "ActualizacionFormato" : "AltaPartida";
    EXPECT_THAT(this->w.user.messages().back().text,
                HasSubstr(std::string(procedure) + TypeParam::sacrament.palabra));
    EXPECT_FALSE(this->w.con().inTransaction()) << step;
    EXPECT_TRUE(this->save(items)) << step;
    const std::int32_t id = items[0].*TypeParam::store.id;
    EXPECT_EQ(this->load(libro).size(), 1u) << step;
    EXPECT_EQ(this->rows(), 1) << step;
    EXPECT_TRUE((this->db.*TypeParam::remove)(this->w.con(), id));
  }
}

TYPED_TEST(RegisterStore, HalfStored_GoesAgainWhenItIsGivenUp) {
  const std::int32_t libro = this->book(true);
  this->w.user.answerAnything(Answer::Ok);
  auto* faults = store::FailingEngine::wrap(this->w.con());
  for (const auto* table : TypeParam::store.propias) {
    faults->failOn("INSERT INTO " + std::string(table->nombre), store::ErrorKind::DiskFull);
    std::vector<typename TypeParam::Record> items{this->record("Luis", libro, 1, "1")};
    EXPECT_FALSE(this->save(items));
    EXPECT_EQ(this->rows(), 1);
    EXPECT_TRUE(this->db.RetirarAMedias(this->w.con(), items));
    for (const FilaDePartida& f : TypeParam::store.forma.filas)
      EXPECT_EQ(this->w.count(f.tabla), 0) << f.tabla;
  }
}

TYPED_TEST(RegisterStore, WhicheverRowIsLost_IsGivenBackAndTheOthersAreFoundWithIt) {
  const std::int32_t libro = this->book(true);
  this->saved(this->record("Luis", libro, 1, "1"));
  for (const FilaDePartida& f : TypeParam::store.forma.filas) {
    if (!f.nombre) continue;
    this->w.con().Execute(std::string("DELETE * FROM ") + f.tabla);
    const auto lost = partidasIncompletas(this->w.con());
    ASSERT_EQ(lost.size(), 1u) << f.tabla;
    completarPartida(this->w.con(), lost.front());
    EXPECT_TRUE(this->wholeAndOnce()) << f.tabla;
    EXPECT_EQ(this->load(libro).size(), 1u) << f.tabla;
  }
}

TYPED_TEST(RegisterStore, RequestStored_LeavesTheCountersAlone) {
  this->book(false);
  this->saved(this->record("Luis", 0, 0, "---"));
  EXPECT_EQ(this->w.value(sentencia(TypeParam::sacrament, "SELECT NumeroSiguiente FROM {Libros}")),
            "1");
}

class BaptismStore : public RegisterStore<OfBaptism> {};

TEST_F(BaptismStore, NewEntries_GetParentRowsOfTheirOwnAndOnlyFlaggedOnesAreWritten) {
  const std::int32_t libro = book(true);
  saved(record("Luis", libro, 1, "1"));
  const std::int32_t id = saved(record("Rosa", libro, 2, "2"));
  for (const char* table : {"Bautismo_Padres", "Bautismo_Madres", "Bautismo_Matrimonio"})
    EXPECT_EQ(w.count(table), 2) << table;
  ColeccionBautismo items(1);
  ASSERT_TRUE(db.ActualizarColeccion(w.con(), id, items, 0));
  cBautismo& b = items[0];
  EXPECT_EQ(b.IDPadres, b.CodPadres);
  b.Estado = true;
  b.Operacion = FDAPI::cCOperacion::EDITAR;
  b.NombrePadres = "Pedro";
  b.NombreMadres = "Luisa";
  b.CambioPadre = true;
  ASSERT_TRUE(save(items));
  EXPECT_EQ(w.count("Bautismo_Padres WHERE Nombre=\"Pedro\""), 1);
  EXPECT_EQ(w.count("Bautismo_Madres WHERE Nombre=\"Luisa\""), 0);
}

TEST_F(BaptismStore, Deleting_SparesSharedRowsThroughTheStoreButNotThroughTheFacade) {
  const std::int32_t libro = book(false);
  saved(record("Luis", libro, 1, "1"));
  const std::int32_t two = saved(record("Rosa", libro, 1, "2"));
  const std::int32_t three = saved(record("Iván", libro, 1, "3"));
  w.con().Execute("UPDATE Bautismo SET CodPadres=1");
  ASSERT_TRUE(db.BorrarPartidaBautismo(w.con(), three));
  EXPECT_EQ(w.count("Bautismo_Padres WHERE IDPadres=1"), 1) << "two others still use it";
  EXPECT_EQ(w.count("Bautismo_Madres"), 2);
  w.user.expectMessage("¿Está seguro que desea eliminar la partida?", Answer::Yes);
  borrarPreguntando(w.contexto, w.con(), two, BAUTISMO);
  EXPECT_EQ(w.count("Bautismo_Padres WHERE IDPadres=1"), 0);
  EXPECT_TRUE(load(libro).empty()) << "the entry left has lost its father's row";
}

class ConfirmationStore : public RegisterStore<OfConfirmation> {};

TEST_F(ConfirmationStore, Request_KeepsItsInstitution) {
  cConfirmacion c = record("Luis", 0, 0, "---");
  c.InstitucionSolicitud = parish;
  ColeccionConfirmacion items{c};
  ASSERT_TRUE(save(items));
  items[0].InstitucionSolicitud = 77;
  ponerOperacion(items[0], FDAPI::cCOperacion::EDITARSOLICITUD);
  ASSERT_TRUE(save(items));
  EXPECT_EQ(w.value("SELECT InstitucionSolicitud FROM Confirmacion"), std::to_string(parish));
}

TEST_F(ConfirmationStore, EntryWithoutItsBaptism_IsListedButNotRead) {
  const std::int32_t libro = book(true);
  const std::int32_t id = saved(record("Luis", libro, 1, "1"));
  w.con().Execute("DELETE * FROM Confirmacion_Bautismo");
  ColeccionConfirmacion items = load(libro);
  ASSERT_EQ(items.size(), 1u);
  EXPECT_FALSE(db.ActualizarColeccionConfirmacion(w.con(), id, items, libro));
}

class MarriageStore : public RegisterStore<OfMarriage> {
 protected:
  /// Those of the table that name the groom or the bride.
  std::int64_t named(const std::string& who) {
    return w.count("Matrimonio_Novios WHERE Nombre=\"" + who + "\"") +
           w.count("Matrimonio_Novias WHERE Nombre=\"" + who + "\"");
  }
};

TEST_F(MarriageStore, WithoutItsOwnRow_LeavesNothingOfTheSpouses) {
  w.user.answerAnything(Answer::Ok);
  auto* faults = store::FailingEngine::wrap(w.con());
  for (const char* step : {"INSERT INTO matrimonio_novias_bautismo", "INSERT INTO matrimonio ("}) {
    faults->failOn(step, store::ErrorKind::DiskFull);
    Records items{record("Luis", book(true), 1, "1")};
    EXPECT_FALSE(save(items));
    for (const FilaDePartida& f : OfMarriage::store.forma.filas)
      EXPECT_EQ(w.count(f.tabla), 0) << f.tabla;
  }
}

TEST_F(MarriageStore, Changed_IsWrittenToItsOwnSpousesAndKeepsItsInstitution) {
  saved(record("Juan", book(true), 1, "1"));
  Records items{record("Luis", 0, 0, "---")};
  items[0].InstitucionSolicitud = parish;
  ASSERT_TRUE(save(items));
  items[0].InstitucionSolicitud = 77;
  items[0].NoviaNombre = "Rosa";
  items[0].NovioTomo = "II";
  ponerOperacion(items[0], FDAPI::cCOperacion::EDITARSOLICITUD);
  ASSERT_TRUE(save(items));
  EXPECT_EQ(named("Juan") + named("Eva") + named("Luis") + named("Rosa"), 4);
  EXPECT_EQ(w.count("Matrimonio_Novios_RegCivil WHERE Tomo=\"II\""), 1);
  EXPECT_EQ(w.value("SELECT InstitucionSolicitud FROM Matrimonio WHERE CodLibro=0"),
            std::to_string(parish));
  EXPECT_THAT(nombrePartida(w.con(), MATRIMONIO, items[0].IDMatrimonio),
              StartsWith("Luis García Pérez y Rosa Sanz"));
}

TEST_F(MarriageStore, Deleted_LeavesTheExaminations) {
  const std::int32_t id = saved(record("Luis", book(true), 1, "1"));
  insertRow(w, "Matrimonio_Cursos", {{"CodMatrimonio", std::to_string(id)}});
  EXPECT_TRUE(db.BorrarPartidaMatrimonio(w.con(), id));
  EXPECT_EQ(w.count("Matrimonio_Cursos"), 1);
}

TEST_F(MarriageStore, SpouseWhoseKeyIsLost_IsGivenANewOneWithItsRows) {
  const std::int32_t libro = book(true);
  saved(record("Juan", libro, 1, "1"));
  const std::int32_t id = saved(record("Luis", libro, 2, "2"));
  w.con().Execute("UPDATE Matrimonio SET CodNovios=0 WHERE IDMatrimonio=" + std::to_string(id));
  completarPartida(w.con(), partidasIncompletas(w.con()).front());
  EXPECT_EQ(cuentaPartidasIncompletas(w.con()), 0);
  EXPECT_EQ(load(libro).size(), 2u);
}

TEST(Columns, NumericColumn_TakesZeroForDashes) {
  EXPECT_EQ(comoNumero("---"), "0");
  EXPECT_EQ(comoNumero(""), "0");
  EXPECT_EQ(comoNumero(" 12 "), "12");
  EXPECT_EQ(comoNumero("1; DELETE"), "0");
}

}  // namespace fidaleon::tests
